#include "link/expected_memory.h"

#include <algorithm>

#include "image/flag_bits.h"
#include "link/write_plan.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

using Blocks = std::vector<ExpectedBlock>;

/// Only the flags of the rows that a write moves count; all others stay the receiver's own.
MemoryBlock FlagMask(RowRange rows, int index)
{
    CloneImage moved;
    for (int row = rows.first; row <= rows.Last(); ++row)
        moved.MemData(row).enabled = true;
    return FlagBlock(moved, index);
}

/// The count replaces a byte of the second settings block, whoever wrote the rest of that block.
void AddCount(Blocks& blocks, const CloneImage& image, int address)
{
    const auto settings = std::ranges::find(blocks, address, &ExpectedBlock::address);
    if (settings != blocks.end()) {
        settings->contents.SetByte(kPassCountByte, SearchPassCount(image));
        return;
    }
    MemoryBlock count;
    count.SetByte(kPassCountByte, SearchPassCount(image));
    MemoryBlock mask;
    mask.SetByte(kPassCountByte, 0xFF);
    blocks.push_back({address, count, mask, MESSAGE("Settings 2 (Search Pass count)")});
}

void AddSection(Blocks& blocks, const CloneImage& image, const TransferScope& scope,
                const WriteSection& section)
{
    const MemoryArea& area = *section.area;
    const MemoryBlock everything(std::string(kBlockChars, 'F'));
    const MemoryBlock nothing;
    for (const int index : section.blocks) {
        const MemoryBlock mask = section.kind == WriteSection::Kind::SendFlags
                                     ? FlagMask(TransferRows(image, scope.selector), index)
                                     : everything;
        if (mask != nothing)
            blocks.push_back(
                {area.AddressOf(index), area.encode(image, index), mask, area.label(image, index)});
    }
}

}  // namespace

std::vector<ExpectedBlock> ExpectedAfterWrite(const CloneImage& image, const TransferScope& scope)
{
    Blocks blocks;
    const WritePlan plan(image, scope);
    for (const WriteSection& section : plan.Sections()) {
        if (section.kind == WriteSection::Kind::SendCount)
            AddCount(blocks, image, section.AddressOf(0));
        else if (!section.IsRead() && section.area->id != Area::Presets)
            AddSection(blocks, image, scope, section);
    }
    std::ranges::stable_sort(blocks, {}, &ExpectedBlock::address);
    return blocks;
}

std::vector<ExpectedBlock> ExpectedInReceiver(const CloneImage& image, const TransferScope& scope)
{
    Blocks blocks = ExpectedAfterWrite(image, scope);
    const int address = AreaOf(Area::Settings).AddressOf(kSettings2);
    const auto settings = std::ranges::find(blocks, address, &ExpectedBlock::address);
    if (!scope.memory && settings != blocks.end())
        settings->mask.SetByte(kPassCountByte, 0);
    return blocks;
}

bool Agrees(const ExpectedBlock& expected, const MemoryBlock& read)
{
    for (int i = 0; i < kBlockBytes; ++i)
        if (((expected.contents.Byte(i) ^ read.Byte(i)) & expected.mask.Byte(i)) != 0 ||
            (expected.mask.Byte(i) != 0 && !read.HasByte(i)))
            return false;
    return true;
}

}  // namespace rqm5
