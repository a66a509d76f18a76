#include "cli/help.h"

#include <algorithm>
#include <vector>

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

std::string OperandText(const Operand& operand)
{
    const std::string name(operand.name);
    return operand.count == Count::One ? name : operand.count == Count::Any ? name + "..." : '[' + name + ']';
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
    if (!command.synopsis.empty())
        return line.append(" ").append(command.synopsis);
    for (const Operand& operand : command.operands)
        line += ' ' + OperandText(operand);
    return line;
}

std::string ProgramHelp()
{
    std::string help =
        "Usage: rq-m5 COMMAND [OPTION...] [ARGUMENT...]\n"
        "Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.\n"
        "\nCommands:\n";
    for (const Command& command : Commands())
        help += "  " + PadToWidth(command.name, 12) + std::string(command.summary) + '\n';
    return help +
           "\nOptions:\n"
           "  -h, --help     this text, or with a command the help of the command\n"
           "  -V, --version  the version of the program\n"
           "  -q, --quiet    no progress, no closing line and no notes\n"
           "  -v, --verbose  every exchange with the receiver and every warning\n"
           "\n\"-\" as a file name is standard input or standard output.\n"
           "\nExit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.\n";
}

std::string CommandHelp(const Command& command)
{
    std::string help = "Usage: " + UsageLine(command) + "\n\n" +
                       Wrapped(Sentence(command.summary) + " " + std::string(command.details));
    std::vector<Option> options(command.options.begin(), command.options.end());
    options.insert(options.end(), CommonOptions().begin(), CommonOptions().end());
    int width = 0;
    for (const Option& option : options)
        width = std::max(width, DisplayWidth(OptionText(option)));
    help += "\nOptions:\n";
    for (const Option& option : options)
        help += "  " + PadToWidth(OptionText(option), width + 2) + std::string(option.help) + '\n';
    return help;
}

}  // namespace rqm5
