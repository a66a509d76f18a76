#include "cli/completion.h"

namespace rqm5 {
namespace {

/// Text within single quotes, as _arguments takes it.
std::string Quoted(std::string_view text)
{
    std::string quoted;
    for (const char c : text) {
        if (c == '\'')
            quoted += "'\\''";
        else if (c == '[' || c == ']' || c == ':' || c == '\\')
            quoted += std::string("\\") + c;
        else
            quoted += c;
    }
    return quoted;
}

std::string Words(const std::vector<std::string>& words)
{
    std::string text = "(";
    for (const std::string& word : words)
        text += (text.size() == 1 ? "" : " ") + Quoted(word);
    return text + ")";
}

std::string Action(const Offer& offer)
{
    switch (offer.kind) {
        case Offer::Kind::Words:
            return Words(offer.words);
        case Offer::Kind::Ports:
            return "_rq_m5_ports";
        case Offer::Kind::Groups:
            return Words(GroupWords());
        case Offer::Kind::Rows:
            return Words(RowWords());
        case Offer::Kind::Folder:
            return "_files -/";
        case Offer::Kind::AnyFile:
            return "_files";
        case Offer::Kind::CloneFile:
            return "_files -g \"*.(RQ5|rq5)\"";
        case Offer::Kind::CsvFile:
            return "_files -g \"*.(csv|CSV)\"";
        case Offer::Kind::PdfFile:
            return "_files -g \"*.(pdf|PDF)\"";
        case Offer::Kind::Nothing:
            break;
    }
    return " ";
}

std::string OptionLine(const Option& option)
{
    std::string line = "'" + std::string(option.name) + "[" + Quoted(option.help) + "]";
    if (!option.value.empty())
        line += ":" + Quoted(option.value) + ":" + Action(OfferOf(option.value));
    return line + "'";
}

std::string ArgumentLines(const Command& command)
{
    constexpr char kNext[] = " \\\n                ";
    std::string text = "_arguments '(- *)'{-h,--help}'[explain the command]'";
    for (const std::span<const Option> options : {command.options, CommonOptions()})
        for (const Option& option : options)
            text += kNext + OptionLine(option);
    for (std::size_t i = 0; i < command.operands.size(); ++i) {
        const Operand& operand = command.operands[i];
        const std::string place = operand.count == Count::Any ? "*" : std::to_string(i + 1);
        const bool isOptional = operand.count == Count::Optional;
        const Offer offer = command.synopsis.find(".csv") != std::string_view::npos
                                ? Offer{Offer::Kind::AnyFile}
                                : OfferOf(command, i);
        text += kNext + ("'" + place + (isOptional ? "::" : ":")) + Quoted(operand.name) + ":" +
                Action(offer) + "'";
    }
    return text;
}

}  // namespace

std::string ZshCompletion()
{
    std::string script =
        "#compdef rq-m5\n"
        "# Completion for rq-m5 in zsh, made by \"rq-m5 completion zsh\".\n"
        "_rq_m5_ports()\n{\n"
        "    local -a ports\n"
        "    ports=({1..14} ${(f)\"$(rq-m5 ports --tsv 2>/dev/null | tail -n +2 | cut -f 2)\"})\n"
        "    _alternative \"ports:port:(${(j: :)ports})\" 'files:device:_files'\n"
        "}\n"
        "_rq_m5()\n{\n"
        "    local context state state_descr line\n"
        "    typeset -A opt_args\n"
        "    _arguments -C '(- *)'{-h,--help}'[list the commands]' '(- *)'{-V,--version}'[the version]' \\\n"
        "        '(-q --quiet)'{-q,--quiet}'[no progress]' '(-v --verbose)'{-v,--verbose}'[every exchange]' "
        "\\\n"
        "        '1:command:->command' '*::argument:->argument'\n"
        "    case $state in\n"
        "        command)\n"
        "            local -a commands=(\n";
    for (const Command& command : Commands())
        script += "                '" + std::string(command.name) + ":" + Quoted(command.summary) + "'\n";
    script +=
        "            )\n"
        "            _describe command commands\n"
        "            ;;\n"
        "        argument)\n"
        "            case $words[1] in\n";
    for (const Command& command : Commands())
        script += "            " + std::string(command.name) + ")\n                " +
                  ArgumentLines(command) + "\n                ;;\n";
    return script +
           "            esac\n"
           "            ;;\n"
           "    esac\n"
           "}\n"
           "_rq_m5 \"$@\"\n";
}

}  // namespace rqm5
