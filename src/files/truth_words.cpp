#include "files/truth_words.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "files/list_words.h"

namespace rqm5 {

std::optional<bool> TruthOf(std::string_view text)
{
    constexpr std::pair<std::string_view, bool> kWords[] = {
        {"true", true},   {"1", true},    {"yes", true}, {"wahr", true},      {"ja", true},
        {"vrai", true},   {"oui", true},  {"si", true},  {"verdadero", true}, {"vero", true},
        {"false", false}, {"0", false},   {"no", false}, {"falsch", false},   {"nein", false},
        {"faux", false},  {"non", false}, {"", false},   {"falso", false},
    };
    const std::string words = FoldedWords(text);
    // A cell such as "?" has no words either, but it says something.
    if (words.empty() && !Trimmed(text).empty())
        return std::nullopt;
    const auto* found = std::ranges::find(kWords, words, &std::pair<std::string_view, bool>::first);
    return found != std::end(kWords) ? std::optional(found->second) : std::nullopt;
}

}  // namespace rqm5
