#include "image/number_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace rqm5 {
namespace {

TEST(NumberText, TakesTheLeadingNumericPart)
{
    const std::pair<const char*, double> cases[] = {
        // clang-format off
        {"145.5", 145.5}, {"  12.25MHz", 12.25}, {"\t-1", -1}, {"+7", 7}, {".5", 0.5}, {"12.", 12}, {"1.2.3", 1.2},
        {"1e5", 1}, {"", 0}, {"-", 0}, {"inf", 0}, {"nan", 0}, {"0x10", 0}, {"1,5", 1}, {"+-3", 0}, {"- 3", 0},
        // clang-format on
    };
    for (const auto& [text, value] : cases)
        EXPECT_DOUBLE_EQ(ReadNumber(text), value) << '"' << text << '"';
}

TEST(NumberText, EndlessNumbersStayPrintable)
{
    const std::string digits(400, '9');
    EXPECT_EQ(FormatMegahertz(ReadHertz(digits)), "1000000000.000000");
    EXPECT_EQ(ReadNumber("-" + digits), -1e15);
    EXPECT_EQ(ReadNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(ReadInteger(digits), 2147483647);
    EXPECT_EQ(ReadInteger("-" + digits), -2147483648);
}

TEST(NumberText, PrintsSixDecimalsAndPacksThem)
{
    EXPECT_EQ(FormatMegahertz(1'299'995'000), "1299.995000");
    EXPECT_EQ(FormatMegahertz(Hertz(-0.0000001)), "0.000000");
    EXPECT_EQ(FormatMegahertz(-50'000), "-0.050000");
    EXPECT_EQ(PackedDigits(145'000'000, 4), "0145000000");
    EXPECT_EQ(PackedDigits(600'000, 2), "00600000");
    // Too large for the digits there are: the first and the last characters are taken all the same.
    EXPECT_EQ(PackedDigits(12'345'678'000, 4), "1234678000");
}

TEST(NumberText, HertzAreRoundedAsSixDecimalsArePrinted)
{
    const std::pair<const char*, std::int64_t> cases[] = {
        {"1299.995", 1'299'995'000}, {"0.0000005", 0}, {"0.0000015", 2}, {"-0.6", -600'000}, {"x", 0}};
    for (const auto& [text, hertz] : cases)
        EXPECT_EQ(ReadHertz(text), hertz) << text;
    EXPECT_EQ(Megahertz(849'995'000), 849.995);
}

}  // namespace
}  // namespace rqm5
