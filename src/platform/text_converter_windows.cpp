#include <windows.h>

#include <utility>

#include "platform/text_converter.h"

namespace rqm5 {
namespace {

constexpr std::pair<std::string_view, UINT> kCodePages[] = {
    {"CP932", 932},         {"WINDOWS-1250", 1250}, {"WINDOWS-1251", 1251}, {"WINDOWS-1252", 1252},
    {"WINDOWS-1253", 1253}, {"WINDOWS-1254", 1254}, {"ISO-8859-15", 28605}, {"EUC-JP", 20932},
    {"GB18030", 936},       {"MACINTOSH", 10000},
};

class CodePageConverter : public TextConverter
{
  public:
    explicit CodePageConverter(UINT page) : page_(page) {}

    bool Convert(std::string_view& bytes, std::string& result) override
    {
        while (!bytes.empty()) {
            const bool isDouble =
                bytes.size() > 1 && IsDBCSLeadByteEx(page_, static_cast<BYTE>(bytes.front())) != 0;
            const int length = isDouble ? 2 : 1;
            wchar_t wide[2];
            char narrow[8];
            const int units = MultiByteToWideChar(page_, MB_ERR_INVALID_CHARS, bytes.data(), length, wide, 2);
            if (units <= 0)
                return false;
            const int size =
                WideCharToMultiByte(CP_UTF8, 0, wide, units, narrow, sizeof narrow, nullptr, nullptr);
            result.append(narrow, static_cast<std::size_t>(size));
            bytes.remove_prefix(static_cast<std::size_t>(length));
        }
        return true;
    }

  private:
    UINT page_;
};

}  // namespace

std::unique_ptr<TextConverter> ConverterFrom(const std::string& encoding)
{
    for (const auto& [name, page] : kCodePages)
        if (name == encoding && IsValidCodePage(page) != 0)
            return std::make_unique<CodePageConverter>(page);
    return nullptr;
}

}  // namespace rqm5
