#include "printing/listing.h"

#include <gtest/gtest.h>

#include "image/channel_block.h"
#include "image/display_text.h"
#include "memory/start_image.h"
#include "printing/text_columns.h"

namespace rqm5 {
namespace {

/// A channel as an editor of a region without a secret code leaves it.
void PutChannel(CloneImage& image, int row, std::int64_t hertz, const std::string& note)
{
    DecodeMemoryBlock(image, MemoryBlock("0145000000000400001C080000600000"), row);
    image.MemData(row).frequency = hertz;
    image.MemData(row).blank = 1U << kSecret;
    image.MemData(row).note = note;
    image.MemData(row).enabled = true;
}

Listing MemoryListing(const CloneImage& image, int group, bool skipEmpty = true)
{
    return BuildListing(image, {false, false, true, group, skipEmpty});
}

using Texts = std::vector<std::string>;

TEST(Listing, NamesSettingsAsThePagesDo)
{
    CloneImage image = StartUpImage(0);
    image.Settings().model = 3;
    image.Settings().operatingMode = ReceiverSettings::kNoOption;
    image.Settings().lamp = 2;
    image.Settings().autoPowerOff = 3;
    image.Settings().barAntennaAm = false;
    // clang-format off
    EXPECT_EQ(BuildListing(image, {true, false, false}).front().rows,
              (Texts{"Model:                     RQ-M5 K",   "Operating Mode:            none",
                     "Volume:                    30",        "Squelch:                   3",
                     "Scan Mode:                 Busy Scan", "Lamp:                      ON",
                     "Auto Power Off (minutes):  90",        "Bug Sensitive Level:       3",
                     "MONI Key Function:         Push",      "MONI Key:                  Monitor",
                     "Battery Save:              on",        "Keylock:                   off",
                     "Write Protect:             on",        "Beep:                      on",
                     "Bell:                      off",       "Attenuator:                off",
                     "Auto Step:                 on",        "Earphone Antenna:          off",
                     "SW bar antenna:            on",        "AM bar antenna:            off"}));
    // clang-format on
}

TEST(Listing, MarksDisabledChannelsAndLeavesEmptyRowsOutOnlyWhenAsked)
{
    CloneImage image = StartUpImage(0);
    EXPECT_EQ(MemoryListing(image, 49, false).front().rows, Texts{kNoEntries});
    image.SetBankSize(0, 3);
    PutChannel(image, 0, 145'000'000, "one");
    PutChannel(image, 2, 146'000'000, "東京");
    image.MemData(2).enabled = false;
    image.SetBankLink(0, true);
    image.SetBankLink(kSelectProgramScan, true);  // a flag that the receiver keeps for no bank
    EXPECT_EQ(MemoryListing(image, kSelectProgramScan).front().title,
              "Memory: Program Scan (0 of 100 rows used)");
    const std::string one =
        "0       145.000000  FM    10KHz  OFF           JR       88.5Hz  OFF    0.600000    one";
    const std::string two =
        "2  x    146.000000  FM    10KHz  OFF           JR       88.5Hz  OFF    0.600000    東京";
    const ListingSection bank = MemoryListing(image, 0).front();
    EXPECT_EQ(bank.title, "Memory: Bank 0 (2 of 3 rows used, linked)");
    EXPECT_EQ(bank.rows, (Texts{one, two}));
    EXPECT_EQ(MemoryListing(image, 0, false).front().rows, (Texts{one, "1", two}));
}

TEST(Listing, OfAllGroupsLosesNoChannel)
{
    CloneImage image = StartUpImage(0);
    for (int bank = 0; bank < kBanks; ++bank)
        image.SetBankSize(bank, bank == 7 ? 20 : 0);
    for (const int row : {5, 600, 1001, 1199, 1200})
        PutChannel(image, row, 145'000'000, "");
    Texts titles;
    for (const ListingSection& section : MemoryListing(image, kSelectAll))
        titles.push_back(section.title);
    EXPECT_EQ(titles,
              (Texts{"Memory: Bank 7 (1 of 20 rows used)", "Memory: In no bank",
                     "Memory: Program Scan (1 of 100 rows used)", "Memory: Seach Pass (1 of 100 rows used)",
                     "Memory: Priority (1 of 10 rows used)"}));
    std::size_t rows = 0;
    for (const ListingSection& section : MemoryListing(image, kSelectAll, false))
        rows += section.rows.size();
    EXPECT_EQ(rows, 1210U);
}

TEST(Listing, BreaksLongTextsSoThatNothingIsLostAndNothingStrangeIsSent)
{
    CloneImage image = StartUpImage(0);
    std::string note(39, 'n');
    note += "東京\x1B[2J\xFF";
    PutChannel(image, 0, 145'000'000, note);
    const Listing listing = MemoryListing(image, 0);
    const Texts& rows = listing.front().rows;
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_TRUE(rows[0].ends_with(std::string(39, 'n')));
    EXPECT_TRUE(rows[1].ends_with("  東京\\x1B[2J\\xFF"));
    EXPECT_EQ(ListingWidth(listing), DisplayWidth(rows[0]));
    // Every column breaks its texts, not only the last one.
    TextColumns columns("Wide|Note");
    const Cells cells = {std::string(50, '9'), "n"};
    columns.Fit(cells);
    EXPECT_EQ(columns.Lines(cells), (Texts{std::string(26, '9') + "  n", std::string(24, '9')}));
}

}  // namespace
}  // namespace rqm5
