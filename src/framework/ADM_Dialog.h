// The base of every dialog: a window object built on the caller's stack with its controls as
// members.
//
//   class Rates : public ADM_Dialog {
//     public:
//       Rates() { RegisterControl(IDC_RATE, &m_rate); m_rate.SetRange(1.0, 1e5); }
//       void UpdateControls() override { m_start.Enable(m_rate.GetValue() > 10.0); }
//       ...
//   };
//   Rates dialog;
//   if (dialog.DoModal(hInstance, MAKEINTRESOURCEA(IDD_RATES), hOwner) == IDOK) ...
//   dialog.m_rate.GetValue();
//
// Life: constructed (ids only), open (children bound to the template's items), closed (values
// held); any number of times. Validation happens at OK, on leaving a tab page and in the auto-apply
// mode, never when the focus moves. Every rule that enables, shows or relabels a control stands in
// UpdateControls, which runs once per pass through the message queue, after the events that called
// for it.
//
// Nothing registered is owned. A child may be destroyed before the dialog; the dialog forgets it
// then. All calls come from the user-interface thread. The virtual operations stand in a fixed
// order: add new ones behind the last.
#pragma once

#include <string>
#include <vector>

#include "framework/ADM_Button.h"
#include "framework/ADM_Wnd.h"

class ADM_Window_Position;

namespace CommonCtls {
class ModalRun;
}

class ADM_Dialog : public ADM_Wnd {
  public:
    ADM_Dialog();
    ~ADM_Dialog() override;

