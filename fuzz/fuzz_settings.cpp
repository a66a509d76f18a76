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
    image.Settings = {};
    if (!input.empty()) {
        image.Settings.model = static_cast<unsigned char>(input.front()) % 6;
        input.remove_prefix(1);
    }
    image.SetData1 = MemoryBlock(input);
    image.SetData2 = MemoryBlock(input.substr(std::min(input.size(), kBlockChars)));
    DecodeSettings(image);
    RequireSoundSettings(image.Settings);
    const ReceiverSettings decoded = image.Settings;

    EncodeSettings(image);
    const MemoryBlock encoded1 = image.SetData1;
    const MemoryBlock encoded2 = image.SetData2;
    DecodeSettings(image);
    ReceiverSettings expected = decoded;
    // A mode that is none of the three is sent as VFO.
    if (expected.operatingMode == ReceiverSettings::kNoOption)
        expected.operatingMode = 0;
    Require(image.Settings == expected, "settings survive encoding and decoding");
    EncodeSettings(image);
    Require(image.SetData1 == encoded1 && image.SetData2 == encoded2, "encoded blocks are stable");
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckSettings({reinterpret_cast<const char*>(data), size});
    return 0;
}
