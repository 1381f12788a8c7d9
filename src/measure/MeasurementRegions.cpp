#include "measure/MeasurementRegions.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr std::int32_t kLastSample = std::numeric_limits<std::int32_t>::max();

std::int32_t LastSample(const SampleAxis& axis) {
    if (!axis.bPointsKnown) return kLastSample;
    return static_cast<std::int32_t>(
        std::min<std::uint32_t>(std::max(axis.uPoints, 1u) - 1, kLastSample));
}

// A time and its sample.
void TakeTime(const SampleAxis& axis, double dTyped, std::int32_t& nSample, double& dTime) {
    const double dPlace = std::trunc((dTyped + axis.Step() / 2) / axis.Step());
    const std::int32_t nLast = LastSample(axis);
    nSample = std::min(SampleAt(axis, dTyped), nLast);
    const bool bWithin = dPlace >= 0.0 && dPlace <= nLast;
    dTime = bWithin ? dTyped : nSample * axis.Step();
}

void WriteRegion(std::int32_t nKind, const RegionSpan& span, const SampleAxis& axis,
                 ZXADLG_DataOptions& data) {
    for (ZXADLG_RegionEntry& entry : data.aRegions) {
        if (entry.nRegionId != nKind) continue;
        if (HasUsersEnds(nKind)) {
            entry.dStart = span.dStart;
            entry.dEnd = span.dEnd;
            entry.uFirstPoint = static_cast<std::uint32_t>(SampleAt(axis, span.dStart));
            entry.uLastPoint = static_cast<std::uint32_t>(SampleAt(axis, span.dEnd));
        } else {
            entry.uFirstPoint = static_cast<std::uint32_t>(std::max(span.nStart, 0));
            entry.uLastPoint = static_cast<std::uint32_t>(std::max(span.nEnd, 0));
            entry.dStart = entry.uFirstPoint * axis.Step();
            entry.dEnd = entry.uLastPoint * axis.Step();
        }
    }
}

}  // namespace

double IntervalOfRate(double dRate) {
    const double dInterval = dRate > 0.0 ? 1000.0 / dRate : 0.0;
    return std::isfinite(dInterval) ? dInterval : 0.0;
}

std::int32_t SampleAt(const SampleAxis& axis, double dTime) {
    const double dPlace = std::trunc((dTime + axis.Step() / 2) / axis.Step());
    // Written so that a NaN is 0.
    if (!(dPlace > 0.0)) return 0;
    return static_cast<std::int32_t>(std::min<double>(dPlace, kLastSample));
}

RegionSpan SpanOfTimes(const SampleAxis& axis, double dStart, double dEnd) {
    RegionSpan span;
    TakeTime(axis, dStart, span.nStart, span.dStart);
    TakeTime(axis, dEnd, span.nEnd, span.dEnd);
    return span;
}

RegionSpan SpanOfSamples(const SampleAxis& axis, std::uint32_t uFirst, std::uint32_t uLast) {
    const auto signedSample = [](std::uint32_t u) {
        return static_cast<std::int32_t>(std::min<std::uint32_t>(u, kLastSample));
    };
    const std::int32_t nFirst = signedSample(uFirst);
    const std::int32_t nLast = signedSample(uLast);
    return {nFirst, nLast, nFirst * axis.Step(), nLast * axis.Step()};
}

RegionSpan SpanOf(const ZXADLG_StatisticsRegion& region) {
    return {region.nStatsRegionStartIndex, region.nStatsRegionEndIndex,
            region.dStatsRegionStartTime, region.dStatsRegionEndTime};
}

RegionSpan SpanOf(const ZXADLG_BaselineRegion& baseline) {
    return {baseline.nBaseRegionStartIndex, baseline.nBaseRegionEndIndex,
            baseline.dBaseRegionStartTime, baseline.dBaseRegionEndTime};
}

void StoreSpan(ZXADLG_StatisticsRegion& region, const RegionSpan& span) {
    region.nStatsRegionStartIndex = span.nStart;
    region.nStatsRegionEndIndex = span.nEnd;
    region.dStatsRegionStartTime = span.dStart;
    region.dStatsRegionEndTime = span.dEnd;
}

void StoreSpan(ZXADLG_BaselineRegion& baseline, const RegionSpan& span) {
    baseline.nBaseRegionStartIndex = span.nStart;
    baseline.nBaseRegionEndIndex = span.nEnd;
    baseline.dBaseRegionStartTime = span.dStart;
    baseline.dBaseRegionEndTime = span.dEnd;
}

RegionSpan Ordered(RegionSpan span) {
    if (span.nStart > span.nEnd) std::swap(span.nStart, span.nEnd);
    if (span.dStart > span.dEnd) std::swap(span.dStart, span.dEnd);
    return span;
}

void WriteRegions(const ZXADLG_MeasurementOptions& options, const SampleAxis& axis,
                  ZXADLG_DataOptions& data) {
    for (int i = 0; i < kMeasurementSearches; ++i) {
        if (options.aSearches[i].bRegionEnable == 0) continue;
        const ZXADLG_StatisticsRegion& region = options.aStatsRegions[i];
        WriteRegion(region.eStatsRegion, SpanOf(region), axis, data);
        const ZXADLG_BaselineRegion& baseline = options.aBaselines[i];
        if (baseline.eBaseMode != 1)
            WriteRegion(baseline.eBaseRegion, SpanOf(baseline), axis, data);
    }
}
