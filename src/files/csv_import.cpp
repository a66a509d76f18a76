#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "files/csv_fields.h"
#include "files/csv_file.h"
#include "files/csv_groups.h"
#include "files/text_encoding.h"
#include "image/channel_record.h"
#include "image/number_text.h"

namespace rqm5 {
namespace {

constexpr double kFrequencyLimit = 10000;  ///< MHz; four digits before the point
constexpr double kShiftLimit = 100;        ///< MHz; two digits

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    for (char& c : upper)
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    return upper;
}

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string KeyText(const std::string& field)
{
    return UpperCase(Trimmed(field));
}

bool IsTrue(const std::string& field)
{
    const std::string text = KeyText(field);
    return text == "#TRUE#" || text == "TRUE";
}

/// A row of the image that a record names.
struct Target
{
    RowKind kind;
    int row;
};

/// A channel number 0 to count - 1 typed as digits, nothing for any other text.
std::optional<int> ChannelNumber(const std::string& channel, int count)
{
    const bool isNumber = channel.front() >= '0' && channel.front() <= '9';
    const double number = ReadNumber(channel);
    if (!isNumber || number != std::trunc(number) || number >= count)
        return std::nullopt;
    return static_cast<int>(number);
}

/// The Program Scan edge of a label: P0A to P49B as an export writes them, 0A to 49B as the table does.
std::optional<int> ScanEdge(std::string_view channel)
{
    if (channel.starts_with('P'))
        channel.remove_prefix(1);
    const int pair = ReadInteger(channel);
    const int edge = 2 * std::clamp(pair, 0, 49) + (channel.ends_with('B') ? 1 : 0);
    return channel == ProgramScanLabel(edge).substr(1) ? std::optional(edge) : std::nullopt;
}

/// The channel of a label: 0, 1, ... as an export writes it, or behind the prefix that the table of all
/// rows has.
std::optional<int> LabelledChannel(std::string_view channel, std::string_view prefix, int count)
{
    if (channel.starts_with(prefix))
        channel.remove_prefix(prefix.size());
    const int number = ReadInteger(channel);
    const bool isLabel = number >= 0 && number < count && channel == std::to_string(number);
    return isLabel ? std::optional(number) : std::nullopt;
}

std::optional<int> GroupChannel(const std::string& channel, const CsvGroup& group)
{
    switch (group.first) {
        case 0:
            return ChannelNumber(channel, group.count);
        case kProgramScanFirst:
            return ScanEdge(channel);
        case kSearchPassFirst:
            return LabelledChannel(channel, "S", group.count);
        default:
            return LabelledChannel(channel, "PR", group.count);
    }
}

std::optional<Target> FindTarget(const std::string& bank, const std::string& channel)
{
    if (bank == kCsvVfo) {
        const auto row = ChannelNumber(channel, kVfoRows);
        return row ? std::optional(Target{RowKind::Vfo, *row}) : std::nullopt;
    }
    for (const CsvGroup& group : kCsvGroups) {
        if (bank != group.bank)
            continue;
        const auto number = GroupChannel(channel, group);
        return number ? std::optional(Target{RowKind::Memory, group.first + *number}) : std::nullopt;
    }
    return std::nullopt;
}

bool IsBank(const std::string& bank)
{
    return bank == kCsvVfo || std::any_of(kCsvGroups.begin(), kCsvGroups.end(),
                                          [&](const CsvGroup& group) { return bank == group.bank; });
}

/// A number of MHz rounded to 1 Hz, or the previous one when a block could not hold it.
double MegahertzOr(double previous, std::string_view text, double limit)
{
    constexpr double kHertz = 1e6;
    const double value = std::round(ReadNumber(text) * kHertz) / kHertz;
    return value >= 0 && value < limit ? std::abs(value) : previous;
}

double StepOr(double previous, std::string_view text)
{
    // The steps between are set by the receiver alone and are not taken from a file.
    constexpr int kFirstUntaken = 14;
    constexpr int kLastUntaken = 18;
    const int step = IndexOf(StepName, text);
    return step < 0 || (step >= kFirstUntaken && step <= kLastUntaken) ? previous : step;
}

double OptionOr(double previous, std::string_view text, bool isSkipped)
{
    const int found = text == "Scrt" ? 1 : IndexOf(OptionName, text);
    const int option = found >= 0 ? found : static_cast<int>(previous) / 16;
    return option * 16 + (isSkipped ? 8 : 0);
}

double SecretOr(double previous, std::string_view text)
{
    const int code = ReadInteger(text);
    return code >= 0 && code < kSecretCodes ? code : previous;
}

double CarrierOr(double previous, std::string_view text)
{
    if (text == "JR")
        return kCarrierJr;
    // Everything else reads and writes (code + 3) * 100, so an import moves each code up by one. That is
    // deliberate.
    const int code = ReadInteger(text) / 100 - 2;
    return code >= 0 && code < kCarrierJr ? code : previous;
}

std::string ImportedCarrierText(int code)
{
    return code == kCarrierJr ? CarrierText(code) : std::to_string((code + 2) * 100) + "Hz";
}

double ToneOr(double previous, std::string_view text)
{
    static const auto kTones = [] {
        std::array<double, ToneName.size()> tones{};
        std::transform(ToneName.begin(), ToneName.end(), tones.begin(), ReadNumber);
        return tones;
    }();
    const auto* found = std::find(kTones.begin(), kTones.end(), ReadNumber(text));
    return found == kTones.end() ? previous : static_cast<double>(found - kTones.begin());
}

double ShiftOf(std::string_view text)
{
    const std::string upper = UpperCase(text);
    return upper == "+SHIFT" ? 0x10 : upper == "-SHIFT" ? 0x20 : 0;
}

/// Notes are single lines without control characters everywhere else.
std::string PlainNote(std::string_view field)
{
    std::string note;
    for (std::size_t i = 0; i < field.size(); ++i) {
        const auto code = static_cast<unsigned char>(field[i]);
        const bool isSecondOfLineEnd = code == '\n' && i > 0 && field[i - 1] == '\r';
        if (!isSecondOfLineEnd)
            note += code < 0x20 || code == 0x7F ? ' ' : field[i];
    }
    return note;
}

ChannelNumbers ImportedNumbers(const ChannelTexts& fields, bool isSkipped, const ChannelNumbers& previous)
{
    ChannelNumbers numbers{};
    numbers[kFrequency] = MegahertzOr(previous[kFrequency], fields[kFrequency], kFrequencyLimit);
    if (numbers[kFrequency] == 0)
        return numbers;
    const int mode = IndexOf(ModeName, fields[kMode]);
    numbers[kMode] = mode < 0 ? previous[kMode] : mode;
    numbers[kStep] = StepOr(previous[kStep], fields[kStep]);
    numbers[kOption] = OptionOr(previous[kOption], fields[kOption], isSkipped);
    numbers[kSecret] = SecretOr(previous[kSecret], fields[kSecret]);
    numbers[kCarrier] = CarrierOr(previous[kCarrier], fields[kCarrier]);
    numbers[kTone] = ToneOr(previous[kTone], fields[kTone]);
    numbers[kShift] = ShiftOf(fields[kShift]);
    numbers[kShiftFrequency] = MegahertzOr(previous[kShiftFrequency], fields[kShiftFrequency], kShiftLimit);
    return numbers;
}

/// The display texts of numbers, all empty for an empty row.
ChannelTexts DisplayTexts(const ChannelNumbers& numbers, RowKind kind)
{
    if (numbers[kFrequency] == 0)
        return {};
    const auto code = [&](Column column) { return static_cast<int>(numbers[column]); };
    const int option = code(kOption);
    const bool isVfo = kind == RowKind::Vfo;
    return {FormatMegahertz(numbers[kFrequency]),
            std::string(TextAt(ModeName, code(kMode))),
            std::string(TextAt(StepName, code(kStep))),
            std::string(isVfo ? TextAt(OptionName, option / 16) : MemoryOptionText(option)),
            std::to_string(code(kSecret)),
            ImportedCarrierText(code(kCarrier)),
            std::string(TextAt(ToneName, code(kTone))),
            std::string(TextAt(ShiftName, code(kShift) / 16)),
            FormatMegahertz(numbers[kShiftFrequency]),
            ""};
}

/// What follows the three key fields of a record.
struct RecordFields
{
    ChannelTexts texts;
    bool isSkipped = false;
    bool isEnabled = false;
};

std::optional<RecordFields> ReadRecordFields(CsvFieldReader& reader)
{
    RecordFields record;
    for (std::string& text : record.texts) {
        auto field = reader.Next();
        if (!field)
            return std::nullopt;
        text = *std::move(field);
    }
    const auto skip = reader.Next();
    const auto enable = reader.Next();
    if (!skip || !enable)
        return std::nullopt;
    record.isSkipped = IsTrue(*skip);
    record.isEnabled = IsTrue(*enable);
    return record;
}

void Store(const RecordFields& record, Target target, CloneImage& image)
{
    const auto row = static_cast<std::size_t>(target.row);
    const bool isVfo = target.kind == RowKind::Vfo;
    ChannelNumbers& numbers = isVfo ? image.VFOData[row] : image.MemData[row];
    numbers = ImportedNumbers(record.texts, record.isSkipped, numbers);
    ChannelTexts& texts = isVfo ? image.VFOText[row] : image.MemText[row];
    texts = DisplayTexts(numbers, target.kind);
    texts[kNote] = PlainNote(record.texts[kNote]);
    if (!isVfo)
        image.MemEnable[row] = record.isEnabled;
}

/// Reads on from a field that should be a MODEL.
/// \return the row that the record names, nothing when it is to be passed over
std::optional<Target> ReadTarget(CsvFieldReader& reader, const std::string& model)
{
    if (model != kCsvModel)
        return std::nullopt;
    const auto bank = reader.Next();
    if (!bank || !IsBank(KeyText(*bank)))
        return std::nullopt;
    const auto channel = reader.Next();
    if (!channel || KeyText(*channel).empty())
        return std::nullopt;
    return FindTarget(KeyText(*bank), KeyText(*channel));
}

}  // namespace

int ParseCsv(std::string_view text, CloneImage& image)
{
    const std::string decoded = DecodeFileText(text);
    CsvFieldReader reader(decoded);
    int taken = 0;
    while (const auto model = reader.Next()) {
        const auto target = ReadTarget(reader, *model);
        if (!target)
            continue;
        const auto record = ReadRecordFields(reader);
        if (!record)
            break;
        Store(*record, *target, image);
        ++taken;
    }
    return taken;
}

}  // namespace rqm5
