#include "FrameworkDialog.h"

#include "bench_ids.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_ComboBox.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_StaticText.h"
#include "framework/ADM_TabbedDialog.h"

namespace {

class Page : public ADM_TabSubDialog {
  public:
    Page(int nTemplate, int nBase, LPCSTR szTitle)
        : ADM_TabSubDialog(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(nTemplate), szTitle) {
        for (int i = 0; i < 8; ++i) {
            RegisterControl(nBase + 50 + i, &m_aLabels[i]);
            RegisterControl(nBase + i, &m_aFields[i]);
            m_aFields[i].SetRange(0.0, 1000.0);
            m_aFields[i].SetValue(2.5);
        }
        for (int i = 0; i < 3; ++i) {
            RegisterControl(nBase + 20 + i, &m_aChecks[i]);
            m_aChecks[i].SetCheck(1);
        }
        RegisterControl(nBase + 30, &m_combo);
    }
    void UpdateControls() override { ++nUpdates; }

    int nUpdates = 0;

  private:
    ADM_Static m_aLabels[8];
    ADM_DoubleText m_aFields[8];
    ADM_Button m_aChecks[3];
    ADM_ComboBox m_combo;
};

class FortyControls : public ADM_TabbedDialog {
  public:
    FortyControls() : one(IDD_BENCH_PAGE_ONE, 100, "One"), two(IDD_BENCH_PAGE_TWO, 200, "Two") {
        m_nTabControlId = IDC_BENCH_TABS;
        // The peer doesn't centre.
        m_bCenter = FALSE;
        AddPage(&one);
        AddPage(&two);
    }
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        ADM_TabbedDialog::OnInitDialog(hWnd, hFocus, lParam);
        ShowWindow(hWnd, SW_SHOW);
        if (bClose) PostMessageA(hWnd, WM_COMMAND, IDCANCEL, 0);
        return 1;
    }

    bool bClose = true;
    Page one, two;
};

void ServeQueue() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
}

}  // namespace

void OpenAndCloseFramework() {
    FortyControls dialog;
    dialog.DoModal(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_BENCH), nullptr);
}

struct OpenFields::State {
    FortyControls dialog;
};

OpenFields::OpenFields() : m_pState(new State) {
    m_pState->dialog.bClose = false;
    m_pState->dialog.CreateModeless(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_BENCH),
                                    nullptr);
    ServeQueue();
}

OpenFields::~OpenFields() {
    m_pState->dialog.Destroy();
    delete m_pState;
}

int OpenFields::Burst(int nRequests) {
    m_pState->dialog.one.nUpdates = 0;
    for (int i = 0; i < nRequests; ++i) m_pState->dialog.RequestUpdate();
    ServeQueue();
    return m_pState->dialog.one.nUpdates;
}
