// A CSV file from a stranger.

#include <cstdint>
#include <string_view>

#include "files/csv_file.h"
#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/image_change.h"
#include "memory/start_image.h"

namespace rqm5::fuzz {
namespace {

const CloneImage& FreshImage()
{
    static const CloneImage image = StartUpImage(0);
    return image;
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
