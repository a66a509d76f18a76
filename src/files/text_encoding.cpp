#include "files/text_encoding.h"

#include <algorithm>
#include <memory>

#include "image/utf8.h"
#include "platform/text_converter.h"

namespace rqm5 {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// From code page 932, or another encoding in which plain bytes stand for plain characters. A system without
/// the encoding still gives the plain characters.
void AppendConverted(TextConverter* converter, std::string_view bytes, std::string& result)
{
    while (!bytes.empty() && (converter == nullptr || !converter->Convert(bytes, result))) {
        const bool isPlain = static_cast<unsigned char>(bytes.front()) < 0x80;
        result += isPlain ? bytes.substr(0, 1) : kReplacement;
        bytes.remove_prefix(1);
    }
}

/// Only lines that are not plain are converted: no character of these encodings holds a line end.
std::string ToUtf8(std::string_view bytes, const std::string& encoding)
{
    const std::unique_ptr<TextConverter> converter = ConverterFrom(encoding);
    std::string result;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        const std::string_view line = bytes.substr(0, end);
        if (IsAscii(line))
            result += line;
        else
            AppendConverted(converter.get(), line, result);
        bytes.remove_prefix(end);
    }
    return result;
}

}  // namespace

std::string DecodeFileText(std::string_view bytes)
{
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    return IsValidUtf8(bytes) ? std::string(bytes) : ToUtf8(bytes, "CP932");
}

std::string ConvertedText(std::string_view bytes, const std::string& encoding)
{
    return ToUtf8(bytes, encoding);
}

bool CanConvert(const std::string& encoding)
{
    return ConverterFrom(encoding) != nullptr;
}

}  // namespace rqm5
