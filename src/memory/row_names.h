#pragma once

#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// Where a memory row 0 to 1239 is, for people: "Bank 0, channel 12", "Program Scan 0B", "Search Pass S5",
/// "Priority Pr3"; empty for a row in no bank and for one that is not in the receiver.
Message PlaceOfRow(const CloneImage& image, int row);

/// In a sentence: "memory row 12 (Bank 0, channel 12)", "memory row 999 (in no bank)", "memory row 1210 (not
/// in the receiver)".
Message RowName(const CloneImage& image, int row);

/// At the head of a line: "Row 12 (Bank 0, channel 12)", "Row 990 (no bank)".
Message RowLabel(const CloneImage& image, int row);

/// A VFO row 0 to 13: "VFO row 3".
Message VfoRowName(int row);

/// A row of either table.
Message RowName(const CloneImage& image, RowId id);

}  // namespace rqm5
