#include "fuzz/clone_patches.h"

#include <algorithm>

#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "image/channel_block.h"
#include "memory/start_image.h"

namespace rqm5::fuzz {
namespace {

constexpr std::size_t kHeader = 4;

CloneImage GoodImage()
{
    CloneImage image = StartUpImage(0);
    const MemoryBlock channel("01455000000000000000001000600000");
    for (const int row : {0, 999, kProgramScan.rows.first, kSearchPass.rows.first, kPriority.rows.first}) {
        DecodeMemoryBlock(image, channel, row);
        image.MemData(row).enabled = true;
        image.MemData(row).note = "note";
    }
    return image;
}

/// Where each line of the good file begins, and where the file ends.
const std::vector<std::size_t>& LineStarts()
{
    static const std::vector<std::size_t> starts = [] {
        const std::string& text = GoodCloneFile();
        std::vector<std::size_t> result = {0};
        for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', end + 1))
            result.push_back(end + 1);
        return result;
    }();
    return starts;
}

void AppendFitted(std::string& file, std::string_view text)
{
    const std::string_view taken = text.substr(0, kBlockChars);
    file += taken;
    file.append(kBlockChars - taken.size(), '0');
    file += "\r\n";
}

/// Appends what stands in place of the patched line.
void AppendPatched(std::string& file, const ClonePatch& patch, std::string_view original)
{
    switch (patch.kind) {
        case ClonePatch::Fit:
            AppendFitted(file, patch.text);
            break;
        case ClonePatch::Insert:
            file += patch.text;
            file += "\r\n";
            file += original;
            break;
        case ClonePatch::Verbatim:
            file += patch.text;
            file += "\r\n";
            break;
        case ClonePatch::CutShort:
            file += original.substr(0, patch.text.size());
            break;
        default:
            break;
    }
}

}  // namespace

std::vector<ClonePatch> ReadPatches(std::string_view input)
{
    std::vector<ClonePatch> patches;
    while (input.size() >= kHeader) {
        const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(input[i]); };
        const auto kind = static_cast<ClonePatch::Kind>(byte(0) % ClonePatch::Kinds);
        const int line = (byte(1) * 256 + byte(2)) % kCloneLines;
        patches.push_back({kind, line, input.substr(kHeader, byte(3))});
        input.remove_prefix(std::min<std::size_t>(input.size(), kHeader + byte(3)));
    }
    return patches;
}

std::string PatchBytes(ClonePatch::Kind kind, int line, std::string_view text)
{
    std::string bytes = {static_cast<char>(kind), static_cast<char>(line / 256),
                         static_cast<char>(line % 256), static_cast<char>(text.size())};
    return bytes += text;
}

const std::string& GoodCloneFile()
{
    static const std::string text = FormatCloneFile(GoodImage());
    return text;
}

const std::string& PatchedCloneFile(std::vector<ClonePatch> patches)
{
    static std::string file;
    const std::string_view good = GoodCloneFile();
    const std::vector<std::size_t>& starts = LineStarts();
    std::stable_sort(patches.begin(), patches.end(),
                     [](const ClonePatch& a, const ClonePatch& b) { return a.line < b.line; });
    file.clear();
    std::size_t done = 0;
    for (const ClonePatch& patch : patches) {
        const auto line = static_cast<std::size_t>(patch.line);
        if (starts[line] < done)
            continue;
        file += good.substr(done, starts[line] - done);
        done = starts[line + 1];
        AppendPatched(file, patch, good.substr(starts[line], done - starts[line]));
        if (patch.kind == ClonePatch::CutShort)
            return file;
    }
    file += good.substr(done);
    return file;
}

}  // namespace rqm5::fuzz
