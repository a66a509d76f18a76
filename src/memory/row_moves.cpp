#include "memory/row_moves.h"

#include <algorithm>
#include <numeric>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

/// Places of a group, counted in units from 0.
using Units = std::vector<int>;

Units UnitsOf(const MoveGroup& group, const RowList& rows)
{
    Units units;
    for (const int row : rows) {
        const int unit = (row - group.rows.first) / group.unit;
        if (group.rows.Contains(row) && (units.empty() || units.back() != unit))
            units.push_back(unit);
    }
    return units;
}

RowList RowsOf(const MoveGroup& group, const Units& units)
{
    RowList rows;
    for (const int unit : units)
        for (int i = 0; i < group.unit; ++i)
            rows.push_back(group.rows.first + unit * group.unit + i);
    return rows;
}

int UnitCount(const MoveGroup& group)
{
    return group.rows.count / group.unit;
}

Units InOrder(const MoveGroup& group)
{
    Units order(static_cast<std::size_t>(UnitCount(group)));
    std::iota(order.begin(), order.end(), 0);
    return order;
}

bool IsEmpty(const CloneImage& image, const MoveGroup& group, int unit)
{
    return std::ranges::all_of(RowsOf(group, Units{unit}), [&image](int row) {
        return !image.MemData(row).HasChannel() && image.MemData(row).note.empty();
    });
}

/// Gives place i of the group what place order[i] holds.
void Rearrange(CloneImage& image, const MoveGroup& group, const Units& order)
{
    const RowList from = RowsOf(group, order);
    std::vector<Channel> channels;
    channels.reserve(from.size());
    for (const int row : from)
        channels.push_back(image.MemData(row));
    for (std::size_t i = 0; i < channels.size(); ++i)
        image.MemData(group.rows.first + static_cast<int>(i)) = std::move(channels[i]);
}

/// The first channel of a unit; its first row when it holds none.
const Channel& HeadOf(const CloneImage& image, const MoveGroup& group, int unit)
{
    const RowList rows = RowsOf(group, Units{unit});
    const auto found =
        std::ranges::find_if(rows, [&image](int row) { return image.MemData(row).HasChannel(); });
    return image.MemData(found != rows.end() ? *found : rows.front());
}

bool ComesBefore(const Channel& one, const Channel& other, SortKey key)
{
    if (!one.HasChannel() || !other.HasChannel())
        return one.HasChannel() && !other.HasChannel();
    switch (key) {
        case SortKey::Frequency:
            return one.frequency < other.frequency;
        case SortKey::Mode:
            return one.mode < other.mode;
        case SortKey::Note:
            // Channels without a note behind those that have one.
            if (one.note.empty() || other.note.empty())
                return !one.note.empty() && other.note.empty();
            return one.note < other.note;
    }
    return false;
}

}  // namespace

RowList RowsOf(RowRange range)
{
    RowList rows(static_cast<std::size_t>(range.count));
    std::iota(rows.begin(), rows.end(), range.first);
    return rows;
}

RowList ChannelsAmong(const CloneImage& image, const RowList& rows)
{
    RowList channels;
    std::ranges::copy_if(rows, std::back_inserter(channels),
                         [&image](int row) { return image.MemData(row).HasChannel(); });
    return channels;
}

MoveGroup MoveGroupOf(const CloneImage& image, int selector)
{
    const RowGroup* group = GroupOfSelector(selector);
    return {GroupRows(image, selector), group != nullptr && group->isPairs ? 2 : 1};
}

RowList MoveRows(CloneImage& image, const MoveGroup& group, const RowList& rows, int before)
{
    const Units moved = UnitsOf(group, rows);
    const int place = std::clamp((before - group.rows.first) / group.unit, 0, UnitCount(group));
    Units order;
    for (const int unit : InOrder(group))
        if (!std::ranges::binary_search(moved, unit))
            order.push_back(unit);
    const auto target = std::ranges::lower_bound(order, place);
    const int first = static_cast<int>(target - order.begin());
    order.insert(target, moved.begin(), moved.end());
    Rearrange(image, group, order);
    return RowsOf({group.rows.first + first * group.unit, static_cast<int>(moved.size()) * group.unit});
}

RowList ShiftRows(CloneImage& image, const MoveGroup& group, const RowList& rows, bool isUp)
{
    Units moved = UnitsOf(group, rows);
    Units order = InOrder(group);
    if (!isUp)
        std::ranges::reverse(moved);
    int end = isUp ? 0 : UnitCount(group) - 1;  // the last place that nothing has come to yet
    for (int& unit : moved) {
        const int to = unit == end ? unit : unit + (isUp ? -1 : 1);
        std::swap(order[static_cast<std::size_t>(unit)], order[static_cast<std::size_t>(to)]);
        end = to + (isUp ? 1 : -1);
        unit = to;
    }
    Rearrange(image, group, order);
    std::ranges::sort(moved);
    return RowsOf(group, moved);
}

void SortRows(CloneImage& image, const MoveGroup& group, SortKey key)
{
    Units order = InOrder(group);
    std::ranges::stable_sort(order, [&](int one, int other) {
        return ComesBefore(HeadOf(image, group, one), HeadOf(image, group, other), key);
    });
    Rearrange(image, group, order);
}

bool InsertRow(CloneImage& image, const MoveGroup& group, int row)
{
    const int place = (row - group.rows.first) / group.unit;
    int last = UnitCount(group) - 1;
    while (last >= place && !IsEmpty(image, group, last))
        --last;
    if (last < place)
        return false;
    Units order = InOrder(group);
    std::rotate(order.begin() + place, order.begin() + last, order.begin() + last + 1);
    Rearrange(image, group, order);
    return true;
}

void DeleteRows(CloneImage& image, const MoveGroup& group, const RowList& rows)
{
    const RowList whole = RowsOf(group, UnitsOf(group, rows));
    for (const int row : whole)
        ClearMemoryRow(image, row);
    MoveRows(image, group, whole, group.rows.first + group.rows.count);
}

RowList EmptyRows(const CloneImage& image, RowRange range)
{
    RowList rows = RowsOf(range);
    std::erase_if(rows, [&image](int row) { return image.MemData(row).HasChannel(); });
    return rows;
}

void CopyRows(CloneImage& image, const RowList& from, const RowList& to)
{
    std::vector<Channel> channels;
    channels.reserve(from.size());
    for (const int row : from)
        channels.push_back(image.MemData(row));
    for (std::size_t i = 0; i < channels.size() && i < to.size(); ++i)
        image.MemData(to[i]) = channels[i];
}

}  // namespace rqm5
