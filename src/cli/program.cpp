#include "cli/program.h"

#include <ostream>
#include <vector>

#include "cli/command.h"
#include "cli/did_you_mean.h"
#include "cli/help.h"

namespace rqm5 {
namespace {

Status RefuseUsage(Console& console, const std::string& program, const Message& fault)
{
    Say(console, Message::List({program, fault}, ": "));
    Say(console, {MESSAGE("Try \"%1\"."), {program + " --help"}});
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
    const Message fault = {isOption ? MESSAGE("unknown option \"%1\"") : MESSAGE("unknown command \"%1\""),
                           {typed}};
    return RefuseUsage(console, "rq-m5", DidYouMean(fault, typed, names));
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
    console.isQuiet = arguments.Has("--quiet");
    console.isVerbose = arguments.Has("--verbose");
    const Message conflict = command.conflict != nullptr ? command.conflict(arguments) : Message();
    return conflict.empty() ? command.run(arguments, console) : RefuseUsage(console, program, conflict);
}

/// Switches that stand in front of the command belong to it, too.
std::size_t LeadingSwitches(std::span<const std::string> words)
{
    std::size_t count = 0;
    while (count < words.size() && (words[count] == "-q" || words[count] == "-v" ||
                                    words[count] == "--quiet" || words[count] == "--verbose"))
        ++count;
    return count;
}

}  // namespace

Status RunHelp(const Arguments& arguments, Console& console)
{
    if (arguments.Operands().empty())
        return Print(console, ProgramHelp());
    const Command* command = FindCommand(arguments[0]);
    return command != nullptr ? Print(console, CommandHelp(*command)) : RefuseCommand(console, arguments[0]);
}

Status RunProgram(std::span<const std::string> words, Console& console)
{
    const std::size_t leading = LeadingSwitches(words);
    if (words.size() == leading)
        return RefuseUsage(console, "rq-m5", MESSAGE("a command is missing"));
    const std::string& first = words[leading];
    std::vector<std::string> rest(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(leading));
    rest.insert(rest.end(), words.begin() + static_cast<std::ptrdiff_t>(leading) + 1, words.end());
    if (first == "--help" || first == "-h")
        return Print(console, ProgramHelp());
    if (first == "--version" || first == "-V")
        return Print(console, "rq-m5 " RQM5_VERSION "\n");
    const Command* command = FindCommand(first);
    return command != nullptr ? RunCommand(*command, rest, console) : RefuseCommand(console, first);
}

}  // namespace rqm5
