// A CSV file from a stranger.

#include <cstdint>
#include <string_view>

#include "files/csv_file.h"
#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/channel_record.h"
#include "memory/start_image.h"

namespace rqm5::fuzz {
namespace {

const CloneImage& FreshImage()
{
    static const CloneImage image = StartUpImage(0);
    return image;
}

/// What was imported into a row must fit into a block, or the next save would lose it.
void RequireEncodable(const ChannelNumbers& numbers, RowKind kind)
{
    ChannelRecord read;
    DecodeBlock(EncodeNumbers(numbers), kind, read);
    // A shift of 0.05 MHz reads back as 0.5 MHz: deliberate.
    read.numbers[kShiftFrequency] = numbers[kShiftFrequency];
    // The receiver knows the 1 kHz step for VFO rows only.
    if (kind == RowKind::Memory && numbers[kStep] == StepName.size() - 1)
        read.numbers[kStep] = numbers[kStep];
    Require(read.numbers == numbers, "imported numbers survive as a block");
}

/// Checks the rows that an import changed and makes them fresh again.
void CheckChangedRows(CloneImage& image, const ImageBytes& before)
{
    const CloneImage& fresh = FreshImage();
    for (std::size_t row = 0; row < image.MemData.size(); ++row) {
        if (before.HoldRow(image, row))
            continue;
        RequireEncodable(image.MemData[row], RowKind::Memory);
        image.MemData[row] = fresh.MemData[row];
        image.MemText[row] = fresh.MemText[row];
    }
    for (const ChannelNumbers& numbers : image.VFOData)
        RequireEncodable(numbers, RowKind::Vfo);
    image.MemEnable = fresh.MemEnable;
    image.VFOData = fresh.VFOData;
    image.VFOText = fresh.VFOText;
}

/// An import shifts each train code by one step once; from then on nothing may change any more.
void RequireStableExport(CloneImage image)
{
    ParseCsv(FormatCsv(image), image);
    const std::string exported = FormatCsv(image);
    ParseCsv(exported, image);
    Require(FormatCsv(image) == exported, "export, import, export is stable");
}

void CheckCsv(std::string_view text)
{
    static CloneImage image = FreshImage();
    static ImageBytes before(image);
    if (ParseCsv(text, image) == 0) {
        Require(before.AreThoseOf(image), "a text without records changes nothing");
        return;
    }
    RequireSoundImage(image);
    if (IsPicked(text, 128))
        RequireStableExport(image);
    CheckChangedRows(image, before);
    before.Take(image);
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckCsv({reinterpret_cast<const char*>(data), size});
    return 0;
}
