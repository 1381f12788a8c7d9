// The one way to an object: what the exported function of each platform calls.
#pragma once

#include "zxadlg/CurveFit.h"

namespace curvefit {

// Null for a null record, for a function number outside 0 to 38, and without memory.
ZXADLG_CCurveFit* CreateCurveFit(const FitOptions* options);

}  // namespace curvefit
