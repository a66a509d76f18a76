#include "link/byte_names.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

TEST(ByteNames, NameEveryByteThatDiffers)
{
    const std::string none(32, '0');
    const std::string all(32, 'F');
    const struct
    {
        int address;
        std::string expected;
        std::string read;
        std::string mask;
        const char* words;
    } cases[] = {
        {0x0040, "A500FF8100060000FFFFFFFF00011E03", "A500FF8100070000FFFFFFFF00011E09", all,
         "byte 5 (fixed), byte 15 (Squelch)"},
        {0x0050, none, "000005010000000088000000000000FF", all,
         "byte 2 (Search Pass count), byte 3 (Battery Save), byte 8 (Keylock, Beep), byte 15 (fixed)"},
        {0x0050, none, "00000500000000000000000000000000", "FFFF00" + std::string(26, 'F'), ""},
        {0x00D0, none, "01000101000000000000000000000000", all,
         "byte 0 (size of bank 8), bytes 2, 3 (size of bank 9)"},
        {0x0120, none, "00000000010001000000000000000000", all,
         "byte 4 (channels in no bank), byte 6 (fixed)"},
        {0x01D0, none, "E5000000000000000000000000000001", all,
         "byte 0 (rows 128 to 130, 133, 135), byte 15 (row 255)"},
        {0x0250, none, "00000000000000000000008100000000", all, "byte 11 (fixed)"},
        {0x0260, none, "10000000000001FF0000000000000000", all,
         "byte 0 (bank 3), byte 6 (bank 55), byte 7 (fixed)"},
        {0x02E0, none, "00000001010000000000000000000000", all,
         "byte 3 (place 100 of the list), byte 4 (fixed)"},
        {0x0C30, none, "00000001000100000000000000000001", all,
         "byte 3 (Frequency), byte 5 (Mode), byte 15 (Shift frequency)"},
        {0x1000, none, "01010100000000180000000022001000", all,
         "bytes 0 to 2 (Frequency), byte 7 (Option, Skip), bytes 12, 14 (Shift frequency)"},
        {0x1000, none, "0000000000000001XY00000000000000", all, "byte 7 (fixed), byte 8 (Secret code)"},
    };
    for (const auto& test : cases)
        EXPECT_EQ(DifferingBytes({test.address, MemoryBlock(test.expected), MemoryBlock(test.mask), ""},
                                 MemoryBlock(test.read)),
                  test.words);
}

}  // namespace
}  // namespace rqm5
