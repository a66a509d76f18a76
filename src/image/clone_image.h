#pragma once

#include <array>
#include <string>
#include <vector>

#include "image/channel.h"
#include "image/receiver_model.h"
#include "image/receiver_settings.h"

namespace rqm5 {

/// A row of one of the two tables: memory row 0 to 1239 or VFO row 0 to 13.
struct RowId
{
    RowKind kind = RowKind::Memory;
    int row = 0;

    bool IsMemory() const { return kind == RowKind::Memory; }

    /// False for a row number that no table has.
    bool Exists() const { return row >= 0 && row < (IsMemory() ? kMemoryRows : kVfoRows); }

    friend bool operator==(const RowId&, const RowId&) = default;
};

/// The program's copy of the receiver's memory: a value. Two are equal when they hold the same.
///
/// The receiver is addressed in blocks of 16 bytes, which are computed from it (see link/memory_map.h).
/// Rows and entries outside their range are programming errors.
class CloneImage
{
  public:
    /// Memory row 0 to 1239 and VFO row 0 to 13, notes and flags included.
    const Channel& MemData(int row) const { return memory_.at(Index(row)); }
    Channel& MemData(int row) { return memory_.at(Index(row)); }
    const Channel& VFOData(int row) const { return vfo_.at(Index(row)); }
    Channel& VFOData(int row) { return vfo_.at(Index(row)); }
    const Channel& At(RowId id) const { return id.IsMemory() ? MemData(id.row) : VFOData(id.row); }
    Channel& At(RowId id) { return id.IsMemory() ? MemData(id.row) : VFOData(id.row); }

    /// The text of a cell as it is kept, whatever the model region shows in its place.
    std::string MemText(int row, Column column) const;
    std::string VFOText(int row, Column column) const;

    bool MemEnable(int row) const { return MemData(row).enabled; }

    /// How many channels banks 0 to 49 hold; entry 50 counts those in no bank.
    int BankSize(int bank) const { return bankSize_.at(Index(bank)); }
    void SetBankSize(int bank, int size) { bankSize_.at(Index(bank)) = size; }
    std::string BankSizeText(int bank) const { return std::to_string(BankSize(bank)); }

    /// Flags 0 to 49 link banks; 50 to 55 are carried along.
    bool BankLink(int flag) const { return bankLink_.at(Index(flag)); }
    void SetBankLink(int flag, bool isLinked) { bankLink_.at(Index(flag)) = isLinked; }

    const ReceiverSettings& Settings() const { return settings_; }
    ReceiverSettings& Settings() { return settings_; }

    /// The model region 0 to 3.
    int ModelNo() const { return settings_.ModelNo(); }

    friend bool operator==(const CloneImage&, const CloneImage&) = default;

  private:
    static std::size_t Index(int index) { return static_cast<std::size_t>(index); }

    std::vector<Channel> memory_ = std::vector<Channel>(kMemoryRows);
    std::array<Channel, kVfoRows> vfo_;
    std::array<int, kBankSizes> bankSize_{};
    std::array<bool, kLinkFlags> bankLink_{};
    ReceiverSettings settings_;
};

/// Empties a memory row, note and flag included.
void ClearMemoryRow(CloneImage& image, int row);

/// How many Search Pass rows are enabled, 0 to 100.
int SearchPassCount(const CloneImage& image);

}  // namespace rqm5
