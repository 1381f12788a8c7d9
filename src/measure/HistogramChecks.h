// What the histogram dialog refuses at OK. Plain functions over what the fields show; no window.
#pragma once

#include <cstdint>

#include "contract/Finding.h"
#include "measure/HistogramBins.h"

struct HistogramCheck {
    std::int32_t eKind = kConventionalHistogram;
    std::int32_t nBinsPerDecade = 0;
    float fWidth = 0.0f;
    HistogramLimits limits = {0.0f, 0.0f};
    bool bBinAllData = false;  // the limits do not count
};
CheckResult CheckHistogram(const HistogramCheck& check);
