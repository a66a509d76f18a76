#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/row_moves.h"

namespace rqm5 {

/// Channels with everything that belongs to them, as a text for another window of this program.
std::string FormatClip(const CloneImage& image, const RowList& rows);

/// The channels of such a text, empty rows among them; nothing when any part of it is not as FormatClip
/// writes it, because a clipboard can hold anything.
std::optional<std::vector<Channel>> ParseClip(std::string_view text);

/// The cells of rows as a table shows them under its titles, for a spreadsheet: fields separated by tabs.
/// Skip mark and secret code have columns of their own.
std::string FormatTabbed(const CloneImage& image, const RowList& rows);

/// The same as an HTML table.
std::string FormatHtml(const CloneImage& image, const RowList& rows);

}  // namespace rqm5
