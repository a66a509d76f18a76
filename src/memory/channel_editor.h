#pragma once

#include <string>

#include "image/clone_image.h"
#include "language/message.h"
#include "memory/channel_parts.h"

namespace rqm5 {

/// What the editor's controls hold. A choice of kNothing stands for a value that has no control; storing
/// it keeps what the row has.
struct ChannelFields
{
    static constexpr int kNothing = -1;

    std::string frequency;  ///< as typed
    int mode = 0;           ///< 0 FM, 1 AM, 2 WFM
    int step = 0;           ///< 0 to 13, or 19
    int option = 0;         ///< 0 to 4
    int secret = 0;
    int carrier = 0;
    int tone = 0;
    int shift = 0;               ///< 0 off, 1 plus, 2 minus
    std::string shiftFrequency;  ///< as typed
    std::string note;
    bool skip = false;
    bool enable = false;
};

/// Why a typed frequency or offset was refused.
enum class Verdict {
    Accepted,
    OutOfRange,  ///< without a message
    Cellular,    ///< blocked in region 2
    Duplicate,   ///< another enabled Search Pass row has it
};

/// Why, in words; empty for what was accepted.
Message VerdictText(Verdict verdict);

/// What becomes of a typed number when its box is left.
struct CheckedEntry
{
    Verdict verdict;
    std::string text;  ///< what the box holds then: the number in its pattern, or what stood there before
};

/// Steps that have a button of their own. Rows can hold other steps, which the editor keeps.
bool HasStepButton(int step);

/// True when the row exists and the region has it: regions 2 and 3 have VFO bands 1 to 8 only.
bool CanModify(const CloneImage& image, RowId id);

/// The range shown beside the frequency box.
std::string FrequencyRangeText(const CloneImage& image, RowId id);

/// The fields of a row that can be modified.
ChannelFields LoadFields(const CloneImage& image, RowId id);

/// \param selector  the bank selector's index: the Search Pass list has a rule of its own
CheckedEntry CheckFrequency(const CloneImage& image, RowId id, int selector, const std::string& typed);

/// Whether a memory row may take a frequency. A row of the Search Pass list is held to its rule whatever
/// group is shown.
Verdict JudgeFrequency(const CloneImage& image, int row, std::int64_t hertz);

CheckedEntry CheckOffset(const CloneImage& image, RowId id, int selector, const std::string& typed);

/// Writes the fields into the row. What the region does not have keeps its value. A VFO row has neither note
/// nor skip nor enabled flag.
/// \return false when there is no such row; nothing changes then
bool StoreFields(CloneImage& image, RowId id, const ChannelFields& fields);

/// Writes some of the fields into a memory row and leaves everything else in it as it is.
void StoreParts(CloneImage& image, int row, const ChannelFields& fields, Parts parts);

}  // namespace rqm5
