#pragma once

#include <optional>
#include <string>

#include "image/clone_image.h"

namespace rqm5 {

/// The memory groups and the VFO table as the column BANK of a CSV file names them, in upper case.
bool IsCsvBank(const std::string& bank);

/// The row that the columns BANK and CHANNEL name, both in upper case.
std::optional<RowId> FindCsvRow(const std::string& bank, const std::string& channel);

/// The place in a group that a label names, in upper case: as an export writes it or as the table of all rows
/// does.
std::optional<int> GroupChannel(const std::string& channel, const RowGroup& group);

/// A channel number 0 to count - 1 typed as digits, nothing for any other text.
std::optional<int> ChannelNumber(const std::string& channel, int count);

}  // namespace rqm5
