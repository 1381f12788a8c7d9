#include "measure/HistogramBins.h"

#include <algorithm>
#include <cmath>

#include "text/NumberFormat.h"
#include "text/StepScale.h"

namespace {

// Counts the closing bin, and guards a count that is nearly whole.
constexpr double kClosingBin = 1.00001;

// The number of a count; no bins at all count as one.
BinCount Counted(double dCount) {
    constexpr double kMost = kMostBins;
    const double dBounded = std::isnan(dCount) ? 0.0 : std::clamp(dCount, -kMost, kMost);
    const auto nCount = static_cast<std::int32_t>(dBounded);
    return {BinCountState::kCounted, nCount == 0 ? 1 : nCount};
}

bool IsOutside(float fLimit, const HistogramRange& range) {
    // Written so that what is no number is outside.
    return !(fLimit >= SingleValue(range.dMin) && fLimit <= SingleValue(range.dMax));
}

bool AreZero(const HistogramLimits& limits) {
    return limits.fLower == 0.0f && limits.fUpper == 0.0f;
}

float WholeWidths(double dValue, float fWidth) {
    return SingleValue(std::trunc(dValue / fWidth) * fWidth);
}

}  // namespace

bool HasDecades(std::int32_t eKind) {
    // Required: the last kind goes with the logarithmic one, though it has no use for decades.
    return eKind == kLogarithmicHistogram || eKind == kVariableWidthHistogram;
}

void CompleteHistogramRecord(ZXADLG_HistogramOptions& options) {
    if (options.eHistoType < kConventionalHistogram || options.eHistoType > kVariableWidthHistogram)
        options.eHistoType = kConventionalHistogram;
    if (!(options.fBinWidth > 0.0f) || std::isinf(options.fBinWidth)) options.fBinWidth = 1.0f;
    options.nBinsPerDecade = std::clamp(options.nBinsPerDecade, 0, kMostBins);
    options.nNumBins = std::clamp(options.nNumBins, 0, kMostBins);
}

float SingleValue(double dValue) {
    return std::isnan(dValue) ? 0.0f
                              : static_cast<float>(std::clamp(dValue, -kFloatLimit, kFloatLimit));
}

BinCount CountLinearBins(const HistogramRange& range, float fWidth) {
    if (!(fWidth > 0.0f)) return {BinCountState::kNoWidth, 0};
    return Counted(range.Span() / fWidth + kClosingBin);
}

BinCount CountLogarithmicBins(const HistogramRange& range, float fWidth,
                              std::int32_t nBinsPerDecade) {
    if (!(fWidth > 0.0f)) return {BinCountState::kNoWidth, 0};
    if (!(range.dMin > 0.0 && range.dMax > 0.0)) return {BinCountState::kNegative, 0};
    // Required: the maximum counts here, and not its logarithm.
    return Counted(nBinsPerDecade * range.dMax + kClosingBin);
}

float WidthOfBins(const HistogramRange& range, std::int32_t nBins) {
    return SingleValue(range.Span() / nBins);
}

double MostWidth(const HistogramRange& range, float fWidth) {
    return std::min(10.0 * std::max(range.Span(), static_cast<double>(fWidth)), kFloatLimit);
}

double WidthStep(const HistogramRange& range) {
    const double dSpan = std::min(range.Span(), kFloatLimit);
    return dSpan > 0.0 ? RoundOneTwoFive(dSpan / 100.0) : 1.0;
}

float ClampLower(float fLimit, const HistogramRange& range) {
    return IsOutside(fLimit, range) ? SingleValue(range.dMin) : fLimit;
}

float ClampUpper(float fLimit, const HistogramRange& range) {
    return IsOutside(fLimit, range) ? SingleValue(range.dMax) : fLimit;
}

HistogramLimits FollowRange(const HistogramLimits& limits, const HistogramLimits& first,
                            const HistogramRange& range, float fWidth) {
    const HistogramLimits clamped = {ClampLower(limits.fLower, range),
                                     ClampUpper(limits.fUpper, range)};
    const bool bLost = AreZero(limits) || AreZero(clamped);
    if (!bLost || first.fLower == 0.0f || first.fUpper == 0.0f) return clamped;
    if (fWidth == 0.0f || !range.bFound) return {0.0f, 0.0f};
    return {WholeWidths(range.dMin, fWidth), WholeWidths(range.dMax, fWidth)};
}
