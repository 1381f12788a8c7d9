// A set of radio buttons as one control.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_RadioButtons.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;

class RadioButtons : public testing::Test {
  protected:
    RadioButtons() : dialog(log) {}
    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
    }
    ~RadioButtons() override { dialog.Destroy(); }
    HWND Item(int nId) { return GetDlgItem(dialog.GetHandle(), nId); }
    std::string Checks() {
        std::string sChecks;
        for (const int nId : {IDC_RADIO_A, IDC_RADIO_B, IDC_RADIO_C}) {
            sChecks += SendMessageA(Item(nId), BM_GETCHECK, 0, 0) == BST_CHECKED ? 'x' : '-';
        }
        return sChecks;
    }

    EventLog log;
    LoggedDialog dialog;
    ADM_RadioButtons radios;
    static constexpr int kValues[] = {10, 20, 30};
};

TEST_F(RadioButtons, SetRegistersItselfWithoutAnItem) {
    EXPECT_EQ(radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C), 1);
    EXPECT_EQ(radios.GetCount(), 3);
    EXPECT_EQ(radios.GetControlId(), -3);
    EXPECT_EQ(radios.GetHandle(), nullptr);
    EXPECT_EQ(dialog.m_vControls.size(), 1u);
    EXPECT_EQ(radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C), 0) << "registered already";
}

TEST_F(RadioButtons, BadSetUpIsRefused) {
    EXPECT_EQ(radios.Setup(nullptr, IDC_RADIO_A, IDC_RADIO_C), 0);
    EXPECT_EQ(radios.Setup(&dialog, IDC_RADIO_C, IDC_RADIO_A), 0);
    EXPECT_TRUE(dialog.m_vControls.empty());
    EXPECT_EQ(radios.GetSelected(), 0);
}

TEST_F(RadioButtons, SelectionWorksWithNoWindow) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C, 3, kValues);
    radios.SetSelected(2);
    EXPECT_EQ(radios.GetSelected(), 2);
    EXPECT_EQ(radios.GetValue(), 30);
    radios.EnableButton(-1, FALSE);
    radios.ShowButton(0, SW_HIDE);
    radios.SetButtonText(1, "text");
    char szText[8] = "x";
    EXPECT_EQ(radios.GetButtonText(1, szText, sizeof szText), 0);
    EXPECT_STREQ(szText, "");
}

TEST_F(RadioButtons, SelectionGoesToTheButtons) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    radios.SetSelected(1);
    Open();
    EXPECT_EQ(Checks(), "-x-");
    radios.SetSelected(2);
    EXPECT_EQ(Checks(), "--x");
    radios.SetSelected(3);
    EXPECT_EQ(Checks(), "--x") << "beyond the set";
    radios.SetSelected(-1);
    EXPECT_EQ(Checks(), "--x");
}

TEST_F(RadioButtons, SetUpInAnOpenDialogFindsTheButtons) {
    Open();
    radios.SetSelected(1);
    EXPECT_EQ(radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C), 1);
    EXPECT_EQ(Checks(), "-x-");
}

TEST_F(RadioButtons, NoButtonCheckedKeepsTheSelection) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    radios.SetSelected(1);
    Open();
    SendMessageA(Item(IDC_RADIO_B), BM_SETCHECK, BST_UNCHECKED, 0);
    EXPECT_EQ(Checks(), "---");
    EXPECT_EQ(radios.GetSelected(), 1);
}

TEST_F(RadioButtons, ValueNotInTheTableChangesNothing) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C, 3, kValues);
    EXPECT_EQ(radios.SetValue(20), 1);
    EXPECT_EQ(radios.GetSelected(), 1);
    EXPECT_EQ(radios.SetValue(25), 0);
    EXPECT_EQ(radios.GetSelected(), 1);
    EXPECT_EQ(radios.GetValue(), 20);
}

TEST_F(RadioButtons, ValuesMayBeListedInTheCall) {
    EXPECT_EQ(radios.SetupValues(&dialog, IDC_RADIO_A, IDC_RADIO_C, 3, 7, -8, 9), 1);
    EXPECT_EQ(radios.SetValue(-8), 1);
    EXPECT_EQ(radios.GetSelected(), 1);
}

TEST_F(RadioButtons, ButtonWithoutAValueIsZero) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    radios.SetSelected(2);
    EXPECT_EQ(radios.GetValue(), 0);
    EXPECT_EQ(radios.SetValue(0), 0);
}

TEST_F(RadioButtons, EveryButtonIsItsHandle) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    EXPECT_FALSE(radios.IsHandle(nullptr));
    Open();
    for (const int nId : {IDC_RADIO_A, IDC_RADIO_B, IDC_RADIO_C}) {
        EXPECT_TRUE(radios.IsHandle(Item(nId)));
        EXPECT_EQ(dialog.FindControl(Item(nId)), &radios);
    }
    EXPECT_FALSE(radios.IsHandle(Item(IDC_CHECK)));
}

