#pragma once

#include <optional>
#include <string_view>

#include "language/message.h"

namespace rqm5 {

/// Where the lines of a clone file stand, counted from 0.
enum CloneLine {
    kStartLine = 0,
    kSettingsLine = 1,
    kVfoLine = 3,
    kMemoryLine = 17,
    kEnableLine = 1257,
    kVfoNoteLine = 1267,  ///< from here on lines are delimited fields
    kMemoryNoteLine = 1281,
    kBankLine = 2521,
    kLinkLine = 2528,
    kEndLine = 2529,
    kCloneLines
};

/// What a line of a clone file holds: "memory row 0", "note of VFO row 3", ...
Message CloneLineName(int line);

/// Walks through the text of a clone file. Lines end with CR LF, LF or CR.
class CloneLineReader
{
  public:
    explicit CloneLineReader(std::string_view text) : rest_(text) {}

    /// The next whole line, nothing at the end of the text.
    std::optional<std::string_view> NextLine();

    /// The next delimited field: a comma ends it just as a line end does. A field between a quote at its
    /// start and a quote directly before its end loses both, and its commas do not end it; any other quote
    /// and all blanks stay as they are. A field does not reach past its line.
    std::optional<std::string_view> NextField();

    /// How many lines have been begun.
    int LineNumber() const { return lineNumber_; }

    /// The first line (counted from 1) in which a comma ended a field, 0 when none did.
    int FirstSplitLine() const { return firstSplitLine_; }

  private:
    bool BeginLine();
    std::size_t LineLength();
    std::size_t EnclosedLength();

    std::string_view rest_;  ///< what follows the line
    /// How long rest_ is from its next CR and LF on, 0 when there is none; more than it is while unknown.
    std::size_t returnsLeft_ = std::string_view::npos;
    std::size_t lineFeedsLeft_ = std::string_view::npos;
    std::string_view line_;  ///< what is left of the line
    bool isInLine_ = false;
    bool mayBeEnclosed_ = true;  ///< false once the line is known to hold no closing quote any more
    int lineNumber_ = 0;
    int firstSplitLine_ = 0;
};

}  // namespace rqm5
