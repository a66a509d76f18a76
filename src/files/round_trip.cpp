#include "files/round_trip.h"

#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "files/safe_notes.h"
#include "image/image_change.h"
#include "image/memory_block.h"
#include "image/value_tables.h"
#include "memory/change_words.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr int kStepByte = 6;
constexpr std::size_t kOffsetPlace = 24;
constexpr std::size_t kOffsetDigits = 8;

/// Takes from a row what no file holds: how its cells are worded, and the codes of an empty row.
void TakeWording(const ChannelContents& from, ChannelContents& to)
{
    if (from.frequency == 0)
        to = from;
    to.isSecretEdited = from.isSecretEdited;
    to.isCarrierImported = from.isCarrierImported;
    to.blank = from.blank;
}

/// The offset and the step that a block of a file says.
void TakeStated(std::string_view block, RowKind kind, ChannelContents& row)
{
    constexpr int kOneKilohertz = 19;
    if (!row.IsBlank(kStep) && kind == RowKind::Memory && MemoryBlock(block).Byte(kStepByte) == kOneKilohertz)
        row.step = kOneKilohertz;
    const std::string_view digits = block.substr(kOffsetPlace, kOffsetDigits);
    if (digits.find_first_not_of("0123456789") != std::string_view::npos)
        return;
    row.shiftFrequency = 0;
    for (const char digit : digits)
        row.shiftFrequency = row.shiftFrequency * 10 + (digit - '0');
}

}  // namespace

CloneImage ReadBack(const CloneImage& image)
{
    CloneImage readBack;
    ParseCloneFile(FormatCloneFile(WithSafeNotes(image)), readBack);
    return readBack;
}

std::vector<Message> LostNotes(const CloneImage& image, const CloneImage& readBack)
{
    const ImageChange change = Difference(image, readBack);
    std::vector<Message> names;
    for (const auto& note : change.VFONotes)
        names.push_back(VfoRowName(note.index));
    for (const auto& note : change.MemNotes)
        names.push_back(RowName(image, note.index));
    return names;
}

std::vector<Message> ChangedValues(const CloneImage& image, const CloneImage& readBack)
{
    CloneImage after = readBack;
    for (int row = 0; row < kVfoRows; ++row)
        TakeWording(image.VFOData(row), after.VFOData(row));
    for (int row = 0; row < kMemoryRows; ++row)
        TakeWording(image.MemData(row), after.MemData(row));
    ImageChange change = Difference(image, after);
    change.VFONotes.clear();
    change.MemNotes.clear();
    return DescribeChange(image, change);
}

std::vector<Message> ValuesReadOtherwise(std::string_view text, const CloneImage& loaded)
{
    CloneImage stated = loaded;
    CloneLineReader reader(text);
    for (int number = kStartLine; number < kEnableLine; ++number) {
        const auto line = reader.NextLine();
        if (!line || line->size() != kBlockChars || number < kVfoLine)
            continue;
        const RowId id = number < kMemoryLine ? RowId{RowKind::Vfo, number - kVfoLine}
                                              : RowId{RowKind::Memory, number - kMemoryLine};
        if (stated.At(id).HasChannel())
            TakeStated(*line, id.kind, stated.At(id));
    }
    return ChangedValues(stated, loaded);
}

}  // namespace rqm5
