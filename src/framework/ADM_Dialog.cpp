#include "framework/ADM_Dialog.h"

#include <algorithm>

#include "framework/ADM_Window_Position.h"
#include "framework/AppCommand.h"
#include "framework/MessageFilter.h"
#include "framework/PrivateMessages.h"
#include "framework/UpdateScope.h"
#include "text/BoundedText.h"

namespace {

constexpr UINT_PTR kAutoApplyTimer = 1;
constexpr UINT kAutoApplyPeriod = 500;  // ms

BOOL CALLBACK CollectWindow(HWND hWnd, LPARAM lParam) {
    reinterpret_cast<std::vector<HWND>*>(lParam)->push_back(hWnd);
    return TRUE;
}

}  // namespace

ADM_Dialog::ADM_Dialog() = default;

ADM_Dialog::~ADM_Dialog() {
    // The children that are members of a subclass have left by now.
    for (ADM_Wnd* pChild : m_vControls) {
        pChild->m_pOwner = nullptr;
        if (pChild->GetNotifyTarget() == this) pChild->SetNotifyTarget(nullptr);
    }
    m_vControls.clear();
    if (m_hWnd == nullptr) return;
    // The dialog dies with its window open: the window must not reach it again.
    LetGo(m_hWnd);
    RemoveFilter();
    const HWND hWnd = m_hWnd;
    m_hWnd = nullptr;
    DestroyWindow(hWnd);
}

BOOL ADM_Dialog::IsDialogObject() {
    return 1;
}

// --- Opening and closing

void ADM_Dialog::SetTemplate(LPCSTR szTemplate) {
    if (IsResourceId(szTemplate)) {
        m_pszTemplate = szTemplate;
        return;
    }
    CopyText(m_szTemplate, szTemplate);
    m_pszTemplate = m_szTemplate;
}

INT_PTR ADM_Dialog::DoModal(HINSTANCE hInstance, LPCSTR szTemplate, HWND hParent) {
    m_hInstance = hInstance;
    SetTemplate(szTemplate);
    m_hParentWnd = hParent;
    return DoModal();
}

INT_PTR ADM_Dialog::DoModal() {
    if (m_hInstance == nullptr || m_pszTemplate == nullptr) return 0;
    const INT_PTR nResult = DialogBoxParamA(m_hInstance, m_pszTemplate, m_hParentWnd, WindowProc,
                                            reinterpret_cast<LPARAM>(this));
    return nResult < 0 ? 0 : nResult;  // -1: there is no such template
}

BOOL ADM_Dialog::CreateModeless(HINSTANCE hInstance, LPCSTR szTemplate, HWND hParent) {
    m_hInstance = hInstance;
    SetTemplate(szTemplate);
    m_hParentWnd = hParent;
    return CreateModeless();
}

BOOL ADM_Dialog::CreateModeless() {
    if (m_hInstance == nullptr || m_pszTemplate == nullptr) return 0;
    return CreateDialogParamA(m_hInstance, m_pszTemplate, m_hParentWnd, WindowProc,
                              reinterpret_cast<LPARAM>(this)) != nullptr;
}

BOOL ADM_Dialog::OnInitDialog(HWND, HWND, LPARAM) {
    if (m_bUseOK) RegisterControl(IDOK, &m_btnOK);
    if (m_bUseCancel) RegisterControl(IDCANCEL, &m_btnCancel);
    if (m_nHelpButtonId != kHelpButtonNone) RegisterControl(m_nHelpButtonId, &m_btnHelp);
    InstallFilter();
    BindControls();
    EnableHelpButton();
    if (m_bAutoApply) StartTimer();
    if (m_bCenter && (m_pPosition == nullptr || !m_pPosition->Restore(m_hWnd))) Center();
    PostMessageA(m_hWnd, ADMM_SAVE_INITIAL, 0, 0);
    m_bUpdatePending = TRUE;
    RequestUpdate();
    return 1;
}

