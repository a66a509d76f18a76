#include "memory/bank_layout.h"

#include <algorithm>
#include <numeric>

#include "image/number_text.h"

namespace rqm5 {
namespace {

constexpr std::size_t kWordsPerBlock = 8;
/// Block 0120 behind the three sizes: the words 100, 100, 10 and 23, and a zero word.
constexpr std::string_view kFixedWords = "640064000A0017000000";

struct FixedGroup
{
    int selector;
    std::string_view name;
    RowRange rows;
};

constexpr FixedGroup kFixedGroups[] = {
    {kSelectProgramScan, "Program Scan", {kProgramScanFirst, 100}},
    {kSelectSearchPass, "Seach Pass", {kSearchPassFirst, 100}},
    {kSelectPriority, "Priority", {kPriorityFirst, kRadioRows - kPriorityFirst}},
    {kSelectAll, "All", {0, kRadioRows}},
};

const FixedGroup* FindFixedGroup(int selector)
{
    for (const FixedGroup& group : kFixedGroups)
        if (group.selector == selector)
            return &group;
    return nullptr;
}

void AppendNumbered(std::vector<std::string>& labels, std::string_view prefix, int first, int count)
{
    for (int i = 0; i < count; ++i)
        labels.push_back(std::string(prefix) + std::to_string(first + i));
}

void AppendScanEdges(std::vector<std::string>& labels)
{
    for (int pair = 0; pair < 50; ++pair)
        for (const char* edge : {"A", "B"})
            labels.push_back(std::to_string(pair) + edge);
}

std::string WordDigits(int value)
{
    return HexByte(value & 0xFF) + HexByte((value >> 8) & 0xFF);
}

}  // namespace

std::string SelectorText(int selector)
{
    const FixedGroup* group = FindFixedGroup(selector);
    return group != nullptr ? std::string(group->name) : "Bank " + std::to_string(selector);
}

RowRange GroupRows(const CloneImage& image, int selector)
{
    if (const FixedGroup* group = FindFixedGroup(selector))
        return group->rows;
    if (selector < 0 || selector >= kBanks)
        return {};
    const int first = std::accumulate(image.BankSize.begin(), image.BankSize.begin() + selector, 0);
    return {first, image.BankSize[static_cast<std::size_t>(selector)]};
}

RowRange TransferRows(const CloneImage& image, int selector)
{
    // The fixed ranges are taken from index 49 on, and 49 matches none of them.
    return selector == kBanks - 1 ? RowRange{0, 1} : GroupRows(image, selector);
}

int RowOfSelection(const CloneImage& image, int selector, int tableRow)
{
    return GroupRows(image, selector).first + tableRow - 1;
}

std::vector<std::string> BuildChannelLabels(const CloneImage& image, int selector)
{
    std::vector<std::string> labels;
    if (selector == kSelectProgramScan) {
        AppendScanEdges(labels);
    } else if (selector == kSelectSearchPass || selector == kSelectPriority) {
        AppendNumbered(labels, "", 1, GroupRows(image, selector).count);
    } else if (selector == kSelectAll) {
        AppendNumbered(labels, "", 0, kBankRows);
        AppendScanEdges(labels);
        AppendNumbered(labels, "S", 0, 100);
        AppendNumbered(labels, "Pr", 0, 10);
    } else {
        AppendNumbered(labels, "", 0, GroupRows(image, selector).count);
    }
    return labels;
}

int TotalBankSize(const CloneImage& image)
{
    return std::accumulate(image.BankSize.begin(), image.BankSize.begin() + kBanks, 0);
}

BankEntry EnterBankSize(CloneImage& image, int bank, std::string_view text)
{
    const int size = ReadInteger(text);
    if (size < 0 || size > kBankRows)
        return BankEntry::OutOfRange;
    const int others = TotalBankSize(image) - image.BankSize.at(static_cast<std::size_t>(bank));
    if (others + size > kBankRows)
        return BankEntry::TotalTooLarge;
    SetBankSize(image, bank, size);
    return BankEntry::Accepted;
}

void DecodeBankData(CloneImage& image)
{
    int left = kBankRows;
    for (int bank = 0; bank <= kUnassigned; ++bank) {
        const auto index = static_cast<std::size_t>(bank);
        int size = std::max(0, image.BankData[index / kWordsPerBlock].Word(index % kWordsPerBlock));
        if (bank < kBanks) {
            size = std::min(size, left);
            left -= size;
        }
        SetBankSize(image, bank, size);
    }
}

void EncodeBankData(CloneImage& image)
{
    std::string digits;
    for (const int size : image.BankSize)
        digits += WordDigits(size);
    digits += kFixedWords;
    for (std::size_t i = 0; i < image.BankData.size(); ++i)
        image.BankData[i] = MemoryBlock(std::string_view(digits).substr(i * kBlockChars));
}

}  // namespace rqm5
