// Help, application commands, the message filter and the auto-apply mode of a dialog.
#include <gtest/gtest.h>

#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_ListBox.h"
#include "framework/AppCommand.h"
#include "framework/MessageFilter.h"
#include "framework/PrivateMessages.h"
#include "widgets/MessageDialog.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;
using test_support::RecordingWindow;

// A window that takes application commands as a host does.
class Host {
  public:
    Host() {
        window.OnMessage([this](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pnResult) {
            if (uMsg != AppCommandMessage()) return false;
            commands.push_back(wParam);
            if (wParam == kAppCommandShowHelp)
                request = *reinterpret_cast<const AppHelpRequest*>(lParam);
            *pnResult = wParam == kAppCommandHelpAvailable ? nHelpAnswer
                                                           : 100 + static_cast<LRESULT>(wParam);
            return true;
        });
    }

    RecordingWindow window;
    std::vector<WPARAM> commands;
    AppHelpRequest request;
    LRESULT nHelpAnswer = 1;
};

TEST(DialogHelp, ButtonIsEnabledWithoutAServer) {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.SetHelp(IDC_HELPBUTTON, nullptr, "fit.htm", 7);
    OpenDialog open(dialog, IDD_PLAIN);
    EXPECT_EQ(dialog.m_btnHelp.GetHandle(), open.Item(IDC_HELPBUTTON));
    EXPECT_TRUE(IsWindowEnabled(open.Item(IDC_HELPBUTTON)));
}

TEST(DialogHelp, ServerDecidesWhetherTheButtonIsEnabled) {
    EventLog log;
    Host host;
    for (const LRESULT nAnswer : {1, 0, 2}) {
        SCOPED_TRACE(nAnswer);
        host.nHelpAnswer = nAnswer;
        LoggedDialog dialog(log);
        dialog.SetHelp(IDC_HELPBUTTON, host.window, "fit.htm", 7);
        OpenDialog open(dialog, IDD_PLAIN);
        EXPECT_EQ(IsWindowEnabled(open.Item(IDC_HELPBUTTON)) != 0, nAnswer == 1);
    }
    EXPECT_EQ(host.commands, (std::vector<WPARAM>{6, 6, 6}));
}

TEST(DialogHelp, ButtonSendsTopicAndContext) {
    EventLog log;
    Host host;
    LoggedDialog dialog(log);
    dialog.SetHelp(IDC_HELPBUTTON, host.window, "fit.htm", 42);
    OpenDialog open(dialog, IDD_PLAIN);
    host.commands.clear();
    open.Command(IDC_HELPBUTTON, BN_CLICKED);
    EXPECT_EQ(host.commands, (std::vector<WPARAM>{5}));
    EXPECT_EQ(host.request.nKind, 2);
    EXPECT_STREQ(host.request.szTopic, "fit.htm");
    EXPECT_EQ(host.request.nId, 42);
}

TEST(DialogHelp, TopicIsCutAt63Characters) {
    EventLog log;
    Host host;
    LoggedDialog dialog(log);
    dialog.SetHelp(IDC_HELPBUTTON, host.window, std::string(80, 't').c_str(), 1);
    OpenDialog open(dialog, IDD_PLAIN);
    open.Command(IDC_HELPBUTTON, BN_CLICKED);
    EXPECT_EQ(host.request.szTopic, std::string(63, 't'));
}

TEST(DialogHelp, NothingIsSentWithoutServerOrTopic) {
    EventLog log;
    Host host;
    LoggedDialog dialog(log);
    dialog.SetHelp(IDC_HELPBUTTON, host.window, nullptr, 1);
    OpenDialog open(dialog, IDD_PLAIN);
    host.commands.clear();
    open.Command(IDC_HELPBUTTON, BN_CLICKED);
    EXPECT_TRUE(host.commands.empty());
}

TEST(DialogHelp, HelpKeyIsTheButton) {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.SetHelp(IDC_HELPBUTTON, nullptr, "fit.htm", 1);
    OpenDialog open(dialog, IDD_PLAIN);
    log.Take();
    HELPINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_EQ(open.Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&info)), 1);
    EXPECT_EQ(log.Take(), "helpbutton");
}

TEST(DialogHelp, HelpKeyWithoutAButtonIsLeftToTheSystem) {
    EventLog log;
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLAIN);
    log.Take();
    HELPINFO info = {};
    info.cbSize = sizeof info;
    open.Send(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(log.Take(), "");
}

