// The three fixed menus from which an expression is built: operators, functions, constants.
#pragma once

#include "arithmetic/ADM_NoListCombo.h"

// Shows the operators but "=", which is the first of its table.
class COperatorComboBox : public ADM_NoListCombo {
  public:
    COperatorComboBox() : ADM_NoListCombo(1) {}

    void BuildMenu() override;
    // The character of the last pick in the low byte, behind it a terminator. A pick beyond the
    // table leaves *puOperator as it is.
    void GetOperator(WORD* puOperator) const;
};

// The text that a pick shows is the one that it inserts.
class CFunctionComboBox : public ADM_NoListCombo {
  public:
    void BuildMenu() override;
    LPCSTR GetFunction() const;
};

class CSpecialComboBox : public ADM_NoListCombo {
  public:
    void BuildMenu() override;
    LPCSTR GetConstant() const;
    // The constants of a sheet count rows, the others time. Set before the window is there.
    void SetColumnNames(bool bColumnNames) { m_bColumnNames = bColumnNames; }

  private:
    bool m_bColumnNames = false;
};
