#include "files/text_encoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#include "image/utf8.h"

namespace rqm5 {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

/// Code page 932, and every other encoding in which plain bytes stand for plain characters.
class OldEncoding
{
  public:
    explicit OldEncoding(const char* name) : converter_(iconv_open("UTF-8", name)) {}
    ~OldEncoding()
    {
        if (IsOpen())
            iconv_close(converter_);
    }
    OldEncoding(const OldEncoding&) = delete;
    OldEncoding& operator=(const OldEncoding&) = delete;

    // iconv_open answers a failure with the value -1 in place of a pointer.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(converter_) != -1; }

    /// Only lines that are not plain are converted: no character of these encodings holds a line end.
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
    void AppendConverted(std::string_view bytes, std::string& result)
    {
        std::string input(bytes);
        char* next = input.data();
        std::size_t left = input.size();
        while (left > 0 && (!IsOpen() || !Convert(next, left, result))) {
            // A system without this encoding still gives the plain characters.
            const bool isPlain = static_cast<unsigned char>(*next) < 0x80;
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

std::string DecodeFileText(std::string_view bytes)
{
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    return IsValidUtf8(bytes) ? std::string(bytes) : OldEncoding("CP932").ToUtf8(bytes);
}

std::string ConvertedText(std::string_view bytes, const std::string& encoding)
{
    return OldEncoding(encoding.c_str()).ToUtf8(bytes);
}

bool CanConvert(const std::string& encoding)
{
    return OldEncoding(encoding.c_str()).IsOpen();
}

}  // namespace rqm5
