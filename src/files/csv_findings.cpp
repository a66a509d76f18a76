#include "files/csv_findings.h"

#include <algorithm>
#include <optional>

#include "files/list_words.h"
#include "files/truth_words.h"
#include "image/display_text.h"
#include "image/number_text.h"
#include "image/value_tables.h"
#include "memory/receiver_range.h"
#include "memory/row_names.h"

namespace rqm5 {
namespace {

constexpr std::size_t kFirstText = 3;  ///< the titles before are those of the key fields
constexpr std::string_view kDigits = "0123456789";

std::string_view TitleOf(std::size_t column)
{
    return kCsvTitles.at(kFirstText + column);
}

/// A field in a finding: MODE "NFM".
std::string Quoted(std::size_t column, const std::string& text)
{
    return std::string(TitleOf(column)) + " \"" + VisibleText(text) + "\"";
}

/// Where the number ends that a text begins with; 0 when it begins with none.
std::size_t NumberEnd(std::string_view text)
{
    std::size_t end = std::min(text.find_first_not_of(" \t+-"), text.size());
    const std::size_t begin = end;
    end = std::min(text.find_first_not_of(kDigits, end), text.size());
    if (end < text.size() && text[end] == '.')
        end = std::min(text.find_first_not_of(kDigits, end + 1), text.size());
    return end == begin ? 0 : end;
}

/// The unit that may stand behind the number of a column.
std::string_view UnitOf(int column)
{
    return column == kFrequency || column == kShiftFrequency ? "mhz" : column == kSecret ? "" : "hz";
}

bool IsNumberColumn(int column)
{
    return column == kFrequency || column == kShiftFrequency || column == kSecret || column == kTone ||
           column == kCarrier;
}

/// The numbers of these columns are entries of a list.
bool HasList(int column)
{
    return column == kTone || column == kCarrier;
}

/// What is said of a text that is read as a number up to its middle, or names no value.
Message NumberFinding(Column column, const std::string& text, std::size_t end, bool isWhole, bool hasValue)
{
    const Message field = Quoted(column, text);
    if (isWhole)
        return {HasList(column) ? MESSAGE("%1 is none of the receiver's") : MESSAGE("%1 is out of range"),
                {field}};
    const Message number = Trimmed(std::string_view(text).substr(0, end));
    if (HasDecimalComma(text))
        return {hasValue ? MESSAGE("%1 is read as %2: it has a decimal comma")
                : HasList(column)
                    ? MESSAGE("%1 is read as %2: it has a decimal comma, none of the receiver's")
                    : MESSAGE("%1 is read as %2: it has a decimal comma, out of range"),
                {field, number}};
    return {hasValue          ? MESSAGE("%1 is read as %2")
            : HasList(column) ? MESSAGE("%1 is read as %2, none of the receiver's")
                              : MESSAGE("%1 is read as %2, out of range"),
            {field, number}};
}

/// Looks at the fields of one record.
class Judge
{
  public:
    Judge(const CsvRecord& record, const CsvValues& values, const Channel& before, const Channel& after)
        : record_(record), values_(values), before_(before), after_(after)
    {
    }

    std::vector<Message> Texts();
    bool KeepsValue() const { return keepsValue_; }
    int DecimalCommas() const { return decimalCommas_; }

  private:
    void JudgeFrequency();
    void JudgeField(Column column);
    void JudgeNumber(Column column);
    void JudgeMark(std::size_t column, const std::string& text);
    void TellKept(Message finding, Column column);

