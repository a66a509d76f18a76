#include "memory/bank_layout.h"

#include <algorithm>

#include "image/number_text.h"

namespace rqm5 {
namespace {

constexpr int kWordsPerBlock = 8;
/// The last block of sizes, behind its three: the words 100, 100, 10 and 23, and a zero word.
constexpr std::string_view kFixedWords = "640064000A0017000000";

void AppendNumbers(std::vector<std::string>& labels, int count)
{
    for (int i = 0; i < count; ++i)
        labels.push_back(std::to_string(i));
}

std::string WordDigits(int value)
{
    return HexByte(value & 0xFF) + HexByte((value >> 8) & 0xFF);
}

int FirstRow(const CloneImage& image, int bank)
{
    int first = 0;
    for (int before = 0; before < bank; ++before)
        first += image.BankSize(before);
    return first;
}

}  // namespace

Message SelectorText(int selector)
{
    if (selector == kSelectAll)
        return MESSAGE("All");
    const RowGroup* group = GroupOfSelector(selector);
    return group != nullptr ? Message(group->title) : Message(MESSAGE("Bank %1"), {selector});
}

Message BankSizeName(int bank)
{
    return bank == kUnassigned ? Message(MESSAGE("Channels in no bank"))
                               : Message(MESSAGE("Bank %1 size"), {bank});
}

Message BankLinkName(int flag)
{
    return {flag < kBanks ? MESSAGE("Bank %1 link") : MESSAGE("Link flag %1 link"), {flag}};
}

RowRange GroupRows(const CloneImage& image, int selector)
{
    if (selector == kSelectAll)
        return {0, kRadioRows};
    if (const RowGroup* group = GroupOfSelector(selector))
        return group->rows;
    if (selector < 0 || selector >= kBanks)
        return {};
    return {FirstRow(image, selector), image.BankSize(selector)};
}

RowRange TransferRows(const CloneImage& image, int selector)
{
    // The protocol has no range for bank 49 of its own, so only its channel 0 is moved.
    return selector == kBanks - 1 ? RowRange{0, 1} : GroupRows(image, selector);
}

int RowOfSelection(const CloneImage& image, int selector, int tableRow)
{
    return GroupRows(image, selector).first + tableRow - 1;
}

int SelectorOfRow(const CloneImage& image, int row)
{
    if (const RowGroup* group = GroupOfRow(row))
        return group->selector;
    RowRange rows;
    for (int bank = 0; bank < kBanks; ++bank) {
        rows = {rows.first + rows.count, image.BankSize(bank)};
        if (rows.Contains(row))
            return bank;
    }
    return kSelectAll;
}

std::vector<std::string> BuildChannelLabels(const CloneImage& image, int selector)
{
    std::vector<std::string> labels;
    if (selector == kSelectAll) {
        AppendNumbers(labels, kBankRows);
        for (const RowGroup& group : kRowGroups)
            for (int i = 0; i < group.rows.count; ++i)
                labels.push_back(LabelAmongAll(group, i));
    } else if (const RowGroup* group = GroupOfSelector(selector)) {
        for (int i = 0; i < group->rows.count; ++i)
            labels.push_back(GroupLabel(*group, i));
    } else {
        AppendNumbers(labels, GroupRows(image, selector).count);
    }
    return labels;
}

int TotalBankSize(const CloneImage& image)
{
    return FirstRow(image, kBanks);
}

CheckedBankSize CheckBankSize(const CloneImage& image, int bank, std::string_view text)
{
    const int size = ReadInteger(text);
    if (size < 0 || size > kBankRows)
        return {BankEntry::OutOfRange, size};
    const int others = TotalBankSize(image) - image.BankSize(bank);
    return {others + size > kBankRows ? BankEntry::TotalTooLarge : BankEntry::Accepted, size};
}

std::array<MemoryBlock, 7> BankData(const CloneImage& image)
{
    std::string digits;
    for (int bank = 0; bank < kBankSizes; ++bank)
        digits += WordDigits(image.BankSize(bank));
    digits += kFixedWords;
    std::array<MemoryBlock, 7> blocks;
    for (std::size_t i = 0; i < blocks.size(); ++i)
        blocks[i] = MemoryBlock(std::string_view(digits).substr(i * kBlockChars));
    return blocks;
}

void DecodeBankData(CloneImage& image, std::span<const MemoryBlock> blocks)
{
    int left = kBankRows;
    for (int bank = 0; bank < kBankSizes; ++bank) {
        const MemoryBlock& block = blocks[static_cast<std::size_t>(bank / kWordsPerBlock)];
        int size = std::max(0, block.Word(bank % kWordsPerBlock));
        if (bank < kBanks) {
            size = std::min(size, left);
            left -= size;
        }
        image.SetBankSize(bank, size);
    }
}

}  // namespace rqm5
