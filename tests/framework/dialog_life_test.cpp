// The life of a dialog: opening, binding, closing, opening again.
#include <gtest/gtest.h>

#include <memory>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_DoubleText.h"
#include "framework/MessageFilter.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;
using test_support::RecordingWindow;

TEST(DialogLife, FieldsBeginAtTheirDefaults) {
    EventLog log;
    LoggedDialog dialog(log);
    EXPECT_TRUE(dialog.m_vControls.empty());
    EXPECT_EQ(dialog.m_bUseOK, 1);
    EXPECT_EQ(dialog.m_bUseCancel, 1);
    EXPECT_EQ(dialog.m_hInstance, nullptr);
    EXPECT_EQ(dialog.m_hParentWnd, nullptr);
    EXPECT_EQ(dialog.m_pszTemplate, nullptr);
    EXPECT_EQ(dialog.m_bCenter, 1);
    EXPECT_EQ(dialog.m_bUpdatePending, 1);
    EXPECT_EQ(dialog.m_hHelpServer, nullptr);
    EXPECT_EQ(dialog.m_sHelpTopic, "");
    EXPECT_EQ(dialog.m_nHelpId, 0);
    EXPECT_EQ(dialog.m_nHelpButtonId, -1);
    EXPECT_EQ(dialog.m_bUseHook, 1);
    EXPECT_EQ(dialog.m_bHookInstalled, 0);
    EXPECT_EQ(dialog.m_hStopWnd, nullptr);
    EXPECT_EQ(dialog.m_pPosition, nullptr);
    EXPECT_EQ(dialog.m_bInUpdate, 0);
    EXPECT_EQ(dialog.m_bAutoApply, 0);
    EXPECT_EQ(dialog.m_dwLastEdit, 0u);
    EXPECT_EQ(dialog.m_bTimerOn, 0);
    EXPECT_EQ(dialog.m_pAutoApplyCtl, nullptr);
    EXPECT_EQ(dialog.m_nAutoApplyData, 0);
    EXPECT_EQ(dialog.m_uAutoApplyDelay, 500u);
    EXPECT_EQ(dialog.m_hOwnerOverride, nullptr);
    EXPECT_EQ(dialog.IsDialogObject(), 1);
}

TEST(DialogLife, NullTemplateOrInstanceOpensNothing) {
    EventLog log;
    LoggedDialog dialog(log);
    EXPECT_EQ(dialog.DoModal(Module(), nullptr, nullptr), 0);
    EXPECT_EQ(dialog.DoModal(nullptr, Template(IDD_PLAIN), nullptr), 0);
    EXPECT_EQ(dialog.CreateModeless(Module(), nullptr, nullptr), 0);
    EXPECT_EQ(dialog.CreateModeless(nullptr, Template(IDD_PLAIN), nullptr), 0);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
    EXPECT_EQ(log.Take(), "");
}

TEST(DialogLife, MissingTemplateOpensNothing) {
    EventLog log;
    LoggedDialog dialog(log);
    EXPECT_EQ(dialog.DoModal(Module(), Template(9999), nullptr), 0);
    EXPECT_EQ(dialog.CreateModeless(Module(), "NO_SUCH_DIALOG", nullptr), 0);
    EXPECT_EQ(log.Take(), "");
}

TEST(DialogLife, OpensTemplateByName) {
    EventLog log;
    LoggedDialog dialog(log);
    std::string sName = "NAMED_DIALOG";
    DialogScript script;
    script.ExpectTitle("Named").Click(IDOK);
    const INT_PTR nResult = script.Run([&] {
        const HINSTANCE hModule = Module();
        return dialog.DoModal(hModule, sName.c_str(), nullptr);
    });
    EXPECT_EQ(nResult, IDOK);
    // The name is copied, since the caller's text may be gone at the next opening.
    EXPECT_EQ(dialog.m_pszTemplate, dialog.m_szTemplate);
    EXPECT_STREQ(dialog.m_szTemplate, "NAMED_DIALOG");
}

