#include "memory/channel_operations.h"

#include <gtest/gtest.h>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

void PutChannel(CloneImage& image, int row, const std::string& note)
{
    const auto index = static_cast<std::size_t>(row);
    image.MemData[index][kFrequency] = 100 + row;
    image.MemText[index][kFrequency] = std::to_string(100 + row) + ".000000";
    image.MemText[index][kNote] = note;
    image.MemEnable[index] = true;
}

CloneImage FilledImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kRadioRows; ++row)
        PutChannel(image, row, "n" + std::to_string(row));
    return image;
}

std::string NoteOf(const CloneImage& image, int row)
{
    return image.MemText[static_cast<std::size_t>(row)][kNote];
}

TEST(ChannelOperations, EnableNeedsAFrequencyAndItsText)
{
    CloneImage image = StartUpImage(0);
    for (const int row : {1, 2, 3})
        PutChannel(image, row, "");
    image.MemData[2][kFrequency] = 0;
    image.MemText[3][kFrequency].clear();
    EnableRows(image, {0, 4});
    for (std::size_t row = 0; row < 5; ++row)
        EXPECT_EQ(image.MemEnable[row], row == 1) << row;
    DisableRows(image, {1, 1});
    EXPECT_FALSE(image.MemEnable[1]);
    EXPECT_EQ(image.MemData[1][kFrequency], 101);
}

/// The notes that some rows hold afterwards, "" for an empty row.
void ExpectNotes(const CloneImage& image, std::initializer_list<std::pair<int, const char*>> notes)
{
    for (const auto& [row, note] : notes) {
        EXPECT_EQ(NoteOf(image, row), note) << row;
        EXPECT_EQ(HasChannel(image, row), *note != '\0') << row;
    }
}

TEST(ChannelOperations, InsertAndDeleteMoveTheFirstTwoHundredRowsOnly)
{
    CloneImage image = FilledImage();
    image.MemEnable[11] = false;
    ASSERT_TRUE(DeleteTableRow(image, 11));
    ExpectNotes(image, {{9, "n9"}, {10, "n11"}, {198, "n199"}, {199, ""}, {200, "n200"}});
    EXPECT_FALSE(image.MemEnable[10] || image.MemEnable[199]);
    image = FilledImage();
    ASSERT_TRUE(InsertTableRow(image, 1));
    ExpectNotes(image, {{0, ""}, {1, "n0"}, {199, "n198"}, {200, "n200"}});
    ASSERT_TRUE(InsertTableRow(image, 200));
    ExpectNotes(image, {{198, "n197"}, {199, ""}, {200, "n200"}});
    const CloneImage before = image;
    for (const int tableRow : {0, 201, 1210})
        EXPECT_FALSE(DeleteTableRow(image, tableRow) || InsertTableRow(image, tableRow));
    EXPECT_TRUE(SameContents(image, before));
}

}  // namespace
}  // namespace rqm5
