// The exported function. An ELF symbol with an at sign is a name with a version, which the version
// script declares: _CFIT_CreateCurveFit in version 4 reads _CFIT_CreateCurveFit@4.

#include "CreateCurveFit.h"

extern "C" {

// The assembler's line below names this function.
[[gnu::used]] ZXADLG_CCurveFit* CFIT_CreateCurveFit(const FitOptions* options) {
    return curvefit::CreateCurveFit(options);
}
}
__asm__(".symver CFIT_CreateCurveFit, _CFIT_CreateCurveFit@4");
