#include "files/clone_lines.h"

#include <algorithm>
#include <iterator>

namespace rqm5 {
namespace {

struct Section
{
    int first;
    const char* name;
    int firstNumber;  ///< of those that have numbers
};

constexpr Section kSections[] = {
    {kStartLine, MESSAGE("first line"), 0},
    {kSettingsLine, MESSAGE("settings block %1"), 1},
    {kVfoLine, MESSAGE("VFO row %1"), 0},
    {kMemoryLine, MESSAGE("memory row %1"), 0},
    {kEnableLine, MESSAGE("channel flags %1"), 0},
    {kVfoNoteLine, MESSAGE("note of VFO row %1"), 0},
    {kMemoryNoteLine, MESSAGE("note of memory row %1"), 0},
    {kBankLine, MESSAGE("bank sizes %1"), 0},
    {kLinkLine, MESSAGE("bank links"), 0},
    {kEndLine, MESSAGE("last line"), 0},
};

}  // namespace

Message CloneLineName(int line)
{
    const auto* next =
        std::upper_bound(std::begin(kSections), std::end(kSections), line,
                         [](int value, const Section& section) { return value < section.first; });
    const Section& section = *std::prev(next);
    return {section.name, {line - section.first + section.firstNumber}};
}

/// How long the line at the front of rest_ is. Where the next CR and LF stand is kept until they are
/// passed: a file with one kind of line ends must not be searched to its end for the other in every line.
std::size_t CloneLineReader::LineLength()
{
    const auto leftFrom = [this](char lineEnd, std::size_t known) {
        if (known <= rest_.size())
            return known;
        const std::size_t found = rest_.find(lineEnd);
        return found == std::string_view::npos ? 0 : rest_.size() - found;
    };
    returnsLeft_ = leftFrom('\r', returnsLeft_);
    lineFeedsLeft_ = leftFrom('\n', lineFeedsLeft_);
    return rest_.size() - std::max(returnsLeft_, lineFeedsLeft_);
}

/// Steps to the next line unless there is one whose end has not been reached.
bool CloneLineReader::BeginLine()
{
    if (isInLine_)
        return true;
    if (rest_.empty())
        return false;
    line_ = rest_.substr(0, LineLength());
    rest_.remove_prefix(line_.size());
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
    ++lineNumber_;
    mayBeEnclosed_ = true;
    return true;
}

/// The length of the field at the front of the line with its quotes; 0 when it is not enclosed in them.
std::size_t CloneLineReader::EnclosedLength()
{
    if (!mayBeEnclosed_ || !line_.starts_with('"'))
        return 0;
    for (std::size_t quote = line_.find('"', 1); quote != std::string_view::npos;
         quote = line_.find('"', quote + 1))
        if (quote + 1 == line_.size() || line_[quote + 1] == ',')
            return quote + 1;
    mayBeEnclosed_ = false;
    return 0;
}

std::optional<std::string_view> CloneLineReader::NextLine()
{
    if (!BeginLine())
        return std::nullopt;
    isInLine_ = false;
    return line_;
}

std::optional<std::string_view> CloneLineReader::NextField()
{
    if (!BeginLine())
        return std::nullopt;
    const std::size_t enclosed = EnclosedLength();
    const std::size_t length = enclosed > 0 ? enclosed : std::min(line_.find(','), line_.size());
    const std::string_view field = enclosed > 0 ? line_.substr(1, length - 2) : line_.substr(0, length);
    isInLine_ = length < line_.size();
    if (isInLine_) {
        line_.remove_prefix(length + 1);
        if (firstSplitLine_ == 0)
            firstSplitLine_ = lineNumber_;
    }
    return field;
}

}  // namespace rqm5
