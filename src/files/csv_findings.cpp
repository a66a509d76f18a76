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

std::string Said(std::size_t column, const std::string& text)
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

/// Looks at the fields of one record.
class Judge
{
  public:
    Judge(const CsvRecord& record, const CsvValues& values, const Channel& before, const Channel& after)
        : record_(record), values_(values), before_(before), after_(after)
    {
    }

    std::vector<std::string> Texts();
    bool KeepsValue() const { return keepsValue_; }
    int DecimalCommas() const { return decimalCommas_; }

  private:
    void JudgeFrequency();
    void JudgeField(Column column);
    void JudgeNumber(Column column);
    void JudgeMark(std::size_t column, const std::string& text);
    std::string Kept(Column column);

    const CsvRecord& record_;
    const CsvValues& values_;
    const Channel& before_;
    const Channel& after_;
    std::vector<std::string> texts_;
    bool keepsValue_ = false;
    int decimalCommas_ = 0;
};

/// What a row keeps, in words.
std::string Judge::Kept(Column column)
{
    if (!after_.HasChannel())
        return {};
    keepsValue_ = true;
    const std::string text = CellText(after_, RowKind::Memory, kNoRegion, column);
    return "; the row keeps " + (text.empty() ? std::string("what it has") : text);
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
    if (end == 0) {
        texts_.push_back(Said(column, text) + " is no number" + (values_.at(column) ? "" : Kept(column)));
        return;
    }
    std::string finding = Said(column, text);
    if (!isWhole)
        finding += " is read as " + Trimmed(std::string_view(text).substr(0, end));
    if (HasDecimalComma(text)) {
        finding += ": it has a decimal comma";
        ++decimalCommas_;
    }
    if (!values_.at(column))
        finding += (isWhole ? " is " : ", ") +
                   std::string(HasList(column) ? "none of the receiver's" : "out of range") + Kept(column);
    texts_.push_back(finding);
}

void Judge::JudgeField(Column column)
{
    const std::string& text = record_.texts.at(column);
    if (Trimmed(text).empty()) {
        // Only where another channel was there before is something kept that somebody would notice.
        if (!values_.at(column) && before_.HasChannel() && CsvValueOf(before_, column) != 0)
            texts_.push_back(std::string(TitleOf(column)) + " is empty" + Kept(column));
        return;
    }
    const bool isName = column == kCarrier && text == "JR";
    if (IsNumberColumn(column) && !isName)
        JudgeNumber(column);
    else if (column == kShift && values_[kShift] == 0 && UpperCase(Trimmed(text)) != "OFF")
        texts_.push_back(Said(column, text) + " is read as OFF");
    else if (!values_.at(column))
        texts_.push_back(Said(column, text) + " is none of the receiver's" + Kept(column));
}

void Judge::JudgeFrequency()
{
    const std::string& text = record_.texts[kFrequency];
    if (!Trimmed(text).empty())
        JudgeNumber(kFrequency);
    if (after_.HasChannel() && !IsInReceiverRange(after_.frequency))
        texts_.push_back(FormatMegahertz(after_.frequency) + " MHz is outside the receiver's range (" +
                         std::string(kReceiverRangeText) + ")");
    const bool isZero = NumberEnd(text) == text.size();
    if (!after_.HasChannel() && !text.empty() && !isZero)
        texts_.emplace_back("the row is empty now");
}

void Judge::JudgeMark(std::size_t column, const std::string& text)
{
    if (!TruthOf(text))
        texts_.push_back(Said(column, text) + " is read as #FALSE#");
}

std::vector<std::string> Judge::Texts()
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

std::string Counted(int count, const char* one, const char* several)
{
    return std::to_string(count) + (count == 1 ? one : several);
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
    for (const std::string& text : judge.Texts())
        findings.Add(stored.line, RowName(image, stored.id) + ": " + text);
    findings.keptRows += judge.KeepsValue() ? 1 : 0;
    findings.decimalCommas += judge.DecimalCommas();
}

std::string CsvFindings::Summary() const
{
    std::string text = Counted(static_cast<int>(all.size()), " remark", " remarks");
    if (keptRows > 0)
        text += ": " + Counted(keptRows, " row keeps an old value", " rows keep an old value");
    if (decimalCommas > 0)
        text += (keptRows > 0 ? ", " : ": ") +
                Counted(decimalCommas, " number has a decimal comma", " numbers have a decimal comma");
    return text;
}

std::vector<std::string> CsvFindings::Lines() const
{
    std::vector<std::string> lines;
    lines.reserve(all.size());
    for (const CsvFinding& finding : all)
        lines.push_back("Line " + std::to_string(finding.line) + ": " + finding.text);
    return lines;
}

}  // namespace rqm5
