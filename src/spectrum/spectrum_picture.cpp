#include "spectrum/spectrum_picture.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "image/number_text.h"
#include "memory/bank_fill.h"
#include "memory/bank_layout.h"
#include "memory/duplicates.h"

namespace rqm5 {
namespace {

class PictureBuilder
{
  public:
    explicit PictureBuilder(const CloneImage& image) : image_(image), isDuplicate_(DuplicateRows(image)) {}

    SpectrumPicture Build()
    {
        for (int bank = 0; bank < kBanks; ++bank)
            AddUsedLane(SelectorText(bank), GroupRows(image_, bank));
        AddUsedLane(MESSAGE("No bank"), RowsInNoBank(image_));
        for (const RowGroup& group : kRowGroups) {
            AddLane(group.title, group.rows);
            if (group.isPairs)
                AddSpans(group.rows);
        }
        AddUsedLane(MESSAGE("Not in receiver"), {kRadioRows, kMemoryRows - kRadioRows});
        AddBands();
        return std::move(picture_);
    }

  private:
    void AddUsedLane(const Message& title, RowRange rows)
    {
        if (FillOf(image_, rows).used > 0)
            AddLane(title, rows);
    }

    void AddLane(const Message& title, RowRange rows)
    {
        const auto first = picture_.marks.size();
        const auto lane = static_cast<int>(picture_.lanes.size());
        for (int row = rows.first; row <= rows.Last(); ++row) {
            const Channel& channel = image_.MemData(row);
            if (channel.HasChannel())
                picture_.marks.push_back({row, lane, channel.frequency, channel.mode, channel.enabled,
                                          row < kRadioRows && isDuplicate_[static_cast<std::size_t>(row)]});
        }
        std::ranges::stable_sort(picture_.marks.begin() + static_cast<std::ptrdiff_t>(first),
                                 picture_.marks.end(), {}, &SpectrumMark::hertz);
        picture_.lanes.push_back(
            {title, static_cast<int>(first), static_cast<int>(picture_.marks.size() - first)});
    }

    /// Into the lane that was added last.
    void AddSpans(RowRange rows)
    {
        for (int row = rows.first; row < rows.Last(); row += 2) {
            const Channel& a = image_.MemData(row);
            const Channel& b = image_.MemData(row + 1);
            if (!a.HasChannel() || !b.HasChannel())
                continue;
            const auto [low, high] = std::minmax(a.frequency, b.frequency);
            picture_.spans.push_back(
                {static_cast<int>(picture_.lanes.size()) - 1, low, high, a.enabled && b.enabled});
        }
    }

    void AddBands()
    {
        const int region = std::clamp(image_.ModelNo(), 0, kRegions - 1);
        const int bands = RegionOf(region).vfoBands;
        for (int band = 0; band < kVfoRows; ++band) {
            const FrequencyRange range = BandLimitOf(band, region);
            if (band < bands)
                picture_.bands.push_back({band, range});
            else if (range.high > 0)  // the rows behind the bands hold what the region refuses
                picture_.blocked.push_back({band, range});
        }
    }

    const CloneImage& image_;
    const std::vector<bool> isDuplicate_;
    SpectrumPicture picture_;
};

/// The mark of a lane whose frequency is nearest; -1 for a lane without marks.
int Nearest(const SpectrumPicture& picture, int lane, double hertz)
{
    const SpectrumLane& there = picture.lanes[static_cast<std::size_t>(lane)];
    const auto begin = picture.marks.begin() + there.firstMark;
    const auto end = begin + there.marks;
    if (begin == end)
        return -1;
    auto found = std::partition_point(
        begin, end, [hertz](const SpectrumMark& mark) { return static_cast<double>(mark.hertz) < hertz; });
    // On a logarithmic axis it is the ratio that counts.
    if (found == end || (found != begin && hertz / static_cast<double>(std::prev(found)->hertz) <
                                               static_cast<double>(found->hertz) / hertz))
        --found;
    return static_cast<int>(found - picture.marks.begin());
}

}  // namespace

SpectrumPicture BuildSpectrum(const CloneImage& image)
{
    return PictureBuilder(image).Build();
}

int MarkOfRow(const SpectrumPicture& picture, int row)
{
    const auto found = std::ranges::find(picture.marks, row, &SpectrumMark::row);
    return found == picture.marks.end() ? -1 : static_cast<int>(found - picture.marks.begin());
}

int MarkAt(const SpectrumPicture& picture, const SpectrumAxis& axis, int lane, double place, double tolerance)
{
    if (lane < 0 || lane >= static_cast<int>(picture.lanes.size()))
        return -1;
    const int mark = Nearest(picture, lane, axis.HertzAt(place));
    if (mark < 0)
        return -1;
    const auto hertz = static_cast<double>(picture.marks[static_cast<std::size_t>(mark)].hertz);
    return std::abs(axis.PlaceOf(hertz) - place) <= tolerance ? mark : -1;
}

const SpectrumBand* BandAt(const SpectrumPicture& picture, double hertz)
{
    const auto found = std::ranges::find_if(picture.bands, [hertz](const SpectrumBand& band) {
        return band.range.Contains(hertz / static_cast<double>(kHertzPerMegahertz));
    });
    return found == picture.bands.end() ? nullptr : &*found;
}

int NextMark(const SpectrumPicture& picture, int mark, SpectrumStep step)
{
    const auto count = static_cast<int>(picture.marks.size());
    if (mark < 0 || mark >= count)
        return count > 0 ? 0 : -1;
    const SpectrumMark& from = picture.marks[static_cast<std::size_t>(mark)];
    if (step == SpectrumStep::Left || step == SpectrumStep::Right) {
        const int next = step == SpectrumStep::Left ? mark - 1 : mark + 1;
        const bool isInLane =
            next >= 0 && next < count && picture.marks[static_cast<std::size_t>(next)].lane == from.lane;
        return isInLane ? next : mark;
    }
    const int direction = step == SpectrumStep::Up ? -1 : 1;
    for (int lane = from.lane + direction; lane >= 0 && lane < static_cast<int>(picture.lanes.size());
         lane += direction)
        if (const int next = Nearest(picture, lane, static_cast<double>(from.hertz)); next >= 0)
            return next;
    return mark;
}

}  // namespace rqm5
