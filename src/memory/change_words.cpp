#include "memory/change_words.h"

#include <algorithm>

#include "image/display_text.h"
#include "memory/bank_layout.h"
#include "memory/row_fields.h"
#include "memory/row_names.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

using Lines = std::vector<Message>;

Message FromTo(const Message& from, const Message& to)
{
    return Message::List({from, to}, " -> ");
}

std::string Quoted(const std::string& text)
{
    return "\"" + VisibleText(text) + "\"";
}

std::string Text(const ChannelContents& contents, RowKind kind, Column column)
{
    return VisibleText(CellText(contents, kind, kNoRegion, column));
}

Message Summary(const ChannelContents& contents, RowKind kind)
{
    const bool isEmpty = contents == ChannelContents{};
    return isEmpty ? Message(MESSAGE("empty"))
                   : Message(Text(contents, kind, kFrequency) + " " + Text(contents, kind, kMode));
}

void AddFields(const ChannelContents& a, const ChannelContents& b, RowKind kind, Lines& changes)
{
    // Note and flag are items of their own.
    const FieldPairs fields = CompareFields({a, {}}, {b, {}}, kind);
    for (int field = 0; field < kRowFields; ++field)
        if (const FieldPair& pair = fields.at(static_cast<std::size_t>(field)); pair.differs)
            changes.push_back(Message::List({RowFieldName(field), FromTo(pair.first, pair.second)}, " "));
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

Message RowLine(const Message& name, const ChangedItem<ChannelContents>* contents,
                const ChangedItem<FileColumns>* note, const ChangedItem<bool>* flag, RowKind kind)
{
    Lines changes;
    if (contents != nullptr)
        AddContents(*contents, kind, changes);
    if (note != nullptr)
        changes.push_back(Message::List(
            {MESSAGE("Note"), FromTo(Quoted(note->before.note), Quoted(note->after.note))}, " "));
    if (flag != nullptr)
        changes.push_back(
            Message::List({MESSAGE("Enabled"), FromTo(OnOff(flag->before), OnOff(flag->after))}, " "));
    return Message(MESSAGE("%1: %2"), {name, Message::List(std::move(changes), ", ")});
}

void AddSettings(const ImageChange& change, Lines& lines)
{
    for (const ChangedItem<int>& item : change.Settings)
        if (item.index < kSettingsInWords)
            lines.emplace_back(MESSAGE("%1: %2"),
                               std::vector<Message>{SettingCaption(item.index),
                                                    FromTo(SettingValueText(item.index, item.before),
                                                           SettingValueText(item.index, item.after))});
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
        lines.push_back(
            Message(MESSAGE("%1: %2"), {BankSizeName(item.index), FromTo(item.before, item.after)}));
    for (const ChangedItem<bool>& item : change.BankLink)
        lines.push_back(Message(MESSAGE("%1: %2"),
                                {BankLinkName(item.index), FromTo(OnOff(item.before), OnOff(item.after))}));
}

}  // namespace

std::vector<Message> DescribeChange(const CloneImage& before, const ImageChange& change)
{
    Lines lines;
    AddSettings(change, lines);
    AddRows(before, change, lines);
    AddBanks(change, lines);
    return lines;
}

}  // namespace rqm5
