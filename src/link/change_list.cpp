#include "link/change_list.h"

#include <algorithm>
#include <map>

#include "image/flag_bits.h"
#include "memory/bank_layout.h"
#include "memory/row_names.h"
#include "memory/start_image.h"
#include "settings/setting_texts.h"
#include "settings/settings_codec.h"

namespace rqm5 {
namespace {

using Fields = std::vector<BlockField>;

constexpr int kBits = 8;
constexpr char kEnabled[] = MESSAGE("Enabled");
constexpr char kCount[] = MESSAGE("Search Pass count");
constexpr char kPresets[] = MESSAGE("Region presets");
constexpr char kBankSizesTogether[] = MESSAGE("Bank sizes");

Message OnOff(bool isOn)
{
    return isOn ? MESSAGE("on") : MESSAGE("off");
}

bool BitOf(const MemoryBlock& block, int bit)
{
    return block.Bit(bit / kBits, bit % kBits + 1);
}

Fields LinkFields(const MemoryBlock& block)
{
    Fields fields;
    for (int flag = 0; flag < kLinkFlags; ++flag)
        fields.push_back({Message(MESSAGE("Bank %1 link"), {flag}), OnOff(BitOf(block, flag))});
    return fields;
}

Fields SettingsFields(int index, const MemoryBlock& block)
{
    CloneImage image = StartUpImage(0);
    DecodeSettings(image, index == 0 ? SettingsBlocks{block, DefaultSetData2()}
                                     : SettingsBlocks{DefaultSetData1(0), block});
    Fields fields;
    for (int setting = 0; setting < kSettingsInWords; ++setting)
        fields.push_back({SettingCaption(setting), SettingText(image.Settings(), setting)});
    if (index == kSettings2)
        fields.push_back({kCount, block.Byte(kPassCountByte)});
    return fields;
}

Fields BankFields(int index, const MemoryBlock& block)
{
    constexpr int kWords = kBlockBytes / 2;
    Fields fields;
    for (int word = 0; word < kWords && index * kWords + word < kBankSizes; ++word) {
        const int bank = index * kWords + word;
        fields.push_back({BankSizeName(bank), block.Word(word)});
    }
    return fields;
}

Fields PassFields(const MemoryBlock& block)
{
    std::string rows;
    for (int place = 0; place < kBlockBytes; ++place)
        if (block.Byte(place) < kSearchPass.rows.count)
            rows += (rows.empty() ? "S" : ", S") + std::to_string(block.Byte(place) + kSearchPass.firstLabel);
    return {{MESSAGE("Enabled channels"), rows.empty() ? Message(MESSAGE("none")) : Message(rows)}};
}

Fields RowFields(int address, const MemoryBlock& block)
{
    Fields fields = BlockFields(address, block);
    if (fields.empty())
        fields.push_back({kColumnNames[kFrequency], MESSAGE("empty")});
    return fields;
}

Message TextOf(const Fields& fields, const Message& name)
{
    const auto found = std::ranges::find(fields, name, &BlockField::name);
    return found != fields.end() ? found->text : Message();
}

const Fields& Longer(const Fields& a, const Fields& b)
{
    return a.size() < b.size() ? b : a;
}

/// The flags of a block go to the rows that they are of.
void AddFlags(int index, const MemoryBlock& from, const MemoryBlock& to,
              std::map<int, std::vector<FieldChange>>& rows)
{
    const int first = index * kBits * kBlockBytes;
    for (int bit = 0; bit < kBits * kBlockBytes && first + bit < kRadioRows; ++bit)
        if (BitOf(from, bit) != BitOf(to, bit))
            rows[first + bit].push_back({kEnabled, OnOff(BitOf(from, bit)), OnOff(BitOf(to, bit))});
}

/// True when the flags that differ are those of rows.
bool ConcernsRows(int index, const MemoryBlock& from, const MemoryBlock& to)
{
    std::map<int, std::vector<FieldChange>> rows;
    AddFlags(index, from, to, rows);
    return !rows.empty();
}

/// What a block holds, field by field: "Mode" "FM", "Lamp" "OFF", "Bank 3 size" "50".
Fields FieldsOfBlock(int address, const MemoryBlock& block)
{
    const auto place = PlaceOf(address);
    const int index = place ? place->index : 0;
    switch (place ? place->area->id : Area::Presets) {
        case Area::Settings:
            return SettingsFields(index, block);
        case Area::BankSizes:
            return BankFields(index, block);
        case Area::Links:
            return LinkFields(block);
        case Area::PassList:
            return PassFields(block);
        case Area::Vfo:
        case Area::Channels:
            return RowFields(address, block);
        case Area::Flags:  // those of rows stand with the rows
        case Area::Presets:
            break;
    }
    return {};
}

/// Where two contents of a block differ. A block that differs in nothing that has a name is told by its
/// digits.
std::vector<FieldChange> DifferingFields(int address, const MemoryBlock& from, const MemoryBlock& to)
{
    const Fields before = FieldsOfBlock(address, from);
    const Fields after = FieldsOfBlock(address, to);
    std::vector<FieldChange> changes;
    for (const BlockField& field : Longer(before, after)) {
        const Message was = TextOf(before, field.name);
        const Message is = TextOf(after, field.name);
        if (was != is)
            changes.push_back({field.name, was, is});
    }
    if (changes.empty() && from != to)
        changes.push_back({Message(MESSAGE("Block %1"), {HexAddress(address)}), from.String(), to.String()});
    return changes;
}

}  // namespace

std::vector<RowChange> ListChanges(const CloneImage& image, const ChangePlan& plan)
{
    std::vector<RowChange> list;
    std::map<int, std::vector<FieldChange>> rows;
    for (const auto& [address, to] : plan.Wanted()) {
        const BlockPlace place = *PlaceOf(address);
        if (place.area->id == Area::Presets) {
            if (list.empty() || list.back().label != Message(kPresets))
                list.push_back({kPresets,
                                {{SettingCaption(SettingIndex(&ReceiverSettings::model)),
                                  {},
                                  SettingText(image.Settings(), SettingIndex(&ReceiverSettings::model))}}});
            continue;
        }
        const MemoryBlock& from = plan.Held().at(address);
        if (place.area->id == Area::Flags && ConcernsRows(place.index, from, to)) {
            AddFlags(place.index, from, to, rows);
        } else if (place.area->id == Area::Channels) {
            const std::vector<FieldChange> fields = DifferingFields(address, from, to);
            rows[place.index].insert(rows[place.index].begin(), fields.begin(), fields.end());
        } else {
            list.push_back({place.area->label(image, place.index), DifferingFields(address, from, to)});
        }
    }
    for (auto& [row, fields] : rows)
        list.push_back({RowLabel(image, row), std::move(fields)});
    return list;
}

ConflictRow DescribeConflict(const CloneImage& image, const ChangePlan& plan, const Conflict& conflict)
{
    const BlockPlace first = *PlaceOf(conflict.addresses.front());
    ConflictRow row{first.area->id == Area::BankSizes ? Message(kBankSizesTogether)
                                                      : first.area->label(image, first.index),
                    {}};
    for (const int address : conflict.addresses) {
        const BlockPlace place = *PlaceOf(address);
        const MemoryBlock mine = place.area->encode(image, place.index);
        const Fields known = FieldsOfBlock(address, plan.Known().at(address));
        const Fields there = FieldsOfBlock(address, plan.Held().at(address));
        const Fields here = FieldsOfBlock(address, mine);
        for (const BlockField& field : Longer(known, Longer(there, here))) {
            const ConflictField texts{field.name, TextOf(known, field.name), TextOf(there, field.name),
                                      TextOf(here, field.name)};
            const bool isCount = field.name == Message(kCount);
            if (!isCount && (texts.known != texts.receiver || texts.receiver != texts.image))
                row.fields.push_back(texts);
        }
        if (row.fields.empty() && conflict.addresses.size() == 1)
            row.fields.push_back({Message(MESSAGE("Block %1"), {HexAddress(address)}),
                                  plan.Known().at(address).String(), plan.Held().at(address).String(),
                                  mine.String()});
    }
    return row;
}

}  // namespace rqm5
