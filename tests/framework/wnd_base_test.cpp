// The root of the controls: values without a window, the order of operations, binding and the hook.
#include <gtest/gtest.h>

#include <iterator>
#include <memory>
#include <string>

#include "ControlHost.h"
#include "fixtures/DialogScript.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_SubClassWnd.h"
#include "framework/ADM_Wnd.h"

namespace {

using framework_test::ControlHost;
using framework_test::NotificationLog;
using test_support::DialogScript;
using test_support::TextOf;

// A control with a value of its own, which logs what the base asks of it.
class Probe : public ADM_Wnd {
  public:
    void OnAttach() override { sLog += "attach "; }
    void ReadControl() override { sLog += "read "; }
    void SaveInitialValue() override { sLog += GetHandle() == nullptr ? "save-unbound " : "save "; }
    BOOL HasChanged() override {
        sLog += "changed ";
        return bChanged;
    }
    std::string sLog;
    BOOL bChanged = 0;
};

TEST(WndBase, StartsUnboundWithItsDefaults) {
    ADM_Wnd wnd;
    EXPECT_EQ(wnd.GetHandle(), nullptr);
    EXPECT_EQ(wnd.GetDialogWnd(), nullptr);
    EXPECT_EQ(wnd.GetNotifyTarget(), nullptr);
    EXPECT_EQ(wnd.GetControlId(), 0);
    EXPECT_EQ(wnd.GetFieldName(), nullptr);
    EXPECT_EQ(wnd.GetForceModified(), 0);
    EXPECT_EQ(wnd.GetTrackChanges(), 1);
    EXPECT_EQ(wnd.GetUserValue(), 0);
}

TEST(WndBase, EveryOperationWorksUnbound) {
    ADM_Wnd wnd;
    wnd.Attach(nullptr);
    wnd.ReadControl();
    wnd.SelectContents();
    wnd.SetWindowText("text");
    wnd.SetWindowText(nullptr);
    wnd.Show(SW_HIDE);
    wnd.Enable(0);
    wnd.SetFocus();
    wnd.MoveWindow(0, 0, 10, 10, 1);
    wnd.Invalidate(1);
    wnd.SetRedraw(0);
    wnd.SetFont(nullptr, 1);
    wnd.Update();
    RECT rc = {1, 2, 3, 4};
    wnd.GetClientRect(&rc);
    EXPECT_EQ(rc.right, 0);
    rc = {1, 2, 3, 4};
    wnd.GetWindowRect(&rc);
    EXPECT_EQ(rc.bottom, 0);
    char szText[8] = "old";
    EXPECT_EQ(wnd.GetWindowText(szText, sizeof szText), 0);
    EXPECT_STREQ(szText, "");
    EXPECT_EQ(wnd.GetWindowText(nullptr, 0), 0);
    EXPECT_EQ(wnd.GetWindowTextLength(), 0);
    EXPECT_EQ(wnd.HasFocus(), 0);
    EXPECT_EQ(wnd.IsEnabled(), 0);
    EXPECT_EQ(wnd.IsVisible(), 0);
    EXPECT_EQ(wnd.IsValidatable(), 0);
    EXPECT_EQ(wnd.GetFont(), nullptr);
    EXPECT_EQ(wnd.GetParent(), nullptr);
    EXPECT_EQ(wnd.Destroy(), 0);
    EXPECT_EQ(wnd.HasChanged(), 0);
    EXPECT_EQ(wnd.IsModified(), 0);
    EXPECT_EQ(wnd.Validate(0, nullptr), 1);
    EXPECT_EQ(wnd.OnChar(nullptr, 'x'), 1);
    EXPECT_EQ(wnd.OnGetDlgCode(nullptr), 0);
    EXPECT_EQ(wnd.OnCompareItem(nullptr, nullptr), 0);
    EXPECT_EQ(wnd.OnCtlColor(nullptr, nullptr, nullptr, 6), nullptr);
    EXPECT_EQ(wnd.OnNotify(nullptr, 0, nullptr), 0);
    wnd.OnDrawItem(nullptr, nullptr);
    wnd.OnDeleteItem(nullptr, nullptr);
    wnd.Notify(&wnd, 1, ADMN_CLICK, 0);
}

TEST(WndBase, PlainSettersKeepTheirValues) {
    ADM_Wnd wnd;
    wnd.SetControlId(77);
    EXPECT_EQ(wnd.GetControlId(), 77);
    wnd.SetFieldName("Cutoff");
    EXPECT_STREQ(wnd.GetFieldName(), "Cutoff");
    wnd.SetFieldName("");
    EXPECT_EQ(wnd.GetFieldName(), nullptr);
    wnd.SetFieldName(nullptr);
    EXPECT_EQ(wnd.GetFieldName(), nullptr);
    wnd.SetUserValue(-5);
    EXPECT_EQ(wnd.GetUserValue(), -5);
}

TEST(WndBase, AttachSavesTheValueBeforeItBinds) {
    ControlHost host;
    Probe probe;
    const HWND hWnd = host.window.Add("Static", "label", 42, 0);
    probe.Attach(hWnd);
    EXPECT_EQ(probe.sLog, "save-unbound attach ");
    EXPECT_EQ(probe.GetHandle(), hWnd);
    EXPECT_EQ(probe.GetControlId(), 42);
    EXPECT_TRUE(probe.IsHandle(hWnd));
    EXPECT_FALSE(probe.IsHandle(host.window));
    EXPECT_EQ(probe.GetDialogWnd(), hWnd);
    probe.SetDialogWnd(host.window);
    EXPECT_EQ(probe.GetDialogWnd(), host.window.Handle());
    probe.sLog.clear();
    probe.Attach(nullptr);
    EXPECT_EQ(probe.sLog, "attach ");
    EXPECT_EQ(probe.GetHandle(), nullptr);
    EXPECT_EQ(probe.GetControlId(), 42);
}

TEST(WndBase, ModifiedAsksTheWindowAndThenTheValue) {
    Probe probe;
    EXPECT_EQ(probe.IsModified(), 0);
    EXPECT_EQ(probe.sLog, "read changed ");
    probe.bChanged = 1;
    EXPECT_EQ(probe.IsModified(), 1);
    probe.bChanged = 0;
    probe.sLog.clear();
    probe.SetForceModified(1);
    EXPECT_EQ(probe.IsModified(), 1);
    EXPECT_EQ(probe.sLog, "");
}

TEST(WndBase, UntrackedIsNeverModifiedEvenWhenForced) {
    Probe probe;
    probe.SetForceModified(1);
    probe.SetTrackChanges(0);
    EXPECT_EQ(probe.IsModified(), 0);
    probe.bChanged = 1;
    EXPECT_EQ(probe.IsModified(), 0);
}

TEST(WndBase, ATextThatShowsAlreadyRaisesNoChange) {
    ControlHost host;
    ADM_Wnd wnd;
    const HWND hWnd = host.BindEdit(wnd);
    wnd.SetWindowText("12.5");
    EXPECT_EQ(TextOf(hWnd), "12.5");
    EXPECT_EQ(host.window.Notifications().Take(), "EN_UPDATE(10) EN_CHANGE(10)");
    wnd.SetWindowText("12.5");
    EXPECT_EQ(host.window.Notifications().Take(), "");
    wnd.SetWindowText(nullptr);
    EXPECT_EQ(TextOf(hWnd), "");
    EXPECT_EQ(host.window.Notifications().Take(), "EN_UPDATE(10) EN_CHANGE(10)");
}

TEST(WndBase, ATextOf255CharactersIsAlwaysSetAgain) {
    ControlHost host;
    ADM_Wnd wnd;
    host.BindEdit(wnd);
    for (const std::size_t nLength : {254u, 255u, 300u}) {
        SCOPED_TRACE(nLength);
        const std::string sText(nLength, 'x');
        wnd.SetWindowText(sText.c_str());
        host.window.Notifications().Take();
        wnd.SetWindowText(sText.c_str());
        EXPECT_EQ(host.window.Notifications().Take(),
                  nLength < 255 ? "" : "EN_UPDATE(10) EN_CHANGE(10)");
    }
}

TEST(WndBase, HelpersReachTheWindow) {
    ControlHost host;
    ADM_Wnd wnd;
    const HWND hWnd = host.BindEdit(wnd, 10, "abc");
    EXPECT_EQ(wnd.GetWindowTextLength(), 3);
    char szText[3];
    EXPECT_EQ(wnd.GetWindowText(szText, sizeof szText), 2);
    EXPECT_STREQ(szText, "ab");
    EXPECT_EQ(wnd.GetParent(), host.window.Handle());
    wnd.SetFocus();
    EXPECT_TRUE(wnd.HasFocus());
    host.FocusNowhere();
    EXPECT_FALSE(wnd.HasFocus());
    EXPECT_TRUE(wnd.IsEnabled());
    EXPECT_TRUE(wnd.IsValidatable());
    wnd.Enable(0);
    EXPECT_FALSE(wnd.IsEnabled());
    EXPECT_FALSE(wnd.IsValidatable());
    EXPECT_TRUE(wnd.IsVisible());
    wnd.Show(SW_HIDE);
    EXPECT_FALSE(wnd.IsVisible());
    wnd.MoveWindow(5, 6, 70, 20, 1);
    RECT rc;
    wnd.GetWindowRect(&rc);
    EXPECT_EQ(rc.right - rc.left, 70);
    EXPECT_EQ(rc.bottom - rc.top, 20);
    wnd.GetClientRect(&rc);
    EXPECT_EQ(rc.left, 0);
    EXPECT_LE(rc.right, 70);
    const auto hFont = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    wnd.SetFont(hFont, 0);
    EXPECT_EQ(wnd.GetFont(), hFont);
    wnd.SetRedraw(0);
    wnd.SetRedraw(1);
    wnd.Invalidate(1);
    wnd.Update();
    EXPECT_NE(wnd.Destroy(), 0);
    EXPECT_FALSE(IsWindow(hWnd));
}

TEST(WndBase, CommonControlCodesBecomeNotifications) {
    ADM_Wnd wnd;
    NotificationLog log;
    wnd.SetNotifyTarget(&log);
    struct Row {
        UINT uRaw;
        const char* szLine;
    };
    const Row kRows[] = {
        {static_cast<UINT>(NM_OUTOFMEMORY), "205(7)"},
        {static_cast<UINT>(NM_CLICK), "203(7)"},
        {static_cast<UINT>(NM_DBLCLK), "204(7)"},
        {static_cast<UINT>(NM_RETURN), "206(7)"},
        {static_cast<UINT>(NM_RCLICK), "207(7)"},
        {static_cast<UINT>(NM_RDBLCLK), "208(7)"},
        {static_cast<UINT>(NM_SETFOCUS), "201(7)"},
        {static_cast<UINT>(NM_KILLFOCUS), "202(7)"},
        {static_cast<UINT>(NM_HOVER), ""},
    };
    for (const Row& row : kRows) {
        NMHDR header = {};
        header.code = row.uRaw;
        EXPECT_EQ(wnd.OnNotify(nullptr, 7, &header), 0);
        EXPECT_EQ(log.Take(), row.szLine);
    }
}

TEST(WndBase, NotificationsClimbToTheTarget) {
    ADM_Wnd sender;
    ADM_Wnd middle;
    NotificationLog log;
    middle.SetNotifyTarget(&log);
    sender.SetNotifyTarget(&middle);
    sender.Notify(&sender, 3, ADMN_GAUGETHUMB, 12);
    EXPECT_EQ(log.Take(), "707(3)=12");
    EXPECT_EQ(log.pLastSender, &sender);
}

TEST(WndBase, NotificationNumbersAreFixed) {
    const int kCodes[] = {
        ADMN_SETFOCUS,      ADMN_KILLFOCUS,       ADMN_CLICK,          ADMN_DBLCLK,
        ADMN_OUTOFMEMORY,   ADMN_RETURN,          ADMN_RCLICK,         ADMN_RDBLCLK,
        ADMN_TEXTCHANGE,    ADMN_TEXTUPDATE,      ADMN_ERRSPACE,       ADMN_MAXTEXT,
        ADMN_HSCROLL,       ADMN_VSCROLL,         ADMN_KEYRELEASE,     ADMN_KEYUP,
        ADMN_KEYDOWN,       ADMN_SHIFTKEYUP,      ADMN_SHIFTKEYDOWN,   ADMN_LISTSELCHANGE,
        ADMN_LISTDBLCLK,    ADMN_LISTERRSPACE,    ADMN_LISTSELCANCEL,  ADMN_COMBOSELCHANGE,
        ADMN_COMBODBLCLK,   ADMN_COMBOEDITCHANGE, ADMN_COMBOERRSPACE,  ADMN_COMBOEDITUPDATE,
        ADMN_COMBODROPDOWN, ADMN_COMBOCLOSEUP,    ADMN_COMBOSELENDOK,  ADMN_COMBOSELENDCANCEL,
        ADMN_CLICKED,       ADMN_BTNDOUBLECLICK,  ADMN_BTNPAINT,       ADMN_BTNHILITE,
        ADMN_BTNUNHILITE,   ADMN_BTNDISABLE,      ADMN_GAUGEPOSITION,  ADMN_GAUGEBOTTOM,
        ADMN_GAUGETOP,      ADMN_GAUGELINEUP,     ADMN_GAUGELINEDOWN,  ADMN_GAUGEPAGEUP,
        ADMN_GAUGEPAGEDOWN, ADMN_GAUGETHUMB,      ADMN_GAUGEENDSCROLL, ADMN_TABSELCHANGE,
        ADMN_TABLEFT,       ADMN_TABSELCHANGING,  ADMN_STATICENABLE,   ADMN_STATICDISABLE};
    const int kNumbers[] = {201, 202, 203, 204, 205, 206, 207, 208, 300, 301, 302, 303,  304,
                            305, 306, 307, 308, 309, 310, 400, 401, 402, 403, 500, 501,  502,
                            503, 504, 505, 506, 507, 508, 600, 601, 602, 603, 604, 605,  700,
                            701, 702, 703, 704, 705, 706, 707, 708, 801, 802, 803, 1001, 1002};
    ASSERT_EQ(std::size(kCodes), std::size(kNumbers));
    for (std::size_t i = 0; i < std::size(kCodes); ++i) EXPECT_EQ(kCodes[i], kNumbers[i]);
}

TEST(WndBase, ValidationMessageStandsUnderItsHeading) {
    ControlHost host;
    ADM_Wnd wnd;
    host.BindEdit(wnd);
    DialogScript script;
    script.Answer(IDOK, "Validation Error:\r\n\r\n100%0 of %1 is too much");
    const UINT uResult =
        script.Run([&] { return wnd.ShowValidationMessage("100%0 of %1 is too much"); });
    EXPECT_EQ(uResult, 1u);
    ASSERT_EQ(script.Messages().size(), 1u);
    EXPECT_EQ(script.Messages()[0].title, "Error");
}

TEST(WndBase, PlacesInAMessageHaveNoArguments) {
    ControlHost host;
    ADM_Wnd wnd;
    host.BindEdit(wnd);
    DialogScript script;
    script.Answer(IDOK, "100% of ");
    EXPECT_EQ(script.Run([&] { return wnd.ShowMessage("100%% of %9", MB_ICONWARNING, nullptr); }),
              1u);
    EXPECT_EQ(script.Messages()[0].title, "Warning");
    EXPECT_EQ(wnd.ShowMessage(nullptr, 0, nullptr), 0xFFFFu);
}

// Counts the messages that pass through the hook.
class Hooked : public ADM_SubClassWnd {
  public:
    LRESULT SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override {
        ++nMessages;
        if (uMsg == WM_APP + 1) return 77;
        return ADM_SubClassWnd::SubclassProc(hWnd, uMsg, wParam, lParam);
    }
    int nMessages = 0;
};

WNDPROC ProcOf(HWND hWnd) {
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrA(hWnd, GWLP_WNDPROC));
}

