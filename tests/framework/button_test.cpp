// Buttons, check boxes and check boxes of three states.
#include <gtest/gtest.h>

#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_Button.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;

// Collects what a control tells its target.
class Listener : public ADM_Wnd {
  public:
    void Notify(ADM_Wnd*, int nId, int nCode, int nData) override {
        EXPECT_EQ(nData, 0);
        ids.push_back(nId);
        codes.push_back(nCode);
    }
    std::vector<int> ids, codes;
};

TEST(Button, KeepsItsCheckWithNoWindow) {
    ADM_Button plain, checked(1);
    EXPECT_EQ(plain.GetCheck(), 0);
    EXPECT_EQ(checked.GetCheck(), 1);
    EXPECT_FALSE(checked.HasChanged()) << "the first state is the one to compare with";
    plain.SetCheck(1);
    EXPECT_EQ(plain.GetCheck(), 1);
    EXPECT_TRUE(plain.HasChanged());
    plain.SaveInitialValue();
    EXPECT_FALSE(plain.HasChanged());
    EXPECT_EQ(plain.GetState(), 0);
    EXPECT_EQ(plain.GetImage(IMAGE_ICON), nullptr);
    EXPECT_EQ(plain.SetImage(IMAGE_BITMAP, nullptr), nullptr);
    plain.SetState(TRUE);
    plain.SetStyle(BS_AUTO3STATE);
}

TEST(Button, ChangeIsNotReportedWhenItIsNotTracked) {
    ADM_Button button;
    button.SetTrackChanges(FALSE);
    button.SetCheck(1);
    EXPECT_FALSE(button.HasChanged());
}

TEST(Button, CodesBecomeNotifications) {
    ADM_Button button;
    Listener listener;
    button.SetNotifyTarget(&listener);
    for (int nCode = -1; nCode <= 7; ++nCode) button.OnCommand(nullptr, 42, nullptr, nCode);
    EXPECT_EQ(listener.codes, (std::vector<int>{600, 602, 603, 604, 605, 601}));
    EXPECT_EQ(listener.ids, std::vector<int>(6, 42));
}

TEST(Button, CheckGoesToTheWindowAndComesBack) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_Button check(1);
    dialog.RegisterControl(IDC_CHECK, &check);
    DialogScript script;
    script.ExpectChecked(IDC_CHECK, BST_CHECKED)
        .Click(IDC_CHECK)
        .Do([&] {
            EXPECT_EQ(check.GetCheck(), 0);
            EXPECT_TRUE(check.IsModified());
            check.SetCheck(1);
        })
        .ExpectChecked(IDC_CHECK, BST_CHECKED)
        .Click(IDC_CHECK)
        .Click(IDOK);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
    EXPECT_EQ(check.GetCheck(), 0);
    EXPECT_TRUE(check.HasChanged());
}

TEST(Button, ClickIsReadAfterItIsToldAndAsksToApply) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_Button check;
    dialog.RegisterControl(IDC_CHECK, &check);
    dialog.SetAutoApply(TRUE, 100000);
    OpenDialog open(dialog, IDD_PLAIN);
    PumpMessages();
    SendMessageA(open.Item(IDC_CHECK), BM_SETCHECK, BST_CHECKED, 0);
    open.Command(IDC_CHECK, BN_CLICKED);
    EXPECT_EQ(dialog.nAutoApplies, 0);
    PumpMessages();
    EXPECT_EQ(dialog.nAutoApplies, 1);
    EXPECT_EQ(dialog.pLastAutoApply, &check);
    open.Command(IDC_CHECK, BN_DOUBLECLICKED);
    PumpMessages();
    EXPECT_EQ(dialog.nAutoApplies, 1) << "only a click applies";
}

TEST(Button, ReceiverOfAClickMayCloseTheDialog) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_Button check;
    dialog.RegisterControl(IDC_CHECK, &check);
    OpenDialog open(dialog, IDD_PLAIN);
    dialog.onNotify = [&](ADM_Wnd* pSender, int, int, int) {
        if (pSender == &check) dialog.Destroy();
    };
    check.Notify(&check, IDC_CHECK, ADMN_CLICKED, 0);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
}

TEST(Button, StateStyleAndImageReachTheWindow) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_Button run, image;
    dialog.RegisterControl(IDC_RUN, &run);
    dialog.RegisterControl(IDC_IMAGE, &image);
    OpenDialog open(dialog, IDD_PLAIN);
    EXPECT_EQ(run.GetState() & BST_PUSHED, 0);
    run.SetState(TRUE);
    EXPECT_EQ(run.GetState() & BST_PUSHED, BST_PUSHED);
    run.SetState(FALSE);
    run.SetStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(GetWindowLongPtrA(open.Item(IDC_RUN), GWL_STYLE) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
    const HBITMAP hBitmap = LoadBitmapA(Module(), MAKEINTRESOURCEA(IDB_RAMP));
    EXPECT_EQ(image.SetImage(IMAGE_BITMAP, hBitmap), nullptr);
    EXPECT_EQ(image.GetImage(IMAGE_BITMAP), hBitmap);
    EXPECT_EQ(image.SetImage(IMAGE_BITMAP, nullptr), hBitmap);
    DeleteObject(hBitmap);
}

TEST(TriStateCheck, TakesThreeStatesAndNoOther) {
    ADM_TriStateCheck check;
    for (const int nState : {0, 1, 2}) {
        check.SetTriState(nState);
        EXPECT_EQ(check.GetTriState(), nState);
    }
    check.SetTriState(3);
    EXPECT_EQ(check.GetTriState(), 2);
    check.SetTriState(-1);
    EXPECT_EQ(check.GetTriState(), 2);
    check.SetCheck(9);
    EXPECT_EQ(check.GetTriState(), 0) << "an unknown state reads as off";
}

TEST(TriStateCheck, TemplatesCheckBoxGetsItsThirdState) {
    EventLog log;
    LoggedDialog dialog(log);
    ADM_TriStateCheck check;
    check.SetTriState(2);
    dialog.RegisterControl(IDC_TRISTATE, &check);
    DialogScript script;
    script.ExpectChecked(IDC_TRISTATE, BST_INDETERMINATE)
        .Click(IDC_TRISTATE)
        .ExpectChecked(IDC_TRISTATE, BST_UNCHECKED)
        .Click(IDC_TRISTATE)
        .ExpectChecked(IDC_TRISTATE, BST_CHECKED)
        .Click(IDC_TRISTATE)
        .ExpectChecked(IDC_TRISTATE, BST_INDETERMINATE)
        .Click(IDOK);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
    EXPECT_EQ(check.GetTriState(), 2);
}

}  // namespace
}  // namespace framework_test
