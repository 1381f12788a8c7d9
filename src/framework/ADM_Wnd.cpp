#include "framework/ADM_Wnd.h"

#include <cstring>

#include "framework/ADM_Dialog.h"
#include "widgets/MessageDialog.h"

ADM_Wnd::~ADM_Wnd() {
    if (m_pOwner != nullptr) m_pOwner->ForgetControl(this);
}

void ADM_Wnd::Attach(HWND hWnd) {
    if (hWnd != nullptr) {
        // With the old binding: the value to compare with is the one that the object holds.
        SaveInitialValue();
        m_nControlId = ::GetDlgCtrlID(hWnd);
    }
    m_hWnd = hWnd;
    OnAttach();
}

void ADM_Wnd::SetControlId(int nId) {
    m_nControlId = nId;
}

void ADM_Wnd::OnAttach() {}

void ADM_Wnd::ReadControl() {}

void ADM_Wnd::SaveInitialValue() {}

BOOL ADM_Wnd::HasChanged() {
    return 0;
}

void ADM_Wnd::SetForceModified(BOOL bModified) {
    m_bForceModified = bModified;
}

BOOL ADM_Wnd::IsModified() {
    if (!m_bTrackChanges) return 0;
    if (m_bForceModified) return 1;
    ReadControl();
    return HasChanged();
}

BOOL ADM_Wnd::Validate(BOOL, ADM_Wnd**) {
    return 1;
}

BOOL ADM_Wnd::IsValidatable() {
    return IsEnabled();
}

void ADM_Wnd::SelectContents() {}

void ADM_Wnd::SetWindowText(LPCSTR szText) {
    if (m_hWnd == nullptr) return;
    if (szText == nullptr) szText = "";
    // Texts from 255 characters on are always set: they do not fit the buffer of the comparison.
    char szShown[256];
    if (::GetWindowTextLengthA(m_hWnd) < 255) {
        szShown[0] = '\0';
        ::GetWindowTextA(m_hWnd, szShown, static_cast<int>(sizeof szShown));
        if (std::strcmp(szShown, szText) == 0) return;
    }
    ::SetWindowTextA(m_hWnd, szText);
}

BOOL ADM_Wnd::IsHandle(HWND hWnd) {
    return hWnd == m_hWnd;
}

void ADM_Wnd::OnCommand(HWND, int, HWND, int) {}

LRESULT ADM_Wnd::OnNotify(HWND, int nId, NMHDR* pHeader) {
    struct Row {
        UINT uRaw;
        int nCode;
    };
    static constexpr Row kRows[] = {
        {static_cast<UINT>(NM_OUTOFMEMORY), ADMN_OUTOFMEMORY},
        {static_cast<UINT>(NM_CLICK), ADMN_CLICK},
        {static_cast<UINT>(NM_DBLCLK), ADMN_DBLCLK},
        {static_cast<UINT>(NM_RETURN), ADMN_RETURN},
        {static_cast<UINT>(NM_RCLICK), ADMN_RCLICK},
        {static_cast<UINT>(NM_RDBLCLK), ADMN_RDBLCLK},
        {static_cast<UINT>(NM_SETFOCUS), ADMN_SETFOCUS},
        {static_cast<UINT>(NM_KILLFOCUS), ADMN_KILLFOCUS},
    };
    if (pHeader == nullptr) return 0;
    for (const Row& row : kRows) {
        if (row.uRaw == static_cast<UINT>(pHeader->code)) {
            Notify(this, nId, row.nCode, 0);
            break;
        }
    }
    return 0;
}

void ADM_Wnd::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    if (m_pNotifyTarget != nullptr) m_pNotifyTarget->Notify(pSender, nId, nCode, nData);
}

LRESULT ADM_Wnd::OnChar(HWND, int) {
    return 1;
}

LRESULT ADM_Wnd::OnGetDlgCode(HWND) {
    return 0;
}

void ADM_Wnd::OnDrawItem(HWND, DRAWITEMSTRUCT*) {}

void ADM_Wnd::OnDeleteItem(HWND, DELETEITEMSTRUCT*) {}

LRESULT ADM_Wnd::OnCompareItem(HWND, COMPAREITEMSTRUCT*) {
    return 0;
}

HBRUSH ADM_Wnd::OnCtlColor(HWND, HDC, HWND, int) {
    return nullptr;
}

void ADM_Wnd::Show(int nCmdShow) {
    if (m_hWnd == nullptr) return;
    // Most rules say again what holds: that asks the system for nothing. To show a window that is
    // no child again brings it to the front.
    const LONG_PTR nStyle = ::GetWindowLongPtrA(m_hWnd, GWL_STYLE);
    const bool bVisible = (nStyle & WS_VISIBLE) != 0;
    const bool bHolds = nCmdShow == (bVisible ? SW_SHOW : SW_HIDE);
    if ((nStyle & WS_CHILD) != 0 && bHolds) return;
    ::ShowWindow(m_hWnd, nCmdShow);
}

