// How many objects of each kind live, for tests that look for leaks: take one census before and one
// after, and compare. Windows, timers, hooks and properties are those of the calling thread.
#pragma once

#include <cstddef>
#include <string>

#include "platform/headless/gdi.h"

namespace headless {

struct Census {
    std::size_t windows = 0;
    std::size_t timers = 0;
    std::size_t hooks = 0;
    std::size_t properties = 0;
    gdi::Counts gdi;
};

Census TakeCensus();

// What there is more of in `after`, as "2 windows, 1 font"; empty for nothing.
std::string Growth(const Census& before, const Census& after);

}  // namespace headless
