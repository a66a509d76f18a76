#pragma once

#include <QMimeData>
#include <optional>
#include <vector>

#include "files/channel_list.h"
#include "memory/row_moves.h"

namespace rqm5 {

/// Rows as a clipboard carries them: everything for this program, tab-separated text and HTML for others.
QMimeData* ClipOf(const CloneImage& image, const RowList& rows);

/// The channels that a clipboard or a drop brings: rows of this program, a list as text, or one file with a
/// list. Empty when there are none.
std::vector<ListedChannel> ChannelsOf(const QMimeData& data);

/// True when it may hold channels; for a file, when it is one on this computer that is no clone file.
bool MayHoldChannels(const QMimeData& data);

/// The clone file that was dropped, empty when it is none.
QString CloneFileOf(const QMimeData& data);

}  // namespace rqm5
