// OK and Cancel: what is read, checked and applied, and in which order.
#include <gtest/gtest.h>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_DoubleText.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;

class DialogValidation : public testing::Test {
  protected:
    DialogValidation() : a(log, "a"), b(log, "b"), dialog(log) {
        dialog.m_bUseOK = 0;
        dialog.m_bUseCancel = 0;
        dialog.RegisterControl(IDC_FIRST, &a);
        dialog.RegisterControl(IDC_SECOND, &b);
    }
    // Opens the dialog, lets it settle and presses a button, which ends it.
    INT_PTR Run(int nButton) {
        DialogScript script;
        script.Do([this] { log.Take(); }).Click(nButton);
        const INT_PTR nResult = script.Run([this] { return Open(); });
        events = log.Take();
        // What closing detaches is told elsewhere.
        events = events.substr(0, events.find(" a.detach"));
        return nResult;
    }
    INT_PTR Open() { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }

    EventLog log;
    ProbeControl a, b;
    LoggedDialog dialog;
    std::string events;
};

TEST_F(DialogValidation, OkReadsValidatesAppliesReadsAndEnds) {
    b.bChanged = TRUE;
    EXPECT_EQ(Run(IDOK), IDOK);
    EXPECT_EQ(events,
              "ok readall a.read b.read a.validate b.validate a.read b.read apply "
              "end(1) readall a.read b.read");
    EXPECT_FALSE(a.bFailedAsked) << "a child isn't asked which part of it failed";
}

TEST_F(DialogValidation, OkAppliesNothingThatIsNotModified) {
    EXPECT_EQ(Run(IDOK), IDOK);
    EXPECT_EQ(events,
              "ok readall a.read b.read a.validate b.validate a.read b.read end(1) "
              "readall a.read b.read");
}

TEST_F(DialogValidation, ForcedModificationApplies) {
    dialog.SetForceModified(TRUE);
    EXPECT_TRUE(a.GetForceModified());
    EXPECT_TRUE(b.GetForceModified());
    EXPECT_TRUE(dialog.IsModified());
    EXPECT_EQ(Run(IDOK), IDOK);
    EXPECT_EQ(events,
              "ok readall a.read b.read a.validate b.validate apply end(1) readall a.read b.read");
}

TEST_F(DialogValidation, FirstFailureStopsAndTakesTheFocus) {
    a.bValid = FALSE;
    a.bChanged = TRUE;
    DialogScript script;
    script.Focus(IDC_SECOND)
        .Do([this] { log.Take(); })
        .Click(IDOK)
        .Do([this] { events = log.Take(); })
        .ExpectFocus(IDC_FIRST)
        .Click(IDCANCEL);
    EXPECT_EQ(script.Run([this] { return Open(); }), IDCANCEL);
    EXPECT_EQ(events, "ok readall a.read b.read a.validate") << "neither b nor OnApply";
}

TEST_F(DialogValidation, FailureGivesTheFocusToTheControlThatFailed) {
    b.bValid = FALSE;
    OpenDialog open(dialog, IDD_PLAIN);
    PumpMessages();
    SetFocus(open.Item(IDC_FIRST));
    ADM_Wnd* pFailed = nullptr;
    EXPECT_EQ(dialog.Validate(0, &pFailed), 0);
    EXPECT_EQ(pFailed, &b);
    EXPECT_EQ(GetFocus(), open.Item(IDC_SECOND));
    EXPECT_EQ(dialog.Validate(0, nullptr), 0) << "who failed need not be asked";
}

TEST_F(DialogValidation, SilentFailureLeavesTheFocus) {
    b.bValid = FALSE;
    OpenDialog open(dialog, IDD_PLAIN);
    PumpMessages();
    SetFocus(open.Item(IDC_FIRST));
    ADM_Wnd* pFailed = nullptr;
    EXPECT_EQ(dialog.Validate(1, &pFailed), 0);
    EXPECT_EQ(pFailed, &b);
    EXPECT_EQ(GetFocus(), open.Item(IDC_FIRST));
}

TEST_F(DialogValidation, DisabledBadFieldDoesNotStopOk) {
    a.bValid = FALSE;
    dialog.onInit = [this] { a.Enable(FALSE); };
    EXPECT_EQ(Run(IDOK), IDOK);
    EXPECT_EQ(events,
              "ok readall a.read b.read b.validate a.read b.read end(1) readall a.read b.read");
}

TEST_F(DialogValidation, CancelReadsButNeitherValidatesNorApplies) {
    a.bValid = FALSE;
    a.bChanged = TRUE;
    EXPECT_EQ(Run(IDCANCEL), IDCANCEL);
    EXPECT_EQ(events, "cancel end(2) readall a.read b.read");
}

TEST_F(DialogValidation, ChangesAreMeasuredFromAfterTheSetUp) {
    LoggedDialog plain(log);
    ADM_DoubleText rate;
    plain.RegisterControl(IDC_FIRST, &rate);
    plain.onInit = [&] { rate.SetValue(5.0); };
    OpenDialog open(plain, IDD_PLAIN);
    PumpMessages();
    EXPECT_FALSE(plain.IsModified());
    rate.SetValue(6.0);
    EXPECT_TRUE(plain.IsModified());
}

TEST(DialogValidationShown, EnterInABadFieldShowsOneMessageAndKeepsTheDialog) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText rate, count;
    dialog.RegisterControl(IDC_FIRST, &rate);
    dialog.RegisterControl(IDC_SECOND, &count);
    rate.SetFieldName("Rate");
    rate.SetRange(1.0, 10.0);
    count.SetRange(1.0, 10.0);
    rate.SetValue(2.0);
    count.SetValue(2.0);
    DialogScript script;
    script.Type(IDC_SECOND, "30")
        .Type(IDC_FIRST, "50")
        .Press(VK_RETURN)
        .Answer(
            IDOK,
            "Validation Error\r\n\r\nValue in field 'Rate' must fall within the range of 1 to 10.")
        .ExpectFocus(IDC_FIRST)
        .ExpectText(IDC_FIRST, "50")
        .Do([&] { EXPECT_EQ(log.Take().find("apply"), std::string::npos); })
        .Type(IDC_FIRST, "5")
        .Click(IDOK)
        .Answer(
            IDOK,
            "Validation Error\r\n\r\nValue must fall within the range 1 to 10.  Press OK to edit "
            "the value.")
        .ExpectFocus(IDC_SECOND)
        .Type(IDC_SECOND, "3")
        .Click(IDOK);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDOK);
    EXPECT_EQ(script.Messages().size(), 2u);
    EXPECT_NE(log.Take().find("apply"), std::string::npos);
    EXPECT_EQ(rate.GetValue(), 5.0);
    EXPECT_EQ(count.GetValue(), 3.0);
}

TEST(DialogValidationShown, LeavingABadFieldDoesNotComplain) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_DoubleText rate;
    dialog.RegisterControl(IDC_FIRST, &rate);
    rate.SetRange(1.0, 10.0);
    rate.SetValue(2.0);
    DialogScript script;
    script.Type(IDC_FIRST, "050")
        .Press(VK_TAB)
        .ExpectFocus(IDC_SECOND)
        .ExpectText(IDC_FIRST, "50")
        .Click(IDCANCEL);
    EXPECT_EQ(script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); }),
              IDCANCEL);
    EXPECT_TRUE(script.Messages().empty());
}

}  // namespace
}  // namespace framework_test
