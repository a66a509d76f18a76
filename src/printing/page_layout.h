#pragma once

#include <string>
#include <vector>

#include "printing/listing.h"

namespace rqm5 {

enum class LineKind { PageTitle, SectionTitle, ColumnHead, Row };

struct PageLine
{
    LineKind kind;
    std::string text;
};

using Page = std::vector<PageLine>;

/// What the head of every page says beside the program's name and the page number.
struct PageTitle
{
    std::string fileName;  ///< any text; what does not fit is cut in its middle
    std::string date;
};

/// The columns that pages of this listing need: those of its widest line, and room for the title line.
int PageColumns(const Listing& listing);

/// Puts a listing on pages of the same number of lines (8 at least are taken).
///
/// Each page begins with the title line and a blank one. A section that goes on on the next page repeats
/// its title and its column head there; neither stands at the foot of a page without a row below it.
/// \param pictures  so many pages follow with nothing but their title line; without a listing they are all
std::vector<Page> LayOutPages(const Listing& listing, const PageTitle& title, int linesPerPage,
                              int pictures = 0);

}  // namespace rqm5
