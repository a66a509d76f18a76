#include "printing/page_layout.h"

#include <algorithm>

#include "image/display_text.h"
#include "image/value_tables.h"

namespace rqm5 {
namespace {

constexpr int kLowestColumns = 80;
constexpr int kLowestLines = 8;
constexpr std::string_view kGap = "   ";
constexpr std::string_view kEllipsis = "...";

/// Pages being filled; every page begins with room for its title line, whose "of m" is known at the end.
class PageFiller
{
  public:
    explicit PageFiller(int linesPerPage)
        : lines_(static_cast<std::size_t>(std::max(linesPerPage, kLowestLines)))
    {
        BeginPage();
    }

    void AddEmptyPage()
    {
        if (pages_.back().size() > kPageHead)
            BeginPage();
    }

    void Add(const ListingSection& section)
    {
        const std::size_t heads = section.columnHead.empty() ? 1 : 2;
        if (pages_.back().size() > kPageHead) {
            if (pages_.back().size() + 1 + heads + 1 > lines_)
                BeginPage();
            else
                pages_.back().push_back({LineKind::Row, ""});
        }
        AddHeads(section, section.title);
        for (const std::string& row : section.rows) {
            if (pages_.back().size() == lines_) {
                BeginPage();
                AddHeads(section, section.title + " (continued)");
            }
            pages_.back().push_back({LineKind::Row, row});
        }
    }

    std::vector<Page> Take() { return std::move(pages_); }

  private:
    static constexpr std::size_t kPageHead = 2;

    void BeginPage() { pages_.push_back({{LineKind::PageTitle, ""}, {LineKind::Row, ""}}); }

    void AddHeads(const ListingSection& section, const std::string& title)
    {
        pages_.back().push_back({LineKind::SectionTitle, title});
        if (!section.columnHead.empty())
            pages_.back().push_back({LineKind::ColumnHead, section.columnHead});
    }

    std::size_t lines_;
    std::vector<Page> pages_;
};

/// Both ends of a file name tell more than its middle.
std::string CutInTheMiddle(const std::string& text, int columns)
{
    if (DisplayWidth(text) <= columns)
        return text;
    const int kept = std::max(0, columns - static_cast<int>(kEllipsis.size()));
    const std::string_view head = CutToWidth(text, kept / 2);
    std::string_view tail(text);
    tail.remove_prefix(head.size());
    while (DisplayWidth(tail) > kept - kept / 2)
        tail.remove_prefix(CutToWidth(tail, 2).size());  // never nothing: no character is wider than 2
    return std::string(head).append(kEllipsis).append(tail);
}

std::string TitleLine(const PageTitle& title, std::size_t page, std::size_t pages, int columns)
{
    const std::string right =
        title.date + std::string(kGap) + "Page " + std::to_string(page) + " of " + std::to_string(pages);
    const std::string left = std::string(AppTitle).append(kGap);
    const int room = columns - DisplayWidth(left) - DisplayWidth(right) - static_cast<int>(kGap.size());
    const std::string name = CutInTheMiddle(VisibleText(title.fileName), room);
    return PadToWidth(left + name, columns - DisplayWidth(right)) + right;
}

}  // namespace

int PageColumns(const Listing& listing)
{
    return std::max(ListingWidth(listing), kLowestColumns);
}

std::vector<Page> LayOutPages(const Listing& listing, const PageTitle& title, int linesPerPage, int pictures)
{
    PageFiller filler(linesPerPage);
    for (const ListingSection& section : listing)
        filler.Add(section);
    for (int i = 0; i < pictures; ++i)
        filler.AddEmptyPage();
    std::vector<Page> pages = filler.Take();
    const int columns = PageColumns(listing);
    for (std::size_t i = 0; i < pages.size(); ++i)
        pages[i].front().text = TitleLine(title, i + 1, pages.size(), columns);
    return pages;
}

}  // namespace rqm5
