#pragma once

#include <cstdint>

#include "image/clone_image.h"

namespace rqm5::test {

/// A start-up image with about half of its rows filled, and settings, banks, links and notes (plain and
/// Japanese, no commas and no quotes) of all kinds. The same seed gives the same image.
CloneImage RandomImage(std::uint32_t seed);

}  // namespace rqm5::test