TEST(WndSubclass, SeesMessagesAndPassesThemOn) {
    ControlHost host;
    Hooked hooked;
    const HWND hWnd = host.BindEdit(hooked, 10, "text");
    EXPECT_EQ(GetPropA(hWnd, "ADM_ThisProp"), static_cast<HANDLE>(&hooked));
    EXPECT_NE(GetPropA(hWnd, "ADM_OldWndProc"), nullptr);
    EXPECT_EQ(SendMessageA(hWnd, WM_APP + 1, 0, 0), 77);
    EXPECT_EQ(TextOf(hWnd), "text");
    EXPECT_GT(hooked.nMessages, 1);
}

TEST(WndSubclass, ASecondAttachLeavesTheChainAsItIs) {
    ControlHost host;
    Hooked hooked;
    const HWND hWnd = host.BindEdit(hooked);
    const WNDPROC pProc = ProcOf(hWnd);
    const HANDLE pOld = GetPropA(hWnd, "ADM_OldWndProc");
    hooked.OnAttach();
    EXPECT_EQ(ProcOf(hWnd), pProc);
    EXPECT_EQ(GetPropA(hWnd, "ADM_OldWndProc"), pOld);
    hooked.nMessages = 0;
    SendMessageA(hWnd, WM_APP + 2, 0, 0);
    EXPECT_EQ(hooked.nMessages, 1);
}