    const CsvRecord& record_;
    const CsvValues& values_;
    const Channel& before_;
    const Channel& after_;
    std::vector<Message> texts_;
    bool keepsValue_ = false;
    int decimalCommas_ = 0;
};

/// Adds a finding of a text that names no value, and what the row keeps because of it.
void Judge::TellKept(Message finding, Column column)
{
    if (!after_.HasChannel()) {
        texts_.push_back(std::move(finding));
        return;
    }
    keepsValue_ = true;
    const std::string text = CellText(after_, RowKind::Memory, kNoRegion, column);
    const Message kept = text.empty() ? Message(MESSAGE("the row keeps what it has"))
                                      : Message(MESSAGE("the row keeps %1"), {text});
    texts_.push_back(Message(MESSAGE("%1; %2"), {std::move(finding), kept}));
}

/// A number is read as far as it goes; the rest of its field is not.
void Judge::JudgeNumber(Column column)
{
    const std::string& text = record_.texts.at(column);
    const std::size_t end = NumberEnd(text);
    const std::string rest = PlainWords(std::string_view(text).substr(end));
    const bool isWhole = end > 0 && (rest.empty() || rest == UnitOf(column));
    if (isWhole && values_.at(column))
        return;
    const bool hasValue = values_.at(column).has_value();
    const Message finding = end == 0 ? Message(MESSAGE("%1 is no number"), {Quoted(column, text)})
                                     : NumberFinding(column, text, end, isWhole, hasValue);
    decimalCommas_ += HasDecimalComma(text) ? 1 : 0;
    if (hasValue)
        texts_.push_back(finding);
    else
        TellKept(finding, column);
}

void Judge::JudgeField(Column column)
{
    const std::string& text = record_.texts.at(column);
    if (Trimmed(text).empty()) {
        // Only where another channel was there before is something kept that somebody would notice.
        if (!values_.at(column) && before_.HasChannel() && CsvValueOf(before_, column) != 0)
            TellKept({MESSAGE("%1 is empty"), {TitleOf(column)}}, column);
        return;
    }
    const bool isName = column == kCarrier && text == "JR";
    if (IsNumberColumn(column) && !isName)
        JudgeNumber(column);
    else if (column == kShift && values_[kShift] == 0 && UpperCase(Trimmed(text)) != "OFF")
        texts_.push_back({MESSAGE("%1 is read as OFF"), {Quoted(column, text)}});
    else if (!values_.at(column))
        TellKept({MESSAGE("%1 is none of the receiver's"), {Quoted(column, text)}}, column);
}

void Judge::JudgeFrequency()
{
    const std::string& text = record_.texts[kFrequency];
    if (!Trimmed(text).empty())
        JudgeNumber(kFrequency);
    if (after_.HasChannel() && !IsInReceiverRange(after_.frequency))
        texts_.push_back({MESSAGE("%1 MHz is outside the receiver's range (0.1 to 1299.995 MHz)"),
                          {FormatMegahertz(after_.frequency)}});
    const bool isZero = NumberEnd(text) == text.size();
    if (!after_.HasChannel() && !text.empty() && !isZero)
        texts_.emplace_back(MESSAGE("the row is empty now"));
}

void Judge::JudgeMark(std::size_t column, const std::string& text)
{
    if (!TruthOf(text))
        texts_.push_back({MESSAGE("%1 is read as #FALSE#"), {Quoted(column, text)}});
}

std::vector<Message> Judge::Texts()
{
    JudgeFrequency();
    if (after_.HasChannel())
        for (const Column column : kColumns)
            if (column != kFrequency && column != kNote)
                JudgeField(column);
    JudgeMark(kTextColumns, record_.skip);
    JudgeMark(kTextColumns + 1, record_.enable);
    return std::move(texts_);
}

}  // namespace

bool HasDecimalComma(std::string_view text)
{
    const std::size_t comma = text.find(',');
    const std::size_t end = NumberEnd(text);
    return end > 0 && comma == end && text.rfind(',') == comma &&
           text.substr(0, comma).find('.') == std::string_view::npos && comma + 1 < text.size() &&
           kDigits.find(text[comma + 1]) != std::string_view::npos;
}

void JudgeRecord(const StoredRecord& stored, const CloneImage& image, CsvFindings& findings)
{
    Judge judge(stored.record, stored.values, stored.before, image.At(stored.id));
    for (const Message& text : judge.Texts())
        findings.Add(stored.line, Message(MESSAGE("%1: %2"), {RowName(image, stored.id), text}));
    findings.keptRows += judge.KeepsValue() ? 1 : 0;
    findings.decimalCommas += judge.DecimalCommas();
}

Message CsvFindings::Summary() const
{
    const Message remarks = Counted(static_cast<int>(all.size()), MESSAGE("1 remark"), MESSAGE("%1 remarks"));
    std::vector<Message> among;
    if (keptRows > 0)
        among.push_back(
            Counted(keptRows, MESSAGE("1 row keeps an old value"), MESSAGE("%1 rows keep an old value")));
    if (decimalCommas > 0)
        among.push_back(Counted(decimalCommas, MESSAGE("1 number has a decimal comma"),
                                MESSAGE("%1 numbers have a decimal comma")));
    return among.empty() ? remarks
                         : Message(MESSAGE("%1: %2"), {remarks, Message::List(std::move(among), ", ")});
}

std::vector<Message> CsvFindings::Lines() const
{
    std::vector<Message> lines;
    lines.reserve(all.size());
    for (const CsvFinding& finding : all)
        lines.push_back(
            Message(MESSAGE("%1: %2"), {Message(MESSAGE("Line %1"), {finding.line}), finding.text}));
    return lines;
}

}  // namespace rqm5
