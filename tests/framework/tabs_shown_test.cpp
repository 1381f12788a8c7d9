// Tabbed dialogs as the user meets them: wrong page styles, bad pages, keys and clicks.
#include <gtest/gtest.h>

#include <string>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "framework/ADM_DoubleText.h"

namespace framework_test {
namespace {

using test_support::DialogScript;

// --- A page with styles that a page must not have

constexpr char kStyleMessage[] =
    "Internal Error\r\n\r\nTabbed sub dialogs should only have the WS_CHILD flag set";

class PageStyles : public testing::TestWithParam<int> {};

TEST_P(PageStyles, TellTheProgrammerAndGoOn) {
    EventLog log;
    TestTabbed dialog(log);
    LoggedPage page(log, "page", GetParam(), "Page");
    dialog.AddPage(&page);
    DialogScript script;
    script.Answer(IDOK, kStyleMessage).Do([&] { dialog.OnCancel(); });
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); }),
              IDCANCEL);
    EXPECT_EQ(script.Messages().size(), 1u);
    EXPECT_NE(log.Take().find("page.init selected(0) pages page.show"), std::string::npos);
}

std::string StyleName(const testing::TestParamInfo<int>& info) {
    switch (info.param) {
        case IDD_PAGE_CAPTION:
            return "Caption";
        case IDD_PAGE_THICKFRAME:
            return "ThickFrame";
        case IDD_PAGE_MODALFRAME:
            return "ModalFrame";
        default:
            return "Popup";
    }
}

INSTANTIATE_TEST_SUITE_P(Wrong, PageStyles,
                         testing::Values(IDD_PAGE_CAPTION, IDD_PAGE_THICKFRAME, IDD_PAGE_MODALFRAME,
                                         IDD_PAGE_POPUP),
                         StyleName);

TEST(PageStylesShown, PageThatShowsItselfTooEarlyIsTold) {
    class Showing : public ADM_Wnd {
        void OnAttach() override { ShowWindow(::GetParent(m_hWnd), SW_SHOW); }
    } showing;
    EventLog log;
    TestTabbed dialog(log);
    LoggedPage page(log, "page", IDD_PAGE_ONE, "Page");
    page.RegisterControl(IDC_ONE_A, &showing);
    dialog.AddPage(&page);
    DialogScript script;
    script.Answer(IDOK, kStyleMessage).Click(IDCANCEL);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); }),
              IDCANCEL);
    EXPECT_EQ(script.Messages().size(), 1u);
}

TEST(PageStylesShown, VisibleStyleOfATemplateIsHeldBackByTheSystem) {
    EventLog log;
    TestTabbed dialog(log);
    LoggedPage one(log, "one", IDD_PAGE_ONE, "One"),
        visible(log, "visible", IDD_PAGE_VISIBLE, "Two");
    dialog.AddPage(&one);
    dialog.AddPage(&visible);
    DialogScript script;
    script.Do([&] { EXPECT_FALSE(IsWindowVisible(visible.GetHandle())); }).Click(IDCANCEL);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); }),
              IDCANCEL);
}

TEST(PageStylesShown, RightStylesSayNothing) {
    EventLog log;
    TestTabbed dialog(log);
    LoggedPage page(log, "page", IDD_PAGE_ONE, "Page");
    dialog.AddPage(&page);
    DialogScript script;
    script.Click(IDCANCEL);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); });
    EXPECT_TRUE(script.Messages().empty());
}

// --- With the user's own keys and clicks

class TabsShown : public testing::Test {
  protected:
    TabsShown()
        : one(log, "one", IDD_PAGE_ONE, "One"), two(log, "two", IDD_PAGE_TWO, "Two"), dialog(log) {
        one.RegisterControl(IDC_ONE_A, &rate);
        two.RegisterControl(IDC_TWO_A, &width);
        for (ADM_DoubleText* pField : {&rate, &width}) {
            pField->SetRange(1.0, 10.0);
            pField->SetValue(2.0);
        }
        dialog.AddPage(&one);
        dialog.AddPage(&two);
    }
    INT_PTR Run(DialogScript& script) {
        return script.Run(
            [this] { return dialog.DoModal(Module(), Template(IDD_TABBED), nullptr); });
    }
    static constexpr const char* kMessage =
        "Validation Error\r\n\r\nValue must fall within the range 1 to 10.  Press OK to edit the "
        "value.";

    EventLog log;
    ADM_DoubleText rate, width;
    LoggedPage one, two;
    TestTabbed dialog;
};

TEST_F(TabsShown, LeavingABadPageJumpsBackWithOneMessage) {
    DialogScript script;
    script.Type(IDC_ONE_A, "50")
        .SelectTab(1)
        .Answer(IDOK, kMessage)
        .ExpectSelected(IDC_TABS, "One")
        .ExpectFocus(IDC_ONE_A)
        .ExpectVisible(IDC_ONE_A, true)
        .Type(IDC_ONE_A, "5")
        .SelectTab(1)
        .ExpectVisible(IDC_TWO_A, true)
        .ExpectSelected(IDC_TABS, "Two")
        .Click(IDOK);
    EXPECT_EQ(Run(script), IDOK);
    EXPECT_EQ(rate.GetValue(), 5.0);
}

TEST_F(TabsShown, OkWithABadFieldOnAHiddenPageBringsItUp) {
    DialogScript script;
    script.SelectTab(1)
        .Do([this] { width.SetWindowText("99"); })
        .Do([this] { dialog.m_tabControl.SetCurSel(0); })
        .Do([this] {
            // As after a change that was accepted while the value was still good.
            width.SetWindowText("2");
            dialog.OnPageSelected(0);
            width.SetWindowText("99");
        })
        .ExpectVisible(IDC_ONE_A, true)
        .Click(IDOK)
        .Answer(IDOK, kMessage)
        .ExpectSelected(IDC_TABS, "Two")
        .ExpectVisible(IDC_TWO_A, true)
        .ExpectFocus(IDC_TWO_A)
        .Type(IDC_TWO_A, "9")
        .Click(IDOK);
    EXPECT_EQ(Run(script), IDOK);
    EXPECT_EQ(script.Messages().size(), 1u);
    EXPECT_EQ(width.GetValue(), 9.0);
}

TEST_F(TabsShown, CancelFromABadPageAsksNothing) {
    DialogScript script;
    script.Type(IDC_ONE_A, "50").Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
    EXPECT_TRUE(script.Messages().empty());
}

TEST_F(TabsShown, TabKeyWalksIntoThePageAndOut) {
    DialogScript script;
    script.Focus(IDC_ONE_A)
        .Press(VK_TAB)
        .ExpectFocus(IDC_ONE_B)
        .Press(VK_TAB)
        .ExpectFocus(IDC_OWN)
        .Press(VK_TAB, test_support::kShift)
        .ExpectFocus(IDC_ONE_B)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script), IDCANCEL);
}

}  // namespace
}  // namespace framework_test
