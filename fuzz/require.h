#pragma once

#include <cstdio>
#include <cstdlib>

namespace rqm5::fuzz {

/// Ends the program with a message when a promise does not hold, so that the fuzzer keeps the input.
inline void Require(bool holds, const char* promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken promise: %s\n", promise);
    std::abort();
}

}  // namespace rqm5::fuzz
