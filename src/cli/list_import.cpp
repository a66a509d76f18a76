#include "cli/list_import.h"

#include "files/list_map.h"
#include "memory/named_rows.h"
#include "memory/start_image.h"

namespace rqm5 {
namespace {

ListForm FormFor(const Arguments& arguments)
{
    const auto parsed = ParseForm(arguments.Value("--map"));
    ListForm form = std::holds_alternative<ListForm>(parsed) ? std::get<ListForm>(parsed) : ListForm();
    if (arguments.Has("--decimal-comma"))
        form.decimals = DecimalSign::Comma;
    return form;
}

Message Titles(const ListTable& table)
{
    std::string titles;
    for (const std::string& title : table.titles)
        titles += (titles.empty() ? "" : ", ") + title;
    if (!titles.empty())
        return titles;
    return {MESSAGE("no titles; columns are 1 to %1"), {static_cast<int>(table.columns.size())}};
}

Problem UnknownColumn(const ListTable& table)
{
    return {kDataError,
            {MESSAGE("the list has no column \"%1\"; it has %2"), {table.unknown.front(), Titles(table)}}};
}

constexpr char kWhereTo[] = MESSAGE(
    "the list does not say which rows it belongs to; name the first one with --from-row, or "
    "the columns that name them with --map");

}  // namespace

ListImport PlanListImport(const std::string& bytes, const CloneImage& image, const Arguments& arguments)
{
    const ListTable table = ReadTable(bytes, FormFor(arguments));
    const std::vector<ListedChannel> channels = ReadChannels(table);
    ListImport list;
    list.description = DescribeTable(table);
    if (!table.unknown.empty()) {
        list.problem = UnknownColumn(table);
        return list;
    }
    const std::string from = arguments.Value("--from-row");
    if (from.empty() && !NamesRows(channels)) {
        list.problem = Problem{kDataError, kWhereTo};
        return list;
    }
    const auto row = from.empty() ? std::nullopt : RowOfWord(image, from);
    if (!from.empty() && !row) {
        list.problem = Problem{kDataError, {MESSAGE("there is no row %1 in this file"), {from}}};
        return list;
    }
    list.plan = row ? PlanOn(image, RowsOf(RowsOnFrom(image, *row)), channels) : PlanNamed(image, channels);
    for (const PlannedRow& planned : list.plan) {
        if (!planned.IsTaken())
            list.refused.push_back(Message(MESSAGE("%1: %2"), {planned.source, planned.refusal}));
        else if (!planned.remark.empty())
            list.remarks.push_back(Message(MESSAGE("%1: %2"), {planned.source, planned.remark}));
    }
    return list;
}

Message MapFault(std::string_view text)
{
    const auto parsed = ParseForm(text);
    return std::holds_alternative<ListForm>(parsed) ? Message() : Message(std::get<1>(parsed));
}

Message FromRowFault(std::string_view text)
{
    // Which channels a bank has is in the file.
    const bool isInBank = text.find(':') != std::string_view::npos;
    return isInBank || RowOfWord(CloneImage(), text)
               ? Message()
               : MESSAGE(
                     "a row is a number 0 to 1209, BANK:CHANNEL such as 3:12, program-scan, search-pass or "
                     "priority");
}

}  // namespace rqm5
