#include "framework/ADM_Text.h"

#include "framework/PrivateMessages.h"
#include "widgets/MessageDialog.h"

namespace {

constexpr DWORD kArrowKeyMs = 20;

// When the last arrow key made a step, for all fields together; 0 after a key release.
DWORD g_dwLastArrowKey = 0;

LRESULT TellParent(HWND hWnd, unsigned uCode) {
    return ::SendMessageA(::GetParent(hWnd), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(hWnd), uCode),
                          reinterpret_cast<LPARAM>(hWnd));
}

}  // namespace

void ADM_Text::SelectContents() {
    SetSel(0, -1);
}

void ADM_Text::OnCommand(HWND, int nId, HWND, int nCode) {
    struct Row {
        int nRaw;
        int nCode;
    };
    static constexpr Row kRows[] = {
        {EN_SETFOCUS, ADMN_SETFOCUS},
        {EN_KILLFOCUS, ADMN_KILLFOCUS},
        {EN_CHANGE, ADMN_TEXTCHANGE},
        {EN_UPDATE, ADMN_TEXTUPDATE},
        {EN_ERRSPACE, ADMN_ERRSPACE},
        {EN_MAXTEXT, ADMN_MAXTEXT},
        {EN_HSCROLL, ADMN_HSCROLL},
        {EN_VSCROLL, ADMN_VSCROLL},
        {ADMT_KEY_RELEASE, ADMN_KEYRELEASE},
        {ADMT_KEY_UP, ADMN_KEYUP},
        {ADMT_KEY_DOWN, ADMN_KEYDOWN},
        {ADMT_SHIFT_KEY_UP, ADMN_SHIFTKEYUP},
        {ADMT_SHIFT_KEY_DOWN, ADMN_SHIFTKEYDOWN},
    };
    for (const Row& row : kRows) {
        if (row.nRaw != nCode) continue;
        Notify(this, nId, row.nCode, 0);
        return;
    }
}

void ADM_Text::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_SubClassWnd::Notify(pSender, nId, nCode, nData);
    if (nCode == ADMN_SETFOCUS && m_bSelectOnFocus) SelectContents();
}

LRESULT ADM_Text::OnGetDlgCode(HWND hWnd) {
    return ADM_SubClassWnd::SubclassProc(hWnd, WM_GETDLGCODE, 0, 0);
}

LRESULT ADM_Text::SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const bool bArrow = wParam == VK_UP || wParam == VK_DOWN;
    switch (uMsg) {
        case WM_GETDLGCODE:
            return ::SendMessageA(::GetParent(hWnd), ADMM_GET_DLG_CODE, wParam,
                                  ::GetDlgCtrlID(hWnd));
        case WM_CHAR:
            if (::SendMessageA(::GetParent(hWnd), ADMM_CHAR, wParam, ::GetDlgCtrlID(hWnd)) == 0) {
                return 0;
            }
            break;
        case WM_KEYDOWN:
            if (!bArrow) break;
            OnArrowKey(hWnd, wParam == VK_UP);
            return 0;
        case WM_KEYUP:
            g_dwLastArrowKey = 0;
            if (!bArrow) break;
            TellParent(hWnd, ADMT_KEY_RELEASE);
            return 0;
        default:
            break;
    }
    return ADM_SubClassWnd::SubclassProc(hWnd, uMsg, wParam, lParam);
}

void ADM_Text::OnArrowKey(HWND hWnd, bool bUp) const {
    const DWORD dwNow = ::GetTickCount();
    if (g_dwLastArrowKey != 0 && dwNow - g_dwLastArrowKey < kArrowKeyMs) return;
    g_dwLastArrowKey = dwNow;
    const bool bShift = ::GetKeyState(VK_SHIFT) < 0;
    if (bUp) {
        TellParent(hWnd, bShift ? ADMT_SHIFT_KEY_UP : ADMT_KEY_UP);
    } else {
        TellParent(hWnd, bShift ? ADMT_SHIFT_KEY_DOWN : ADMT_KEY_DOWN);
    }
}

LRESULT ADM_Text::Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd != nullptr ? ::SendMessageA(m_hWnd, uMsg, wParam, lParam) : 0;
}

void ADM_Text::SetSel(int nStart, int nEnd) const {
    Send(EM_SETSEL, static_cast<WPARAM>(nStart), nEnd);
}

BOOL ADM_Text::GetModify() const {
    return Send(EM_GETMODIFY) != 0;
}

void ADM_Text::SetModify(BOOL bModified) const {
    Send(EM_SETMODIFY, static_cast<WPARAM>(bModified != 0));
}

int ADM_Text::GetLineCount() const {
    return static_cast<int>(Send(EM_GETLINECOUNT));
}

int ADM_Text::GetFirstVisibleLine() const {
    return static_cast<int>(Send(EM_GETFIRSTVISIBLELINE));
}

void ADM_Text::LimitText(UINT uCharacters) const {
    Send(EM_LIMITTEXT, uCharacters);
}

BOOL ADM_Text::Undo() const {
    return Send(EM_UNDO) != 0;
}

void ADM_Text::Cut() const {
    Send(WM_CUT);
}

void ADM_Text::Copy() const {
    Send(WM_COPY);
}

void ADM_Text::Paste() const {
    Send(WM_PASTE);
}

void ADM_Text::ShowFailure(LPCSTR szMsg) const {
    SetFocus();
    // As an argument: a percent sign in a field's name stands for itself.
    CommonCtls::ShowMessage(GetDialogWnd(), "%0", MB_ICONHAND, {szMsg});
}
