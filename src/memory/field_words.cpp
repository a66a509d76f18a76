#include "memory/field_words.h"

#include <algorithm>
#include <array>

#include "image/number_text.h"
#include "image/value_tables.h"
#include "memory/channel_editor.h"

namespace rqm5 {
namespace {

constexpr int kOptionUnit = 16;
constexpr int kCarrierOption = 2;
constexpr int kMostOffset = 100;  ///< MHz, not reached

struct FieldWord
{
    std::string_view word;
    int part;
};

/// The first word of a part is the one that messages use.
constexpr FieldWord kFieldWords[] = {
    {"freq", kFrequency},        {"mode", kMode},       {"step", kStep},     {"option", kOption},
    {"secret", kSecret},         {"carrier", kCarrier}, {"tone", kTone},     {"shift", kShift},
    {"offset", kShiftFrequency}, {"note", kNote},       {"skip", kSkipPart}, {"enabled", kEnabledPart},
    {"frequency", kFrequency},
};
constexpr std::size_t kFirstWords = 12;

/// The names of a choice's values, in the order of their numbers.
struct Choices
{
    int part;
    int ChannelFields::*field;
    int count;
    std::string (*name)(int value);
    const char* range;  ///< for messages: the id of one
};

template <const auto& Names>
std::string NameText(int value)
{
    return std::string(TextAt(Names, value));
}

constexpr Choices kChoices[] = {
    {kMode, &ChannelFields::mode, static_cast<int>(ModeName.size()), NameText<ModeName>,
     MESSAGE("FM, AM or WFM")},
    {kStep, &ChannelFields::step, static_cast<int>(StepName.size()), NameText<StepName>,
     MESSAGE("a step of the receiver, such as 12.5KHz")},
    {kOption, &ChannelFields::option, static_cast<int>(OptionName.size()), NameText<OptionName>,
     MESSAGE("OFF, SCRT, Carrier, Tone or Rev.")},
    {kSecret, &ChannelFields::secret, kSecretCodes, [](int code) { return std::to_string(code); },
     MESSAGE("0 to 16")},
    {kCarrier, &ChannelFields::carrier, kCarrierJr + 1, CarrierText, MESSAGE("300Hz to 3000Hz or JR")},
    {kTone, &ChannelFields::tone, static_cast<int>(ToneName.size()), NameText<ToneName>,
     MESSAGE("a CTCSS tone, such as 88.5Hz")},
    {kShift, &ChannelFields::shift, static_cast<int>(ShiftName.size()), NameText<ShiftName>,
     MESSAGE("OFF, + or -")},
};

/// Other words for a value.
struct Synonym
{
    int part;
    std::string_view word;
    int value;
};

constexpr Synonym kSynonyms[] = {
    {kOption, "none", 0},  {kOption, "secret", 1}, {kOption, "rev", 4},     {kOption, "reverse", 4},
    {kShift, "+", 1},      {kShift, "plus", 1},    {kShift, "-", 2},        {kShift, "minus", 2},
    {kSkipPart, "on", 1},  {kSkipPart, "yes", 1},  {kSkipPart, "true", 1},  {kSkipPart, "1", 1},
    {kSkipPart, "off", 0}, {kSkipPart, "no", 0},   {kSkipPart, "false", 0}, {kSkipPart, "0", 0},
};

std::string Small(std::string_view text)
{
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return small;
}

bool IsNumber(std::string_view text)
{
    const bool hasDigits = text.find_first_of("0123456789") != std::string_view::npos;
    return hasDigits && text.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::ranges::count(text, '.') <= 1;
}

/// The text without this unit at its end.
std::string_view WithoutUnit(std::string_view text, std::string_view unit)
{
    return text.ends_with(unit) ? text.substr(0, text.size() - unit.size()) : text;
}

/// "88.5hz", "88.5" and "12.5" name 88.5Hz and 12.5KHz; what counts megahertz needs its unit.
bool IsName(const std::string& name, const std::string& typed)
{
    if (name == typed)
        return true;
    const std::string_view number = WithoutUnit(WithoutUnit(name, "hz"), "k");
    return IsNumber(typed) && IsNumber(number) && ReadNumber(number) == ReadNumber(typed);
}

const Choices* ChoicesOf(int part)
{
    const auto* found = std::ranges::find(kChoices, part, &Choices::part);
    return found != std::end(kChoices) ? found : nullptr;
}

std::optional<int> CodeOf(int part, const std::string& typed)
{
    const int synonyms = part == kEnabledPart ? static_cast<int>(kSkipPart) : part;
    for (const Synonym& synonym : kSynonyms)
        if (synonym.part == synonyms && synonym.word == typed)
            return synonym.value;
    if (const Choices* choices = ChoicesOf(part))
        for (int value = 0; value < choices->count; ++value)
            if (IsName(Small(choices->name(value)), typed))
                return value;
    return std::nullopt;
}

Message Refusal(int part, std::string_view text)
{
    const Choices* choices = ChoicesOf(part);
    const auto* word = std::ranges::find(kFieldWords, part, &FieldWord::part);
    return {MESSAGE("%1 \"%2\": it is %3"),
            {word->word, text, choices != nullptr ? choices->range : MESSAGE("on or off")}};
}

std::variant<FieldValue, Message> ReadMegahertz(int part, std::string_view text)
{
    const std::string small = Small(text);
    const std::string_view number = WithoutUnit(small, "mhz");
    if (!IsNumber(number))
        return Message(MESSAGE("\"%1\" is no number of MHz, such as 145.5"), {text});
    return FieldValue{.part = part, .hertz = ReadHertz(number)};
}

/// Why the model region has no such value.
Message RegionFault(const CloneImage& image, const FieldValue& value)
{
    const Region& region = RegionOf(image.ModelNo());
    const bool isSecret = value.part == kSecret || (value.part == kOption && value.code == kSecretOption);
    const bool isCarrier = value.part == kCarrier || (value.part == kOption && value.code == kCarrierOption);
    if (isSecret && !region.hasSecretCode)
        return {MESSAGE("the %1 has no secret code"), {region.model}};
    if (isCarrier && !region.hasCarrier)
        return {MESSAGE("the %1 has no carrier"), {region.model}};
    return {};
}

Message FrequencyFault(const CloneImage& image, RowId id, std::int64_t hertz)
{
    if (id.IsMemory())
        return VerdictText(JudgeFrequency(image, id.row, hertz));
    const CheckedEntry entry = CheckFrequency(image, id, kSelectAll, FormatMegahertz(hertz));
    if (entry.verdict == Verdict::OutOfRange)
        return {MESSAGE("This VFO band takes %1."), {FrequencyRangeText(image, id)}};
    return VerdictText(entry.verdict);
}

Message VfoFault(int part)
{
    return part == kNote       ? MESSAGE("a VFO band has no note")
           : part == kSkipPart ? MESSAGE("a VFO band has no skip")
                               : MESSAGE("a VFO band has no enabled");
}

Message ValueFault(const CloneImage& image, RowId id, const FieldValue& value)
{
    if (!id.IsMemory() && (value.part == kNote || value.part == kSkipPart || value.part == kEnabledPart))
        return VfoFault(value.part);
    if (value.part == kFrequency)
        return FrequencyFault(image, id, value.hertz);
    if (value.part == kShiftFrequency && value.hertz >= kMostOffset * kHertzPerMegahertz)
        return MESSAGE("Offsets are below 100 MHz.");
    if (value.part == kStep && !HasStepButton(value.code))
        return {MESSAGE("the editor has no step %1"), {TextAt(StepName, value.code)}};
    return RegionFault(image, value);
}

void Put(const FieldValue& value, ChannelFields& fields)
{
    if (const Choices* choices = ChoicesOf(value.part))
        fields.*(choices->field) = value.code;
    else if (value.part == kFrequency)
        fields.frequency = FormatMegahertz(value.hertz);
    else if (value.part == kShiftFrequency)
        fields.shiftFrequency = FormatMegahertz(value.hertz);
    else if (value.part == kNote)
        fields.note = value.text;
    else
        (value.part == kSkipPart ? fields.skip : fields.enable) = value.code != 0;
}

}  // namespace

std::optional<int> PartOfWord(std::string_view word)
{
    const auto* found = std::ranges::find(kFieldWords, word, &FieldWord::word);
    return found != std::end(kFieldWords) ? std::optional(found->part) : std::nullopt;
}

Message FieldWords()
{
    std::string words;
    for (std::size_t i = 0; i + 1 < kFirstWords; ++i)
        words.append(i == 0 ? "" : ", ").append(kFieldWords[i].word);
    return {MESSAGE("%1 or %2"), {words, kFieldWords[kFirstWords - 1].word}};
}

std::variant<FieldValue, Message> ReadFieldValue(int part, std::string_view text)
{
    if (part == kFrequency || part == kShiftFrequency)
        return ReadMegahertz(part, text);
    if (part == kNote)
        return FieldValue{.part = part, .text = PlainNote(text)};
    if (const auto code = CodeOf(part, Small(text)))
        return FieldValue{.part = part, .code = *code};
    return Refusal(part, text);
}

std::variant<FieldValue, Message> ReadAssignment(std::string_view text)
{
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos)
        return Message(MESSAGE("\"%1\" is no FIELD=VALUE, such as mode=AM"), {text});
    const auto part = PartOfWord(Small(text.substr(0, equals)));
    if (!part)
        return Message(MESSAGE("\"%1\" is no field; it is %2"), {text.substr(0, equals), FieldWords()});
    return ReadFieldValue(*part, text.substr(equals + 1));
}

