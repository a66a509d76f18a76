#include "files/list_columns.h"

#include <algorithm>
#include <array>

#include "files/csv_record.h"
#include "files/list_values.h"
#include "files/list_words.h"
#include "image/channel.h"

namespace rqm5 {
namespace {

/// Most people write no unit: what the numbers of a column can be.
Unit LikelyUnit(const std::vector<ListRecord>& records, std::size_t column, DecimalSign decimals)
{
    int megahertz = 0;
    int kilohertz = 0;
    int hertz = 0;
    for (const ListRecord& record : records) {
        const auto number =
            column < record.fields.size() ? ReadFrequency(record.fields[column], decimals) : std::nullopt;
        if (!number || number->unit != Unit::None)
            continue;
        ++(number->whole < 1300 ? megahertz : number->whole < 1'300'000 ? kilohertz : hertz);
    }
    if (megahertz >= kilohertz && megahertz >= hertz)
        return Unit::MHz;
    return kilohertz >= hertz ? Unit::KHz : Unit::Hz;
}

/// How surely a text is a frequency: a bare small number is more often a count.
int FrequencyLikeness(const std::string& field)
{
    const auto number = ReadFrequency(field);
    if (!number || number->isNegative)
        return 0;
    return number->hasFraction || number->unit != Unit::None || number->whole >= 1300 ? 3 : 1;
}

bool IsMode(const std::string& field)
{
    return ReadMode(field).has_value();
}

bool IsTone(const std::string& field)
{
    return ReadTone(field).has_value() && field.find_first_of(".,hH") != std::string::npos;
}

bool IsStep(const std::string& field)
{
    return ReadStep(field).has_value() && PlainWords(field).ends_with("hz");
}

bool IsShift(const std::string& field)
{
    return field == "+" || field == "-" || PlainWords(field) == "shift";
}

bool IsWords(const std::string& field)
{
    return !ReadFrequency(field) && !PlainWords(field).empty();
}

/// Finds out what the columns of a list without titles hold.
class Guesser
{
  public:
    explicit Guesser(const std::vector<ListRecord>& records) : records_(records)
    {
        for (const ListRecord& record : records)
            columns_.resize(std::max(columns_.size(), record.fields.size()));
    }

    std::vector<ListColumn> Columns()
    {
        TakeBest(kFrequency, FrequencyLikeness, 1);
        if (columns_.size() == 1)
            columns_.front().part = kFrequency;
        TakeBest(kMode, IsMode, 2);
        TakeBest(kStep, IsStep, 2);
        TakeBest(kTone, IsTone, 2);
        TakeBest(kShift, IsShift, 2);
        TakeBest(kNote, IsWords, 0);
        return columns_;
    }

  private:
    /// \param share  of the texts in the column, one in so many has to fit at least; 0 for any
    template <class Fits>
    void TakeBest(int part, Fits fits, int share)
    {
        int best = 0;
        std::size_t place = columns_.size();
        for (std::size_t column = 0; column < columns_.size(); ++column) {
            const auto [points, texts, fitting] = Count(column, fits);
            const bool isEnough = share == 0 || fitting * (share == 1 ? 2 : share) >= texts;
            if (columns_[column].part == ListColumn::kIgnored && isEnough && points > best) {
                best = points;
                place = column;
            }
        }
        if (place < columns_.size())
            columns_[place].part = part;
    }

    template <class Fits>
    std::array<int, 3> Count(std::size_t column, Fits fits) const
    {
        std::array<int, 3> counts{};
        for (const ListRecord& record : records_) {
            const std::string text = column < record.fields.size() ? record.fields[column] : std::string();
            const int points = text.empty() ? 0 : static_cast<int>(fits(text));
            counts[0] += points;
            counts[1] += text.empty() ? 0 : 1;
            counts[2] += points > 0 ? 1 : 0;
        }
        return counts;
    }

