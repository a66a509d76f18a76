#include "printing/text_columns.h"

#include <algorithm>
#include <functional>

#include "image/display_text.h"

namespace rqm5 {
namespace {

constexpr int kWidestCell = 26;
constexpr int kWidestLastCell = 40;
constexpr std::string_view kGap = "  ";

Cells Split(std::string_view text, char separator)
{
    Cells parts;
    for (std::size_t end = 0; end != std::string_view::npos; text.remove_prefix(end + 1)) {
        end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            break;
    }
    return parts;
}

/// Takes one character at least, however narrow the column is, so that every text comes to its end.
std::string_view TakeLine(std::string_view& text, int width)
{
    constexpr int kWidestCharacter = 2;
    const std::string_view line = CutToWidth(text, std::max(width, kWidestCharacter));
    text.remove_prefix(line.size());
    return line;
}

std::string WithoutTrailingBlanks(std::string line)
{
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

}  // namespace

TextColumns::TextColumns(std::string_view titles) : titles_(Split(titles, '|')), widths_(titles_.size())
{
    Fit(titles_);
}

int TextColumns::Limit(std::size_t column) const
{
    return column + 1 < widths_.size() ? kWidestCell : kWidestLastCell;
}

void TextColumns::Fit(const Cells& cells)
{
    for (std::size_t column = 0; column < widths_.size(); ++column) {
        const int width = DisplayWidth(VisibleText(cells.at(column)));
        widths_[column] = std::max(widths_[column], std::min(width, Limit(column)));
    }
}

std::string TextColumns::Titles() const
{
    return Lines(titles_).front();
}

std::vector<std::string> TextColumns::Lines(const Cells& cells) const
{
    Cells visible;
    for (const std::string& cell : cells)
        visible.push_back(VisibleText(cell));
    std::vector<std::string_view> rest(visible.begin(), visible.end());
    const auto isDone = [&rest] {
        return std::all_of(rest.begin(), rest.end(), std::mem_fn(&std::string_view::empty));
    };
    std::vector<std::string> lines;
    do {
        std::string line;
        for (std::size_t column = 0; column < widths_.size(); ++column)
            line += PadToWidth(TakeLine(rest.at(column), widths_[column]), widths_[column]).append(kGap);
        lines.push_back(WithoutTrailingBlanks(std::move(line)));
    } while (!isDone());
    return lines;
}

}  // namespace rqm5
