#pragma once

#include <QString>

namespace rqm5 {

/// Where "RQ-M5.ini" lies: in the program's own folder, or, when that cannot be written (a system-wide
/// installation), in the user's configuration folder.
QString PortFilePath(const QString& programFolder);

/// The COM number 1 to 14 that the file holds; 1 when it is missing, unreadable, out of range, or named
/// differently in letter case.
int ReadPortFile(const QString& path);

/// Writes the number as its decimal text and a line end. \return false when the file could not be written
bool WritePortFile(const QString& path, int number);

}  // namespace rqm5
