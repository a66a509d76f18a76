#pragma once

#include <string>
#include <vector>

namespace rqm5 {

/// The part of the receiver's range that a spectrum shows, on a logarithmic axis. Frequencies are in hertz,
/// places go from 0 at the left end to 1 at the right one.
class SpectrumAxis
{
  public:
    static constexpr double kLowest = 0.1e6;
    static constexpr double kHighest = 1300e6;
    static constexpr double kNarrowest = 0.1e6;  ///< from one end to the other

    double Low() const;
    double High() const;
    bool IsWhole() const;

    double PlaceOf(double hertz) const;
    double HertzAt(double place) const;

    void ShowAll() { *this = {}; }

    /// Shows a range, widened and moved as far as the limits ask for it.
    void Show(double low, double high);

    /// Brings the axis nearer by a factor; the frequency at a place stays there, unless an end of the range
    /// is reached.
    void Zoom(double place, double factor);

    /// Moves to higher frequencies by a part of what is shown; negative to lower ones.
    void Pan(double part);

    /// Moves as little as it takes to show a frequency at some distance from the ends.
    void BringIntoSight(double hertz);

    friend bool operator==(const SpectrumAxis&, const SpectrumAxis&) = default;

  private:
    void Keep(double low, double width);

    double low_ = -1;                  ///< decimal logarithm of MHz at the left end
    double high_ = 3.113943352306837;  ///< and at the right one
};

struct SpectrumTick
{
    double hertz;
    std::string label;  ///< "145.5 MHz"; empty for a small tick
};

/// Round frequencies along an axis of some width, labels at least a gap apart.
std::vector<SpectrumTick> Ticks(const SpectrumAxis& axis, double width, double labelGap);

/// "500 kHz", "145.5 MHz": as many decimals as it takes.
std::string FrequencyLabel(double hertz);

}  // namespace rqm5
