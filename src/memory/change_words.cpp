#include "memory/change_words.h"

#include <algorithm>

#include "image/display_text.h"
#include "memory/row_fields.h"
#include "memory/row_names.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

using Lines = std::vector<std::string>;

std::string FromTo(const std::string& from, const std::string& to)
{
    return from + " -> " + to;
}

std::string Quoted(const std::string& text)
{
    return "\"" + VisibleText(text) + "\"";
}

std::string Text(const ChannelContents& contents, RowKind kind, Column column)
{
    return VisibleText(CellText(contents, kind, kNoRegion, column));
}

std::string Summary(const ChannelContents& contents, RowKind kind)
{
    const bool isEmpty = contents == ChannelContents{};
    return isEmpty ? "empty" : Text(contents, kind, kFrequency) + " " + Text(contents, kind, kMode);
}

void AddFields(const ChannelContents& a, const ChannelContents& b, RowKind kind, Lines& changes)
{
    // Note and flag are items of their own.
    const FieldPairs fields = CompareFields({a, {}}, {b, {}}, kind);
    for (int field = 0; field < kRowFields; ++field)
        if (const FieldPair& pair = fields.at(static_cast<std::size_t>(field)); pair.differs)
            changes.push_back(std::string(RowFieldName(field)) + " " + FromTo(pair.first, pair.second));
}

void AddContents(const ChangedItem<ChannelContents>& item, RowKind kind, Lines& changes)
{
    const bool wasEmpty = item.before == ChannelContents{};
    const bool isEmpty = item.after == ChannelContents{};
    if (wasEmpty != isEmpty)
        changes.push_back(FromTo(Summary(item.before, kind), Summary(item.after, kind)));
    else
        AddFields(item.before, item.after, kind, changes);
}

/// The item of a place, nullptr when it has not changed.
template <class Value>
const ChangedItem<Value>* ItemOf(const ChangedItems<Value>& items, int index)
{
    const auto found = std::ranges::lower_bound(items, index, {}, &ChangedItem<Value>::index);
    return found != items.end() && found->index == index ? &*found : nullptr;
}

std::string RowLine(const std::string& name, const ChangedItem<ChannelContents>* contents,
                    const ChangedItem<FileColumns>* note, const ChangedItem<bool>* flag, RowKind kind)
{
    Lines changes;
    if (contents != nullptr)
        AddContents(*contents, kind, changes);
    if (note != nullptr)
        changes.push_back("Note " + FromTo(Quoted(note->before.note), Quoted(note->after.note)));
    if (flag != nullptr)
        changes.push_back("Enabled " + FromTo(OnOff(flag->before), OnOff(flag->after)));
    std::string line = name + ": ";
    for (std::size_t i = 0; i < changes.size(); ++i)
        line += (i == 0 ? "" : ", ") + changes[i];
    return line;
}

void AddSettings(const ImageChange& change, Lines& lines)
{
    for (const ChangedItem<int>& item : change.Settings)
        if (item.index < kSettingsInWords)
            lines.push_back(
                std::string(SettingCaption(item.index)) + ": " +
                FromTo(SettingValueText(item.index, item.before), SettingValueText(item.index, item.after)));
}

void AddRows(const CloneImage& before, const ImageChange& change, Lines& lines)
{
    for (const int row : change.VfoRows())
        lines.push_back(RowLine(VfoRowName(row), ItemOf(change.VFOData, row), ItemOf(change.VFONotes, row),
                                nullptr, RowKind::Vfo));
    for (const int row : change.MemoryRows())
        lines.push_back(RowLine(RowName(before, row), ItemOf(change.MemData, row),
                                ItemOf(change.MemNotes, row), ItemOf(change.MemEnable, row),
                                RowKind::Memory));
}

void AddBanks(const ImageChange& change, Lines& lines)
{
    for (const ChangedItem<int>& item : change.BankSize)
        lines.push_back((item.index == kUnassigned ? "Channels in no bank: "
                                                   : "Bank " + std::to_string(item.index) + " size: ") +
                        FromTo(std::to_string(item.before), std::to_string(item.after)));
    for (const ChangedItem<bool>& item : change.BankLink)
        lines.push_back((item.index < kBanks ? "Bank " : "Link flag ") + std::to_string(item.index) +
                        " link: " + FromTo(OnOff(item.before), OnOff(item.after)));
}

}  // namespace

std::vector<std::string> DescribeChange(const CloneImage& before, const ImageChange& change)
{
    Lines lines;
    AddSettings(change, lines);
    AddRows(before, change, lines);
    AddBanks(change, lines);
    return lines;
}

}  // namespace rqm5
