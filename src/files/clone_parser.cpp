#include <algorithm>
#include <array>

#include "files/clone_file.h"
#include "files/clone_lines.h"
#include "files/text_encoding.h"
#include "image/channel_block.h"
#include "image/flag_bits.h"
#include "image/utf8.h"
#include "image/value_tables.h"
#include "memory/bank_layout.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

constexpr int kLastWholeLine = kVfoNoteLine - 1;
constexpr char kRestore[] = MESSAGE("Take an older copy of the file, or read the receiver again.");

using CloneLines = std::array<std::string_view, kCloneLines>;

/// What is wrong, and how to come by a file that is whole.
ParseError Damaged(int line, Message fault)
{
    return {line, Message::List({std::move(fault), kRestore}, " ")};
}

ParseError NotACloneFile()
{
    return {1,
            {MESSAGE("line 1 is not \"%1\", so this is no clone file. Choose a clone file (*.RQ5); a CSV "
                     "file is imported instead."),
             {FileStart}}};
}

ParseError TooShort(int linesRead)
{
    if (linesRead == 0)
        return Damaged(0, MESSAGE("the file is empty."));
    return Damaged(linesRead,
                   {MESSAGE("the file ends at line %1 of %2: it was cut short."), {linesRead, kCloneLines}});
}

ParseError WrongLength(int line, std::size_t characters)
{
    return {line + 1,
            {MESSAGE("line %1 (%2) has %3 characters, %4 are needed. Correct the line in a text editor, or "
                     "take an older copy of the file."),
             {line + 1, CloneLineName(line), std::to_string(characters), std::to_string(kBlockChars)}}};
}

/// Blames the first comma among the notes when there is one: it shifts every line that follows.
ParseError WrongEnd(const CloneLineReader& reader)
{
    const int splitLine = reader.FirstSplitLine();
    if (splitLine == 0 || splitLine > kBankLine)
        return Damaged(kCloneLines,
                       {MESSAGE("line %1 (%2) is not \"%3\": lines were added or the file is damaged."),
                        {kEndLine + 1, CloneLineName(kEndLine), FileEnd}});
    return {splitLine,
            {MESSAGE("line %1 (%2) holds a comma, which ends a note and shifts all that follows. File > "
                     "Repair, or \"rq-m5 repair\", replaces it."),
             {splitLine, CloneLineName(splitLine - 1)}}};
}

/// Splits the text and makes every check that can refuse it.
std::optional<ParseError> SplitLines(std::string_view text, CloneLines& lines)
{
    CloneLineReader reader(text);
    for (int i = 0; i < kCloneLines; ++i) {
        const auto line = i <= kLastWholeLine ? reader.NextLine() : reader.NextField();
        if (!line)
            return TooShort(reader.LineNumber());
        lines[static_cast<std::size_t>(i)] = *line;
        if (i == kStartLine && *line != FileStart)
            return NotACloneFile();
        if (i <= kLastWholeLine && CharacterCount(*line) != kBlockChars)
            return WrongLength(i, CharacterCount(*line));
    }
    if (lines[kEndLine] != FileEnd)
        return WrongEnd(reader);
    return std::nullopt;
}

/// A line as a block. A character that no block can hold counts as one unreadable digit, so that those
/// behind it keep their places.
MemoryBlock BlockOfLine(std::string_view line)
{
    const auto isPlain = [](char c) { return c >= 0x20 && c < 0x7F; };
    if (std::all_of(line.begin(), line.end(), isPlain))
        return MemoryBlock(line);
    std::string text;
    for (const char c : line) {
        const auto code = static_cast<unsigned char>(c);
        const bool continuesCharacter = (code & 0xC0) == 0x80;
        if (!continuesCharacter)
            text += isPlain(c) ? c : '?';
    }
    return MemoryBlock(text);
}

/// `count` lines from `first` on.
std::vector<MemoryBlock> BlocksOfLines(const CloneLines& lines, int first, int count)
{
    std::vector<MemoryBlock> blocks;
    for (int line = first; line < first + count; ++line)
        blocks.push_back(BlockOfLine(lines[static_cast<std::size_t>(line)]));
    return blocks;
}

/// The rows of a table: their blocks, and their notes further behind.
void DecodeRows(const CloneLines& lines, RowKind kind, int count, int firstLine, int firstNote,
                CloneImage& image)
{
    for (int row = 0; row < count; ++row) {
        Channel& channel = image.At({kind, row});
        const int line = firstLine + row;
        const int note = firstNote + row;
        const MemoryBlock block = BlockOfLine(lines[static_cast<std::size_t>(line)]);
        static_cast<ChannelContents&>(channel) = DecodeBlock(block, kind).value_or(ChannelContents{});
        channel.note = lines[static_cast<std::size_t>(note)];
    }
}

void DecodeLines(const CloneLines& lines, CloneImage& image)
{
    const auto settings = BlocksOfLines(lines, kSettingsLine, kVfoLine - kSettingsLine);
    DecodeSettings(image, {settings[0], settings[1]});
    DecodeRows(lines, RowKind::Vfo, kVfoRows, kVfoLine, kVfoNoteLine, image);
    DecodeRows(lines, RowKind::Memory, kMemoryRows, kMemoryLine, kMemoryNoteLine, image);
    DecodeExtraData(image, BlocksOfLines(lines, kEnableLine, kVfoNoteLine - kEnableLine));
    DecodeBankData(image, BlocksOfLines(lines, kBankLine, kLinkLine - kBankLine));
    DecodeBankFlagData(image, BlocksOfLines(lines, kLinkLine, 1).front());
}

}  // namespace

std::optional<ParseError> ParseCloneFile(std::string_view text, CloneImage& image)
{
    const std::string decoded = DecodeFileText(text);
    CloneLines lines;
    if (auto error = SplitLines(decoded, lines))
        return error;
    // All checks are done; what follows takes every file. A damaged settings block is repaired for the
    // model selected so far.
    DecodeLines(lines, image);
    return std::nullopt;
}

}  // namespace rqm5
