#include "language/message.h"

#include <gtest/gtest.h>

namespace rqm5 {
namespace {

std::string InCapitals(const char* id)
{
    std::string text = id;
    for (char& c : text)
        c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
    return text;
}

TEST(Message, SaysItsTextWithWhatStandsInThePlaces)
{
    const Message place(MESSAGE("row %1"), {12});
    const struct
    {
        Message message;
        const char* english;
        const char* translated;
    } cases[] = {
        {{}, "", ""},
        {MESSAGE("no row"), "no row", "NO ROW"},
        {std::string("Tower"), "Tower", "Tower"},
        {{MESSAGE("%2 of %1: %2"), {place, "b"}}, "b of row 12: b", "B OF ROW 12: B"},
        // What is put in is not looked into, and a place without anything stays.
        {{MESSAGE("%1 and %2, 50 %"), {std::string("%2")}}, "%2 and %2, 50 %", "%2 AND %2, 50 %"},
        {Message::List({MESSAGE("a"), {}, place}, ", "), "a, , row 12", "A, , ROW 12"},
        {Message::List({}, ", "), "", ""},
        {Counted(1, MESSAGE("1 row"), MESSAGE("%1 rows")), "1 row", "1 ROW"},
        {Counted(0, MESSAGE("1 row"), MESSAGE("%1 rows")), "0 rows", "0 ROWS"},
    };
    for (const auto& [message, english, translated] : cases) {
        EXPECT_EQ(message.English(), english);
        EXPECT_EQ(message.Say(InCapitals), translated);
        EXPECT_EQ(message.empty(), *english == '\0') << english;
    }
}

}  // namespace
}  // namespace rqm5
