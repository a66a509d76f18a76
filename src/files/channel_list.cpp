#include "files/channel_list.h"

#include <algorithm>
#include <cmath>

#include "files/csv_record.h"
#include "files/formula_guard.h"
#include "files/list_columns.h"
#include "files/list_encoding.h"
#include "files/list_values.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr std::size_t kMostRecords = 5000;
constexpr int kOptionUnit = 16;
constexpr std::size_t kLongestNote = 255;

/// The front of a text that is longer, without a broken character at its end.
std::string CutToWholeCharacters(const std::string& text, std::size_t most)
{
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return text.substr(0, end);
}

Message LineName(const ListRecord& record)
{
    return {MESSAGE("Line %1"), {record.line}};
}

/// A field for messages: its front when it is long.
std::string Quoted(const std::string& text)
{
    constexpr std::size_t kMost = 60;
    if (text.size() <= kMost)
        return "\"" + text + "\"";
    return "\"" + CutToWholeCharacters(text, kMost) + "...\"";
}

/// "1.455E+02"
bool HasExponent(const std::string& text)
{
    const std::size_t e = text.find_first_of("eE");
    return e != std::string::npos && e > 0 && text.find_first_not_of("0123456789.,") == e &&
           text.find_first_not_of("0123456789+-", e + 1) == std::string::npos;
}

/// Reads one record under its columns.
class RecordReader
{
  public:
    explicit RecordReader(const ListTable& table) : table_(table), columns_(table.columns) {}

    /// \return nothing for a record without any channel, such as an empty row of a table
    std::optional<ListedChannel> Read(const ListRecord& record);

  private:
    void Take(const ListColumn& column, const std::string& text);
    void TakeFrequency(const ListColumn& column, const std::string& text);
    void TakeOffset(const ListColumn& column, const std::string& text);
    void TakeMark(int part, const std::string& text);
    void TakeCode(int part, const std::string& text);
    void TakeNote(const std::string& text);
    void TakePlace(int part, const std::string& text);
    void LeaveOut(int part, const std::string& text);

    const ListTable& table_;
    const std::vector<ListColumn>& columns_;
    ListedChannel row_;
    std::vector<Message> remarks_;
    bool saysSomething_ = false;
};

/// How the text of a column becomes a code.
struct CodeReader
{
    Column column;
    std::optional<int> (*read)(std::string_view text);
    std::uint8_t ChannelContents::*value;
    int unit;  ///< the code kept is the one read times this
};

constexpr CodeReader kCodes[] = {
    {kMode, ReadMode, &ChannelContents::mode, 1},
    {kStep, ReadStep, &ChannelContents::step, 1},
    {kOption, ReadOption, &ChannelContents::option, kOptionUnit},
    {kSecret, ReadSecret, &ChannelContents::secret, 1},
    {kCarrier, ReadCarrier, &ChannelContents::carrier, 1},
    {kTone, ReadTone, &ChannelContents::tone, 1},
    {kShift, ReadShift, &ChannelContents::shift, kOptionUnit},
};

void RecordReader::LeaveOut(int part, const std::string& text)
{
    remarks_.push_back({MESSAGE("%1 %2 left out"), {PartName(part), Quoted(text)}});
}

void RecordReader::TakeFrequency(const ListColumn& column, const std::string& text)
{
    const auto number = ReadFrequency(text, table_.decimals);
    if (!number || number->isNegative) {
        row_.refusal = {HasExponent(text) ? MESSAGE("%1 has lost digits to an exponent in a spreadsheet")
                                          : MESSAGE("%1 cannot be read for certain as a frequency"),
                        {Quoted(text)}};
        return;
    }
    row_.channel.frequency = number->Hertz(column.unit == Unit::None ? table_.usualUnit : column.unit);
    row_.given.Add(kFrequency);
    if (row_.channel.frequency == 0)
        row_.refusal = MESSAGE("a frequency of 0 is no channel");
}

void RecordReader::TakeOffset(const ListColumn& column, const std::string& text)
{
    constexpr std::int64_t kLimit = 100'000'000;
    const auto number = ReadFrequency(text, table_.decimals);
    const std::int64_t hertz =
        number ? number->Hertz(column.unit == Unit::None ? Unit::MHz : column.unit) : kLimit;
    if (std::abs(hertz) >= kLimit) {
        LeaveOut(kShiftFrequency, text);
        return;
    }
    row_.channel.shiftFrequency = static_cast<std::int32_t>(std::abs(hertz));
    row_.given.Add(kShiftFrequency);
    // A sign says the direction where no other column does.
    const bool isSigned = text.front() == '+' || hertz < 0;
    if (isSigned && !HasColumn(columns_, kShift)) {
        row_.channel.shift = hertz < 0 ? 2 * kOptionUnit : kOptionUnit;
        row_.given.Add(kShift);
    }
}

void RecordReader::TakeMark(int part, const std::string& text)
{
    const auto mark = ReadMark(text);
    if (!mark) {
        LeaveOut(part, text);
        return;
    }
    constexpr int kSkipBit = 8;
    if (part == kSkipPart)
        row_.channel.option =
            static_cast<std::uint8_t>(row_.channel.option / kOptionUnit * kOptionUnit + *mark * kSkipBit);
    else
        row_.channel.enabled = *mark != 0;
    row_.given.Add(part);
}

