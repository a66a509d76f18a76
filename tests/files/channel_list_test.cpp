#include "files/channel_list.h"

#include <gtest/gtest.h>

#include "files/csv_file.h"
#include "image/number_text.h"
#include "image/row_texts.h"
#include "memory/channel_clip.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

/// What a list is read as, one line a row: its frequency and note, the remark, or why it was refused.
std::string Read(std::string_view text)
{
    std::string result;
    for (const ListedChannel& row : ReadChannelList(text)) {
        if (!row.refusal.empty())
            result += row.source + ": " + row.refusal;
        else
            result += FormatMegahertz(row.channel.frequency) +
                      (row.channel.note.empty() ? "" : " " + row.channel.note);
        result += (row.remark.empty() ? "" : " [" + row.remark + "]") + "\n";
    }
    return result;
}

TEST(ChannelList, ReadsFrequenciesAsPeopleWriteThem)
{
    const std::pair<const char*, const char*> cases[] = {
        {"145.5", "145.500000"},
        {"145,5", "145.500000"},
        {"145.5 MHz", "145.500000"},
        {"145500 kHz", "145.500000"},
        {"145500", "145.500000"},
        {"145500000", "145.500000"},
        {"145.500.000", "145.500000"},
        {"145 500 000", "145.500000"},
        {"1,299.995 MHz", "1299.995000"},
        {"1.299,995", "1299.995000"},
        {"145.500.000 Hz", "145.500000"},
        {"145,500 Hz", "0.145500"},
        {"1.2GHz", "1200.000000"},
        {"8.3333333", "8.333333"},
        {"118,025 kHz", "Line 1: \"118,025 kHz\" cannot be read for certain as a frequency"},
        {"14,55,00 MHz", "Line 1: \"14,55,00 MHz\" cannot be read for certain as a frequency"},
        {"-145.5", "Line 1: \"-145.5\" cannot be read for certain as a frequency"},
        {"0", "Line 1: a frequency of 0 is no channel"},
        {"hello", "Line 1: \"hello\" cannot be read for certain as a frequency"},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Read(text), std::string(expected) + "\n") << text;
}

TEST(ChannelList, GoesByTitlesInAnyOrder)
{
    const std::pair<const char*, const char*> cases[] = {
        {"Name\tFreq (kHz)\tMode\nTower\t118100\tAM\n\n\t\t\nGround\t121,9\tam\n",
         "118.100000 Tower\n0.121900 Ground\n"},
        {"MHz;Comment\n118,1;\"a;b \"\"c\"\"\"\n", "118.100000 a;b \"c\"\n"},
        {"frequency,city\n118.1,London\n118.2,a,b\n",
         "118.100000\nLine 3: there are more fields than titles\n"},
        {"Mode\tRX\nUSB\t14.2\nFM\t\n",
         "Line 2: the receiver has no mode \"USB\"\nLine 3: there is no frequency\n"},
        {"Freq\tTone\tStep\n145.5\t88.4\t7\n", "145.500000 [Tone \"88.4\" left out; Step \"7\" left out]\n"},
        {"Mode\nAM\n", "0.000000\n"},  // parts for channels that are there
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Read(text), expected) << text;
}

TEST(ChannelList, FindsColumnsWithoutTitles)
{
    const std::pair<const char*, const char*> cases[] = {
        {"1\tTower\t118.100\n2\tGround\t121.900\n", "118.100000 Tower\n121.900000 Ground\n"},
        {"118.1,Tower\n121.9,Ground\n", "118.100000 Tower\n121.900000 Ground\n"},
        {"118,1;Tower\n", "118.100000 Tower\n"},
        {"145500\n145525\n1400\n", "145.500000\n145.525000\n1.400000\n"},
        {"145,5,Tower\n145,525,Ground\n",
         "Line 1: commas stand for decimals and between fields; separate the fields by tabs\n"
         "Line 2: commas stand for decimals and between fields; separate the fields by tabs\n"},
        {"", ""},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(Read(text), expected) << text;
    const ListedChannel row = ReadChannelList("145.6\tNFM\t12.5kHz\t+\t88.5Hz\tclub\n").at(0);
    EXPECT_EQ(row.channel.step, 5);
    EXPECT_TRUE(row.channel.shift == 16 && row.channel.tone == 8 && row.channel.note == "club");
}

TEST(ChannelList, UnderstandsTheWordsForEveryColumn)
{
    const ListedChannel row =
        ReadChannelList(
            "Freq\tMode\tStep\tSquelch\tSkip\tSecret\tTrain tone\tCTCSS\tOffset\tEnabled\n"
            "439.1\tWBFM\t8,333 kHz\tTSQL\tx\t3\tJR\t100,0 Hz\t-7.6\tno\n")
            .at(0);
    EXPECT_EQ(row.remark, "");
    EXPECT_EQ(TextsOf(row.channel), (std::vector<std::string>{"439.100000", "WFM", "8.33KHz", "Tone", "3",
                                                              "JR", "100.0Hz", "-Shift", "7.600000", ""}));
    EXPECT_TRUE(row.channel.IsSkipped() && !row.channel.enabled && row.given.Has(kEnabledPart));
}

TEST(ChannelList, TakesBackWhatThisProgramWrites)
{
    CloneImage image = StartUpImage(1);
    image.MemData(3) = NewChannel(image, Hertz(439.1));
    image.MemData(3).note = "a,b \"c\"";
    image.MemData(3).option = 16 + 8;
    image.MemData(3).isSecretEdited = true;
    image.MemData(3).carrier = 4;
    const auto tabbed = ReadChannelList(FormatTabbed(image, {2, 3}));
    ASSERT_EQ(tabbed.size(), 1U) << "an empty row says nothing";
    Channel channel = NewChannel(image, Hertz(439.1));
    CopyParts(tabbed[0].channel, tabbed[0].given, channel);
    EXPECT_EQ(channel, image.MemData(3));
    const auto csv = ReadChannelList(FormatCsv(image));
    ASSERT_EQ(csv.size(), 15U) << "the VFO bands and one channel";
    EXPECT_EQ(csv[13].refusal, "it is a VFO band");
    EXPECT_EQ(csv[14].channel.note, "a,b \"c\"");
}

}  // namespace
}  // namespace rqm5
