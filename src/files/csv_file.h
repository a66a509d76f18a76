#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "files/csv_findings.h"
#include "image/clone_image.h"

namespace rqm5 {

/// The VFO rows and memory rows 0 to 1209 as CSV: a header and 1224 records.
std::string FormatCsv(const CloneImage& image);

/// What a CSV text gave.
struct CsvTaken
{
    int rows = 0;
    int movedCarriers = 0;  ///< rows whose carrier code is one above the one that an export wrote
    CsvFindings findings = {};
};

/// How numbers of a CSV text are read: as they stand, up to a comma, or with a decimal comma as a point.
enum class CsvNumbers { AsTheyStand, DecimalCommas };

/// Overwrites the rows that a CSV text names and leaves all others as they are. Never fails; a text that
/// is not CSV changes nothing. The settings stay.
CsvTaken ParseCsv(std::string_view text, CloneImage& image, CsvNumbers numbers = CsvNumbers::AsTheyStand);

/// True for a file of this program: its first record is our titles, or names the receiver. Every other text
/// is a list of its own.
bool IsOwnCsv(std::string_view bytes);

/// The rows whose notes a spreadsheet would run as a formula (they begin with "=", "+", "-", "@", tab).
std::vector<Message> NotesThatLookLikeFormulas(const CloneImage& image);

}  // namespace rqm5
