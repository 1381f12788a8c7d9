#include "fit/FitMessages.h"

#include "analysis/DialogMessages.h"
#include "fit_ids.h"

Finding LibraryFailure() {
    return {.nStringId = IDS_FIT_LIBRARY_FAILED};
}

bool ApplyOrTell(CFitOptionsInterface& fit, HWND hOwner) {
    if (fit.Apply()) return true;
    ShowFinding(hOwner, LibraryFailure());
    return false;
}

void EquationMessages::ShowString(int nStringId) {
    ShowFinding(m_hOwner, {.nStringId = static_cast<UINT>(nStringId)});
}

void EquationMessages::ShowError(const char* pszText) {
    // The text may quote what the user typed, so that it is no template.
    ShowFinding(m_hOwner, {.szText = "%s", .vArguments = {pszText}});
}
