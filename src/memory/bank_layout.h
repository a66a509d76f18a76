#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "image/clone_image.h"
#include "image/memory_block.h"
#include "language/message.h"

namespace rqm5 {

/// The text of a selector entry: "Bank 0" to "Bank 49", "Program Scan", "Seach Pass" (the receiver's own
/// spelling), "Priority", "All".
Message SelectorText(int selector);

/// What the size of a bank is called, or the number of channels in no bank: "Bank 3 size".
Message BankSizeName(int bank);

/// What a link flag is called; those of no bank have names, too: "Bank 3 link", "Link flag 60 link".
Message BankLinkName(int flag);

/// The memory rows of the group that a selector entry shows.
RowRange GroupRows(const CloneImage& image, int selector);

/// The memory rows that a transfer of a selector entry moves. As GroupRows, but for bank 49, whose
/// transfer moves channel 0 alone: a boundary of the receiver's protocol.
RowRange TransferRows(const CloneImage& image, int selector);

/// The memory row of a table row; table row 1 is the first data row (row 0 is the title).
int RowOfSelection(const CloneImage& image, int selector, int tableRow);

/// The smallest group that shows a memory row: its bank, its fixed group, or the view of all rows for a row
/// in no bank.
int SelectorOfRow(const CloneImage& image, int row);

/// The labels of the group's data rows, in order. Search Pass and Priority count from 1 in their own
/// view and from 0 in the view of all rows, as the receiver does.
std::vector<std::string> BuildChannelLabels(const CloneImage& image, int selector);

/// How many channels banks 0 to 49 hold together, 0 to 1000.
int TotalBankSize(const CloneImage& image);

enum class BankEntry {
    Accepted,       ///< the size may be taken
    OutOfRange,     ///< below 0 or above 1000: refused without a message
    TotalTooLarge,  ///< all fifty together would exceed 1000: refused with the message
};

/// What becomes of a typed bank size, and the size that it is.
struct CheckedBankSize
{
    BankEntry entry;
    int size;
};

CheckedBankSize CheckBankSize(const CloneImage& image, int bank, std::string_view text);

/// `BankData`: BankSize as words of 16 bits, low byte first, the receiver's fixed words behind them.
std::array<MemoryBlock, 7> BankData(const CloneImage& image);

/// A negative size becomes 0, and sizes are cut in bank order so that banks 0 to 49 never exceed 1000
/// together.
void DecodeBankData(CloneImage& image, std::span<const MemoryBlock> blocks);

}  // namespace rqm5
