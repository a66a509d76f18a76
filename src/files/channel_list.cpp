#include "files/channel_list.h"

#include <algorithm>
#include <cmath>

#include "files/csv_record.h"
#include "files/list_columns.h"
#include "files/text_encoding.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr std::size_t kMostRecords = 5000;
constexpr int kOptionUnit = 16;
constexpr std::size_t kLongestNote = 255;

std::string LineName(const ListRecord& record)
{
    return "Line " + std::to_string(record.line);
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

/// Reads one record under its columns.
class RecordReader
{
  public:
    RecordReader(const std::vector<ListColumn>& columns, Unit usual) : columns_(columns), usual_(usual) {}

    /// \return nothing for a record without any channel, such as an empty row of a table
    std::optional<ListedChannel> Read(const ListRecord& record);

  private:
    void Take(const ListColumn& column, const std::string& text);
    void TakeFrequency(const ListColumn& column, const std::string& text);
    void TakeOffset(const ListColumn& column, const std::string& text);
    void TakeMark(int part, const std::string& text);
    void TakeCode(int part, const std::string& text);
    void TakeNote(const std::string& text);
    void LeaveOut(int part, const std::string& text);

    const std::vector<ListColumn>& columns_;
    Unit usual_;
    ListedChannel row_;
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
    row_.remark += row_.remark.empty() ? "" : "; ";
    row_.remark += std::string(PartName(part)) + " " + Quoted(text) + " left out";
}

void RecordReader::TakeFrequency(const ListColumn& column, const std::string& text)
{
    const auto number = ReadFrequency(text);
    if (!number || number->isNegative) {
        row_.refusal = Quoted(text) + " cannot be read for certain as a frequency";
        return;
    }
    row_.channel.frequency = number->Hertz(column.unit == Unit::None ? usual_ : column.unit);
    row_.given.Add(kFrequency);
    if (row_.channel.frequency == 0)
        row_.refusal = "a frequency of 0 is no channel";
}

void RecordReader::TakeOffset(const ListColumn& column, const std::string& text)
{
    constexpr std::int64_t kLimit = 100'000'000;
    const auto number = ReadFrequency(text);
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
        row_.refusal = "the receiver has no mode " + Quoted(text);
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
    row_.channel.note = PlainNote(text);
    if (row_.channel.note.size() > kLongestNote) {
        std::size_t end = kLongestNote;
        while (end > 0 && (static_cast<unsigned char>(row_.channel.note[end]) & 0xC0U) == 0x80U)
            --end;
        row_.channel.note.resize(end);
        row_.remark += row_.remark.empty() ? "" : "; ";
        row_.remark += "the note is cut to 255 characters";
    }
    row_.given.Add(kNote);
}

void RecordReader::Take(const ListColumn& column, const std::string& text)
{
    if (column.part == ListColumn::kBank) {
        if (text == kCsvVfo)
            row_.refusal = "it is a VFO band";
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
    row_.source = LineName(record);
    saysSomething_ = false;
    for (std::size_t i = 0; i < columns_.size() && row_.refusal.empty(); ++i)
        if (columns_[i].part != ListColumn::kIgnored)
            Take(columns_[i], i < record.fields.size() ? record.fields[i] : std::string());
    if (!saysSomething_ && row_.refusal.empty())
        return std::nullopt;
    if (row_.refusal.empty() && HasColumn(columns_, kFrequency) && !row_.given.Has(kFrequency))
        row_.refusal = "there is no frequency";
    if (record.fields.size() > columns_.size())
        row_.refusal = "there are more fields than titles";
    row_.channel.blank = 0;
    // The editor words a secret code so, and it is an edit that brings this one.
    row_.channel.isSecretEdited = row_.channel.option / kOptionUnit == kSecretOption;
    return row_;
}

/// Every line refused for the same reason.
std::vector<ListedChannel> Refused(const std::vector<ListRecord>& records, const std::string& reason)
{
    std::vector<ListedChannel> rows(records.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].source = LineName(records[i]);
        rows[i].refusal = reason;
    }
    return rows;
}

}  // namespace

std::vector<ListedChannel> ReadChannelList(std::string_view text)
{
    const std::string decoded = DecodeFileText(text);
    const ColumnList list = FindColumns(decoded, kMostRecords);
    if (!list.problem.empty())
        return Refused(list.records, list.problem);
    RecordReader reader(list.columns, list.usualUnit);
    std::vector<ListedChannel> rows;
    rows.reserve(list.records.size());
    for (const ListRecord& record : list.records)
        if (auto row = reader.Read(record))
            rows.push_back(*std::move(row));
    return rows;
}

}  // namespace rqm5
