// Tabbed dialogs: pages, tabs, leaving a page, OK over all pages.
#include <gtest/gtest.h>

#include <vector>

#include "TestDialogs.h"
#include "framework/ADM_DoubleText.h"
#include "framework/AppCommand.h"
#include "framework/PrivateMessages.h"
#include "support/DialogScript.h"
#include "support/TestWindows.h"
#include "support/WindowReading.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;

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

// Three pages with probes: 1.a 1.b, 2.a 2.b, 3.a; and a probe of the dialog's own.
class Tabs : public testing::Test {
  protected:
    Tabs()
        : own(log, "own"),
          a1(log, "a1"),
          b1(log, "b1"),
          a2(log, "a2"),
          a3(log, "a3"),
          one(log, "one", IDD_PAGE_ONE, "First page"),
          two(log, "two", IDD_PAGE_TWO, MAKEINTRESOURCEA(IDS_TAB_TITLE)),
          three(log, "three", IDD_PAGE_THREE, "Third"),
          dialog(log) {
        dialog.m_bUseOK = 0;
        dialog.m_bUseCancel = 0;
        dialog.RegisterControl(IDC_OWN, &own);
        one.RegisterControl(IDC_ONE_A, &a1);
        one.RegisterControl(IDC_ONE_B, &b1);
        two.RegisterControl(IDC_TWO_A, &a2);
        three.RegisterControl(IDC_THREE_A, &a3);
        dialog.AddPage(&one);
        dialog.AddPage(&two);
        dialog.AddPage(&three);
    }
    ~Tabs() override { dialog.Destroy(); }

    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_TABBED), nullptr);
        PumpMessages();
        log.Take();
    }
    HWND TabWindow() { return GetDlgItem(dialog.GetHandle(), IDC_TABS); }
    int CurSel() { return static_cast<int>(SendMessageA(TabWindow(), TCM_GETCURSEL, 0, 0)); }
    // What the tab control sends when the user clicks a tab.
    void ClickTab(int nIndex) {
        NMHDR header = {TabWindow(), IDC_TABS, static_cast<UINT>(TCN_SELCHANGING)};
        const LPARAM lParam = reinterpret_cast<LPARAM>(&header);
        if (SendMessageA(dialog.GetHandle(), WM_NOTIFY, IDC_TABS, lParam) != 0) return;
        SendMessageA(TabWindow(), TCM_SETCURSEL, static_cast<WPARAM>(nIndex), 0);
        header.code = static_cast<UINT>(TCN_SELCHANGE);
        SendMessageA(dialog.GetHandle(), WM_NOTIFY, IDC_TABS, lParam);
    }
    std::string Events() {
        std::string sEvents = log.Take();
        // Probes are detached when the dialog closes; that is told in its own test.
        return sEvents;
    }

    EventLog log;
    ProbeControl own, a1, b1, a2, a3;
    LoggedPage one, two, three;
    TestTabbed dialog;
};

TEST_F(Tabs, TitlesComeFromTextOrString) {
    EXPECT_STREQ(one.m_szTabTitle, "First page");
    EXPECT_STREQ(two.m_szTabTitle, "Title of the table");
    LoggedPage resource(log, "p", IDD_PAGE_ONE, MAKEINTRESOURCEA(IDS_LONG_TITLE));
    EXPECT_EQ(std::string(resource.m_szTabTitle).size(), 63u);
    LoggedPage text(log, "p", IDD_PAGE_ONE,
                    "0123456789012345678901234567890123456789012345678901234567890123456789");
    EXPECT_EQ(std::string(text.m_szTabTitle).size(), 63u);
    LoggedPage missing(log, "p", IDD_PAGE_ONE, MAKEINTRESOURCEA(IDS_NOTHING));
    EXPECT_STREQ(missing.m_szTabTitle, "");
    LoggedPage none(log, "p", IDD_PAGE_ONE, nullptr);
    EXPECT_STREQ(none.m_szTabTitle, "");
}

TEST_F(Tabs, PageUsesNoneOfTheDialogsFurniture) {
    EXPECT_EQ(one.m_bCenter, 0);
    EXPECT_EQ(one.m_bUseHook, 0);
    EXPECT_EQ(one.m_bUseOK, 0);
    EXPECT_EQ(one.m_bUseCancel, 0);
    EXPECT_EQ(dialog.m_bCreateAllPages, 1);
    EXPECT_EQ(dialog.GetCurrentPage(), nullptr);
    EXPECT_EQ(dialog.GetCurrentPageIndex(), 0);
}

