// The regions of a search and of its baseline: times in ms and samples, each of which follows from
// the other. Plain functions; no window.
#pragma once

#include <cstdint>

#include "zxadlg/DataOptions.h"
#include "zxadlg/MeasurementOptions.h"

inline constexpr int kMeasurementSearches = 24;

// The samples that times count. Where the interval is not known, times are numbers of samples.
struct SampleAxis {
    double dInterval = 0.0;  // ms; 0: not known
    std::uint32_t uPoints = 0;
    bool bPointsKnown = true;

    double Step() const { return dInterval > 0.0 ? dInterval : 1.0; }
    // Where the fields end; far away where the points are not known.
    double End() const { return (bPointsKnown ? uPoints : INT32_MAX) * Step(); }
};
// dRate is in Hz; 0 where it is not known.
double IntervalOfRate(double dRate);

struct RegionSpan {
    std::int32_t nStart = 0;
    std::int32_t nEnd = 0;
    double dStart = 0.0;  // ms
    double dEnd = 0.0;    // ms
};

// The kinds whose ends the user sets: the regions that the host numbers.
inline bool HasUsersEnds(int nKind) {
    return nKind > 0 && nKind < 36;
}

// The sample at a time, not below 0.
std::int32_t SampleAt(const SampleAxis& axis, double dTime);
// Two times with their samples, pulled into the data, which moves the times too.
RegionSpan SpanOfTimes(const SampleAxis& axis, double dStart, double dEnd);
// Two samples with their times.
RegionSpan SpanOfSamples(const SampleAxis& axis, std::uint32_t uFirst, std::uint32_t uLast);

// The two kinds of regions of a record by one set of operations.
RegionSpan SpanOf(const ZXADLG_StatisticsRegion& region);
RegionSpan SpanOf(const ZXADLG_BaselineRegion& baseline);
void StoreSpan(ZXADLG_StatisticsRegion& region, const RegionSpan& span);
void StoreSpan(ZXADLG_BaselineRegion& baseline, const RegionSpan& span);
inline std::int32_t& KindOf(ZXADLG_StatisticsRegion& region) {
    return region.eStatsRegion;
}
inline std::int32_t& KindOf(ZXADLG_BaselineRegion& baseline) {
    return baseline.eBaseRegion;
}

// Puts samples in order, and times, each by themselves.
RegionSpan Ordered(RegionSpan span);

// Tells the host where the regions of the searches that are on are: the entries of its table that
// they name take their times and samples, of several the last. A baseline at a fixed value has no
// region.
void WriteRegions(const ZXADLG_MeasurementOptions& options, const SampleAxis& axis,
                  ZXADLG_DataOptions& data);
