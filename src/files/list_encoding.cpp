#include "files/list_encoding.h"

#include <uchardet/uchardet.h>

#include <algorithm>
#include <array>
#include <memory>

#include "files/text_encoding.h"
#include "image/utf8.h"

namespace rqm5 {
namespace {

constexpr std::string_view kUtf8 = "UTF-8";
constexpr std::string_view kUtf16 = "UTF-16";
constexpr std::string_view kWestern = "WINDOWS-1252";
constexpr std::string_view kJapanese = "CP932";

constexpr std::array<std::string_view, 12> kEncodings = {
    kUtf8,          kUtf16,        kWestern,  "WINDOWS-1250", "WINDOWS-1251", "WINDOWS-1253",
    "WINDOWS-1254", "ISO-8859-15", kJapanese, "EUC-JP",       "GB18030",      "MACINTOSH"};

bool HasUtf16Mark(std::string_view bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
}

void AppendUtf8(char32_t code, std::string& text)
{
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        add(code);
    } else if (code < 0x800) {
        add(0xC0 | code >> 6);
        add(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        add(0xE0 | code >> 12);
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    } else {
        add(0xF0 | code >> 18);
        add(0x80 | (code >> 12 & 0x3F));
        add(0x80 | (code >> 6 & 0x3F));
        add(0x80 | (code & 0x3F));
    }
}

/// Without a mark the low byte comes first, as nearly every program writes it.
std::string FromUtf16(std::string_view bytes)
{
    const bool isHighFirst = bytes.starts_with("\xFE\xFF");
    if (HasUtf16Mark(bytes))
        bytes.remove_prefix(2);
    const auto unit = [&](std::size_t at) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[at]);
        const auto second = static_cast<unsigned char>(bytes[at + 1]);
        return isHighFirst ? first * 256U + second : second * 256U + first;
    };
    constexpr char32_t kReplacement = 0xFFFD;
    std::string text;
    for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
        char32_t code = unit(at);
        const bool isPair = code >= 0xD800 && code < 0xDC00 && at + 3 < bytes.size() &&
                            unit(at + 2) >= 0xDC00 && unit(at + 2) < 0xE000;
        if (isPair) {
            code = 0x10000 + ((code - 0xD800) << 10) + (unit(at + 2) - 0xDC00);
            at += 2;
        }
        AppendUtf8(code >= 0xD800 && code < 0xE000 ? kReplacement : code, text);
    }
    if (bytes.size() % 2 != 0)
        AppendUtf8(kReplacement, text);
    return text;
}

std::string FromUtf8(std::string_view bytes)
{
    if (IsValidUtf8(bytes))
        return DecodeFileText(bytes);
    std::string text;
    while (!bytes.empty()) {
        const Character next = FirstCharacter(bytes);
        AppendUtf8(next.code == kNoCharacter ? 0xFFFD : next.code, text);
        bytes.remove_prefix(next.length);
    }
    return text;
}

/// Letters with accents stand by themselves among plain ones; those of other scripts stand together, and the
/// bytes 81 to 90 that many of their characters begin with are no letters in Western Europe.
bool LooksWestern(std::string_view bytes)
{
    constexpr std::string_view kSigns = "\x80\x84\x85\x91\x92\x93\x94\x95\x96\x97\x99";
    int letters = 0;
    int pairs = 0;
    bool isLast = false;
    for (const char c : bytes) {
        const bool isHigh = static_cast<unsigned char>(c) >= 0x80;
        if (isHigh && static_cast<unsigned char>(c) < 0xA0 && kSigns.find(c) == std::string_view::npos)
            return false;
        letters += isHigh ? 1 : 0;
        pairs += isHigh && isLast ? 1 : 0;
        isLast = isHigh;
    }
    return letters > 0 && pairs * 4 <= letters;
}

/// What the lines with other letters than the plain ones look like; empty when that cannot be told.
std::string DetectedEncoding(std::string_view bytes)
{
    constexpr std::size_t kEnough = 64 * 1024;
    const std::unique_ptr<uchardet, decltype(&uchardet_delete)> detector(uchardet_new(), uchardet_delete);
    std::size_t seen = 0;
    while (!bytes.empty() && seen < kEnough) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        if (!IsAscii(bytes.substr(0, end))) {
            uchardet_handle_data(detector.get(), bytes.data(), end);
            seen += end;
        }
        bytes.remove_prefix(end);
    }
    uchardet_data_end(detector.get());
    return uchardet_get_charset(detector.get());
}

std::string EncodingOf(std::string_view bytes)
{
    if (HasUtf16Mark(bytes))
        return std::string(kUtf16);
    if (IsValidUtf8(bytes))
        return std::string(kUtf8);
    // A few words are too little to tell the languages of Western Europe from others by their letters.
    constexpr std::size_t kFewLetters = 30;
    const auto letters = static_cast<std::size_t>(
        std::ranges::count_if(bytes, [](char c) { return static_cast<unsigned char>(c) >= 0x80; }));
    if (LooksWestern(bytes) && letters < kFewLetters)
        return std::string(kWestern);
    const std::string detected = DetectedEncoding(bytes);
    if (detected == "ISO-8859-1")
        return std::string(kWestern);
    if (detected == "SHIFT_JIS" || (detected.empty() && !LooksWestern(bytes)))
        return std::string(kJapanese);
    return IsKnownEncoding(detected) ? detected : std::string(kWestern);
}

}  // namespace

DecodedList DecodeList(std::string_view bytes, const std::string& encoding)
{
    const std::string used = encoding.empty() ? EncodingOf(bytes) : encoding;
    if (used == kUtf16)
        return {FromUtf16(bytes), used};
    if (used == kUtf8)
        return {FromUtf8(bytes), used};
    return {ConvertedText(bytes, used), used};
}

std::string DecodeCsv(std::string_view bytes)
{
    if (HasUtf16Mark(bytes))
        return FromUtf16(bytes);
    if (!IsValidUtf8(bytes) && LooksWestern(bytes))
        return ConvertedText(bytes, std::string(kWestern));
    return DecodeFileText(bytes);
}

std::span<const std::string_view> ListEncodings()
{
    return kEncodings;
}

bool IsKnownEncoding(const std::string& encoding)
{
    return encoding == kUtf16 || (!encoding.empty() && CanConvert(encoding));
}

}  // namespace rqm5
