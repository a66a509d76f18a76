#include "files/list_map.h"

#include <algorithm>
#include <array>

#include "files/list_encoding.h"
#include "files/list_words.h"
#include "memory/channel_parts.h"

namespace rqm5 {
namespace {

struct Field
{
    std::string_view name;
    int part;
};

constexpr Field kFields[] = {
    {"frequency", kFrequency},
    {"mode", kMode},
    {"step", kStep},
    {"option", kOption},
    {"secret", kSecret},
    {"train", kCarrier},
    {"tone", kTone},
    {"shift", kShift},
    {"offset", kShiftFrequency},
    {"note", kNote},
    {"skip", kSkipPart},
    {"enable", kEnabledPart},
    {"bank", ListColumn::kBank},
    {"channel", ListColumn::kChannel},
    {"row", ListColumn::kRow},
    {"none", ListColumn::kIgnored},
};

constexpr std::pair<std::string_view, char> kDelimiters[] = {
    {"tab", '\t'}, {"semicolon", ';'}, {"comma", ','}, {"none", '\0'}};

constexpr std::pair<std::string_view, DecimalSign> kDecimals[] = {{"point", DecimalSign::Point},
                                                                  {"comma", DecimalSign::Comma}};

constexpr std::pair<std::string_view, bool> kTitleWords[] = {{"yes", true}, {"no", false}};

constexpr std::pair<std::string_view, Unit> kUnits[] = {
    {"MHz", Unit::MHz}, {"kHz", Unit::KHz}, {"Hz", Unit::Hz}, {"GHz", Unit::GHz}};

template <class Value, std::size_t N>
std::string_view NameOf(const std::pair<std::string_view, Value> (&names)[N], Value value)
{
    const auto* found = std::ranges::find(names, value, [](const auto& entry) { return entry.second; });
    return found != std::end(names) ? found->first : std::string_view();
}

template <class Value, std::size_t N>
std::optional<Value> Named(const std::pair<std::string_view, Value> (&names)[N], std::string_view name)
{
    const auto* found = std::ranges::find(names, name, [](const auto& entry) { return entry.first; });
    return found != std::end(names) ? std::optional(found->second) : std::nullopt;
}

std::string QuotedTitle(const std::string& title)
{
    if (title.find_first_of(",=\"@") == std::string::npos)
        return title;
    std::string quoted = "\"";
    for (const char c : title)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + '"';
}

/// Takes what stands before one of the signs off the front of a text, quotes taken away.
std::string TakeWord(std::string_view& rest, std::string_view ends)
{
    std::string word;
    bool isQuoted = false;
    while (!rest.empty() && (isQuoted || ends.find(rest.front()) == std::string_view::npos)) {
        const bool isDoubled = isQuoted && rest.starts_with("\"\"");
        if (rest.front() == '"' && !isDoubled)
            isQuoted = !isQuoted;
        else
            word += rest.front();
        rest.remove_prefix(isDoubled ? 2 : 1);
    }
    return Trimmed(word);
}

/// "@delimiter=semicolon" and the like. \return what is wrong with it; empty when nothing is
Message TakeSetting(const std::string& name, const std::string& value, ListForm& form)
{
    if (name == "@encoding") {
        if (!IsKnownEncoding(value))
            return {MESSAGE("there is no encoding \"%1\"; one of them is WINDOWS-1252"), {value}};
        form.encoding = value;
    } else if (name == "@delimiter") {
        form.delimiter = Named(kDelimiters, value);
        if (!form.delimiter)
            return MESSAGE("the delimiter is tab, semicolon, comma or none");
    } else if (name == "@decimal") {
        const auto sign = Named(kDecimals, value);
        if (!sign)
            return MESSAGE("the decimal sign is point or comma");
        form.decimals = *sign;
    } else if (name == "@titles") {
        form.hasTitles = Named(kTitleWords, value);
        if (!form.hasTitles)
            return MESSAGE("@titles is yes or no");
    } else {
        return {MESSAGE("\"%1\" is none of @encoding, @delimiter, @decimal and @titles"), {name}};
    }
    return {};
}

}  // namespace

std::string FieldName(const ListColumn& column)
{
    const auto* found = std::ranges::find(kFields, column.part, &Field::part);
    std::string name(found != std::end(kFields) ? found->name : "none");
    const std::string_view unit = NameOf(kUnits, column.unit);
    const bool hasUnit = column.part == kFrequency || column.part == kShiftFrequency;
    return hasUnit && !unit.empty() ? name.append(":").append(unit) : name;
}

std::optional<ListColumn> FieldNamed(std::string_view name)
{
    const std::size_t colon = std::min(name.find(':'), name.size());
    const auto* found = std::ranges::find(kFields, PlainWords(name.substr(0, colon)), &Field::name);
    if (found == std::end(kFields))
        return std::nullopt;
    ListColumn column{found->part, Unit::None};
    if (colon == name.size())
        return column;
    column.unit = UnitNamed(name.substr(colon + 1));
    const bool hasUnit = column.part == kFrequency || column.part == kShiftFrequency;
    return hasUnit && column.unit != Unit::None ? std::optional(column) : std::nullopt;
}

std::string FieldNames()
{
    std::string names;
    for (const Field& field : kFields)
        names.append(names.empty() ? "" : ", ").append(field.name);
    return names;
}

std::string FormatForm(const ListForm& form)
{
    std::string text;
    const auto add = [&text](const std::string& name, std::string_view value) {
        text.append(text.empty() ? "" : ",").append(name).append("=").append(value);
    };
    for (const ColumnWish& wish : form.columns)
        add(QuotedTitle(wish.name), FieldName(wish.column));
    if (!form.encoding.empty())
        add("@encoding", form.encoding);
    if (form.delimiter)
        add("@delimiter", NameOf(kDelimiters, *form.delimiter));
    if (form.decimals != DecimalSign::Unknown)
        add("@decimal", NameOf(kDecimals, form.decimals));
    if (form.hasTitles)
        add("@titles", NameOf(kTitleWords, *form.hasTitles));
    return text;
}

std::variant<ListForm, Message> ParseForm(std::string_view text)
{
    ListForm form;
    while (!text.empty()) {
        const bool isSetting = text.starts_with('@');
        const std::string name = TakeWord(text, "=,");
        if (!text.starts_with('='))
            return Message(MESSAGE("\"%1\" is not followed by \"=\" and a field"), {name});
        text.remove_prefix(1);
        const std::string value = TakeWord(text, ",");
        text.remove_prefix(text.empty() ? 0 : 1);
        if (isSetting) {
            if (Message fault = TakeSetting(name, value, form); !fault.empty())
                return fault;
            continue;
        }
        const auto column = FieldNamed(value);
        if (!column)
            return Message(MESSAGE("there is no field \"%1\"; the fields are %2"), {value, FieldNames()});
        form.columns.push_back({name, *column});
    }
    return form;
}

Message DelimiterName(char delimiter)
{
    return delimiter == '\0' ? Message(MESSAGE("one field a line")) : NameOf(kDelimiters, delimiter);
}

Message DecimalName(DecimalSign sign)
{
    return sign == DecimalSign::Unknown ? Message(MESSAGE("each number by itself")) : NameOf(kDecimals, sign);
}

Message DescribeTable(const ListTable& table)
{
    std::vector<Message> columns;
    std::vector<Message> unused;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const Message title = i < table.titles.size() && !table.titles[i].empty()
                                  ? Message("\"" + table.titles[i] + "\"")
                                  : Message(MESSAGE("column %1"), {static_cast<int>(i) + 1});
        ListColumn column = table.columns[i];
        if (column.part == kFrequency && column.unit == Unit::None)
            column.unit = table.usualUnit;
        if (column.part == ListColumn::kIgnored)
            unused.push_back(title);
        else
            columns.push_back(Message::List({title, FieldName(column)}, " = "));
    }
    std::vector<Message> sentence = {
        {MESSAGE("%1; fields: %2; decimals: %3"),
         {table.encoding, DelimiterName(table.delimiter), DecimalName(table.decimals)}},
        columns.empty() ? Message() : Message::List(std::move(columns), ", ")};
    if (!unused.empty())
        sentence.push_back({MESSAGE("not used: %1"), {Message::List(std::move(unused), ", ")}});
    return Message::List(std::move(sentence), "; ");
}

}  // namespace rqm5
