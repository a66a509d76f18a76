#include "files/file_store.h"

#include <QFileInfo>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "image/display_text.h"
#include "image/image_change.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

std::string NameOf(const QString& path)
{
    return VisibleText(QFileInfo(path).absoluteFilePath().toStdString());
}

Problem NotAsWritten(const QString& path)
{
    return {kDataError,
            NameOf(path) +
                ": the file does not hold what was written to it. The disk may be failing; save to "
                "another one."};
}

/// The rows whose notes differ when the written text is loaded.
std::vector<std::string> LostNotes(const CloneImage& image, const std::string& written)
{
    CloneImage loaded;
    if (ParseCloneFile(written, loaded))
        return NotesThatDoNotSurvive(image);
    const ImageChange change = Difference(image, loaded);
    std::vector<std::string> names;
    for (const auto& note : change.VFONotes)
        names.push_back(VfoRowName(note.index));
    for (const auto& note : change.MemNotes)
        names.push_back(RowName(image, note.index));
    return names;
}

}  // namespace

std::optional<Problem> LoadCloneFile(const QString& path, CloneImage& image)
{
    std::string bytes;
    if (auto problem = ReadWholeFile(path, bytes))
        return problem;
    if (const auto error = ParseCloneFile(bytes, image))
        return Problem{kDataError, NameOf(path) + ": " + error->reason};
    return std::nullopt;
}

SaveOutcome SaveCloneFile(const QString& path, const CloneImage& image)
{
    const std::string text = FormatCloneFile(image);
    if (auto problem = WriteWholeFile(path, text))
        return {std::move(problem), {}};
    std::string written;
    if (auto problem = ReadWholeFile(path, written))
        return {std::move(problem), {}};
    if (written != text)
        return {NotAsWritten(path), {}};
    return {std::nullopt, LostNotes(image, written)};
}

std::optional<Problem> ExportCsv(const QString& path, const CloneImage& image)
{
    return WriteWholeFile(path, FormatCsv(image));
}

std::optional<Problem> ImportCsv(const QString& path, CloneImage& image, int& taken)
{
    taken = 0;
    std::string bytes;
    if (auto problem = ReadWholeFile(path, bytes))
        return problem;
    taken = ParseCsv(bytes, image);
    return std::nullopt;
}

}  // namespace rqm5
