#include <iconv.h>

#include <array>
#include <cerrno>
#include <cstdint>

#include "platform/text_converter.h"

namespace rqm5 {
namespace {

class IconvConverter : public TextConverter
{
  public:
    explicit IconvConverter(const std::string& encoding) : converter_(iconv_open("UTF-8", encoding.c_str()))
    {
    }
    ~IconvConverter() override
    {
        if (IsOpen())
            iconv_close(converter_);
    }
    IconvConverter(const IconvConverter&) = delete;
    IconvConverter& operator=(const IconvConverter&) = delete;

    // iconv_open answers a failure with the value -1 in place of a pointer.
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(converter_) != -1; }

    bool Convert(std::string_view& bytes, std::string& result) override
    {
        // The function takes no constant bytes, but it does not change them.
        char* next = const_cast<char*>(bytes.data());
        std::size_t left = bytes.size();
        for (;;) {
            char* out = buffer_.data();
            std::size_t room = buffer_.size();
            const bool isDone = iconv(converter_, &next, &left, &out, &room) != std::size_t(-1);
            const bool isFull = !isDone && errno == E2BIG;
            result.append(buffer_.data(), out);
            if (isFull)
                continue;
            bytes.remove_prefix(bytes.size() - left);
            return isDone;
        }
    }

  private:
    iconv_t converter_;
    std::array<char, 4096> buffer_{};
};

}  // namespace

std::unique_ptr<TextConverter> ConverterFrom(const std::string& encoding)
{
    auto converter = std::make_unique<IconvConverter>(encoding);
    if (!converter->IsOpen())
        return nullptr;
    return converter;
}

}  // namespace rqm5
