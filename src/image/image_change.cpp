#include "image/image_change.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace rqm5 {
namespace {

/// One list of a change: how many things it is about, and where an image keeps them.
template <class Value, class Get, class Set>
struct Part
{
    ChangedItems<Value> ImageChange::*items;
    int count;
    Get get;
    Set set;
};

template <class Value, class Get, class Set>
constexpr Part<Value, Get, Set> MakePart(ChangedItems<Value> ImageChange::*items, int count, Get get, Set set)
{
    return {items, count, get, set};
}

constexpr auto kParts = std::make_tuple(
    MakePart(
        &ImageChange::MemData, kMemoryRows,
        [](const CloneImage& image, int row) -> const ChannelContents& { return image.MemData(row); },
        [](CloneImage& image, int row, const ChannelContents& to) {
            static_cast<ChannelContents&>(image.MemData(row)) = to;
        }),
    MakePart(
        &ImageChange::MemNotes, kMemoryRows,
        [](const CloneImage& image, int row) -> const FileColumns& { return image.MemData(row); },
        [](CloneImage& image, int row, const FileColumns& to) {
            static_cast<FileColumns&>(image.MemData(row)) = to;
        }),
    MakePart(
        &ImageChange::MemEnable, kMemoryRows,
        [](const CloneImage& image, int row) { return image.MemEnable(row); },
        [](CloneImage& image, int row, bool to) { image.MemData(row).enabled = to; }),
    MakePart(
        &ImageChange::VFOData, kVfoRows,
        [](const CloneImage& image, int row) -> const ChannelContents& { return image.VFOData(row); },
        [](CloneImage& image, int row, const ChannelContents& to) {
            static_cast<ChannelContents&>(image.VFOData(row)) = to;
        }),
    MakePart(
        &ImageChange::VFONotes, kVfoRows,
        [](const CloneImage& image, int row) -> const FileColumns& { return image.VFOData(row); },
        [](CloneImage& image, int row, const FileColumns& to) {
            static_cast<FileColumns&>(image.VFOData(row)) = to;
        }),
    MakePart(
        &ImageChange::BankSize, kBankSizes,
        [](const CloneImage& image, int bank) { return image.BankSize(bank); },
        [](CloneImage& image, int bank, int to) { image.SetBankSize(bank, to); }),
    MakePart(
        &ImageChange::BankLink, kLinkFlags,
        [](const CloneImage& image, int flag) { return image.BankLink(flag); },
        [](CloneImage& image, int flag, bool to) { image.SetBankLink(flag, to); }),
    MakePart(
        &ImageChange::Settings, kSettings,
        [](const CloneImage& image, int setting) {
            return kSettingFields.at(static_cast<std::size_t>(setting)).Get(image.Settings());
        },
        [](CloneImage& image, int setting, int to) {
            kSettingFields.at(static_cast<std::size_t>(setting)).Set(image.Settings(), to);
        }));

/// Calls a function with every part.
template <class Visit>
void ForEachPart(Visit visit)
{
    std::apply([&visit](const auto&... part) { (visit(part), ...); }, kParts);
}

/// Two lists of items, one after the other in time, as one. What ends as it began is left out.
template <class Value>
ChangedItems<Value> Joined(const ChangedItems<Value>& first, const ChangedItems<Value>& next)
{
    ChangedItems<Value> joined;
    auto a = first.begin();
    for (const ChangedItem<Value>& item : next) {
        while (a != first.end() && a->index < item.index)
            joined.push_back(*a++);
        const bool isInBoth = a != first.end() && a->index == item.index;
        const Value& before = isInBoth ? (a++)->before : item.before;
        if (!(before == item.after))
            joined.push_back({item.index, before, item.after});
    }
    joined.insert(joined.end(), a, first.end());
    return joined;
}

template <class Value>
void AddPlaces(const ChangedItems<Value>& items, std::set<int>& places)
{
    for (const ChangedItem<Value>& item : items)
        places.insert(item.index);
}

}  // namespace

bool ImageChange::IsEmpty() const
{
    bool isEmpty = true;
    ForEachPart([&](const auto& part) { isEmpty = isEmpty && (this->*part.items).empty(); });
    return isEmpty;
}

void ImageChange::Apply(CloneImage& image) const
{
    ForEachPart([&](const auto& part) {
        for (const auto& item : this->*part.items)
            part.set(image, item.index, item.after);
    });
}

void ImageChange::Revert(CloneImage& image) const
{
    ForEachPart([&](const auto& part) {
        for (const auto& item : this->*part.items)
            part.set(image, item.index, item.before);
    });
}

void ImageChange::Join(const ImageChange& next)
{
    ForEachPart([&](const auto& part) { this->*part.items = Joined(this->*part.items, next.*part.items); });
}

std::vector<int> ImageChange::MemoryRows() const
{
    std::set<int> rows;
    AddPlaces(MemData, rows);
    AddPlaces(MemNotes, rows);
    AddPlaces(MemEnable, rows);
    return {rows.begin(), rows.end()};
}

std::vector<int> ImageChange::VfoRows() const
{
    std::set<int> rows;
    AddPlaces(VFOData, rows);
    AddPlaces(VFONotes, rows);
    return {rows.begin(), rows.end()};
}

ImageChange Reversed(ImageChange change)
{
    ForEachPart([&](const auto& part) {
        for (auto& item : change.*part.items)
            std::swap(item.before, item.after);
    });
    return change;
}

ImageChange Difference(const CloneImage& before, const CloneImage& after)
{
    ImageChange change;
    ForEachPart([&](const auto& part) {
        auto& items = change.*part.items;
        for (int i = 0; i < part.count; ++i)
            if (!(part.get(before, i) == part.get(after, i)))
                items.push_back({i, part.get(before, i), part.get(after, i)});
        items.shrink_to_fit();  // a change may stay in the history for long
    });
    return change;
}

}  // namespace rqm5
