// A CSV file from a stranger.

#include <cstdint>
#include <string_view>

#include "files/csv_file.h"
#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/channel_block.h"
#include "image/image_change.h"
#include "image/value_tables.h"
#include "memory/start_image.h"

namespace rqm5::fuzz {
namespace {

const CloneImage& FreshImage()
{
    static const CloneImage image = StartUpImage(0);
    return image;
}

/// What was imported into a row must fit into a block, or the next save would lose it.
void RequireEncodable(const ChannelContents& contents, RowKind kind)
{
    ChannelContents read = DecodeBlock(EncodeChannel(contents), kind).value_or(ChannelContents());
    // A shift of 0.05 MHz reads back as 0.5 MHz, as receivers in the field have it.
    if (read.frequency != 0)
        read.shiftFrequency = contents.shiftFrequency;
    // The receiver knows the 1 kHz step for VFO rows only.
    if (kind == RowKind::Memory && contents.step == StepName.size() - 1)
        read.step = contents.step;
    // A block does not tell that a file brought its carrier.
    read.isCarrierImported = contents.isCarrierImported;
    Require(read == contents, "imported contents survive as a block");
}

/// Checks the rows that an import changed.
void CheckChangedRows(const ImageChange& change)
{
    for (const auto& row : change.MemData)
        RequireEncodable(row.after, RowKind::Memory);
    for (const auto& row : change.VFOData)
        RequireEncodable(row.after, RowKind::Vfo);
    Require(!change.HasBanks() && change.Settings.empty(), "an import brings rows only");
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
    const int taken = ParseCsv(text, image).rows;
    const ImageChange change = Difference(FreshImage(), image);
    Require(taken > 0 || change.IsEmpty(), "a text without records changes nothing");
    if (change.IsEmpty())
        return;
    RequireSoundImage(image);
    CheckChangedRows(change);
    if (IsPicked(text, 128))
        RequireStableExport(image);
    change.Revert(image);
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckCsv({reinterpret_cast<const char*>(data), size});
    return 0;
}