    // 1 if forced or any child is modified.
    BOOL IsModified() override;
    // Stores the flag and passes it on to every child.
    void SetForceModified(BOOL bModified) override;
    // Stops at the first enabled child that fails, in the order of registration, stores it through
    // ppFailed and, unless silent, gives it the focus.
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    LRESULT OnNotify(HWND hWnd, int nId, NMHDR* pHeader) override;
    // A subclass reacts to its controls here and calls the base.
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    // These pass on to the child that the window belongs to.
    LRESULT OnChar(HWND hWnd, int nChar) override;
    LRESULT OnGetDlgCode(HWND hWnd) override;
    void OnDrawItem(HWND hWnd, DRAWITEMSTRUCT* pItem) override;
    void OnDeleteItem(HWND hWnd, DELETEITEMSTRUCT* pItem) override;
    LRESULT OnCompareItem(HWND hWnd, COMPAREITEMSTRUCT* pItem) override;
    HBRUSH OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType) override;

    virtual BOOL IsDialogObject();
    // Runs the dialog until it ends and returns the code given to EndDialogWith; -1 when the system
    // can't create it, or when an operation of it throws. Returns 0, and opens nothing, without an
    // instance or a template.
    virtual INT_PTR DoModal();
    // Creates the dialog without a loop; returns nonzero on success.
    virtual BOOL CreateModeless();
    virtual INT_PTR DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    // Every rule that enables, disables, shows, hides or relabels a control.
    virtual void UpdateControls();
    // Sets the dialog up. A subclass calls the base first. Returns 1, for the system to set the
    // focus.
    virtual BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam);
    virtual void OnDestroy(HWND hWnd);
    virtual void OnClose(HWND hWnd);
    // Whether a message for the dialog's own window is kept from its modal loop.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual void OnMeasureItem(HWND hWnd, MEASUREITEMSTRUCT* pItem);
    // Reads, validates, applies if modified, and ends with 1; a failed validation leaves it open.
    virtual void OnOK();
    virtual void OnCancel();
    virtual void OnHelpButton();
    virtual void EndDialogWith(INT_PTR nResult);
    // A dialog commits its edited values here.
    virtual void OnApply();
    // Commits the edited values while the dialog stays open. pCtl may be null.
    virtual void OnAutoApply(ADM_Wnd* pCtl, int nData);
    // Passes an application command up; its result becomes this dialog's.
    virtual void OnAppCommand(WPARAM wParam, LPARAM lParam);
    virtual void ReadControls();
    // Returns nonzero when the request was served here or passed on.
    virtual BOOL OnHelp(HELPINFO* pHelpInfo);
    virtual BOOL OnTimer(UINT_PTR nId);

    // Store what to open, then call the virtual operation of that name.
    INT_PTR DoModal(HINSTANCE hInstance, LPCSTR szTemplate, HWND hParent);
    BOOL CreateModeless(HINSTANCE hInstance, LPCSTR szTemplate, HWND hParent);

    // Makes pControl a child under a template id (kNoItem: none), the one way in. Returns 0 when it
    // is a child already, here or of another dialog, or another child has that id.
    BOOL RegisterControl(int nId, ADM_Wnd* pControl);
    // Detaches a child, which stays registered. Returns whether it was one.
    BOOL UnregisterControl(ADM_Wnd* pControl);
    // Takes a child that is being destroyed off the list.
    void ForgetControl(ADM_Wnd* pControl);
    ADM_Wnd* FindControl(HWND hWnd) const;
    // The registered children in their order, bound or not.
    const std::vector<ADM_Wnd*>& GetControls() const { return m_vControls; }

    // pPosition is not owned and may be null.
    void SetWindowPositionMemory(ADM_Window_Position* pPosition) { m_pPosition = pPosition; }
    void SetCenter(BOOL bCenter) { m_bCenter = bCenter; }
    // nButtonId of -1 means no help button; hServer answers the help commands.
    void SetHelp(int nButtonId, HWND hServer, LPCSTR szTopic, int nId);
    // Edits apply while the dialog stays open: texts after uDelayMs without a further change,
    // buttons and lists at once.
    void SetAutoApply(BOOL bEnable, UINT uDelayMs);
    // The window that application commands go to instead of the parent; null is the parent.
    void SetOwnerOverride(HWND hWnd) { m_hOwnerOverride = hWnd; }

    // Asks for one UpdateControls, after the current events.
    void RequestUpdate();
    // Runs UpdateControls at once, unless it is running.
    void RunUpdate();
    // Enables or disables the parent and those above it. Disabling stops at the first one that is
    // disabled already, and enabling stops there again.
    void EnableOwnerChain(BOOL bEnable);

    // The object of a dialog window, or null.
    static ADM_Dialog* FromWindow(HWND hWnd);

  protected:
    static constexpr int kHelpButtonNone = -1;

    // Text that is an id in the place of a pointer.
    static bool IsResourceId(LPCSTR sz) { return (reinterpret_cast<ULONG_PTR>(sz) >> 16) == 0; }
    void SetTemplate(LPCSTR szTemplate);
    // Ends the window's modal loop and nothing else.
    void EndWindow(INT_PTR nResult) const;
    // Sends an application command on, unless there is no target or it is this window, and answers
    // with its result.
    void PassAppCommand(HWND hTarget, WPARAM wParam, LPARAM lParam);
    // Stores the answer to a message whose answer is not the procedure's own result.
    static INT_PTR Answer(HWND hWnd, LRESULT nResult);

    std::vector<ADM_Wnd*> m_vControls;
    BOOL m_bUseOK = TRUE;
    ADM_Button m_btnOK;
    BOOL m_bUseCancel = TRUE;
    ADM_Button m_btnCancel;
    ADM_Button m_btnHelp;
    HINSTANCE m_hInstance = nullptr;
    HWND m_hParentWnd = nullptr;
    LPCSTR m_pszTemplate = nullptr;
    char m_szTemplate[64] = {};
    BOOL m_bCenter = TRUE;
    BOOL m_bUpdatePending = TRUE;  // a request for UpdateControls may be posted
    HWND m_hHelpServer = nullptr;
    std::string m_sHelpTopic;
    int m_nHelpId = 0;
    int m_nHelpButtonId = kHelpButtonNone;
    BOOL m_bUseHook = TRUE;
    BOOL m_bHookInstalled = FALSE;
    HWND m_hStopWnd = nullptr;
    ADM_Window_Position* m_pPosition = nullptr;
    BOOL m_bInUpdate = FALSE;
    BOOL m_bAutoApply = FALSE;
    DWORD m_dwLastEdit = 0;  // tick of the last text change; 0 is none
    BOOL m_bTimerOn = FALSE;
    ADM_Wnd* m_pAutoApplyCtl = nullptr;
    int m_nAutoApplyData = 0;
    UINT m_uAutoApplyDelay = 500;  // ms
    HWND m_hOwnerOverride = nullptr;

  private:
    // Holds the object of a dialog window, from WM_INITDIALOG to WM_NCDESTROY.
    static constexpr char kDialogProp[] = "ZDCDlgParam";

    static INT_PTR CALLBACK WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);

    // Makes the object that of a new window, and takes it off again.
    void TakeWindow(HWND hWnd);
    static void LetGo(HWND hWnd);
    bool IsChild(const ADM_Wnd* pControl) const;
    void BindControls();
    void EnableHelpButton();
    void StartTimer();
    void Center() const;
    void InstallFilter();
    void RemoveFilter();
    void OnScroll(HWND hScrollBar, UINT uCode, int nPosition);
    void OnUpdateMessage();
    void OnFocusMessage(ADM_Wnd* pControl);
    void OnApplyNowMessage(ADM_Wnd* pControl, int nData);
    void OnApplyLaterMessage(ADM_Wnd* pControl, int nData);
    void ClearPendingApply();

    CommonCtls::ModalRun* m_pRun = nullptr;  // while the dialog runs modally
};
