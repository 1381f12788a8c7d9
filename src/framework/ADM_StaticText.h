// A label with a format and ten arguments, "%0" to "%9". The caption of the template is the format
// unless one was set, so that a caption can hold places for numbers. Labels take no part in change
// tests.
#pragma once

#include <string>

#include "framework/ADM_Static.h"

class ADM_StaticText : public ADM_Static {
  public:
    static constexpr int kArguments = 10;
    static constexpr COLORREF kNoColor = static_cast<COLORREF>(-1);

    ADM_StaticText();

    void OnAttach() override;
    HBRUSH OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType) override;

    // Shows a finished text.
    virtual void Refresh(LPCSTR szText);

    // Each of these refreshes the label. Arguments count from 0; a higher index than 9 returns 0
    // and changes nothing. Decimals of -1 show nSigDigits significant digits.
    void SetFormat(LPCSTR szFormat);
    // A null text returns 1 and changes nothing.
    BOOL SetArg(int nIndex, LPCSTR szText);
    BOOL SetArgInt(int nIndex, int nValue);
    BOOL SetArgLong(int nIndex, LONG nValue);
    BOOL SetArgFloat(int nIndex, float fValue, int nDecimals, int nSigDigits);
    BOOL SetArgDouble(int nIndex, double dValue, int nDecimals, int nSigDigits);
    // Returns 0 and changes nothing when there is no such string.
    BOOL SetArgString(int nIndex, HINSTANCE hInstance, UINT nStringId);

    // The colour of the text; kNoColor gives it back to the dialog.
    void SetTextColor(COLORREF crColor);

  private:
    void Expand();

    std::string m_sFormat;
    std::string m_asArgs[kArguments];
    BYTE m_bColorSet = 0;
    COLORREF m_crColor = kNoColor;
};
