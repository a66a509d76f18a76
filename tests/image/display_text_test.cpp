#include <gtest/gtest.h>

#include "image/display_text.h"

namespace rqm5 {
namespace {

TEST(DisplayText, CountsColumnsNotBytesAndMakesVisibleWhatATerminalWouldObey)
{
    EXPECT_EQ(VisibleText("a\r\n\t\x1b[2J\x7f"), "a\\r\\n\\t\\x1B[2J\\x7F");
    EXPECT_EQ(VisibleText("\u202Egnp.exe \u0085"), "\\u202Egnp.exe \\u0085");
    EXPECT_EQ(VisibleText("\u2066a\u2069"), "\\u2066a\\u2069");
    EXPECT_EQ(VisibleText("\u061C\u200B\U000E0041"), "\\u061C\\u200B\\U000E0041");
    EXPECT_EQ(VisibleText("\xC0\xAF \xED\xA0\x80 \xE3\x81"), "\\xC0\\xAF \\xED\\xA0\\x80 \\xE3\\x81");
    EXPECT_EQ(VisibleText("日本 é 😀"), "日本 é 😀");
    EXPECT_EQ(DisplayWidth("日本é") + DisplayWidth("e\u0301ｱ"), 5 + 2);
    EXPECT_EQ(PadToWidth("東", 4), "東  ");
    EXPECT_EQ(CutToWidth("a東b", 2), "a");
}

}  // namespace
}  // namespace rqm5
