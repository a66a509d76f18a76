// What may be typed behind rq-m5, one word a line. Only read, never run.

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cli/command.h"
#include "cli/did_you_mean.h"
#include "cli/values.h"
#include "fuzz/require.h"
#include "image/display_text.h"
#include "memory/bank_layout.h"

namespace rqm5::fuzz {
namespace {

std::vector<std::string> Words(std::string_view input)
{
    std::vector<std::string> words;
    while (!input.empty()) {
        const std::size_t end = std::min(input.find('\n'), input.size());
        words.emplace_back(input.substr(0, end));
        input.remove_prefix(std::min(end + 1, input.size()));
    }
    return words;
}

const Command& CommandOf(const std::string& word)
{
    if (const Command* command = FindCommand(word))
        return *command;
    std::vector<std::string_view> names;
    for (const Command& command : Commands())
        names.push_back(command.name);
    const std::string hint = DidYouMean("", word, names).English();
    Require(VisibleText(hint).size() < 100, "a hint is short");
    return Commands()[word.size() % Commands().size()];
}

void CheckTaken(const Command& command, const Arguments& taken)
{
    std::vector<std::string> again;
    for (const Option& option : command.options) {
        if (!taken.Has(option.name))
            continue;
        const std::string value = taken.Value(option.name);
        Require(value.empty() == option.value.empty(), "a value where one is needed");
        Require(option.fault == nullptr || option.fault(value).empty(), "values are checked");
        again.push_back(std::string(option.name) + (value.empty() ? "" : "=") + value);
    }
    again.emplace_back("--");
    for (const std::string& operand : taken.Operands()) {
        Require(!operand.empty(), "no operand is empty");
        again.push_back(operand);
    }
    const auto parsed = ParseArguments(again, command.operands, command.options);
    Require(std::holds_alternative<Arguments>(parsed), "what was taken is taken again");
    Require(std::ranges::equal(std::get<Arguments>(parsed).Operands(), taken.Operands()),
            "operands stay as typed");
}

void CheckArguments(std::string_view input)
{
    const std::vector<std::string> words = Words(input);
    if (words.empty())
        return;
    const Command& command = CommandOf(words.front());
    const std::span<const std::string> rest = std::span(words).subspan(1);
    const auto parsed = ParseArguments(rest, command.operands, command.options);
    if (const auto* fault = std::get_if<UsageFault>(&parsed)) {
        Require(!fault->text.empty(), "a refusal says why");
        Require(VisibleText(fault->text.English()).find('\x1B') == std::string::npos,
                "no escape reaches the terminal");
        return;
    }
    const auto& taken = std::get<Arguments>(parsed);
    if (taken.WantsHelp())
        return;
    CheckTaken(command, taken);
    const int selector = SelectorOf(taken);
    Require(selector >= 0 && selector < kSelectorEntries, "the selector is one");
    if (command.conflict != nullptr)
        Require(command.conflict(taken).English().size() < 400, "a conflict is a sentence");
}

}  // namespace
}  // namespace rqm5::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    rqm5::fuzz::CheckArguments({reinterpret_cast<const char*>(data), size});
    return 0;
}
