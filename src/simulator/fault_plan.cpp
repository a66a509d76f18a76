#include "simulator/fault_plan.h"

#include <charconv>
#include <utility>

#include "image/double_from_chars.h"

namespace rqm5 {
namespace {

constexpr std::pair<std::string_view, FaultKind> kKinds[] = {
    {"no-echo", FaultKind::NoEcho}, {"drop", FaultKind::Drop},   {"cut", FaultKind::Cut},
    {"garble", FaultKind::Garble},  {"ng", FaultKind::Ng},       {"pieces", FaultKind::Pieces},
    {"late", FaultKind::Late},      {"noise", FaultKind::Noise}, {"hang-up", FaultKind::HangUp},
    {"silent", FaultKind::Silent},  {"stall", FaultKind::Stall}, {"flip", FaultKind::Flip},
    {"smear", FaultKind::Smear},
};

constexpr std::string_view kAfter = "after=";

bool ReadWhole(std::string_view text, double& number)
{
    const auto [end, error] = DoubleFromChars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool ReadWhole(std::string_view text, int& number)
{
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

FaultKind KindNamed(std::string_view name)
{
    for (const auto& [text, kind] : kKinds)
        if (text == name)
            return kind;
    return FaultKind::None;
}

/// A text with a point or a percent sign is a probability, any other a count.
bool ReadFrequency(std::string_view text, Fault& fault)
{
    const bool isPercent = text.ends_with('%');
    if (!isPercent && text.find('.') == std::string_view::npos)
        return ReadWhole(text, fault.count) && fault.count >= 0;
    if (isPercent)
        text.remove_suffix(1);
    if (!ReadWhole(text, fault.probability))
        return false;
    fault.probability /= isPercent ? 100 : 1;
    fault.count = 0;
    return fault.probability >= 0 && fault.probability <= 1;
}

}  // namespace

std::optional<Fault> ParseFault(std::string_view text)
{
    Fault fault;
    fault.kind = KindNamed(text.substr(0, text.find(':')));
    bool isGood = fault.kind != FaultKind::None;
    while (isGood && text.find(':') != std::string_view::npos) {
        text.remove_prefix(text.find(':') + 1);
        const std::string_view field = text.substr(0, text.find(':'));
        if (field.starts_with(kAfter))
            isGood = ReadWhole(field.substr(kAfter.size()), fault.after) && fault.after >= 0;
        else
            isGood = ReadFrequency(field, fault);
    }
    return isGood ? std::optional(fault) : std::nullopt;
}

std::string FaultKinds()
{
    std::string names;
    for (const auto& kind : kKinds)
        names += (names.empty() ? "" : ", ") + std::string(kind.first);
    return names;
}

FaultKind FaultPlan::Next()
{
    ++commands_;
    for (Fault& fault : faults_)
        if (commands_ > fault.after && Strikes(fault))
            return fault.kind;
    return FaultKind::None;
}

bool FaultPlan::Strikes(Fault& fault)
{
    if (fault.probability > 0)
        return std::uniform_real_distribution<>()(random_) < fault.probability;
    return fault.count > 0 && fault.count-- > 0;
}

int FaultPlan::Random(int below)
{
    return std::uniform_int_distribution(0, below - 1)(random_);
}

}  // namespace rqm5
