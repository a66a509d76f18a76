#pragma once

#include <array>
#include <string>
#include <vector>

#include "image/memory_block.h"
#include "image/receiver_settings.h"
#include "image/value_tables.h"

namespace rqm5 {

inline constexpr int kMemoryRows = 1240;  ///< rows kept; a file holds all of them
inline constexpr int kRadioRows = 1210;   ///< rows that exist in the receiver
inline constexpr int kBankRows = 1000;    ///< rows that the banks share
inline constexpr int kProgramScanFirst = 1000;
inline constexpr int kSearchPassFirst = 1100;
inline constexpr int kPriorityFirst = 1200;
inline constexpr int kBanks = 50;
inline constexpr int kUnassigned = 50;  ///< the BankSize entry that counts the channels in no bank
inline constexpr int kLinkFlags = 56;

/// Columns of a channel row, in the order of its fields. Numbers have columns 0 to 8, texts 0 to 9.
enum Column : std::size_t {
    kFrequency,       ///< MHz
    kMode,            ///< 0 FM, 1 AM, 2 WFM
    kStep,            ///< index into StepName
    kOption,          ///< option * 16, plus 8 when the channel is skipped
    kSecret,          ///< 0 to 16
    kCarrier,         ///< 0 to 28
    kTone,            ///< index into ToneName
    kShift,           ///< 0 off, 16 plus, 32 minus
    kShiftFrequency,  ///< MHz
    kNote,            ///< text only; the receiver has no notes
    kTextColumns,
    kNumberColumns = kNote
};

using ChannelNumbers = std::array<double, kNumberColumns>;
using ChannelTexts = std::array<std::string, kTextColumns>;

/// The program's copy of the receiver's memory: plain data. There is one per program, owned by the main
/// window or by the command being run.
///
/// The receiver is addressed in blocks of 16 bytes; each range is kept in the form its editor needs:
///
///     0040        SetData1, decoded into Settings
///     0050        SetData2, decoded into Settings
///     00C0-0120   BankData, decoded into BankSize and BankSizeText
///     01C0-0250   ExtraData, decoded into MemEnable
///     0260        BankFlagData, decoded into BankLink
///     0280-02E0   PassData
///     0560-09F0   region presets, not part of the image (see InitPriset)
///     0C00-0CD0   VFOData and VFOText
///     1000-5B90   MemData, MemText
struct CloneImage
{
    std::vector<ChannelNumbers> MemData = std::vector<ChannelNumbers>(kMemoryRows);
    std::vector<ChannelTexts> MemText = std::vector<ChannelTexts>(kMemoryRows);
    std::array<bool, kMemoryRows> MemEnable{};

    std::array<ChannelNumbers, kVfoRows> VFOData{};
    std::array<ChannelTexts, kVfoRows> VFOText{};

    std::array<int, kBanks + 1> BankSize{};
    std::array<std::string, kBanks + 1> BankSizeText{};
    std::array<bool, kLinkFlags> BankLink{};

    ReceiverSettings Settings;

    MemoryBlock SetData1;
    MemoryBlock SetData2;
    std::array<MemoryBlock, 7> BankData{};
    std::array<MemoryBlock, 10> ExtraData{};  ///< blocks 28 to 37 (hex 1C to 25)
    MemoryBlock BankFlagData;
    std::array<MemoryBlock, 7> PassData{};

    bool DataChanged = false;  ///< there are edits that no file holds yet

    int ModelNo() const { return Settings.ModelNo(); }
};

/// Sets a bank size and its text copy.
void SetBankSize(CloneImage& image, int bank, int size);

/// Empties a memory row: numbers 0, all ten texts empty, not enabled.
void ClearMemoryRow(CloneImage& image, int row);

/// True when the row holds a channel: a frequency and its text.
bool HasChannel(const CloneImage& image, int row);

/// True when the skip bit of the row's option value is set (its low four bits are not 0).
bool IsSkipped(const CloneImage& image, int row);

/// How many Search Pass rows are enabled, 0 to 100.
int SearchPassCount(const CloneImage& image);

/// The differences that a user would call one: rows, notes, flags, settings, banks and links, not the
/// block texts that are rebuilt from them.
bool SameContents(const CloneImage& a, const CloneImage& b);

}  // namespace rqm5
