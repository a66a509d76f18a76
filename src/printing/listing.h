#pragma once

#include <string>
#include <vector>

#include "image/clone_image.h"

namespace rqm5 {

/// What a listing holds, in this order: settings, VFO table, memory channels.
struct ListingChoice
{
    bool settings = true;
    bool vfo = true;
    bool memory = true;
    int group = kSelectAll;  ///< a selector index; all prints every group under its own heading
    bool skipEmpty = true;   ///< memory rows without a channel are left out
};

/// A part of the listing under one heading. Lines are ready for a fixed-pitch font.
struct ListingSection
{
    std::string title;
    std::string columnHead;         ///< empty when it has none
    std::vector<std::string> rows;  ///< one at least; "= No Entries =" stands for a group without any
};

using Listing = std::vector<ListingSection>;

inline constexpr char kNoEntries[] = "= No Entries =";

/// The one listing that printer, preview, PDF and terminal show.
///
/// With the choice of all groups, banks of size 0 are left out, and rows that belong to no bank are
/// listed behind the banks by their running numbers.
Listing BuildListing(const CloneImage& image, const ListingChoice& choice);

/// The columns that the widest line takes.
int ListingWidth(const Listing& listing);

/// The listing as plain lines for a terminal: no pages, a rule below each column head.
std::string FormatListing(const Listing& listing);

}  // namespace rqm5
