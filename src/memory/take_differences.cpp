#include "memory/take_differences.h"

#include <algorithm>

#include "memory/bank_layout.h"
#include "memory/held_channel.h"

namespace rqm5 {
namespace {

Channel TakenRow(const Channel& mine, const Channel& other, RowKind kind, bool hasNotes)
{
    Channel taken = other;
    const Channel held = HeldChannel(mine, kind);
    if (mine.HasChannel() && held.step == other.step)
        taken.step = mine.step;
    if (mine.HasChannel() && held.shiftFrequency == other.shiftFrequency)
        taken.shiftFrequency = mine.shiftFrequency;
    if (!hasNotes)
        taken.note = other.HasChannel() ? mine.note : std::string();
    return taken;
}

void TakeItem(CloneImage& image, const CloneImage& other, const ComparedParts& parts, ItemId item)
{
    switch (item.kind) {
        case ItemKind::MemoryRow:
        case ItemKind::VfoRow: {
            const RowId row{item.kind == ItemKind::VfoRow ? RowKind::Vfo : RowKind::Memory, item.index};
            image.At(row) = TakenRow(image.At(row), other.At(row), row.kind, parts.notes);
            break;
        }
        case ItemKind::BankSize:
            image.SetBankSize(item.index, other.BankSize(item.index));
            break;
        case ItemKind::BankLink:
            image.SetBankLink(item.index, other.BankLink(item.index));
            break;
        case ItemKind::Setting: {
            const SettingField& field = kSettingFields.at(static_cast<std::size_t>(item.index));
            field.Set(image.Settings(), field.Get(other.Settings()));
            break;
        }
    }
}

/// The count of Search Pass channels, which no control shows, comes with the settings when all of them are
/// the other side's.
void TakeHiddenCount(CloneImage& image, const CloneImage& other)
{
    ReceiverSettings settings = image.Settings();
    settings.passCount = other.Settings().passCount;
    if (settings == other.Settings())
        image.Settings() = settings;
}

}  // namespace

bool TakeDifferences(CloneImage& image, const CloneImage& other, const ComparedParts& parts,
                     const std::vector<ItemId>& items)
{
    CloneImage taken = image;
    for (const ItemId item : items)
        TakeItem(taken, other, parts, item);
    const auto has = [&items](ItemKind kind) {
        return std::ranges::any_of(items, [kind](ItemId item) { return item.kind == kind; });
    };
    if (has(ItemKind::Setting))
        TakeHiddenCount(taken, other);
    if (has(ItemKind::BankSize)) {
        const int total = TotalBankSize(taken);
        if (total > kBankRows)
            return false;
        taken.SetBankSize(kUnassigned, kBankRows - total);
    }
    image = std::move(taken);
    return true;
}

}  // namespace rqm5
