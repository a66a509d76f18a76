#include "cli/values.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <vector>

#include "cli/did_you_mean.h"
#include "image/value_tables.h"
#include "link/com_ports.h"
#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

constexpr std::string_view kAllWord = "all";
constexpr std::array<std::string_view, 2> kScopeWords = {"settings", "memory"};
constexpr std::array<std::string_view, 2> kPaperWords = {"a4", "letter"};

bool IsNumber(std::string_view text)
{
    const std::size_t sign = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
    return text.size() > sign && text.find_first_not_of("0123456789", sign) == std::string_view::npos;
}

/// What stands behind "COM" in any letters; a text that does not begin with it stays.
std::string_view WithoutCom(std::string_view text)
{
    constexpr std::string_view kCom = "com";
    const auto isSame = [](char a, char b) { return (a | 0x20) == b; };
    if (!std::ranges::equal(text.substr(0, kCom.size()), kCom, isSame))
        return text;
    const std::size_t number = text.find_first_not_of(' ', kCom.size());
    return number == std::string_view::npos ? text : text.substr(number);
}

}  // namespace

std::optional<int> ReadNumberIn(std::string_view text, int lowest, int highest)
{
    int number = 0;
    const char* end = text.data() + text.size();
    const bool isDigits = text.find_first_not_of("0123456789") == std::string_view::npos;
    if (!isDigits || std::from_chars(text.data(), end, number).ec != std::errc())
        return std::nullopt;
    return number >= lowest && number <= highest ? std::optional<int>(number) : std::nullopt;
}

std::optional<int> ReadComNumber(std::string_view text)
{
    return ReadNumberIn(WithoutCom(text), 1, kComPorts);
}

std::optional<int> ReadSelector(std::string_view text)
{
    if (text == kAllWord)
        return kSelectAll;
    const auto* group = std::ranges::find(kRowGroups, text, &RowGroup::option);
    return group != kRowGroups.end() ? std::optional(group->selector) : ReadNumberIn(text, 0, kBanks - 1);
}

Message RegionFault(std::string_view text)
{
    return ReadNumberIn(text, 0, kRegions - 1) ? Message() : MESSAGE("regions are 0 to 3");
}

Message PortNumberFault(std::string_view text)
{
    const std::string_view number = AreComNamesDevices() ? text : WithoutCom(text);
    const bool isTaken = !IsNumber(number) || ReadComNumber(text);
    return isTaken ? Message()
                   : MESSAGE("port numbers are 1 to 14; a device path such as /dev/ttyUSB0 is taken too");
}

Message ScopeFault(std::string_view text)
{
    return IndexOf(kScopeWords, text) >= 0
               ? Message()
               : DidYouMean(MESSAGE("it is settings or memory"), text, kScopeWords);
}

Message SelectorFault(std::string_view text)
{
    if (ReadSelector(text))
        return {};
    std::vector<std::string_view> words;
    std::string list;
    for (const RowGroup& group : kRowGroups) {
        words.push_back(group.option);
        list += (list.empty() ? "" : ", ") + std::string(group.option);
    }
    words.push_back(kAllWord);
    const Message fault = {MESSAGE("it is a bank 0 to 49, %1 or %2"), {list, kAllWord}};
    return IsNumber(text) ? fault : DidYouMean(fault, text, words);
}

Message PaperFault(std::string_view text)
{
    return IndexOf(kPaperWords, text) >= 0 ? Message()
                                           : DidYouMean(MESSAGE("it is a4 or letter"), text, kPaperWords);
}

Message FileNameFault(std::string_view text)
{
    return text.empty() ? MESSAGE("the name of a file is missing") : Message();
}

TransferScope ScopeOf(const Arguments& arguments)
{
    const std::string only = arguments.Value("--only");
    const bool wantsSettings = only.empty() ? !arguments.Has("--bank") : only == "settings";
    return {wantsSettings, only != "settings", SelectorOf(arguments)};
}

Message ScopeConflict(const Arguments& arguments)
{
    const bool isConflict = arguments.Value("--only") == "settings" && arguments.Has("--bank");
    return isConflict ? MESSAGE("--bank chooses channels, and --only settings leaves them out") : Message();
}

Message PrintConflict(const Arguments& arguments)
{
    const bool isChosen = arguments.Has("--settings") || arguments.Has("--vfo");
    const bool hasMemory = arguments.Has("--memory") || !isChosen;
    for (const char* option : {"--bank", "--empty"})
        if (arguments.Has(option) && !hasMemory)
            return {MESSAGE("%1 is about channels, which are not printed; add --memory"),
                    {std::string(option)}};
    for (const char* option : {"--paper", "--landscape", "--force"})
        if (arguments.Has(option) && !arguments.Has("--pdf"))
            return {MESSAGE("%1 is about the pages of a PDF; add --pdf"), {std::string(option)}};
    return arguments.Has("--pdf") && arguments.Value("--pdf") == arguments[0] && arguments[0] != "-"
               ? MESSAGE("both names are the same file, which would be replaced")
               : Message();
}

int SelectorOf(const Arguments& arguments)
{
    return ReadSelector(arguments.Value("--bank", "all")).value_or(kSelectAll);
}

}  // namespace rqm5
