#include "files/channel_list.h"

#include <gtest/gtest.h>

#include "files/csv_file.h"
#include "files/list_file.h"
#include "files/list_map.h"
#include "image/number_text.h"
#include "image/row_texts.h"
#include "memory/channel_clip.h"
#include "memory/paste_plan.h"
#include "memory/start_image.h"
#include "simulator/demo_image.h"

namespace rqm5 {
namespace {

/// What a list is read as, one line a row: its frequency and note, the remark, or why it was refused.
std::string Read(std::string_view text)
{
    std::string result;
    for (const ListedChannel& row : ReadChannelList(text)) {
        if (!row.refusal.empty())
            result += row.source.English() + ": " + row.refusal.English();
        else
            result += FormatMegahertz(row.channel.frequency) +
                      (row.channel.note.empty() ? "" : " " + row.channel.note);
        result += (row.remark.empty() ? "" : " [" + row.remark.English() + "]") + "\n";
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
        {"1.455E+02", "Line 1: \"1.455E+02\" has lost digits to an exponent in a spreadsheet"},
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
        {"Row,Freq\n1,145.500\n2,1296\n", "145.500000\n1296.000000\n"},
        {"Kanal;Mittenfreq MHz;Bemerkung\n1;145,5;Ulm\n", "145.500000 Ulm\n"},
        {"Name,Downlink (kHz),Bandwidth kHz\nISS,145800,25\n", "145.800000 ISS\n"},
        {"Sendefrequenz,Name\n118.1,Tower\n", "118.100000 Tower\n"},
        {"1.455E+02;old freq\n", "Line 1: there is no frequency\n"},
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
        {"1,145.500\n2,146.500\n", "145.500000\n146.500000\n"},
        {"1,240.000\n1,296.000\n", "1240.000000\n1296.000000\n"},
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
    EXPECT_EQ(row.remark.English(), "");
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
    EXPECT_EQ(csv[13].refusal.English(), "it is a VFO band");
    EXPECT_EQ(csv[14].channel.note, "a,b \"c\"");
}

TEST(ChannelList, FindsOutHowAListOfAnyCountryIsWritten)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"Frequenz in kHz;Betriebsart;Bemerkung;Aktiv\n145.500,0;FM;Ulm, Ost;FALSCH\n",
         "UTF-8; fields: semicolon; decimals: comma; \"Frequenz in kHz\" = frequency:kHz, \"Betriebsart\" = "
         "mode, "
         "\"Bemerkung\" = note, \"Aktiv\" = enable",
         "145.500000 Ulm, Ost\n"},
        {"Nom,FR\xC9QUENCE\nGen\xE8ve; Sud,145.5\nBern,145.6\n",
         "WINDOWS-1252; fields: comma; decimals: point; \"Nom\" = note, \"FRÉQUENCE\" = frequency:MHz",
         "145.500000 Genève; Sud\n145.600000 Bern\n"},
        {"Frecuencia\tTono\tOtro\n145500000\t88,5\tx\n",
         "UTF-8; fields: tab; decimals: each number by itself; \"Frecuencia\" = frequency:Hz, \"Tono\" = "
         "tone; not "
         "used: \"Otro\"",
         "145.500000\n"},
        {"\x8E\xFC\x94\x67\x90\x94\x81\x69\x82\x6C\x82\x67\x82\x9A\x81\x6A,\x94\xF5\x8D\x6C\n433.5,"
         "\x93\x8C\x8B\x9E\n",
         "CP932; fields: comma; decimals: point; \"周波数（ＭＨｚ）\" = frequency:MHz, \"備考\" = note",
         "433.500000 東京\n"},
        {"RQ-M5;MEMORY;3;145,5;FM;10KHz;OFF;0;300Hz;88,5Hz;+Shift;0,6;n;FALSCH;WAHR\n",
         "UTF-8; fields: semicolon; decimals: comma; column 2 = bank, column 3 = channel, column 4 = "
         "frequency:MHz, "
         "column 5 = mode, column 6 = step, column 7 = option, column 8 = secret, column 9 = train, column "
         "10 = tone, "
         "column 11 = shift, column 12 = offset, column 13 = note, column 14 = skip, column 15 = enable; not "
         "used: "
         "column 1",
         "145.500000 n\n"},
    };
    for (const auto& [text, found, rows] : cases) {
        EXPECT_EQ(DescribeTable(ReadTable(text)).English(), found) << text;
        EXPECT_EQ(Read(text), rows) << text;
    }
    const std::string wide(
        "\xFF\xFE"
        "1\0"
        "4\0"
        "5\0"
        ".\0"
        "5\0"
        "\t\0"
        "\xFC\0"
        "\n\0",
        18);
    EXPECT_EQ(Read(wide), "145.500000 ü\n");
    EXPECT_EQ(ReadTable(std::string(6000, '\n').insert(0, "145.5\n145.5\n")).records.size(), 2U);
    EXPECT_TRUE(
        Read([] {
            std::string many;
            for (int i = 0; i <= 5000; ++i)
                many += "145.5\n";
            return many;
        }())
            .ends_with("Line 5001: it and all behind it are not read: no list of channels has more than "
                       "5000 rows\n"));
}

