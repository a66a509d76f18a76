#include "cli/program.h"

#include <ostream>
#include <vector>

#include "cli/command.h"
#include "cli/did_you_mean.h"
#include "cli/help.h"
#include "image/display_text.h"

namespace rqm5 {
namespace {

Status RefuseUsage(Console& console, const std::string& program, const std::string& fault)
{
    console.err << program << ": " << VisibleText(fault) << "\nTry \"" << program << " --help\".\n";
    return Status::WrongUsage;
}

Status Print(Console& console, const std::string& text)
{
    console.out << text;
    return Status::Done;
}

Status RefuseCommand(Console& console, const std::string& typed)
{
    std::vector<std::string_view> names = {"--help", "--version"};
    for (const Command& command : Commands())
        names.push_back(command.name);
    const bool isOption = typed.starts_with('-');
    return RefuseUsage(console, "rq-m5",
                       std::string(isOption ? "unknown option \"" : "unknown command \"") + typed + '"' +
                           DidYouMean(typed, names));
}

Status RunCommand(const Command& command, std::span<const std::string> words, Console& console)
{
    const std::string program = "rq-m5 " + std::string(command.name);
    const auto parsed = ParseArguments(words, command.operands, command.options);
    if (const auto* fault = std::get_if<UsageFault>(&parsed))
        return RefuseUsage(console, program, fault->text);
    const auto& arguments = std::get<Arguments>(parsed);
    if (arguments.WantsHelp())
        return Print(console, CommandHelp(command));
    const std::string conflict = command.conflict != nullptr ? command.conflict(arguments) : "";
    return conflict.empty() ? command.run(arguments, console) : RefuseUsage(console, program, conflict);
}

}  // namespace

Status RunProgram(std::span<const std::string> words, Console& console)
{
    if (words.empty())
        return RefuseUsage(console, "rq-m5", "a command is missing");
    const std::string& first = words.front();
    if (first == "--help" || first == "-h")
        return Print(console, ProgramHelp());
    if (first == "--version")
        return Print(console, "rq-m5 " RQM5_VERSION "\n");
    const Command* command = FindCommand(first);
    return command != nullptr ? RunCommand(*command, words.subspan(1), console)
                              : RefuseCommand(console, first);
}

}  // namespace rqm5
