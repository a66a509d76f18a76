#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "language/message.h"

namespace rqm5 {

/// Why a value is refused and what would be right, e.g. "regions are 0 to 3"; empty when it is taken.
using ValueCheck = Message (*)(std::string_view value);

/// How many operands of a kind a command takes.
enum class Count { One, Optional, Any };

struct Operand
{
    std::string_view name;
    ValueCheck fault = nullptr;
    Count count = Count::One;  ///< only the last operand is anything else
};

struct Option
{
    std::string_view name;   ///< with its dashes
    std::string_view value;  ///< what stands for its value in the usage line; empty for a switch
    const char* help;        ///< translated where it is shown
    ValueCheck fault = nullptr;
};

/// What a user typed behind a command, checked against what the command takes.
class Arguments
{
  public:
    const std::string& operator[](std::size_t operand) const { return operands_.at(operand); }
    bool Has(std::string_view option) const { return options_.find(option) != options_.end(); }

    /// All operands, however many.
    const std::vector<std::string>& Operands() const { return operands_; }

    /// All options with their values, by their names.
    const std::map<std::string, std::string, std::less<>>& Options() const { return options_; }

    /// The value given to an option, else the fallback.
    std::string Value(std::string_view option, std::string_view fallback = {}) const;

    bool WantsHelp() const { return Has("--help"); }

  private:
    friend class ArgumentParser;
    std::vector<std::string> operands_;
    std::map<std::string, std::string, std::less<>> options_;
};

/// The switches that every command takes.
std::span<const Option> CommonOptions();

/// What is wrong with a command line, and a hint.
struct UsageFault
{
    Message text;
};

/// Options may stand anywhere, as "--name value" or "--name=value"; behind "--" all are operands. With
/// "--help" nothing else is checked.
std::variant<Arguments, UsageFault> ParseArguments(std::span<const std::string> words,
                                                   std::span<const Operand> operands,
                                                   std::span<const Option> options);

}  // namespace rqm5
