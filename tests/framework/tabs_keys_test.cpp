// The keyboard in a tabbed dialog: every page can be reached, and its buttons pressed.
#include <gtest/gtest.h>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::kControl;
using test_support::kShift;

class TabKeys : public testing::Test {
  protected:
    TabKeys()
        : a1(log, "a1"),
          one(log, "one", IDD_PAGE_ONE, "One"),
          two(log, "two", IDD_PAGE_TWO, "Two"),
          three(log, "three", IDD_PAGE_THREE, "Three"),
          dialog(log) {
        one.RegisterControl(IDC_ONE_A, &a1);
        dialog.AddPage(&one);
        dialog.AddPage(&two);
        dialog.AddPage(&three);
    }
    INT_PTR Run(DialogScript& script) {
        return script.Run(
            [this] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); });
    }
    // The page is current, its tab selected and its window the one that shows.
    auto Shows(int nIndex) {
        return [this, nIndex] {
            EXPECT_EQ(dialog.GetCurrentPageIndex(), nIndex);
            EXPECT_EQ(dialog.GetTabControl().GetCurSel(), nIndex);
            for (int i = 0; i < 3; ++i) {
                EXPECT_EQ(IsWindowVisible(dialog.GetPage(i)->GetHandle()) != 0, i == nIndex) << i;
            }
        };
    }

    EventLog log;
    ProbeControl a1;
    LoggedPage one, two, three;
    TestTabbed dialog;
};

TEST_F(TabKeys, ControlWithTabOrPageDownGoesOnAndRound) {
    for (const int nKey : {VK_TAB, VK_NEXT}) {
        SCOPED_TRACE(nKey);
        DialogScript script;
        script.ExpectFocus(IDC_ONE_A)
            .Press(nKey, kControl)
            .Do(Shows(1))
            .ExpectFocus(IDC_TWO_A)
            .Press(nKey, kControl)
            .Do(Shows(2))
            .ExpectFocus(IDC_THREE_A)
            .Press(nKey, kControl)
            .Do(Shows(0))
            .ExpectFocus(IDC_ONE_A)
            .Click(IDCANCEL);
        EXPECT_EQ(Run(script), IDCANCEL);
    }
}

TEST_F(TabKeys, ControlWithShiftAndTabOrWithPageUpGoesBackAndRound) {
    for (const bool bTab : {true, false}) {
        SCOPED_TRACE(bTab);
        const int nKey = bTab ? VK_TAB : VK_PRIOR;
        const unsigned uKeys = bTab ? kControl | kShift : kControl;
        DialogScript script;
        script.Press(nKey, uKeys)
            .Do(Shows(2))
            .Press(nKey, uKeys)
            .Do(Shows(1))
            .Press(nKey, uKeys)
            .Do(Shows(0))
            .Click(IDCANCEL);
        EXPECT_EQ(Run(script), IDCANCEL);
    }
}

TEST_F(TabKeys, ThePageChangesFromOutsideOfThePagesToo) {
    DialogScript script;
    script.Focus(IDC_OWN)
        .Press(VK_TAB, kControl)
        .Do(Shows(1))
        .Focus(IDOK)
        .Press(VK_NEXT, kControl)
        .Do(Shows(2))
        .Do([this] { SetFocus(dialog.GetTabControl().GetHandle()); })
        .Press(VK_PRIOR, kControl)
        .Do(Shows(1))
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, TheKeysTellWhatAClickTells) {
    std::vector<int> vCodes;
    dialog.onNotify = [&](ADM_Wnd* pSender, int, int nCode, int) {
        if (pSender == &dialog.GetTabControl() && nCode >= ADMN_TABSELCHANGE)
            vCodes.push_back(nCode);
    };
    DialogScript script;
    script.Press(VK_TAB, kControl).Press(VK_TAB, kControl).Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
    EXPECT_EQ(vCodes, (std::vector<int>{ADMN_TABSELCHANGING, ADMN_TABSELCHANGE, ADMN_TABSELCHANGING,
                                        ADMN_TABLEFT, ADMN_TABSELCHANGE}));
}

