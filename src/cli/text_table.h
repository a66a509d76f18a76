#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace rqm5 {

/// Rows of texts, printed in columns as wide as their widest text.
class TextTable
{
  public:
    void AddRow(std::vector<std::string> cells);

    bool IsEmpty() const { return rows_.empty(); }

    /// Two blanks between columns and none at the ends of lines.
    void Print(std::ostream& out) const;

  private:
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace rqm5