TEST(DialogLife, TemplateNameIsCutAt63Characters) {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.CreateModeless(Module(), std::string(100, 'N').c_str(), nullptr);
    EXPECT_EQ(dialog.m_szTemplate, std::string(63, 'N'));
}

TEST(DialogLife, RegisteringTwiceFails) {
    EventLog log;
    LoggedDialog dialog(log);
    ProbeControl a(log, "a"), b(log, "b"), c(log, "c"), d(log, "d");
    EXPECT_EQ(dialog.RegisterControl(IDC_FIRST, &a), 1);
    EXPECT_EQ(dialog.RegisterControl(IDC_FIRST, &a), 0);
    EXPECT_EQ(dialog.RegisterControl(IDC_SECOND, &a), 0) << "the same object";
    EXPECT_EQ(dialog.RegisterControl(IDC_FIRST, &b), 0) << "the same id";
    EXPECT_EQ(dialog.RegisterControl(-3, &c), 1);
    EXPECT_EQ(dialog.RegisterControl(-3, &d), 1) << "any number have no item";
    EXPECT_EQ(dialog.RegisterControl(IDC_SECOND, nullptr), 0);
    EXPECT_EQ(dialog.m_vControls.size(), 3u);
}

TEST(DialogLife, RegisteringBeforeOpeningStoresTheIdOnly) {
    EventLog log;
    LoggedDialog dialog(log);
    ProbeControl a(log, "a");
    dialog.RegisterControl(IDC_FIRST, &a);
    EXPECT_EQ(a.GetControlId(), IDC_FIRST);
    EXPECT_EQ(a.GetHandle(), nullptr);
    EXPECT_EQ(a.GetNotifyTarget(), &dialog);
    EXPECT_EQ(log.Take(), "");
}

TEST(DialogLife, NotificationTargetOfItsOwnStays) {
    EventLog log;
    LoggedDialog dialog(log);
    ProbeControl a(log, "a"), b(log, "b");
    a.SetNotifyTarget(&b);
    dialog.RegisterControl(IDC_FIRST, &a);
    EXPECT_EQ(a.GetNotifyTarget(), &b);
}

TEST(DialogLife, SetUpRunsInItsOrder) {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.bLogUpdates = true;
    ProbeControl a(log, "a"), none(log, "none");
    dialog.RegisterControl(IDC_FIRST, &a);
    dialog.RegisterControl(-3, &none);
    OpenDialog open(dialog, IDD_PLAIN);
    ASSERT_TRUE(open.IsCreated());
    // The value is the one to compare with before the window has it.
    EXPECT_EQ(log.Take(), "a.attach a.save a.onattach none.detach none.onattach init");
    EXPECT_EQ(dialog.GetHandle(), open.Handle());
    EXPECT_EQ(a.GetHandle(), open.Item(IDC_FIRST));
    EXPECT_EQ(a.GetDialogWnd(), open.Handle());
    EXPECT_EQ(none.GetHandle(), nullptr);
    // The system gives the first control the focus; what was put off comes with the loop.
    PumpMessages();
    EXPECT_EQ(log.Take(), "a.save none.save update");
}

TEST(DialogLife, ButtonsAreRegisteredUnlessNotUsed) {
    EventLog log;
    LoggedDialog dialog(log);
    {
        OpenDialog open(dialog, IDD_PLAIN);
        EXPECT_EQ(dialog.m_btnOK.GetHandle(), open.Item(IDOK));
        EXPECT_EQ(dialog.m_btnCancel.GetHandle(), open.Item(IDCANCEL));
        EXPECT_EQ(dialog.m_btnHelp.GetHandle(), nullptr);
    }
    LoggedDialog bare(log);
    bare.m_bUseOK = 0;
    bare.m_bUseCancel = 0;
    OpenDialog open(bare, IDD_PLAIN);
    EXPECT_TRUE(bare.m_vControls.empty());
}

