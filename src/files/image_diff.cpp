#include "files/image_diff.h"

#include <algorithm>

#include "image/display_text.h"
#include "image/number_text.h"
#include "memory/row_names.h"
#include "settings/setting_texts.h"

namespace rqm5 {
namespace {

constexpr std::array<std::string_view, kTextColumns> kColumnNames = {
    "Frequency", "Mode", "Step",  "Option",          "Secret code",
    "Carrier",   "Tone", "Shift", "Shift frequency", "Note"};

using Lines = std::vector<std::string>;

std::string Change(const std::string& from, const std::string& to)
{
    return from + " -> " + to;
}

std::string OnOff(bool value)
{
    return value ? "on" : "off";
}

/// A row of either table, as it is compared.
struct Row
{
    const ChannelNumbers& numbers;
    const ChannelTexts& texts;
    bool isEnabled;

    bool IsEmpty() const
    {
        return std::all_of(numbers.begin(), numbers.end(), [](double number) { return number == 0; }) &&
               std::all_of(texts.begin(), texts.end() - 1,
                           [](const std::string& text) { return text.empty(); });
    }
};

std::string Channel(const Row& row)
{
    return row.IsEmpty() ? std::string("empty")
                         : VisibleText(row.texts[kFrequency]) + " " + VisibleText(row.texts[kMode]);
}

bool HasSkipBit(const Row& row)
{
    return static_cast<int>(row.numbers[kOption]) % 16 != 0;
}

void AddFieldChanges(const Row& a, const Row& b, Lines& changes)
{
    const bool skipDiffers = HasSkipBit(a) != HasSkipBit(b);
    for (std::size_t column = 0; column < kNote; ++column) {
        const std::string name = std::string(kColumnNames[column]) + " ";
        const double from = a.numbers[column];
        const double to = b.numbers[column];
        const bool isSkipAlone = column == kOption && skipDiffers;
        if (a.texts[column] != b.texts[column])
            changes.push_back(name + Change(VisibleText(a.texts[column]), VisibleText(b.texts[column])));
        else if (from != to && !isSkipAlone)  // a shift byte of no meaning shows as "OFF", too
            changes.push_back(name + Change(FormatMegahertz(from), FormatMegahertz(to)));
    }
    if (skipDiffers)
        changes.push_back("Skip " + Change(OnOff(HasSkipBit(a)), OnOff(HasSkipBit(b))));
}

/// \return what differs in a row, fields separated by commas; empty when nothing does
std::string RowChanges(const Row& a, const Row& b)
{
    Lines changes;
    if (a.IsEmpty() != b.IsEmpty())
        changes.push_back(Change(Channel(a), Channel(b)));
    else
        AddFieldChanges(a, b, changes);
    if (a.texts[kNote] != b.texts[kNote])
        changes.push_back("Note " + Change("\"" + VisibleText(a.texts[kNote]) + "\"",
                                           "\"" + VisibleText(b.texts[kNote]) + "\""));
    if (a.isEnabled != b.isEnabled)
        changes.push_back("Enabled " + Change(OnOff(a.isEnabled), OnOff(b.isEnabled)));
    std::string line;
    for (const std::string& change : changes)
        line += (line.empty() ? "" : ", ") + change;
    return line;
}

void AddLine(Lines& lines, const std::string& name, const std::string& change)
{
    if (!change.empty())
        lines.push_back(name + ": " + change);
}

void AddSettings(const CloneImage& a, const CloneImage& b, Lines& lines)
{
    const auto from = SettingTexts(a.Settings);
    const auto to = SettingTexts(b.Settings);
    for (std::size_t i = 0; i < from.size(); ++i)
        if (from[i].value != to[i].value)
            lines.push_back(from[i].caption + ": " + Change(from[i].value, to[i].value));
}

void AddRows(const CloneImage& a, const CloneImage& b, Lines& lines)
{
    for (std::size_t i = 0; i < a.VFOData.size(); ++i)
        AddLine(lines, VfoRowName(static_cast<int>(i)),
                RowChanges({a.VFOData[i], a.VFOText[i], false}, {b.VFOData[i], b.VFOText[i], false}));
    for (std::size_t i = 0; i < a.MemData.size(); ++i)
        AddLine(lines, RowName(a, static_cast<int>(i)),
                RowChanges({a.MemData[i], a.MemText[i], a.MemEnable[i]},
                           {b.MemData[i], b.MemText[i], b.MemEnable[i]}));
}

void AddBanks(const CloneImage& a, const CloneImage& b, Lines& lines)
{
    for (std::size_t i = 0; i < a.BankSize.size(); ++i)
        if (a.BankSize[i] != b.BankSize[i])
            lines.push_back(
                (i == kUnassigned ? "Channels in no bank: " : "Bank " + std::to_string(i) + " size: ") +
                Change(std::to_string(a.BankSize[i]), std::to_string(b.BankSize[i])));
    for (std::size_t i = 0; i < a.BankLink.size(); ++i)
        if (a.BankLink[i] != b.BankLink[i])
            lines.push_back((i < kBanks ? "Bank " : "Link flag ") + std::to_string(i) +
                            " link: " + Change(OnOff(a.BankLink[i]), OnOff(b.BankLink[i])));
}

}  // namespace

std::vector<std::string> DescribeDifferences(const CloneImage& a, const CloneImage& b)
{
    Lines lines;
    AddSettings(a, b, lines);
    AddRows(a, b, lines);
    AddBanks(a, b, lines);
    return lines;
}

}  // namespace rqm5