TEST(AppCommands, ClimbToTheOwner) {
    EventLog log;
    Host host;
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLAIN, host.window);
    for (const WPARAM uCommand : {1u, 2u, 3u, 4u, 8u, 9u, 10u, 11u}) {
        SCOPED_TRACE(uCommand);
        EXPECT_EQ(open.Send(AppCommandMessage(), uCommand, 5),
                  100 + static_cast<LRESULT>(uCommand));
    }
    EXPECT_EQ(host.commands, (std::vector<WPARAM>{1, 2, 3, 4, 8, 9, 10, 11}));
}

TEST(AppCommands, GoToTheOverrideInTheOwnersPlace) {
    EventLog log;
    Host owner, other;
    LoggedDialog dialog(log);
    dialog.SetOwnerOverride(other.window);
    OpenDialog open(dialog, IDD_PLAIN, owner.window);
    EXPECT_EQ(open.Send(AppCommandMessage(), 3, 0), 103);
    EXPECT_TRUE(owner.commands.empty());
    EXPECT_EQ(other.commands, (std::vector<WPARAM>{3}));
}

TEST(AppCommands, EndWhereThereIsNoTarget) {
    EventLog log;
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLAIN);
    EXPECT_EQ(open.Send(AppCommandMessage(), 3, 0), 0);
    dialog.SetOwnerOverride(open.Handle());
    EXPECT_EQ(open.Send(AppCommandMessage(), 3, 0), 0) << "not to itself";
}

TEST(AppCommands, RecordOfTheHelpRequestHasItsLayout) {
    EXPECT_EQ(sizeof(AppHelpRequest), 72u);
    EXPECT_EQ(offsetof(AppHelpRequest, nKind), 0u);
    EXPECT_EQ(offsetof(AppHelpRequest, szTopic), 4u);
    EXPECT_EQ(offsetof(AppHelpRequest, nId), 68u);
}

// --- The message filter

// As the system tells a dialog, without what the system does then.
void Activate(LoggedDialog& dialog, WPARAM wParam) {
    dialog.DialogProc(dialog.GetHandle(), WM_ACTIVATE, wParam, 0);
}

TEST(MessageFilter, IsInstalledOnceForAllDialogs) {
    EventLog log;
    EXPECT_EQ(MessageFilterUsers(), 0);
    LoggedDialog first(log), second(log), without(log);
    without.m_bUseHook = 0;
    {
        OpenDialog a(first, IDD_PLAIN), b(second, IDD_PLAIN), c(without, IDD_PLAIN);
        for (LoggedDialog* pDialog : {&first, &second, &without}) Activate(*pDialog, WA_ACTIVE);
        EXPECT_EQ(MessageFilterUsers(), 2);
        Activate(first, WA_CLICKACTIVE);
        EXPECT_EQ(MessageFilterUsers(), 2) << "never twice for one";
        Activate(first, WA_INACTIVE);
        Activate(first, WA_INACTIVE);
        Activate(without, WA_INACTIVE);
        EXPECT_EQ(MessageFilterUsers(), 1);
        EXPECT_EQ(first.m_bHookInstalled, 0);
        EXPECT_EQ(second.m_bHookInstalled, 1);
        EXPECT_EQ(without.m_bHookInstalled, 0);
    }
    EXPECT_EQ(MessageFilterUsers(), 0);
}

class ShiftedTab : public testing::Test {
  protected:
    ShiftedTab() : dialog(log), open(dialog, IDD_PLAIN) {
        SendMessageA(open.Handle(), WM_ACTIVATE, WA_ACTIVE, 0);
        GetKeyboardState(abBefore);
    }
    ~ShiftedTab() override { SetKeyboardState(abBefore); }
    void HoldShift(bool bDown) {
        BYTE abKeys[256];
        GetKeyboardState(abKeys);
        abKeys[VK_SHIFT] = bDown ? 0x80 : 0;
        SetKeyboardState(abKeys);
    }
    bool Stops(HWND hWnd, UINT uMsg, WPARAM uKey, int nCode = MSGF_DIALOGBOX) {
        MSG msg = {};
        msg.hwnd = hWnd;
        msg.message = uMsg;
        msg.wParam = uKey;
        return CallMsgFilterA(&msg, nCode) != 0;
    }

    EventLog log;
    LoggedDialog dialog;
    OpenDialog open;
    BYTE abBefore[256];
};

TEST_F(ShiftedTab, StopsAtTheDialogsOwnWindow) {
    HoldShift(true);
    EXPECT_TRUE(Stops(open.Handle(), WM_KEYDOWN, VK_TAB));
    EXPECT_TRUE(Stops(open.Handle(), WM_KEYUP, VK_TAB));
}

