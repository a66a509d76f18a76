#include "cli/completion.h"

namespace rqm5 {
namespace {

std::string Quoted(std::string_view text)
{
    std::string quoted = "'";
    for (const char c : text)
        quoted += c == '\'' || c == '\\' ? std::string("\\") + c : std::string(1, c);
    return quoted + "'";
}

std::string Joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return Quoted(text);
}

/// The options of "complete" that offer values.
std::string Source(const Offer& offer)
{
    switch (offer.kind) {
        case Offer::Kind::Words:
            return " -f -a " + Joined(offer.words);
        case Offer::Kind::Ports:
            return " -a '(seq 14; rq-m5 ports --tsv 2>/dev/null | tail -n +2 | cut -f 2)'";
        case Offer::Kind::Groups:
            return " -f -a " + Joined(GroupWords());
        case Offer::Kind::Rows:
            return " -f -a " + Joined(RowWords());
        case Offer::Kind::Folder:
            return " -f -a '(__fish_complete_directories)'";
        case Offer::Kind::AnyFile:
            return " -F";
        case Offer::Kind::CloneFile:
            return " -f -a '(__fish_complete_suffix .RQ5)'";
        case Offer::Kind::CsvFile:
            return " -f -a '(__fish_complete_suffix .csv)'";
        case Offer::Kind::PdfFile:
            return " -f -a '(__fish_complete_suffix .pdf)'";
        case Offer::Kind::Nothing:
            break;
    }
    return " -f";
}

/// The line of an option, which stands behind two dashes in the table.
std::string OptionLine(const Option& option, const std::string& condition)
{
    std::string line = "complete -c rq-m5" + condition + " -l " + std::string(option.name.substr(2));
    if (!option.value.empty())
        line += " -r" + Source(OfferOf(option.value));
    return line + " -d " + Quoted(option.help) + "\n";
}

}  // namespace

std::string FishCompletion()
{
    std::string script =
        "# Completion for rq-m5 in fish, made by \"rq-m5 completion fish\".\n"
        "complete -c rq-m5 -f\n"
        "complete -c rq-m5 -n __fish_use_subcommand -s V -l version -d 'The version of the program'\n"
        "complete -c rq-m5 -s h -l help -d 'Explain the command'\n";
    for (const Option& option : CommonOptions())
        script += "complete -c rq-m5 -s " + std::string(option.name.substr(2, 1)) + " -l " +
                  std::string(option.name.substr(2)) + " -d " + Quoted(option.help) + "\n";
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        const std::string condition = " -n '__fish_seen_subcommand_from " + name + "'";
        script +=
            "complete -c rq-m5 -n __fish_use_subcommand -a " + name + " -d " + Quoted(command.summary) + "\n";
        for (const Option& option : command.options)
            script += OptionLine(option, condition);
        for (std::size_t i = 0; i < command.operands.size(); ++i) {
            const bool holdsCsv = command.synopsis.find(".csv") != std::string_view::npos;
            script += "complete -c rq-m5" + condition +
                      Source(holdsCsv ? Offer{Offer::Kind::AnyFile} : OfferOf(command, i)) + "\n";
        }
    }
    return script;
}

}  // namespace rqm5