TEST_F(Tabs, OpeningCreatesAllPagesAndShowsTheFirst) {
    dialog.CreateModeless(Module(), Template(IDD_TABBED), nullptr);
    EXPECT_EQ(log.Take(),
              "own.attach own.save own.onattach "
              "a1.attach a1.save a1.onattach b1.attach b1.save b1.onattach one.init "
              "a2.attach a2.save a2.onattach two.init a3.attach a3.save a3.onattach three.init "
              "selected(0) pages one.show init");
    EXPECT_EQ(test_support::ItemsOf(TabWindow()),
              (std::vector<std::string>{"First page", "Title of the table", "Third"}));
    EXPECT_EQ(CurSel(), 0);
    EXPECT_EQ(dialog.GetCurrentPage(), &one);
    for (LoggedPage* pPage : {&one, &two, &three}) {
        EXPECT_EQ(GetParent(pPage->GetHandle()), TabWindow());
        EXPECT_EQ(pPage->GetDialogWnd(), dialog.GetHandle());
        EXPECT_EQ((GetWindowLongPtrA(pPage->GetHandle(), GWL_STYLE) & WS_VISIBLE) != 0,
                  pPage == &one);
        EXPECT_NE(GetWindowLongPtrA(pPage->GetHandle(), GWL_EXSTYLE) & WS_EX_CONTROLPARENT, 0);
    }
    EXPECT_NE(GetWindowLongPtrA(TabWindow(), GWL_EXSTYLE) & WS_EX_CONTROLPARENT, 0);
}

TEST_F(Tabs, PagesFillTheDisplayArea) {
    Open();
    RECT rcArea;
    GetClientRect(TabWindow(), &rcArea);
    SendMessageA(TabWindow(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rcArea));
    for (LoggedPage* pPage : {&one, &two, &three}) {
        RECT rc;
        GetWindowRect(pPage->GetHandle(), &rc);
        MapWindowPoints(nullptr, TabWindow(), reinterpret_cast<POINT*>(&rc), 2);
        EXPECT_TRUE(EqualRect(&rc, &rcArea));
    }
}

TEST_F(Tabs, ChangingThePageAsksValidatesHidesAndShows) {
    Open();
    ClickTab(1);
    EXPECT_EQ(log.Take(),
              "selected(1) one.canleave a1.validate-silent b1.validate-silent pages two.show");
    EXPECT_EQ(dialog.GetCurrentPage(), &two);
    EXPECT_EQ(dialog.GetCurrentPageIndex(), 1);
    EXPECT_FALSE(IsWindowVisible(one.GetHandle()));
    // From the second change on the page that is left is told too, with its own index.
    ClickTab(2);
    EXPECT_EQ(log.Take(), "left(1) selected(2) two.canleave a2.validate-silent pages three.show");
    ClickTab(0);
    EXPECT_EQ(log.Take(), "left(2) selected(0) three.canleave a3.validate-silent pages one.show");
    EXPECT_EQ(CurSel(), 0);
}

TEST_F(Tabs, ClickOnTheCurrentTabShowsThePageAgain) {
    Open();
    dialog.SelectPage(0);
    EXPECT_EQ(log.Take(), "selected(0) one.show");
}

TEST_F(Tabs, SelectPageMovesTheTab) {
    Open();
    dialog.SelectPage(2);
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(dialog.GetCurrentPage(), &three);
    dialog.SelectPage(9);
    EXPECT_EQ(dialog.GetCurrentPage(), &three) << "there is no such page";
}

TEST_F(Tabs, BadPageRefusesToBeLeft) {
    Open();
    b1.bValid = FALSE;
    ClickTab(1);
    EXPECT_EQ(
        log.Take(),
        "selected(1) one.canleave a1.validate-silent b1.validate-silent a1.validate b1.validate");
    EXPECT_EQ(CurSel(), 0) << "the tab jumps back";
    EXPECT_EQ(dialog.GetCurrentPage(), &one);
    PumpMessages();
    EXPECT_EQ(GetFocus(), GetDlgItem(one.GetHandle(), IDC_ONE_B));
}