TEST(DialogLife, PropertyHoldsTheObjectWhileTheWindowLives) {
    EventLog log;
    LoggedDialog dialog(log);
    HWND hWnd = nullptr;
    {
        OpenDialog open(dialog, IDD_PLAIN);
        hWnd = open.Handle();
        EXPECT_EQ(GetPropA(hWnd, "ZDCDlgParam"), static_cast<ADM_Dialog*>(&dialog));
        EXPECT_EQ(ADM_Dialog::FromWindow(hWnd), &dialog);
    }
    EXPECT_EQ(ADM_Dialog::FromWindow(hWnd), nullptr);
    EXPECT_EQ(ADM_Dialog::FromWindow(nullptr), nullptr);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
}

TEST(DialogLife, RegisteringInAnOpenDialogBindsAtOnce) {
    EventLog log;
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLAIN);
    log.Take();
    ProbeControl a(log, "a");
    EXPECT_EQ(dialog.RegisterControl(IDC_FIRST, &a), 1);
    EXPECT_EQ(log.Take(), "a.attach a.save a.onattach");
    EXPECT_EQ(a.GetHandle(), open.Item(IDC_FIRST));
    EXPECT_EQ(a.GetDialogWnd(), open.Handle());
}

TEST(DialogLife, MissingTemplateItemLeavesTheChildUnbound) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText missing;
    missing.SetRange(1.0, 2.0);
    missing.SetValue(1.5);
    EXPECT_EQ(dialog.RegisterControl(4711, &missing), 1);
    ADM_DoubleText late;
    dialog.onInit = [&] { EXPECT_EQ(dialog.RegisterControl(4712, &late), 1); };
    DialogScript script;
    script
        .Do([&] {
            EXPECT_EQ(missing.GetHandle(), nullptr);
            EXPECT_EQ(missing.GetControlId(), 4711);
            EXPECT_EQ(late.GetControlId(), 4712);
            EXPECT_FALSE(missing.IsValidatable());
            missing.Enable(FALSE);
            missing.SetWindowText("text");
            missing.SetFocus();
            EXPECT_EQ(missing.GetValue(), 1.5);
        })
        .Click(IDOK);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDOK);
}

TEST(DialogLife, ClosingDetachesAndKeepsValues) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText rate;
    dialog.RegisterControl(IDC_FIRST, &rate);
    rate.SetValue(2.5);
    DialogScript script;
    script.ExpectText(IDC_FIRST, "2.5").Type(IDC_FIRST, "7.25").Click(IDOK);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDOK);
    EXPECT_EQ(rate.GetHandle(), nullptr);
    EXPECT_EQ(rate.GetDialogWnd(), nullptr);
    EXPECT_EQ(rate.GetValue(), 7.25);

    DialogScript again;
    again.ExpectText(IDC_FIRST, "7.25").Type(IDC_FIRST, "8").Click(IDCANCEL);
    EXPECT_EQ(again.Run([&] { return dialog.DoModal(); }), IDCANCEL);
    EXPECT_EQ(rate.GetValue(), 8.0) << "a plain dialog reads its controls when it is cancelled too";
}

TEST(DialogLife, UnregisterDetachesAndKeepsTheEntry) {
    EventLog log;
    LoggedDialog dialog(log);
    ProbeControl a(log, "a"), other(log, "other");
    dialog.RegisterControl(IDC_FIRST, &a);
    OpenDialog open(dialog, IDD_PLAIN);
    const std::size_t nBefore = dialog.m_vControls.size();
    EXPECT_EQ(dialog.UnregisterControl(&a), 1);
    EXPECT_EQ(a.GetHandle(), nullptr);
    EXPECT_EQ(a.GetDialogWnd(), nullptr);
    EXPECT_EQ(dialog.m_vControls.size(), nBefore);
    EXPECT_EQ(dialog.UnregisterControl(&other), 0);
}

