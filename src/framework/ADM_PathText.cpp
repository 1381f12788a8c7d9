#include "framework/ADM_PathText.h"

#include "widgets/PathText.h"

void ADM_PathText::OnAttach() {
    ADM_Text::OnAttach();
    if (!m_sPath.empty()) Show();
}

void ADM_PathText::SetWindowText(LPCSTR szText) {
    m_sPath = szText != nullptr ? szText : "";
    Show();
}

void ADM_PathText::Show() {
    if (m_hWnd == nullptr) return;
    RECT rc = {};
    SendMessageA(m_hWnd, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rc));
    const HDC hDC = GetDC(m_hWnd);
    const auto hFont = reinterpret_cast<HFONT>(SendMessageA(m_hWnd, WM_GETFONT, 0, 0));
    const HGDIOBJ hOld = SelectObject(
        hDC, hFont != nullptr ? static_cast<HGDIOBJ>(hFont) : GetStockObject(SYSTEM_FONT));
    SIZE size = {};
    GetTextExtentPoint32A(hDC, m_sPath.c_str(), static_cast<int>(m_sPath.size()), &size);
    char szShort[MAX_PATH];
    const bool bShort =
        size.cx > rc.right - rc.left &&
        ShortenPathToWidth(hDC, m_sPath.c_str(), szShort, static_cast<int>(sizeof szShort) - 1,
                           static_cast<int>(rc.right - rc.left));
    SelectObject(hDC, hOld);
    ReleaseDC(m_hWnd, hDC);
    ADM_Text::SetWindowText(bShort ? szShort : m_sPath.c_str());
}
