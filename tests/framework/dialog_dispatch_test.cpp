// Which operation each message of a dialog's window reaches, and what it answers.
#include <gtest/gtest.h>

#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/PrivateMessages.h"

namespace framework_test {
namespace {

using test_support::PumpMessages;

struct Told {
    ADM_Wnd* pSender;
    int nId, nCode, nData;
    bool operator==(const Told&) const = default;
};

class DialogDispatch : public testing::Test {
  protected:
    DialogDispatch() : a(log, "a"), bar(log, "bar"), dialog(log) {
        dialog.RegisterControl(IDC_FIRST, &a);
        dialog.RegisterControl(IDC_BAR, &bar);
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
        log.Take();
        a.bLogMessages = true;
        dialog.onNotify = [this](ADM_Wnd* pSender, int nId, int nCode, int nData) {
            told.push_back({pSender, nId, nCode, nData});
        };
    }
    ~DialogDispatch() override { dialog.Destroy(); }

    HWND Item(int nId) const { return GetDlgItem(dialog.GetHandle(), nId); }
    LRESULT Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
        return SendMessageA(dialog.GetHandle(), uMsg, wParam, lParam);
    }
    void Command(int nId, int nCode) const {
        Send(WM_COMMAND, MAKEWPARAM(nId, static_cast<WORD>(nCode)),
             reinterpret_cast<LPARAM>(Item(nId)));
    }

    EventLog log;
    ProbeControl a, bar;
    LoggedDialog dialog;
    std::vector<Told> told;
};

TEST_F(DialogDispatch, ChildGetsItsCommandAndTellsTheDialog) {
    Command(IDC_FIRST, EN_CHANGE);
    EXPECT_EQ(log.Take(), "a.command(768)");
    EXPECT_EQ(told, (std::vector<Told>{{&a, IDC_FIRST, 6000 + EN_CHANGE, 0}}));
}

TEST_F(DialogDispatch, NegativeCodesArriveAsSuch) {
    Command(IDC_FIRST, -2);
    EXPECT_EQ(log.Take(), "a.command(-2)");
}

TEST_F(DialogDispatch, ButtonThatNoObjectOwnsIsToldWithoutASender) {
    Command(IDC_RUN, BN_CLICKED);
    EXPECT_EQ(told, (std::vector<Told>{{nullptr, IDC_RUN, ADMN_CLICKED, 0}}));
    told.clear();
    Command(IDC_RUN, BN_DOUBLECLICKED);
    EXPECT_TRUE(told.empty());
    Send(WM_COMMAND, MAKEWPARAM(77, 0), 0);
    EXPECT_EQ(told, (std::vector<Told>{{nullptr, 77, ADMN_CLICKED, 0}})) << "a key with no control";
}

TEST_F(DialogDispatch, ButtonIsToldBeforeOkRuns) {
    dialog.onNotify = [this](ADM_Wnd* pSender, int, int nCode, int) {
        if (pSender == &dialog.m_btnOK && nCode == ADMN_CLICKED) log.Add("clicked");
    };
    Command(IDOK, BN_CLICKED);
    EXPECT_EQ(log.Take().substr(0, 18), "clicked ok readall");
    Command(IDOK, BN_DOUBLECLICKED);
    EXPECT_EQ(log.Take(), "") << "only a click is OK";
}

TEST_F(DialogDispatch, ScrollBarCodesBecomeGaugeNotifications) {
    struct Row {
        UINT uCode;
        int nPosition;
        const char* szExpected;
    };
    const Row kRows[] = {
        {SB_LINEUP, 0, "bar.notify(703,0)"},
        {SB_LINEDOWN, 0, "bar.notify(704,0)"},
        {SB_PAGEUP, 0, "bar.notify(705,0)"},
        {SB_PAGEDOWN, 0, "bar.notify(706,0)"},
        {SB_THUMBPOSITION, 42, "bar.notify(707,42)"},
        {SB_THUMBPOSITION, -5, "bar.notify(707,-5)"},
        {SB_THUMBTRACK, 42, ""},
        {SB_TOP, 0, "bar.notify(702,0)"},
        {SB_BOTTOM, 0, "bar.notify(701,0)"},
        {SB_ENDSCROLL, 0, "bar.notify(708,0)"},
        {9, 0, ""},
    };
    const LPARAM hBar = reinterpret_cast<LPARAM>(Item(IDC_BAR));
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.uCode);
        for (const UINT uMsg : {static_cast<UINT>(WM_HSCROLL), static_cast<UINT>(WM_VSCROLL)}) {
            Send(uMsg, MAKEWPARAM(row.uCode, static_cast<WORD>(row.nPosition)), hBar);
            EXPECT_EQ(log.Take(), row.szExpected);
        }
    }
    Send(WM_HSCROLL, SB_LINEUP, 0);
    EXPECT_EQ(log.Take(), "") << "the bar of no child";
    EXPECT_EQ(told.back(), (Told{&bar, IDC_BAR, ADMN_GAUGEENDSCROLL, 0}));
}

TEST_F(DialogDispatch, ChildDecidesTheColoursOfItsWindow) {
    a.hBrush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    const LPARAM hItem = reinterpret_cast<LPARAM>(Item(IDC_FIRST));
    for (int nType = 0; nType <= 6; ++nType) {
        SCOPED_TRACE(nType);
        EXPECT_EQ(Send(static_cast<UINT>(WM_CTLCOLORMSGBOX + nType), 0, hItem),
                  reinterpret_cast<LRESULT>(a.hBrush));
        EXPECT_EQ(log.Take(), "a.color(" + std::to_string(nType) + ")");
    }
    EXPECT_EQ(dialog.OnCtlColor(dialog.GetHandle(), nullptr, Item(IDC_SECOND), 6), nullptr);
}

