#include "cli/arguments.h"

#include <algorithm>

#include "cli/did_you_mean.h"

namespace rqm5 {
namespace {

constexpr std::string_view kHelp = "--help";

constexpr Option kCommon[] = {
    {"--quiet", "", MESSAGE("no progress, no closing line and no notes (also -q)")},
    {"--verbose", "", MESSAGE("every exchange with the receiver and every warning (also -v)")},
};

std::string Quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

bool IsOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

/// The name of an option that has a letter of its own.
std::string NameOf(const std::string& word)
{
    return word == "-q" ? "--quiet" : word == "-v" ? "--verbose" : word;
}

}  // namespace

std::span<const Option> CommonOptions()
{
    return kCommon;
}

std::string Arguments::Value(std::string_view option, std::string_view fallback) const
{
    const auto found = options_.find(option);
    return found != options_.end() ? found->second : std::string(fallback);
}

class ArgumentParser
{
  public:
    ArgumentParser(std::span<const std::string> words, std::span<const Operand> operands,
                   std::span<const Option> options)
        : words_(words), operands_(operands), options_(options)
    {
    }

    std::variant<Arguments, UsageFault> Parse()
    {
        const auto end = std::find(words_.begin(), words_.end(), "--");
        const auto isHelp = [](const std::string& word) { return word == kHelp || word == "-h"; };
        if (std::any_of(words_.begin(), end, isHelp)) {
            taken_.options_.emplace(kHelp, "");
            return taken_;
        }
        while (next_ < words_.size() && fault_.empty())
            TakeWord();
        if (fault_.empty())
            CheckOperands();
        if (!fault_.empty())
            return UsageFault{fault_};
        return taken_;
    }

  private:
    void TakeWord()
    {
        const std::string& word = words_[next_++];
        if (word == "--" && !onlyOperands_)
            onlyOperands_ = true;
        else if (!onlyOperands_ && IsOption(word))
            TakeOption(word);
        else
            taken_.operands_.push_back(word);
    }

    void TakeOption(const std::string& word)
    {
        const std::size_t equals = word.find('=');
        const std::string name = NameOf(word.substr(0, equals));
        const Option* option = Find(name);
        if (option == nullptr) {
            fault_ = DidYouMean({MESSAGE("unknown option \"%1\""), {name}}, name, OptionNames());
            return;
        }
        std::string value;
        if (equals != std::string::npos)
            value = word.substr(equals + 1);
        else if (!option->value.empty() && next_ < words_.size())
            value = words_[next_++];
        KeepOption(*option, value, equals != std::string::npos);
    }

    const Option* Find(const std::string& name) const
    {
        for (const std::span<const Option> options : {options_, CommonOptions()})
            for (const Option& known : options)
                if (known.name == name)
                    return &known;
        return nullptr;
    }

    void KeepOption(const Option& option, const std::string& value, bool wasAttached)
    {
        const std::string name(option.name);
        if (option.value.empty() && wasAttached)
            fault_ = {MESSAGE("%1 takes no value"), {name}};
        else if (!option.value.empty() && value.empty())
            fault_ = {MESSAGE("%1 needs a value: %2"), {name, name + ' ' + std::string(option.value)}};
        else if (!taken_.options_.emplace(name, value).second)
            fault_ = {MESSAGE("%1 is given twice"), {name}};
        else if (option.fault != nullptr)
            Refuse(name + ' ' + Quoted(value), option.fault(value));
    }

    void CheckOperands()
    {
        const std::size_t count = taken_.operands_.size();
        const Count last = operands_.empty() ? Count::One : operands_.back().count;
        const std::size_t needed = operands_.size() - (last == Count::One ? 0 : 1);
        if (count < needed)
            fault_ = {MESSAGE("%1 is missing"), {operands_[count].name}};
        else if (count > operands_.size() && last != Count::Any)
            fault_ = {MESSAGE("too many arguments: \"%1\""), {taken_.operands_[operands_.size()]}};
        for (std::size_t i = 0; i < count && fault_.empty(); ++i)
            CheckOperand(operands_[std::min(i, operands_.size() - 1)], taken_[i]);
    }

    void CheckOperand(const Operand& operand, const std::string& value)
    {
        if (operand.fault != nullptr)
            Refuse(std::string(operand.name) + ' ' + Quoted(value), operand.fault(value));
        else if (value.empty())
            fault_ = {MESSAGE("%1 is empty"), {operand.name}};
    }

    void Refuse(const std::string& what, const Message& why)
    {
        if (!why.empty())
            fault_ = Message(MESSAGE("%1: %2"), {what, why});
    }

    std::vector<std::string_view> OptionNames() const
    {
        std::vector<std::string_view> names = {kHelp};
        for (const std::span<const Option> options : {options_, CommonOptions()})
            for (const Option& option : options)
                names.push_back(option.name);
        return names;
    }

    std::span<const std::string> words_;
    std::span<const Operand> operands_;
    std::span<const Option> options_;
    std::size_t next_ = 0;
    bool onlyOperands_ = false;
    Arguments taken_;
    Message fault_;
};

std::variant<Arguments, UsageFault> ParseArguments(std::span<const std::string> words,
                                                   std::span<const Operand> operands,
                                                   std::span<const Option> options)
{
    return ArgumentParser(words, operands, options).Parse();
}

}  // namespace rqm5
