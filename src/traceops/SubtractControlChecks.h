// What Subtract Control refuses at OK.
#pragma once

#include "contract/Finding.h"
#include "zxadlg/SubtractControlOptions.h"

// A multiplier that is in use must not be zero.
CheckResult CheckMultiplier(const ZXADLG_SubtractControlOptions& options);
