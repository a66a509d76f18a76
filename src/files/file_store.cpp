#include "files/file_store.h"

#include <QFileInfo>

#include "files/clone_file.h"
#include "files/csv_file.h"
#include "image/display_text.h"
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
    std::vector<std::string> names;
    for (std::size_t row = 0; row < image.VFOText.size(); ++row)
        if (loaded.VFOText[row][kNote] != image.VFOText[row][kNote])
            names.push_back(VfoRowName(static_cast<int>(row)));
    for (std::size_t row = 0; row < image.MemText.size(); ++row)
        if (loaded.MemText[row][kNote] != image.MemText[row][kNote])
            names.push_back(RowName(image, static_cast<int>(row)));
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

SaveOutcome SaveCloneFile(const QString& path, CloneImage& image)
{
    const std::string text = FormatCloneFile(image);
    if (auto problem = WriteWholeFile(path, text))
        return {std::move(problem), {}};
    std::string written;
    if (auto problem = ReadWholeFile(path, written))
        return {std::move(problem), {}};
    if (written != text)
        return {NotAsWritten(path), {}};
    image.DataChanged = false;
    return {std::nullopt, LostNotes(image, written)};
}

std::optional<Problem> ExportCsv(const QString& path, CloneImage& image)
{
    auto problem = WriteWholeFile(path, FormatCsv(image));
    if (!problem)
        image.DataChanged = false;
    return problem;
}

std::optional<Problem> ImportCsv(const QString& path, CloneImage& image, int& taken)
{
    taken = 0;
    std::string bytes;
    if (auto problem = ReadWholeFile(path, bytes))
        return problem;
    taken = ParseCsv(bytes, image);
    // A file without a single record changes nothing, and so leaves unsaved what was.
    if (taken > 0)
        image.DataChanged = false;
    return std::nullopt;
}

}  // namespace rqm5
