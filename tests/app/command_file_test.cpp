#include "app/command_file.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

TEST(CommandFile, KeepsFiveCharactersAndUnquotesSix)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"\"abc\"", "\"abc\""},
        {"abcdef", "bcde"},
        {"\"/home/me/my radio.RQ5\"", "/home/me/my radio.RQ5"},
    };
    for (const auto& [line, file] : cases)
        EXPECT_EQ(CommandFile(QString::fromUtf8(line)), QString::fromUtf8(file)) << line;
}

TEST(CommandFile, AnArgumentOpensTheFileItNames)
{
    const std::pair<const char*, const char*> cases[] = {
        {"a", "a"},
        {"my radio.RQ5", "my radio.RQ5"},
        {"\"radio.RQ5\"", "radio.RQ5"},
        {"ラジオ.RQ5", "ラジオ.RQ5"},
    };
    for (const auto& [argument, file] : cases)
        EXPECT_EQ(CommandFile(CommandLineText({QString::fromUtf8(argument)})), QString::fromUtf8(file))
            << argument;
    EXPECT_EQ(CommandFile(CommandLineText({})), QString());
}

}  // namespace
}  // namespace rqm5
