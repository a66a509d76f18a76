#include "files/random_image.h"

#include <random>

#include "image/channel_record.h"
#include "image/number_text.h"
#include "memory/bank_layout.h"
#include "memory/start_image.h"

namespace rqm5::test {
namespace {

constexpr std::string_view kNotes[] = {"",     "Tower",     "  led by blanks", "\xE6\x9D\xB1\xE4\xBA\xAC",
                                       "=1+1", "tab\there", "it's 50 % \\ #",  "\xC3\xBC"};

class Dice
{
  public:
    explicit Dice(std::uint32_t seed) : engine_(seed) {}
    int operator()(int highest) { return std::uniform_int_distribution<int>(0, highest)(engine_); }

  private:
    std::mt19937 engine_;
};

ChannelNumbers RandomNumbers(Dice& dice)
{
    return {100 * (1 + dice(12)) + dice(999999) / 1e6, double(dice(2)), double(dice(18)),
            dice(4) * 16.0 + dice(1) * 8, double(dice(16)), double(dice(28)), double(dice(38)),
            16.0 * dice(2),
            // A fraction that begins with a zero digit is not read back as it was written.
            dice(99) + dice(8) * 0.1 + 0.1};
}

}  // namespace

CloneImage RandomImage(std::uint32_t seed)
{
    Dice dice(seed);
    CloneImage image = StartUpImage(dice(3));
    image.Settings.volume = dice(50);
    image.Settings.operatingMode = dice(1);
    image.Settings.keyLock = dice(1) == 1;
    image.Settings.lamp = dice(2);
    for (int row = 0; row < kMemoryRows; ++row) {
        const auto index = static_cast<std::size_t>(row);
        if (dice(1) == 1)
            DecodeMemoryBlock(image, EncodeNumbers(RandomNumbers(dice)), row);
        image.MemText[index][kNote] = kNotes[static_cast<std::size_t>(dice(7))];
        image.MemEnable[index] = dice(2) == 0;
    }
    for (int row = 0; row < kVfoRows; ++row)
        image.VFOText[static_cast<std::size_t>(row)][kNote] = kNotes[static_cast<std::size_t>(dice(7))];
    for (int bank = 0; bank < kBanks; ++bank)
        SetBankSize(image, bank, dice(20));
    for (bool& link : image.BankLink)
        link = dice(1) == 1;
    return image;
}

}  // namespace rqm5::test
