#include "printing/listing.h"

#include <algorithm>

#include "image/display_text.h"
#include "memory/bank_layout.h"
#include "memory/table_titles.h"
#include "printing/text_columns.h"
#include "settings/setting_texts.h"
#include "vfo/vfo_cells.h"

namespace rqm5 {
namespace {

struct MemoryEntry
{
    int row;
    std::string label;
};

struct MemoryGroup
{
    std::string title;
    std::vector<MemoryEntry> entries;
};

ListingSection SettingsSection(const CloneImage& image)
{
    ListingSection section{"Settings", "", {}};
    TextColumns columns("|");
    std::vector<Cells> table;
    for (int setting = 0; setting < kSettingsInWords; ++setting) {
        table.push_back(
            {SettingCaption(setting).English() + ":", SettingText(image.Settings(), setting).English()});
        columns.Fit(table.back());
    }
    for (const Cells& cells : table)
        std::ranges::copy(columns.Lines(cells), std::back_inserter(section.rows));
    return section;
}

ListingSection TableSection(std::string title, const TextColumns& columns, const std::vector<Cells>& table)
{
    ListingSection section{std::move(title), columns.Titles(), {}};
    for (const Cells& cells : table)
        std::ranges::copy(columns.Lines(cells), std::back_inserter(section.rows));
    if (section.rows.empty())
        section.rows.emplace_back(kNoEntries);
    return section;
}

ListingSection VfoSection(const CloneImage& image)
{
    TextColumns columns(kVfoTitles);
    std::vector<Cells> table;
    for (int row = 0; row < kVfoRows; ++row) {
        Cells cells = {std::to_string(row)};
        for (const Column column : kColumns)
            cells.push_back(VfoCell(image, row, column));
        columns.Fit(cells);
        table.push_back(std::move(cells));
    }
    return TableSection("VFO", columns, table);
}

std::string GroupTitle(const CloneImage& image, int group, const std::vector<MemoryEntry>& entries)
{
    const auto used = std::ranges::count_if(
        entries, [&image](const MemoryEntry& entry) { return image.MemData(entry.row).HasChannel(); });
    const bool isLinked = group < kBanks && image.BankLink(group);
    return SelectorText(group).English() + " (" + std::to_string(used) + " of " +
           std::to_string(entries.size()) + " rows used" + (isLinked ? ", linked)" : ")");
}

MemoryGroup GroupOf(const CloneImage& image, int group)
{
    const RowRange rows = GroupRows(image, group);
    const std::vector<std::string> labels = BuildChannelLabels(image, group);
    std::vector<MemoryEntry> entries;
    entries.reserve(labels.size());
    for (int i = 0; i < rows.count; ++i)
        entries.push_back({rows.first + i, labels.at(static_cast<std::size_t>(i))});
    return {GroupTitle(image, group, entries), std::move(entries)};
}

/// Channels that no bank reaches would be missing from a listing of everything, and with them the reason
/// why the receiver does not show them.
MemoryGroup InNoBank(const CloneImage& image, bool skipEmpty)
{
    MemoryGroup group{"In no bank", {}};
    for (int row = TotalBankSize(image); row < kBankRows; ++row)
        if (!skipEmpty || image.MemData(row).HasChannel())
            group.entries.push_back({row, std::to_string(row)});
    return group;
}

std::vector<MemoryGroup> ChosenGroups(const CloneImage& image, const ListingChoice& choice)
{
    if (choice.group != kSelectAll)
        return {GroupOf(image, choice.group)};
    std::vector<MemoryGroup> groups;
    for (int bank = 0; bank < kBanks; ++bank)
        if (image.BankSize(bank) > 0)
            groups.push_back(GroupOf(image, bank));
    if (MemoryGroup unreachable = InNoBank(image, choice.skipEmpty); !unreachable.entries.empty())
        groups.push_back(std::move(unreachable));
    for (const RowGroup& group : kRowGroups)
        groups.push_back(GroupOf(image, group.selector));
    return groups;
}

/// Paper has no grey text to tell a disabled row by, so a column says it. An empty row is
/// hardly ever enabled; marking it would only be noise.
Cells MemoryCells(const CloneImage& image, const MemoryEntry& entry)
{
    const Channel& row = image.MemData(entry.row);
    const bool isOff = row.HasChannel() && !row.enabled;
    Cells cells = {entry.label, isOff ? "x" : ""};
    for (const Column column : kColumns)
        cells.push_back(CellText(row, RowKind::Memory, image.ModelNo(), column));
    return cells;
}

void AddMemorySections(const CloneImage& image, const ListingChoice& choice, Listing& listing)
{
    // All groups share the widths, so that a column stays where it is from page to page.
    TextColumns columns("|Off" + std::string(kMemoryTitles));
    std::vector<std::pair<std::string, std::vector<Cells>>> tables;
    for (const MemoryGroup& group : ChosenGroups(image, choice)) {
        std::vector<Cells>& table = tables.emplace_back(group.title, std::vector<Cells>()).second;
        for (const MemoryEntry& entry : group.entries) {
            if (choice.skipEmpty && !image.MemData(entry.row).HasChannel())
                continue;
            table.push_back(MemoryCells(image, entry));
            columns.Fit(table.back());
        }
    }
    for (const auto& [title, table] : tables)
        listing.push_back(TableSection("Memory: " + title, columns, table));
}

}  // namespace

Listing BuildListing(const CloneImage& image, const ListingChoice& choice)
{
    Listing listing;
    if (choice.settings)
        listing.push_back(SettingsSection(image));
    if (choice.vfo)
        listing.push_back(VfoSection(image));
    if (choice.memory)
        AddMemorySections(image, choice, listing);
    return listing;
}

int ListingWidth(const Listing& listing)
{
    int width = 0;
    for (const ListingSection& section : listing) {
        width = std::max({width, DisplayWidth(section.title), DisplayWidth(section.columnHead)});
        for (const std::string& row : section.rows)
            width = std::max(width, DisplayWidth(row));
    }
    return width;
}

std::string FormatListing(const Listing& listing)
{
    const std::string rule(static_cast<std::size_t>(ListingWidth(listing)), '-');
    std::string text;
    for (const ListingSection& section : listing) {
        text += (text.empty() ? "" : "\n") + section.title + "\n";
        if (!section.columnHead.empty())
            text += section.columnHead + "\n";
        text += rule + "\n";
        for (const std::string& row : section.rows)
            text += row + "\n";
    }
    return text;
}

}  // namespace rqm5