TEST_F(RadioButtons, CodesBecomeNotificationsWithTheButtonsId) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    std::vector<int> anCodes;
    dialog.onNotify = [&](ADM_Wnd* pSender, int nId, int nCode, int nData) {
        EXPECT_EQ(pSender, &radios);
        EXPECT_EQ(nId, IDC_RADIO_B);
        EXPECT_EQ(nData, 0);
        anCodes.push_back(nCode);
    };
    for (int nCode = 0; nCode <= 7; ++nCode) {
        SendMessageA(dialog.GetHandle(), WM_COMMAND, MAKEWPARAM(IDC_RADIO_B, nCode),
                     reinterpret_cast<LPARAM>(Item(IDC_RADIO_B)));
    }
    EXPECT_EQ(anCodes, (std::vector<int>{600, 602, 603, 604, 605, 601}));
}

TEST_F(RadioButtons, ClickIsReadBeforeItIsTold) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    int nTold = -1;
    dialog.onNotify = [&](ADM_Wnd* pSender, int, int nCode, int) {
        if (pSender == &radios && nCode == ADMN_CLICKED) nTold = radios.GetSelected();
    };
    DialogScript script;
    script.Click(IDC_RADIO_C).Do([&] { EXPECT_EQ(nTold, 2); }).Click(IDOK);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
    EXPECT_EQ(radios.GetSelected(), 2);
}

TEST_F(RadioButtons, IsNeverValidated) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    EXPECT_FALSE(radios.IsValidatable());
}

TEST_F(RadioButtons, ChangeIsComparedWhetherTrackedOrNot) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    radios.SaveInitialValue();
    radios.SetTrackChanges(FALSE);
    radios.SetSelected(1);
    EXPECT_TRUE(radios.HasChanged());
    EXPECT_FALSE(radios.IsModified()) << "the question before it does ask";
}

TEST_F(RadioButtons, ButtonsAreEnabledAndShownOneByOneOrAll) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    radios.EnableButton(1, FALSE);
    EXPECT_TRUE(IsWindowEnabled(Item(IDC_RADIO_A)));
    EXPECT_FALSE(IsWindowEnabled(Item(IDC_RADIO_B)));
    radios.Enable(FALSE);
    EXPECT_FALSE(IsWindowEnabled(Item(IDC_RADIO_A)));
    radios.EnableButton(7, TRUE);
    EXPECT_FALSE(IsWindowEnabled(Item(IDC_RADIO_C))) << "beyond the set";
    radios.EnableButton(-1, TRUE);
    EXPECT_TRUE(IsWindowEnabled(Item(IDC_RADIO_B)));
    const auto visible = [&](int nId) {
        return (GetWindowLongPtrA(Item(nId), GWL_STYLE) & WS_VISIBLE) != 0;
    };
    radios.ShowButton(2, SW_HIDE);
    EXPECT_FALSE(visible(IDC_RADIO_C));
    EXPECT_TRUE(visible(IDC_RADIO_A));
    radios.Show(SW_HIDE);
    EXPECT_FALSE(visible(IDC_RADIO_A));
    radios.Show(SW_SHOW);
    EXPECT_TRUE(visible(IDC_RADIO_C));
}

TEST_F(RadioButtons, ButtonTextsAreSetAndRead) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    char szText[4];
    EXPECT_EQ(radios.GetButtonText(1, szText, sizeof szText), 2);
    EXPECT_STREQ(szText, "&B");
    radios.SetButtonText(1, "Gaussian");
    EXPECT_EQ(radios.GetButtonText(1, szText, sizeof szText), 3) << "cut to the buffer";
    EXPECT_STREQ(szText, "Gau");
    EXPECT_EQ(radios.GetButtonText(9, szText, sizeof szText), 0);
    EXPECT_EQ(radios.GetButtonText(1, nullptr, 0), 0);
}

TEST_F(RadioButtons, SelectionSurvivesTheWindow) {
    radios.Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    SendMessageA(Item(IDC_RADIO_A), BM_SETCHECK, BST_UNCHECKED, 0);
    SendMessageA(Item(IDC_RADIO_C), BM_SETCHECK, BST_CHECKED, 0);
    dialog.ReadControls();
    dialog.Destroy();
    EXPECT_EQ(radios.GetSelected(), 2);
    Open();
    EXPECT_EQ(Checks(), "--x");
}

TEST_F(RadioButtons, MissingButtonsAreLeftOut) {
    radios.Setup(&dialog, IDC_RADIO_C, IDC_RADIO_C + 2);
    radios.SetSelected(1);
    Open();
    EXPECT_EQ(radios.GetSelected(), 1);
    radios.EnableButton(-1, FALSE);
    EXPECT_FALSE(IsWindowEnabled(Item(IDC_RADIO_C)));
}

TEST_F(RadioButtons, SetDestroyedWhileBoundIsForgotten) {
    auto gone = std::make_unique<ADM_RadioButtons>();
    gone->Setup(&dialog, IDC_RADIO_A, IDC_RADIO_C);
    Open();
    gone.reset();
    EXPECT_EQ(dialog.FindControl(Item(IDC_RADIO_A)), nullptr);
    dialog.ReadControls();
}

}  // namespace
}  // namespace framework_test
