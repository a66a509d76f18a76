#pragma once

#include <compare>
#include <vector>

#include "image/clone_image.h"
#include "language/message.h"
#include "memory/row_fields.h"

namespace rqm5 {

/// What of an image the other side of a comparison holds.
struct ComparedParts
{
    RowRange rows{0, kMemoryRows};
    bool settings = true;  ///< and the VFO bands
    bool banks = true;     ///< sizes and links
    bool notes = true;     ///< the receiver has none
};

/// What the receiver holds.
inline constexpr ComparedParts kReceiverParts = {.rows = {0, kRadioRows}, .notes = false};

enum class ItemKind { MemoryRow, VfoRow, BankSize, BankLink, Setting };

/// Something that can differ: a row, a bank's size, a link or a setting, by its number.
struct ItemId
{
    ItemKind kind = ItemKind::MemoryRow;
    int index = 0;

    bool IsRow() const { return kind == ItemKind::MemoryRow || kind == ItemKind::VfoRow; }

    friend auto operator<=>(const ItemId&, const ItemId&) = default;
};

/// Groups that have no entry in the bank selector. Banks, Program Scan, Search Pass and Priority go by
/// theirs.
enum ComparedGroup {
    kInNoBank = kSelectPriority + 1,
    kNotInReceiver,
    kVfoBands,
    kBankLayout,
    kSettingsGroup,
    kComparedGroups
};

/// "Bank 3", "Program Scan", "In no bank", "VFO bands", "Bank layout", "Settings".
Message ComparedGroupName(int group);

/// How something differs. What is here is what is compared; there is what it is compared with.
struct DifferentItem
{
    ItemId id;
    int group;
    Message name;  ///< "Bank 0, channel 12", "Lamp"
    Message here;  ///< in short
    Message there;
    FieldPairs fields = {};  ///< of a row: here and there; empty for anything else
    bool isHere = true;      ///< a memory row holds a channel
    bool isThere = true;
    Message movedTo = {};    ///< where there has the channel that is here, in words
    Message movedFrom = {};  ///< where here has the channel that is there, in words

    /// Nothing is new in the row, on neither side: channels have only changed their places.
    bool IsMoved() const;
};

/// What differs between two images, by groups and places.
using Comparison = std::vector<DifferentItem>;

/// Compares what two images would be in the receiver or a file: how cells are worded does not count, nor what
/// neither of them holds exactly, such as an offset whose fraction begins with zeros. A channel counts as
/// moved when each side has it in one row only, and in different ones. Rows are grouped by the banks of the
/// first image.
Comparison Compare(const CloneImage& here, const CloneImage& there, const ComparedParts& parts = {});

/// Which of the differences are shown: all, those of one kind, or those of a field.
enum DifferenceFilter { kAllDifferences, kOnlyHere, kOnlyThere, kMoved, kChangedInPlace, kFieldDiffers };

/// \param filter  a DifferenceFilter; kFieldDiffers + n for RowField n
bool IsShown(const DifferentItem& item, int filter);

/// How many differences there are, by their kinds.
struct DifferenceCounts
{
    int rows = 0;
    int vfoBands = 0;
    int bankLayout = 0;  ///< sizes and links
    int settings = 0;
};

DifferenceCounts CountDifferences(const Comparison& comparison);

}  // namespace rqm5
