#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rqm5 {

using Cells = std::vector<std::string>;

/// Lines up cells in columns for a fixed-pitch font. Every column is as wide as the widest cell it was
/// fitted to, up to a limit: what is longer goes on in the lines below, so that nothing is lost and one
/// strange cell does not shrink the print.
class TextColumns
{
  public:
    /// \param titles  separated by "|"; the last column may be wider than the others
    explicit TextColumns(std::string_view titles);

    void Fit(const Cells& cells);
    std::string Titles() const;

    /// The lines of one row, without blanks at their ends. Unsafe characters are made visible.
    std::vector<std::string> Lines(const Cells& cells) const;

  private:
    int Limit(std::size_t column) const;

    Cells titles_;
    std::vector<int> widths_;
};

}  // namespace rqm5
