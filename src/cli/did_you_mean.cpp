#include "cli/did_you_mean.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace rqm5 {
namespace {

/// No name is as long as this; comparing longer words would only cost time.
constexpr std::size_t kLongestTypo = 64;

/// How many letters must be put in, left out or changed to make one word of the other.
std::size_t Distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t changed = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

}  // namespace

Message DidYouMean(const Message& fault, std::string_view typed, std::span<const std::string_view> known)
{
    if (typed.size() > kLongestTypo)
        return fault;
    std::string_view nearest;
    std::size_t best = std::max<std::size_t>(2, typed.size() / 3) + 1;
    for (const std::string_view word : known) {
        const std::size_t distance = Distance(typed, word);
        if (distance < best && distance < word.size()) {
            best = distance;
            nearest = word;
        }
    }
    return nearest.empty() ? fault : Message(MESSAGE("%1; did you mean \"%2\"?"), {fault, nearest});
}

}  // namespace rqm5
