#include "vfo/vfo_defaults.h"

#include <array>

#include "image/number_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

enum Mode : std::uint8_t { FM, AM, WFM };

struct DefaultRow
{
    double frequency;  ///< MHz
    Mode mode;
    std::array<std::uint8_t, 2> step;  ///< step codes, in region 0 and elsewhere
    double shift;                      ///< MHz
};

// clang-format off
constexpr std::array<DefaultRow, 8> kFirstRowsJE = {{
    {0.1,    AM,  {19, 19}, 0.25}, {0.531,  AM,  {0, 0}, 1.0}, {1.625, AM, {1, 1}, 1.0},
    {51.0,   FM,  {1, 1},   1.0},  {76.1,   WFM, {11, 11}, 1.0}, {118.0, AM, {8, 8}, 1.0},
    {145.0,  FM,  {7, 5},   0.6},  {175.75, WFM, {5, 5}, 6.0},
}};

constexpr std::array<DefaultRow, 8> kFirstRowsTK = {{
    {0.1,    AM,  {19, 19}, 0.25}, {0.53,   AM,  {4, 4}, 1.0}, {29.0,  FM, {4, 4}, 1.0},
    {59.75,  WFM, {4, 4},   1.0},  {145.0,  FM,  {4, 4}, 0.6}, {216.0, FM, {4, 4}, 9.0},
    {400.0,  FM,  {4, 4},   5.0},  {960.0,  FM,  {4, 4}, 20.0},
}};

/// The same in every region; regions 2 and 3 do not show them.
constexpr std::array<DefaultRow, 6> kLastRows = {{
    {270.0,  AM,  {5, 5},   9.0},  {380.0,  FM,  {5, 5},   16.5}, {433.0,  FM, {7, 5}, 16.5},
    {475.75, WFM, {10, 10}, 6.0},  {806.0,  WFM, {7, 7},   55.0}, {1295.0, FM, {7, 7}, 20.0},
}};
// clang-format on

constexpr int kSecretCode = 8;
constexpr int kToneCode = 8;

const DefaultRow& RowFor(int row, int bandPlan)
{
    const auto& first = bandPlan == 0 ? kFirstRowsJE : kFirstRowsTK;
    const auto index = static_cast<std::size_t>(row);
    return index < first.size() ? first[index] : kLastRows[index - first.size()];
}

}  // namespace

Channel DefaultVfoRow(int region, int row)
{
    const DefaultRow& from = RowFor(row, RegionOf(region).bandPlan);
    Channel channel;
    channel.blank = 0;
    channel.frequency = Hertz(from.frequency);
    channel.shiftFrequency = static_cast<std::int32_t>(Hertz(from.shift));
    channel.mode = from.mode;
    channel.step = from.step.at(static_cast<std::size_t>(RegionOf(region).defaultSteps));
    channel.secret = kSecretCode;
    channel.carrier = kCarrierJr;
    channel.tone = kToneCode;
    return channel;
}

void BuildVfoDefaults(CloneImage& image)
{
    for (int row = 0; row < kVfoRows; ++row)
        image.VFOData(row) = DefaultVfoRow(image.ModelNo(), row);
}

}  // namespace rqm5
