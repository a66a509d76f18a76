#include "memory/channel_operations.h"

#include <gtest/gtest.h>

#include "image/number_text.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

void PutChannel(CloneImage& image, int row, const std::string& note)
{
    image.MemData(row).frequency = Hertz(100 + row);
    image.MemData(row).note = note;
    image.MemData(row).enabled = true;
}

CloneImage FilledImage()
{
    CloneImage image = StartUpImage(0);
    for (int row = 0; row < kRadioRows; ++row)
        PutChannel(image, row, "n" + std::to_string(row));
    return image;
}

/// The notes that some rows hold afterwards, "" for an empty row.
void ExpectNotes(const CloneImage& image, std::initializer_list<std::pair<int, const char*>> notes)
{
    for (const auto& [row, note] : notes) {
        EXPECT_EQ(image.MemText(row, kNote), note) << row;
        EXPECT_EQ(image.MemData(row).HasChannel(), *note != '\0') << row;
    }
}

TEST(ChannelOperations, InsertAndDeleteMoveTheFirstTwoHundredRowsOnly)
{
    CloneImage image = FilledImage();
    image.MemData(11).enabled = false;
    ASSERT_TRUE(DeleteTableRow(image, 11));
    ExpectNotes(image, {{9, "n9"}, {10, "n11"}, {198, "n199"}, {199, ""}, {200, "n200"}});
    EXPECT_FALSE(image.MemEnable(10) || image.MemEnable(199));
    image = FilledImage();
    image.MemData(5).enabled = false;
    ASSERT_TRUE(InsertTableRow(image, 1));
    EXPECT_TRUE(!image.MemEnable(0) && image.MemEnable(5) && !image.MemEnable(6)) << "flags move along";
    ExpectNotes(image, {{0, ""}, {1, "n0"}, {199, "n198"}, {200, "n200"}});
    ASSERT_TRUE(InsertTableRow(image, 200));
    ExpectNotes(image, {{198, "n197"}, {199, ""}, {200, "n200"}});
    const CloneImage before = image;
    for (const int tableRow : {0, 201, 1210})
        EXPECT_FALSE(DeleteTableRow(image, tableRow) || InsertTableRow(image, tableRow));
    EXPECT_TRUE(image == before);
}

}  // namespace
}  // namespace rqm5