TEST(DialogLife, FindControlKnowsBoundChildrenOnly) {
    EventLog log;
    LoggedDialog dialog(log);
    ProbeControl a(log, "a"), missing(log, "missing");
    dialog.RegisterControl(4711, &missing);
    dialog.RegisterControl(IDC_FIRST, &a);
    OpenDialog open(dialog, IDD_PLAIN);
    EXPECT_EQ(dialog.FindControl(open.Item(IDC_FIRST)), &a);
    EXPECT_EQ(dialog.FindControl(open.Item(IDC_SECOND)), nullptr);
    EXPECT_EQ(dialog.FindControl(nullptr), nullptr) << "not the child that has no window";
}

TEST(DialogLife, ControlDestroyedWhileBoundIsForgotten) {
    EventLog log;
    LoggedDialog dialog(log);
    auto text = std::make_unique<ADM_DoubleText>();
    auto radios = std::make_unique<ProbeControl>(log, "probe");
    dialog.RegisterControl(IDC_FIRST, text.get());
    dialog.RegisterControl(IDC_CHECK, radios.get());
    DialogScript script;
    script
        .Do([&] {
            text.reset();
            radios.reset();
        })
        .Type(IDC_FIRST, "12")
        .Click(IDC_CHECK)
        .Press(VK_TAB)
        .Click(IDOK);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDOK);
    EXPECT_EQ(dialog.m_vControls.size(), 2u) << "its two buttons";
}

TEST(DialogLife, ControlDestroyedWithoutAWindowIsForgotten) {
    EventLog log;
    LoggedDialog dialog(log);
    auto missing = std::make_unique<ADM_DoubleText>();
    auto early = std::make_unique<ADM_DoubleText>();
    dialog.RegisterControl(IDC_FIRST, early.get());
    dialog.RegisterControl(4711, missing.get());
    early.reset();
    EXPECT_EQ(dialog.m_vControls.size(), 1u) << "before the dialog opens";
    OpenDialog open(dialog, IDD_PLAIN);
    missing.reset();
    EXPECT_EQ(dialog.m_vControls.size(), 2u) << "its two buttons";
    PumpMessages();
}

TEST(DialogLife, ControlMayOutliveItsDialog) {
    EventLog log;
    ADM_DoubleText rate;
    {
        LoggedDialog dialog(log), other(log);
        EXPECT_EQ(dialog.RegisterControl(IDC_FIRST, &rate), 1);
        EXPECT_EQ(other.RegisterControl(IDC_FIRST, &rate), 0) << "another dialog has it";
    }
    EXPECT_EQ(rate.GetNotifyTarget(), nullptr);
    rate.SetValue(4.0);
    LoggedDialog next(log);
    EXPECT_EQ(next.RegisterControl(IDC_FIRST, &rate), 1);
}

TEST(DialogLife, WindowDestroyedWhileBoundLeavesTheValue) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText rate;
    dialog.RegisterControl(IDC_FIRST, &rate);
    rate.SetValue(3.0);
    DialogScript script;
    script
        .Do([&](HWND hDialog) {
            DestroyWindow(GetDlgItem(hDialog, IDC_FIRST));
            EXPECT_EQ(rate.GetValue(), 3.0);
            rate.SetValue(4.0);
            rate.SetFocus();
        })
        .Click(IDOK);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDOK);
    EXPECT_EQ(rate.GetValue(), 4.0);
}

TEST(DialogLife, DialogDestroyedWhileOpenTakesItsWindowAlong) {
    EventLog log;
    HWND hWnd = nullptr;
    {
        LoggedDialog dialog(log);
        ProbeControl a(log, "a");
        dialog.RegisterControl(IDC_FIRST, &a);
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        hWnd = dialog.GetHandle();
        ASSERT_TRUE(IsWindow(hWnd));
    }
    EXPECT_FALSE(IsWindow(hWnd));
    EXPECT_EQ(MessageFilterUsers(), 0);
    PumpMessages();
}

TEST(DialogLife, DialogIsCenteredOverItsOwner) {
    EventLog log;
    RecordingWindow owner(true, 500, 400);
    SetWindowPos(owner, nullptr, 200, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLACED, owner);
    RECT rcOwner, rc;
    GetWindowRect(owner, &rcOwner);
    GetWindowRect(open.Handle(), &rc);
    EXPECT_NEAR(rc.left + rc.right, rcOwner.left + rcOwner.right, 1);
    EXPECT_NEAR(rc.top + rc.bottom, rcOwner.top + rcOwner.bottom, 1);
}

