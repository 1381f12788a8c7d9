// Messages that several parts of the curve fit dialog show.
#pragma once

#include "contract/Finding.h"
#include "parser/CustomFunction.h"

// The curve-fit library is missing or refuses the function.
Finding LibraryFailure();

// Tells of the faults of a custom function over a window.
class EquationMessages final : public CustomFunctionMessages {
  public:
    explicit EquationMessages(HWND hOwner) : m_hOwner(hOwner) {}

    void ShowString(int nStringId) override;
    void ShowError(const char* pszText) override;

  private:
    HWND m_hOwner;
};
