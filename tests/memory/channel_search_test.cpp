#include "memory/channel_search.h"

#include <gtest/gtest.h>

#include "memory/row_filter.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

struct Stored
{
    int row;
    int kilohertz;
    int mode;
    int tone;
    int option;
    const char* note;
    bool enabled = true;
};

CloneImage ImageOf(std::initializer_list<Stored> channels)
{
    CloneImage image = StartUpImage(0);
    for (const Stored& stored : channels) {
        Channel& channel = image.MemData(stored.row);
        channel.blank = 0;
        channel.frequency = std::int64_t{stored.kilohertz} * 1000;
        channel.mode = static_cast<std::uint8_t>(stored.mode);
        channel.tone = static_cast<std::uint8_t>(stored.tone);
        channel.option = static_cast<std::uint8_t>(stored.option);
        channel.note = stored.note;
        channel.enabled = stored.enabled;
    }
    return image;
}

constexpr int kToneOn = 3 * 16;

TEST(ChannelSearch, FindsFrequencyNoteModeAndToneTheLikeliestFirst)
{
    const CloneImage image = ImageOf({
        {5, 88500, 2, 0, 0, "Radio Köln"},
        {250, 145625, 0, 8, kToneOn, "Repeater DB0XX"},
        {300, 145650, 0, 8, 0, "88.5 on the way in"},
        {1003, 118000, 1, 12, 0, "TOWER North"},
        {1104, 1180500, 0, 0, 0, "ＤＸ"},
        {1209, 0, 0, 0, 0, "Радио"},
    });
    const std::pair<const char*, std::vector<int>> cases[] = {
        {"145.62", {250}},
        {"145,62", {250}},
        {"145625", {250}},
        {" 145.625 MHz ", {250}},
        {"145.625MHz", {250}},
        {"145.6", {250, 300}},
        {"625", {}},
        {"118", {1003, 1104}},
        {"am", {1003}},
        {"FM", {250, 300, 1104}},
        {"wf", {5}},
        {"tower north", {1003}},
        {"north fm", {}},
        {"KÖLN", {5}},
        {"радИО", {1209}},
        {"dx", {1104}},
        {"88.5", {5, 300, 250}},
        {"88.5hz", {250, 300}},
        {"100", {1003}},
        {"100,0", {1003}},
        {"8", {5, 300}},
        {".", {300}},
        {"  ", {}},
        {"", {}},
        {"\xFF", {}},
    };
    for (const auto& [query, rows] : cases)
        EXPECT_EQ(FindChannels(image, query), rows) << query;
}

TEST(RowFilter, LeavesRowsWithTheLabelsThatTheyHave)
{
    CloneImage image = ImageOf({
        {200, 145000, 0, 0, 0, ""},
        {202, 146000, 0, 0, 8, "", false},
        {203, 147000, 0, 0, 0, "here"},
        {349, 148000, 0, 0, 0, ""},
        {351, 148000, 0, 0, 0, ""},
        {1004, 146000, 0, 0, 0, ""},
        {1205, 147000, 1, 0, 0, ""},
    });
    image.MemData(204).note = "nothing but a note";
    struct
    {
        RowFilter filter;
        std::vector<int> rows;
        std::vector<std::string> labels;
    } const cases[] = {
        {RowFilter::WithChannel, {200, 202, 203, 349}, {"0", "2", "3", "149"}},
        {RowFilter::Enabled, {200, 203, 349}, {"0", "3", "149"}},
        {RowFilter::Disabled, {202}, {"2"}},
        {RowFilter::Skipped, {202}, {"2"}},
        {RowFilter::WithNote, {203, 204}, {"3", "4"}},
        {RowFilter::Duplicates, {202, 349}, {"2", "149"}},
    };
    for (const auto& row : cases) {
        const ShownRows shown = FilterGroup(image, 1, row.filter);
        EXPECT_EQ(shown.rows, row.rows);
        EXPECT_EQ(shown.labels, row.labels);
    }
    EXPECT_EQ(FilterGroup(image, 1, RowFilter::All).rows.size(), 150U);
    EXPECT_EQ(FilterGroup(image, kSelectAll, RowFilter::Duplicates).labels,
              (std::vector<std::string>{"202", "349", "351", "2A"}));
}

}  // namespace
}  // namespace rqm5