TEST_F(Tabs, CrossPageFailureBringsItsPageUp) {
    Open();
    dialog.nCrossPage = 2;
    dialog.pCrossFailed = &a3;
    ClickTab(1);
    EXPECT_EQ(log.Take(),
              "selected(1) one.canleave a1.validate-silent b1.validate-silent pages three.show");
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(dialog.GetCurrentPage(), &three);
    EXPECT_FALSE(IsWindowVisible(one.GetHandle()));
    PumpMessages();
    EXPECT_EQ(GetFocus(), GetDlgItem(three.GetHandle(), IDC_THREE_A));
}

TEST_F(Tabs, ReceiverMayVetoTheChange) {
    Open();
    dialog.onNotify = [this](ADM_Wnd*, int, int nCode, int) {
        if (nCode == ADMN_TABSELCHANGING) dialog.GetTabControl().SetAllowChange(FALSE);
    };
    ClickTab(1);
    EXPECT_EQ(CurSel(), 0);
    EXPECT_EQ(log.Take(), "");
    dialog.onNotify = nullptr;
    ClickTab(1);
    EXPECT_EQ(CurSel(), 1) << "the veto holds for one change";
}

TEST_F(Tabs, NotificationsComeInTheirOrder) {
    Open();
    std::vector<int> anCodes;
    std::vector<int> anSelected;
    dialog.onNotify = [&](ADM_Wnd* pSender, int nId, int nCode, int) {
        if (pSender != &dialog.GetTabControl()) return;
        EXPECT_EQ(nId, IDC_TABS);
        anCodes.push_back(nCode);
        anSelected.push_back(dialog.GetTabControl().GetCurSel());
    };
    ClickTab(1);
    ClickTab(2);
    EXPECT_EQ(anCodes, (std::vector<int>{803, 801, 803, 802, 801}));
    EXPECT_EQ(anSelected, (std::vector<int>{0, 1, 1, 1, 2})) << "802 answers with the page left";
}

TEST_F(Tabs, OkValidatesEverythingBeforeAnythingIsApplied) {
    Open();
    a1.bChanged = a3.bChanged = own.bChanged = TRUE;
    dialog.OnOK();
    EXPECT_EQ(
        log.Take(),
        "ok "
        "readall one.readall a1.read b1.read two.readall a2.read three.readall a3.read own.read "
        "own.validate "
        "one.readall a1.read b1.read a1.validate b1.validate "
        "two.readall a2.read a2.validate three.readall a3.read a3.validate "
        "pages "
        "a1.read one.apply a2.read a3.read three.apply own.read apply end(1)");
}

TEST_F(Tabs, OkWithNothingChangedAppliesNothing) {
    Open();
    EXPECT_EQ(dialog.ValidateAll(), 1);
    EXPECT_EQ(log.Take().find("apply"), std::string::npos);
}

TEST_F(Tabs, OwnBadFieldStopsOkFirst) {
    Open();
    own.bValid = FALSE;
    a1.bValid = FALSE;
    EXPECT_EQ(dialog.ValidateAll(), 0);
    const std::string sEvents = log.Take();
    EXPECT_NE(sEvents.find("own.validate"), std::string::npos);
    EXPECT_EQ(sEvents.find("a1.validate"), std::string::npos);
    EXPECT_EQ(GetFocus(), GetDlgItem(dialog.GetHandle(), IDC_OWN));
}

TEST_F(Tabs, OkBringsUpTheHiddenPageThatFails) {
    Open();
    a1.bChanged = TRUE;
    a3.bValid = FALSE;
    EXPECT_EQ(dialog.ValidateAll(), 0);
    const std::string sEvents = log.Take();
    EXPECT_EQ(sEvents.find("apply"), std::string::npos)
        << "the first page has not applied its values";
    EXPECT_EQ(sEvents.substr(sEvents.find("a3.validate")), "a3.validate three.show");
    EXPECT_EQ(CurSel(), 2);
    EXPECT_EQ(dialog.GetCurrentPage(), &three);
    EXPECT_FALSE(IsWindowVisible(one.GetHandle()));
    PumpMessages();
    EXPECT_EQ(GetFocus(), GetDlgItem(three.GetHandle(), IDC_THREE_A));
}

