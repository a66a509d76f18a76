#include "link/memory_map.h"

#include <gtest/gtest.h>

#include "link/simulated_line.h"
#include "memory/change_words.h"

namespace rqm5 {
namespace {

TEST(MemoryMap, TheAreasLieWhereTheReceiverHasThemAndDoNotOverlap)
{
    const std::tuple<Area, int, int> kPlaces[] = {
        {Area::Settings, 0x0040, 0x0050}, {Area::BankSizes, 0x00C0, 0x0120}, {Area::Flags, 0x01C0, 0x0250},
        {Area::Links, 0x0260, 0x0260},    {Area::PassList, 0x0280, 0x02E0},  {Area::Presets, 0x0560, 0x09F0},
        {Area::Vfo, 0x0C00, 0x0CD0},      {Area::Channels, 0x1000, 0x5B90}};
    ASSERT_EQ(MemoryMap().size(), std::size(kPlaces));
    int behindLast = 0;
    for (const auto& [id, first, last] : kPlaces) {
        const MemoryArea& area = AreaOf(id);
        EXPECT_EQ(area.id, id);
        EXPECT_EQ(area.address, first);
        EXPECT_EQ(area.AddressOf(area.blocks - 1), last);
        EXPECT_GE(area.address, behindLast);
        behindLast = area.AddressOf(area.blocks);
        for (const int address : {first - 1, behindLast})
            EXPECT_FALSE(PlaceOf(address) && PlaceOf(address)->area == &area) << address;
        for (const int address : {first, first + 0x0F, last, last + 0x0F}) {
            const auto place = PlaceOf(address);
            ASSERT_TRUE(place && place->area == &area) << address;
            EXPECT_EQ(place->index, (address - first) / 0x10);
        }
    }
    for (const int nothing : {-1, 0, 0x3F, 0x60, 0x130, 0x270, 0x2F0, 0xA00, 0xCE0, 0xFFF, 0x5BA0, 0xFFF0})
        EXPECT_FALSE(PlaceOf(nothing)) << nothing;
    const std::pair<int, int> kRows[] = {{0x0FF0, -1}, {0x1000, 0}, {0x5B90, 1209}, {0x5BA0, -1}};
    for (const auto& [address, row] : kRows)
        EXPECT_EQ(MemoryRowAt(address), row);
}

TEST(MemoryMap, WhatIsEncodedDecodesToTheSameImage)
{
    // Something at the first and the last place of every area.
    CloneImage image = DemoImage(2);
    image.MemData(1209) = image.MemData(0);
    image.VFOData(13) = image.VFOData(0);
    image.MemData(1239).enabled = true;
    image.SetBankLink(55, true);
    image.SetBankSize(kBanks - 1, image.BankSize(kUnassigned) - 1);
    image.SetBankSize(kUnassigned, 1);

    CloneImage decoded;
    for (const MemoryArea& area : MemoryMap()) {
        std::vector<MemoryBlock> blocks;
        for (const int index : BlocksOf(area, image))
            blocks.push_back(area.encode(image, index));
        if (area.decode != nullptr && !area.decodesSingly)
            area.decode(decoded, 0, blocks);
        for (int index = 0; area.decodesSingly && index < area.blocks; ++index)
            area.decode(decoded, index, {&blocks[static_cast<std::size_t>(index)], 1});
    }
    EXPECT_TRUE(decoded == image) << testing::PrintToString(
        DescribeChange(image, Difference(image, decoded)));
}

TEST(MemoryMap, BlocksHaveNamesAndRowsHaveFields)
{
    const CloneImage image = DemoImage(0);  // bank 1 begins at row 50, rows from 500 on are in none
    // clang-format off
    const std::tuple<int, const char*, const char*> kNames[] = {
        {0x0040, "settings 1", "Settings 1"}, {0x0050, "settings 2", "Settings 2"},
        {0x00C0, "bank sizes", "Bank sizes 0 to 7"}, {0x0120, "bank sizes", "Bank sizes 48 to 50"},
        {0x01C0, "enable flags", "Enable flags of rows 0 to 127"},
        {0x0250, "enable flags", "Enable flags of rows 1152 to 1239"},
        {0x0260, "bank links", "Bank links"}, {0x02E0, "list of Search Pass channels", "Search Pass list 7"},
        {0x0560, "region presets", "region presets"}, {0x0CD0, "VFO row 13", "VFO 13"},
        {0x1330, "memory row 51 (Bank 1, channel 1)", "Row 51 (Bank 1, channel 1)"},
        {0x2F40, "memory row 500 (in no bank)", "Row 500 (no bank)"},
        {0x5510, "memory row 1105 (Search Pass S5)", "Row 1105 (Search Pass S5)"},
        {0x4E90, "memory row 1001 (Program Scan 0B)", "Row 1001 (Program Scan 0B)"},
        {0x5B90, "memory row 1209 (Priority Pr9)", "Row 1209 (Priority Pr9)"},
    };
    // clang-format on
    for (const auto& [address, name, label] : kNames) {
        const BlockPlace place = PlaceOf(address).value();
        EXPECT_EQ(BlockName(image, address), name);
        EXPECT_EQ(place.area->label(image, place.index), label);
        EXPECT_EQ(HoldsFields(address), address >= 0x0C00);
    }
    EXPECT_EQ(BlockName(image, 0x5BA0), "");

    const MemoryBlock block("01455000000000180000001000600000");
    const auto texts = [&block](int address) {
        std::string text;
        for (const BlockField& field : BlockFields(address, block))
            text += field.name.English() + ": " + field.text.English() + "; ";
        return text;
    };
    const std::string head = "Frequency: 145.500000; Mode: FM; Step: 9KHz; Option: ";
    const std::string tail =
        "; Secret code: 0; Carrier: 300Hz; Tone: 67.0Hz; Shift: +Shift; "
        "Shift frequency: 0.600000; ";
    EXPECT_EQ(texts(0x0C00), head + "SCRT" + tail);
    EXPECT_EQ(texts(0x1000), head + "Scrt" + tail + "Skip: yes; ");
    EXPECT_EQ(texts(0x0040), "");
    EXPECT_TRUE(BlockFields(0x1000, MemoryBlock()).empty());
}

}  // namespace
}  // namespace rqm5