TEST(WndSubclass, TheWindowsEndUnbindsTheObject) {
    ControlHost host;
    Hooked hooked;
    const HWND hWnd = host.BindEdit(hooked);
    DestroyWindow(hWnd);
    EXPECT_EQ(hooked.GetHandle(), nullptr);
    hooked.SetWindowText("after");
    EXPECT_EQ(hooked.IsValidatable(), 0);
}

TEST(WndSubclass, AnObjectDestroyedWhileBoundLetsTheWindowGo) {
    ControlHost host;
    const HWND hWnd = host.window.Add("Edit", "text", 10, 0);
    const WNDPROC pProc = ProcOf(hWnd);
    {
        Hooked hooked;
        hooked.Attach(hWnd);
        EXPECT_NE(ProcOf(hWnd), pProc);
    }
    EXPECT_EQ(ProcOf(hWnd), pProc);
    EXPECT_EQ(GetPropA(hWnd, "ADM_ThisProp"), nullptr);
    EXPECT_EQ(GetPropA(hWnd, "ADM_OldWndProc"), nullptr);
    EXPECT_EQ(TextOf(hWnd), "text");
}

TEST(WndSubclass, BindsAgainAfterUnbinding) {
    ControlHost host;
    Hooked hooked;
    const HWND hWnd = host.BindEdit(hooked, 10, "text");
    for (int i = 0; i < 3; ++i) {
        hooked.Attach(nullptr);
        hooked.nMessages = 0;
        EXPECT_EQ(TextOf(hWnd), "text");
        EXPECT_EQ(hooked.nMessages, 0);
        hooked.Attach(hWnd);
        EXPECT_EQ(SendMessageA(hWnd, WM_APP + 1, 0, 0), 77);
    }
}

