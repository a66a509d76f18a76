#include "link/write_plan.h"

#include <QtGlobal>

#include "link/commands.h"
#include "link/memory_map.h"
#include "memory/bank_layout.h"
#include "vfo/region_presets.h"

namespace rqm5 {
namespace {

#define TEXT(text) QT_TRANSLATE_NOOP("WriteRecord", text)

/// Addresses and names of blocks that follow each other.
struct BlockRun
{
    const char* one;
    const char* many;
    int firstNumber;
    int address;
    int count;
};

constexpr BlockRun kSettingsRuns[] = {
    {TEXT("settings block"), TEXT("settings"), 1, kSettings1Address, 2},
    {TEXT("VFO band"), TEXT("VFO bands"), 0, kVfoAddress, kVfoRows},
};
constexpr BlockRun kBankRuns[] = {
    {TEXT("bank size block"), TEXT("bank sizes"), 1, kBankAddress, 7},
    {TEXT("bank links"), TEXT("bank links"), 1, kLinkAddress, 1},
};
constexpr BlockRun kFlagRuns[] = {
    {"", nullptr, 1, kFlagAddress, 10},
    {TEXT("enable flag block"), TEXT("enable flags"), 1, kFlagAddress, 10},
};
constexpr BlockRun kSearchPassRuns[] = {
    {TEXT("Search Pass list block"), TEXT("Search Pass list"), 1, kPassAddress, 7},
    {"", nullptr, 1, kSettings2Address, 1},
    {TEXT("Search Pass count"), TEXT("Search Pass count"), 1, kSettings2Address, 1},
};

WriteSection SectionOf(const BlockRun& run, bool ofMemory)
{
    WriteSection section{run.one, run.many, run.firstNumber, ofMemory, false, {}};
    for (int i = 0; i < run.count; ++i)
        section.addresses.push_back(BlockAddress(run.address, i));
    return section;
}

template <std::size_t N>
void Add(std::vector<WriteSection>& plan, const BlockRun (&runs)[N], bool ofMemory)
{
    for (const BlockRun& run : runs)
        plan.push_back(SectionOf(run, ofMemory));
}

WriteSection Presets(int model)
{
    static const PresetTable table = InitPriset();
    const auto variant = static_cast<std::size_t>(PresetVariant(model));
    WriteSection section{TEXT("region preset"), TEXT("region presets"), 1, false, false, {}};
    for (std::size_t i = 0; i < static_cast<std::size_t>(kPresetCount.at(variant)); ++i)
        section.addresses.push_back(AddressOfCommand(table.at(variant).at(i)));
    return section;
}

void AddMemory(std::vector<WriteSection>& plan, const CloneImage& image, int selector)
{
    const RowRange rows = TransferRows(image, selector);
    Add(plan, kBankRuns, true);
    Add(plan, kFlagRuns, true);
    if (selector == kSelectSearchPass || selector == kSelectAll)
        Add(plan, kSearchPassRuns, true);
    plan.push_back(SectionOf(
        {TEXT("row"), TEXT("rows"), rows.first, BlockAddress(kChannelAddress, rows.first), rows.count},
        true));
    plan.back().isPart = true;
}

#undef TEXT

}  // namespace

std::vector<WriteSection> PlanWrite(const CloneImage& image, const TransferScope& scope)
{
    std::vector<WriteSection> plan;
    if (scope.settings) {
        Add(plan, kSettingsRuns, false);
        plan.push_back(Presets(image.Settings.model));
    }
    if (scope.memory)
        AddMemory(plan, image, scope.selector);
    else if (scope.banks)
        Add(plan, kBankRuns, true);
    return plan;
}

int BlocksToWrite(const CloneImage& image, const TransferScope& scope)
{
    std::size_t blocks = 0;
    for (const WriteSection& section : PlanWrite(image, scope))
        blocks += section.addresses.size();
    return static_cast<int>(blocks);
}

}  // namespace rqm5
