#include <algorithm>

#include "cli/command.h"
#include "cli/edit_session.h"
#include "memory/bank_layout.h"
#include "memory/channel_operations.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

using RowsFunction = void (*)(CloneImage&, const RowList&);

/// A change of the rows that are named, whatever it is.
Status ChangeRows(const Arguments& arguments, Console& console, bool needsChannels, RowsFunction change)
{
    return EditFile(arguments[0], arguments, console, [&](CloneImage& image) -> std::optional<Problem> {
        const auto rows = NamedRows(image, ChoiceOfRows(arguments[1]), needsChannels);
        if (const auto* problem = std::get_if<Problem>(&rows))
            return *problem;
        change(image, std::get<RowList>(rows));
        return std::nullopt;
    });
}

std::vector<FieldValue> ValuesOf(const Arguments& arguments)
{
    std::vector<FieldValue> values;
    for (std::size_t i = 2; i < arguments.Operands().size(); ++i) {
        auto value = ReadAssignment(arguments[i]);
        if (auto* read = std::get_if<FieldValue>(&value))
            values.push_back(std::move(*read));
    }
    return values;
}

/// Sets fields of the VFO bands and then of the rows, until one is refused.
std::optional<Problem> SetFields(CloneImage& image, const RowChoice& choice,
                                 const std::vector<FieldValue>& values)
{
    const bool makesChannels =
        std::ranges::any_of(values, [](const FieldValue& value) { return value.part == kFrequency; });
    std::vector<RowId> ids;
    for (const int row : choice.VfoRows())
        ids.push_back({RowKind::Vfo, row});
    const auto rows = NamedRows(image, choice, !makesChannels);
    if (const auto* list = std::get_if<RowList>(&rows))
        for (const int row : *list)
            ids.push_back({RowKind::Memory, row});
    else if (ids.empty())
        return std::get<Problem>(rows);
    for (const RowId id : ids)
        if (const Message fault = AssignFields(image, id, values); !fault.empty())
            return Problem{kDataError, Message(MESSAGE("%1: %2"), {RowName(image, id), fault})};
    return std::nullopt;
}

/// One row that copied channels go to from on, or a bank or group whose empty rows take them.
std::variant<RowList, Problem> RoomAt(const CloneImage& image, const std::string& to, std::size_t wanted)
{
    const RowChoice choice = ChoiceOfRows(to);
    if (const Message fault = choice.Fault(image); !fault.empty())
        return Problem{kDataError, Message(MESSAGE("%1: %2"), {"TO " + to, fault})};
    const RowRange target = choice.Ranges(image).front();
    RowList room = EmptyRows(image, target);
    if (target.count == 1) {
        const int selector = target.first < kRadioRows ? SelectorOfRow(image, target.first) : kSelectAll;
        const RowRange group = selector == kSelectAll ? RowRange{0, kBankRows} : GroupRows(image, selector);
        room = RowsOf({target.first, std::max(0, group.Last() - target.first + 1)});
    }
    if (room.size() < wanted)
        return Problem{kDataError,
                       {MESSAGE("TO %1 has room for %2 of %3 channels"),
                        {to, static_cast<int>(room.size()), static_cast<int>(wanted)}}};
    room.resize(wanted);
    return room;
}

Status CopyOrMove(const Arguments& arguments, Console& console, bool isMove)
{
    return EditFile(arguments[0], arguments, console, [&](CloneImage& image) -> std::optional<Problem> {
        const auto named = NamedRows(image, ChoiceOfRows(arguments[1]), true);
        if (const auto* problem = std::get_if<Problem>(&named))
            return *problem;
        const auto& from = std::get<RowList>(named);
        const auto room = RoomAt(image, arguments[2], from.size());
        if (const auto* problem = std::get_if<Problem>(&room))
            return *problem;
        std::vector<Channel> channels;
        channels.reserve(from.size());
        for (const int row : from)
            channels.push_back(image.MemData(row));
        if (isMove)
            ClearRows(image, from);
        const auto& to = std::get<RowList>(room);
        for (std::size_t i = 0; i < to.size(); ++i)
            image.MemData(to[i]) = channels[i];
        return std::nullopt;
    });
}

/// The groups that places name: a whole bank or fixed group as it is, of all rows each of them.
std::vector<MoveGroup> GroupsToSort(const CloneImage& image, const RowChoice& choice)
{
    std::vector<MoveGroup> groups;
    for (const RowRange& range : choice.Ranges(image))
        if (range == GroupRows(image, kSelectAll))
            for (int selector = 0; selector < kSelectAll; ++selector)
                groups.push_back(MoveGroupOf(image, selector));
        else
            groups.push_back({range, kProgramScan.rows.Contains(range.first) ? 2 : 1});
    return groups;
}

Message SortFault(const RowChoice& choice, const std::vector<MoveGroup>& groups)
{
    if (choice.HasConditions() || groups.empty())
        return MESSAGE("sort takes places such as bank:3 or program-scan, and no conditions");
    for (const MoveGroup& group : groups)
        if (group.rows.count > 0 && GroupOfRow(group.rows.first) != GroupOfRow(group.rows.Last()))
            return MESSAGE("rows of two groups cannot be sorted as one; name them apart");
    for (const MoveGroup& group : groups)
        if (group.rows.first % group.unit != 0 || group.rows.count % group.unit != 0)
            return MESSAGE("the two edges of a Program Scan pair stay together; name whole pairs");
    return {};
}

}  // namespace

Status RunSet(const Arguments& arguments, Console& console)
{
    return EditFile(arguments[0], arguments, console, [&](CloneImage& image) {
        return SetFields(image, ChoiceOfRows(arguments[1]), ValuesOf(arguments));
    });
}

Status RunEnable(const Arguments& arguments, Console& console)
{
    return ChangeRows(arguments, console, true, EnableRows);
}

Status RunDisable(const Arguments& arguments, Console& console)
{
    return ChangeRows(arguments, console, true, DisableRows);
}

Status RunClear(const Arguments& arguments, Console& console)
{
    return ChangeRows(arguments, console, false, ClearRows);
}

Status RunCopy(const Arguments& arguments, Console& console)
{
    return CopyOrMove(arguments, console, false);
}

Status RunMove(const Arguments& arguments, Console& console)
{
    return CopyOrMove(arguments, console, true);
}

Status RunSort(const Arguments& arguments, Console& console)
{
    return EditFile(arguments[0], arguments, console, [&](CloneImage& image) -> std::optional<Problem> {
        const RowChoice choice = ChoiceOfRows(arguments[1]);
        const std::vector<MoveGroup> groups = GroupsToSort(image, choice);
        Message fault = choice.Fault(image);
        if (fault.empty())
            fault = SortFault(choice, groups);
        if (!fault.empty())
            return Problem{kDataError, fault};
        const std::string key = arguments.Value("--by", "frequency");
        for (const MoveGroup& group : groups)
            SortRows(image, group,
                     key == "note"   ? SortKey::Note
                     : key == "mode" ? SortKey::Mode
                                     : SortKey::Frequency);
        return std::nullopt;
    });
}

}  // namespace rqm5
