// What the measurement dialog refuses, or asks, at OK about one search. Plain functions; no window.
#pragma once

#include <functional>

#include "contract/Finding.h"
#include "zxadlg/MeasurementOptions.h"

inline constexpr int kMeasurementPage = 0;

// A search that is on looks elsewhere than its baseline does, unless the baseline is a fixed value.
CheckResult CheckRegions(const ZXADLG_MeasurementOptions& options, int nSearch);

// A search that is on has the same x axis as the first one that is, or the user knows. What is not
// assigned is not compared. The user who says no is shown the search and its axis: the page of the
// output, or none of its controls where the dialog has no such page.
CheckResult CheckXVariable(const ZXADLG_MeasurementOptions& options, int nSearch, int nOutputPage,
                           std::function<void(int)> showSearch);
