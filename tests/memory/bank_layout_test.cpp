#include "memory/bank_layout.h"

#include <gtest/gtest.h>

#include <tuple>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

TEST(BankLayout, SelectionMapsToRows)
{
    const CloneImage image = StartUpImage(0);
    const std::tuple<int, int, int> cases[] = {
        {0, 0, 200},   {1, 200, 150},   {6, 750, 80},    {9, 950, 50},   {10, 1000, 0},
        {49, 1000, 0}, {50, 1000, 100}, {51, 1100, 100}, {52, 1200, 10}, {53, 0, 1210},
    };
    for (const auto& [selector, first, count] : cases) {
        EXPECT_EQ(GroupRows(image, selector), (RowRange{first, count})) << selector;
        EXPECT_EQ(RowOfSelection(image, selector, 1), first) << selector;
        EXPECT_EQ(TransferRows(image, selector),
                  selector == 49 ? (RowRange{0, 1}) : (RowRange{first, count}));
    }
    for (const int none : {-1, kSelectorEntries})
        EXPECT_EQ(GroupRows(image, none), RowRange{}) << none;
}

TEST(BankLayout, LabelsCountFromOneAloneAndFromZeroTogether)
{
    const CloneImage image = StartUpImage(0);
    const std::tuple<int, std::size_t, std::size_t, const char*> cases[] = {
        // clang-format off
        {1, 150, 0, "0"}, {kSelectProgramScan, 100, 3, "1B"}, {kSelectSearchPass, 100, 0, "1"},
        {kSelectSearchPass, 100, 99, "100"}, {kSelectPriority, 10, 9, "10"}, {kSelectAll, 1210, 999, "999"},
        {kSelectAll, 1210, 1000, "0A"}, {kSelectAll, 1210, 1100, "S0"}, {kSelectAll, 1210, 1209, "Pr9"},
        // clang-format on
    };
    for (const auto& [selector, count, row, label] : cases) {
        const auto labels = BuildChannelLabels(image, selector);
        ASSERT_EQ(labels.size(), count);
        EXPECT_EQ(labels[row], label);
    }
    EXPECT_TRUE(BuildChannelLabels(image, 10).empty());
}

TEST(BankLayout, EntryObeysTheThousand)
{
    CloneImage image = StartUpImage(0);
    using enum BankEntry;
    const std::tuple<int, const char*, BankEntry, int> entries[] = {
        // clang-format off
        {0, "-1", OutOfRange, 200}, {0, "1001", OutOfRange, 200}, {0, "201", TotalTooLarge, 200},
        {0, "007", Accepted, 7}, {49, "193", Accepted, 193}, {48, "1", TotalTooLarge, 0}, {49, "", Accepted, 0},
        // clang-format on
    };
    for (const auto& [bank, text, outcome, size] : entries) {
        const CheckedBankSize checked = CheckBankSize(image, bank, text);
        EXPECT_EQ(checked.entry, outcome) << text;
        if (checked.entry == Accepted)
            image.SetBankSize(bank, checked.size);
        EXPECT_EQ(image.BankSizeText(bank), std::to_string(size)) << text;
    }
}

TEST(BankLayout, SizesFromOutsideAreMadeSafe)
{
    CloneImage image = StartUpImage(0);
    std::array<MemoryBlock, 7> blocks;
    blocks[0] = MemoryBlock("5802FFFF5802FF7F0100");
    blocks[6] = MemoryBlock("00000000E803640064000A0017000000");
    DecodeBankData(image, blocks);
    for (int bank = 0; const int expected : {600, 0, 400, 0, 0})
        EXPECT_EQ(image.BankSize(bank++), expected) << bank;
    EXPECT_EQ(image.BankSize(kUnassigned), 1000);
    EXPECT_EQ(TotalBankSize(image), 1000);
    blocks[0] = MemoryBlock("58020000900100000000");
    EXPECT_EQ(BankData(image), blocks);
}

}  // namespace
}  // namespace rqm5