TEST(DialogLife, CenteredDialogStaysOnTheScreen) {
    EventLog log;
    RecordingWindow owner(true, 300, 200);
    SetWindowPos(owner, nullptr, -280, -180, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    LoggedDialog dialog(log);
    OpenDialog open(dialog, IDD_PLACED, owner);
    RECT rc;
    GetWindowRect(open.Handle(), &rc);
    EXPECT_GE(rc.left, 0);
    EXPECT_GE(rc.top, 0);
}

TEST(DialogLife, DialogThatIsNotCenteredStaysWhereItsTemplatePutsIt) {
    EventLog log;
    LoggedDialog placed(log);
    placed.SetCenter(FALSE);
    OpenDialog open(placed, IDD_PLACED);
    RECT rc;
    GetWindowRect(open.Handle(), &rc);
    RECT rcTemplate = {33, 44, 0, 0};
    MapDialogRect(open.Handle(), &rcTemplate);
    EXPECT_LT(rc.left, rcTemplate.left + 1);
    EXPECT_LT(rc.top, rcTemplate.top + 1);
}

TEST(DialogLife, CloseBoxIsCancel) {
    EventLog log;
    LoggedDialog dialog(log);
    DialogScript script;
    script.Do([&] { log.Take(); }).CloseByFrame();
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDCANCEL);
    EXPECT_EQ(log.Take(), "close cancel end(2) readall");
}

TEST(DialogLife, EscapeIsCancelAndEnterIsOk) {
    EventLog log;
    LoggedDialog dialog(log);
    DialogScript escape;
    escape.Focus(IDC_FIRST).Press(VK_ESCAPE);
    EXPECT_EQ(escape.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDCANCEL);
    DialogScript enter;
    enter.Focus(IDC_FIRST).Press(VK_RETURN);
    EXPECT_EQ(enter.Run([&] { return dialog.DoModal(); }), IDOK);
}

TEST(DialogLife, OwnerChainIsDisabledUpToTheFirstDisabledWindow) {
    EventLog log;
    RecordingWindow top;
    LoggedDialog first(log), second(log), third(log);
    OpenDialog a(first, IDD_PLACED, top);
    OpenDialog b(second, IDD_PLACED, a.Handle());
    OpenDialog c(third, IDD_PLACED, b.Handle());
    EnableWindow(a.Handle(), FALSE);
    third.EnableOwnerChain(FALSE);
    EXPECT_FALSE(IsWindowEnabled(b.Handle()));
    EXPECT_TRUE(IsWindowEnabled(top)) << "beyond the one that was disabled already";
    EXPECT_EQ(third.m_hStopWnd, a.Handle());
    third.EnableOwnerChain(TRUE);
    EXPECT_TRUE(IsWindowEnabled(b.Handle()));
    EXPECT_FALSE(IsWindowEnabled(a.Handle())) << "somebody else's";
    EXPECT_EQ(third.m_hStopWnd, nullptr);
}

TEST(DialogLife, OwnerChainWithNobodyDisabledReachesTheTop) {
    EventLog log;
    RecordingWindow top;
    LoggedDialog first(log), second(log);
    OpenDialog a(first, IDD_PLACED, top);
    OpenDialog b(second, IDD_PLACED, a.Handle());
    second.EnableOwnerChain(FALSE);
    EXPECT_FALSE(IsWindowEnabled(a.Handle()));
    EXPECT_FALSE(IsWindowEnabled(top));
    EXPECT_EQ(second.m_hStopWnd, nullptr);
    second.EnableOwnerChain(TRUE);
    EXPECT_TRUE(IsWindowEnabled(a.Handle()));
    EXPECT_TRUE(IsWindowEnabled(top));
}

}  // namespace
}  // namespace framework_test
