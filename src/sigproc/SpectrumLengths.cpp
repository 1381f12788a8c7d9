#include "sigproc/SpectrumLengths.h"

#include <algorithm>

#include "sigproc/SpectrumWindows.h"

namespace {

constexpr std::int32_t kLengths[] = {16,   32,   64,    128,   256,   512,    1024,   2048,
                                     4096, 8192, 16384, 32768, 65536, 131072, 262144, 524288};
static_assert(kLengths[0] == kShortestTransform && kLengths[15] == kLongestTransform);

constexpr std::uint32_t kUsualLength = 1024;
// Read by other modules, and the same in every record.
constexpr double kDisplayValue = 50.0;

std::uint32_t LongestWithin(std::uint32_t uPoints, std::uint32_t uMost) {
    std::uint32_t uLength = kShortestTransform;
    while (uLength < uMost && uLength * 2 <= uPoints) uLength *= 2;
    return uLength;
}

double InRange(double dAlpha) {
    // No number is at the lower end.
    if (!(dAlpha > kLeastAlpha)) return kLeastAlpha;
    return std::min(dAlpha, kMostAlpha);
}

}  // namespace

std::span<const std::int32_t> TransformLengths() {
    return kLengths;
}

std::uint32_t MaximumLength(std::uint32_t uPoints) {
    return LongestWithin(uPoints, kLongestTransform);
}

std::uint32_t UsualLength(std::uint32_t uPoints) {
    return LongestWithin(uPoints, kUsualLength);
}

bool HasEnoughPoints(const SpectrumSignal& signal) {
    return !signal.bPointsKnown || signal.uPoints >= kShortestTransform;
}

std::uint32_t EffectiveLength(const SpectrumOptions& options, const SpectrumSignal& signal) {
    const bool bMaximum = options.bUseMaxSegment != 0 && signal.bPointsKnown;
    return bMaximum ? MaximumLength(signal.uPoints) : options.uTransformLength;
}

SpectrumAveraging AveragingOf(const SpectrumOptions& options, const SpectrumSignal& signal) {
    const std::uint64_t uLength = EffectiveLength(options, signal);
    const std::uint64_t uPoints = signal.uPoints;
    SpectrumAveraging averaging = {};
    averaging.bTracesEnabled = signal.uTraces > 1;
    if (!signal.bPointsKnown) {
        averaging.bSegmentsEnabled = averaging.bOverlapEnabled = true;
    } else if (signal.bSwept) {
        averaging.bSegmentsEnabled = uLength > 0 && uPoints / uLength > 1;
        averaging.bOverlapEnabled =
            averaging.bSegmentsEnabled && 3 * uLength <= 2 * std::uint64_t{signal.uWholePoints};
    } else {
        averaging.bSegmentsEnabled = 2 * uLength <= uPoints;
        // Where segments can be averaged, an overlap makes sense for their average alone.
        averaging.bOverlapEnabled =
            averaging.bSegmentsEnabled ? options.bAverageSegments != 0 : 3 * uLength <= 2 * uPoints;
    }
    averaging.bSegments = averaging.bSegmentsEnabled && options.bAverageSegments != 0;
    averaging.bOverlap = averaging.bOverlapEnabled && options.bDoOverlap != 0;
    averaging.bTraces = averaging.bTracesEnabled && options.bDialogAverageTraces != 0;
    return averaging;
}

std::int64_t SegmentCount(const SpectrumOptions& options, const SpectrumSignal& signal) {
    const std::int64_t nLength = EffectiveLength(options, signal);
    if (nLength == 0) return 0;
    const SpectrumAveraging averaging = AveragingOf(options, signal);
    const std::int64_t nPoints = signal.uPoints;
    const std::int64_t nOfTrace = averaging.bOverlap
                                      ? std::max<std::int64_t>(2 * nPoints / nLength - 1, 0)
                                      : nPoints / nLength;
    const std::int64_t nTraces = signal.uTraces;
    // Required as it stands: averaged traces count as the traces, averaged segments as the
    // segments.
    if (averaging.bSegments) return averaging.bTraces ? 1 : nOfTrace;
    return averaging.bTraces ? nTraces : nTraces * nOfTrace;
}

double SpectralResolution(std::uint32_t uLength, double dRate) {
    return uLength == 0 ? 0.0 : dRate / uLength;
}

void CompleteSpectrumRecord(SpectrumOptions& options, const SpectrumSignal& signal) {
    if (FindSpectralWindow(options.eWindowType) == nullptr) options.eWindowType = 0;
    options.dPoissonAlpha = InRange(options.dPoissonAlpha);
    options.dKaiserAlpha = InRange(options.dKaiserAlpha);
    options.uNumBinsToExclude =
        std::clamp(options.uNumBinsToExclude, kFewestExcluded, kMostExcluded);
    options.dDisplayValue = kDisplayValue;
    if (options.uTransformLength == 0)
        options.uTransformLength = UsualLength(signal.bPointsKnown ? signal.uPoints : kUsualLength);
}
