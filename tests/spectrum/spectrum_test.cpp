#include <gtest/gtest.h>

#include <cmath>

#include "image/number_text.h"
#include "memory/bank_strip_layout.h"
#include "memory/start_image.h"
#include "spectrum/spectrum_picture.h"

namespace rqm5 {
namespace {

void Put(CloneImage& image, int row, double megahertz, int mode = 0, bool isOn = true)
{
    Channel& channel = image.MemData(row);
    channel.frequency = Hertz(megahertz);
    channel.mode = static_cast<std::uint8_t>(mode);
    channel.enabled = isOn;
}

/// Banks 0 and 2 hold channels, Program Scan a pair and half of one.
CloneImage Filled(int region = 0)
{
    CloneImage image = StartUpImage(region);
    Put(image, 1, 145.5);
    Put(image, 0, 433, 1, false);
    Put(image, 360, 145.5);
    Put(image, 1000, 144);
    Put(image, 1001, 118);
    Put(image, 1003, 433, 2);
    Put(image, 1239, 900);
    return image;
}

TEST(SpectrumAxis, KeepsThePlaceAtThePointerAndTheLimits)
{
    SpectrumAxis axis;
    EXPECT_TRUE(axis.IsWhole());
    for (const double hertz : {0.11e6, 1e6, 145.5e6, 1299e6}) {
        axis.ShowAll();
        const double place = axis.PlaceOf(hertz);
        for (int i = 0; i < 80; ++i)
            axis.Zoom(place, 1.3);
        EXPECT_NEAR(axis.High() - axis.Low(), SpectrumAxis::kNarrowest, 100) << hertz;
        EXPECT_TRUE(axis.Low() <= hertz && hertz <= axis.High()) << hertz;
        for (const double way : {-1e7, 1e7}) {
            axis.Pan(way);
            EXPECT_GE(axis.High() - axis.Low(), SpectrumAxis::kNarrowest - 1);
            EXPECT_NEAR(way < 0 ? axis.Low() : axis.High(),
                        way < 0 ? SpectrumAxis::kLowest : SpectrumAxis::kHighest, 1);
        }
        for (int i = 0; i < 80; ++i)
            axis.Zoom(0.3, 1 / 1.3);
        EXPECT_TRUE(axis.IsWhole());
    }
    axis.Zoom(0.25, 3);
    const double under = axis.HertzAt(0.25);
    axis.Zoom(0.25, 2);
    EXPECT_NEAR(axis.HertzAt(0.25), under, 1);
    axis.Show(430e6, 470e6);
    EXPECT_NEAR(axis.Low(), 430e6, 1);
    EXPECT_NEAR(axis.High(), 470e6, 1);
    axis.BringIntoSight(145e6);
    EXPECT_TRUE(axis.PlaceOf(145e6) > 0 && axis.PlaceOf(145e6) < 0.1);
    axis.BringIntoSight(1300e6);
    EXPECT_LE(axis.PlaceOf(1300e6), 1.0001);
}

TEST(SpectrumAxis, HasRoundTicksWhoseLabelsDoNotTouch)
{
    constexpr double kGap = 80;
    SpectrumAxis axis;
    for (const double width : {300.0, 1000.0, 4000.0})
        for (const double nearer : {1.0, 4.0, 40.0, 4000.0, 1e9})
            for (const double place : {0.0, 0.5, 0.7, 1.0}) {
                axis.ShowAll();
                axis.Zoom(place, nearer);
                double last = -kGap;
                int labels = 0;
                for (const SpectrumTick& tick : Ticks(axis, width, kGap)) {
                    EXPECT_TRUE(tick.hertz >= axis.Low() * 0.999999 && tick.hertz <= axis.High() * 1.000001);
                    if (tick.label.empty())
                        continue;
                    const double x = axis.PlaceOf(tick.hertz) * width;
                    EXPECT_GE(x - last, kGap * 0.999) << tick.label << ' ' << nearer << ' ' << width;
                    EXPECT_LE(tick.label.size(), 12U) << tick.label;
                    last = x;
                    ++labels;
                }
                EXPECT_GE(labels, width > 900 ? 2 : 1) << nearer << ' ' << place << ' ' << width;
            }
    const std::pair<double, const char*> labels[] = {{100e3, "100 kHz"},
                                                     {530500, "530.5 kHz"},
                                                     {1e6, "1 MHz"},
                                                     {145.5e6, "145.5 MHz"},
                                                     {1.3e9, "1300 MHz"}};
    for (const auto& [hertz, label] : labels)
        EXPECT_EQ(FrequencyLabel(hertz), label);
}

TEST(SpectrumPicture, HasALaneForEachUsedBankAndTheOtherGroups)
{
    const SpectrumPicture picture = BuildSpectrum(Filled());
    std::string titles;
    for (const SpectrumLane& lane : picture.lanes)
        titles += lane.title.English() + " " + std::to_string(lane.marks) + "; ";
    EXPECT_EQ(titles, "Bank 0 2; Bank 2 1; Program Scan 3; Seach Pass 0; Priority 0; Not in receiver 1; ");
    ASSERT_EQ(picture.spans.size(), 1U) << "half a pair is none";
    EXPECT_EQ(picture.spans[0].low, 118000000);
    EXPECT_EQ(picture.spans[0].high, 144000000);
    const auto mark = [&](int row) {
        return picture.marks.at(static_cast<std::size_t>(MarkOfRow(picture, row)));
    };
    EXPECT_TRUE(mark(1).isDuplicate && mark(360).isDuplicate);
    EXPECT_FALSE(mark(0).isDuplicate) << "another mode";
    EXPECT_TRUE(mark(1).isOn);
    EXPECT_FALSE(mark(0).isOn);
    EXPECT_EQ(mark(1003).mode, 2);
    EXPECT_EQ(MarkOfRow(picture, 5), -1);

    // VFO bands and blocked ranges by region.
    const std::pair<std::size_t, std::size_t> regions[] = {{14, 0}, {14, 0}, {8, 2}, {8, 0}};
    for (int region = 0; region < kRegions; ++region) {
        const SpectrumPicture other = BuildSpectrum(StartUpImage(region));
        EXPECT_EQ(std::pair(other.bands.size(), other.blocked.size()), regions[region]) << region;
    }
    EXPECT_EQ(BandAt(picture, 145e6)->number, 6);
    EXPECT_EQ(BandAt(picture, 1.6225e6), nullptr);
}

TEST(SpectrumPicture, FindsMarksUnderThePointerAndBesideEachOther)
{
    const SpectrumPicture picture = BuildSpectrum(Filled());
    const SpectrumAxis axis;
    const int first = MarkOfRow(picture, 1);
    const int second = MarkOfRow(picture, 0);
    EXPECT_EQ(MarkAt(picture, axis, 0, axis.PlaceOf(146e6), 0.01), first);
    EXPECT_EQ(MarkAt(picture, axis, 0, axis.PlaceOf(400e6), 0.01), second);
    EXPECT_EQ(MarkAt(picture, axis, 0, axis.PlaceOf(250e6), 0.01), -1);
    EXPECT_EQ(MarkAt(picture, axis, 3, axis.PlaceOf(145.5e6), 1), -1) << "an empty lane";
    EXPECT_EQ(MarkAt(picture, axis, 6, 0.5, 1), -1);
    EXPECT_EQ(MarkAt(picture, axis, -1, 0.5, 1), -1);

    using enum SpectrumStep;
    const std::tuple<int, SpectrumStep, int> steps[] = {
        {-1, Down, 1},      {1, Right, 0},    {0, Right, 0},      {0, Left, 1},       {1, Left, 1},
        {1, Up, 1},         {1, Down, 360},   {0, Down, 360},     {360, Down, 1000},  {360, Up, 1},
        {1003, Down, 1239}, {1239, Up, 1003}, {1239, Down, 1239}, {1000, Left, 1001},
    };
    for (const auto& [from, step, to] : steps)
        EXPECT_EQ(NextMark(picture, MarkOfRow(picture, from), step), MarkOfRow(picture, to))
            << from << " " << to;
    EXPECT_EQ(NextMark(BuildSpectrum(StartUpImage(0)), -1, Left), -1);
}

TEST(BankStrip, GivesEveryBankItsPartAndTheRestToNone)
{
    CloneImage image = Filled();
    image.SetBankSize(0, 190);
    image.SetBankSize(10, 1);
    image.SetBankSize(kUnassigned, 9);
    const auto strip = LayOutBanks(image, 900, 7);
    ASSERT_EQ(strip.size(), 12U);
    EXPECT_EQ(strip[0].fill, (Fill{2, 190}));
    EXPECT_EQ(strip.back().bank, kUnassigned);
    EXPECT_NEAR(strip.back().left + strip.back().width, 900, 0.01);
    EXPECT_GE(strip[10].width, 7);
    EXPECT_GT(strip[0].width, strip[1].width);
    EXPECT_EQ(SegmentAt(strip, strip[4].left + 1)->bank, 4);
    EXPECT_EQ(SegmentAt(strip, 900), nullptr);
    EXPECT_LT(LayOutBanks(image, 12, 7)[10].width, 1.1) << "no room for what can be seen";
}

}  // namespace
}  // namespace rqm5
