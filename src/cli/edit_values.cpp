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

std::string RowsFault(std::string_view text)
{
    const auto read = RowChoice::Read(text);
    const auto* fault = std::get_if<std::string>(&read);
    return fault != nullptr ? *fault : "";
}

std::string PlaceFault(std::string_view text)
{
    if (std::string fault = RowsFault(text); !fault.empty())
        return fault;
    const RowChoice choice = std::get<RowChoice>(RowChoice::Read(text));
    const bool isPlace = text.find(',') == std::string_view::npos && !choice.HasConditions() &&
                         !choice.HasSettings() && !choice.HasBanks() && choice.VfoRows().empty();
    return isPlace ? "" : "it is one place, such as bank:3 or bank:3/12";
}

std::string AssignmentFault(std::string_view text)
{
    const auto read = ReadAssignment(text);
    const auto* fault = std::get_if<std::string>(&read);
    return fault != nullptr ? *fault : "";
}

std::string SortKeyFault(std::string_view text)
{
    return IndexOf(kSortKeys, text) >= 0 ? "" : "it is frequency, note or mode" + DidYouMean(text, kSortKeys);
}

std::string ShellFault(std::string_view text)
{
    return IndexOf(kShells, text) >= 0 ? "" : "it is bash, zsh or fish" + DidYouMean(text, kShells);
}

std::string SetFault(const Arguments& arguments)
{
    if (arguments.Operands().size() < 3)
        return "FIELD=VALUE is missing, such as mode=AM";
    const RowChoice choice = std::get<RowChoice>(RowChoice::Read(arguments[1]));
    return choice.HasSettings() || choice.HasBanks() ? "set changes rows, not settings or banks" : "";
}

std::string MergeFault(const Arguments& arguments)
{
    if (!arguments.Has("--take"))
        return "--take ROWS is missing: it says what is taken, such as bank:3 or all";
    const bool isSame = arguments[0] == arguments[1];
    return isSame ? "both names are the same file" : "";
}

std::string FilesFault(const Arguments& arguments)
{
    const std::string fault = NoFileFault(arguments);
    return fault.empty() ? FormFault(arguments) : fault;
}

std::string ExportFault(const Arguments& arguments)
{
    const auto& operands = arguments.Operands();
    if (arguments.Has("--to"))
        return NoFileFault(arguments);
    if (arguments.Has("--from-file") || operands.size() > 2)
        return "several files need a folder: add --to FOLDER";
    if (operands.size() < 2)
        return operands.empty() ? "FILE is missing" : "OUT.csv is missing";
    return operands[0] == operands[1] && !IsStandard(operands[0])
               ? "both names are the same file, which would be replaced"
               : "";
}

std::string PrintFault(const Arguments& arguments)
{
    if (std::string fault = NoFileFault(arguments); !fault.empty())
        return fault;
    if (arguments.Has("--pdf") && (arguments.Operands().size() != 1 || arguments.Has("--from-file")))
        return "--pdf takes one FILE";
    return PrintConflict(arguments);
}

std::string ScopeAndFormFault(const Arguments& arguments)
{
    const std::string fault = ScopeConflict(arguments);
    return fault.empty() ? FormFault(arguments) : fault;
}

}  // namespace rqm5
