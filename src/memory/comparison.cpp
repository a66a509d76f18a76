#include "memory/comparison.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "image/channel_block.h"
#include "image/display_text.h"
#include "memory/bank_layout.h"
#include "memory/held_channel.h"
#include "memory/row_names.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

/// Stands for none, too: neither can be told as moved.
constexpr int kManyRows = -1;

/// In which row an image holds a channel; kManyRows when in several.
using Places = std::map<std::string, int>;

std::string KeyOf(const Channel& held, bool hasNotes)
{
    return std::string(EncodeChannel(held).Text()) + (hasNotes ? held.note : std::string());
}

int PlaceIn(const Places& places, const std::string& key)
{
    const auto found = places.find(key);
    return found == places.end() ? kManyRows : found->second;
}

/// Where the other side has a channel, when each of them has it once.
int PlaceElsewhere(const std::string& key, const Places& own, const Places& other)
{
    return PlaceIn(own, key) == kManyRows ? kManyRows : PlaceIn(other, key);
}

/// "145.500000 FM, Tower (off)"
Message Summary(const Channel& channel, RowKind kind)
{
    if (!channel.HasChannel())
        return MESSAGE("(empty)");
    const auto cell = [&](Column column) { return CellText(channel, kind, kNoRegion, column); };
    std::string text = cell(kFrequency) + " " + cell(kMode);
    if (!channel.note.empty())
        text += ", " + VisibleText(channel.note);
    return kind == RowKind::Vfo || channel.enabled ? Message(text) : Message(MESSAGE("%1 (off)"), {text});
}

Message PlaceName(const CloneImage& image, int row)
{
    const Message place = PlaceOfRow(image, row);
    return place.empty() ? Message(MESSAGE("row %1"), {row}) : place;
}

int GroupOfMemoryRow(const CloneImage& image, int row)
{
    if (row >= kRadioRows)
        return kNotInReceiver;
    if (const RowGroup* group = GroupOfRow(row))
        return group->selector;
    const int bank = SelectorOfRow(image, row);
    return bank == kSelectAll ? kInNoBank : bank;
}

class Comparer
{
  public:
    Comparer(const CloneImage& here, const CloneImage& there, const ComparedParts& parts)
        : here_(here),
          there_(there),
          parts_(parts),
          placesHere_(PlacesOf(here)),
          placesThere_(PlacesOf(there))
    {
    }

    Comparison Run()
    {
        for (int row = parts_.rows.first; row <= parts_.rows.Last(); ++row)
            AddMemoryRow(row);
        if (parts_.settings)
            for (int row = 0; row < kVfoRows; ++row)
                AddVfoRow(row);
        if (parts_.banks)
            AddBanks();
        if (parts_.settings)
            AddSettings();
        std::ranges::stable_sort(items_, {}, &DifferentItem::group);
        return std::move(items_);
    }

  private:
    Channel HeldRow(const CloneImage& image, RowId id) const
    {
        Channel held = HeldChannel(image.At(id), id.kind);
        if (!parts_.notes)
            held.note.clear();
        return held;
    }

    Places PlacesOf(const CloneImage& image) const
    {
        Places places;
        for (int row = parts_.rows.first; row <= parts_.rows.Last(); ++row) {
            if (!image.MemData(row).HasChannel())
                continue;
            const auto [place, isFirst] =
                places.try_emplace(KeyOf(HeldRow(image, {RowKind::Memory, row}), parts_.notes), row);
            if (!isFirst)
                place->second = kManyRows;
        }
        return places;
    }

    /// The fields of a row, and whether any of them differs.
    bool CompareRow(RowId id, DifferentItem& item) const
    {
        const Channel& mine = here_.At(id);
        const Channel& other = there_.At(id);
        if (mine == other)
            return false;
        Channel there = HeldRow(there_, id);
        // Nobody sees the flag of an empty row, and a read does not bring it.
        if (!mine.HasChannel() && !other.HasChannel() && !parts_.notes)
            there.enabled = mine.enabled;
        item.fields = CompareFields(HeldRow(here_, id), there, id.kind);
        item.isHere = mine.HasChannel();
        item.isThere = other.HasChannel();
        item.here = Summary(mine, id.kind);
        item.there = Summary(other, id.kind);
        // The open image holds these exactly, whatever comes back of them.
        for (const Column column : {kStep, kShiftFrequency})
            if (item.isHere) {
                FieldPair& pair = item.fields[column];
                pair.first = CellText(mine, id.kind, kNoRegion, column);
                if (!pair.differs)
                    pair.second = pair.first;
            }
        return std::ranges::any_of(item.fields, &FieldPair::differs);
    }

