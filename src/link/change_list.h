#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"
#include "link/change_plan.h"
#include "link/memory_map.h"

namespace rqm5 {

/// One field of a row that is written: what the receiver holds, and what it shall hold.
struct FieldChange
{
    std::string name;
    std::string from;
    std::string to;
};

/// A row, or another part of the receiver, that is written.
struct RowChange
{
    std::string label;  ///< "Row 12 (Bank 0, channel 12)", "VFO 3", "Settings 1", "Region presets"
    std::vector<FieldChange> fields;
};

/// What a plan writes and why, in the order of the receiver's memory. The enabled flag of a row stands among
/// its fields.
std::vector<RowChange> ListChanges(const CloneImage& image, const ChangePlan& plan);

/// A conflict: what was known, what the receiver holds now, and what is to be written.
struct ConflictField
{
    std::string name;
    std::string known;
    std::string receiver;
    std::string image;
};

struct ConflictRow
{
    std::string label;
    std::vector<ConflictField> fields;
};

ConflictRow DescribeConflict(const CloneImage& image, const ChangePlan& plan, const Conflict& conflict);

}  // namespace rqm5
