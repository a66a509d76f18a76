#include "files/list_fields.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>

#include "files/list_numbers.h"
#include "files/list_titles.h"
#include "files/list_words.h"

namespace rqm5 {
namespace {

/// Walks through a text and remembers the line.
class Walker
{
  public:
    Walker(std::string_view text, char delimiter) : rest_(text), delimiter_(delimiter) {}

    bool IsAtEnd() const { return rest_.empty(); }
    ListRecord TakeRecord();

  private:
    std::string TakeField();
    std::string TakeQuoted();
    std::string_view TakePlain();
    bool IsEndOfField(char c) const
    {
        return c == '\r' || c == '\n' || (delimiter_ != '\0' && c == delimiter_);
    }
    void SkipLineEnd();

    std::string_view rest_;
    char delimiter_;
    int line_ = 1;
};

std::string_view Walker::TakePlain()
{
    const auto* end = std::ranges::find_if(rest_, [this](char c) { return IsEndOfField(c); });
    const std::string_view field = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(field.size());
    return field;
}

/// The field at the front, which begins with a quote; one that nothing closes is a character like any other.
std::string Walker::TakeQuoted()
{
    std::string field;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
        const bool isQuote = rest_[i] == '"';
        if (isQuote && i + 1 < rest_.size() && rest_[i + 1] == '"') {
            ++i;
        } else if (isQuote) {
            line_ += static_cast<int>(std::ranges::count(field, '\n'));
            rest_.remove_prefix(i + 1);
            return field.append(TakePlain());
        }
        field += rest_[i];
    }
    return std::string(TakePlain());
}

std::string Walker::TakeField()
{
    while (!rest_.empty() && (rest_.front() == ' ' || (rest_.front() == '\t' && delimiter_ != '\t')))
        rest_.remove_prefix(1);
    return rest_.starts_with('"') ? TakeQuoted() : std::string(TakePlain());
}

void Walker::SkipLineEnd()
{
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
    ++line_;
}

ListRecord Walker::TakeRecord()
{
    ListRecord record{line_, {Trimmed(TakeField())}};
    while (!rest_.empty() && rest_.front() == delimiter_) {
        rest_.remove_prefix(1);
        record.fields.push_back(Trimmed(TakeField()));
    }
    SkipLineEnd();
    return record;
}

bool HasText(const ListRecord& record)
{
    return std::ranges::any_of(record.fields, [](const std::string& field) { return !field.empty(); });
}

/// A line such as "145,500" or "145,500 MHz": a number whose commas belong to it. One that cannot be read for
/// certain counts too: its comma must not make two numbers of it.
bool IsNumber(std::string_view line)
{
    if (ReadFrequency(line))
        return true;
    const std::size_t end = line.find_last_of("0123456789");
    return end != std::string_view::npos && line.find_first_not_of("0123456789, ") > end &&
           UnitNamed(line.substr(end + 1)) != Unit::None;
}

constexpr std::size_t kLooked = 100;  ///< records at the front tell how the rest is written

/// How many records have the same number of fields, two at least.
std::size_t RegularRecords(std::string_view text, char delimiter)
{
    if (text.find(delimiter) == std::string_view::npos)
        return 0;
    std::map<std::size_t, std::size_t> sizes;
    for (const ListRecord& record : SplitList(text, delimiter, kLooked))
        if (record.fields.size() > 1)
            ++sizes[record.fields.size()];
    std::size_t most = 0;
    for (const auto& [size, count] : sizes)
        most = std::max(most, count);
    return most;
}

/// "Ch,Freq" above "1,145.500"
bool HasTitlesWithCommas(std::string_view text, const std::vector<ListRecord>& lines)
{
    const auto records = SplitList(text, ',', 1);
    return !lines.empty() && !records.empty() && records.front().fields.size() > 1 &&
           !ReadTitle(lines.front().fields.front()) && AreTitles(records.front().fields);
}

/// The number before a comma, where one with decimals comes behind it: 1 in "1,145.500".
std::optional<std::int64_t> CountIn(const ListRecord& line)
{
    const std::string& text = line.fields.front();
    const std::size_t comma = text.find(',');
    const auto count = comma != std::string::npos && text.find('.', comma) != std::string::npos
                           ? ReadFrequency(std::string_view(text).substr(0, comma))
                           : std::nullopt;
    return count && !count->hasFraction ? std::optional(count->whole) : std::nullopt;
}

/// "1,145.500" and "2,146.500": lines that are numbered, not thousands.
bool AreNumbered(const std::vector<ListRecord>& lines)
{
    const auto follows = [](const ListRecord& before, const ListRecord& line) {
        const auto count = CountIn(before);
        return count && CountIn(line) == *count + 1;
    };
    return lines.size() > 1 && std::ranges::adjacent_find(lines, std::not_fn(follows)) == lines.end();
}

/// The comma, unless most of them belong to numbers.
char DelimiterBesideDecimals(std::string_view text)
{
    if (text.find(',') == std::string_view::npos)
        return '\0';
    const auto lines = SplitList(text, '\0', kLooked);
    if (HasTitlesWithCommas(text, lines) || AreNumbered(lines))
        return ',';
    const auto commas = std::ranges::count_if(
        lines, [](const ListRecord& line) { return line.fields.front().find(',') != std::string::npos; });
    const auto decimals = std::ranges::count_if(lines, [](const ListRecord& line) {
        return line.fields.front().find(',') != std::string::npos && IsNumber(line.fields.front());
    });
    return decimals * 2 > commas ? '\0' : ',';
}

}  // namespace

char DelimiterOf(std::string_view text)
{
    const std::size_t commas = RegularRecords(text, ',');
    const std::size_t semicolons = RegularRecords(text, ';');
    const std::size_t tabs = RegularRecords(text, '\t');
    if (tabs > 0 && tabs >= std::max(semicolons, commas))
        return '\t';
    if (semicolons > 0 && semicolons >= commas)
        return ';';
    return DelimiterBesideDecimals(text);
}

std::vector<ListRecord> SplitList(std::string_view text, char delimiter, std::size_t most)
{
    std::vector<ListRecord> records;
    Walker walker(text, delimiter);
    while (!walker.IsAtEnd() && records.size() < most) {
        ListRecord record = walker.TakeRecord();
        if (HasText(record))
            records.push_back(std::move(record));
    }
    return records;
}

}  // namespace rqm5
