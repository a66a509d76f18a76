#include "memory/channel_search.h"

#include <algorithm>
#include <array>
#include <string>

#include "image/number_text.h"
#include "image/utf8.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr int kToneOption = 3;

/// Where a word was found; the order is that of the hits.
enum Place { kInFrequency, kInMode, kInNote, kInTone, kInIdleTone, kNowhere };

struct Word
{
    std::u32string text;  ///< as it is looked for in notes
    std::string plain;    ///< the same with a point for a comma; empty for a word that is not ASCII
    bool isNumber = false;
};

struct CaseRange
{
    char32_t first;
    char32_t last;
    char32_t toSmall;  ///< what is added to a capital letter
};

/// Latin, Greek and Cyrillic capitals. Tables of every script would be longer than the notes of a receiver.
constexpr std::array<CaseRange, 6> kCapitals = {{{U'A', U'Z', 32},
                                                 {0xC0, 0xD6, 32},
                                                 {0xD8, 0xDE, 32},
                                                 {0x391, 0x3A9, 32},
                                                 {0x400, 0x40F, 80},
                                                 {0x410, 0x42F, 32}}};

char32_t Folded(char32_t letter)
{
    // Japanese keyboards write Latin letters and digits in full width, too.
    constexpr char32_t kFullWidth = 0xFEE0;
    if (letter >= 0xFF01 && letter <= 0xFF5E)
        letter -= kFullWidth;
    for (const CaseRange& range : kCapitals)
        if (letter >= range.first && letter <= range.last)
            return letter + range.toSmall;
    return letter;
}

std::u32string Folded(std::string_view text)
{
    std::u32string folded;
    folded.reserve(text.size());
    while (!text.empty()) {
        const Character next = FirstCharacter(text);
        folded += Folded(next.code);
        text.remove_prefix(next.length);
    }
    return folded;
}

std::string PlainText(std::u32string_view text)
{
    std::string plain;
    for (const char32_t letter : text) {
        if (letter >= 0x80)
            return {};
        plain += letter == U',' ? '.' : static_cast<char>(letter);
    }
    return plain;
}

bool IsNumber(std::string_view text)
{
    const bool hasDigitsOnly =
        std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
    return hasDigitsOnly && std::ranges::count(text, '.') <= 1 && text != ".";
}

Word MakeWord(std::u32string text)
{
    constexpr std::string_view kUnit = "mhz";
    Word word{std::move(text), {}, false};
    word.plain = PlainText(word.text);
    if (word.plain.ends_with(kUnit) && IsNumber(word.plain.substr(0, word.plain.size() - kUnit.size())))
        word.plain.resize(word.plain.size() - kUnit.size());
    word.isNumber = !word.plain.empty() && IsNumber(word.plain);
    return word;
}

std::vector<Word> WordsOf(std::string_view query)
{
    std::vector<Word> words;
    std::u32string letters;
    for (const char32_t letter : Folded(query) + U' ') {
        const bool isBlank = letter == U' ' || letter == U'\t' || letter == 0x3000;
        if (!isBlank) {
            letters += letter;
        } else if (!letters.empty()) {
            // "145.625 MHz" asks for the number.
            if (letters != U"mhz" || words.empty() || !words.back().isNumber)
                words.push_back(MakeWord(letters));
            letters.clear();
        }
    }
    return words;
}

bool IsFrequency(std::int64_t hertz, const Word& word)
{
    if (hertz == 0 || !word.isNumber)
        return false;
    std::string text = FormatMegahertz(hertz);
    if (text.starts_with(word.plain))
        return true;
    // Four digits may be megahertz; more of them without a point go on behind it.
    constexpr std::size_t kMegahertzDigits = 4;
    if (word.plain.size() <= kMegahertzDigits || word.plain.find('.') != std::string::npos)
        return false;
    text.erase(text.find('.'), 1);
    return text.starts_with(word.plain);
}

/// "88.5", "88.5Hz" and "100" name a tone; "8" does not, or it would find nearly every row.
bool IsTone(std::string_view tone, std::string_view word)
{
    std::string text(tone);
    std::ranges::transform(text, text.begin(), [](char c) { return c == 'H' ? 'h' : c; });
    const std::size_t point = text.find('.');
    return text.starts_with(word) &&
           (word.size() > point || (word.size() == point && text[point + 1] == '0'));
}

bool IsMode(std::string_view mode, std::string_view word)
{
    return word.size() <= mode.size() && !word.empty() &&
           std::ranges::equal(mode.substr(0, word.size()), word,
                              [](char shown, char typed) { return shown - 'A' + 'a' == typed; });
}

class RowText
{
  public:
    explicit RowText(const Channel& channel) : channel_(channel), note_(Folded(channel.note)) {}

    Place Find(const Word& word) const
    {
        if (IsFrequency(channel_.frequency, word))
            return kInFrequency;
        const bool hasChannel = channel_.HasChannel();
        if (hasChannel && IsMode(TextAt(ModeName, channel_.mode), word.plain))
            return kInMode;
        if (note_.find(word.text) != std::u32string::npos)
            return kInNote;
        if (!hasChannel || !IsTone(TextAt(ToneName, channel_.tone), word.plain))
            return kNowhere;
        return channel_.option / 16 == kToneOption ? kInTone : kInIdleTone;
    }

  private:
    const Channel& channel_;
    std::u32string note_;
};

/// The place of the word that is hardest to find.
Place FindAll(const Channel& channel, const std::vector<Word>& words)
{
    const RowText row(channel);
    Place worst = kInFrequency;
    for (const Word& word : words)
        worst = std::max(worst, row.Find(word));
    return worst;
}

}  // namespace

std::vector<int> FindChannels(const CloneImage& image, std::string_view query)
{
    const std::vector<Word> words = WordsOf(query);
    if (words.empty())
        return {};
    std::array<std::vector<int>, kNowhere + 1> found;
    for (int row = 0; row < kRadioRows; ++row) {
        const Channel& channel = image.MemData(row);
        if (channel.HasChannel() || !channel.note.empty())
            found.at(FindAll(channel, words)).push_back(row);
    }
    std::vector<int> rows;
    for (int place = kInFrequency; place < kNowhere; ++place)
        rows.insert(rows.end(), found.at(static_cast<std::size_t>(place)).begin(),
                    found.at(static_cast<std::size_t>(place)).end());
    return rows;
}

bool HoldsText(std::string_view text, std::string_view part)
{
    return Folded(text).find(Folded(part)) != std::u32string::npos;
}

}  // namespace rqm5
