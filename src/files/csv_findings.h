#pragma once

#include <string_view>
#include <vector>

#include "files/csv_record.h"
#include "image/clone_image.h"
#include "language/message.h"

namespace rqm5 {

/// What an import read otherwise than it stands in the file, or not at all.
struct CsvFinding
{
    int line;
    Message text;
};

struct CsvFindings
{
    std::vector<CsvFinding> all = {};
    int keptRows = 0;       ///< rows that keep an old value somewhere
    int decimalCommas = 0;  ///< numbers that end at their comma

    bool IsEmpty() const { return all.empty(); }
    void Add(int line, Message text) { all.push_back({line, std::move(text)}); }

    /// "2 remarks: 1 row keeps an old value, 1 number has a decimal comma"
    Message Summary() const;

    /// "Line 12: memory row 3 (Bank 0, channel 3): ..."
    std::vector<Message> Lines() const;
};

/// A record that was stored: what it says, where it stands, and its row before and now.
struct StoredRecord
{
    const CsvRecord& record;
    const CsvValues& values;
    int line;
    RowId id;
    const Channel& before;
};

/// Adds what is to be said of a record: fields that are no number, out of range or match no entry, and what
/// the row keeps because of them.
void JudgeRecord(const StoredRecord& stored, const CloneImage& image, CsvFindings& findings);

/// True for a number such as "145,5": digits, one comma, digits, perhaps a unit.
bool HasDecimalComma(std::string_view text);

}  // namespace rqm5
