#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rqm5 {

// The values of a list that somebody typed, whatever program it comes from: how people write frequencies,
// modes and tones.

/// Without blanks at both ends, those included that web pages keep lines together with.
std::string Trimmed(std::string_view text);

/// Lower-case letters and digits of a text, each run of anything else as one blank: "Freq. (MHz)" is
/// "freq mhz".
std::string PlainWords(std::string_view text);

/// The same with letters as they are without accents, and the wide letters of Japanese texts as plain ones:
/// "FRÉQUENCE （ＭＨｚ）" is "frequence mhz".
std::string FoldedWords(std::string_view text);

/// What begins the decimals of a number.
enum class DecimalSign { Unknown, Point, Comma };

enum class Unit : std::int64_t { None = 0, Hz = 1, KHz = 1'000, MHz = 1'000'000, GHz = 1'000'000'000 };

/// The unit that a word names, Unit::None for any other.
Unit UnitNamed(std::string_view word);

/// A number with the unit that is written behind it. Its value is kept as written, in billionths.
struct WrittenNumber
{
    std::int64_t whole = 0;
    std::int64_t billionths = 0;
    Unit unit = Unit::None;
    bool isNegative = false;
    bool hasFraction = false;

    /// Hertz, rounded; a unit that is written goes before the one that is usual.
    std::int64_t Hertz(Unit usual) const;
};

/// Reads "145.5", "145,5", "145.500.000", "145 500 kHz", "1,299.995 MHz".
///
/// A separator that stands more than once, or before one of the other kind, separates thousands and has to
/// stand where thousands end. One that stands alone begins the decimals; before hertz, which have none, it
/// separates thousands. In "145,500 kHz" it could be either, so that is no number.
/// \param decimals  where it is known what begins them, the other sign separates thousands
/// \return nothing for what is no number
std::optional<WrittenNumber> ReadFrequency(std::string_view text,
                                           DecimalSign decimals = DecimalSign::Unknown);

/// The sign that begins the decimals of a number for certain.
DecimalSign DecimalsOf(std::string_view text);

/// The codes of a channel's fields as the receiver numbers them; nothing for a text that names none of them.
std::optional<int> ReadMode(std::string_view text);
std::optional<int> ReadStep(std::string_view text);
std::optional<int> ReadOption(std::string_view text);
std::optional<int> ReadSecret(std::string_view text);
std::optional<int> ReadCarrier(std::string_view text);
std::optional<int> ReadTone(std::string_view text);
std::optional<int> ReadShift(std::string_view text);
std::optional<int> ReadMark(std::string_view text);  ///< 0 or 1

}  // namespace rqm5
