#include "framework/ADM_ListBox.h"

#include <string>

#include "framework/NumberItem.h"
#include "framework/PrivateMessages.h"
#include "text/BoundedText.h"

void ADM_ListBox::OnAttach() {
    Send(LB_SETCURSEL, static_cast<WPARAM>(m_nSelected));
}

void ADM_ListBox::ReadControl() {
    if (m_hWnd != nullptr) m_nSelected = Send(LB_GETCURSEL);
}

BOOL ADM_ListBox::HasChanged() {
    return m_bTrackChanges && m_nSelected != m_nInitial;
}

void ADM_ListBox::OnCommand(HWND, int nId, HWND, int nCode) {
    struct Row {
        int nRaw;
        int nNotification;
    };
    static constexpr Row kRows[] = {
        {LBN_SELCHANGE, ADMN_LISTSELCHANGE}, {LBN_DBLCLK, ADMN_LISTDBLCLK},
        {LBN_SELCANCEL, ADMN_LISTSELCANCEL}, {LBN_SETFOCUS, ADMN_SETFOCUS},
        {LBN_KILLFOCUS, ADMN_KILLFOCUS},     {static_cast<int>(LBN_ERRSPACE), ADMN_LISTERRSPACE},
    };
    for (const Row& row : kRows) {
        if (row.nRaw != nCode) continue;
        Notify(this, nId, row.nNotification, 0);
        return;
    }
}

void ADM_ListBox::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Wnd::Notify(pSender, nId, nCode, nData);
    if (pSender != this || nCode != ADMN_LISTSELCHANGE) return;
    if (m_hWnd == nullptr) return;  // a receiver closed the dialog
    ReadControl();
    ::PostMessageA(::GetParent(m_hWnd), ADMM_APPLY_NOW,
                   reinterpret_cast<WPARAM>(static_cast<ADM_Wnd*>(this)), nCode);
}

int ADM_ListBox::Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd == nullptr ? 0 : static_cast<int>(::SendMessageA(m_hWnd, uMsg, wParam, lParam));
}

void ADM_ListBox::SetCurSel(int nIndex) {
    m_nSelected = nIndex;
    Send(LB_SETCURSEL, static_cast<WPARAM>(nIndex));
}

int ADM_ListBox::GetCurSel() {
    ReadControl();
    return m_nSelected;
}

int ADM_ListBox::GetCount() const {
    return Send(LB_GETCOUNT);
}

LPARAM ADM_ListBox::GetItemData(int nIndex) const {
    if (m_hWnd == nullptr) return 0;
    return ::SendMessageA(m_hWnd, LB_GETITEMDATA, static_cast<WPARAM>(nIndex), 0);
}

int ADM_ListBox::SetItemData(int nIndex, LPARAM nData) {
    return Send(LB_SETITEMDATA, static_cast<WPARAM>(nIndex), nData);
}

int ADM_ListBox::GetText(int nIndex, LPSTR szBuffer, int nSize) const {
    if (m_hWnd == nullptr || szBuffer == nullptr || nSize <= 0) return 0;
    szBuffer[0] = '\0';
    const int nLength = Send(LB_GETTEXTLEN, static_cast<WPARAM>(nIndex));
    if (nLength < 0) return LB_ERR;
    std::string sText(static_cast<std::size_t>(nLength) + 1, '\0');
    Send(LB_GETTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(sText.data()));
    return CopyText(szBuffer, nSize, sText.c_str());
}

int ADM_ListBox::AddString(LPCSTR szText) {
    return Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(szText));
}

int ADM_ListBox::InsertString(int nIndex, LPCSTR szText) {
    return Send(LB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(szText));
}

int ADM_ListBox::DeleteString(int nIndex) {
    return Send(LB_DELETESTRING, static_cast<WPARAM>(nIndex));
}

int ADM_ListBox::ResetContent() {
    return Send(LB_RESETCONTENT);
}

int ADM_ListBox::FindString(int nStart, LPCSTR szText) const {
    return Send(LB_FINDSTRING, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
}

int ADM_ListBox::FindStringExact(int nStart, LPCSTR szText) const {
    return Send(LB_FINDSTRINGEXACT, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
}

int ADM_ListBox::SelectString(int nStart, LPCSTR szText) {
    const int nIndex =
        Send(LB_SELECTSTRING, static_cast<WPARAM>(nStart), reinterpret_cast<LPARAM>(szText));
    ReadControl();
    return nIndex;
}

int ADM_ListBox::SetTopIndex(int nIndex) {
    return Send(LB_SETTOPINDEX, static_cast<WPARAM>(nIndex));
}

int ADM_ListBox::GetTopIndex() const {
    return Send(LB_GETTOPINDEX);
}

int ADM_ListBox::SetSel(int nIndex, BOOL bSelect) {
    return Send(LB_SETSEL, static_cast<WPARAM>(bSelect), nIndex);
}

int ADM_ListBox::GetSelCount() const {
    return Send(LB_GETSELCOUNT);
}

int ADM_ListBox::GetSelItems(int nMax, int* pnItems) const {
    return Send(LB_GETSELITEMS, static_cast<WPARAM>(nMax), reinterpret_cast<LPARAM>(pnItems));
}

int ADM_ListBox::SetCaretIndex(int nIndex) {
    return Send(LB_SETCARETINDEX, static_cast<WPARAM>(nIndex), 0);
}

int ADM_ListBox::GetCaretIndex() const {
    return Send(LB_GETCARETINDEX);
}

int ADM_ListBox::FindData(int nStart, LPARAM nData) const {
    if (m_hWnd == nullptr) return 0;
    const int nCount = GetCount();
    for (int i = nStart < -1 ? 0 : nStart + 1; i < nCount; ++i) {
        if (GetItemData(i) == nData) return i;
    }
    return -1;
}

int ADM_ListBox::SelectData(int nStart, LPARAM nData) {
    if (m_hWnd == nullptr) return 0;
    const int nIndex = FindData(nStart < 0 ? -1 : nStart - 1, nData);
    if (nIndex >= 0) SetCurSel(nIndex);
    return nIndex;
}

int ADM_ListBox::AddInt(int nValue) {
    return AddString(NumberItem(nValue).szText);
}

int ADM_ListBox::AddLong(LONG nValue) {
    return AddString(NumberItem(static_cast<int>(nValue)).szText);
}

int ADM_ListBox::AddFloat(float fValue, int nDecimals, UINT nSigDigits) {
    return AddString(NumberItem(fValue, nDecimals, nSigDigits).szText);
}

int ADM_ListBox::AddDouble(double dValue, int nDecimals, UINT nSigDigits) {
    return AddString(NumberItem(dValue, nDecimals, nSigDigits).szText);
}

int ADM_ListBox::AddResourceString(HINSTANCE hInstance, UINT nId) {
    if (m_hWnd == nullptr) return 0;
    char szText[255] = {};
    if (::LoadStringA(hInstance, nId, szText, sizeof szText) <= 0) return LB_ERR;
    return AddString(szText);
}
