#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "image/clone_image.h"

namespace rqm5 {

inline constexpr std::string_view kCsvModel = "RQ-M5";
inline constexpr std::string_view kCsvVfo = "VFO";

/// The first record of a CSV file.
inline constexpr std::array<std::string_view, 15> kCsvTitles = {
    "MODEL", "BANK", "CHANNEL", "FREQUENCY",       "MODE",  "STEP", "OPTION", "SECRET",
    "TRAIN", "TONE", "SHIFT",   "SHIFT FREQUENCY", "NOTES", "SKIP", "ENABLE"};

/// What follows the three key fields of a CSV record.
struct CsvRecord
{
    std::array<std::string, kTextColumns> texts;
    std::string skip;
    std::string enable;
};

/// What the texts of a record say, as a block counts it (frequencies in hertz, the option without the skip
/// mark); nothing for a text that the row is not changed by.
using CsvValues = std::array<std::optional<std::int64_t>, kBlockColumns>;

CsvValues ReadCsvValues(const CsvRecord& record);

/// The same of a channel.
std::int64_t CsvValueOf(const ChannelContents& row, Column column);

/// Writes a record into a row. A text that matches no value keeps what the row has; a frequency of 0 empties
/// the row. The note is made a single line.
/// \return true when the carrier code is one above the one that an export wrote
bool StoreRecord(const CsvRecord& record, const CsvValues& values, RowKind kind, Channel& row);

/// Upper-case letters of the plain alphabet.
std::string UpperCase(std::string_view text);

}  // namespace rqm5