bool HasValue(const Channel& channel, const FieldValue& value)
{
    if (value.part == kNote)
        return channel.note == value.text;
    if (!channel.HasChannel())
        return false;
    switch (value.part) {
        case kFrequency:
            return channel.frequency == value.hertz;
        case kShiftFrequency:
            return channel.shiftFrequency == value.hertz;
        case kOption:
            return channel.option / kOptionUnit == value.code;
        case kShift:
            return channel.shift / kOptionUnit == value.code;
        case kSkipPart:
            return channel.IsSkipped() == (value.code != 0);
        case kEnabledPart:
            return channel.enabled == (value.code != 0);
        default:
            break;
    }
    const auto* field = std::ranges::find(
        kCodeFields, value.part, [](const CodeField& code) { return static_cast<int>(code.column); });
    return field != kCodeFields.end() && channel.*(field->value) == value.code;
}

Message AssignFields(CloneImage& image, RowId id, std::span<const FieldValue> values)
{
    if (!CanModify(image, id))
        return MESSAGE("the model region does not have it");
    for (const FieldValue& value : values)
        if (Message fault = ValueFault(image, id, value); !fault.empty())
            return fault;
    if (id.IsMemory() && !image.At(id).HasChannel())
        for (const FieldValue& value : values)
            if (value.part == kFrequency) {
                const std::string note = image.At(id).note;
                image.At(id) = NewChannel(image, value.hertz);
                image.At(id).note = note;
            }
    ChannelFields fields = LoadFields(image, id);
    Parts parts;
    for (const FieldValue& value : values) {
        Put(value, fields);
        parts.Add(value.part);
    }
    if (id.IsMemory())
        StoreParts(image, id.row, fields, parts);
    else
        StoreFields(image, id, fields);
    return {};
}

}  // namespace rqm5
