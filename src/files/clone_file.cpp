#include "files/clone_file.h"

#include <algorithm>

#include "files/clone_lines.h"
#include "files/text_encoding.h"
#include "image/channel_record.h"
#include "memory/rebuild_blocks.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr std::size_t kUsualSize = 80 * 1024;

void AddLine(std::string& text, std::string_view line)
{
    text += line;
    text += "\r\n";
}

/// A line break inside a note would add a line and make the whole file unreadable.
std::string OneLine(std::string note)
{
    std::replace_if(
        note.begin(), note.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return note;
}

void AddNotes(std::string& text, const CloneImage& image)
{
    for (const ChannelTexts& texts : image.VFOText)
        AddLine(text, OneLine(texts[kNote]));
    for (const ChannelTexts& texts : image.MemText)
        AddLine(text, OneLine(texts[kNote]));
}

bool Survives(const std::string& note)
{
    const std::string text = note + "\r\n";
    return CloneLineReader(text).NextField() == note && IsValidUtf8(note);
}

}  // namespace

std::string FormatCloneFile(CloneImage& image)
{
    RebuildBlocks(image);

    std::string text;
    text.reserve(kUsualSize);
    AddLine(text, FileStart);
    AddLine(text, image.SetData1.Text());
    AddLine(text, image.SetData2.Text());
    for (int row = 0; row < kVfoRows; ++row)
        AddLine(text, EncodeVfoRow(image, row).Text());
    for (int row = 0; row < kMemoryRows; ++row)
        AddLine(text, EncodeMemoryRow(image, row).Text());
    for (const MemoryBlock& block : image.ExtraData)
        AddLine(text, block.Text());
    AddNotes(text, image);
    for (const MemoryBlock& block : image.BankData)
        AddLine(text, block.Text());
    AddLine(text, image.BankFlagData.Text());
    AddLine(text, FileEnd);
    return text;
}

std::vector<std::string> NotesThatDoNotSurvive(const CloneImage& image)
{
    std::vector<std::string> names;
    for (int row = 0; row < kVfoRows; ++row)
        if (!Survives(image.VFOText[static_cast<std::size_t>(row)][kNote]))
            names.push_back(VfoRowName(row));
    for (int row = 0; row < kMemoryRows; ++row)
        if (!Survives(image.MemText[static_cast<std::size_t>(row)][kNote]))
            names.push_back(RowName(image, row));
    return names;
}

}  // namespace rqm5
