// What the filter dialog makes of a record: the arrangement that its selections stand for, families
// that the dialog offers, values where there are none, and cutoffs within their limits. Plain
// functions, no window.
#pragma once

#include <cstdint>
#include <vector>

#include "sigproc/FilterLimits.h"
#include "zxadlg/SignalProcessingOptions.h"

// The data that a filter is meant for.
struct FilterSignal {
    double dRate = 0.0;  // Hz; 0: not known
    std::uint32_t uPoints = 0;
    bool bPointsKnown = false;
};

// The arrangements in the order of their buttons.
enum FilterType : int {
    kBandpassFilter,
    kHighpassFilter,
    kLowpassFilter,
    kInterferenceFilter,
    kNotchFilter,
};

// The arrangement that the selections show as.
FilterType FilterTypeOf(const FilterOptions& options);
// Selects the sections of an arrangement and no others.
void SelectFilterType(FilterOptions& options, FilterType eType);

// Stores the interval of a rate in the record, with single precision.
void StoreInterval(FilterOptions& options, double dRate);

// Makes a record that the dialog can show out of any: a family that is not offered becomes the
// usual one, the selections agree with each other, and values that are missing get a default.
void CompleteFilterRecord(FilterOptions& options, double dRate);

// The limits of the lowpass for these data; of a boxcar the smoothing points. They are known where
// what they follow is.
bool AreLowpassLimitsKnown(const FilterOptions& options, const FilterSignal& signal);
FilterLimits LowpassLimitsFor(const FilterOptions& options, const FilterSignal& signal);
// The lengths on offer; all of them where the points are not known.
std::vector<std::int32_t> SmoothingLengthsFor(const FilterSignal& signal);

// Put what lies outside its limits to the nearer one; nothing where the limits are not known.
void ClampLowpass(FilterOptions& options, const FilterSignal& signal);
void ClampHighpass(FilterOptions& options, const FilterSignal& signal);
void ClampNotch(FilterOptions& options, const FilterSignal& signal);

// The place of the selected sections in the order of their application: how many of them come one
// after another. A boxcar does not count.
std::uint32_t FilterApplyCount(const FilterOptions& options);
