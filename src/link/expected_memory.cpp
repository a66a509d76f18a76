#include "link/expected_memory.h"

#include <algorithm>

#include "image/channel_record.h"
#include "image/flag_bits.h"
#include "link/memory_map.h"
#include "memory/bank_layout.h"
#include "memory/rebuild_blocks.h"
#include "memory/search_pass.h"

namespace rqm5 {
namespace {

using Blocks = std::vector<ExpectedBlock>;

MemoryBlock Everything()
{
    return MemoryBlock(std::string(kBlockChars, 'F'));
}

void Add(Blocks& blocks, int address, const MemoryBlock& contents, const std::string& label)
{
    blocks.push_back({address, contents, Everything(), label});
}

std::string FromTo(const std::string& name, int first, int last)
{
    return name + " " + std::to_string(first) + " to " + std::to_string(last);
}

void AddSettings(Blocks& blocks, const CloneImage& image)
{
    Add(blocks, kSettings1Address, image.SetData1, "Settings 1");
    Add(blocks, kSettings2Address, image.SetData2, "Settings 2");
    for (int row = 0; row < kVfoRows; ++row)
        Add(blocks, BlockAddress(kVfoAddress, row), EncodeVfoRow(image, row), "VFO " + std::to_string(row));
}

void AddBanks(Blocks& blocks, const CloneImage& image)
{
    constexpr int kSizesPerBlock = 8;
    for (int i = 0; i < static_cast<int>(image.BankData.size()); ++i)
        Add(blocks, BlockAddress(kBankAddress, i), image.BankData[static_cast<std::size_t>(i)],
            FromTo("Bank sizes", i * kSizesPerBlock,
                   std::min(i * kSizesPerBlock + kSizesPerBlock - 1, kUnassigned)));
    Add(blocks, kLinkAddress, image.BankFlagData, "Bank links");
}

/// Only the flags of the rows that a write moves count; all others stay the receiver's own.
void AddFlags(Blocks& blocks, const CloneImage& image, RowRange rows)
{
    constexpr int kFlagsPerBlock = 8 * kBlockBytes;
    CloneImage moved;
    std::fill_n(moved.MemEnable.begin() + rows.first, rows.count, true);
    EncodeExtraData(moved);
    for (int i = 0; i < static_cast<int>(image.ExtraData.size()); ++i) {
        const auto index = static_cast<std::size_t>(i);
        const int last = std::min((i + 1) * kFlagsPerBlock, kMemoryRows) - 1;
        if (moved.ExtraData[index] != MemoryBlock())
            blocks.push_back({BlockAddress(kFlagAddress, i), image.ExtraData[index], moved.ExtraData[index],
                              FromTo("Enable flags of rows", i * kFlagsPerBlock, last)});
    }
}

void AddSearchPass(Blocks& blocks, const CloneImage& image, const TransferScope& scope)
{
    for (int i = 0; i < static_cast<int>(image.PassData.size()); ++i)
        Add(blocks, BlockAddress(kPassAddress, i), image.PassData[static_cast<std::size_t>(i)],
            "Search Pass list " + std::to_string(i + 1));
    // The count replaces a byte of the second settings block, whoever wrote the rest of that block.
    MemoryBlock count;
    count.SetByte(kPassCountByte, SearchPassCount(image));
    MemoryBlock mask;
    mask.SetByte(kPassCountByte, 0xFF);
    if (scope.settings) {
        const auto settings = std::find_if(blocks.begin(), blocks.end(), [](const ExpectedBlock& block) {
            return block.address == kSettings2Address;
        });
        settings->contents.SetByte(kPassCountByte, SearchPassCount(image));
    } else {
        blocks.push_back({kSettings2Address, count, mask, "Settings 2 (Search Pass count)"});
    }
}

void AddMemory(Blocks& blocks, const CloneImage& image, const TransferScope& scope)
{
    const RowRange rows = TransferRows(image, scope.selector);
    AddBanks(blocks, image);
    AddFlags(blocks, image, rows);
    if (scope.selector == kSelectSearchPass || scope.selector == kSelectAll)
        AddSearchPass(blocks, image, scope);
    for (int row = rows.first; row <= rows.Last(); ++row)
        Add(blocks, BlockAddress(kChannelAddress, row), EncodeMemoryRow(image, row), RowLabel(image, row));
}

std::string PlaceOfRow(const CloneImage& image, int row)
{
    for (int selector = 0; selector < kSelectAll; ++selector) {
        const RowRange rows = GroupRows(image, selector);
        if (!rows.Contains(row))
            continue;
        const auto number = static_cast<std::size_t>(row - rows.first);
        if (selector < kBanks)
            return SelectorText(selector) + ", channel " + std::to_string(number);
        // The title of the list says "Seach Pass"; in a sentence it is spelled as people do.
        static const auto labels = BuildChannelLabels({}, kSelectAll);
        const std::string name = selector == kSelectSearchPass ? "Search Pass" : SelectorText(selector);
        return name + " " + labels[static_cast<std::size_t>(row)];
    }
    return "no bank";
}

}  // namespace

std::vector<ExpectedBlock> ExpectedAfterWrite(const CloneImage& image, const TransferScope& scope)
{
    CloneImage sent = image;
    RebuildBlocks(sent);
    BuildPassData(sent);
    Blocks blocks;
    if (scope.settings)
        AddSettings(blocks, sent);
    if (scope.memory)
        AddMemory(blocks, sent, scope);
    else if (scope.banks)
        AddBanks(blocks, sent);
    std::stable_sort(blocks.begin(), blocks.end(),
                     [](const auto& a, const auto& b) { return a.address < b.address; });
    return blocks;
}

bool Agrees(const ExpectedBlock& expected, const MemoryBlock& read)
{
    for (std::size_t i = 0; i < kBlockBytes; ++i)
        if (((expected.contents.Byte(i) ^ read.Byte(i)) & expected.mask.Byte(i)) != 0 ||
            (expected.mask.Byte(i) != 0 && !read.HasByte(i)))
            return false;
    return true;
}

std::string RowLabel(const CloneImage& image, int row)
{
    return "Row " + std::to_string(row) + " (" + PlaceOfRow(image, row) + ")";
}

}  // namespace rqm5
