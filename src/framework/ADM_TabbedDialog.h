// A dialog with a tab control whose pages are ADM_TabSubDialog objects. All pages exist while the
// dialog is open; one of them is shown. A page whose values fail can't be left, and OK checks every
// page before any page applies its values.
//
// Pages are members of the subclass, added in its constructor; they are not owned.
#pragma once

#include <vector>

#include "framework/ADM_Dialog.h"
#include "framework/ADM_TabControl.h"
#include "framework/ADM_TabSubDialog.h"

class ADM_TabbedDialog : public ADM_Dialog {
  public:
    static constexpr int kNoTabControl = -3;

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    // Goes to the current page.
    void UpdateControls() override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void OnDestroy(HWND hWnd) override;
    void OnOK() override;
    // Goes to the current page.
    void OnHelpButton() override;
    // Ends the dialog without reading its controls once more.
    void EndDialogWith(INT_PTR nResult) override;
    // The pages, in order, then the dialog's own children.
    void ReadControls() override;

    // The hook for checks across pages. One that fails has shown its message, and stores the page
    // to bring up and the control to focus, or null for none.
    virtual BOOL ValidatePages(int* pnPage, ADM_Wnd** ppFailed);
    virtual void SelectPage(int nIndex);
    // Shows the page, unless the current one refuses to be left or ValidatePages fails.
    virtual void OnPageSelected(int nIndex);
    virtual void OnPageLeft(int nIndex);
    // Reads and validates everything, then applies what is modified. Returns 0, with the page that
    // failed brought up, when anything fails.
    virtual BOOL ValidateAll();

    void SetTabControlId(int nId) { m_nTabControlId = nId; }
    // Adds a page at the end. With bRefresh an open dialog shows it on its tabs at once. Returns 0
    // for a null page and one that is there already.
    BOOL AddPage(ADM_TabSubDialog* pPage, BOOL bRefresh = FALSE);
    // Returns 0 beyond the end as well.
    BOOL InsertPage(int nIndex, ADM_TabSubDialog* pPage);
    // Returns whether the page was there. Its window is destroyed.
    BOOL RemovePage(ADM_TabSubDialog* pPage);
    // Chooses the page behind the current one, or the one before it, as a click on its tab does;
    // from the last on to the first. Returns whether there are two.
    bool ChoosePageBeside(bool bForward);
    ADM_TabSubDialog* GetPage(int nIndex) const;
    int GetPageCount() const { return static_cast<int>(m_vPages.size()); }
    ADM_TabSubDialog* GetCurrentPage() const { return m_pCurrentPage; }
    int GetCurrentPageIndex() const { return m_nCurrentPage; }
    ADM_TabControl& GetTabControl() { return m_tabControl; }

  protected:
    // Shows a page whatever the current one says.
    void BringUpPage(int nIndex);
    // The same, with the focus on a control of it if not null. Answers 0.
    BOOL FailOnPage(int nIndex, ADM_Wnd* pFailed);

    ADM_TabControl m_tabControl;
    int m_nTabControlId = kNoTabControl;
    std::vector<ADM_TabSubDialog*> m_vPages;  // in the order of the tabs
    ADM_TabSubDialog* m_pCurrentPage = nullptr;
    int m_nCurrentPage = 0;
    BOOL m_bCreateAllPages = TRUE;

  private:
    bool HasPage(const ADM_TabSubDialog* pPage) const;
    void RebuildTabs();
    void CreatePageWindow(ADM_TabSubDialog* pPage);
    void CreateAllPages();
    void RefreshTabs();
    void HideCurrentPage();
    void MakeCurrent(int nIndex);
};
