#include <ostream>

#include "cli/clone_files.h"
#include "cli/command.h"
#include "cli/text_table.h"
#include "cli/values.h"
#include "memory/bank_layout.h"
#include "memory/table_titles.h"

namespace rqm5 {
namespace {

/// The columns of the memory table, a column for the mark of rows that are off in front of them.
std::vector<std::string> Heads()
{
    std::vector<std::string> heads = {""};
    std::string_view titles = kMemoryTitles;
    for (;;) {
        const std::size_t bar = titles.find('|');
        heads.emplace_back(titles.substr(0, bar));
        if (bar == std::string_view::npos)
            return heads;
        titles.remove_prefix(bar + 1);
    }
}

std::vector<std::string> Cells(const Channel& channel, int region, const std::string& label)
{
    std::vector<std::string> cells = {channel.enabled ? "" : "-", label};
    for (const Column column : kColumns)
        cells.push_back(CellText(channel, RowKind::Memory, region, column));
    return cells;
}

}  // namespace

Status RunShow(const Arguments& arguments, Console& console)
{
    CloneImage image;
    if (const auto problem = Load(arguments[0], image))
        return Fail(console, *problem);
    const int selector = SelectorOf(arguments);
    const RowRange rows = GroupRows(image, selector);
    const std::vector<std::string> labels = BuildChannelLabels(image, selector);
    TextTable table;
    table.AddRow(Heads());
    for (int i = 0; i < rows.count; ++i)
        table.AddRow(
            Cells(image.MemData(rows.first + i), image.ModelNo(), labels.at(static_cast<std::size_t>(i))));
    console.out << SelectorText(selector) << ", " << rows.count << " rows (- in front: off)\n";
    table.Print(console.out);
    return Status::Done;
}

}  // namespace rqm5
