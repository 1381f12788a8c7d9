// Dialogs and controls of the tests: they tell a log what happens to them, and a test sets what
// they answer.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "fixtures/Notifications.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_TabbedDialog.h"
#include "framework_test.h"
#include "platform/platform.h"

namespace framework_test {

using test_support::EventLog;

inline HINSTANCE Module() {
    return GetModuleHandleA(nullptr);
}

inline LPCSTR Template(int nId) {
    return MAKEINTRESOURCEA(nId);
}

// A control that logs what the dialog asks of it.
class ProbeControl : public ADM_Wnd {
  public:
    ProbeControl(EventLog& log, std::string sName) : m_log(log), m_sName(std::move(sName)) {}

    void Attach(HWND hWnd) override {
        Log(hWnd != nullptr ? "attach" : "detach");
        ADM_Wnd::Attach(hWnd);
    }
    void OnAttach() override { Log("onattach"); }
    void ReadControl() override { Log("read"); }
    void SaveInitialValue() override { Log("save"); }
    BOOL HasChanged() override { return bChanged; }
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override {
        Log(bSilent ? "validate-silent" : "validate");
        bFailedAsked = ppFailed != nullptr;
        return bValid;
    }
    void OnCommand(HWND, int nId, HWND, int nCode) override {
        if (bLogMessages) Log("command(" + std::to_string(nCode) + ")");
        ADM_Wnd::Notify(this, nId, 6000 + nCode, 0);
    }
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        Log("notify(" + std::to_string(nCode) + "," + std::to_string(nData) + ")");
        ADM_Wnd::Notify(pSender, nId, nCode, nData);
    }
    LRESULT OnChar(HWND, int nChar) override { return nChar == 'x' ? 0 : 7; }
    LRESULT OnGetDlgCode(HWND) override { return DLGC_WANTARROWS; }
    void OnDrawItem(HWND, DRAWITEMSTRUCT*) override { Log("draw"); }
    void OnDeleteItem(HWND, DELETEITEMSTRUCT*) override { Log("delete"); }
    LRESULT OnCompareItem(HWND, COMPAREITEMSTRUCT*) override { return -1; }
    HBRUSH OnCtlColor(HWND, HDC, HWND, int nType) override {
        if (bLogMessages) Log("color(" + std::to_string(nType) + ")");
        return hBrush;
    }
    void SelectContents() override { Log("select"); }

    BOOL bValid = TRUE;
    BOOL bChanged = FALSE;
    bool bFailedAsked = false;
    bool bLogMessages = false;  // commands and colours too, which come with focus and painting
    HBRUSH hBrush = nullptr;

  private:
    void Log(const std::string& sWhat) { m_log.Add(m_sName + "." + sWhat); }

    EventLog& m_log;
    std::string m_sName;
};

// A dialog or page that logs its own steps under a name ("" for the only one) and opens its fields
// to the test.
template <class Base>
class Logged : public Base {
  public:
    template <class... Args>
    explicit Logged(EventLog& log, std::string sName = "", Args... args)
        : Base(args...), m_log(log), m_sName(std::move(sName)) {}