void ADM_Dialog::OnDestroy(HWND hWnd) {
    if (m_bTimerOn) KillTimer(hWnd, kAutoApplyTimer);
    m_bTimerOn = FALSE;
    ClearPendingApply();
    if (m_pPosition != nullptr) m_pPosition->Save(hWnd);
    for (std::size_t i = 0; i < m_vControls.size(); ++i) {
        ADM_Wnd* pChild = m_vControls[i];
        // A child with no window of its own knows by the missing dialog that it is unbound.
        pChild->SetDialogWnd(nullptr);
        pChild->Attach(nullptr);
    }
    RemoveFilter();
    m_hWnd = nullptr;
}

void ADM_Dialog::OnClose(HWND) {}

void ADM_Dialog::OnOK() {
    ReadControls();
    ADM_Wnd* pFailed = nullptr;
    if (!Validate(0, &pFailed)) {
        if (pFailed != nullptr) pFailed->SetFocus();
        return;
    }
    if (IsModified()) OnApply();
    EndDialogWith(IDOK);
}

void ADM_Dialog::OnCancel() {
    EndDialogWith(IDCANCEL);
}

void ADM_Dialog::EndDialogWith(INT_PTR nResult) {
    ReadControls();
    EndWindow(nResult);
}

void ADM_Dialog::EndWindow(INT_PTR nResult) const {
    if (m_hWnd != nullptr) EndDialog(m_hWnd, nResult);
}

