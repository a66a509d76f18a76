#include "cli/completion.h"

namespace rqm5 {
namespace {

std::string Joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

/// The call that offers values.
std::string Call(const Offer& offer)
{
    switch (offer.kind) {
        case Offer::Kind::Words:
            return "_rq_m5_words '" + Joined(offer.words) + "'";
        case Offer::Kind::Ports:
            return "_rq_m5_ports";
        case Offer::Kind::Groups:
            return "_rq_m5_words '" + Joined(GroupWords()) + "'";
        case Offer::Kind::Rows:
            return "_rq_m5_words '" + Joined(RowWords()) + "'";
        case Offer::Kind::Folder:
            return "_rq_m5_files -d";
        case Offer::Kind::AnyFile:
            return "_rq_m5_files -f";
        case Offer::Kind::CloneFile:
            return "_rq_m5_files RQ5";
        case Offer::Kind::CsvFile:
            return "_rq_m5_files csv";
        case Offer::Kind::PdfFile:
            return "_rq_m5_files pdf";
        case Offer::Kind::Nothing:
            break;
    }
    return ":";
}

constexpr char kHead[] = R"sh(# Completion for rq-m5 in bash, made by "rq-m5 completion bash".
_rq_m5_words()
{
    mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
    # A colon divides words in bash, which leaves what stands before it in place.
    if [[ $word == *:* && $COMP_WORDBREAKS == *:* ]]; then
        COMPREPLY=("${COMPREPLY[@]#"${word%"${word##*:}"}"}")
    fi
    if [[ ${COMPREPLY[0]} == *[=:] ]]; then
        compopt -o nospace
    fi
}
_rq_m5_ports()
{
    if [[ $word == /* ]]; then
        _rq_m5_files -f
    else
        _rq_m5_words "$(echo {1..14}; rq-m5 ports --tsv 2>/dev/null | tail -n +2 | cut -f 2)"
    fi
}
_rq_m5_files()
{
    compopt -o filenames
    case $1 in
        -*) mapfile -t COMPREPLY < <(compgen "$1" -- "$word") ;;
        *) mapfile -t COMPREPLY < <(compgen -d -- "$word"; compgen -f -- "$word" | grep -i "\.$1\$") ;;
    esac
}
_rq_m5()
{
    local word=$2 previous=$3 command="" operand=0 i
    COMPREPLY=()
    if declare -F _get_comp_words_by_ref >/dev/null; then
        local cur prev
        _get_comp_words_by_ref -n : cur prev
        word=$cur previous=$prev
    fi
    for ((i = 1; i < COMP_CWORD; i++)); do
        if [[ ${COMP_WORDS[i]} == -?* || ${COMP_WORDS[i]} == [:=] || ${COMP_WORDS[i - 1]} == [:=] ]]; then
            continue
        elif [[ -z $command ]]; then
            command=${COMP_WORDS[i]}
        elif [[ " $(_rq_m5_valued "$command") " != *" ${COMP_WORDS[i - 1]} "* ]]; then
            ((operand++))
        fi
    done
    if [[ -z $command ]]; then
        _rq_m5_words '<COMMANDS> --help --version --quiet --verbose'
        return
    fi
    case $command:$previous in
<VALUES>    esac
    if [[ $word == -* ]]; then
        _rq_m5_words "$(_rq_m5_options "$command")"
        return
    fi
    # Bash splits "bank:3" into three words; what is typed last belongs to the first of them.
    if [[ $word == *:* && $COMP_WORDBREAKS == *:* && $operand -gt 0 && ${COMP_WORDS[COMP_CWORD]} != *:* ]]; then
        ((operand--))
    fi
    case $command:$operand in
<OPERANDS>    esac
}
)sh";

void Replace(std::string& text, const std::string& mark, const std::string& by)
{
    text.replace(text.find(mark), mark.size(), by);
}

/// A function that prints words for a command.
std::string Function(const std::string& name, bool onlyValued)
{
    std::string text = name + "()\n{\n    case $1 in\n";
    for (const Command& command : Commands()) {
        std::string words;
        for (const Option& option : command.options)
            if (!onlyValued || !option.value.empty())
                words += (words.empty() ? "" : " ") + std::string(option.name);
        if (!onlyValued)
            words += (words.empty() ? "" : " ") + std::string("--help --quiet --verbose");
        text += "        " + std::string(command.name) + ") echo '" + words + "' ;;\n";
    }
    return text + "    esac\n}\n";
}

}  // namespace

std::string BashCompletion()
{
    std::string commands;
    std::string values;
    std::string operands;
    for (const Command& command : Commands()) {
        const std::string name(command.name);
        commands += (commands.empty() ? "" : " ") + name;
        for (const Option& option : command.options)
            if (!option.value.empty())
                values += "        " + name + ":" + std::string(option.name) + ") " +
                          Call(OfferOf(option.value)) + "; return ;;\n";
        for (std::size_t i = 0; i < command.operands.size(); ++i)
            operands += "        " + name + ":" +
                        (i + 1 < command.operands.size() || i == 0 ? std::to_string(i) : "*") + ") " +
                        Call(OfferOf(command, i)) + " ;;\n";
        if (command.operands.size() == 1 && command.operands[0].count != Count::One)
            operands += "        " + name + ":*) " + Call(OfferOf(command, 1)) + " ;;\n";
    }
    std::string script = kHead;
    Replace(script, "<COMMANDS>", commands);
    Replace(script, "<VALUES>", values);
    Replace(script, "<OPERANDS>", operands);
    return script + Function("_rq_m5_options", false) + Function("_rq_m5_valued", true) +
           "complete -F _rq_m5 rq-m5\n";
}

}  // namespace rqm5
