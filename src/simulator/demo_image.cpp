#include "simulator/demo_image.h"

#include "image/channel_block.h"
#include "image/number_text.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

enum Mode : std::uint8_t { FM, AM, WFM };
enum Option : std::uint8_t { Off = 0, Secret = 16, Carrier = 32, Tone = 48, Reverse = 64 };
enum Shift : std::uint8_t { None = 0, Plus = 16, Minus = 32 };

/// Channels one beside the other: `count` rows from `row` on, `spacing` MHz apart.
struct Run
{
    int row, count;
    double frequency, spacing;  ///< MHz
    Mode mode;
    std::uint8_t step;  ///< step code
    Option option;
    std::uint8_t tone;  ///< tone code
    Shift shift;
    double offset;  ///< MHz
};

constexpr int kBankSizes[] = {50, 50, 100, 100, 40, 40, 30, 90};

constexpr Run kRuns[] = {
    // Bank 0, air: towers and approach; bank 1, sea: the calling channel, ship and coast pairs
    {0, 12, 118.1, 0.1, AM, 8, Off, 8, None, 0},
    {12, 4, 122.8, 0.05, AM, 3, Off, 8, None, 0},
    {20, 6, 243.0, 1.0, AM, 8, Off, 8, None, 0},
    {50, 1, 156.8, 0, FM, 8, Off, 8, None, 0},
    {51, 9, 156.05, 0.05, FM, 8, Off, 8, Plus, 4.6},
    // Bank 2 and 3, amateur repeaters and simplex; bank 4, railways, which open with a carrier tone
    {100, 8, 145.6, 0.025, FM, 5, Tone, 12, Minus, 0.6},
    {108, 6, 145.2, 0.0125, FM, 5, Off, 8, None, 0},
    {200, 10, 439.02, 0.02, FM, 7, Tone, 8, Minus, 5},
    {210, 4, 433.0, 0.02, FM, 7, Reverse, 20, Plus, 5},
    {300, 6, 161.5, 0.025, FM, 5, Carrier, 8, None, 0},
    // Bank 5, short wave; bank 7, services, some scrambled
    {340, 9, 6.055, 0.15, AM, 1, Off, 8, None, 0},
    {410, 5, 168.35, 0.02, FM, 7, Secret, 8, None, 0},
    {415, 3, 806.25, 0.5, FM, 7, Off, 8, Plus, 55},
    // Scan edges come in pairs: lower, upper
    {1000, 2, 118.0, 18.0, AM, 8, Off, 8, None, 0},
    {1002, 2, 144.0, 2.0, FM, 7, Off, 8, None, 0},
    {1004, 2, 430.0, 10.0, FM, 7, Off, 8, None, 0},
    {1098, 2, 1260.0, 35.0, FM, 7, Off, 8, None, 0},
    // Frequencies that a search shall pass over, and the ones that are looked at now and then
    {1100, 7, 145.5, 0.0375, FM, 5, Off, 8, None, 0},
    {1120, 2, 162.4, 0.15, FM, 8, Off, 8, None, 0},
    {1200, 1, 156.8, 0, FM, 8, Off, 8, None, 0},
    {1201, 2, 121.5, 0.1, AM, 8, Off, 8, None, 0},
    {1205, 1, 433.0, 0, FM, 7, Off, 8, None, 0},
};

/// Broadcast stations (bank 6) lie elsewhere in each region.
constexpr Run kBroadcast[kRegions][2] = {
    {{380, 5, 0.594, 0.099, AM, 0, Off, 8, None, 0}, {385, 8, 76.1, 1.4, WFM, 11, Off, 8, None, 0}},
    {{380, 5, 0.558, 0.135, AM, 0, Off, 8, None, 0}, {385, 8, 88.2, 2.1, WFM, 11, Off, 8, None, 0}},
    {{380, 5, 0.66, 0.11, AM, 4, Off, 8, None, 0}, {385, 8, 88.1, 2.4, WFM, 13, Off, 8, None, 0}},
    {{380, 5, 0.65, 0.12, AM, 4, Off, 8, None, 0}, {385, 8, 89.1, 2.2, WFM, 11, Off, 8, None, 0}},
};

void AddRun(CloneImage& image, const Run& run)
{
    constexpr int kSecretCode = 8;
    constexpr int kCarrierCode = 7;
    constexpr int kSkip = 8;
    for (int i = 0; i < run.count; ++i) {
        const int row = run.row + i;
        const bool isBankRow = row < kBankRows;
        ChannelContents channel;
        channel.frequency = Hertz(run.frequency + i * run.spacing);
        channel.shiftFrequency = static_cast<std::int32_t>(Hertz(run.offset));
        channel.mode = run.mode;
        channel.step = run.step;
        channel.option = static_cast<std::uint8_t>(run.option + (isBankRow && i % 5 == 3 ? kSkip : 0));
        channel.secret = kSecretCode;
        channel.carrier = kCarrierCode;
        channel.tone = static_cast<std::uint8_t>(run.tone + i % 3);
        channel.shift = run.shift;
        DecodeMemoryBlock(image, EncodeChannel(channel), row);
        image.MemData(row).enabled = !isBankRow || i % 6 != 4;
    }
}

void AddBanks(CloneImage& image)
{
    int bank = 0;
    int left = kBankRows;
    for (const int size : kBankSizes) {
        image.SetBankSize(bank++, size);
        left -= size;
    }
    for (; bank < kBanks; ++bank)
        image.SetBankSize(bank, 0);
    image.SetBankSize(kUnassigned, left);
    for (const int linked : {0, 1, 4})
        image.SetBankLink(linked, true);
}

}  // namespace

CloneImage DemoImage(int region)
{
    CloneImage image = StartUpImage(region);
    image.Settings().volume = 22;
    image.Settings().squelch = 2;
    image.Settings().lamp = 2;
    image.Settings().autoPowerOff = 2;
    image.Settings().attenuator = true;
    AddBanks(image);
    for (const Run& run : kRuns)
        AddRun(image, run);
    for (const Run& run : kBroadcast[image.ModelNo()])
        AddRun(image, run);
    image.VFOData(6).frequency = Hertz(145.625);
    DecodeVfoBlock(image, EncodeVfoRow(image, 6), 6);
    return image;
}

}  // namespace rqm5
