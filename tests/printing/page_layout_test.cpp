#include "printing/page_layout.h"

#include <gtest/gtest.h>

#include "image/display_text.h"

namespace rqm5 {
namespace {

const PageTitle kTitle = {"home.RQ5", "2024-05-17"};

ListingSection Section(const std::string& title, int rows)
{
    ListingSection section{title, "Head of " + title, {}};
    for (int i = 0; i < rows; ++i)
        section.rows.push_back(title + std::to_string(i));
    return section;
}

std::string BodyOf(const Page& page)
{
    std::string body;
    for (std::size_t i = 2; i < page.size(); ++i)
        body += page[i].text + "|";
    return body;
}

TEST(PageLayout, LeavesNoHeadAloneAtTheFootOfAPage)
{
    // Of ten lines, two are the page's head; what is left decides whether B begins on this page.
    const auto second = [](int rows) {
        const std::vector<Page> pages = LayOutPages({Section("A", rows), Section("B", 1)}, kTitle, 10);
        for (const Page& page : pages)
            EXPECT_LE(page.size(), 10U);
        return std::pair(pages.size(), BodyOf(pages.back()));
    };
    EXPECT_EQ(second(2), std::pair(std::size_t{1}, std::string("A|Head of A|A0|A1||B|Head of B|B0|")));
    for (const int rows : {3, 4, 6})
        EXPECT_EQ(second(rows), std::pair(std::size_t{2}, std::string("B|Head of B|B0|"))) << rows;
    EXPECT_EQ(second(7).second, "A (continued)|Head of A|A6||B|Head of B|B0|");
}

TEST(PageLayout, PutsProgramFileDateAndNumberAtTheHeadOfEveryPage)
{
    const std::vector<Page> pages = LayOutPages({Section("A", 60)}, kTitle, 10);
    ASSERT_EQ(pages.size(), 10U);
    EXPECT_EQ(pages[8][0].text,
              "Tervan RQ-M5 Clone Utility   home.RQ5                  2024-05-17   Page 9 of 10");
    EXPECT_EQ(DisplayWidth(pages[9][0].text), 80);
    // A long file name is cut in its middle.
    const std::string name = "東京の受信機のメモリ\n全部の保存ファイル.RQ5";
    const std::string line = LayOutPages({Section("A", 1)}, {name, "2024-05-17"}, 10)[0][0].text;
    EXPECT_EQ(DisplayWidth(line), 80) << line;
    EXPECT_TRUE(line.find("...") < line.find(".RQ5") && line.find('\n') == line.npos) << line;
}

}  // namespace
}  // namespace rqm5
