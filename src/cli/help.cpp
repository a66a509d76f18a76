#include "cli/help.h"

#include <algorithm>

#include "image/display_text.h"

namespace rqm5 {
namespace {

constexpr int kTextWidth = 78;

std::string OptionText(const Option& option)
{
    std::string text(option.name);
    if (!option.value.empty())
        text.append(" ").append(option.value);
    return text;
}

/// The same with the short name in front.
std::string OptionNames(const Option& option)
{
    return (option.shortName.empty() ? "" : std::string(option.shortName) + ", ") + OptionText(option);
}

/// Blanks for line ends, so that no line is longer than the text width.
std::string Wrapped(std::string_view text)
{
    std::string lines;
    while (text.size() > kTextWidth) {
        const std::size_t blank = text.rfind(' ', kTextWidth);
        if (blank == std::string_view::npos)
            break;
        lines.append(text.substr(0, blank)).append("\n");
        text.remove_prefix(blank + 1);
    }
    return lines.append(text).append("\n");
}

std::string Sentence(std::string_view summary)
{
    std::string sentence = std::string(summary) + ".";
    sentence.front() = static_cast<char>(sentence.front() - 'a' + 'A');
    return sentence;
}

}  // namespace

std::string UsageLine(const Command& command)
{
    std::string line = "rq-m5 " + std::string(command.name);
    for (const Option& option : command.options)
        line += " [" + OptionText(option) + ']';
    for (const Operand& operand : command.operands)
        line.append(" ").append(operand.name);
    return line;
}

std::string ProgramHelp()
{
    std::string help =
        "Usage: rq-m5 COMMAND [OPTION...] [ARGUMENT...]\n"
        "Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.\n"
        "\nCommands:\n";
    for (const Command& command : Commands())
        help += "  " + PadToWidth(command.name, 8) + std::string(command.summary) + '\n';
    return help +
           "\nOptions:\n"
           "  --help     this text, or with a command the help of the command\n"
           "  --version  the version of the program\n"
           "\nExit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.\n";
}

std::string CommandHelp(const Command& command)
{
    std::string help = "Usage: " + UsageLine(command) + "\n\n" +
                       Wrapped(Sentence(command.summary) + " " + std::string(command.details));
    if (command.options.empty())
        return help;
    int width = 0;
    for (const Option& option : command.options)
        width = std::max(width, DisplayWidth(OptionNames(option)));
    help += "\nOptions:\n";
    for (const Option& option : command.options)
        help += "  " + PadToWidth(OptionNames(option), width + 2) + std::string(option.help) + '\n';
    return help;
}

}  // namespace rqm5
