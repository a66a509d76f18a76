#include "cli/arguments.h"

#include <algorithm>

#include "cli/did_you_mean.h"

namespace rqm5 {
namespace {

constexpr std::string_view kHelp = "--help";

std::string Quoted(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

bool IsOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

}  // namespace

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
        const std::string name = word.substr(0, equals);
        const auto option = std::find_if(options_.begin(), options_.end(), [&name](const Option& known) {
            return known.name == name || known.shortName == name;
        });
        if (option == options_.end()) {
            fault_ = "unknown option " + Quoted(name) + DidYouMean(name, OptionNames());
            return;
        }
        std::string value;
        if (equals != std::string::npos)
            value = word.substr(equals + 1);
        else if (!option->value.empty() && next_ < words_.size())
            value = words_[next_++];
        KeepOption(*option, value, equals != std::string::npos);
    }

    void KeepOption(const Option& option, const std::string& value, bool wasAttached)
    {
        const std::string name(option.name);
        if (option.value.empty() && wasAttached)
            fault_ = name + " takes no value";
        else if (!option.value.empty() && value.empty())
            fault_ = name + " needs a value: " + name + ' ' + std::string(option.value);
        else if (!taken_.options_.emplace(name, value).second)
            fault_ = name + " is given twice";
        else if (option.fault != nullptr)
            Refuse(name + ' ' + Quoted(value), option.fault(value));
    }

    void CheckOperands()
    {
        const std::size_t count = taken_.operands_.size();
        if (count < operands_.size())
            fault_ = std::string(operands_[count].name) + " is missing";
        else if (count > operands_.size())
            fault_ = "too many arguments: " + Quoted(taken_.operands_[operands_.size()]);
        for (std::size_t i = 0; i < operands_.size() && fault_.empty(); ++i)
            if (operands_[i].fault != nullptr)
                Refuse(std::string(operands_[i].name) + ' ' + Quoted(taken_[i]),
                       operands_[i].fault(taken_[i]));
            else if (taken_[i].empty())
                fault_ = std::string(operands_[i].name) + " is empty";
    }

    void Refuse(const std::string& what, const std::string& why)
    {
        if (!why.empty())
            fault_ = what + ": " + why;
    }

    std::vector<std::string_view> OptionNames() const
    {
        std::vector<std::string_view> names = {kHelp};
        for (const Option& option : options_)
            names.push_back(option.name);
        return names;
    }

    std::span<const std::string> words_;
    std::span<const Operand> operands_;
    std::span<const Option> options_;
    std::size_t next_ = 0;
    bool onlyOperands_ = false;
    Arguments taken_;
    std::string fault_;
};

std::variant<Arguments, UsageFault> ParseArguments(std::span<const std::string> words,
                                                   std::span<const Operand> operands,
                                                   std::span<const Option> options)
{
    return ArgumentParser(words, operands, options).Parse();
}

}  // namespace rqm5
