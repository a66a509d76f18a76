#include <algorithm>
#include <ostream>

#include "cli/channel_output.h"
#include "cli/command.h"
#include "cli/file_list.h"
#include "cli/values.h"
#include "image/display_text.h"
#include "memory/bank_layout.h"
#include "memory/row_moves.h"

namespace rqm5 {
namespace {

bool HoldsSomething(const Channel& channel)
{
    return channel.HasChannel() || !channel.note.empty();
}

RowList ShownRows(const CloneImage& image, const Arguments& arguments)
{
    RowList rows = RowsOf(GroupRows(image, SelectorOf(arguments)));
    if (!arguments.Has("--all"))
        std::erase_if(rows, [&image](int row) { return !HoldsSomething(image.MemData(row)); });
    return rows;
}

void ShowJson(const InputFile& file, const CloneImage& image, const RowList& rows, JsonWriter& json)
{
    json.Open('{');
    json.Member("file", file.name);
    json.Member("region", image.ModelNo());
    json.Key("rows").Open('[');
    for (const int row : rows)
        WriteRow(json, image, row);
    json.Close(']');
    json.Close('}');
}

class Table
{
  public:
    Table(const CloneImage& image, int selector)
        : image_(image),
          first_(GroupRows(image, selector).first),
          labels_(BuildChannelLabels(image, selector))
    {
    }

    /// \param file  the name in front of each row; none in columns, where a line above names the file
    void AddRows(const RowList& rows, const std::string& file, TextTable& table) const
    {
        for (const int row : rows) {
            std::vector<std::string> cells = ChannelCells(image_, row);
            cells.insert(cells.begin(), labels_.at(static_cast<std::size_t>(row - first_)));
            if (!file.empty())
                cells.insert(cells.begin(), file);
            table.AddRow(std::move(cells), ChannelPaint(image_.MemData(row)));
        }
    }

  private:
    const CloneImage& image_;
    int first_;
    std::vector<std::string> labels_;
};

void ShowColumns(const InputFile& file, const CloneImage& image, const RowList& rows, int selector,
                 Console& console)
{
    TextTable table;
    std::vector<std::string> titles = ChannelTitles();
    titles.insert(titles.begin(), "");
    table.AddRow(std::move(titles), Paint::Bold);
    Table(image, selector).AddRows(rows, {}, table);
    const auto used =
        std::ranges::count_if(rows, [&image](int row) { return image.MemData(row).HasChannel(); });
    if (file.isOneOfSeveral)
        console.out << Painted(VisibleText(file.name), Paint::Bold, console.paintsOut) << ": ";
    console.out << SelectorText(selector).English() << " (" << used << " of "
                << GroupRows(image, selector).count << " rows used)\n";
    table.Print(console.out, console.paintsOut);
}

}  // namespace

Status RunShow(const Arguments& arguments, Console& console)
{
    const int selector = SelectorOf(arguments);
    const Form form = FormOf(arguments);
    JsonWriter json(console.out);
    TextTable table;
    std::vector<std::string> titles = ChannelTitles();
    titles.insert(titles.begin(), {"File", "Channel"});
    table.AddRow(std::move(titles));
    if (form == Form::Json)
        json.Open('[');
    const Status status =
        ForEachFile(arguments, console, [&](const InputFile& file, const CloneImage& image) {
            const RowList rows = ShownRows(image, arguments);
            if (form == Form::Json)
                ShowJson(file, image, rows, json);
            else if (form == Form::Tabbed)
                Table(image, selector).AddRows(rows, file.name, table);
            else
                ShowColumns(file, image, rows, selector, console);
            return Status::Done;
        });
    if (form == Form::Json) {
        json.Close(']');
        console.out << '\n';
    } else if (form == Form::Tabbed) {
        table.PrintTabbed(console.out);
    }
    return status;
}

}  // namespace rqm5
