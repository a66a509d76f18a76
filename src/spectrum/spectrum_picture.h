#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "image/clone_image.h"
#include "image/value_tables.h"
#include "language/message.h"
#include "spectrum/spectrum_axis.h"

namespace rqm5 {

/// A bank that holds a channel, or one of the other groups.
struct SpectrumLane
{
    Message title;
    int firstMark = 0;  ///< of Marks
    int marks = 0;
};

/// A channel.
struct SpectrumMark
{
    int row;
    int lane;
    std::int64_t hertz;
    int mode;  ///< 0 FM, 1 AM, 2 WFM
    bool isOn;
    bool isDuplicate;  ///< another row has its frequency and mode
};

/// A pair of Program Scan edges.
struct SpectrumSpan
{
    int lane;
    std::int64_t low;
    std::int64_t high;
    bool isOn;
};

struct SpectrumBand
{
    int number;
    FrequencyRange range;  ///< MHz
};

/// What a spectrum shows of an image.
struct SpectrumPicture
{
    std::vector<SpectrumLane> lanes;
    std::vector<SpectrumMark> marks;  ///< by lane, then by frequency
    std::vector<SpectrumSpan> spans;
    std::vector<SpectrumBand> bands;    ///< the VFO bands of the model region
    std::vector<SpectrumBand> blocked;  ///< ranges that the region refuses
};

SpectrumPicture BuildSpectrum(const CloneImage& image);

/// The mark of a memory row, -1 for none.
int MarkOfRow(const SpectrumPicture& picture, int row);

/// The mark of a lane that is nearest to a place of the axis, -1 when none is as near as the tolerance.
int MarkAt(const SpectrumPicture& picture, const SpectrumAxis& axis, int lane, double place,
           double tolerance);

/// The VFO band at a frequency in hertz, nullptr between bands.
const SpectrumBand* BandAt(const SpectrumPicture& picture, double hertz);

enum class SpectrumStep { Left, Right, Up, Down };

/// Where an arrow key leads from a mark: along the lane, or to the nearest frequency in the next lane that
/// has marks. Stays at an end; from nowhere (-1) it goes to the first mark.
int NextMark(const SpectrumPicture& picture, int mark, SpectrumStep step);

}  // namespace rqm5
