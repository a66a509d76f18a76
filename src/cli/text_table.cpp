#include "cli/text_table.h"

#include <algorithm>
#include <ostream>

#include "image/display_text.h"

namespace rqm5 {

void TextTable::AddRow(std::vector<std::string> cells)
{
    for (std::string& cell : cells)
        cell = VisibleText(cell);
    rows_.push_back(std::move(cells));
}

void TextTable::Print(std::ostream& out) const
{
    std::vector<int> widths;
    for (const auto& row : rows_) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(row[i]));
    }
    for (const auto& row : rows_) {
        std::string line;
        // A note of a whole file's length must not widen all rows.
        for (std::size_t i = 0; i + 1 < row.size(); ++i)
            line += PadToWidth(row[i], widths[i]) + "  ";
        if (!row.empty())
            line += row.back();
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

}  // namespace rqm5