    void UpdateControls() override {
        ++nUpdates;
        if (bLogUpdates) Log("update");
        if (onUpdate) onUpdate();
        Base::UpdateControls();
    }
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        const BOOL bResult = Base::OnInitDialog(hWnd, hFocus, lParam);
        if (onInit) onInit();
        Log("init");
        return bResult;
    }
    void OnOK() override {
        Log("ok");
        Base::OnOK();
    }
    void OnCancel() override {
        Log("cancel");
        Base::OnCancel();
    }
    void OnClose(HWND hWnd) override {
        Log("close");
        Base::OnClose(hWnd);
    }
    void OnApply() override {
        Log("apply");
        Base::OnApply();
    }
    void EndDialogWith(INT_PTR nResult) override {
        Log("end(" + std::to_string(nResult) + ")");
        Base::EndDialogWith(nResult);
    }
    void ReadControls() override {
        Log("readall");
        Base::ReadControls();
    }
    void OnHelpButton() override {
        Log("helpbutton");
        Base::OnHelpButton();
    }
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        if (onNotify) onNotify(pSender, nId, nCode, nData);
        Base::Notify(pSender, nId, nCode, nData);
    }
    void OnAutoApply(ADM_Wnd* pCtl, int nData) override {
        ++nAutoApplies;
        pLastAutoApply = pCtl;
        nLastAutoApplyData = nData;
        Base::OnAutoApply(pCtl, nData);
    }

    void Log(const std::string& sWhat) {
        m_log.Add(m_sName.empty() ? sWhat : m_sName + "." + sWhat);
    }

    std::function<void()> onUpdate;
    std::function<void()> onInit;
    std::function<void(ADM_Wnd*, int, int, int)> onNotify;
    bool bLogUpdates = false;
    int nUpdates = 0;
    int nAutoApplies = 0;
    ADM_Wnd* pLastAutoApply = nullptr;
    int nLastAutoApplyData = 0;

    using Base::m_bAutoApply;
    using Base::m_bCenter;
    using Base::m_bForceModified;
    using Base::m_bHookInstalled;
    using Base::m_bInUpdate;
    using Base::m_bTimerOn;
    using Base::m_btnCancel;
    using Base::m_btnHelp;
    using Base::m_btnOK;
    using Base::m_bUpdatePending;
    using Base::m_bUseCancel;
    using Base::m_bUseHook;
    using Base::m_bUseOK;
    using Base::m_dwLastEdit;
    using Base::m_hHelpServer;
    using Base::m_hInstance;
    using Base::m_hOwnerOverride;
    using Base::m_hParentWnd;
    using Base::m_hStopWnd;
    using Base::m_nAutoApplyData;
    using Base::m_nHelpButtonId;
    using Base::m_nHelpId;
    using Base::m_pAutoApplyCtl;
    using Base::m_pPosition;
    using Base::m_pszTemplate;
    using Base::m_sHelpTopic;
    using Base::m_szTemplate;
    using Base::m_uAutoApplyDelay;
    using Base::m_vControls;

  protected:
    EventLog& m_log;
    std::string m_sName;
};

using LoggedDialog = Logged<ADM_Dialog>;

class LoggedPage : public Logged<ADM_TabSubDialog> {
  public:
    LoggedPage(EventLog& log, std::string sName, int nTemplate, LPCSTR szTitle)
        : Logged(log, std::move(sName), Module(), Template(nTemplate), szTitle) {}

    BOOL OnPageShow() override {
        Log("show");
        return Logged::OnPageShow();
    }
    BOOL CanLeavePage() override {
        Log("canleave");
        return Logged::CanLeavePage();
    }
    using ADM_TabSubDialog::m_szTabTitle;
};

class TestTabbed : public Logged<ADM_TabbedDialog> {
  public:
    explicit TestTabbed(EventLog& log) : Logged(log, "") { SetTabControlId(IDC_TABS); }

    BOOL ValidatePages(int* pnPage, ADM_Wnd** ppFailed) override {
        Log("pages");
        if (pCrossFailed == nullptr) return 1;
        *pnPage = nCrossPage;
        *ppFailed = pCrossFailed;
        return 0;
    }
    void OnPageSelected(int nIndex) override {
        Log("selected(" + std::to_string(nIndex) + ")");
        Logged::OnPageSelected(nIndex);
    }
    void OnPageLeft(int nIndex) override {
        Log("left(" + std::to_string(nIndex) + ")");
        Logged::OnPageLeft(nIndex);
    }

    int nCrossPage = 0;
    ADM_Wnd* pCrossFailed = nullptr;
    using ADM_TabbedDialog::m_bCreateAllPages;
    using ADM_TabbedDialog::m_tabControl;
};

// Destroys a modeless dialog at the end of a test.
class OpenDialog {
  public:
    OpenDialog(ADM_Dialog& dialog, int nTemplate, HWND hOwner = nullptr) : m_dialog(dialog) {
        m_bCreated = dialog.CreateModeless(Module(), Template(nTemplate), hOwner);
    }
    ~OpenDialog() { m_dialog.Destroy(); }
    OpenDialog(const OpenDialog&) = delete;
    OpenDialog& operator=(const OpenDialog&) = delete;

    BOOL IsCreated() const { return m_bCreated; }
    HWND Handle() const { return m_dialog.GetHandle(); }
    HWND Item(int nId) const { return GetDlgItem(m_dialog.GetHandle(), nId); }
    LRESULT Send(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const {
        return SendMessageA(m_dialog.GetHandle(), uMsg, wParam, lParam);
    }
    // A WM_COMMAND as a control sends it.
    void Command(int nId, int nCode) const {
        Send(WM_COMMAND, MAKEWPARAM(nId, static_cast<WORD>(nCode)),
             reinterpret_cast<LPARAM>(Item(nId)));
    }

  private:
    ADM_Dialog& m_dialog;
    BOOL m_bCreated = FALSE;
};

}  // namespace framework_test