TEST_F(DialogDispatch, OwnerDrawnItemsReachTheChild) {
    DRAWITEMSTRUCT draw = {};
    draw.hwndItem = Item(IDC_FIRST);
    Send(WM_DRAWITEM, IDC_FIRST, reinterpret_cast<LPARAM>(&draw));
    DELETEITEMSTRUCT gone = {};
    gone.hwndItem = Item(IDC_FIRST);
    Send(WM_DELETEITEM, IDC_FIRST, reinterpret_cast<LPARAM>(&gone));
    EXPECT_EQ(log.Take(), "a.draw a.delete");
    COMPAREITEMSTRUCT compare = {};
    compare.hwndItem = Item(IDC_FIRST);
    EXPECT_EQ(Send(WM_COMPAREITEM, IDC_FIRST, reinterpret_cast<LPARAM>(&compare)), -1);
    compare.hwndItem = Item(IDC_SECOND);
    EXPECT_EQ(Send(WM_COMPAREITEM, IDC_SECOND, reinterpret_cast<LPARAM>(&compare)), 0)
        << "the window of no child";
    draw.hwndItem = Item(IDC_SECOND);
    Send(WM_DRAWITEM, IDC_SECOND, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(log.Take(), "");
}

TEST_F(DialogDispatch, CharacterQuestionIsAnsweredByTheChild) {
    EXPECT_EQ(Send(ADMM_CHAR, 'x', IDC_FIRST), 0);
    EXPECT_EQ(Send(ADMM_CHAR, 'y', IDC_FIRST), 7);
    EXPECT_EQ(Send(ADMM_CHAR, 'y', IDC_SECOND), 1) << "an item that no child owns";
    EXPECT_EQ(Send(ADMM_CHAR, 'y', 4711), 0) << "no such item: default processing";
}

TEST_F(DialogDispatch, DialogCodeQuestionIsAnsweredByTheChild) {
    EXPECT_EQ(Send(ADMM_GET_DLG_CODE, 0, IDC_FIRST), DLGC_WANTARROWS);
    EXPECT_EQ(Send(ADMM_GET_DLG_CODE, 0, IDC_SECOND), 0);
    EXPECT_EQ(Send(ADMM_GET_DLG_CODE, 0, 4711), 0);
}

TEST_F(DialogDispatch, FocusMessageFocusesTheChild) {
    SetFocus(Item(IDC_RUN));
    Send(ADMM_FOCUS_CONTROL, 0, reinterpret_cast<LPARAM>(static_cast<ADM_Wnd*>(&a)));
    EXPECT_EQ(GetFocus(), Item(IDC_FIRST));
    Send(ADMM_FOCUS_CONTROL, 0, 0);
    ProbeControl stranger(log, "stranger");
    Send(ADMM_FOCUS_CONTROL, 0, reinterpret_cast<LPARAM>(static_cast<ADM_Wnd*>(&stranger)));
    EXPECT_NE(GetFocus(), nullptr);
}

TEST_F(DialogDispatch, SaveMessageReachesEveryChild) {
    Send(ADMM_SAVE_INITIAL, 0, 0);
    EXPECT_EQ(log.Take(), "a.save bar.save");
}

TEST_F(DialogDispatch, MessageNumbersAreThoseOfTheOtherModules) {
    EXPECT_EQ(static_cast<UINT>(ADMM_FOCUS_CONTROL), 0x8064u);
    EXPECT_EQ(static_cast<UINT>(ADMM_SAVE_INITIAL), 0x8065u);
    EXPECT_EQ(static_cast<UINT>(ADMM_UPDATE_CONTROLS), 0x8066u);
    EXPECT_EQ(static_cast<UINT>(ADMM_CHAR), 0x8067u);
    EXPECT_EQ(static_cast<UINT>(ADMM_GET_DLG_CODE), 0x8068u);
    EXPECT_EQ(static_cast<UINT>(ADMM_APPLY_NOW), 0x8069u);
    EXPECT_EQ(static_cast<UINT>(ADMM_APPLY_LATER), 0x806Au);
}

TEST_F(DialogDispatch, NothingIsDispatchedWithoutAWindow) {
    LoggedDialog closed(log);
    EXPECT_EQ(closed.DialogProc(dialog.GetHandle(), WM_COMMAND, IDOK, 0), 0);
    EXPECT_EQ(closed.DialogProc(dialog.GetHandle(), ADMM_UPDATE_CONTROLS, 0, 0), 0);
    EXPECT_EQ(log.Take(), "");
}

TEST_F(DialogDispatch, ForeignTimerIsLeftToTheSystem) {
    EXPECT_EQ(dialog.OnTimer(1), 1);
    EXPECT_EQ(dialog.OnTimer(2), 0);
    EXPECT_EQ(dialog.DialogProc(dialog.GetHandle(), WM_TIMER, 2, 0), 0);
}

TEST_F(DialogDispatch, ResultOfANotificationIsTheChilds) {
    class Vetoing : public ADM_Wnd {
        LRESULT OnNotify(HWND, int, NMHDR*) override { return 77; }
    } vetoing;
    dialog.RegisterControl(IDC_LISTBOX, &vetoing);
    NMHDR header = {Item(IDC_LISTBOX), IDC_LISTBOX, static_cast<UINT>(NM_CLICK)};
    EXPECT_EQ(Send(WM_NOTIFY, IDC_LISTBOX, reinterpret_cast<LPARAM>(&header)), 77);
    header.hwndFrom = Item(IDC_SECOND);
    EXPECT_EQ(Send(WM_NOTIFY, IDC_SECOND, reinterpret_cast<LPARAM>(&header)), 0);
}

}  // namespace
}  // namespace framework_test
