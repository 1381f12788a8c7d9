// What the filter dialog refuses at OK, in its order: the first fault that is found. A plain
// function over the record as it was typed and the data; it knows no window. What a message puts
// right is handed in.
//
// A deferred run has no live data: what is not known is not checked then.
#pragma once

#include <functional>

#include "contract/Finding.h"
#include "sigproc/FilterRecord.h"

struct FilterCheck {
    const FilterOptions& options;
    FilterSignal signal;
    bool bDeferred = false;
    // The smallest number of points that the filters accept; 0: not known.
    std::function<std::uint32_t()> minimumPoints;
    // Store and show another number.
    std::function<void(std::uint32_t)> setHarmonics;
    std::function<void(std::uint32_t)> setCycles;
};

CheckResult CheckFilter(const FilterCheck& check);
