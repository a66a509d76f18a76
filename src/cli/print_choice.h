#pragma once

#include "cli/arguments.h"
#include "printing/listing.h"

namespace rqm5 {

/// What the options of print choose, for the terminal and for a PDF.
ListingChoice ChoiceOf(const Arguments& arguments);

}  // namespace rqm5
