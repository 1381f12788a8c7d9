#include "CreateCurveFit.h"

#include <new>

#include "CurveFitObject.h"
#include "FunctionTable.h"

namespace curvefit {

ZXADLG_CCurveFit* CreateCurveFit(const FitOptions* options) {
    if (options == nullptr) return nullptr;
    const FunctionRow* pRow = FindFunction(options->eFunctionType);
    if (pRow == nullptr && options->eFunctionType != kCustomFunction) return nullptr;
    return new (std::nothrow) CurveFitObject(pRow, *options);
}

}  // namespace curvefit
