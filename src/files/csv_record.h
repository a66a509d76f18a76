#pragma once

#include <array>
#include <string>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5 {

inline constexpr std::string_view kCsvModel = "RQ-M5";
inline constexpr std::string_view kCsvVfo = "VFO";

/// What follows the three key fields of a CSV record.
struct CsvRecord
{
    std::array<std::string, kTextColumns> texts;
    bool isSkipped = false;
    bool isEnabled = false;
};

/// Writes a record into a row. A text that matches no value keeps what the row has; a frequency of 0 empties
/// the row. The note is made a single line.
/// \return true when the carrier code is one above the one that an export wrote
bool StoreRecord(const CsvRecord& record, RowKind kind, Channel& row);

/// Upper-case letters of the plain alphabet.
std::string UpperCase(std::string_view text);

}  // namespace rqm5
