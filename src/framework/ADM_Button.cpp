#include "framework/ADM_Button.h"

#include <iterator>

#include "framework/PrivateMessages.h"

void ADM_Button::OnAttach() {
    if (m_hWnd != nullptr) ::SendMessageA(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(m_nCheck), 0);
}

void ADM_Button::ReadControl() {
    if (m_hWnd != nullptr) m_nCheck = static_cast<int>(::SendMessageA(m_hWnd, BM_GETCHECK, 0, 0));
}

void ADM_Button::SaveInitialValue() {
    ReadControl();
    m_nInitialCheck = m_nCheck;
}

BOOL ADM_Button::HasChanged() {
    return m_bTrackChanges && m_nCheck != m_nInitialCheck;
}

void ADM_Button::OnCommand(HWND, int nId, HWND, int nCode) {
    // Indexed by the platform's BN_ codes.
    static constexpr int kNotifications[] = {ADMN_CLICKED,    ADMN_BTNPAINT,
                                             ADMN_BTNHILITE,  ADMN_BTNUNHILITE,
                                             ADMN_BTNDISABLE, ADMN_BTNDOUBLECLICK};
    if (nCode >= 0 && nCode < static_cast<int>(std::size(kNotifications))) {
        Notify(this, nId, kNotifications[nCode], 0);
    }
}

void ADM_Button::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Wnd::Notify(pSender, nId, nCode, nData);
    if (pSender != this || nCode != ADMN_CLICKED) return;
    if (m_hWnd == nullptr) return;  // a receiver closed the dialog
    ReadControl();
    ::PostMessageA(::GetParent(m_hWnd), ADMM_APPLY_NOW,
                   reinterpret_cast<WPARAM>(static_cast<ADM_Wnd*>(this)), nCode);
}

void ADM_Button::SetCheck(int nState) {
    m_nCheck = nState;
    if (m_hWnd != nullptr) ::SendMessageA(m_hWnd, BM_SETCHECK, static_cast<WPARAM>(nState), 0);
}

int ADM_Button::GetCheck() {
    ReadControl();
    return m_nCheck;
}

void ADM_Button::SetState(BOOL bHighlight) {
    if (m_hWnd != nullptr) ::SendMessageA(m_hWnd, BM_SETSTATE, static_cast<WPARAM>(bHighlight), 0);
}

int ADM_Button::GetState() const {
    return m_hWnd == nullptr ? 0 : static_cast<int>(::SendMessageA(m_hWnd, BM_GETSTATE, 0, 0));
}

void ADM_Button::SetStyle(int nStyle, BOOL bRedraw) {
    if (m_hWnd == nullptr) return;
    ::SendMessageA(m_hWnd, BM_SETSTYLE, static_cast<WPARAM>(nStyle), bRedraw);
}

HANDLE ADM_Button::SetImage(int nType, HANDLE hImage) {
    if (m_hWnd == nullptr) return nullptr;
    return reinterpret_cast<HANDLE>(::SendMessageA(m_hWnd, BM_SETIMAGE, static_cast<WPARAM>(nType),
                                                   reinterpret_cast<LPARAM>(hImage)));
}

HANDLE ADM_Button::GetImage(int nType) const {
    if (m_hWnd == nullptr) return nullptr;
    return reinterpret_cast<HANDLE>(
        ::SendMessageA(m_hWnd, BM_GETIMAGE, static_cast<WPARAM>(nType), 0));
}

void ADM_TriStateCheck::OnAttach() {
    if (m_hWnd == nullptr) {
        m_bStyled = FALSE;
    } else if (!m_bStyled) {
        const LONG nType = GetWindowLongA(m_hWnd, GWL_STYLE) & BS_TYPEMASK;
        if (nType != BS_3STATE && nType != BS_AUTO3STATE) SetStyle(BS_AUTO3STATE);
        m_bStyled = TRUE;
    }
    ADM_Button::OnAttach();
}

void ADM_TriStateCheck::SetTriState(int nState) {
    if (nState >= BST_UNCHECKED && nState <= BST_INDETERMINATE) SetCheck(nState);
}

int ADM_TriStateCheck::GetTriState() {
    const int nState = GetCheck();
    return nState >= BST_UNCHECKED && nState <= BST_INDETERMINATE ? nState : BST_UNCHECKED;
}
