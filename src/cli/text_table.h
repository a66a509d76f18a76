#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "cli/paint.h"

namespace rqm5 {

/// Rows of texts, printed in columns as wide as their widest text.
class TextTable
{
  public:
    void AddRow(std::vector<std::string> cells, Paint paint = Paint::None);

    bool IsEmpty() const { return rows_.empty(); }

    /// Two blanks between columns and none at the ends of lines.
    void Print(std::ostream& out, bool isPainted = false) const;

    /// A tab between fields; no text holds one.
    void PrintTabbed(std::ostream& out) const;

  private:
    struct Row
    {
        std::vector<std::string> cells;
        Paint paint;
    };

    std::vector<Row> rows_;
};

}  // namespace rqm5
