// A clone file from a stranger: a good one with patched lines.

#include <algorithm>
#include <cstdint>
#include <random>
#include <string_view>

#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "fuzz/clone_patches.h"
#include "fuzz/image_checks.h"
#include "fuzz/require.h"
#include "image/memory_block.h"
#include "memory/start_image.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace rqm5::fuzz {
namespace {

const CloneImage& FreshImage()
{
    static const CloneImage image = StartUpImage(0);
    return image;
}

/// Saving and loading twice costs more than everything else, so not every input goes through it.
void CheckSaved(const CloneImage& image)
{
    const std::string saved = FormatCloneFile(image);
    static CloneImage again = FreshImage();
    const auto error = ParseCloneFile(saved, again);
    // Notes with commas or quotes are written as they are; the loader takes them for fields.
    if (!NotesThatDoNotSurvive(image).empty())
        return;
    Require(!error, "a saved file can be loaded");
    CloneImage expected = image;
    expected.Settings() = AsSent(image.Settings());
    Require(again == expected, "an accepted file, saved and loaded, gives the same image");
    Require(FormatCloneFile(again) == saved, "the second save is the first");
}

void CheckCloneFile(std::string_view input)
{
    static CloneImage image = FreshImage();
    static CloneImage before = image;
    const auto error = ParseCloneFile(PatchedCloneFile(ReadPatches(input)), image);
    if (error) {
        Require(image == before, "a refused file leaves the image as it was");
        Require(error->line >= 0 && error->line <= kCloneLines + 1 && !error->reason.empty(),
                "a refusal says why");
        return;
    }
    RequireSoundImage(image);
    if (IsPicked(input, 64))
        CheckSaved(image);
    // The next file sets everything but this: the region that a wrong settings block falls back to.
    image.Settings().model = 0;
    before = image;
}

/// A block text with mostly hex digits, since nothing else reaches the decoders' values.
std::string RandomBlock(std::minstd_rand& dice)
{
    static constexpr std::string_view kDigits = "00000123456789ABCDEFFFa?";
    std::string block(kBlockChars, '0');
    for (char& c : block)
        c = kDigits[dice() % kDigits.size()];
    return block;
}

/// The lines worth patching lie in few sections; each is as likely as the big ones.
int RandomLine(std::minstd_rand& dice)
{
    static constexpr int kFirst[] = {kStartLine,   kSettingsLine,   kVfoLine,  kMemoryLine, kEnableLine,
                                     kVfoNoteLine, kMemoryNoteLine, kBankLine, kLinkLine,   kEndLine};
    const std::size_t section = dice() % std::size(kFirst);
    const int end = section + 1 < std::size(kFirst) ? kFirst[section + 1] : int{kCloneLines};
    return kFirst[section] + static_cast<int>(dice()) % (end - kFirst[section]);
}

std::size_t Mutate(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed)
{
    std::minstd_rand dice(seed);
    if (size > 0 && dice() % 2 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const auto kind =
        static_cast<ClonePatch::Kind>(dice() % 8 < 6 ? ClonePatch::Fit : dice() % ClonePatch::Kinds);
    const std::string patch = PatchBytes(kind, RandomLine(dice), RandomBlock(dice));
    if (size + patch.size() > maxSize || dice() % 4 == 0)
        size = 0;
    if (patch.size() > maxSize)
        return size;
    std::copy(patch.begin(), patch.end(), data + size);
    return size + patch.size();
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckCloneFile({reinterpret_cast<const char*>(data), size});
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    return rqm5::fuzz::Mutate(data, size, maxSize, seed);
}
