#pragma once

#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "image/clone_image.h"
#include "image/problem.h"

namespace rqm5 {

/// Loads a clone file. On a problem ("File Open Error" or "Data Error") the image is as it was.
std::optional<Problem> LoadCloneFile(const QString& path, CloneImage& image);

/// What saving led to.
struct SaveOutcome
{
    std::optional<Problem> problem;      ///< set: nothing was written, the old file is as it was
    std::vector<std::string> lostNotes;  ///< rows whose notes do not survive loading; the file is written
};

/// Saves a clone file: to a temporary file in the same folder, flushed to the disk and renamed over the
/// old one; then reads its own bytes back through the loader and compares.
SaveOutcome SaveCloneFile(const QString& path, const CloneImage& image);

/// Writes CSV in the same manner.
std::optional<Problem> ExportCsv(const QString& path, const CloneImage& image);

/// \param taken  how many records the file gave; without any nothing has changed
std::optional<Problem> ImportCsv(const QString& path, CloneImage& image, int& taken);

/// Why a file could not be saved at a path, as far as it shows before the attempt.
std::optional<Problem> SaveObstacle(const QString& path);

/// Makes a write beyond the limit on file sizes fail like one on a full disk; it would end the program.
/// Programs call it when they start.
void TurnFileSizeLimitIntoError();

/// Replaces a file as a whole or not at all.
std::optional<Problem> WriteWholeFile(const QString& path, const std::string& bytes);

/// Reads a file of at most 16 MiB as a whole; a larger one is refused without reading it.
std::optional<Problem> ReadWholeFile(const QString& path, std::string& bytes);

}  // namespace rqm5
