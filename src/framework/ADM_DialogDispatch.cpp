// How a dialog turns its window's messages into calls of its operations.
#include <iterator>

#include "framework/ADM_Dialog.h"
#include "framework/AppCommand.h"
#include "framework/PrivateMessages.h"
#include "framework/WindowMap.h"
#include "widgets/ModalRun.h"

namespace {

// What the property of each dialog window holds.
WindowMap<ADM_Dialog*>& Dialogs() {
    static WindowMap<ADM_Dialog*> dialogs;
    return dialogs;
}

}  // namespace

INT_PTR CALLBACK ADM_Dialog::WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const INT_PTR nResult = CommonCtls::CallGuarded<INT_PTR>(hWnd, FALSE, [=]() -> INT_PTR {
        if (uMsg == WM_INITDIALOG) reinterpret_cast<ADM_Dialog*>(lParam)->TakeWindow(hWnd);
        ADM_Dialog* const pDialog = FromWindow(hWnd);
        return pDialog != nullptr ? pDialog->DialogProc(hWnd, uMsg, wParam, lParam) : FALSE;
    });
    if (uMsg == WM_NCDESTROY) LetGo(hWnd);
    return nResult;
}

void ADM_Dialog::TakeWindow(HWND hWnd) {
    if (m_pRun != nullptr) m_pRun->SetWindow(hWnd);
    SetPropA(hWnd, kDialogProp, this);
    Dialogs().Set(hWnd, this);
    Attach(hWnd);
}

void ADM_Dialog::LetGo(HWND hWnd) {
    RemovePropA(hWnd, kDialogProp);
    Dialogs().Erase(hWnd);
}

ADM_Dialog* ADM_Dialog::FromWindow(HWND hWnd) {
    ADM_Dialog* const* ppDialog = Dialogs().Find(hWnd);
    return ppDialog != nullptr ? *ppDialog : nullptr;
}

INT_PTR ADM_Dialog::Answer(HWND hWnd, LRESULT nResult) {
    SetWindowLongPtrA(hWnd, DWLP_MSGRESULT, nResult);
    return TRUE;
}

// FALSE leaves a message to the system's dialog procedure.
INT_PTR ADM_Dialog::DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (m_hWnd == nullptr) return FALSE;
    if (uMsg == AppCommandMessage()) return OnAppCommand(wParam, lParam), TRUE;

    const HWND hFrom = reinterpret_cast<HWND>(lParam);
    const int nIdAsked = static_cast<int>(lParam);
    ADM_Wnd* const pAbout = reinterpret_cast<ADM_Wnd*>(wParam);
    switch (uMsg) {
        case WM_INITDIALOG:
            return OnInitDialog(hWnd, reinterpret_cast<HWND>(wParam), lParam);
        case WM_DESTROY:
            return OnDestroy(hWnd), FALSE;
        case WM_ACTIVATE:
            return wParam != 0 ? InstallFilter() : RemoveFilter(), FALSE;
        case WM_CLOSE:
            return OnClose(hWnd), FALSE;
        case WM_COMMAND:
            // Some codes are negative 16-bit numbers.
            return OnCommand(hWnd, LOWORD(wParam), hFrom, static_cast<SHORT>(HIWORD(wParam))), TRUE;
        case WM_NOTIFY:
            return Answer(
                hWnd, OnNotify(hWnd, static_cast<int>(wParam), reinterpret_cast<NMHDR*>(lParam)));
        case WM_HELP:
            return OnHelp(reinterpret_cast<HELPINFO*>(lParam)) != 0;
        case WM_TIMER:
            return OnTimer(wParam) != 0;
        case WM_HSCROLL:
        case WM_VSCROLL:
            return OnScroll(hFrom, LOWORD(wParam), static_cast<SHORT>(HIWORD(wParam))), TRUE;

        case WM_DRAWITEM:
            return OnDrawItem(hWnd, reinterpret_cast<DRAWITEMSTRUCT*>(lParam)), TRUE;
        case WM_DELETEITEM:
            return OnDeleteItem(hWnd, reinterpret_cast<DELETEITEMSTRUCT*>(lParam)), TRUE;
        case WM_MEASUREITEM:
            return OnMeasureItem(hWnd, reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)), TRUE;
        case WM_COMPAREITEM:
            // The system takes this answer from the procedure's own result.
            return OnCompareItem(hWnd, reinterpret_cast<COMPAREITEMSTRUCT*>(lParam));
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
            return reinterpret_cast<INT_PTR>(
                OnCtlColor(hWnd, reinterpret_cast<HDC>(wParam), hFrom,
                           static_cast<int>(uMsg) - WM_CTLCOLORMSGBOX));

        case ADMM_FOCUS_CONTROL:
            return OnFocusMessage(reinterpret_cast<ADM_Wnd*>(lParam)), TRUE;
        case ADMM_SAVE_INITIAL:
            for (ADM_Wnd* pChild : m_vControls) pChild->SaveInitialValue();
            return TRUE;
        case ADMM_UPDATE_CONTROLS:
            return OnUpdateMessage(), TRUE;
        case ADMM_CHAR:
            if (const HWND hItem = GetDlgItem(m_hWnd, nIdAsked)) {
                return Answer(hWnd, OnChar(hItem, static_cast<int>(wParam)));
            }
            return FALSE;
        case ADMM_GET_DLG_CODE:
            if (const HWND hItem = GetDlgItem(m_hWnd, nIdAsked)) {
                return Answer(hWnd, OnGetDlgCode(hItem));
            }
            return FALSE;
        case ADMM_APPLY_NOW:
            return OnApplyNowMessage(pAbout, nIdAsked), TRUE;
        case ADMM_APPLY_LATER:
            return OnApplyLaterMessage(pAbout, nIdAsked), TRUE;
        default:
            return FALSE;
    }
}

