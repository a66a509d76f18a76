#include "image/receiver_model.h"

#include <algorithm>

namespace rqm5 {
namespace {

constexpr std::array<std::string_view, 6> kModelNames = {"RQ-M5 J", "RQ-M5 E",   "RQ-M5 T",
                                                         "RQ-M5 K", "Sibling 1", "Sibling 2"};

constexpr std::array<Region, kRegions> kRegionTable = {{
    // clang-format off
    // model        bands    secret carrier skipmark nocarrier cellular plan steps presets fixed count
    {kModelNames[0], kVfoRows, false, true,   false,   false,    false,   0,   0,    0,      true},
    {kModelNames[1], kVfoRows, true,  false,  true,    false,    false,   0,   1,    1,      true},
    {kModelNames[2], 8,        false, false,  true,    true,     true,    1,   1,    2,      false},
    {kModelNames[3], 8,        false, false,  true,    true,     false,   1,   1,    2,      false},
    // clang-format on
}};

/// "0A", "0B", "1A", ...
std::string PairLabel(int index)
{
    return std::to_string(index / 2) + (index % 2 == 0 ? "A" : "B");
}

}  // namespace

const RowGroup* GroupOfSelector(int selector)
{
    const auto* found = std::ranges::find(kRowGroups, selector, &RowGroup::selector);
    return found != kRowGroups.end() ? found : nullptr;
}

const RowGroup* GroupOfRow(int row)
{
    const auto* found =
        std::ranges::find_if(kRowGroups, [row](const RowGroup& group) { return group.rows.Contains(row); });
    return found != kRowGroups.end() ? found : nullptr;
}

std::string GroupLabel(const RowGroup& group, int index)
{
    return group.isPairs ? PairLabel(index) : std::to_string(group.firstLabel + index);
}

std::string LabelAmongAll(const RowGroup& group, int index)
{
    return group.isPairs ? PairLabel(index) : std::string(group.rowPrefix) + std::to_string(index);
}

int RegionNumber(int model)
{
    return std::clamp(model, 0, kRegions - 1);
}

const Region& RegionOf(int region)
{
    return kRegionTable[static_cast<std::size_t>(RegionNumber(region))];
}

std::span<const std::string_view> ModelNames()
{
    return kModelNames;
}

std::string_view ModelName(int model)
{
    const bool hasName = model >= 0 && model < static_cast<int>(kModelNames.size());
    return hasName ? kModelNames[static_cast<std::size_t>(model)] : std::string_view();
}

}  // namespace rqm5
