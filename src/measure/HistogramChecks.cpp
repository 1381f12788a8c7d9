#include "measure/HistogramChecks.h"

#include "histogram_ids.h"

namespace {

constexpr int kPage = 0;

}  // namespace

CheckResult CheckHistogram(const HistogramCheck& check) {
    if (check.eKind == kLogarithmicHistogram) {
        if (check.nBinsPerDecade < 1)
            return Refusal(IDS_HISTOGRAM_NO_DECADES, kPage, IDC_HISTOGRAM_DECADES);
        // Exactly 0: a limit below it passes.
        if (check.limits.fLower == 0.0f && !check.bBinAllData)
            return Refusal(IDS_HISTOGRAM_LOWER_ZERO, kPage, IDC_HISTOGRAM_LOWER);
    }
    if (!HasDecades(check.eKind) && !(check.fWidth > 0.0f))
        return Refusal(IDS_HISTOGRAM_NO_WIDTH, kPage, IDC_HISTOGRAM_WIDTH);
    // Written so that what is no number fails.
    if (!check.bBinAllData && !(check.limits.fUpper > check.limits.fLower))
        return Refusal(IDS_HISTOGRAM_LIMITS_ORDER, kPage, IDC_HISTOGRAM_LOWER);
    return {};
}
