// Two settings blocks as a receiver or a file may hold them, and the region that was selected before.

#include <cstdint>
#include <string_view>

#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "settings/settings_codec.h"

namespace rqm5::fuzz {
namespace {

void CheckSettings(std::string_view input)
{
    static CloneImage image;
    ReceiverSettings& settings = image.Settings();
    settings = {};
    if (!input.empty()) {
        settings.model = static_cast<unsigned char>(input.front()) % 6;
        input.remove_prefix(1);
    }
    const MemoryBlock first(input);
    const MemoryBlock second(input.substr(std::min(input.size(), kBlockChars)));
    DecodeSettings(image, {first, second});
    RequireSoundSettings(settings);
    const ReceiverSettings expected = AsSent(settings);
    const SettingsBlocks encoded = {SetData1(image), SetData2(image)};
    DecodeSettings(image, encoded);
    Require(settings == expected, "settings survive encoding and decoding");
    Require((SettingsBlocks{SetData1(image), SetData2(image)}) == encoded, "encoded blocks are stable");
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckSettings({reinterpret_cast<const char*>(data), size});
    return 0;
}
