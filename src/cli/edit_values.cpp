#include "cli/edit_values.h"

#include <array>

#include "cli/channel_output.h"
#include "cli/did_you_mean.h"
#include "cli/file_list.h"
#include "cli/streams.h"
#include "cli/values.h"
#include "image/value_tables.h"
#include "memory/row_choice.h"

namespace rqm5 {
namespace {

constexpr std::array<std::string_view, 3> kSortKeys = {"frequency", "note", "mode"};
constexpr std::array<std::string_view, 3> kShells = {"bash", "zsh", "fish"};

}  // namespace

Message RowsFault(std::string_view text)
{
    const auto read = RowChoice::Read(text);
    const auto* fault = std::get_if<Message>(&read);
    return fault != nullptr ? *fault : Message();
}

Message PlaceFault(std::string_view text)
{
    if (Message fault = RowsFault(text); !fault.empty())
        return fault;
    const RowChoice choice = std::get<RowChoice>(RowChoice::Read(text));
    const bool isPlace = text.find(',') == std::string_view::npos && !choice.HasConditions() &&
                         !choice.HasSettings() && !choice.HasBanks() && choice.VfoRows().empty();
    return isPlace ? Message() : MESSAGE("it is one place, such as bank:3 or bank:3/12");
}

Message AssignmentFault(std::string_view text)
{
    const auto read = ReadAssignment(text);
    const auto* fault = std::get_if<Message>(&read);
    return fault != nullptr ? *fault : Message();
}

Message SortKeyFault(std::string_view text)
{
    return IndexOf(kSortKeys, text) >= 0
               ? Message()
               : DidYouMean(MESSAGE("it is frequency, note or mode"), text, kSortKeys);
}

Message ShellFault(std::string_view text)
{
    return IndexOf(kShells, text) >= 0 ? Message()
                                       : DidYouMean(MESSAGE("it is bash, zsh or fish"), text, kShells);
}

Message SetFault(const Arguments& arguments)
{
    if (arguments.Operands().size() < 3)
        return MESSAGE("FIELD=VALUE is missing, such as mode=AM");
    const RowChoice choice = std::get<RowChoice>(RowChoice::Read(arguments[1]));
    return choice.HasSettings() || choice.HasBanks() ? MESSAGE("set changes rows, not settings or banks")
                                                     : Message();
}

Message MergeFault(const Arguments& arguments)
{
    if (!arguments.Has("--take"))
        return MESSAGE("--take ROWS is missing: it says what is taken, such as bank:3 or all");
    const bool isSame = arguments[0] == arguments[1];
    return isSame ? MESSAGE("both names are the same file") : Message();
}

Message FilesFault(const Arguments& arguments)
{
    const Message fault = NoFileFault(arguments);
    return fault.empty() ? FormFault(arguments) : fault;
}

Message ExportFault(const Arguments& arguments)
{
    const auto& operands = arguments.Operands();
    if (arguments.Has("--to"))
        return NoFileFault(arguments);
    if (arguments.Has("--from-file") || operands.size() > 2)
        return MESSAGE("several files need a folder: add --to FOLDER");
    if (operands.size() < 2)
        return {MESSAGE("%1 is missing"), {std::string(operands.empty() ? "FILE" : "OUT.csv")}};
    return operands[0] == operands[1] && !IsStandard(operands[0])
               ? MESSAGE("both names are the same file, which would be replaced")
               : Message();
}

Message PrintFault(const Arguments& arguments)
{
    if (Message fault = NoFileFault(arguments); !fault.empty())
        return fault;
    if (arguments.Has("--pdf") && (arguments.Operands().size() != 1 || arguments.Has("--from-file")))
        return MESSAGE("--pdf takes one FILE");
    return PrintConflict(arguments);
}

Message ScopeAndFormFault(const Arguments& arguments)
{
    const Message fault = ScopeConflict(arguments);
    return fault.empty() ? FormFault(arguments) : fault;
}

}  // namespace rqm5
