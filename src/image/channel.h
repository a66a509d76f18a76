#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace rqm5 {

/// Columns of a channel row, in the order of its fields.
enum Column {
    kFrequency,
    kMode,
    kStep,
    kOption,
    kSecret,
    kCarrier,
    kTone,
    kShift,
    kShiftFrequency,
    kNote,
    kTextColumns
};

/// The columns that a block of the receiver holds; it has no notes.
inline constexpr int kBlockColumns = kNote;

inline constexpr std::array<Column, kTextColumns> kColumns = {
    kFrequency, kMode, kStep, kOption, kSecret, kCarrier, kTone, kShift, kShiftFrequency, kNote};

/// What columns are called in sentences: "Frequency", "Secret code", ...
extern const std::array<const char*, kTextColumns> kColumnNames;

enum class RowKind { Memory, Vfo };

/// What the receiver keeps of a channel or VFO band, and how its cells are worded.
struct ChannelContents
{
    std::int64_t frequency = 0;       ///< hertz, below 10 GHz; 0 for an empty row
    std::int32_t shiftFrequency = 0;  ///< hertz, below 100 MHz
    std::uint8_t mode = 0;            ///< 0 FM, 1 AM, 2 WFM
    std::uint8_t step = 0;            ///< index into StepName
    std::uint8_t option = 0;          ///< option code * 16, plus 8 when scanning skips the channel
    std::uint8_t secret = 0;          ///< 0 to 16
    std::uint8_t carrier = 0;         ///< 0 to 28
    std::uint8_t tone = 0;            ///< index into ToneName
    std::uint8_t shift = 0;           ///< 0 off, 16 plus, 32 minus

    /// A memory row says "Scrt" when it was decoded and "SCRT" when it was edited.
    bool isSecretEdited = false;

    /// A carrier that came from a CSV file says its code counted from 200Hz, any other from 300Hz.
    bool isCarrierImported = false;

    /// Bit 1 << column: the cell shows nothing, because no value ever came in. An editor that leaves out
    /// what the model region lacks makes rows that are blank in some columns only.
    std::uint16_t blank = (1U << kBlockColumns) - 1;

    bool IsBlank(Column column) const { return (blank >> column & 1U) != 0; }

    /// True when the skip bit is set: the low four bits of the option are not 0.
    bool IsSkipped() const { return option % 16 != 0; }

    friend bool operator==(const ChannelContents&, const ChannelContents&) = default;
};

/// What only files keep of a row.
struct FileColumns
{
    std::string note;  ///< UTF-8

    friend bool operator==(const FileColumns&, const FileColumns&) = default;
};

/// One row of the memory or the VFO table. VFO rows have no enabled flag.
struct Channel : ChannelContents, FileColumns
{
    bool enabled = false;

    bool HasChannel() const { return frequency != 0; }

    friend bool operator==(const Channel&, const Channel&) = default;
};

/// A field of one byte, by its column.
struct CodeField
{
    Column column;
    std::uint8_t ChannelContents::*value;
};

/// The fields from mode to shift direction, in the order of their bytes.
inline constexpr std::array<CodeField, 7> kCodeFields = {{
    {kMode, &ChannelContents::mode},
    {kStep, &ChannelContents::step},
    {kOption, &ChannelContents::option},
    {kSecret, &ChannelContents::secret},
    {kCarrier, &ChannelContents::carrier},
    {kTone, &ChannelContents::tone},
    {kShift, &ChannelContents::shift},
}};

/// The region of CellText for the texts as they are kept, whatever a model region shows in their place.
inline constexpr int kNoRegion = -1;

/// The text of a cell, but for the note.
std::string CellText(const ChannelContents& channel, RowKind kind, int region, Column column);

/// The text of a cell.
///
/// What a model region 0 to 3 lacks gives way: memory rows show the skip mark "*" in the column of the
/// secret code (regions 1 to 3) and "-" for the carrier (regions 2 and 3), VFO rows "-" for both but for the
/// secret code in region 1 and the carrier in region 0.
std::string CellText(const Channel& channel, RowKind kind, int region, Column column);

}  // namespace rqm5
