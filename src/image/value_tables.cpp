#include "image/value_tables.h"

#include <algorithm>

#include "image/number_text.h"

namespace rqm5 {

std::string CarrierText(int code)
{
    return code == kCarrierJr ? std::string("JR") : std::to_string((code + 3) * 100) + "Hz";
}

std::string ProgramScanLabel(int edge)
{
    return "P" + std::to_string(edge / 2) + (edge % 2 == 0 ? "A" : "B");
}

bool IsCellular(std::int64_t hertz)
{
    // Rows of the band table that are no bands in the region whose ranges they hold.
    constexpr int kCellularRegion = 2;
    constexpr std::size_t kRows[] = {8 * kRegions + kCellularRegion, 9 * kRegions + kCellularRegion};
    return std::any_of(std::begin(kRows), std::end(kRows),
                       [hertz](std::size_t row) { return BandLimit[row].Contains(Megahertz(hertz)); });
}

// Rows: band 0 to 13. Columns: region 0 to 3.
const std::array<std::string_view, kBandCells> BandRangeText = {
    // clang-format off
    "(0.1-0.530MHz)",       "(0.1-0.530MHz)",       "(0.1-0.529MHz)",       "(0.1-0.529MHz)",
    "(0.531-1.620MHz)",     "(0.531-1.620MHz)",     "(0.530-28.995MHz)",    "(0.530-28.995MHz)",
    "(1.625-49.995MHz)",    "(1.625-49.995MHz)",    "(29.625-59.745MHz)",   "(29.625-59.745MHz)",
    "(50.000-75.995MHz)",   "(50.000-75.995MHz)",   "(59.750-107.995MHz)",  "(59.750-107.995MHz)",
    "(76.000-107.995MHz)",  "(76.000-107.995MHz)",  "(108.000-215.995MHz)", "(108.000-215.995MHz)",
    "(108.000-141.995MHz)", "(108.000-141.995MHz)", "(216.000-399.995MHz)", "(216.000-399.995MHz)",
    "(142.000-169.995MHz)", "(142.000-169.995MHz)", "(400.000-959.995MHz)", "(400.000-959.995MHz)",
    "(170.000-221.995MHz)", "(170.000-221.995MHz)", "(960.000-1299.995MHz)", "(960.000-1299.995MHz)",
    "(222.000-335.995MHz)", "(222.000-335.995MHz)", "", "",
    "(336.000-429.995MHz)", "(336.000-429.995MHz)", "", "",
    "(430.000-469.995MHz)", "(430.000-469.995MHz)", "", "",
    "(470.000-769.995MHz)", "(470.000-769.995MHz)", "", "",
    "(770.000-959.995MHz)", "(770.000-959.995MHz)", "", "",
    "(960.000-1299.995MHz)", "(960.000-1299.995MHz)", "", "",
    // clang-format on
};

const std::array<FrequencyRange, kBandCells> BandLimit = {{
    // clang-format off
    {0.1, 0.53},        {0.1, 0.53},        {0.1, 0.529},       {0.1, 0.529},
    {0.531, 1.62},      {0.531, 1.62},      {0.53, 28.995},     {0.53, 28.995},
    {1.625, 49.995},    {1.625, 49.995},    {29.0, 59.745},     {29.0, 59.745},
    {50.0, 75.995},     {50.0, 75.995},     {59.75, 107.995},   {59.75, 107.995},
    {76.0, 107.995},    {76.0, 107.995},    {108.0, 215.995},   {108.0, 215.995},
    {108.0, 141.995},   {108.0, 141.995},   {216.0, 399.995},   {216.0, 399.995},
    {142.0, 169.995},   {142.0, 169.995},   {400.0, 959.995},   {400.0, 959.995},
    {170.0, 221.995},   {170.0, 221.995},   {960.0, 1299.995},  {960.0, 1299.995},
    {222.0, 335.995},   {222.0, 335.995},   {824.0, 849.995},   {0, 0},
    {336.0, 429.995},   {336.0, 429.995},   {869.0, 894.995},   {0, 0},
    {430.0, 469.995},   {430.0, 469.995},   {0, 0},             {0, 0},
    {470.0, 769.995},   {470.0, 769.995},   {0, 0},             {0, 0},
    {770.0, 959.995},   {770.0, 959.995},   {0, 0},             {0, 0},
    {960.0, 1299.995},  {960.0, 1299.995},  {0, 0},             {0, 0},
    // clang-format on
}};

const FrequencyRange& BandLimitOf(int band, int region)
{
    const int cell = band * kRegions + region;
    return BandLimit.at(static_cast<std::size_t>(cell));
}

}  // namespace rqm5
