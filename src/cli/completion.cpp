#include "cli/completion.h"

#include <algorithm>
#include <ostream>

#include "image/receiver_model.h"

namespace rqm5 {
namespace {

/// "a|b|c" as words; a placeholder in capitals is none.
std::vector<std::string> WordsIn(std::string_view text)
{
    std::vector<std::string> words;
    while (!text.empty()) {
        const std::size_t bar = std::min(text.find('|'), text.size());
        words.emplace_back(text.substr(0, bar));
        text.remove_prefix(std::min(bar + 1, text.size()));
    }
    return words;
}

std::vector<std::string> CommandNames()
{
    std::vector<std::string> names;
    for (const Command& command : Commands())
        names.emplace_back(command.name);
    return names;
}

}  // namespace

Offer OfferOf(std::string_view placeholder)
{
    constexpr std::pair<std::string_view, Offer::Kind> kKinds[] = {
        {"P", Offer::Kind::Ports},         {"SEL", Offer::Kind::Groups},
        {"ROWS", Offer::Kind::Rows},       {"TO", Offer::Kind::Rows},
        {"FOLDER", Offer::Kind::Folder},   {"FILE", Offer::Kind::CloneFile},
        {"A", Offer::Kind::CloneFile},     {"B", Offer::Kind::CloneFile},
        {"OTHER", Offer::Kind::CloneFile}, {"COPY", Offer::Kind::CloneFile},
        {"NEW", Offer::Kind::CloneFile},   {"OLD.RQ5", Offer::Kind::CloneFile},
        {"IN.csv", Offer::Kind::CsvFile},  {"OUT.csv", Offer::Kind::CsvFile},
        {"OUT.pdf", Offer::Kind::PdfFile}, {"PATTERN", Offer::Kind::Nothing},
        {"ADDRESS", Offer::Kind::Nothing},
    };
    const auto* known =
        std::ranges::find(kKinds, placeholder, &std::pair<std::string_view, Offer::Kind>::first);
    if (known != std::end(kKinds))
        return {known->second};
    if (placeholder == "0..3")
        return {Offer::Kind::Words, {"0", "1", "2", "3"}};
    if (placeholder == "COMMAND")
        return {Offer::Kind::Words, CommandNames()};
    if (placeholder == "FIELD=VALUE")
        return {Offer::Kind::Words,
                {"freq=", "mode=", "step=", "option=", "secret=", "carrier=", "tone=", "shift=", "offset=",
                 "note=", "skip=", "enabled="}};
    if (placeholder.find('|') != std::string_view::npos)
        return {Offer::Kind::Words, WordsIn(placeholder)};
    return {Offer::Kind::AnyFile};
}

Offer OfferOf(const Command& command, std::size_t operand)
{
    if (command.operands.empty())
        return {};
    // "FILE OUT.csv" is one kind of operand to the parser.
    if (operand > 0 && command.synopsis.find(".csv") != std::string_view::npos)
        return {Offer::Kind::AnyFile};
    const std::size_t last = command.operands.size() - 1;
    if (operand > last && command.operands[last].count != Count::Any)
        return {};
    return OfferOf(command.operands[std::min(operand, last)].name);
}

std::vector<std::string> GroupWords()
{
    std::vector<std::string> words = {"all"};
    for (const RowGroup& group : kRowGroups)
        words.emplace_back(group.option);
    for (int bank = 0; bank < kBanks; ++bank)
        words.push_back(std::to_string(bank));
    return words;
}

std::vector<std::string> RowWords()
{
    std::vector<std::string> words = {"all", "vfo", "settings", "banks", "memory:"};
    for (const RowGroup& group : kRowGroups)
        words.emplace_back(group.option);
    for (int bank = 0; bank < kBanks; ++bank)
        words.push_back("bank:" + std::to_string(bank));
    return words;
}

Status RunCompletion(const Arguments& arguments, Console& console)
{
    const std::string& shell = arguments[0];
    console.out << (shell == "zsh" ? ZshCompletion() : shell == "fish" ? FishCompletion() : BashCompletion());
    return Status::Done;
}

}  // namespace rqm5
