#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rqm5 {

// The numbers of a list that somebody typed, with their units, in the manner of any country.

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

    /// The number without its unit, as near as a double comes.
    double Value() const;
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

/// The same for a tone, a step or a code: a separator that stands alone always begins the decimals.
std::optional<WrittenNumber> ReadSmallNumber(std::string_view text);

/// The sign that begins the decimals of a number for certain.
DecimalSign DecimalsOf(std::string_view text);

/// A text with plain blanks for whatever else than point and comma separates thousands, and a short minus for
/// a long one.
std::string WithPlainSigns(std::string_view text);

}  // namespace rqm5
