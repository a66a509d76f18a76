#include "memory/duplicates.h"

#include <map>
#include <utility>

namespace rqm5 {
namespace {

/// The rows with a channel, by what a function says of them.
template <class KeyOf>
auto RowsBy(const CloneImage& image, KeyOf keyOf)
{
    std::map<decltype(keyOf(image.MemData(0))), std::vector<int>> rows;
    for (int row = 0; row < kRadioRows; ++row)
        if (image.MemData(row).HasChannel())
            rows[keyOf(image.MemData(row))].push_back(row);
    return rows;
}

}  // namespace

std::vector<RepeatedFrequency> RepeatedFrequencies(const CloneImage& image)
{
    std::vector<RepeatedFrequency> repeated;
    for (auto& [frequency, rows] : RowsBy(image, [](const Channel& channel) { return channel.frequency; }))
        if (rows.size() > 1)
            repeated.push_back({frequency, std::move(rows)});
    return repeated;
}

std::vector<bool> DuplicateRows(const CloneImage& image)
{
    std::vector<bool> isDuplicate(kRadioRows);
    for (const auto& entry :
         RowsBy(image, [](const Channel& channel) { return std::pair(channel.frequency, channel.mode); }))
        for (const int row : entry.second)
            isDuplicate[static_cast<std::size_t>(row)] = entry.second.size() > 1;
    return isDuplicate;
}

}  // namespace rqm5