TEST_F(TabKeys, APageWithABadValueIsNotLeft) {
    a1.bValid = FALSE;
    DialogScript script;
    script.Press(VK_TAB, kControl)
        .Do(Shows(0))
        .Press(VK_PRIOR, kControl)
        .Do(Shows(0))
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, OtherKeysWithOrWithoutControlAreNotTaken) {
    DialogScript script;
    script.Press(VK_NEXT)
        .Do(Shows(0))
        .Press(VK_PRIOR)
        .Do(Shows(0))
        .Press(VK_TAB)
        .Do(Shows(0))
        .ExpectFocus(IDC_ONE_B)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, TabOnTheTabsGoesIntoThePageThatShows) {
    DialogScript script;
    script.Do([this] { SetFocus(dialog.GetTabControl().GetHandle()); })
        .ExpectFocus(IDC_TABS)
        .Press(VK_TAB)
        .ExpectFocus(IDC_ONE_A)
        .SelectTab("Two")
        .Do([this] { SetFocus(dialog.GetTabControl().GetHandle()); })
        .Press(VK_TAB)
        .ExpectFocus(IDC_TWO_A)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, EnterOnAButtonOfAPagePressesIt) {
    int nPressed = 0;
    three.onNotify = [&](ADM_Wnd*, int nId, int nCode, int) {
        if (nId == IDC_THREE_RUN && nCode == ADMN_CLICKED) ++nPressed;
    };
    DialogScript script;
    script.SelectTab("Three")
        .Do([this] { SetFocus(GetDlgItem(three.GetHandle(), IDC_THREE_RUN)); })
        .ExpectFocus(IDC_THREE_RUN)
        .Press(VK_RETURN)
        .Do([&] { EXPECT_EQ(nPressed, 1); })
        .ExpectFocus(IDC_THREE_RUN)
        .Do([this] { EnableWindow(GetDlgItem(three.GetHandle(), IDC_THREE_LIST), FALSE); })
        // By keys as well, from the field before it.
        .Focus(IDC_THREE_A)
        .Press(VK_TAB)
        .ExpectFocus(IDC_THREE_RUN)
        .Press(VK_RETURN)
        .Do([&] { EXPECT_EQ(nPressed, 2); })
        .Press(VK_RETURN)
        .Do([&] { EXPECT_EQ(nPressed, 3); })
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, AKeyForAFieldOfAPageThatIsHiddenByNowIsDropped) {
    for (const UINT uMessage : {WM_SYSCHAR, WM_KEYDOWN}) {
        SCOPED_TRACE(uMessage);
        DialogScript script;
        script.SelectTab("Two")
            .ExpectFocus(IDC_TWO_A)
            .Do([&] {
                const WPARAM nKey = uMessage == WM_KEYDOWN ? VK_TAB : 'q';
                PostMessageA(GetDlgItem(one.GetHandle(), IDC_ONE_A), uMessage, nKey, 1 << 29);
            })
            .Do(Shows(1))
            .ExpectFocus(IDC_TWO_A)
            .Click(IDCANCEL);
        EXPECT_EQ(Run(script), IDCANCEL);
    }
}

TEST_F(TabKeys, AKeyForAFieldOfAPageThatIsGreyedByNowIsDropped) {
    DialogScript script;
    script.Focus(IDC_OWN)
        .Do([&] {
            EnableWindow(one.GetHandle(), FALSE);
            PostMessageA(GetDlgItem(one.GetHandle(), IDC_ONE_A), WM_SYSCHAR, 'q', 1 << 29);
            PostMessageA(GetDlgItem(one.GetHandle(), IDC_ONE_A), WM_KEYDOWN, VK_TAB, 1);
        })
        .ExpectFocus(IDC_OWN)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, APageInWhichNothingCanHaveTheFocusLeavesItOnTheTabs) {
    DialogScript script;
    script.SelectTab("Two")
        .Do([this] {
            for (HWND hItem = GetWindow(two.GetHandle(), GW_CHILD); hItem != nullptr;
                 hItem = GetWindow(hItem, GW_HWNDNEXT))
                EnableWindow(hItem, FALSE);
        })
        .SelectTab("One")
        .Focus(IDC_ONE_B)
        .Press(VK_TAB, kControl)
        .Do(Shows(1))
        .ExpectFocus(IDC_TABS)
        .Press(VK_TAB, kControl)
        .Do(Shows(2))
        .ExpectFocus(IDC_THREE_A)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, AFieldThatIsGreyedHandsTheFocusOn) {
    DialogScript script;
    script.ExpectFocus(IDC_ONE_A)
        .Do([this] { a1.Enable(FALSE); })
        .ExpectEnabled(IDC_ONE_A, false)
        .ExpectFocus(IDC_ONE_B)
        // One without the focus leaves it where it is.
        .Do([this] { a1.Enable(TRUE); })
        .Do([this] { a1.Enable(FALSE); })
        .ExpectFocus(IDC_ONE_B)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

TEST_F(TabKeys, EnterInAFieldOfAPageIsStillOk) {
    DialogScript script;
    script.ExpectFocus(IDC_ONE_A).Press(VK_RETURN);
    EXPECT_EQ(Run(script), IDOK);
}

}  // namespace
}  // namespace framework_test
