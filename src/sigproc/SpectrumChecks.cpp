#include "sigproc/SpectrumChecks.h"

#include "sigproc_ids.h"

namespace {

constexpr int kPage = 0;

}  // namespace

CheckResult CheckTransformLength(const SpectrumOptions& options, const SpectrumSignal& signal,
                                 std::function<void(std::uint32_t)> setLength) {
    if (!HasEnoughPoints(signal)) {
        return Refusal(IDS_SPECTRUM_TOO_FEW_POINTS, kPage, IDC_SPECTRUM_LENGTH,
                       {kShortestTransform, signal.uPoints});
    }
    const std::uint32_t uLength = EffectiveLength(options, signal);
    if (!signal.bPointsKnown || uLength <= signal.uPoints) return {};
    const std::uint32_t uProposed = MaximumLength(signal.uPoints);
    const UINT nString =
        signal.bSwept ? IDS_SPECTRUM_LONGER_THAN_SWEEP : IDS_SPECTRUM_LONGER_THAN_DATA;
    return Question(nString, kPage, IDC_SPECTRUM_LENGTH, {uLength, signal.uPoints, uProposed},
                    {{IDYES, Finding::Next::kGoOn,
                      [set = std::move(setLength), uProposed] { set(uProposed); }}});
}

CheckResult CheckSegments(const SpectrumOptions& options, const SpectrumSignal& signal) {
    if (!signal.bPointsKnown) return {};
    const std::int64_t nSegments = SegmentCount(options, signal);
    if (nSegments <= kMostSegments) return {};
    // Whatever the answer is, the settings have to change.
    return Question(IDS_SPECTRUM_TOO_MANY_SEGMENTS, kPage, IDC_SPECTRUM_LENGTH,
                    {kMostSegments, nSegments}, {{IDYES}, {IDNO}});
}