    void AddMemoryRow(int row)
    {
        DifferentItem item{
            {ItemKind::MemoryRow, row}, GroupOfMemoryRow(here_, row), PlaceName(here_, row), {}, {}};
        if (!CompareRow({RowKind::Memory, row}, item))
            return;
        NameMoves(row, item);
        items_.push_back(std::move(item));
    }

    void NameMoves(int row, DifferentItem& item) const
    {
        const std::string here = KeyOf(HeldRow(here_, {RowKind::Memory, row}), parts_.notes);
        const std::string there = KeyOf(HeldRow(there_, {RowKind::Memory, row}), parts_.notes);
        if (here == there)
            return;
        // Where the banks are divided otherwise, two rows can have one name.
        const auto words = [&item](const CloneImage& image, int place) {
            const Message name = PlaceName(image, place);
            return name == item.name ? Message(MESSAGE("row %1"), {place}) : name;
        };
        const int to = PlaceElsewhere(here, placesHere_, placesThere_);
        const int from = PlaceElsewhere(there, placesThere_, placesHere_);
        if (item.isHere && to != kManyRows)
            item.movedTo = words(there_, to);
        if (item.isThere && from != kManyRows)
            item.movedFrom = words(here_, from);
    }

    void AddVfoRow(int row)
    {
        DifferentItem item{{ItemKind::VfoRow, row}, kVfoBands, VfoRowName(row), {}, {}};
        if (CompareRow({RowKind::Vfo, row}, item))
            items_.push_back(std::move(item));
    }

    void AddValue(ItemId id, int group, Message name, Message here, Message there)
    {
        if (here != there)
            items_.push_back({id, group, std::move(name), std::move(here), std::move(there)});
    }

    void AddBanks()
    {
        for (int bank = 0; bank < kBanks; ++bank)
            AddValue({ItemKind::BankSize, bank}, kBankLayout, BankSizeName(bank), here_.BankSizeText(bank),
                     there_.BankSizeText(bank));
        for (int flag = 0; flag < kLinkFlags; ++flag)
            AddValue({ItemKind::BankLink, flag}, kBankLayout, BankLinkName(flag), OnOff(here_.BankLink(flag)),
                     OnOff(there_.BankLink(flag)));
    }

    void AddSettings()
    {
        for (int setting = 0; setting < kSettingsInWords; ++setting)
            AddValue({ItemKind::Setting, setting}, kSettingsGroup, SettingCaption(setting),
                     SettingText(here_.Settings(), setting), SettingText(there_.Settings(), setting));
    }

    const CloneImage& here_;
    const CloneImage& there_;
    const ComparedParts parts_;
    const Places placesHere_;
    const Places placesThere_;
    Comparison items_;
};

}  // namespace

Message ComparedGroupName(int group)
{
    switch (group) {
        case kInNoBank:
            return MESSAGE("In no bank");
        case kNotInReceiver:
            return MESSAGE("Not in the receiver");
        case kVfoBands:
            return MESSAGE("VFO bands");
        case kBankLayout:
            return MESSAGE("Bank layout");
        case kSettingsGroup:
            return MESSAGE("Settings");
        default:
            break;
    }
    const RowGroup* rows = GroupOfSelector(group);
    return rows != nullptr ? Message(rows->spoken) : SelectorText(group);
}

bool DifferentItem::IsMoved() const
{
    return (!movedTo.empty() || !isHere) && (!movedFrom.empty() || !isThere) &&
           !(movedTo.empty() && movedFrom.empty());
}

Comparison Compare(const CloneImage& here, const CloneImage& there, const ComparedParts& parts)
{
    return Comparer(here, there, parts).Run();
}

bool IsShown(const DifferentItem& item, int filter)
{
    switch (filter) {
        case kAllDifferences:
            return true;
        case kOnlyHere:
            return item.isHere && !item.isThere && item.movedTo.empty();
        case kOnlyThere:
            return !item.isHere && item.isThere && item.movedFrom.empty();
        case kMoved:
            return !item.movedTo.empty() || !item.movedFrom.empty();
        case kChangedInPlace:
            return item.isHere == item.isThere && !item.IsMoved();
        default:
            break;
    }
    return item.id.IsRow() && item.isHere && item.isThere && !item.IsMoved() &&
           item.fields.at(static_cast<std::size_t>(filter - kFieldDiffers)).differs;
}

DifferenceCounts CountDifferences(const Comparison& comparison)
{
    DifferenceCounts counts;
    for (const DifferentItem& item : comparison)
        ++(item.id.kind == ItemKind::MemoryRow ? counts.rows
           : item.id.kind == ItemKind::VfoRow  ? counts.vfoBands
           : item.id.kind == ItemKind::Setting ? counts.settings
                                               : counts.bankLayout);
    return counts;
}

}  // namespace rqm5
