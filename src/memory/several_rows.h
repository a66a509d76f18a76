#pragma once

#include "memory/channel_editor.h"
#include "memory/row_moves.h"

namespace rqm5 {

/// What the editor's controls hold for several rows at once: a field in which they differ is blank (an empty
/// text, ChannelFields::kNothing, or a mark that is neither set nor not).
struct SharedFields
{
    ChannelFields fields;
    bool isSkipMixed = false;
    bool isEnableMixed = false;
};

/// What memory rows have in common. At least one row.
SharedFields LoadShared(const CloneImage& image, const RowList& rows);

/// The fields that were touched: that hold something now and held something else when they were shown.
Parts TouchedParts(const SharedFields& shown, const SharedFields& entered);

/// Writes the fields that were touched, and no other, into every row.
void StoreShared(CloneImage& image, const RowList& rows, const SharedFields& shown,
                 const SharedFields& entered);

/// A typed frequency for several rows: it has to be one that each of them takes. A box left blank is not
/// checked.
CheckedEntry CheckSharedFrequency(const CloneImage& image, const RowList& rows, int selector,
                                  const std::string& typed);
CheckedEntry CheckSharedOffset(const CloneImage& image, const RowList& rows, int selector,
                               const std::string& typed);

}  // namespace rqm5
