#include "cli/clone_files.h"

#include <QFile>
#include <QFileInfo>
#include <ostream>

#include "cli/streams.h"
#include "files/clone_file.h"
#include "files/file_store.h"
#include "files/rescue.h"
#include "files/round_trip.h"
#include "image/display_text.h"
#include "language/translated.h"
#include "memory/start_image.h"
#include "platform/file_access.h"

namespace rqm5 {
namespace {

using Rows = std::vector<Message>;

/// The notes that keep the image's clone file from being opened.
Rows NotesThatSpoil(const CloneImage& image)
{
    Rows lost = NotesThatDoNotSurvive(image);
    CloneImage loaded;
    const bool isOpenable = lost.empty() || !ParseCloneFile(FormatCloneFile(image), loaded);
    return isOpenable ? Rows() : lost;
}

Status FailForRows(Console& console, const Problem& problem, const Rows& rows)
{
    Report(console, problem);
    List(console, rows);
    return Status::Failed;
}

void WarnOfLinks(const std::string& path, Console& console)
{
    // The name under which the old file has just been kept is no loss.
    const int names = NameCount(PathOf(path)) - (AreSameFile(path, path + '~') ? 1 : 0);
    if (names > 1)
        Warn(console,
             {MESSAGE("%1 is one of %2 names of a file (hard links); the others keep the old contents"),
              {path, names}},
             {});
}

Status Tell(const Message& path, const SaveOutcome& outcome, Console& console)
{
    if (!outcome.accessChanges.empty())
        Warn(console, NotAllKept(path), outcome.accessChanges);
    if (!outcome.changedValues.empty())
        Warn(console, MESSAGE("a clone file cannot hold these values; they read back differently:"),
             outcome.changedValues);
    if (outcome.lostNotes.empty())
        return Status::Done;
    return FailForRows(console,
                       {kDataError,
                        {MESSAGE("%1 is written, but the file cannot bring back these notes; take commas and "
                                 "quotes out of them:"),
                         {path}}},
                       outcome.lostNotes);
}

/// What a reader of the other end will not get back is told as after a save.
Status WriteOut(const CloneImage& image, Console& console)
{
    console.out << FormatCloneFile(image);
    SaveOutcome outcome;
    outcome.lostNotes = NotesThatDoNotSurvive(image);
    outcome.changedValues = ChangedValues(image, ReadBack(image));
    return Tell(kStandardOutput, outcome, console);
}

}  // namespace

Message NotAllKept(const Message& path)
{
    return {MESSAGE("%1 is saved, but not all that belonged to the old file could be kept:"), {path}};
}

QString PathOf(const std::string& typed)
{
    return QFile::decodeName(QByteArray::fromStdString(typed));
}

std::optional<Problem> NameProblem(const std::string& typed)
{
    const bool isOther =
        PathOf(typed).contains(QChar::ReplacementCharacter) && typed.find("\uFFFD") == std::string::npos;
    if (!isOther)
        return std::nullopt;
    return Problem{
        kFileOpenError,
        {MESSAGE("%1: the name is not written in UTF-8. Rename the file, or use \"-\"."), {typed}}};
}

std::string PathText(const QString& path)
{
    return VisibleText(path.toStdString());
}

bool Exists(const std::string& path)
{
    if (IsStandard(path))
        return false;
    const QFileInfo info(PathOf(path));
    // A link that leads nowhere is there too: replacing it would lose it.
    return info.exists() || info.isSymLink();
}

std::optional<Problem> Parse(const std::string& path, const std::string& bytes, CloneImage& image)
{
    const auto error = ParseCloneFile(bytes, image);
    if (!error)
        return std::nullopt;
    const Message name = IsStandard(path) ? Message(kStandardInput)
                                          : Message(PathText(QFileInfo(PathOf(path)).absoluteFilePath()));
    return Problem{kDataError, Message(MESSAGE("%1: %2"), {name, error->reason})};
}

std::optional<Problem> Load(const std::string& path, CloneImage& image, std::string* bytes)
{
    std::string read;
    if (bytes == nullptr)
        bytes = &read;
    auto problem = ReadInput(path, *bytes);
    return problem ? problem : Parse(path, *bytes, image);
}

std::optional<Problem> LoadOrStart(const std::string& path, CloneImage& image)
{
    if (IsStandard(path) || Exists(path) || NameProblem(path))
        return Load(path, image);
    image = StartUpImage(0);
    return std::nullopt;
}

bool AreSameFile(const std::string& a, const std::string& b)
{
    // What a pipe brought is read before anything is written.
    if (IsStandard(a) || IsStandard(b))
        return false;
    const QFileInfo first(PathOf(a));
    const QFileInfo second(PathOf(b));
    if (!first.exists() || !second.exists())
        return false;
    const FileIdentity one = FileIdentity::Of(first.filePath());
    const FileIdentity other = FileIdentity::Of(second.filePath());
    return first.canonicalFilePath() == second.canonicalFilePath() ||
           (one.number != 0 && one.number == other.number && one.device == other.device);
}

Problem SameFileProblem(const std::string& path)
{
    return {
        kFileOpenError,
        {MESSAGE("%1: both names are the same file, which would be replaced; give another name"), {path}}};
}

std::optional<Problem> ReplaceProblem(const Arguments& arguments, const std::string& path, FileKind kind)
{
    if (auto problem = NameProblem(path))
        return problem;
    if (AreSameFile(arguments[0], path))
        return SameFileProblem(path);
    return arguments.Has("--force") || IsStandard(path) ? std::nullopt : OtherKindProblem(PathOf(path), kind);
}

SaveEnd Save(const std::string& path, const CloneImage& image, Console& console, Unopenable unopenable)
{
    if (const auto problem = NameProblem(path))
        return {Fail(console, *problem), false};
    const Rows spoiling = unopenable == Unopenable::IsRefused ? NotesThatSpoil(image) : Rows();
    if (!spoiling.empty())
        return {
            FailForRows(console,
                        {kDataError,
                         {MESSAGE("%1: with these notes it could not be opened any more. --safe-notes stores "
                                  "them without commas and quotes, --force as they are:"),
                          {Unchanged(path)}}},
                        spoiling),
            false};
    if (IsStandard(path))
        return {WriteOut(image, console), true};
    WarnOfLinks(path, console);
    const SaveOutcome outcome = SaveCloneFile(PathOf(path), image);
    const Status status = outcome.problem ? Fail(console, *outcome.problem) : Tell(path, outcome, console);
    return {status, !outcome.mark.isEmpty()};
}

Status SaveRead(const std::string& path, const CloneImage& image, Console& console, const Message& aftermath)
{
    const auto rescue = [&] {
        const Message kept = Rescue(image, QFileInfo(PathOf(path)).absoluteFilePath());
        return aftermath.empty() ? kept : Message::List({kept, aftermath}, " ");
    };
    if (const Rows spoiling = NotesThatSpoil(image); !spoiling.empty())
        return FailForRows(console,
                           {kDataError,
                            {MESSAGE("%1: with the notes below it could not be opened any more; take commas "
                                     "and quotes out of them."),
                             {Unchanged(path)}},
                            rescue()},
                           spoiling);
    if (IsStandard(path))
        return WriteOut(image, console);
    WarnOfLinks(path, console);
    const SaveOutcome outcome = SaveCloneFile(PathOf(path), image);
    if (!outcome.problem)
        return Tell(path, outcome, console);
    return Fail(console, {outcome.problem->text, outcome.problem->details, rescue()});
}

}  // namespace rqm5
