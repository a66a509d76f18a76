#include "memory/cell_edit.h"

#include <gtest/gtest.h>

#include "image/number_text.h"
#include "memory/several_rows.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

CloneImage ImageOf(int region)
{
    CloneImage image = StartUpImage(region);
    for (int row = 0; row < 3; ++row)
        image.MemData(row) = NewChannel(image, Hertz(145 + row));
    return image;
}

/// A letter a column: how it is edited.
std::string Kinds(const CloneImage& image, int row)
{
    std::string kinds;
    for (const Column column : kColumns)
        kinds += "-ntc"[static_cast<int>(EditorOfCell(image, row, column).kind)];
    return kinds;
}

TEST(CellEdit, WhatTheRegionDoesNotHaveCannotBeEdited)
{
    const char* const expected[] = {"nccc-cccnt", "ncccc-ccnt", "ncccc-ccnt", "ncccc-ccnt"};
    for (int region = 0; region < kRegions; ++region) {
        const CloneImage image = ImageOf(region);
        EXPECT_EQ(Kinds(image, 0), expected[region]) << region;
        EXPECT_EQ(Kinds(image, 5), "n---------") << "an empty row begins with its frequency";
        EXPECT_EQ(EditorOfCell(image, 0, kOption).choices.size(), region < 2 ? 4U : 3U);
    }
    CloneImage image = ImageOf(2);
    image.MemData(0).option = 16;
    image.MemData(0).step = 15;
    EXPECT_EQ(EditorOfCell(image, 0, kOption).choices.back().text, "SCRT") << "a row may keep what it has";
    EXPECT_EQ(EditorOfCell(image, 0, kStep).choices.back().text, "1MHz");
    EXPECT_EQ(EditorOfCell(image, 0, kStep).choices.front().text, "1KHz");
}

TEST(CellEdit, TheColumnSkipEditsTheMarkAndTextsAreTaken)
{
    CloneImage image = ImageOf(1);
    StoreCellChoice(image, 0, kSecret, 1);
    EXPECT_TRUE(image.MemData(0).IsSkipped() && image.MemData(0).secret == 8) << "the mark is what is shown";
    StoreCellText(image, 0, kNote, "club");
    StoreCellText(image, 0, kShiftFrequency, "7.6");
    EXPECT_TRUE(image.MemData(0).note == "club" && image.MemData(0).shiftFrequency == Hertz(7.6));
}

TEST(CellEdit, AFrequencyMakesAnEmptyRowAChannelThatIsOn)
{
    CloneImage image = ImageOf(1);
    image.MemData(9).note = "kept";
    StoreCellText(image, 9, kFrequency, "118.1");
    Channel expected = NewChannel(image, Hertz(118.1));
    expected.note = "kept";
    EXPECT_EQ(image.MemData(9), expected);
    EXPECT_TRUE(expected.mode == 1 && expected.step == 8 && expected.enabled);
    EXPECT_EQ(CheckCell(image, 8, kFrequency, 0, "").verdict, Verdict::Accepted);
    EXPECT_EQ(CheckCell(image, 9, kFrequency, 0, "").verdict, Verdict::OutOfRange);
    EXPECT_EQ(CheckCell(image, 9, kShiftFrequency, 0, "100").verdict, Verdict::OutOfRange);
}

TEST(SeveralRows, FieldsThatDifferAreBlankAndOnlyTouchedOnesAreStored)
{
    CloneImage image = ImageOf(0);
    image.MemData(1).mode = 1;
    image.MemData(1).note = "one";
    image.MemData(2).option = 16 + 8;  // decoded: "Scrt"
    const SharedFields shown = LoadShared(image, {0, 1, 2});
    EXPECT_TRUE(shown.fields.frequency.empty() && shown.fields.note.empty() && shown.fields.mode == -1);
    EXPECT_TRUE(shown.fields.step == 7 && shown.isSkipMixed && !shown.isEnableMixed && shown.fields.enable);
    CloneImage expected = image;
    StoreShared(image, {0, 1, 2}, shown, shown);
    EXPECT_TRUE(image == expected);

    SharedFields entered = shown;
    entered.fields.mode = 2;
    entered.fields.enable = false;
    entered.fields.shiftFrequency = "";  // emptied: says nothing
    StoreShared(image, {0, 2}, shown, entered);
    for (const int row : {0, 2}) {
        expected.MemData(row).mode = 2;
        expected.MemData(row).enabled = false;
    }
    EXPECT_TRUE(image == expected);
    entered = shown;
    entered.isSkipMixed = false;
    entered.fields.skip = false;
    StoreShared(image, {0, 1, 2}, shown, entered);
    EXPECT_EQ(image.MemData(2).option, 16);
}

TEST(SeveralRows, ABlankFrequencyIsNotCheckedAndOneForAllIsNoSearchPassList)
{
    const CloneImage image = ImageOf(2);
    const auto verdict = [&image](int selector, const char* typed) {
        return CheckSharedFrequency(image, {0, 1}, selector, typed).verdict;
    };
    EXPECT_EQ(verdict(0, ""), Verdict::Accepted);
    EXPECT_EQ(verdict(0, "830"), Verdict::Cellular);
    EXPECT_EQ(verdict(0, "1300"), Verdict::OutOfRange);
    EXPECT_EQ(verdict(kSelectSearchPass, "400"), Verdict::Duplicate);
    EXPECT_EQ(CheckSharedFrequency(image, {0, 1}, 0, "1300").text, "");
}

}  // namespace
}  // namespace rqm5
