#include "files/file_store.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include "files/clone_file.h"
#include "files/round_trip.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

std::string NameOf(const QString& path)
{
    return VisibleText(QFileInfo(path).absoluteFilePath().toStdString());
}

/// Why a file that was written is not the one that is there now.
Problem NotAsWritten(const QString& path, const FileIdentity& written)
{
    if (FileIdentity::Of(path) != written)
        return {
            kDataError,
            {MESSAGE("%1: another program wrote this file right after it was saved, so it holds something "
                     "else. Look at it, then save again or under another name."),
             {NameOf(path)}}};
    return {kDataError,
            {MESSAGE("%1: the file does not hold what was written to it. The disk may be failing; save to "
                     "another one."),
             {NameOf(path)}}};
}

Problem Unreadable(const Problem& reading)
{
    return {reading.text,
            {MESSAGE("%1 The new file is in place; only what it holds could not be compared with what "
                     "was written."),
             {reading.details}}};
}

}  // namespace

FileMark MarkOf(const std::string& bytes)
{
    return QCryptographicHash::hash(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())),
                                    QCryptographicHash::Sha256);
}

FileMark MarkOfFile(const QString& path)
{
    std::string bytes;
    return ReadWholeFile(path, bytes) ? FileMark() : MarkOf(bytes);
}

std::optional<Problem> LoadCloneFile(const QString& path, CloneImage& image, FileMark* mark)
{
    std::string bytes;
    if (auto problem = ReadWholeFile(path, bytes))
        return problem;
    if (mark != nullptr)
        *mark = MarkOf(bytes);
    if (const auto error = ParseCloneFile(bytes, image))
        return Problem{kDataError, Message(MESSAGE("%1: %2"), {NameOf(path), error->reason})};
    return std::nullopt;
}

SaveOutcome SaveCloneFile(const QString& path, const CloneImage& image)
{
    const std::string text = FormatCloneFile(image);
    SaveOutcome outcome;
    WriteReport report;
    outcome.problem = WriteWholeFile(path, text, &report);
    outcome.accessChanges = report.accessChanges;
    if (report.isInPlace)
        outcome.mark = MarkOf(text);
    if (outcome.problem)
        return outcome;
    std::string written;
    if (const auto problem = ReadWholeFile(path, written)) {
        outcome.problem = Unreadable(*problem);
    } else if (written != text) {
        outcome.problem = NotAsWritten(path, report.identity);
        outcome.mark.clear();
    } else {
        CloneImage loaded;
        const bool isReadable = !ParseCloneFile(written, loaded);
        outcome.lostNotes = isReadable ? LostNotes(image, loaded) : NotesThatDoNotSurvive(image);
        outcome.changedValues = ChangedValues(image, isReadable ? loaded : ReadBack(image));
    }
    return outcome;
}

std::optional<Problem> ExportCsv(const QString& path, const CloneImage& image)
{
    return WriteWholeFile(path, FormatCsv(image));
}

std::optional<Problem> ImportCsv(const QString& path, CloneImage& image, CsvTaken& taken, FileMark* mark)
{
    taken = {};
    std::string bytes;
    if (auto problem = ReadWholeFile(path, bytes))
        return problem;
    if (mark != nullptr)
        *mark = MarkOf(bytes);
    taken = ParseCsv(bytes, image);
    return std::nullopt;
}

}  // namespace rqm5
