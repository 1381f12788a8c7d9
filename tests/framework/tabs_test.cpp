// Tabbed dialogs: pages, tabs, leaving a page, OK over all pages.
#include <gtest/gtest.h>

#include <vector>

#include "TestDialogs.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "framework/AppCommand.h"
#include "framework/PrivateMessages.h"

namespace framework_test {
namespace {

using test_support::PumpMessages;

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

TEST_F(Tabs, PageTakesTheColoursOfItsLabelsWhileNothingIsThemed) {
    Open();
    a1.hBrush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    const HWND hItem = GetDlgItem(one.GetHandle(), IDC_ONE_A);
    for (const int nType : {1, 6}) {
        EXPECT_EQ(one.OnCtlColor(one.GetHandle(), nullptr, hItem, nType), a1.hBrush);
    }
    a1.hBrush = nullptr;
    EXPECT_EQ(one.OnCtlColor(one.GetHandle(), nullptr, hItem, 6), nullptr);
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

}  // namespace
}  // namespace framework_test