TEST(ChannelList, IsReadAsSomebodySays)
{
    const std::string text = "A;\"B,=\"\n145.500;x\n";
    const auto said =
        ParseForm("A=frequency:kHz, \"B,=\" = none,@decimal=comma,@delimiter=semicolon,@titles=yes");
    ASSERT_TRUE(std::holds_alternative<ListForm>(said));
    const ListTable table = ReadTable(text, std::get<ListForm>(said));
    ASSERT_EQ(ReadChannels(table).size(), 1U);
    EXPECT_EQ(ReadChannels(table)[0].channel.frequency, Hertz(145.5)) << "a point separates thousands then";
    EXPECT_EQ(FormatForm(FormOf(table)),
              "A=frequency:kHz,\"B,=\"=none,@encoding=UTF-8,@delimiter=semicolon,"
              "@decimal=comma,@titles=yes");
    ListForm wrong;
    wrong.columns = {{"C", {kNote}}, {"2", {kNote}}};
    EXPECT_EQ(ReadTable(text, wrong).unknown, std::vector<std::string>{"C"});
    for (const char* bad : {"A", "A=colour", "A=note:kHz", "@titles=maybe", "@x=1", "@encoding=none"})
        EXPECT_TRUE(std::holds_alternative<Message>(ParseForm(bad))) << bad;
}

TEST(ChannelList, AnExportedListComesBackWithoutAnyChange)
{
    CloneImage image = DemoImage(0);
    image.MemData(3) = NewChannel(image, Hertz(439.1));
    image.MemData(3).note = "=1+1; \"a\", b";
    image.MemData(4) = image.MemData(3);
    image.MemData(4).note = "'-x";
    image.MemData(4).carrier = 5;
    image.MemData(4).isCarrierImported = true;
    image.MemData(4).step = 16;
    image.MemData(4).shift = 0x20;
    image.MemData(1205) = image.MemData(4);
    for (const DecimalSign sign : {DecimalSign::Point, DecimalSign::Comma}) {
        const ListChoice choice{{{0, kRadioRows}}, ListColumns(), sign};
        const std::string list = FormatList(image, choice);
        EXPECT_EQ(list.find("\n="), std::string::npos);
        EXPECT_NE(list.find(sign == DecimalSign::Comma ? ";439,100000;" : ",439.100000,"), std::string::npos);
        CloneImage back = image;
        const PastePlan plan = PlanNamed(image, ReadChannelList(list));
        ApplyPlan(plan, back);
        EXPECT_EQ(static_cast<int>(RowsWritten(plan).size()), CountRows(image, choice));
        EXPECT_TRUE(back == image);
    }
}

}  // namespace
}  // namespace rqm5