void ADM_Wnd::Enable(BOOL bEnable) {
    // Most rules say again what holds: that asks the system for nothing.
    if (m_hWnd == nullptr || !::IsWindowEnabled(m_hWnd) == !bEnable) return;
    // A greyed window would take the focus with it, and the keyboard would be dead.
    if (!bEnable && HasFocus() && (::GetWindowLongPtrA(m_hWnd, GWL_STYLE) & WS_CHILD) != 0) {
        ::SendMessageA(::GetAncestor(m_hWnd, GA_ROOT), WM_NEXTDLGCTL, 0, FALSE);
    }
    ::EnableWindow(m_hWnd, bEnable);
}

void ADM_Wnd::SetFocus() const {
    if (m_hWnd != nullptr) ::SetFocus(m_hWnd);
}

BOOL ADM_Wnd::HasFocus() const {
    return m_hWnd != nullptr && ::GetFocus() == m_hWnd;
}

void ADM_Wnd::MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint) const {
    if (m_hWnd != nullptr) ::MoveWindow(m_hWnd, x, y, nWidth, nHeight, bRepaint);
}

void ADM_Wnd::Invalidate(BOOL bErase) const {
    // A null window would have every window of the desktop painted.
    if (m_hWnd != nullptr) ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void ADM_Wnd::GetClientRect(RECT* pRect) const {
    *pRect = RECT{};
    if (m_hWnd != nullptr) ::GetClientRect(m_hWnd, pRect);
}

void ADM_Wnd::GetWindowRect(RECT* pRect) const {
    *pRect = RECT{};
    if (m_hWnd != nullptr) ::GetWindowRect(m_hWnd, pRect);
}

void ADM_Wnd::SetRedraw(BOOL bRedraw) const {
    if (m_hWnd != nullptr) ::SendMessageA(m_hWnd, WM_SETREDRAW, static_cast<WPARAM>(bRedraw), 0);
}

int ADM_Wnd::GetWindowTextLength() const {
    return m_hWnd != nullptr ? ::GetWindowTextLengthA(m_hWnd) : 0;
}

int ADM_Wnd::GetWindowText(LPSTR szBuffer, int nSize) const {
    if (szBuffer == nullptr || nSize <= 0) return 0;
    szBuffer[0] = '\0';
    return m_hWnd != nullptr ? ::GetWindowTextA(m_hWnd, szBuffer, nSize) : 0;
}

BOOL ADM_Wnd::LoadText(HINSTANCE hInstance, UINT nStringId) {
    char szText[256];
    if (::LoadStringA(hInstance, nStringId, szText, static_cast<int>(sizeof szText)) <= 0) return 0;
    SetWindowText(szText);
    return 1;
}

BOOL ADM_Wnd::IsEnabled() const {
    return m_hWnd != nullptr && ::IsWindowEnabled(m_hWnd);
}

BOOL ADM_Wnd::IsVisible() const {
    return m_hWnd != nullptr && ::IsWindowVisible(m_hWnd);
}

void ADM_Wnd::SetFont(HFONT hFont, BOOL bRedraw) const {
    if (m_hWnd == nullptr) return;
    ::SendMessageA(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(hFont),
                   MAKELPARAM(bRedraw != 0, 0));
}

HFONT ADM_Wnd::GetFont() const {
    if (m_hWnd == nullptr) return nullptr;
    return reinterpret_cast<HFONT>(::SendMessageA(m_hWnd, WM_GETFONT, 0, 0));
}

void ADM_Wnd::Update() const {
    if (m_hWnd != nullptr) ::UpdateWindow(m_hWnd);
}

HWND ADM_Wnd::GetParent() const {
    return m_hWnd != nullptr ? ::GetParent(m_hWnd) : nullptr;
}

BOOL ADM_Wnd::Destroy() {
    return m_hWnd != nullptr && ::DestroyWindow(m_hWnd);
}

UINT ADM_Wnd::ShowMessage(LPCSTR szText, UINT nFlags, LPCSTR) const {
    return CommonCtls::ShowMessage(GetDialogWnd(), szText, nFlags);
}

UINT ADM_Wnd::ShowValidationMessage(LPCSTR szText) const {
    return CommonCtls::ShowMessage(GetDialogWnd(), "%0:\r\n\r\n%1", MB_ICONHAND,
                                   {"Validation Error", szText != nullptr ? szText : ""});
}
