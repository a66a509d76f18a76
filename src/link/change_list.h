#pragma once

#include <vector>

#include "image/clone_image.h"
#include "language/message.h"
#include "link/change_plan.h"
#include "link/memory_map.h"

namespace rqm5 {

/// One field of a row that is written: what the receiver holds, and what it shall hold.
struct FieldChange
{
    Message name;
    Message from;
    Message to;
};

/// A row, or another part of the receiver, that is written.
struct RowChange
{
    Message label;  ///< "Row 12 (Bank 0, channel 12)", "VFO 3", "Settings 1", "Region presets"
    std::vector<FieldChange> fields;
};

/// What a plan writes and why, in the order of the receiver's memory. The enabled flag of a row stands among
/// its fields.
std::vector<RowChange> ListChanges(const CloneImage& image, const ChangePlan& plan);

/// A conflict: what was known, what the receiver holds now, and what is to be written.
struct ConflictField
{
    Message name;
    Message known;
    Message receiver;
    Message image;
};

struct ConflictRow
{
    Message label;
    std::vector<ConflictField> fields;
};

ConflictRow DescribeConflict(const CloneImage& image, const ChangePlan& plan, const Conflict& conflict);

}  // namespace rqm5
