#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "files/csv_file.h"
#include "files/replacing_file.h"
#include "image/clone_image.h"
#include "image/problem.h"
#include "language/message.h"

namespace rqm5 {

/// Tells contents of files apart; empty for a file that could not be read.
using FileMark = QByteArray;

FileMark MarkOf(const std::string& bytes);

/// The mark of a file as it is now.
FileMark MarkOfFile(const QString& path);

/// Loads a clone file. On a problem ("File Open Error" or "Data Error") the image is as it was.
/// \param mark  of what was read; may be null
std::optional<Problem> LoadCloneFile(const QString& path, CloneImage& image, FileMark* mark = nullptr);

/// What saving led to.
struct SaveOutcome
{
    std::optional<Problem> problem = {};      ///< why it failed; says whether the new file is in place
    std::vector<Message> lostNotes = {};      ///< rows whose notes do not survive loading
    std::vector<Message> changedValues = {};  ///< what else reads back otherwise, one line a row
    std::vector<Message> accessChanges = {};  ///< see CarryAccess
    FileMark mark = {};                       ///< of what is in place now; empty when nothing is
};

/// Saves a clone file: to a temporary file in the same folder, flushed to the disk and renamed over the
/// old one; then reads its own bytes back through the loader and compares.
SaveOutcome SaveCloneFile(const QString& path, const CloneImage& image);

/// Writes CSV in the same manner.
std::optional<Problem> ExportCsv(const QString& path, const CloneImage& image);

/// \param taken  what the file gave; without any record nothing has changed
/// \param mark   of what was read; may be null
std::optional<Problem> ImportCsv(const QString& path, CloneImage& image, CsvTaken& taken,
                                 FileMark* mark = nullptr);

/// Why a file could not be saved at a path, as far as it shows before the attempt.
std::optional<Problem> SaveObstacle(const QString& path);

/// The same before a long read, whose result would be lost: the disk must have room for it, too.
std::optional<Problem> ReadingObstacle(const QString& path);

/// What there is to know about a file that was written.
struct WriteReport
{
    std::vector<Message> accessChanges = {};  ///< see CarryAccess
    FileIdentity identity = {};
    bool isInPlace = false;
};

/// Replaces a file as a whole or not at all.
std::optional<Problem> WriteWholeFile(const QString& path, const std::string& bytes,
                                      WriteReport* report = nullptr);

/// Reads a file of at most 16 MiB as a whole; a larger one is refused without reading it.
std::optional<Problem> ReadWholeFile(const QString& path, std::string& bytes);

}  // namespace rqm5
