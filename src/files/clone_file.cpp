#include "files/clone_file.h"

#include <algorithm>

#include "files/safe_notes.h"
#include "image/channel_block.h"
#include "image/flag_bits.h"
#include "image/value_tables.h"
#include "memory/bank_layout.h"
#include "memory/row_names.h"
#include "settings/settings_codec.h"

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

/// The rows of both tables, in the order of the file.
template <class Use>
void ForEachRow(const CloneImage& image, Use use)
{
    for (int row = 0; row < kVfoRows; ++row)
        use(RowId{RowKind::Vfo, row}, image.VFOData(row));
    for (int row = 0; row < kMemoryRows; ++row)
        use(RowId{RowKind::Memory, row}, image.MemData(row));
}

}  // namespace

std::string FormatCloneFile(const CloneImage& image)
{
    std::string text;
    text.reserve(kUsualSize);
    AddLine(text, FileStart);
    AddLine(text, SetData1(image).Text());
    AddLine(text, SetData2(image).Text());
    ForEachRow(image, [&](RowId, const Channel& row) { AddLine(text, EncodeChannel(row).Text()); });
    for (const MemoryBlock& block : ExtraData(image))
        AddLine(text, block.Text());
    ForEachRow(image, [&](RowId, const Channel& row) { AddLine(text, OneLine(row.note)); });
    for (const MemoryBlock& block : BankData(image))
        AddLine(text, block.Text());
    AddLine(text, BankFlagData(image).Text());
    AddLine(text, FileEnd);
    return text;
}

std::vector<Message> NotesThatDoNotSurvive(const CloneImage& image)
{
    std::vector<Message> names;
    ForEachRow(image, [&](RowId id, const Channel& row) {
        if (!NoteSurvives(row.note))
            names.push_back(RowName(image, id));
    });
    return names;
}

}  // namespace rqm5
