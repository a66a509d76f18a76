#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// Indices of the bank selector: 0 to 49 are banks.
inline constexpr int kSelectProgramScan = 50;
inline constexpr int kSelectSearchPass = 51;
inline constexpr int kSelectPriority = 52;
inline constexpr int kSelectAll = 53;
inline constexpr int kSelectorEntries = 54;

/// Memory rows first to first + count - 1.
struct RowRange
{
    int first = 0;
    int count = 0;

    int Last() const { return first + count - 1; }
    bool Contains(int row) const { return row >= first && row < first + count; }
};

/// The text of a selector entry: "Bank 0" to "Bank 49", "Program Scan", "Seach Pass" (the receiver's own
/// spelling), "Priority", "All".
std::string SelectorText(int selector);

/// The memory rows of the group that a selector entry shows.
RowRange GroupRows(const CloneImage& image, int selector);

/// The memory rows that a transfer of a selector entry moves. As GroupRows, but for bank 49, whose
/// transfer moves channel 0 alone: a deliberate boundary of the receiver's protocol.
RowRange TransferRows(const CloneImage& image, int selector);

/// The memory row of a table row; table row 1 is the first data row (row 0 is the title).
int RowOfSelection(const CloneImage& image, int selector, int tableRow);

/// The labels of the group's data rows, in order. Search Pass and Priority count from 1 in their own
/// view and from 0 in the view of all rows: a deliberate asymmetry.
std::vector<std::string> BuildChannelLabels(const CloneImage& image, int selector);

/// How many channels banks 0 to 49 hold together, 0 to 1000.
int TotalBankSize(const CloneImage& image);

enum class BankEntry {
    Accepted,       ///< the size was taken
    OutOfRange,     ///< below 0 or above 1000: refused without a message
    TotalTooLarge,  ///< all fifty together would exceed 1000: refused with the message
};

/// Takes a typed bank size when it may be taken; a refused one changes nothing.
BankEntry EnterBankSize(CloneImage& image, int bank, std::string_view text);

/// BankData into BankSize: words of 16 bits, low byte first. A negative size becomes 0, and sizes are
/// cut in bank order so that banks 0 to 49 never exceed 1000 together.
void DecodeBankData(CloneImage& image);

/// BankSize into BankData, the receiver's fixed words behind them.
void EncodeBankData(CloneImage& image);

}  // namespace rqm5
