#pragma once

#include <vector>

#include "image/channel.h"
#include "language/message.h"

namespace rqm5 {

/// The fields of a row as they are compared: its columns up to the shift frequency, whether scanning skips
/// it, its note and its flag.
enum RowField { kSkipField = kTextColumns, kEnabledField, kRowFields };

/// What a field is called, the id of a message: "Mode", "Skip", "Enabled".
const char* RowFieldName(int field);

/// A field of two rows.
struct FieldPair
{
    Message first;
    Message second;
    bool differs = false;
};

using FieldPairs = std::vector<FieldPair>;

/// The fields of two rows, by their numbers. The texts are visible ones.
FieldPairs CompareFields(const Channel& first, const Channel& second, RowKind kind);

/// "on" or "off".
Message OnOff(bool value);

}  // namespace rqm5
