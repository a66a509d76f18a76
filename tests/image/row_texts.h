#pragma once

#include <string>
#include <vector>

#include "image/channel.h"
#include "image/number_text.h"

namespace rqm5 {

/// The ten texts of a row, as they are kept or as a model region shows them.
inline std::vector<std::string> TextsOf(const Channel& row, RowKind kind = RowKind::Memory,
                                        int region = kNoRegion)
{
    std::vector<std::string> texts;
    texts.reserve(kColumns.size());
    for (const Column column : kColumns)
        texts.push_back(CellText(row, kind, region, column));
    return texts;
}

/// A column of a row as a number: its code, or its frequency in MHz.
inline double NumberOf(const ChannelContents& row, Column column)
{
    for (const CodeField& field : kCodeFields)
        if (field.column == column)
            return row.*field.value;
    return Megahertz(column == kFrequency ? row.frequency : row.shiftFrequency);
}

}  // namespace rqm5