void RecordReader::TakeCode(int part, const std::string& text)
{
    const auto& reader =
        *std::ranges::find(kCodes, part, [](const CodeReader& row) { return int{row.column}; });
    const auto code = reader.read(text);
    if (!code && part == kMode) {
        row_.refusal = {MESSAGE("the receiver has no mode %1"), {Quoted(text)}};
        return;
    }
    const bool isNone = part == kTone && ReadMark(text) == 0;
    if (!code && !isNone && text != "-")
        LeaveOut(part, text);
    if (!code)
        return;
    std::uint8_t& value = row_.channel.*reader.value;
    const int kept = part == kOption ? value % kOptionUnit : 0;
    value = static_cast<std::uint8_t>(*code * reader.unit + kept);
    row_.given.Add(part);
}

void RecordReader::TakeNote(const std::string& text)
{
    row_.channel.note = PlainNote(WithoutGuard(text));
    if (row_.channel.note.size() > kLongestNote) {
        row_.channel.note = CutToWholeCharacters(row_.channel.note, kLongestNote);
        remarks_.push_back(MESSAGE("the note is cut to 255 characters"));
    }
    row_.given.Add(kNote);
}

void RecordReader::TakePlace(int part, const std::string& text)
{
    if (part == ListColumn::kBank && text == kCsvVfo)
        row_.refusal = MESSAGE("it is a VFO band");
    ListedPlace& place = row_.place;
    (part == ListColumn::kBank      ? place.bank
     : part == ListColumn::kChannel ? place.channel
                                    : place.row) = text;
}

void RecordReader::Take(const ListColumn& column, const std::string& text)
{
    if (column.part < ListColumn::kIgnored) {
        TakePlace(column.part, text);
        return;
    }
    // An empty cell says nothing, but for a mark that is not set and a note that is empty.
    const bool isMark = column.part == kSkipPart || column.part == kEnabledPart;
    saysSomething_ |= !text.empty() && !(isMark && ReadMark(text) == 0);
    if (text.empty() && !isMark && column.part != kNote)
        return;
    if (column.part == kFrequency)
        TakeFrequency(column, text);
    else if (column.part == kShiftFrequency)
        TakeOffset(column, text);
    else if (column.part == kNote)
        TakeNote(text);
    else if (isMark)
        TakeMark(column.part, text);
    else
        TakeCode(column.part, text);
}

std::optional<ListedChannel> RecordReader::Read(const ListRecord& record)
{
    row_ = {};
    remarks_.clear();
    row_.source = LineName(record);
    saysSomething_ = false;
    for (std::size_t i = 0; i < columns_.size() && row_.refusal.empty(); ++i)
        if (columns_[i].part != ListColumn::kIgnored)
            Take(columns_[i], i < record.fields.size() ? record.fields[i] : std::string());
    if (!saysSomething_ && row_.refusal.empty())
        return std::nullopt;
    if (row_.refusal.empty() && HasColumn(columns_, kFrequency) && !row_.given.Has(kFrequency))
        row_.refusal = MESSAGE("there is no frequency");
    for (std::size_t i = columns_.size(); i < record.fields.size(); ++i)
        if (!record.fields[i].empty())
            row_.refusal = columns_.size() == kMostColumns ? MESSAGE("there are more than 64 columns")
                                                           : MESSAGE("there are more fields than titles");
    if (!remarks_.empty())
        row_.remark = Message::List(remarks_, "; ");
    row_.channel.blank = 0;
    // The editor words a secret code so, and it is an edit that brings this one.
    row_.channel.isSecretEdited = row_.channel.option / kOptionUnit == kSecretOption;
    return row_;
}

/// Every line refused for the same reason.
std::vector<ListedChannel> Refused(const std::vector<ListRecord>& records, const Message& reason)
{
    std::vector<ListedChannel> rows(records.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].source = LineName(records[i]);
        rows[i].refusal = reason;
    }
    return rows;
}

}  // namespace

ListTable ReadTable(std::string_view bytes, const ListForm& form)
{
    DecodedList decoded = DecodeList(bytes, form.encoding);
    ListTable table = FindColumns(decoded.text, kMostRecords, form);
    table.encoding = std::move(decoded.encoding);
    return table;
}

bool MayBeList(std::string_view bytes)
{
    const std::string text = DecodeList(bytes).text;
    return !text.starts_with(FileStart) && text.find('\0') == std::string::npos &&
           text.find_first_not_of(" \t\r\n,;\"") != std::string::npos;
}

ListForm FormOf(const ListTable& table)
{
    ListForm form;
    form.encoding = table.encoding;
    form.delimiter = table.delimiter;
    form.decimals = table.decimals;
    form.hasTitles = table.hasTitles;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        // Of two columns of one title only the first can be named by it.
        const bool isNamed = i < table.titles.size() && !table.titles[i].empty() &&
                             table.titles[i][0] != '#' &&
                             std::ranges::find(table.titles, table.titles[i]) - table.titles.begin() ==
                                 static_cast<std::ptrdiff_t>(i);
        form.columns.push_back({isNamed ? table.titles[i] : "#" + std::to_string(i + 1), table.columns[i]});
    }
    return form;
}

std::vector<ListedChannel> ReadChannels(const ListTable& table)
{
    std::vector<ListedChannel> rows;
    if (!table.problem.empty()) {
        rows = Refused(table.records, table.problem);
    } else {
        RecordReader reader(table);
        rows.reserve(table.records.size());
        for (const ListRecord& record : table.records)
            if (auto row = reader.Read(record))
                rows.push_back(*std::move(row));
    }
    if (table.firstUnread != 0)
        for (ListedChannel& row :
             Refused({{table.firstUnread, {}}}, MESSAGE("it and all behind it are not read: no list "
                                                        "of channels has more than 5000 rows")))
            rows.push_back(std::move(row));
    return rows;
}

std::vector<ListedChannel> ReadChannelList(std::string_view text, const ListForm& form)
{
    return ReadChannels(ReadTable(text, form));
}

}  // namespace rqm5
