#include "framework/ADM_TabControl.h"

#include "framework/Theming.h"
#include "text/BoundedText.h"

void ADM_TabControl::OnAttach() {
    if (m_hWnd == nullptr) {
        m_nLastPage = -1;
        m_bThemed = FALSE;
        return;
    }
    if (m_bThemed || !IsDialogThemingActive()) return;
    EnableThemeDialogTexture(m_hWnd, ETDT_ENABLETAB);
    m_bThemed = TRUE;
}

LRESULT ADM_TabControl::OnNotify(HWND hWnd, int nId, NMHDR* pHeader) {
    switch (pHeader->code) {
        case static_cast<UINT>(TCN_SELCHANGING):
            m_bAllowChange = TRUE;
            Notify(this, nId, ADMN_TABSELCHANGING, 0);
            return !m_bAllowChange;
        case static_cast<UINT>(TCN_SELCHANGE):
            if (m_nLastPage != -1) {
                m_bReportOld = TRUE;
                Notify(this, nId, ADMN_TABLEFT, 0);
                m_bReportOld = FALSE;
            }
            Notify(this, nId, ADMN_TABSELCHANGE, 0);
            m_nLastPage = GetCurSel();
            return 0;
        default:
            return ADM_Wnd::OnNotify(hWnd, nId, pHeader);
    }
}

int ADM_TabControl::GetItemCount() const {
    return m_hWnd == nullptr ? 0 : static_cast<int>(SendMessageA(m_hWnd, TCM_GETITEMCOUNT, 0, 0));
}

int ADM_TabControl::GetCurSel() const {
    if (m_bReportOld) return m_nLastPage;
    return m_hWnd == nullptr ? -1 : static_cast<int>(SendMessageA(m_hWnd, TCM_GETCURSEL, 0, 0));
}

void ADM_TabControl::SetCurSel(int nIndex) {
    if (m_hWnd != nullptr) SendMessageA(m_hWnd, TCM_SETCURSEL, static_cast<WPARAM>(nIndex), 0);
}

void ADM_TabControl::InsertItem(int nIndex, LPCSTR szTitle) {
    if (m_hWnd == nullptr) return;
    char szText[64];
    CopyText(szText, szTitle);
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = szText;
    SendMessageA(m_hWnd, TCM_INSERTITEMA, static_cast<WPARAM>(nIndex),
                 reinterpret_cast<LPARAM>(&item));
}

void ADM_TabControl::DeleteItem(int nIndex) {
    if (m_hWnd != nullptr) SendMessageA(m_hWnd, TCM_DELETEITEM, static_cast<WPARAM>(nIndex), 0);
}

RECT ADM_TabControl::GetDisplayArea() const {
    RECT rc;
    GetClientRect(&rc);
    if (m_hWnd != nullptr)
        SendMessageA(m_hWnd, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rc));
    return rc;
}
