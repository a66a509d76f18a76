#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace rqm5 {

/// Walks through a CSV text (UTF-8) field by field; records play no part. A comma or a line end (CR LF, LF
/// or CR) ends a field. A field in double quotes may hold both, and a doubled quote stands for one.
class CsvFieldReader
{
  public:
    explicit CsvFieldReader(std::string_view text) : text_(text), rest_(text) {}

    /// The next field without its quotes, nothing at the end of the text.
    std::optional<std::string> Next();

    /// The line that the last field began in, from 1. Counted when it is asked for: most files have nothing
    /// to tell.
    int Line();

    /// True when the last field was the last of its line.
    bool EndsLine() const { return !isFieldDue_; }

  private:
    std::string TakeQuoted();
    std::string_view TakePlain();
    void SkipSeparator();

    std::string_view text_;
    std::string_view rest_;
    std::size_t fieldBegin_ = 0;
    std::size_t countedTo_ = 0;
    int line_ = 1;
    bool isFieldDue_ = false;  ///< a comma was the last thing read
    bool mayBeQuoted_ = true;  ///< false once a quote was found that nothing closes
};

/// Appends a text field: in double quotes, quotes inside it doubled.
void AddQuotedField(std::string& csv, std::string_view text);

}  // namespace rqm5
