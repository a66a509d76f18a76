#include "link/write_plan.h"

#include <algorithm>
#include <numeric>

#include "memory/bank_layout.h"

namespace rqm5 {
namespace {

/// Steps first to last of a section, as a person calls them.
Message NameOf(const WriteSection& section, std::size_t first, std::size_t last)
{
    if (section.kind == WriteSection::Kind::SendCount)
        return MESSAGE("Search Pass count");
    const MemoryArea& area = *section.area;
    const bool hasAll =
        area.id == Area::Presets || section.blocks.size() == static_cast<std::size_t>(area.blocks);
    const bool isWhole = hasAll && first == 0 && last + 1 == section.blocks.size();
    // Rows are always named: a group has only a part of them.
    if (isWhole && area.id != Area::Channels)
        return area.many;
    // Presets count as they are sent, the gap among them left out.
    const bool countsSteps = area.id == Area::Presets;
    const auto numberOf = [&](std::size_t step) {
        return area.firstNumber + (countsSteps ? static_cast<int>(step) : section.blocks[step]);
    };
    if (first == last)
        return {MESSAGE("%1 %2"), {area.one, numberOf(first)}};
    return {MESSAGE("%1 %2 to %3"), {area.many, numberOf(first), numberOf(last)}};
}

/// True when a step's block lies behind that of the step before it, as far as people count.
bool FollowsOn(const WriteSection& section, std::size_t step)
{
    return section.area->id == Area::Presets || section.blocks[step] == section.blocks[step - 1] + 1;
}

std::vector<int> Rows(RowRange rows)
{
    std::vector<int> blocks(static_cast<std::size_t>(rows.count));
    std::iota(blocks.begin(), blocks.end(), rows.first);
    return blocks;
}

}  // namespace

WritePlan::WritePlan(const CloneImage& image, const TransferScope& scope)
{
    if (scope.settings) {
        Add(Kind::Send, Area::Settings, false);
        Add(Kind::Send, Area::Vfo, false);
        Add(Kind::Send, Area::Presets, BlocksOf(AreaOf(Area::Presets), image), false);
    }
    if (scope.memory || scope.banks) {
        Add(Kind::Send, Area::BankSizes, true);
        Add(Kind::Send, Area::Links, true);
    }
    if (scope.memory)
        AddMemory(image, scope.selector);
}

WritePlan::WritePlan(const CloneImage& image, const std::set<int>& addresses, bool isCountAlone)
{
    const int settings2 = AreaOf(Area::Settings).AddressOf(kSettings2);
    const WritePlan whole(image, TransferScope{});
    for (const WriteSection& section : whole.Sections()) {
        std::vector<int> blocks;
        for (std::size_t step = 0; step < section.blocks.size(); ++step) {
            const int address = section.AddressOf(step);
            const bool isCount = section.kind == Kind::SendCount;
            if (addresses.contains(address) && (address != settings2 || isCount == isCountAlone))
                blocks.push_back(section.blocks[step]);
        }
        if (!section.IsRead())
            Add(section.kind, section.area->id, std::move(blocks), section.ofMemory);
    }
}

void WritePlan::AddMemory(const CloneImage& image, int selector)
{
    Add(Kind::Read, Area::Flags, true);
    Add(Kind::SendFlags, Area::Flags, true);
    if (selector == kSelectSearchPass || selector == kSelectAll) {
        Add(Kind::Send, Area::PassList, true);
        Add(Kind::Read, Area::Settings, {kSettings2}, true);
        Add(Kind::SendCount, Area::Settings, {kSettings2}, true);
    }
    Add(Kind::Send, Area::Channels, Rows(TransferRows(image, selector)), true);
}

void WritePlan::Add(Kind kind, Area area, bool ofMemory)
{
    Add(kind, area, Rows({0, AreaOf(area).blocks}), ofMemory);
}

void WritePlan::Add(Kind kind, Area area, std::vector<int> blocks, bool ofMemory)
{
    std::vector<StepState> states(blocks.size(), StepState::NotSent);
    if (!blocks.empty())
        sections_.push_back({kind, &AreaOf(area), std::move(blocks), ofMemory, std::move(states)});
}

int WritePlan::BlockCount() const
{
    std::size_t blocks = 0;
    for (const WriteSection& section : sections_)
        blocks += section.blocks.size();
    return static_cast<int>(blocks);
}

bool WritePlan::MayHaveSent(int address) const
{
    for (const WriteSection& section : sections_)
        for (std::size_t step = 0; step < section.blocks.size(); ++step)
            if (!section.IsRead() && section.AddressOf(step) == address &&
                section.states[step] != StepState::NotSent)
                return true;
    return false;
}

bool WritePlan::HasBegun() const
{
    return std::ranges::any_of(sections_, [](const WriteSection& section) {
        return !section.IsRead() && std::ranges::any_of(section.states, [](StepState state) {
            return state != StepState::NotSent;
        });
    });
}

Message WritePlan::BlocksThatAre(StepState state) const
{
    std::vector<Message> names;
    for (const WriteSection& section : sections_) {
        const std::size_t count = section.IsRead() ? 0 : section.states.size();
        for (std::size_t first = 0; first < count; ++first) {
            std::size_t end = first;
            while (end < count && section.states[end] == state && (end == first || FollowsOn(section, end)))
                ++end;
            if (end == first)
                continue;
            names.push_back(NameOf(section, first, end - 1));
            first = end;
        }
    }
    return names.empty() ? Message() : Message::List(std::move(names), ", ");
}

Message WritePlan::Summary() const
{
    const Message sent = BlocksThatAre(StepState::Sent);
    std::vector<Message> sentences = {sent.empty() ? Message(MESSAGE("Sent: nothing."))
                                                   : Message(MESSAGE("Sent: %1."), {sent})};
    const auto add = [&](const char* sentence, StepState state) {
        if (const Message names = BlocksThatAre(state); !names.empty())
            sentences.push_back({sentence, {names}});
    };
    add(MESSAGE("Refused: %1 (may hold its old or its new contents)."), StepState::Refused);
    add(MESSAGE("Without an answer: %1 (may hold its old or its new contents)."), StepState::UnderWay);
    add(MESSAGE("Not sent: %1."), StepState::NotSent);
    sentences.push_back(MESSAGE("Repeating the write completes it."));
    return Message::List(std::move(sentences), " ");
}

}  // namespace rqm5
