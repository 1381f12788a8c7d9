#include "framework/ADM_TabbedDialog.h"

#include <algorithm>

#include "framework/PrivateMessages.h"

namespace {

void PostFocus(ADM_TabSubDialog* pPage, ADM_Wnd* pControl) {
    if (pPage->GetHandle() == nullptr) return;
    PostMessageA(pPage->GetHandle(), ADMM_FOCUS_CONTROL, 0, reinterpret_cast<LPARAM>(pControl));
}

}  // namespace

// --- Opening and closing

BOOL ADM_TabbedDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
    if (m_nTabControlId != kNoTabControl) RegisterControl(m_nTabControlId, &m_tabControl);
    if (const HWND hTab = m_tabControl.GetHandle()) {
        // Tab goes into the pages only with this style.
        SetWindowLongPtrA(hTab, GWL_EXSTYLE,
                          GetWindowLongPtrA(hTab, GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
        // The tab control must not paint over the page that it holds.
        SetWindowLongPtrA(hTab, GWL_STYLE, GetWindowLongPtrA(hTab, GWL_STYLE) | WS_CLIPCHILDREN);
    }
    RebuildTabs();
    if (m_bCreateAllPages) CreateAllPages();
    OnPageSelected(0);
    return 1;
}

void ADM_TabbedDialog::OnDestroy(HWND hWnd) {
    for (ADM_TabSubDialog* pPage : m_vPages) {
        if (pPage->GetHandle() != nullptr && IsWindow(pPage->GetHandle())) pPage->Destroy();
    }
    m_pCurrentPage = nullptr;
    m_nCurrentPage = 0;
    ADM_Dialog::OnDestroy(hWnd);
}

void ADM_TabbedDialog::OnOK() {
    if (ValidateAll()) EndDialogWith(IDOK);
}

void ADM_TabbedDialog::EndDialogWith(INT_PTR nResult) {
    EndWindow(nResult);
}

// --- Pages

bool ADM_TabbedDialog::HasPage(const ADM_TabSubDialog* pPage) const {
    return std::find(m_vPages.begin(), m_vPages.end(), pPage) != m_vPages.end();
}

ADM_TabSubDialog* ADM_TabbedDialog::GetPage(int nIndex) const {
    return nIndex >= 0 && nIndex < GetPageCount() ? m_vPages[static_cast<std::size_t>(nIndex)]
                                                  : nullptr;
}

BOOL ADM_TabbedDialog::AddPage(ADM_TabSubDialog* pPage, BOOL bRefresh) {
    if (pPage == nullptr || HasPage(pPage)) return 0;
    m_vPages.push_back(pPage);
    if (!bRefresh || m_hWnd == nullptr) return 1;
    RefreshTabs();
    if (m_pCurrentPage != nullptr) {
        m_pCurrentPage->OnPageShow();
    } else {
        SelectPage(0);
    }
    return 1;
}

BOOL ADM_TabbedDialog::InsertPage(int nIndex, ADM_TabSubDialog* pPage) {
    if (pPage == nullptr || HasPage(pPage) || nIndex < 0 || nIndex > GetPageCount()) return 0;
    m_vPages.insert(m_vPages.begin() + nIndex, pPage);
    if (m_hWnd != nullptr) RefreshTabs();
    return 1;
}

BOOL ADM_TabbedDialog::RemovePage(ADM_TabSubDialog* pPage) {
    const auto it = std::find(m_vPages.begin(), m_vPages.end(), pPage);
    if (it == m_vPages.end()) return 0;
    m_vPages.erase(it);
    if (m_pCurrentPage == pPage) m_pCurrentPage = nullptr;
    pPage->Destroy();
    if (m_hWnd != nullptr) RefreshTabs();
    return 1;
}

void ADM_TabbedDialog::RebuildTabs() {
    while (m_tabControl.GetItemCount() > 0) m_tabControl.DeleteItem(0);
    for (int i = 0; i < GetPageCount(); ++i) {
        char szTitle[64];
        GetPage(i)->GetTitle(szTitle, sizeof szTitle);
        m_tabControl.InsertItem(i, szTitle);
    }
    m_tabControl.Invalidate(TRUE);
}

// The tabs follow the pages of an open dialog; the current page stays current.
void ADM_TabbedDialog::RefreshTabs() {
    RebuildTabs();
    CreateAllPages();
    const auto it = std::find(m_vPages.begin(), m_vPages.end(), m_pCurrentPage);
    if (it == m_vPages.end()) return;
    m_nCurrentPage = static_cast<int>(it - m_vPages.begin());
    m_tabControl.SetCurSel(m_nCurrentPage);
}

void ADM_TabbedDialog::CreatePageWindow(ADM_TabSubDialog* pPage) {
    pPage->CreatePage(m_hWnd, m_tabControl.GetHandle());
    const RECT rc = m_tabControl.GetDisplayArea();
    pPage->MoveWindow(rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
}

void ADM_TabbedDialog::CreateAllPages() {
    for (ADM_TabSubDialog* pPage : m_vPages) {
        CreatePageWindow(pPage);
        if (pPage != m_pCurrentPage) pPage->Show(SW_HIDE);
    }
}

void ADM_TabbedDialog::SelectPage(int nIndex) {
    m_tabControl.SetCurSel(nIndex);
    OnPageSelected(nIndex);
}

bool ADM_TabbedDialog::ChoosePageBeside(bool bForward) {
    const int nCount = GetPageCount();
    if (nCount < 2) return false;
    m_tabControl.Choose((m_nCurrentPage + (bForward ? 1 : nCount - 1)) % nCount);
    return true;
}

void ADM_TabbedDialog::HideCurrentPage() {
    if (m_pCurrentPage != nullptr) m_pCurrentPage->Show(SW_HIDE);
}

void ADM_TabbedDialog::MakeCurrent(int nIndex) {
    ADM_TabSubDialog* pPage = GetPage(nIndex);
    CreatePageWindow(pPage);
    pPage->OnPageShow();
    m_pCurrentPage = pPage;
    m_nCurrentPage = nIndex;
}

// Shows a page whatever the current one says: its values failed. A page that is shown already stays
// as the user left it.
void ADM_TabbedDialog::BringUpPage(int nIndex) {
    if (GetPage(nIndex) == m_pCurrentPage) {
        m_tabControl.SetCurSel(nIndex);
        return;
    }
    HideCurrentPage();
    m_tabControl.SetCurSel(nIndex);
    MakeCurrent(nIndex);
}

void ADM_TabbedDialog::OnPageSelected(int nIndex) {
    if (m_vPages.empty()) {
        m_pCurrentPage = nullptr;
        return;
    }
    ADM_TabSubDialog* pPage = GetPage(nIndex);
    if (pPage == nullptr) return;
    if (pPage == m_pCurrentPage) {
        pPage->OnPageShow();
        return;
    }
    if (m_pCurrentPage != nullptr && !m_pCurrentPage->CanLeavePage()) {
        // The tab has moved already.
        m_tabControl.SetCurSel(m_nCurrentPage);
        ADM_Wnd* pFailed = nullptr;
        m_pCurrentPage->Validate(0, &pFailed);
        if (pFailed != nullptr) PostFocus(m_pCurrentPage, pFailed);
        return;
    }
    int nFailedPage = m_nCurrentPage;
    ADM_Wnd* pFailed = nullptr;
    if (!ValidatePages(&nFailedPage, &pFailed)) {
        if (GetPage(nFailedPage) == nullptr) return;
        BringUpPage(nFailedPage);
        PostFocus(m_pCurrentPage, pFailed);
        return;
    }
    HideCurrentPage();
    MakeCurrent(nIndex);
}

void ADM_TabbedDialog::OnPageLeft(int) {}

// --- Validation

void ADM_TabbedDialog::ReadControls() {
    for (ADM_TabSubDialog* pPage : m_vPages) pPage->ReadControls();
    ADM_Dialog::ReadControls();
}

BOOL ADM_TabbedDialog::ValidatePages(int*, ADM_Wnd**) {
    return 1;
}

BOOL ADM_TabbedDialog::ValidateAll() {
    ReadControls();
    if (!Validate(0, nullptr)) return 0;
    for (int i = 0; i < GetPageCount(); ++i) {
        ADM_TabSubDialog* pPage = GetPage(i);
        if (pPage->GetHandle() == nullptr) continue;
        pPage->ReadControls();
        ADM_Wnd* pFailed = nullptr;
        if (!pPage->Validate(0, &pFailed)) return FailOnPage(i, pFailed);
    }
    if (!m_vPages.empty()) {
        int nPage = m_nCurrentPage;
        ADM_Wnd* pFailed = nullptr;
        if (!ValidatePages(&nPage, &pFailed)) return FailOnPage(nPage, pFailed);
    }
    // Nothing has been applied before this: a failure leaves every record as it was.
    for (ADM_TabSubDialog* pPage : m_vPages) {
        if (pPage->GetHandle() != nullptr && pPage->IsModified()) pPage->OnApply();
    }
    if (IsModified()) OnApply();
    return 1;
}

BOOL ADM_TabbedDialog::FailOnPage(int nIndex, ADM_Wnd* pFailed) {
    if (GetPage(nIndex) == nullptr) return 0;
    BringUpPage(nIndex);
    if (pFailed != nullptr) PostFocus(m_pCurrentPage, pFailed);
    return 0;
}

// --- What the current page decides

void ADM_TabbedDialog::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Dialog::Notify(pSender, nId, nCode, nData);
    if (nCode == ADMN_TABSELCHANGE) OnPageSelected(m_tabControl.GetCurSel());
    if (nCode == ADMN_TABLEFT) OnPageLeft(m_tabControl.GetCurSel());
}

void ADM_TabbedDialog::UpdateControls() {
    if (m_pCurrentPage != nullptr) m_pCurrentPage->RunUpdate();
}

void ADM_TabbedDialog::OnHelpButton() {
    if (m_pCurrentPage != nullptr) m_pCurrentPage->OnHelpButton();
}
