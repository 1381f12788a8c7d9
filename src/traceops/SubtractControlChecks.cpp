#include "traceops/SubtractControlChecks.h"

#include "ids.h"

CheckResult CheckMultiplier(const ZXADLG_SubtractControlOptions& options) {
    if (options.bUseMultiplier == 0 || options.dMultiplier != 0.0) return {};
    return Finding{.szText = "The multiplier value cannot be zero.",
                   .uFlags = MB_ICONASTERISK,
                   .nControl = IDC_SUBTRACT_MULTIPLIER};
}
