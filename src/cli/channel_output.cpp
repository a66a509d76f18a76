#include "cli/channel_output.h"

#include "image/value_tables.h"
#include "memory/bank_layout.h"
#include "memory/row_choice.h"
#include "memory/table_titles.h"

namespace rqm5 {

Form FormOf(const Arguments& arguments)
{
    return arguments.Has("--json") ? Form::Json : arguments.Has("--tsv") ? Form::Tabbed : Form::Columns;
}

Message FormFault(const Arguments& arguments)
{
    return arguments.Has("--json") && arguments.Has("--tsv")
               ? MESSAGE("--json and --tsv are two forms; choose one")
               : Message();
}

void Print(const TextTable& table, Form form, Console& console)
{
    if (form == Form::Tabbed)
        table.PrintTabbed(console.out);
    else
        table.Print(console.out, console.paintsOut);
}

std::vector<std::string> ChannelTitles()
{
    std::vector<std::string> heads = {"Off"};
    std::string_view titles = kMemoryTitles.substr(1);
    for (;;) {
        const std::size_t bar = titles.find('|');
        heads.emplace_back(titles.substr(0, bar));
        if (bar == std::string_view::npos)
            return heads;
        titles.remove_prefix(bar + 1);
    }
}

std::vector<std::string> ChannelCells(const CloneImage& image, int row)
{
    const Channel& channel = image.MemData(row);
    std::vector<std::string> cells = {channel.HasChannel() && !channel.enabled ? "x" : ""};
    for (const Column column : kColumns)
        cells.push_back(CellText(channel, RowKind::Memory, image.ModelNo(), column));
    return cells;
}

Paint ChannelPaint(const Channel& channel)
{
    return channel.HasChannel() && !channel.enabled ? Paint::Dim : Paint::None;
}

void WriteRow(JsonWriter& json, const CloneImage& image, int row)
{
    const int selector = row < kRadioRows ? SelectorOfRow(image, row) : kSelectAll;
    json.Open('{');
    json.Member("row", row);
    json.Member("place", PlaceText(image, row));
    json.Key("bank");
    selector < kBanks ? json.Number(selector) : json.Null();
    WriteChannel(json, image.MemData(row), RowKind::Memory);
    json.Close('}');
}

void WriteChannel(JsonWriter& json, const Channel& channel, RowKind kind)
{
    constexpr int kOptionUnit = 16;
    json.Member("frequency_hz", channel.frequency);
    json.Member("mode", TextAt(ModeName, channel.mode));
    json.Member("step", TextAt(StepName, channel.step));
    json.Member("option", TextAt(OptionName, channel.option / kOptionUnit));
    json.Member("secret_code", static_cast<int>(channel.secret));
    json.Member("carrier", CarrierText(channel.carrier));
    json.Member("tone", TextAt(ToneName, channel.tone));
    json.Member("shift", TextAt(ShiftName, channel.shift / kOptionUnit));
    json.Member("offset_hz", static_cast<std::int64_t>(channel.shiftFrequency));
    json.Member("note", channel.note);
    if (kind == RowKind::Memory) {
        json.Member("skip", channel.IsSkipped());
        json.Member("enabled", channel.enabled);
    }
}

}  // namespace rqm5
