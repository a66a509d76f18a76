#include "spectrum/spectrum_axis.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace rqm5 {
namespace {

constexpr double kUnit = 1e6;

double ToLog(double hertz)
{
    return std::log10(hertz / kUnit);
}

double FromLog(double value)
{
    return std::pow(10.0, value) * kUnit;
}

const double kLeftEnd = ToLog(SpectrumAxis::kLowest);
const double kRightEnd = ToLog(SpectrumAxis::kHighest);

double SpanOf(double low, double width)
{
    return FromLog(low + width) - FromLog(low);
}

/// The width, at least this one, at which the narrowest range is shown around a place that stays.
double WideEnough(double anchor, double place, double width)
{
    double widest = kRightEnd - kLeftEnd;
    if (SpanOf(anchor - place * width, width) >= SpectrumAxis::kNarrowest)
        return width;
    constexpr int kHalvings = 50;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (width + widest) / 2;
        (SpanOf(anchor - place * middle, middle) < SpectrumAxis::kNarrowest ? width : widest) = middle;
    }
    return widest;
}

/// Numbers of a decade that bear a label, from few to many.
constexpr double kOnce[] = {1};
constexpr double kThrice[] = {1, 2, 5};
constexpr double kMany[] = {1, 1.5, 2, 2.5, 3, 4, 5, 6, 7, 8, 9};
constexpr double kFine[] = {1, 1.25, 1.5, 1.75, 2, 2.5, 3, 3.5, 4, 4.5,
                            5, 5.5,  6,   6.5,  7, 7.5, 8, 8.5, 9, 9.5};
constexpr std::span<const double> kDecades[] = {kOnce, kThrice, kMany, kFine};

/// Above this ratio of its ends an axis is divided by decades, below it evenly.
constexpr double kEvenRatio = 3;

/// The least part of a decade between two neighbours.
double LeastGap(std::span<const double> numbers)
{
    double least = 1 - std::log10(numbers.back());
    for (std::size_t i = 1; i < numbers.size(); ++i)
        least = std::min(least, std::log10(numbers[i] / numbers[i - 1]));
    return least;
}

void AddDecades(std::vector<SpectrumTick>& ticks, const SpectrumAxis& axis, double decadeWidth, double gap)
{
    std::size_t labelled = 0;
    while (labelled + 1 < std::size(kDecades) && LeastGap(kDecades[labelled + 1]) * decadeWidth >= gap)
        ++labelled;
    const auto small = kDecades[std::min(std::max(labelled + 1, std::size_t{2}), std::size(kDecades) - 1)];
    const auto big = kDecades[labelled];
    const int nth = static_cast<int>(std::ceil(std::max(gap / decadeWidth, 1.0)));
    const auto first = static_cast<int>(std::floor(std::log10(axis.Low())));
    for (int power = first; std::pow(10, power) <= axis.High(); ++power)
        for (const double number : small) {
            const double hertz = number * std::pow(10, power);
            const bool isBig = std::ranges::find(big, number) != big.end() && power % nth == 0;
            if (hertz >= axis.Low() && hertz <= axis.High())
                ticks.push_back({hertz, isBig ? FrequencyLabel(hertz) : std::string()});
        }
}

/// The round step that is not below a number of hertz, and into how many small ones it falls.
std::pair<double, int> RoundStep(double least)
{
    const double decade = std::pow(10, std::floor(std::log10(least)));
    for (const auto& [number, parts] : {std::pair(1, 5), std::pair(2, 4), std::pair(5, 5)})
        if (number * decade >= least)
            return {number * decade, parts};
    return {10 * decade, 5};
}

void AddEven(std::vector<SpectrumTick>& ticks, const SpectrumAxis& axis, double width, double gap)
{
    // Hertz stand closest at the right end.
    const double left = axis.HertzAt(1 - std::min(gap / width, 1.0));
    const auto [step, parts] = RoundStep(axis.High() - left);
    const double small = step / parts;
    for (auto i = static_cast<long>(std::ceil(axis.Low() / small));
         static_cast<double>(i) * small <= axis.High(); ++i) {
        const double hertz = static_cast<double>(i) * small;
        ticks.push_back({hertz, i % parts == 0 ? FrequencyLabel(hertz) : std::string()});
    }
}

}  // namespace

double SpectrumAxis::Low() const
{
    return FromLog(low_);
}

double SpectrumAxis::High() const
{
    return FromLog(high_);
}

bool SpectrumAxis::IsWhole() const
{
    return *this == SpectrumAxis();
}

double SpectrumAxis::PlaceOf(double hertz) const
{
    return (ToLog(hertz) - low_) / (high_ - low_);
}

double SpectrumAxis::HertzAt(double place) const
{
    return FromLog(low_ + place * (high_ - low_));
}

void SpectrumAxis::Show(double low, double high)
{
    const double left = ToLog(std::clamp(low, kLowest, kHighest));
    const double right = ToLog(std::clamp(high, kLowest, kHighest));
    const double middle = (left + right) / 2;
    const double width = WideEnough(middle, 0.5, std::max(right - left, 0.0));
    Keep(middle - width / 2, width);
}

void SpectrumAxis::Zoom(double place, double factor)
{
    const double width = high_ - low_;
    const double anchor = low_ + place * width;
    const double wanted = WideEnough(anchor, place, std::min(width / factor, kRightEnd - kLeftEnd));
    Keep(anchor - place * wanted, wanted);
}

void SpectrumAxis::Pan(double part)
{
    const double width = high_ - low_;
    Keep(low_ + part * width, width);
}

void SpectrumAxis::BringIntoSight(double hertz)
{
    constexpr double kEdge = 0.05;
    const double place = PlaceOf(hertz);
    if (place < kEdge)
        Pan(place - kEdge);
    else if (place > 1 - kEdge)
        Pan(place - 1 + kEdge);
}

void SpectrumAxis::Keep(double low, double width)
{
    if (width >= kRightEnd - kLeftEnd)
        return ShowAll();
    low_ = std::clamp(low, kLeftEnd, kRightEnd - width);
    // The same width shows fewer hertz further to the left.
    high_ = std::min(low_ + WideEnough(low_, 0, width), kRightEnd);
}

std::string FrequencyLabel(double hertz)
{
    const bool isKilohertz = hertz < 0.9995 * kUnit;
    const auto whole = static_cast<long long>(std::llround(hertz));
    const long long unit = isKilohertz ? 1000 : 1'000'000;
    std::string text = std::to_string(whole / unit);
    if (const long long rest = whole % unit; rest != 0) {
        std::string digits = std::to_string(unit + rest).substr(1);
        digits.erase(digits.find_last_not_of('0') + 1);
        text += '.' + digits;
    }
    return text + (isKilohertz ? " kHz" : " MHz");
}

std::vector<SpectrumTick> Ticks(const SpectrumAxis& axis, double width, double labelGap)
{
    std::vector<SpectrumTick> ticks;
    if (width <= 0 || labelGap <= 0)
        return ticks;
    if (axis.High() / axis.Low() > kEvenRatio)
        AddDecades(ticks, axis, width / std::log10(axis.High() / axis.Low()), labelGap);
    else
        AddEven(ticks, axis, width, labelGap);
    return ticks;
}

}  // namespace rqm5
