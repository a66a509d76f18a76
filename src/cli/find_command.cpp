#include <algorithm>
#include <ostream>

#include "cli/channel_output.h"
#include "cli/command.h"
#include "cli/file_list.h"
#include "memory/bank_layout.h"
#include "memory/channel_search.h"
#include "memory/row_choice.h"

namespace rqm5 {
namespace {

/// A pattern: words to look for, and places and conditions that leave some of the rows.
struct Pattern
{
    RowChoice choice = {};
    bool hasChoice = false;
    std::string words = {};
};

/// True for a word that can only be a place or condition, or a range of frequencies.
bool IsTerm(std::string_view word)
{
    const bool isRange = word.find("..") != std::string_view::npos &&
                         word.find_first_not_of("0123456789.") == std::string_view::npos;
    const std::size_t at = word.find_first_of("=:~");
    const bool isCondition = at != std::string_view::npos && PartOfWord(word.substr(0, at)).has_value();
    return isRange || isCondition || word.starts_with("bank:") || word.starts_with("memory:") ||
           std::ranges::any_of(kRowGroups, [word](const RowGroup& group) {
               return word.substr(0, word.find('/')) == group.option;
           });
}

/// \param fault  what is wrong with the pattern; empty when nothing is
Pattern ReadPattern(std::string_view text, Message& fault)
{
    Pattern pattern;
    while (!text.empty() && fault.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        const std::string word(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty())
            continue;
        if (!IsTerm(word)) {
            pattern.words += word + ' ';
            continue;
        }
        pattern.hasChoice = true;
        const bool isRange = word.find_first_not_of("0123456789.") == std::string::npos;
        fault = pattern.choice.Add(isRange ? "freq:" + word : word);
    }
    return pattern;
}

RowList Find(const CloneImage& image, const Pattern& pattern)
{
    RowList rows = pattern.words.empty() ? RowsOf({0, kRadioRows}) : FindChannels(image, pattern.words);
    std::ranges::sort(rows);
    // A bank that this file does not have holds none of the rows.
    if (pattern.hasChoice && !pattern.choice.Fault(image).empty())
        return {};
    const RowList chosen = pattern.hasChoice ? pattern.choice.MemoryRows(image) : rows;
    std::erase_if(rows, [&](int row) {
        const Channel& channel = image.MemData(row);
        return !std::ranges::binary_search(chosen, row) || (!channel.HasChannel() && channel.note.empty());
    });
    return rows;
}

std::vector<std::string> Titles()
{
    std::vector<std::string> titles = ChannelTitles();
    titles.insert(titles.begin(), {"File", "Bank", "Channel", "Row"});
    return titles;
}

/// The label of a row in the view of its bank or group.
std::string LabelOf(const CloneImage& image, int row, int selector)
{
    const RowGroup* group = GroupOfRow(row);
    const int index = row - GroupRows(image, selector).first;
    return group != nullptr ? GroupLabel(*group, index) : std::to_string(index);
}

std::vector<std::string> Line(const std::string& file, const CloneImage& image, int row)
{
    std::vector<std::string> cells = ChannelCells(image, row);
    const int selector = SelectorOfRow(image, row);
    const bool isInNone = selector == kSelectAll;
    cells.insert(cells.begin(), {file, isInNone ? "-" : SelectorText(selector).English(),
                                 isInNone ? "-" : LabelOf(image, row, selector), std::to_string(row)});
    return cells;
}

}  // namespace

Message FindFault(const Arguments& arguments)
{
    Message fault;
    const Pattern pattern = ReadPattern(arguments[0], fault);
    if (fault.empty() && pattern.words.empty() && !pattern.hasChoice)
        fault = {MESSAGE("%1 is empty"), {std::string("PATTERN")}};
    if (fault.empty())
        fault = NoFileFault(arguments, 1);
    return fault.empty() ? FormFault(arguments) : fault;
}

Status RunFind(const Arguments& arguments, Console& console)
{
    Message fault;
    const Pattern pattern = ReadPattern(arguments[0], fault);
    const Form form = FormOf(arguments);
    JsonWriter json(console.out);
    TextTable table;
    bool hasFound = false;
    table.AddRow(Titles(), Paint::Bold);
    if (form == Form::Json)
        json.Open('[');
    const UseFile use = [&](const InputFile& file, const CloneImage& image) {
        for (const int row : Find(image, pattern)) {
            hasFound = true;
            if (form == Form::Json) {
                json.Open('{');
                json.Member("file", file.name);
                json.Key("match");
                WriteRow(json, image, row);
                json.Close('}');
            } else {
                table.AddRow(Line(file.name, image, row), ChannelPaint(image.MemData(row)));
            }
        }
        return Status::Done;
    };
    const Status status = ForEachFile(arguments, console, use, nullptr, 1);
    if (form == Form::Json) {
        json.Close(']');
        console.out << '\n';
    } else if (hasFound || form == Form::Tabbed) {
        Print(table, form, console);
    }
    return hasFound ? status : Status::Failed;
}

}  // namespace rqm5