TEST_F(Tabs, OkFailsOnTheCrossPageCheck) {
    Open();
    dialog.nCrossPage = 1;
    dialog.pCrossFailed = &a2;
    EXPECT_EQ(dialog.ValidateAll(), 0);
    EXPECT_EQ(dialog.GetCurrentPage(), &two);
    EXPECT_EQ(log.Take().find("apply"), std::string::npos);
}

TEST_F(Tabs, DisabledBadFieldOnAHiddenPageDoesNotStopOk) {
    Open();
    a3.bValid = FALSE;
    a3.Enable(FALSE);
    EXPECT_EQ(dialog.ValidateAll(), 1);
}

TEST_F(Tabs, CancelReadsNoPage) {
    Open();
    a1.bValid = FALSE;
    dialog.OnCancel();
    EXPECT_EQ(log.Take(), "cancel end(2)");
}

TEST_F(Tabs, ClosingDestroysThePagesFirst) {
    Open();
    const HWND hPage = two.GetHandle();
    dialog.Destroy();
    EXPECT_FALSE(IsWindow(hPage));
    EXPECT_EQ(
        log.Take(),
        "a1.detach a1.onattach b1.detach b1.onattach a2.detach a2.onattach a3.detach a3.onattach "
        "own.detach own.onattach");
    EXPECT_EQ(one.GetHandle(), nullptr);
    EXPECT_EQ(dialog.GetCurrentPage(), nullptr);
    // A second opening begins on the first page again.
    Open();
    dialog.SelectPage(2);
    dialog.Destroy();
    Open();
    EXPECT_EQ(dialog.GetCurrentPage(), &one);
    EXPECT_EQ(CurSel(), 0);
    ClickTab(1);
    EXPECT_EQ(log.Take().find("left"), std::string::npos) << "no page of the last opening is left";
}

TEST_F(Tabs, UpdateAndHelpGoToTheCurrentPage) {
    Open();
    two.nUpdates = one.nUpdates = 0;
    dialog.RequestUpdate();
    PumpMessages();
    EXPECT_EQ(one.nUpdates, 1);
    EXPECT_EQ(two.nUpdates, 0);
    dialog.SelectPage(1);
    log.Take();
    dialog.OnHelpButton();
    EXPECT_EQ(log.Take(), "helpbutton two.helpbutton");
}

TEST_F(Tabs, EventOnAPageUpdatesThePage) {
    Open();
    one.nUpdates = 0;
    SendMessageA(one.GetHandle(), WM_COMMAND, MAKEWPARAM(IDC_ONE_A, EN_CHANGE),
                 reinterpret_cast<LPARAM>(GetDlgItem(one.GetHandle(), IDC_ONE_A)));
    PumpMessages();
    EXPECT_EQ(one.nUpdates, 1);
}

TEST_F(Tabs, CommandsClimbFromPageToDialogToHost) {
    test_support::RecordingWindow host;
    std::vector<WPARAM> commands;
    host.OnMessage([&](UINT uMsg, WPARAM wParam, LPARAM, LRESULT* pnResult) {
        if (uMsg != AppCommandMessage()) return false;
        commands.push_back(wParam);
        *pnResult = 55;
        return true;
    });
    dialog.CreateModeless(Module(), Template(IDD_TABBED), host);
    EXPECT_EQ(SendMessageA(two.GetHandle(), AppCommandMessage(), 9, 0), 55);
    EXPECT_EQ(commands, (std::vector<WPARAM>{9}));
}

