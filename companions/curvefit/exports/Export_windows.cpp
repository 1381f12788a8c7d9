// The exported function. The definition file gives it the name that callers ask for, also where the
// platform would decorate it otherwise.

#include "CreateCurveFit.h"

extern "C" ZXADLG_CCurveFit* ZXADLG_CURVEFIT_CALL CFIT_CreateCurveFit(const FitOptions* options) {
    return curvefit::CreateCurveFit(options);
}
