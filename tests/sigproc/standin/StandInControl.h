// The switches and the log of the stand-in filter library, shared between it and the tests. They
// are plain data of the library, which a test reaches through an export of its own
// (StandInLibrary.h).
#pragma once

#include <cstdint>

#include "zxadlg/Filter.h"

namespace sigproc_test {

struct FilterStandInControl {
    std::int32_t bNoObject;  // null in the place of an object
    std::uint32_t uMinimum;  // what place 6 answers
    std::uint32_t uMade;
    std::uint32_t uAlive;
    FilterOptions record;  // of the last object
};

}  // namespace sigproc_test

// The export that gives it.
#define FILTER_STANDIN_CONTROL "FilterStandInControl"
