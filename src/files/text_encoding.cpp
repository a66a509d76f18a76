#include "files/text_encoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstring>

namespace rqm5 {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

unsigned Unsigned(char c)
{
    return static_cast<unsigned char>(c);
}

/// The lead bytes of UTF-8 with the range of the byte that must follow; the narrower ranges keep out
/// overlong forms, surrogates and everything above U+10FFFF.
struct Sequence
{
    unsigned firstLead, lastLead;
    std::size_t length;
    unsigned lowestSecond, highestSecond;
};

constexpr Sequence kSequences[] = {
    {0xC2, 0xDF, 2, 0x80, 0xBF}, {0xE0, 0xE0, 3, 0xA0, 0xBF}, {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F}, {0xEE, 0xEF, 3, 0x80, 0xBF}, {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF}, {0xF4, 0xF4, 4, 0x80, 0x8F},
};

/// The length of the well-formed sequence a text begins with, 0 when there is none.
std::size_t SequenceLength(std::string_view text)
{
    const unsigned lead = Unsigned(text[0]);
    if (lead < 0x80)
        return 1;
    for (const Sequence& sequence : kSequences) {
        if (lead < sequence.firstLead || lead > sequence.lastLead)
            continue;
        if (text.size() < sequence.length || Unsigned(text[1]) < sequence.lowestSecond ||
            Unsigned(text[1]) > sequence.highestSecond)
            return 0;
        const std::string_view rest = text.substr(2, sequence.length - 2);
        const bool follows =
            std::all_of(rest.begin(), rest.end(), [](char c) { return (Unsigned(c) & 0xC0) == 0x80; });
        return follows ? sequence.length : 0;
    }
    return 0;
}

/// How many characters at the front of a text are plain ASCII for certain. Nearly all of every file is, so
/// it is worth looking at eight bytes at a time.
std::size_t AsciiLength(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t length = 0;
    for (std::uint64_t word = 0; length + sizeof word <= text.size(); length += sizeof word) {
        std::memcpy(&word, text.data() + length, sizeof word);
        if ((word & kHighBits) != 0)
            break;
    }
    return length;
}

bool IsAscii(std::string_view text)
{
    text.remove_prefix(AsciiLength(text));
    return std::all_of(text.begin(), text.end(), [](char c) { return Unsigned(c) < 0x80; });
}

class CodePage932
{
  public:
    CodePage932() : converter_(iconv_open("UTF-8", "CP932")) {}
    ~CodePage932()
    {
        if (IsOpen())
            iconv_close(converter_);
    }
    CodePage932(const CodePage932&) = delete;
    CodePage932& operator=(const CodePage932&) = delete;

    /// Only lines that are not plain are converted: no character of this code page holds a line end.
    std::string ToUtf8(std::string_view bytes)
    {
        std::string result;
        while (!bytes.empty()) {
            const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
            const std::string_view line = bytes.substr(0, end);
            if (IsAscii(line))
                result += line;
            else
                AppendConverted(line, result);
            bytes.remove_prefix(end);
        }
        return result;
    }

  private:
    // iconv_open answers a failure with the value -1 in place of a pointer.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(converter_) != -1; }

    void AppendConverted(std::string_view bytes, std::string& result)
    {
        std::string input(bytes);
        char* next = input.data();
        std::size_t left = input.size();
        while (left > 0 && (!IsOpen() || !Convert(next, left, result))) {
            // A system without this code page still gives the plain characters.
            const bool isPlain = Unsigned(*next) < 0x80;
            result += isPlain ? std::string_view(next, 1) : kReplacement;
            ++next;
            --left;
        }
    }

    /// \return false when it stopped at bytes that are no character
    bool Convert(char*& next, std::size_t& left, std::string& result)
    {
        for (;;) {
            char* out = buffer_.data();
            std::size_t room = buffer_.size();
            const bool isDone = iconv(converter_, &next, &left, &out, &room) != std::size_t(-1);
            const bool isFull = !isDone && errno == E2BIG;
            result.append(buffer_.data(), out);
            if (!isFull)
                return isDone;
        }
    }

    iconv_t converter_;
    std::array<char, 4096> buffer_{};
};

}  // namespace

bool IsValidUtf8(std::string_view text)
{
    for (text.remove_prefix(AsciiLength(text)); !text.empty(); text.remove_prefix(AsciiLength(text))) {
        const std::size_t length = SequenceLength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::size_t CharacterCount(std::string_view text)
{
    const std::size_t ascii = AsciiLength(text);
    text.remove_prefix(ascii);
    const auto others =
        std::count_if(text.begin(), text.end(), [](char c) { return (Unsigned(c) & 0xC0) != 0x80; });
    return ascii + static_cast<std::size_t>(others);
}

std::string DecodeFileText(std::string_view bytes)
{
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    return IsValidUtf8(bytes) ? std::string(bytes) : CodePage932().ToUtf8(bytes);
}

}  // namespace rqm5
