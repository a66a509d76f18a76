#include "memory/memory_cells.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/channel_record.h"

namespace rqm5 {
namespace {

TEST(MemoryCells, RegionPutsTheSkipMarkAndTheDash)
{
    CloneImage image;
    // Tone with skip, secret code 5, carrier 300Hz; the next row without skip.
    DecodeMemoryBlock(image, MemoryBlock("01455000000000380500000000000000"), 0);
    DecodeMemoryBlock(image, MemoryBlock("01455000000000300500000000000000"), 1);
    const std::tuple<int, const char*, const char*, const char*> cases[] = {{0, "5", "5", "300Hz"},
                                                                            {1, "*", "", "300Hz"},
                                                                            {2, "*", "", "-"},
                                                                            {3, "*", "", "-"},
                                                                            {4, "*", "", "-"}};
    for (const auto& [model, skipped, notSkipped, carrier] : cases) {
        image.Settings.model = model;
        EXPECT_EQ(MemoryCell(image, 0, kSecret), skipped) << model;
        EXPECT_EQ(MemoryCell(image, 1, kSecret), notSkipped) << model;
        EXPECT_EQ(MemoryCell(image, 0, kCarrier), carrier) << model;
    }
    EXPECT_EQ(MemoryCell(image, 0, kFrequency), "145.500000");
}

}  // namespace
}  // namespace rqm5
