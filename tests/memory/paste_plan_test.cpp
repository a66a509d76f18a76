#include "memory/paste_plan.h"

#include <gtest/gtest.h>

#include "image/number_text.h"
#include "memory/channel_clip.h"
#include "memory/fill_series.h"
#include "memory/named_rows.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

constexpr int kSearch = 1100;

class PastePlanTest : public testing::Test
{
  protected:
    void Put(int row, double megahertz) { image_.MemData(row) = NewChannel(image_, Hertz(megahertz)); }

    std::vector<ListedChannel> Channels(std::initializer_list<double> megahertz)
    {
        std::vector<Channel> channels;
        for (const double number : megahertz)
            channels.push_back(number == 0 ? Channel() : NewChannel(image_, Hertz(number)));
        return Listed(channels);
    }

    /// What the plan does to each of its rows: the frequency that comes, or why none does.
    static std::string Told(const PastePlan& plan)
    {
        std::string told;
        for (const PlannedRow& row : plan)
            told += std::to_string(row.row) + " " +
                    (row.IsTaken() ? FormatMegahertz(row.channel.frequency) : row.refusal.English()) + "\n";
        return told;
    }

    CloneImage image_ = StartUpImage(2);
};

TEST_F(PastePlanTest, ARefusedChannelLeavesItsRowAndTheOthersKeepTheirs)
{
    Put(10, 400);
    const PastePlan plan = PlanPaste(image_, {9, 10, 11, 12}, Channels({100, 830, 0, 1300, 101}));
    EXPECT_EQ(Told(plan),
              "9 100.000000\n"
              "10 It is a frequency of the cellular phone, which this model refuses.\n"
              "11 0.000000\n"
              "12 The receiver takes 0.1 to 1299.995 MHz.\n"
              "-1 there is no row left for it\n");
    CloneImage after = image_;
    ApplyPlan(plan, after);
    EXPECT_EQ(after.MemData(10), image_.MemData(10));
    EXPECT_EQ(after.MemData(9).frequency, Hertz(100));
    EXPECT_EQ(RowsWritten(plan), (RowList{9, 11}));
}

TEST_F(PastePlanTest, NobodyIsAskedWhereNothingIsLost)
{
    Put(5, 400);
    const auto needsLook = [this](const RowList& rows, const std::vector<ListedChannel>& channels) {
        return NeedsLook(image_, PlanPaste(image_, rows, channels));
    };
    auto remarked = Channels({100});
    remarked[0].remark = "left out";
    EXPECT_FALSE(needsLook({6, 7}, Channels({100, 101})));
    EXPECT_TRUE(needsLook({5, 6}, Channels({100})));
    EXPECT_TRUE(needsLook({6}, Channels({100, 101})));
    EXPECT_TRUE(needsLook({6}, remarked));
    image_.MemData(6).note = "a note alone";
    EXPECT_TRUE(needsLook({6}, Channels({100})));
}

TEST_F(PastePlanTest, TheSearchPassListStaysWithoutDuplicates)
{
    for (int i = 0; i < 3; ++i)
        Put(kSearch + i, 100 + i);
    // A list may be moved along in itself.
    EXPECT_EQ(Told(PlanPaste(image_, {1101, 1102}, Channels({100, 101}))),
              "1101 Another Search Pass channel has the same frequency.\n"
              "1102 Another Search Pass channel has the same frequency.\n");
    EXPECT_EQ(Told(PlanPaste(image_, {1100, 1101}, Channels({101, 100}))),
              "1100 101.000000\n1101 100.000000\n");
    EXPECT_EQ(Told(PlanPaste(image_, {1103, 1104}, Channels({200, 200}))),
              "1103 200.000000\n1104 Another Search Pass channel has the same frequency.\n");
    image_.MemData(1101).enabled = false;
    EXPECT_EQ(Told(PlanPaste(image_, {1103}, Channels({101}))), "1103 101.000000\n");
}

TEST_F(PastePlanTest, WhatAListDoesNotSayIsUsualOnThatFrequency)
{
    Put(3, 400);
    image_.MemData(3).note = "old";
    const PastePlan plan =
        PlanPaste(image_, {3, 4}, ReadChannelList("Freq\tName\n118.1\tTower\n1.008\tNews\n"));
    EXPECT_EQ(plan[0].channel, [this] {
        Channel tower = NewChannel(image_, Hertz(118.1));
        tower.note = "Tower";
        return tower;
    }());
    EXPECT_TRUE(plan[1].channel.mode == 1 && plan[1].channel.enabled);
    EXPECT_EQ(Told(PlanPaste(image_, {3, 5}, ReadChannelList("Mode\nAM\nAM\n"))),
              "3 400.000000\n5 the row holds no channel, and no frequency comes\n");
}

TEST_F(PastePlanTest, ChosenPartsGoOverAndOverAndNothingElseDoes)
{
    for (const int row : {1, 2, 4})
        Put(row, 100 + row);
    Channel from = NewChannel(image_, Hertz(500));
    from.mode = 2;
    from.option = 3 * 16 + 8;
    from.note = "from";
    CloneImage expected = image_;
    for (const int row : {1, 2, 4}) {
        expected.MemData(row).mode = 2;
        expected.MemData(row).option = 8;
    }
    ApplyPlan(PlanParts(image_, {1, 2, 3, 4}, Listed({from}), {kMode, kSkipPart}), image_);
    EXPECT_TRUE(image_ == expected) << "the empty row 3 stays empty";
    EXPECT_EQ(Told(PlanParts(image_, {3}, Listed({from}), {kFrequency})), "3 500.000000\n");
}

