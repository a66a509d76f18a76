#include "cli/help.h"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

#include "image/display_text.h"
#include "language/translated.h"

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

bool IsOneOf(std::string_view text, std::initializer_list<std::string_view> beginnings)
{
    return std::ranges::any_of(beginnings, [text](std::string_view one) { return text.starts_with(one); });
}

/// True where a line may end between two characters: beside one of East Asia, which no blanks part, but not
/// before a sign that ends what is before it.
bool EndsLine(std::string_view before, std::string_view after)
{
    constexpr std::size_t kWideBytes = 3;
    const std::string_view last = before.substr(before.size() - std::min(before.size(), kWideBytes));
    const auto isWide = [](std::string_view text) {
        return IsOneOf(text, {"\xE3", "\xE4", "\xE5", "\xE6", "\xE7", "\xE8", "\xE9", "\xEF"});
    };
    return (isWide(last) || isWide(after)) &&
           !IsOneOf(after, {"、", "。", "）", "」", "ー", "・", ")", ",", "."}) &&
           !IsOneOf(last, {"（", "「"});
}

/// The first line of a text that is longer than one; the rest begins behind it, without its blank.
std::string_view FirstLine(std::string_view text)
{
    std::string_view line = CutToWidth(text, kTextWidth);
    if (line.size() == text.size() || text[line.size()] == ' ')
        return line;
    for (std::size_t end = line.size(); end > 0; --end) {
        const bool isInCharacter = (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U;
        if (text[end] == ' ' || (!isInCharacter && EndsLine(text.substr(0, end), text.substr(end))))
            return text.substr(0, end);
    }
    return text.substr(0, text.find(' '));
}

/// In lines that are no wider than the text width.
std::string Wrapped(std::string_view text)
{
    std::string lines;
    while (DisplayWidth(text) > kTextWidth) {
        const std::string_view line = FirstLine(text);
        if (line.size() == text.size())
            break;
        lines.append(line).append("\n");
        text.remove_prefix(line.size());
        if (text.starts_with(' '))
            text.remove_prefix(1);
    }
    return lines.append(text).append("\n");
}

/// What a command does, as sentences.
std::string Description(const Command& command)
{
    const QString text = Translated({MESSAGE("%1. %2"), {command.summary, command.details}});
    return (text.left(1).toUpper() + text.mid(1)).toStdString();
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
    constexpr std::pair<std::string_view, const char*> kSwitches[] = {
        {"-h, --help", MESSAGE("this text, or with a command the help of the command")},
        {"-V, --version", MESSAGE("the version of the program")},
        {"-q, --quiet", MESSAGE("no progress, no closing line and no notes")},
        {"-v, --verbose", MESSAGE("every exchange with the receiver and every warning")},
    };
    std::string help =
        Said({MESSAGE("Usage: %1"), {std::string("rq-m5 COMMAND [OPTION...] [ARGUMENT...]")}}) + '\n' +
        Said(MESSAGE("Reads, keeps and writes the memory of a Tervan RQ-M5 receiver.")) + "\n\n" +
        Said(MESSAGE("Commands:")) + '\n';
    for (const Command& command : Commands())
        help += "  " + PadToWidth(command.name, 12) + Said(command.summary) + '\n';
    help += '\n' + Said(MESSAGE("Options:")) + '\n';
    for (const auto& [name, text] : kSwitches)
        help += "  " + PadToWidth(name, 15) + Said(text) + '\n';
    return help + '\n' + Said(MESSAGE("\"-\" as a file name is standard input or standard output.")) +
           "\n\n" +
           Said(
               MESSAGE("Exit status: 0 done, 1 the operation failed or found a difference, 2 wrong usage.")) +
           '\n';
}

std::string CommandHelp(const Command& command)
{
    std::string help =
        Said({MESSAGE("Usage: %1"), {UsageLine(command)}}) + "\n\n" + Wrapped(Description(command));
    std::vector<Option> options(command.options.begin(), command.options.end());
    options.insert(options.end(), CommonOptions().begin(), CommonOptions().end());
    int width = 0;
    for (const Option& option : options)
        width = std::max(width, DisplayWidth(OptionText(option)));
    help += '\n' + Said(MESSAGE("Options:")) + '\n';
    for (const Option& option : options)
        help += "  " + PadToWidth(OptionText(option), width + 2) + Said(option.help) + '\n';
    return help;
}

}  // namespace rqm5
