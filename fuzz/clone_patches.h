#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace rqm5::fuzz {

/// A change to one line of a valid clone file. Nearly every file of random bytes is refused at its first
/// line; a few patched lines of a good one reach everything behind the checks, and stay small.
struct ClonePatch
{
    enum Kind : std::uint8_t { Fit, Verbatim, Insert, Delete, CutShort, Kinds };

    Kind kind = Fit;
    int line = 0;  ///< counted from 0
    std::string_view text;
};

/// An input as its patches: kind, line (two bytes), length of the text, the text, and so on. Any bytes
/// are patches.
std::vector<ClonePatch> ReadPatches(std::string_view input);

/// The inverse of ReadPatches for one patch.
std::string PatchBytes(ClonePatch::Kind kind, int line, std::string_view text);

/// The valid clone file that is patched, with a channel in every group of rows.
const std::string& GoodCloneFile();

/// The good clone file with the patches: the text of the line becomes the patch's text (Fit: cut or filled
/// up with "0" to 32 characters), a line is added before it or taken away, or the file ends within it.
const std::string& PatchedCloneFile(std::vector<ClonePatch> patches);

}  // namespace rqm5::fuzz
