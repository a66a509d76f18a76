#pragma once

#include <string>
#include <string_view>

namespace rqm5 {

// The words of a list that somebody typed, so that they can be compared with known ones.

/// Without blanks at both ends, those included that web pages keep lines together with.
std::string Trimmed(std::string_view text);

/// Lower-case letters and digits of a text, each run of anything else as one blank: "Freq. (MHz)" is
/// "freq mhz".
std::string PlainWords(std::string_view text);

/// The same with letters as they are without accents, and the wide letters of Japanese texts as plain ones:
/// "FRÉQUENCE （ＭＨｚ）" is "frequence mhz".
std::string FoldedWords(std::string_view text);

}  // namespace rqm5