TEST_F(Tabs, HelpKeyOnAPageIsTheDialogsHelpButton) {
    dialog.SetHelp(IDC_HELPBUTTON, nullptr, "fit.htm", 3);
    Open();
    HELPINFO info = {};
    info.cbSize = sizeof info;
    SendMessageA(one.GetHandle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(log.Take(), "helpbutton one.helpbutton");
}

// --- Pages that come and go

TEST_F(Tabs, AddingInsertingAndRemovingPages) {
    LoggedPage extra(log, "extra", IDD_PAGE_TWO, "Extra");
    EXPECT_EQ(dialog.AddPage(nullptr), 0);
    EXPECT_EQ(dialog.AddPage(&one), 0) << "it is there";
    EXPECT_EQ(dialog.InsertPage(4, &extra), 0) << "beyond the end";
    EXPECT_EQ(dialog.InsertPage(-1, &extra), 0);
    EXPECT_EQ(dialog.InsertPage(1, &extra), 1);
    EXPECT_EQ(dialog.GetPage(1), &extra);
    EXPECT_EQ(dialog.GetPage(2), &two);
    EXPECT_EQ(dialog.RemovePage(&extra), 1);
    EXPECT_EQ(dialog.RemovePage(&extra), 0);
    EXPECT_EQ(dialog.GetPageCount(), 3);
    EXPECT_EQ(dialog.InsertPage(3, &extra), 1) << "the end itself";
    EXPECT_EQ(dialog.RemovePage(&extra), 1);
    EXPECT_EQ(dialog.GetPage(3), nullptr);
    EXPECT_EQ(dialog.GetPage(-1), nullptr);
}

TEST_F(Tabs, PageAddedWhileOpenAppearsOnTheTabs) {
    Open();
    dialog.SelectPage(1);
    LoggedPage extra(log, "extra", IDD_PAGE_ONE, "Extra");
    log.Take();
    EXPECT_EQ(dialog.AddPage(&extra, TRUE), 1);
    EXPECT_EQ(log.Take(), "extra.init two.show");
    EXPECT_EQ(test_support::ItemsOf(TabWindow()).size(), 4u);
    EXPECT_EQ(CurSel(), 1);
    EXPECT_NE(extra.GetHandle(), nullptr);
    EXPECT_FALSE(IsWindowVisible(extra.GetHandle()));
    EXPECT_EQ(dialog.RemovePage(&extra), 1);
    EXPECT_EQ(extra.GetHandle(), nullptr);
    EXPECT_EQ(test_support::ItemsOf(TabWindow()).size(), 3u);
    EXPECT_EQ(CurSel(), 1);
    EXPECT_EQ(dialog.GetCurrentPage(), &two);
}

TEST_F(Tabs, PageInsertedBeforeTheCurrentOneLeavesItCurrent) {
    Open();
    LoggedPage extra(log, "extra", IDD_PAGE_ONE, "Extra");
    EXPECT_EQ(dialog.InsertPage(0, &extra), 1);
    EXPECT_EQ(dialog.GetCurrentPage(), &one);
    EXPECT_EQ(dialog.GetCurrentPageIndex(), 1);
    EXPECT_EQ(CurSel(), 1);
    EXPECT_EQ(dialog.RemovePage(&extra), 1);
    EXPECT_EQ(dialog.GetCurrentPageIndex(), 0);
}

TEST_F(Tabs, RemovingTheCurrentPageLeavesNone) {
    Open();
    EXPECT_EQ(dialog.RemovePage(&one), 1);
    EXPECT_EQ(dialog.GetCurrentPage(), nullptr);
    dialog.RequestUpdate();
    dialog.OnHelpButton();
    PumpMessages();
    EXPECT_EQ(dialog.AddPage(&one, TRUE), 1);
    EXPECT_EQ(dialog.GetCurrentPage(), &two) << "the first page is selected";
}

TEST(TabsAlone, DialogWithoutPagesAppliesItsOwnValues) {
    EventLog log;
    TestTabbed dialog(log);
    ProbeControl own(log, "own");
    dialog.m_bUseOK = 0;
    dialog.m_bUseCancel = 0;
    dialog.RegisterControl(IDC_OWN, &own);
    own.bChanged = TRUE;
    OpenDialog open(dialog, IDD_TABBED);
    PumpMessages();
    log.Take();
    EXPECT_EQ(dialog.GetCurrentPage(), nullptr);
    dialog.OnOK();
    EXPECT_EQ(log.Take(), "ok readall own.read own.validate own.read apply end(1)");
}

TEST(TabsAlone, DialogWithoutATabControlOpens) {
    EventLog log;
    TestTabbed dialog(log);
    dialog.SetTabControlId(ADM_TabbedDialog::kNoTabControl);
    OpenDialog open(dialog, IDD_PLAIN);
    EXPECT_TRUE(open.IsCreated());
    EXPECT_EQ(dialog.GetTabControl().GetCurSel(), -1);
    EXPECT_EQ(dialog.GetTabControl().GetItemCount(), 0);
}

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
