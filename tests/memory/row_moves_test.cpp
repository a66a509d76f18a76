#include "memory/row_moves.h"

#include <gtest/gtest.h>

#include <functional>

#include "memory/start_image.h"

namespace rqm5 {
namespace {

/// An image whose rows hold the channels that letters name, with a note of that letter, "." for an empty row.
/// Small letters are off.
CloneImage ImageWith(int first, std::string_view letters)
{
    CloneImage image = StartUpImage(0);
    for (const char letter : letters) {
        Channel& row = image.MemData(first++);
        if (letter == '.')
            continue;
        row.frequency = static_cast<unsigned char>(letter);
        row.note = std::string(1, letter);
        row.enabled = letter < 'a';
    }
    return image;
}

std::string Letters(const CloneImage& image, RowRange rows)
{
    std::string letters;
    for (const int row : RowsOf(rows)) {
        const Channel& channel = image.MemData(row);
        letters += channel.note.empty() ? "." : channel.note;
        EXPECT_TRUE(channel.note.empty() ||
                    (channel.enabled == (channel.note[0] < 'a') && channel.frequency == channel.note[0]))
            << "flag and contents travel along";
    }
    return letters;
}

TEST(RowMoves, RowsMoveWithinTheirGroup)
{
    struct
    {
        const char* what;
        std::function<void(CloneImage&, const MoveGroup&)> move;
        const char* expected;
    } const cases[] = {
        {"down together",
         [](auto& image, auto& group) {
             MoveRows(image, group, {1, 3}, 5);
         },
         "AcEBdF"},
        {"up together",
         [](auto& image, auto& group) {
             MoveRows(image, group, {1, 3}, 0);
         },
         "BdAcEF"},
        {"to the end", [](auto& image, auto& group) { MoveRows(image, group, {0}, 6); }, "BcdEFA"},
        {"nowhere",
         [](auto& image, auto& group) {
             MoveRows(image, group, {1, 2}, 2);
         },
         "ABcdEF"},
        {"one up",
         [](auto& image, auto& group) {
             ShiftRows(image, group, {1, 2, 5}, true);
         },
         "BcAdFE"},
        {"up at the top",
         [](auto& image, auto& group) {
             ShiftRows(image, group, {0, 1, 3}, true);
         },
         "ABdcEF"},
        {"one down",
         [](auto& image, auto& group) {
             ShiftRows(image, group, {0, 4, 5}, false);
         },
         "BAcdEF"},
        {"delete",
         [](auto& image, auto& group) {
             DeleteRows(image, group, {1, 4});
         },
         "AcdF.."},
    };
    for (const auto& row : cases) {
        CloneImage image = ImageWith(0, "ABcdEFXYZ");
        row.move(image, {{0, 6}, 1});
        EXPECT_EQ(Letters(image, {0, 9}), std::string(row.expected) + "XYZ") << row.what;
    }
    CloneImage image = ImageWith(0, "ABcdEF");
    EXPECT_EQ(MoveRows(image, {{0, 6}, 1}, {1, 3}, 5), (RowList{3, 4}));
    EXPECT_EQ(ShiftRows(image, {{0, 6}, 1}, {0, 4}, true), (RowList{0, 3}));
}

TEST(RowMoves, InsertTakesTheLastEmptyRowAndLosesNothing)
{
    const std::tuple<const char*, int, const char*> cases[] = {
        {"AB..C.X", 1, "A.B..CX"},
        {"AB..CDX", 1, "A.B.CDX"},
        {"ABCDEFX", 1, nullptr},
        {".BCDEFX", 1, nullptr},
    };
    for (const auto& [before, row, after] : cases) {
        CloneImage image = ImageWith(0, before);
        EXPECT_EQ(InsertRow(image, {{0, 6}, 1}, row), after != nullptr) << before;
        EXPECT_EQ(Letters(image, {0, 7}), after != nullptr ? after : before);
    }
}

TEST(RowMoves, EdgesOfAProgramScanStayPairs)
{
    CloneImage image = ImageWith(1000, "ABCDEF");
    const MoveGroup group = MoveGroupOf(image, kSelectProgramScan);
    EXPECT_EQ(ShiftRows(image, group, {1003}, true), (RowList{1000, 1001}));
    EXPECT_EQ(Letters(image, {1000, 6}), "CDABEF");
    EXPECT_EQ(MoveRows(image, group, {1000}, 1005), (RowList{1002, 1003})) << "a place within a pair";
    EXPECT_TRUE(InsertRow(image, group, 1003));
    EXPECT_EQ(Letters(image, {1000, 8}), "AB..CDEF");
    DeleteRows(image, group, {1000, 1003});
    EXPECT_EQ(Letters(image, {1000, 6}), "CDEF..");
    image.MemData(1000) = {};
    SortRows(image, group, SortKey::Frequency);
    EXPECT_EQ(Letters(image, {1000, 4}), ".DEF");
}

TEST(RowMoves, SortPutsEmptyRowsLastAndKeepsTheOrderOfEqualOnes)
{
    CloneImage image = ImageWith(0, "C.bA.B");
    const auto sorted = [&image](SortKey key) {
        SortRows(image, {{0, 6}, 1}, key);
        return Letters(image, {0, 6});
    };
    image.MemData(0).mode = 1;
    EXPECT_EQ(sorted(SortKey::Mode), "bABC..");
    EXPECT_EQ(sorted(SortKey::Frequency), "ABCb..");
    image.MemData(0).note = "";
    SortRows(image, {{0, 6}, 1}, SortKey::Note);
    EXPECT_TRUE(image.MemData(0).note == "B" && image.MemData(3).frequency == 'A');
}

}  // namespace
}  // namespace rqm5
