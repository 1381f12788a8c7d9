#include "fit/FitMemory.h"

#include "analysis/CParentDialogBase.h"

FitMemory& RememberedFit() {
    static FitMemory s_memory;
    return s_memory;
}

void ForgetFit() {
    RememberedFit() = {};
    CParentDialogBase::ForgetTabs();
}
