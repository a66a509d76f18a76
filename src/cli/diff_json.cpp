#include "cli/diff_json.h"

#include <ostream>

#include "cli/channel_output.h"
#include "memory/row_choice.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

void WriteSide(JsonWriter& json, const char* name, const Channel& channel, RowKind kind)
{
    json.Key(name).Open('{');
    WriteChannel(json, channel, kind);
    json.Close('}');
}

/// A row that differs, whole on both sides.
void WriteRow(JsonWriter& json, const CloneImage& before, const CloneImage& after, RowId id)
{
    json.Open('{');
    json.Member("row", id.row);
    if (id.IsMemory())
        json.Member("place", PlaceText(before, id.row));
    WriteSide(json, "before", before.At(id), id.kind);
    WriteSide(json, "after", after.At(id), id.kind);
    json.Close('}');
}

void WriteRows(JsonWriter& json, const char* name, const CloneImage& before, const CloneImage& after,
               RowKind kind, const std::vector<int>& rows)
{
    json.Key(name).Open('[');
    for (const int row : rows)
        WriteRow(json, before, after, {kind, row});
    json.Close(']');
}

void WriteSettings(JsonWriter& json, const ImageChange& change)
{
    json.Key("settings").Open('[');
    for (const ChangedItem<int>& item : change.Settings) {
        if (item.index >= kSettingsInWords)
            continue;
        json.Open('{');
        json.Member("name", SettingCaption(item.index).English());
        json.Member("before", SettingValueText(item.index, item.before).English());
        json.Member("after", SettingValueText(item.index, item.after).English());
        json.Close('}');
    }
    json.Close(']');
}

template <class Value>
void WriteItems(JsonWriter& json, const char* name, const ChangedItems<Value>& items)
{
    json.Key(name).Open('[');
    for (const ChangedItem<Value>& item : items) {
        json.Open('{');
        json.Member("number", item.index);
        json.Member("before", item.before);
        json.Member("after", item.after);
        json.Close('}');
    }
    json.Close(']');
}

}  // namespace

void WriteChange(const CloneImage& before, const CloneImage& after, const ImageChange& change,
                 std::ostream& out)
{
    JsonWriter json(out);
    json.Open('{');
    WriteSettings(json, change);
    WriteRows(json, "vfo", before, after, RowKind::Vfo, change.VfoRows());
    WriteRows(json, "rows", before, after, RowKind::Memory, change.MemoryRows());
    WriteItems(json, "bank_sizes", change.BankSize);
    WriteItems(json, "bank_links", change.BankLink);
    json.Close('}');
    out << '\n';
}

}  // namespace rqm5
