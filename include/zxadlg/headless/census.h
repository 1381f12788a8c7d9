// How many objects of each kind live, for tests that look for leaks: take one census before and one
// after, and compare. Windows, timers, hooks, properties and menus are those of the calling thread.
#pragma once

#include <cstddef>
#include <string>

namespace headless {

// What the application has made and not yet given back; stock objects and system brushes do not
// count.
struct DrawingCounts {
    std::size_t fonts = 0;
    std::size_t brushes = 0;
    std::size_t pens = 0;
    std::size_t bitmaps = 0;
    std::size_t metafiles = 0;
    std::size_t memoryDcs = 0;
    std::size_t windowDcs = 0;
    std::size_t themes = 0;
    std::size_t globals = 0;  // GlobalAlloc; what the clipboard owns is not counted
};

struct Census {
    std::size_t windows = 0;
    std::size_t timers = 0;
    std::size_t hooks = 0;
    std::size_t properties = 0;
    std::size_t menus = 0;
    DrawingCounts gdi;
};

Census TakeCensus();

// What there is more of in `after`, as "2 windows, 1 font"; empty for nothing.
std::string Growth(const Census& before, const Census& after);

}  // namespace headless
