// Messages that several parts of the curve fit dialog show.
#pragma once

#include "contract/Finding.h"
#include "fit/CFitOptionsInterface.h"
#include "parser/CustomFunction.h"

// The curve-fit library is missing or refuses the function.
Finding LibraryFailure();
// Brings the record to rest. False where the library refused, of which the user is told.
bool ApplyOrTell(CFitOptionsInterface& fit, HWND hOwner);

// Tells of the faults of a custom function over a window.
class EquationMessages final : public CustomFunctionMessages {
  public:
    explicit EquationMessages(HWND hOwner) : m_hOwner(hOwner) {}

    void ShowString(int nStringId) override;
    void ShowError(const char* pszText) override;

  private:
    HWND m_hOwner;
};