TEST_F(ShiftedTab, OtherMessagesPass) {
    HoldShift(true);
    EXPECT_FALSE(Stops(open.Handle(), WM_KEYDOWN, VK_RETURN));
    EXPECT_FALSE(Stops(open.Handle(), WM_CHAR, VK_TAB));
    EXPECT_FALSE(Stops(open.Item(IDC_FIRST), WM_KEYDOWN, VK_TAB)) << "a control's";
    EXPECT_FALSE(Stops(open.Handle(), WM_KEYDOWN, VK_TAB, MSGF_MENU)) << "a menu's loop";
    HoldShift(false);
    EXPECT_FALSE(Stops(open.Handle(), WM_KEYDOWN, VK_TAB));
}

TEST_F(ShiftedTab, PassesOnceTheFilterIsRemoved) {
    HoldShift(true);
    SendMessageA(open.Handle(), WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_FALSE(Stops(open.Handle(), WM_KEYDOWN, VK_TAB));
}

TEST(MessageFilterShown, ShiftTabStillMovesBetweenControls) {
    EventLog log;
    LoggedDialog dialog(log);
    DialogScript script;
    script.Focus(IDC_SECOND)
        .Press(VK_TAB, test_support::kShift)
        .ExpectFocus(IDC_FIRST)
        .Press(VK_TAB)
        .ExpectFocus(IDC_SECOND)
        .Click(IDCANCEL);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
}

// --- Auto-apply

class AutoApply : public testing::Test {
  protected:
    AutoApply() : a(log, "a"), dialog(log) {
        dialog.RegisterControl(IDC_FIRST, &a);
        dialog.RegisterControl(IDC_CHECK, &check);
        dialog.RegisterControl(IDC_LISTBOX, &list);
    }
    LPARAM PtrOf(ADM_Wnd& wnd) { return reinterpret_cast<LPARAM>(&wnd); }
    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
        log.Take();
    }
    ~AutoApply() override { dialog.Destroy(); }
    void Edit(int nData = 300) {
        SendMessageA(dialog.GetHandle(), ADMM_APPLY_LATER, static_cast<WPARAM>(PtrOf(a)), nData);
    }

    EventLog log;
    ProbeControl a;
    ADM_Button check;
    ADM_ListBox list;
    LoggedDialog dialog;
};

TEST_F(AutoApply, TimerRunsFromTheOpeningOn) {
    dialog.SetAutoApply(TRUE, 600);
    EXPECT_EQ(dialog.m_bTimerOn, 0) << "no window yet";
    Open();
    EXPECT_EQ(dialog.m_bTimerOn, 1);
    EXPECT_EQ(dialog.m_uAutoApplyDelay, 600u);
    dialog.Destroy();
    EXPECT_EQ(dialog.m_bTimerOn, 0);
}

TEST_F(AutoApply, TimerStartsInAnOpenDialog) {
    Open();
    EXPECT_EQ(dialog.m_bTimerOn, 0);
    dialog.m_dwLastEdit = 5;
    dialog.SetAutoApply(TRUE, 600);
    EXPECT_EQ(dialog.m_bTimerOn, 1);
    EXPECT_EQ(dialog.m_dwLastEdit, 0u);
}

TEST_F(AutoApply, TextChangeIsKeptUntilItsQuietTime) {
    dialog.SetAutoApply(TRUE, 100000);
    Open();
    Edit(305);
    EXPECT_EQ(dialog.m_pAutoApplyCtl, &a);
    EXPECT_EQ(dialog.m_nAutoApplyData, 305);
    EXPECT_NE(dialog.m_dwLastEdit, 0u);
    dialog.OnTimer(1);
    EXPECT_EQ(dialog.nAutoApplies, 0) << "too early";
    dialog.m_dwLastEdit = GetTickCount() - 100000;
    if (dialog.m_dwLastEdit == 0) --dialog.m_dwLastEdit;
    EXPECT_EQ(dialog.OnTimer(1), 1);
    EXPECT_EQ(dialog.nAutoApplies, 1);
    EXPECT_EQ(dialog.pLastAutoApply, nullptr) << "not the control that was edited";
    EXPECT_EQ(dialog.nLastAutoApplyData, 0);
    EXPECT_EQ(dialog.m_pAutoApplyCtl, nullptr);
    EXPECT_EQ(dialog.m_nAutoApplyData, 0);
    EXPECT_EQ(dialog.m_dwLastEdit, 0u);
    dialog.OnTimer(1);
    EXPECT_EQ(dialog.nAutoApplies, 1) << "once for each edit";
}