    const std::vector<ListRecord>& records_;
    std::vector<ListColumn> columns_;
};

std::vector<ListColumn>::const_iterator FindColumn(const std::vector<ListColumn>& columns, int part)
{
    return std::ranges::find(columns, part, &ListColumn::part);
}

/// "145,500,Tower": a comma for the decimals and one between the fields. It cannot be told where they end.
bool HasTwoKindsOfComma(const std::vector<ListRecord>& records, const std::vector<ListColumn>& columns)
{
    const auto found = FindColumn(columns, kFrequency);
    const auto place = static_cast<std::size_t>(found - columns.begin());
    const auto isBare = [](const std::string& text) {
        return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    };
    return found != columns.end() && std::ranges::any_of(records, [&](const ListRecord& record) {
               return place + 1 < record.fields.size() && isBare(record.fields[place]) &&
                      record.fields[place].size() <= 4 && isBare(record.fields[place + 1]);
           });
}

/// The sign that begins decimals in the columns of frequencies, where they agree.
DecimalSign LikelyDecimals(const ListTable& table)
{
    DecimalSign sign = DecimalSign::Unknown;
    for (const ListRecord& record : table.records)
        for (std::size_t i = 0; i < std::min(record.fields.size(), table.columns.size()); ++i) {
            const int part = table.columns[i].part;
            const DecimalSign here = part == kFrequency || part == kShiftFrequency
                                         ? DecimalsOf(record.fields[i])
                                         : DecimalSign::Unknown;
            if (here != DecimalSign::Unknown && sign != DecimalSign::Unknown && here != sign)
                return DecimalSign::Unknown;
            sign = here != DecimalSign::Unknown ? here : sign;
        }
    return sign;
}

/// Records of this program's CSV file that a spreadsheet has saved without the titles.
bool AreCsvRecords(const std::vector<ListRecord>& records)
{
    const auto& first = records.front().fields;
    return first.size() == kCsvTitles.size() && first.front() == kCsvModel;
}

std::vector<ListColumn> FoundColumns(const ListTable& table)
{
    if (table.hasTitles)
        return ColumnsUnder(table.titles);
    if (table.records.empty())
        return {};
    if (AreCsvRecords(table.records))
        return ColumnsUnder({kCsvTitles.begin(), kCsvTitles.end()});
    return Guesser(table.records).Columns();
}

constexpr std::size_t kNowhere = std::string::npos;

/// The place of the column of this number, counted from 1; behind all for what is none.
std::size_t PlaceOfNumber(std::string_view text)
{
    const bool isNumber =
        !text.empty() && text.size() < 4 && text.find_first_not_of("0123456789") == std::string_view::npos;
    return isNumber ? std::stoul(std::string(text)) - 1 : kNowhere;
}

/// The place of a column that somebody names by its title or its number.
std::size_t PlaceOf(const ListTable& table, const std::string& name)
{
    const std::size_t number =
        name.starts_with('#') ? PlaceOfNumber(std::string_view(name).substr(1)) : kNowhere;
    if (number != kNowhere)
        return number;
    const auto found = std::ranges::find(table.titles, name);
    if (found != table.titles.end())
        return static_cast<std::size_t>(found - table.titles.begin());
    return PlaceOfNumber(name);
}

/// What somebody says of columns goes before what was found out, there and for other columns of that kind.
void Assign(const ListForm& form, ListTable& table)
{
    for (const ColumnWish& wish : form.columns) {
        const std::size_t place = PlaceOf(table, wish.name);
        if (place >= table.columns.size()) {
            table.unknown.push_back(wish.name);
            continue;
        }
        for (ListColumn& other : table.columns)
            if (other.part == wish.column.part)
                other = {};
        table.columns[place] = wish.column;
    }
}

void TakeTitles(const ListForm& form, ListTable& table)
{
    table.hasTitles =
        !table.records.empty() && form.hasTitles.value_or(AreTitles(table.records.front().fields));
    if (!table.hasTitles)
        return;
    table.titles = table.records.front().fields;
    table.titles.resize(std::min(table.titles.size(), kMostColumns));
    table.records.erase(table.records.begin());
}

Message ProblemOf(const ListTable& table)
{
    if (!table.hasTitles && table.delimiter == ',' && HasTwoKindsOfComma(table.records, table.columns))
        return MESSAGE("commas stand for decimals and between fields; separate the fields by tabs");
    if (!table.hasTitles && !table.records.empty() && !HasColumn(table.columns, kFrequency))
        return MESSAGE("there is no frequency");
    return {};
}

}  // namespace

bool HasColumn(const std::vector<ListColumn>& columns, int part)
{
    return FindColumn(columns, part) != columns.end();
}

ListTable FindColumns(std::string_view text, std::size_t mostRecords, const ListForm& form)
{
    ListTable table;
    table.delimiter = form.delimiter.value_or(DelimiterOf(text));
    table.records = SplitList(text, table.delimiter, mostRecords + 1);
    if (table.records.size() > mostRecords) {
        table.firstUnread = table.records.back().line;
        table.records.pop_back();
    }
    TakeTitles(form, table);
    table.columns = FoundColumns(table);
    table.columns.resize(std::min(table.columns.size(), kMostColumns));
    Assign(form, table);
    table.problem = ProblemOf(table);
    table.decimals = form.decimals == DecimalSign::Unknown ? LikelyDecimals(table) : form.decimals;
    if (const auto frequency = FindColumn(table.columns, kFrequency); frequency != table.columns.end())
        table.usualUnit = LikelyUnit(
            table.records, static_cast<std::size_t>(frequency - table.columns.begin()), table.decimals);
    return table;
}

}  // namespace rqm5
