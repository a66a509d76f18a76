#include "vfo/region_presets.h"

#include <gtest/gtest.h>

#include <tuple>

namespace rqm5 {
namespace {

TEST(RegionPresets, KnownCommandsAreExact)
{
    const std::tuple<std::size_t, std::size_t, const char*> cases[] = {
        // clang-format off
        {0, 0, "QT~F0560W0000531000010000081C080000000000"}, {0, 4, "QT~F05A0W0089900000020B00081C080000000000"},
        {0, 6, "QT~F05C0W0095750000020100081C08000000013D"}, {0, 12, "QT~F0620W0193750000020100081C08000000073D"},
        {0, 13, "QT~F0630W0197750000020100081C08000000083D"}, {0, 67, "QT~F0990W0769750000020100081C080000003E3D"},
        {1, 1, "QT~F0570W0001620000010000081C080000000000"}, {1, 16, "QT~F0660W0229750000020100081C080000000C3B"},
        {1, 17, "QT~F0670W0476750000020100081C08000000153B"}, {1, 25, "QT~F06F0W0540750000020100081C080000001D3B"},
        {1, 26, "QT~F0710W0556750000020100081C080000001F3B"}, {1, 64, "QT~F0970W0860750000020100081C08000000453B"},
        {2, 2, "QT~F0580W0000530000010400081C080000000000"}, {2, 3, "QT~F0590W0088100000020D00081C080000000000"},
        {2, 73, "QT~F09F0W0805750000020100081C080000004543"},
        // clang-format on
    };
    const PresetTable commands = InitPriset();
    for (const auto& [variant, entry, command] : cases)
        EXPECT_EQ(commands[variant][entry], command) << variant << ", " << entry;
    const int variants[] = {0, 1, 2, 2, 2};
    for (int model = 0; model <= 4; ++model)
        EXPECT_EQ(PresetVariant(model), variants[model]);
}

}  // namespace
}  // namespace rqm5