void ADM_Dialog::Center() const {
    RECT rcDialog;
    ::GetWindowRect(m_hWnd, &rcDialog);
    const HWND hOwner = ::GetParent(m_hWnd);
    const bool bOverOwner = hOwner != nullptr && IsWindowVisible(hOwner) && !IsIconic(hOwner);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(MonitorFromWindow(bOverOwner ? hOwner : m_hWnd, MONITOR_DEFAULTTONEAREST),
                    &monitor);
    const RECT& rcWork = monitor.rcWork;
    RECT rcIn = rcWork;
    if (bOverOwner) ::GetWindowRect(hOwner, &rcIn);
    const int nWidth = rcDialog.right - rcDialog.left;
    const int nHeight = rcDialog.bottom - rcDialog.top;
    const int nX = rcIn.left + (rcIn.right - rcIn.left - nWidth) / 2;
    const int nY = rcIn.top + (rcIn.bottom - rcIn.top - nHeight) / 2;
    // An owner at the edge of the screen must not push the dialog off it; the title bar wins.
    SetWindowPos(m_hWnd, nullptr,
                 std::max<int>(rcWork.left, std::min<int>(nX, rcWork.right - nWidth)),
                 std::max<int>(rcWork.top, std::min<int>(nY, rcWork.bottom - nHeight)), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ADM_Dialog::EnableOwnerChain(BOOL bEnable) {
    for (HWND hWnd = m_hParentWnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        if (bEnable ? hWnd == m_hStopWnd : !IsWindowEnabled(hWnd)) {
            if (!bEnable) m_hStopWnd = hWnd;
            break;
        }
        EnableWindow(hWnd, bEnable);
    }
    if (bEnable) m_hStopWnd = nullptr;
}

// --- Children

bool ADM_Dialog::IsChild(const ADM_Wnd* pControl) const {
    return std::find(m_vControls.begin(), m_vControls.end(), pControl) != m_vControls.end();
}

BOOL ADM_Dialog::RegisterControl(int nId, ADM_Wnd* pControl) {
    if (pControl == nullptr || pControl->m_pOwner != nullptr) return 0;
    if (nId != kNoItem) {
        for (const ADM_Wnd* pChild : m_vControls) {
            if (pChild->GetControlId() == nId) return 0;
        }
    }
    pControl->SetDialogWnd(GetDialogWnd());
    const HWND hItem = nId != kNoItem && m_hWnd != nullptr ? GetDlgItem(m_hWnd, nId) : nullptr;
    if (hItem != nullptr) {
        pControl->Attach(hItem);
    } else {
        pControl->SetControlId(nId);
    }
    if (pControl->GetNotifyTarget() == nullptr) pControl->SetNotifyTarget(this);
    pControl->m_pOwner = this;
    m_vControls.push_back(pControl);
    return 1;
}

BOOL ADM_Dialog::UnregisterControl(ADM_Wnd* pControl) {
    if (!IsChild(pControl)) return 0;
    pControl->SetDialogWnd(nullptr);
    pControl->Attach(nullptr);
    return 1;
}

void ADM_Dialog::ForgetControl(ADM_Wnd* pControl) {
    pControl->m_pOwner = nullptr;
    m_vControls.erase(std::remove(m_vControls.begin(), m_vControls.end(), pControl),
                      m_vControls.end());
    if (m_pAutoApplyCtl == pControl) m_pAutoApplyCtl = nullptr;
}

ADM_Wnd* ADM_Dialog::FindControl(HWND hWnd) const {
    // Every unbound child has the null handle.
    if (hWnd == nullptr) return nullptr;
    for (ADM_Wnd* pChild : m_vControls) {
        if (pChild->IsHandle(hWnd)) return pChild;
    }
    return nullptr;
}

void ADM_Dialog::BindControls() {
    // One walk over the items in the place of a search for each child.
    std::vector<HWND> items;
    EnumChildWindows(m_hWnd, CollectWindow, reinterpret_cast<LPARAM>(&items));
    const auto itemWithId = [&items, this](int nId) {
        const auto it = std::find_if(items.begin(), items.end(), [nId, this](HWND hItem) {
            return GetDlgCtrlID(hItem) == nId && ::GetParent(hItem) == m_hWnd;
        });
        return it != items.end() ? *it : nullptr;
    };
    // By index: a child may register another one when it is attached.
    for (std::size_t i = 0; i < m_vControls.size(); ++i) {
        ADM_Wnd* pChild = m_vControls[i];
        if (pChild->GetHandle() != nullptr) continue;
        const int nId = pChild->GetControlId();
        pChild->SetDialogWnd(GetDialogWnd());
        pChild->Attach(nId == kNoItem ? nullptr : itemWithId(nId));
    }
}

void ADM_Dialog::ReadControls() {
    for (ADM_Wnd* pChild : m_vControls) pChild->ReadControl();
}

BOOL ADM_Dialog::IsModified() {
    if (m_bForceModified) return 1;
    return std::any_of(m_vControls.begin(), m_vControls.end(),
                       [](ADM_Wnd* pChild) { return pChild->IsModified() != 0; });
}

void ADM_Dialog::SetForceModified(BOOL bModified) {
    m_bForceModified = bModified;
    for (ADM_Wnd* pChild : m_vControls) pChild->SetForceModified(bModified);
}

BOOL ADM_Dialog::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    for (ADM_Wnd* pChild : m_vControls) {
        if (!pChild->IsValidatable() || pChild->Validate(bSilent, nullptr)) continue;
        if (ppFailed != nullptr) *ppFailed = pChild;
        if (!bSilent) pChild->SetFocus();
        return 0;
    }
    return 1;
}

// --- Updates

void ADM_Dialog::UpdateControls() {}

void ADM_Dialog::RequestUpdate() {
    if (!m_bUpdatePending || m_hWnd == nullptr) return;
    PostMessageA(m_hWnd, ADMM_UPDATE_CONTROLS, 0, 0);
    m_bUpdatePending = FALSE;
}

void ADM_Dialog::OnUpdateMessage() {
    if (m_bInUpdate) return;
    {
        UpdateScope scope(m_bInUpdate);
        UpdateControls();
    }
    m_bUpdatePending = TRUE;
}

// --- Help and application commands

void ADM_Dialog::SetHelp(int nButtonId, HWND hServer, LPCSTR szTopic, int nId) {
    m_nHelpButtonId = nButtonId;
    m_hHelpServer = hServer;
    m_sHelpTopic = szTopic != nullptr ? szTopic : "";
    m_nHelpId = nId;
}

void ADM_Dialog::EnableHelpButton() {
    if (m_nHelpButtonId == kHelpButtonNone) return;
    m_btnHelp.Enable(m_hHelpServer == nullptr || SendMessageA(m_hHelpServer, AppCommandMessage(),
                                                              kAppCommandHelpAvailable, 0) == 1);
}

void ADM_Dialog::OnHelpButton() {
    if (m_hHelpServer == nullptr || m_sHelpTopic.empty()) return;
    AppHelpRequest request;
    CopyText(request.szTopic, m_sHelpTopic);
    request.nId = m_nHelpId;
    SendMessageA(m_hHelpServer, AppCommandMessage(), kAppCommandShowHelp,
                 reinterpret_cast<LPARAM>(&request));
}

BOOL ADM_Dialog::OnHelp(HELPINFO* pHelpInfo) {
    if (m_nHelpButtonId != kHelpButtonNone) {
        Notify(&m_btnHelp, m_nHelpButtonId, ADMN_CLICKED, 0);
        if (m_hWnd != nullptr) Answer(m_hWnd, 1);
        return 1;
    }
    if (GetDialogWnd() == m_hWnd) return 0;
    SendMessageA(GetDialogWnd(), WM_HELP, 0, reinterpret_cast<LPARAM>(pHelpInfo));
    return 1;
}

void ADM_Dialog::OnAppCommand(WPARAM wParam, LPARAM lParam) {
    PassAppCommand(m_hOwnerOverride != nullptr ? m_hOwnerOverride : ::GetParent(GetDialogWnd()),
                   wParam, lParam);
}

void ADM_Dialog::PassAppCommand(HWND hTarget, WPARAM wParam, LPARAM lParam) {
    if (hTarget == nullptr || hTarget == m_hWnd) return;
    Answer(m_hWnd, SendMessageA(hTarget, AppCommandMessage(), wParam, lParam));
}

// --- Auto-apply

void ADM_Dialog::SetAutoApply(BOOL bEnable, UINT uDelayMs) {
    m_bAutoApply = bEnable;
    m_uAutoApplyDelay = uDelayMs;
    m_dwLastEdit = 0;
    StartTimer();
}

void ADM_Dialog::StartTimer() {
    if (m_bTimerOn || m_hWnd == nullptr) return;
    m_bTimerOn = SetTimer(m_hWnd, kAutoApplyTimer, kAutoApplyPeriod, nullptr) != 0;
}

void ADM_Dialog::ClearPendingApply() {
    m_dwLastEdit = 0;
    m_pAutoApplyCtl = nullptr;
    m_nAutoApplyData = 0;
}

BOOL ADM_Dialog::OnTimer(UINT_PTR nId) {
    if (nId != kAutoApplyTimer) return 0;
    if (m_bAutoApply && m_dwLastEdit != 0 && GetTickCount() - m_dwLastEdit >= m_uAutoApplyDelay) {
        ClearPendingApply();
        // Required: null, not the control that was edited, so that its text isn't selected while
        // the user types.
        OnAutoApply(nullptr, 0);
    }
    return 1;
}

void ADM_Dialog::OnApplyNowMessage(ADM_Wnd* pControl, int nData) {
    if (!m_bAutoApply) return;
    ClearPendingApply();
    OnAutoApply(IsChild(pControl) ? pControl : nullptr, nData);
}

void ADM_Dialog::OnApplyLaterMessage(ADM_Wnd* pControl, int nData) {
    if (!m_bAutoApply) return;
    m_pAutoApplyCtl = pControl;
    m_nAutoApplyData = nData;
    m_dwLastEdit = std::max<DWORD>(GetTickCount(), 1);
}

void ADM_Dialog::OnApply() {}

void ADM_Dialog::OnAutoApply(ADM_Wnd* pCtl, int) {
    if (pCtl != nullptr) pCtl->SelectContents();
    ReadControls();
    ADM_Wnd* pFailed = nullptr;
    if (Validate(0, &pFailed)) {
        OnApply();
    } else if (pFailed != nullptr) {
        pFailed->SetFocus();
    }
}

// --- The message filter

void ADM_Dialog::InstallFilter() {
    if (!m_bUseHook || m_bHookInstalled) return;
    InstallMessageFilter(m_hWnd);
    m_bHookInstalled = TRUE;
}

void ADM_Dialog::RemoveFilter() {
    if (!m_bUseHook || !m_bHookInstalled) return;
    RemoveMessageFilter();
    m_bHookInstalled = FALSE;
}

BOOL ADM_Dialog::PreTranslateMessage(MSG* pMsg) {
    return (pMsg->message == WM_KEYDOWN || pMsg->message == WM_KEYUP) && pMsg->wParam == VK_TAB &&
           GetKeyState(VK_SHIFT) < 0;
}
