#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "image/receiver_model.h"

namespace rqm5 {

inline constexpr int kBandCells = kVfoRows * kRegions;  ///< a table of 14 bands with 4 regions each

/// Step texts; the index is the step code of a channel. 9 kHz comes first and the MHz steps stand out of
/// numeric order: that is the receiver's own numbering. Memory rows take codes 0 to 18, VFO rows 0 to 19.
inline constexpr std::array<std::string_view, 20> StepName = {
    "9KHz",  "5KHz",   "6.25KHz", "8.33KHz", "10KHz", "12.5KHz", "15KHz", "20KHz", "25KHz", "30KHz",
    "50KHz", "100KHz", "125KHz",  "200KHz",  "6MHz",  "1MHz",    "10MHz", "7MHz",  "8MHz",  "1KHz"};

/// CTCSS tone texts; the index is the tone code of a channel.
inline constexpr std::array<std::string_view, 39> ToneName = {
    "67.0Hz",  "69.3Hz",  "71.9Hz",  "74.4Hz",  "77.0Hz",  "79.7Hz",  "82.5Hz",  "85.4Hz",
    "88.5Hz",  "91.5Hz",  "94.8Hz",  "97.4Hz",  "100.0Hz", "103.5Hz", "107.2Hz", "110.9Hz",
    "114.8Hz", "118.8Hz", "123.0Hz", "127.3Hz", "131.8Hz", "136.5Hz", "141.3Hz", "146.2Hz",
    "151.4Hz", "156.7Hz", "162.2Hz", "167.9Hz", "173.8Hz", "179.9Hz", "186.2Hz", "192.8Hz",
    "203.5Hz", "210.7Hz", "218.1Hz", "225.7Hz", "233.6Hz", "241.8Hz", "250.3Hz"};

/// Option texts of VFO rows and of the editor; the index is the high nibble of the option byte.
inline constexpr std::array<std::string_view, 5> OptionName = {"OFF", "SCRT", "Carrier", "Tone", "Rev."};

/// Mode texts; the index is the mode code.
inline constexpr std::array<std::string_view, 3> ModeName = {"FM", "AM", "WFM"};

/// Shift texts; the index is the shift direction byte divided by 16.
inline constexpr std::array<std::string_view, 3> ShiftName = {"OFF", "+Shift", "-Shift"};

inline constexpr int kSecretOption = 1;  ///< the option that needs a secret code
inline constexpr int kSecretCodes = 17;
inline constexpr int kCarrierJr = 28;  ///< the carrier (train tone) code that shows as "JR"

/// The text of a carrier (train tone) code 0 to 28: "300Hz" to "3000Hz", then "JR".
std::string CarrierText(int code);

struct FrequencyRange
{
    double low;   ///< MHz, inclusive
    double high;  ///< MHz, inclusive

    bool Contains(double frequency) const { return frequency >= low && frequency <= high; }
};

/// The range shown beside a VFO band, e.g. "(0.1-0.530MHz)"; entry for band b and region r at b*4 + r.
/// Empty where the region has no such band.
extern const std::array<std::string_view, kBandCells> BandRangeText;

/// The frequencies that a VFO band accepts, entry for band b and region r at b*4 + r.
///
/// Two rows differ from the texts on purpose: band 2 of regions 2 and 3 starts at 29.0 MHz, and the rows
/// of bands 8 and 9 in region 2, which are no bands there, hold the blocked cellular-telephone ranges.
extern const std::array<FrequencyRange, kBandCells> BandLimit;
const FrequencyRange& BandLimitOf(int band, int region);

/// True for the two cellular-telephone ranges that region 2 refuses.
bool IsCellular(std::int64_t hertz);

inline constexpr FrequencyRange kReceiverRange = {0.1, 1299.995};

/// Labels of the receiver's special channels.
inline constexpr std::array<std::string_view, 13> SpecialChannelLabel = {
    "P 0A", "P 0B", "P 1A", "P 1B", "P 2A", "P 2B",    "P 3A",
    "P 3B", "P 4A", "P 4B", "AP L", "AP H", "Priority"};

/// The label of Program Scan edge 0 to 99 in CSV files: P0A, P0B, P1A, ... P49B.
std::string ProgramScanLabel(int edge);

inline constexpr std::string_view FileStart = "Tervan  RQ-M5  Clone  File Start";
inline constexpr std::string_view FileEnd = "Tervan  RQ-M5  Clone  File   End";
inline constexpr std::string_view AppTitle = "Tervan RQ-M5 Clone Utility";

/// The index of a text in a table of texts, -1 when it is not there.
template <std::size_t N>
constexpr int IndexOf(const std::array<std::string_view, N>& table, std::string_view text)
{
    for (std::size_t i = 0; i < N; ++i)
        if (table[i] == text)
            return static_cast<int>(i);
    return -1;
}

/// The entry of a table of texts, empty when the index is outside it.
template <std::size_t N>
constexpr std::string_view TextAt(const std::array<std::string_view, N>& table, int index)
{
    return index >= 0 && index < static_cast<int>(N) ? table[static_cast<std::size_t>(index)]
                                                     : std::string_view();
}

}  // namespace rqm5
