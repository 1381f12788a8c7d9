#include "framework/ADM_StaticText.h"

#include <charconv>

#include "framework/AVC_Double.h"
#include "framework/AVC_Float.h"
#include "text/NumberFormat.h"
#include "widgets/TextFormat.h"

namespace {

constexpr int kTextSize = 4096;

template <class Validator, class Value>
BOOL SetArgNumber(ADM_StaticText& label, int nIndex, Value value, int nDecimals, int nSigDigits) {
    Validator number;
    number.SetSigDigits(static_cast<std::uint32_t>(nSigDigits));
    if (nDecimals != -1) number.SetFormat(kFormatFixed, static_cast<std::uint32_t>(nDecimals));
    number.SetValue(value);
    return label.SetArg(nIndex, number.GetText());
}

}  // namespace

ADM_StaticText::ADM_StaticText() {
    m_bTrackChanges = 0;
}

void ADM_StaticText::OnAttach() {
    ADM_Static::OnAttach();
    if (m_hWnd == nullptr) return;
    if (m_sFormat.empty()) {
        char szCaption[kTextSize];
        GetWindowText(szCaption, kTextSize);
        m_sFormat = szCaption;
    }
    Expand();
}

HBRUSH ADM_StaticText::OnCtlColor(HWND, HDC hDC, HWND hWndCtl, int nType) {
    if (!m_bColorSet) return nullptr;
    // The parent's default answer, past its own procedure, which would ask this label again.
    const auto hBrush = reinterpret_cast<HBRUSH>(
        ::DefWindowProcA(GetParent(), static_cast<UINT>(WM_CTLCOLORMSGBOX + nType),
                         reinterpret_cast<WPARAM>(hDC), reinterpret_cast<LPARAM>(hWndCtl)));
    ::SetTextColor(hDC, m_crColor);
    return hBrush;
}

void ADM_StaticText::Refresh(LPCSTR szText) {
    SetWindowText(szText);
}

void ADM_StaticText::Expand() {
    if (m_sFormat.empty()) {
        Refresh("");
        return;
    }
    const char* apszArgs[kArguments];
    for (int i = 0; i < kArguments; ++i) apszArgs[i] = m_asArgs[i].c_str();
    char szText[kTextSize];
    FormatArgs(nullptr, szText, m_sFormat.c_str(), apszArgs);
    Refresh(szText);
}

void ADM_StaticText::SetFormat(LPCSTR szFormat) {
    m_sFormat = szFormat != nullptr ? szFormat : "";
    Expand();
}

BOOL ADM_StaticText::SetArg(int nIndex, LPCSTR szText) {
    if (nIndex < 0 || nIndex >= kArguments) return 0;
    if (szText == nullptr) return 1;
    m_asArgs[nIndex] = szText;
    Expand();
    return 1;
}

BOOL ADM_StaticText::SetArgInt(int nIndex, int nValue) {
    return SetArgLong(nIndex, nValue);
}

BOOL ADM_StaticText::SetArgLong(int nIndex, LONG nValue) {
    char szNumber[24];
    *std::to_chars(szNumber, szNumber + sizeof szNumber - 1, nValue).ptr = '\0';
    return SetArg(nIndex, szNumber);
}

BOOL ADM_StaticText::SetArgFloat(int nIndex, float fValue, int nDecimals, int nSigDigits) {
    return SetArgNumber<AVC_Float>(*this, nIndex, fValue, nDecimals, nSigDigits);
}

BOOL ADM_StaticText::SetArgDouble(int nIndex, double dValue, int nDecimals, int nSigDigits) {
    return SetArgNumber<AVC_Double>(*this, nIndex, dValue, nDecimals, nSigDigits);
}

BOOL ADM_StaticText::SetArgString(int nIndex, HINSTANCE hInstance, UINT nStringId) {
    char szText[256];
    if (::LoadStringA(hInstance, nStringId, szText, static_cast<int>(sizeof szText)) <= 0) return 0;
    return SetArg(nIndex, szText);
}

void ADM_StaticText::SetTextColor(COLORREF crColor) {
    m_crColor = crColor;
    m_bColorSet = crColor != kNoColor;
    Invalidate(1);
}