TEST(WndSubclass, MovesToAnotherWindow) {
    ControlHost host;
    Hooked hooked;
    const HWND hFirst = host.BindEdit(hooked, 10, "first");
    const HWND hSecond = host.window.Add("Edit", "second", 11, 0);
    hooked.Attach(hSecond);
    EXPECT_EQ(GetPropA(hFirst, "ADM_ThisProp"), nullptr);
    EXPECT_EQ(SendMessageA(hFirst, WM_APP + 1, 0, 0), 0);
    EXPECT_EQ(SendMessageA(hSecond, WM_APP + 1, 0, 0), 77);
}

WNDPROC g_pUnder = nullptr;
int g_nSeen = 0;

LRESULT CALLBACK LaterHook(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    ++g_nSeen;
    return CallWindowProcA(g_pUnder, hWnd, uMsg, wParam, lParam);
}

TEST(WndSubclass, AHookThatCameLaterSurvivesTheObject) {
    ControlHost host;
    const HWND hWnd = host.window.Add("Edit", "text", 10, 0);
    auto pHooked = std::make_unique<Hooked>();
    pHooked->Attach(hWnd);
    g_pUnder = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&LaterHook)));
    pHooked.reset();
    g_nSeen = 0;
    EXPECT_EQ(TextOf(hWnd), "text");
    EXPECT_GT(g_nSeen, 0);
    // A chain that was left without an object takes the next one.
    Hooked next;
    next.Attach(hWnd);
    EXPECT_EQ(SendMessageA(hWnd, WM_APP + 1, 0, 0), 77);
    DestroyWindow(hWnd);
    EXPECT_EQ(next.GetHandle(), nullptr);
}

}  // namespace
