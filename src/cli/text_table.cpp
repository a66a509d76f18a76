#include "cli/text_table.h"

#include <algorithm>
#include <ostream>

#include "image/display_text.h"

namespace rqm5 {

void TextTable::AddRow(std::vector<std::string> cells, Paint paint)
{
    for (std::string& cell : cells)
        cell = VisibleText(cell);
    rows_.push_back({std::move(cells), paint});
}

void TextTable::Print(std::ostream& out, bool isPainted) const
{
    std::vector<int> widths;
    for (const auto& [cells, paint] : rows_) {
        widths.resize(std::max(widths.size(), cells.size()));
        for (std::size_t i = 0; i < cells.size(); ++i)
            widths[i] = std::max(widths[i], DisplayWidth(cells[i]));
    }
    std::string line;
    for (const auto& [cells, paint] : rows_) {
        line.clear();
        // A note of a whole file's length must not widen all rows.
        for (std::size_t i = 0; i + 1 < cells.size(); ++i) {
            line += cells[i];
            const int blanks = widths[i] - DisplayWidth(cells[i]) + 2;
            line.append(static_cast<std::size_t>(blanks), ' ');
        }
        if (!cells.empty())
            line += cells.back();
        line.erase(line.find_last_not_of(' ') + 1);
        out << (isPainted ? Painted(line, paint, true) : line) << '\n';
    }
}

void TextTable::PrintTabbed(std::ostream& out) const
{
    for (const auto& [cells, paint] : rows_)
        for (std::size_t i = 0; i < cells.size(); ++i)
            out << cells[i] << (i + 1 < cells.size() ? '\t' : '\n');
}

}  // namespace rqm5
