#include "vfo/region_presets.h"

#include <gtest/gtest.h>

#include <tuple>

#include "image/channel_block.h"

namespace rqm5 {
namespace {

TEST(RegionPresets, KnownBlocksAreExact)
{
    const std::tuple<int, std::size_t, int, const char*> cases[] = {
        // clang-format off
        {0, 0, 0, "0000531000010000081C080000000000"}, {0, 6, 6, "0095750000020100081C08000000013D"},
        {0, 12, 12, "0193750000020100081C08000000073D"}, {0, 13, 13, "0197750000020100081C08000000083D"},
        {0, 67, 67, "0769750000020100081C080000003E3D"}, {1, 16, 16, "0229750000020100081C080000000C3B"},
        {1, 25, 25, "0540750000020100081C080000001D3B"}, {1, 26, 27, "0556750000020100081C080000001F3B"},
        {1, 64, 65, "0860750000020100081C08000000453B"}, {2, 3, 3, "0088100000020D00081C080000000000"},
        {2, 73, 73, "0805750000020100081C080000004543"},
        // clang-format on
    };
    for (const auto& [variant, entry, place, text] : cases) {
        EXPECT_EQ(InitPriset(variant).at(entry).place, place) << variant << ", " << entry;
        EXPECT_EQ(InitPriset(variant).at(entry).contents.Text(), text) << variant << ", " << entry;
    }
    const int variants[] = {0, 1, 2, 2, 2};
    for (int model = 0; model <= 4; ++model)
        EXPECT_EQ(PresetVariant(model), variants[model]);
}

TEST(RegionPresets, WholeVariantsAddUp)
{
    // How many blocks; what places, television channels and hertz add up to; mode and step of both broadcast
    // bands; the last byte of television.
    const std::tuple<std::size_t, int, int, std::int64_t, const char*, const char*, int> variants[] = {
        {68, 2278, 1953, 33'475'282'000, "0100", "020B", 0x3D},
        {65, 2119, 2252, 34'329'814'000, "0100", "020B", 0x3B},
        {74, 2701, 2414, 37'919'860'000, "0104", "020D", 0x43}};
    for (int variant = 0;
         const auto& [blocks, places, channels, hertz, mediumWave, fm, constant] : variants) {
        std::int64_t placesLeft = places, channelsLeft = channels, hertzLeft = hertz;
        for (const auto& [place, block] : InitPriset(variant)) {
            const bool isTelevision = place >= 6;
            const char* modeAndStep = isTelevision ? "0201" : place < 3 ? mediumWave : fm;
            EXPECT_EQ(block.Text().substr(10, 18), modeAndStep + std::string("00081C08000000")) << place;
            EXPECT_EQ(block.Byte(15), isTelevision ? constant : 0) << place;
            placesLeft -= place;
            channelsLeft -= block.Byte(14);
            hertzLeft -= DecodeBlock(block, RowKind::Memory).value().frequency;
        }
        EXPECT_EQ(InitPriset(variant).size(), blocks);
        EXPECT_TRUE(placesLeft == 0 && channelsLeft == 0 && hertzLeft == 0) << variant;
        ++variant;
    }
}

}  // namespace
}  // namespace rqm5
