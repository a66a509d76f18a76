#include "printing/listing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "image/display_text.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

void PutChannel(CloneImage& image, std::size_t row, const std::string& frequency, const std::string& note)
{
    image.MemText.at(row) = {frequency, "FM", "10KHz", "OFF", "", "JR", "88.5Hz", "OFF", "0.600000", note};
    image.MemData.at(row)[kFrequency] = 100;
    image.MemEnable.at(row) = true;
}

Listing MemoryListing(const CloneImage& image, int group, bool skipEmpty = true)
{
    return BuildListing(image, {false, false, true, group, skipEmpty});
}

using Texts = std::vector<std::string>;

TEST(Listing, NamesSettingsAsThePagesDo)
{
    CloneImage image = StartUpImage(0);
    image.Settings.model = 3;
    image.Settings.operatingMode = ReceiverSettings::kNoOption;
    image.Settings.lamp = 2;
    image.Settings.autoPowerOff = 3;
    image.Settings.barAntennaAm = false;
    const Texts rows = BuildListing(image, {true, false, false}).front().rows;
    ASSERT_EQ(rows.size(), 20U);
    for (const char* row :
         {"Model:                     RQ-M5 K", "Operating Mode:            none",
          "Lamp:                      ON", "Auto Power Off (minutes):  90", "AM bar antenna:            off",
          "SW bar antenna:            on", "Volume:                    30"})
        EXPECT_EQ(std::count(rows.begin(), rows.end(), row), 1) << row;
}

TEST(Listing, MarksDisabledChannelsAndLeavesEmptyRowsOutOnlyWhenAsked)
{
    CloneImage image = StartUpImage(0);
    EXPECT_EQ(MemoryListing(image, 49, false).front().rows, Texts{kNoEntries});
    SetBankSize(image, 0, 3);
    PutChannel(image, 0, "145.000000", "one");
    PutChannel(image, 2, "146.000000", "東京");
    image.MemEnable[2] = false;
    image.BankLink[0] = true;
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
        SetBankSize(image, bank, bank == 7 ? 20 : 0);
    for (const std::size_t row : {5U, 600U, 1001U, 1199U, 1200U})
        PutChannel(image, row, "145.000000", "");
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
    PutChannel(image, 0, "145.000000", std::string(39, 'n') + "東京\x1B[2J\xFF");
    PutChannel(image, 1, std::string(50, '9'), "");
    const Listing listing = MemoryListing(image, 0);
    const Texts& rows = listing.front().rows;
    ASSERT_EQ(rows.size(), 4U);
    EXPECT_TRUE(rows[0].ends_with(std::string(39, 'n')));
    EXPECT_TRUE(rows[1].ends_with("  東京\\x1B[2J\\xFF"));
    EXPECT_EQ(rows[3], "        " + std::string(24, '9'));
    EXPECT_EQ(ListingWidth(listing), DisplayWidth(rows[0]));
}

}  // namespace
}  // namespace rqm5