TEST_F(PastePlanTest, AClipHoldsEverythingAndNothingElseIsTakenForOne)
{
    Put(1, 439.1);
    Channel& row = image_.MemData(1);
    row.note = "tab\tline\nback\\slash \u00e4";
    row.isSecretEdited = true;
    row.isCarrierImported = true;
    row.blank = 0x15;
    row.enabled = false;
    row.option = 16 + 8;
    const std::string clip = FormatClip(image_, {0, 1});
    EXPECT_EQ(ParseClip(clip), (std::vector<Channel>{Channel(), row}));
    const std::pair<const char*, std::string> broken[] = {
        {"another head", "x" + clip},
        {"cut", clip.substr(0, clip.size() - 30)},
        {"no number", std::string(clip).replace(clip.find("\n0") + 1, 1, "x")},
        {"a mode of 3", std::string(clip).replace(clip.find("\n0\t0\t0") + 5, 1, "3")},
        {"no UTF-8", clip.substr(0, clip.size() - 2) + "\n"},
    };
    for (const auto& [what, text] : broken)
        EXPECT_FALSE(ParseClip(text)) << what;
}

TEST_F(PastePlanTest, ForOthersRowsAreATableWithTitles)
{
    Put(1, 118.1);
    image_.MemData(1).note = "<b>\t\"";
    image_.MemData(1).option = 8;
    EXPECT_EQ(FormatTabbed(image_, {1}),
              "Frequency\tMode\tStep\tOption\tSkip\tSecret\tCarrier\tTone\tShift\tShiftFreq.\tNote\n"
              "118.100000\tFM\t10KHz\tOFF\t*\t8\t-\t88.5Hz\tOFF\t0.600000\t<b> \"\n");
    EXPECT_NE(FormatHtml(image_, {1}).find("<td>&lt;b&gt; \"</td></tr>"), std::string::npos);
}

TEST_F(PastePlanTest, ASeriesGoesOverOccupiedRowsOrAroundThem)
{
    Put(1, 400);
    FillSeries series{.start = Hertz(118), .spacing = 25000, .count = 3, .like = {}, .skipsOccupied = true};
    EXPECT_EQ(Told(PlanSeries(image_, {0, 3}, 0, series)),
              "0 118.000000\n2 118.025000\n-1 there is no row left for it\n");
    series.skipsOccupied = false;
    series.like = image_.MemData(1);
    series.like.note = "like";
    series.like.enabled = false;
    const PastePlan plan = PlanSeries(image_, {0, 3}, 0, series);
    EXPECT_EQ(Told(plan), "0 118.000000\n1 118.025000\n2 118.050000\n");
    EXPECT_TRUE(plan[1].channel.note == "like" && plan[1].channel.enabled);
    const std::tuple<double, double, int> cases[] = {{118.1, 25, 5}, {118.09, 25, 4}, {118, 25, 1},
                                                     {117.9, 25, 0}, {117.9, -25, 5}, {118.1, 0, 0}};
    for (const auto& [last, spacing, count] : cases)
        EXPECT_EQ(CountUpTo(Hertz(118), Hertz(spacing / 1000), Hertz(last)), count) << last;
}

TEST_F(PastePlanTest, AListGoesToTheRowsThatItNames)
{
    const std::pair<ListedPlace, int> cases[] = {
        {{"Bank 1", "5", {}}, 205},
        {{"1", "5", {}}, 205},
        {{"Bank 0", "200", {}}, -1},
        {{"MEMORY", "999", {}}, 999},
        {{"Program Scan", "0B", {}}, 1001},
        {{"search pass", "S5", {}}, 1105},
        {{"Seach Pass", "5", {}}, 1105},
        {{"Priority", "Pr9", {}}, 1209},
        {{"Priority", "10", {}}, -1},
        {{"", "", "1209"}, 1209},
        {{"", "", "1210"}, -1},
        {{"Bank 50", "0", {}}, -1},
        {{"", "5", {}}, -1},
    };
    std::vector<ListedChannel> channels = Channels({100});
    for (const auto& [place, row] : cases) {
        channels[0].place = place;
        const PastePlan plan = PlanNamed(image_, channels);
        EXPECT_EQ(plan[0].row, row) << place.bank << " " << place.channel << place.row;
        EXPECT_EQ(plan[0].IsTaken(), row >= 0);
    }
    // What the list does not say of a channel stays; a row that is named twice takes the first.
    Put(7, 433);
    image_.MemData(7).tone = 5;
    channels = Channels({434, 435});
    for (ListedChannel& channel : channels) {
        channel.given = {kFrequency};
        channel.place = {"", "", "7"};
    }
    const PastePlan plan = PlanNamed(image_, channels);
    EXPECT_EQ(Told(plan), "7 434.000000\n7 the list names this row twice\n");
    EXPECT_EQ(plan[0].channel.tone, 5);
}

TEST_F(PastePlanTest, ALongListLeavesNoGapsWhereSomethingIsRefused)
{
    std::vector<ListedChannel> channels = Channels({100, 2400, 101, 102});
    channels[2].refusal = "no";
    EXPECT_EQ(Told(PlanOn(image_, {3, 5}, channels)),
              "3 100.000000\n-1 The receiver takes 0.1 to 1299.995 MHz.\n-1 no\n5 102.000000\n");
    const std::pair<const char*, int> words[] = {{"17", 17},   {"1:5", 205},  {"1:", 200}, {"priority", 1200},
                                                 {"1210", -1}, {"0:200", -1}, {"x", -1}};
    for (const auto& [word, row] : words)
        EXPECT_EQ(RowOfWord(image_, word).value_or(-1), row) << word;
    EXPECT_EQ(RowsOnFrom(image_, 150), (RowRange{150, 850}));
    EXPECT_EQ(RowsOnFrom(image_, 1150), (RowRange{1150, 50}));
}

}  // namespace
}  // namespace rqm5
