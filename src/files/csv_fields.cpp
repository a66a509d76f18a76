#include "files/csv_fields.h"

#include <algorithm>

namespace rqm5 {
namespace {

/// Where the quote stands that closes the quoted field at the front; npos when nothing closes it.
std::size_t ClosingQuote(std::string_view text)
{
    std::size_t quote = text.find('"', 1);
    while (quote != std::string_view::npos && quote + 1 < text.size() && text[quote + 1] == '"')
        quote = text.find('"', quote + 2);
    return quote;
}

std::string Undoubled(std::string_view text)
{
    if (text.find('"') == std::string_view::npos)
        return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text[i];
        if (text[i] == '"')
            ++i;
    }
    return result;
}

}  // namespace

std::string CsvFieldReader::TakeQuoted()
{
    const std::size_t closing = ClosingQuote(rest_);
    if (closing == std::string_view::npos) {
        // The quote is a character like any other then, or the rest of the file would be one field.
        mayBeQuoted_ = false;
        return std::string(TakePlain());
    }
    std::string field = Undoubled(rest_.substr(1, closing - 1));
    rest_.remove_prefix(closing + 1);
    return field += TakePlain();
}

std::string_view CsvFieldReader::TakePlain()
{
    const auto* end =
        std::find_if(rest_.begin(), rest_.end(), [](char c) { return c == ',' || c == '\r' || c == '\n'; });
    const std::string_view field = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    rest_.remove_prefix(field.size());
    return field;
}

void CsvFieldReader::SkipSeparator()
{
    isFieldDue_ = rest_.starts_with(',');
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
}

std::optional<std::string> CsvFieldReader::Next()
{
    if (rest_.empty() && !isFieldDue_)
        return std::nullopt;
    fieldBegin_ = text_.size() - rest_.size();
    std::string field = mayBeQuoted_ && rest_.starts_with('"') ? TakeQuoted() : std::string(TakePlain());
    SkipSeparator();
    return field;
}

int CsvFieldReader::Line()
{
    for (; countedTo_ < fieldBegin_; ++countedTo_) {
        const bool isLineEnd = text_[countedTo_] == '\n' ||
                               (text_[countedTo_] == '\r' && !text_.substr(countedTo_ + 1).starts_with('\n'));
        line_ += isLineEnd ? 1 : 0;
    }
    return line_;
}

void AddQuotedField(std::string& csv, std::string_view text)
{
    csv += '"';
    for (const char c : text) {
        if (c == '"')
            csv += '"';
        csv += c;
    }
    csv += '"';
}

}  // namespace rqm5