void ADM_Dialog::OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) {
    if (ADM_Wnd* pChild = FindControl(hWndCtl)) {
        pChild->OnCommand(hWnd, nId, hWndCtl, nCode);
    } else if (nCode == 0) {
        Notify(nullptr, nId, ADMN_CLICKED, 0);
    }
    if (nCode == 0 && nId == IDOK) OnOK();
    if (nCode == 0 && nId == IDCANCEL) OnCancel();
    RequestUpdate();
}

LRESULT ADM_Dialog::OnNotify(HWND hWnd, int nId, NMHDR* pHeader) {
    if (pHeader == nullptr) return 0;
    ADM_Wnd* pChild = FindControl(pHeader->hwndFrom);
    const LRESULT nResult = pChild != nullptr ? pChild->OnNotify(hWnd, nId, pHeader) : 0;
    // These come with every movement of the mouse and every repaint.
    const bool bIdle = pHeader->code == NM_CUSTOMDRAW || pHeader->code == NM_HOVER ||
                       pHeader->code == NM_NCHITTEST;
    if (!bIdle) RequestUpdate();
    return nResult;
}

void ADM_Dialog::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Wnd::Notify(pSender, nId, nCode, nData);
    if (pSender == &m_btnHelp) OnHelpButton();
}

void ADM_Dialog::OnScroll(HWND hScrollBar, UINT uCode, int nPosition) {
    // Indexed by the platform's SB_ codes; 0 is not passed on.
    static constexpr int kNotifications[] = {
        ADMN_GAUGELINEUP,    // SB_LINEUP
        ADMN_GAUGELINEDOWN,  // SB_LINEDOWN
        ADMN_GAUGEPAGEUP,    // SB_PAGEUP
        ADMN_GAUGEPAGEDOWN,  // SB_PAGEDOWN
        ADMN_GAUGETHUMB,     // SB_THUMBPOSITION
        0,                   // SB_THUMBTRACK
        ADMN_GAUGETOP,       // SB_TOP
        ADMN_GAUGEBOTTOM,    // SB_BOTTOM
        ADMN_GAUGEENDSCROLL  // SB_ENDSCROLL
    };
    ADM_Wnd* pChild = FindControl(hScrollBar);
    if (pChild == nullptr || uCode >= std::size(kNotifications)) return;
    const int nCode = kNotifications[uCode];
    if (nCode == 0) return;
    pChild->Notify(pChild, pChild->GetControlId(), nCode, nCode == ADMN_GAUGETHUMB ? nPosition : 0);
}

void ADM_Dialog::OnFocusMessage(ADM_Wnd* pControl) {
    SetFocus();
    // A control that went away since the message was posted is no child any more.
    if (IsChild(pControl)) pControl->SetFocus();
}

LRESULT ADM_Dialog::OnChar(HWND hWnd, int nChar) {
    ADM_Wnd* pChild = FindControl(hWnd);
    return pChild != nullptr ? pChild->OnChar(hWnd, nChar) : 1;
}

LRESULT ADM_Dialog::OnGetDlgCode(HWND hWnd) {
    ADM_Wnd* pChild = FindControl(hWnd);
    return pChild != nullptr ? pChild->OnGetDlgCode(hWnd) : 0;
}

void ADM_Dialog::OnDrawItem(HWND hWnd, DRAWITEMSTRUCT* pItem) {
    if (ADM_Wnd* pChild = FindControl(pItem->hwndItem)) pChild->OnDrawItem(hWnd, pItem);
}

void ADM_Dialog::OnDeleteItem(HWND hWnd, DELETEITEMSTRUCT* pItem) {
    if (ADM_Wnd* pChild = FindControl(pItem->hwndItem)) pChild->OnDeleteItem(hWnd, pItem);
}

LRESULT ADM_Dialog::OnCompareItem(HWND hWnd, COMPAREITEMSTRUCT* pItem) {
    ADM_Wnd* pChild = FindControl(pItem->hwndItem);
    return pChild != nullptr ? pChild->OnCompareItem(hWnd, pItem) : 0;
}

void ADM_Dialog::OnMeasureItem(HWND, MEASUREITEMSTRUCT*) {}

HBRUSH ADM_Dialog::OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType) {
    ADM_Wnd* pChild = FindControl(hWndCtl);
    return pChild != nullptr ? pChild->OnCtlColor(hWnd, hDC, hWndCtl, nType) : nullptr;
}
