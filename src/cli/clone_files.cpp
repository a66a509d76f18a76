#include "cli/clone_files.h"

#include <QFile>
#include <QFileInfo>
#include <ostream>

#include "files/file_store.h"
#include "image/display_text.h"
#include "memory/start_image.h"

namespace rqm5 {

QString PathOf(const std::string& typed)
{
    return QFile::decodeName(QByteArray::fromStdString(typed));
}

bool Exists(const std::string& path)
{
    const QFileInfo info(PathOf(path));
    // A link that leads nowhere is there too: replacing it would lose it.
    return info.exists() || info.isSymLink();
}

std::optional<Problem> Load(const std::string& path, CloneImage& image)
{
    return LoadCloneFile(PathOf(path), image);
}

std::optional<Problem> LoadOrStart(const std::string& path, CloneImage& image)
{
    if (Exists(path))
        return Load(path, image);
    image = StartUpImage(0);
    return std::nullopt;
}

bool AreSameFile(const std::string& a, const std::string& b)
{
    const QFileInfo first(PathOf(a));
    const QFileInfo second(PathOf(b));
    return first.exists() && first.canonicalFilePath() == second.canonicalFilePath();
}

Problem SameFileProblem(const std::string& path)
{
    return {kFileOpenError,
            path + ": both names are the same file, which would be replaced; give another name"};
}

std::optional<Problem> KeepOldFile(const std::string& path)
{
    const QString name = PathOf(path);
    const QString kept = name + QLatin1Char('~');
    std::string bytes;
    auto problem = ReadWholeFile(name, bytes);
    if (!problem)
        problem = WriteWholeFile(kept, bytes);
    // Who may not read the file may not read what is kept of it.
    if (!problem)
        QFile::setPermissions(kept, QFile::permissions(name));
    return problem;
}

Status Save(const std::string& path, const CloneImage& image, Console& console)
{
    const SaveOutcome outcome = SaveCloneFile(PathOf(path), image);
    if (outcome.problem)
        return Fail(console, *outcome.problem);
    if (outcome.lostNotes.empty())
        return Status::Done;
    Report(console,
           {kDataError, path + " is written, but the file cannot bring back these notes; take commas "
                               "and quotes out of them:"});
    for (const std::string& row : outcome.lostNotes)
        console.err << "  " << VisibleText(row) << '\n';
    return Status::Failed;
}

}  // namespace rqm5