TEST_F(AutoApply, ButtonAppliesAtOnce) {
    dialog.SetAutoApply(TRUE, 100000);
    Open();
    Edit();
    SendMessageA(GetDlgItem(dialog.GetHandle(), IDC_CHECK), BM_CLICK, 0, 0);
    EXPECT_EQ(dialog.nAutoApplies, 0) << "not inside the click";
    PumpMessages();
    EXPECT_EQ(dialog.nAutoApplies, 1);
    EXPECT_EQ(dialog.pLastAutoApply, &check);
    EXPECT_EQ(dialog.m_dwLastEdit, 0u) << "the text change before it is applied with it";
}

TEST_F(AutoApply, ListSelectionAppliesAtOnce) {
    dialog.SetAutoApply(TRUE, 100000);
    Open();
    list.AddString("one");
    list.Notify(&list, IDC_LISTBOX, ADMN_LISTSELCHANGE, 0);
    PumpMessages();
    EXPECT_EQ(dialog.nAutoApplies, 1);
    EXPECT_EQ(dialog.pLastAutoApply, &list);
    list.Notify(&list, IDC_LISTBOX, ADMN_LISTDBLCLK, 0);
    PumpMessages();
    EXPECT_EQ(dialog.nAutoApplies, 1);
}

TEST_F(AutoApply, NothingHappensOutsideTheMode) {
    Open();
    Edit();
    SendMessageA(dialog.GetHandle(), ADMM_APPLY_NOW, static_cast<WPARAM>(PtrOf(a)), 0);
    EXPECT_EQ(dialog.nAutoApplies, 0);
    EXPECT_EQ(dialog.m_dwLastEdit, 0u);
    EXPECT_EQ(dialog.m_pAutoApplyCtl, nullptr);
    dialog.m_dwLastEdit = 1;
    EXPECT_EQ(dialog.OnTimer(1), 1);
    EXPECT_EQ(dialog.nAutoApplies, 0);
}

TEST_F(AutoApply, SelectsReadsValidatesAndApplies) {
    dialog.SetAutoApply(TRUE, 600);
    Open();
    dialog.OnAutoApply(&a, 0);
    EXPECT_EQ(log.Take(), "a.select readall a.read a.validate apply");
    dialog.OnAutoApply(nullptr, 0);
    EXPECT_EQ(log.Take(), "readall a.read a.validate apply");
}

TEST_F(AutoApply, FailureFocusesAndAppliesNothing) {
    dialog.SetAutoApply(TRUE, 600);
    Open();
    SetFocus(GetDlgItem(dialog.GetHandle(), IDC_RUN));
    a.bValid = FALSE;
    dialog.OnAutoApply(nullptr, 0);
    EXPECT_EQ(log.Take(), "readall a.read a.validate");
    EXPECT_TRUE(a.HasFocus());
}

TEST_F(AutoApply, ControlThatWentAwayIsNotTouched) {
    dialog.SetAutoApply(TRUE, 600);
    Open();
    ProbeControl stranger(log, "stranger");
    SendMessageA(dialog.GetHandle(), ADMM_APPLY_NOW, static_cast<WPARAM>(PtrOf(stranger)), 0);
    EXPECT_EQ(dialog.nAutoApplies, 1);
    EXPECT_EQ(dialog.pLastAutoApply, nullptr);
}

TEST(AutoApplyShown, EditsApplyByThemselvesAndABadOneComplainsOnce) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText rate;
    dialog.RegisterControl(IDC_FIRST, &rate);
    rate.SetRange(1.0, 10.0);
    rate.SetValue(2.0);
    dialog.SetAutoApply(TRUE, 50);
    DialogScript script;
    script.Do([&] { log.Take(); })
        .Type(IDC_FIRST, "3")
        .WaitUntil([&] { return dialog.nAutoApplies == 1; })
        .Do([&] {
            EXPECT_EQ(log.Take(), "readall apply");
            EXPECT_EQ(rate.GetValue(), 3.0);
        })
        // While the message is up the timer goes on firing in the message's own loop.
        .Type(IDC_FIRST, "30")
        .EnterDialog()
        .Wait(700)
        .Do([&] { EXPECT_EQ(dialog.nAutoApplies, 2); })
        .Click(CommonCtls::CZDMsgDialog::kFirstButtonId)
        .Do([&] { EXPECT_EQ(log.Take(), "readall"); })
        .Click(IDCANCEL);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDCANCEL);
    EXPECT_EQ(dialog.nAutoApplies, 2);
}

}  // namespace
}  // namespace framework_test
