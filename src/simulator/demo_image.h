#pragma once

#include "image/clone_image.h"

namespace rqm5 {

/// What somebody might keep in a receiver of a region 0 to 3: some dozens of channels in eight banks, scan
/// edges, Search Pass and Priority rows, with every kind of option; some rows skipped, some off, many empty.
CloneImage DemoImage(int region);

}  // namespace rqm5
