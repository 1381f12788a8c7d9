// The script that drives dialogs does what a user does, and sees what a user sees.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::kShift;
using test_support::RecordingWindow;
using test_support::TestDialog;

constexpr int kEdit = 101, kCheck = 102, kCombo = 103, kList = 104, kTab = 105, kButton = 106;
constexpr int kRadioA = 110, kRadioB = 111, kEditable = 112, kMulti = 113;

DialogTemplate EverySort() {
    DialogTemplate shape("Every sort", 220, 160);
    shape.Edit(kEdit, 10, 10)
        .CheckBox("&Check", kCheck, 10, 30)
        .Radio("Radio &A", kRadioA, 10, 45, WS_GROUP | WS_TABSTOP)
        .Radio("Radio &B", kRadioB, 10, 58)
        .DropDownList(kCombo, 80, 10, WS_GROUP)
        .DropDown(kEditable, 145, 10)
        .ListBox(kList, 80, 30, 60, 40)
        .ListBox(kMulti, 145, 30, 60, 40, LBS_EXTENDEDSEL)
        .TabControl(kTab, 80, 75, 120, 40)
        .PushButton("&Push", kButton, 10, 120)
        .DefaultButton("OK", IDOK, 80, 120)
        .PushButton("Cancel", IDCANCEL, 140, 120);
    return shape;
}

INT_PTR FillControls(HWND dialog, UINT message, WPARAM wParam, LPARAM) {
    if (message != WM_INITDIALOG) return TestDialog::EndOnCommand(dialog, message, wParam);
    for (const char* item : {"alpha", "beta", "gamma"}) {
        const auto text = reinterpret_cast<LPARAM>(item);
        SendDlgItemMessageA(dialog, kCombo, CB_ADDSTRING, 0, text);
        SendDlgItemMessageA(dialog, kEditable, CB_ADDSTRING, 0, text);
        SendDlgItemMessageA(dialog, kList, LB_ADDSTRING, 0, text);
        SendDlgItemMessageA(dialog, kMulti, LB_ADDSTRING, 0, text);
        TCITEMA tab = {};
        tab.mask = TCIF_TEXT;
        tab.pszText = const_cast<char*>(item);
        SendDlgItemMessageA(dialog, kTab, TCM_INSERTITEMA, 99, reinterpret_cast<LPARAM>(&tab));
    }
    CheckRadioButton(dialog, kRadioA, kRadioB, kRadioA);
    return TRUE;
}

TEST(DialogScript, ClicksButtons) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.Click(kCheck)
        .ExpectChecked(kCheck, BST_CHECKED)
        .MouseClick(kCheck)
        .ExpectChecked(kCheck, BST_UNCHECKED)
        .MouseClick(kRadioB)
        .ExpectChecked(kRadioA, BST_UNCHECKED)
        .ExpectChecked(kRadioB, BST_CHECKED)
        .Do([&] { dialog.Notifications().Take(); })
        .Click(kButton)
        .Do([&] { EXPECT_EQ("BN_CLICKED(106)", dialog.Notifications().Take()); })
        .Click(IDOK);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, TypesText) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.Type(kEdit, "12.5 \xB5s")
        .ExpectText(kEdit, "12.5 \xB5s")
        .Type(kEdit, "x")
        .ExpectText(kEdit, "x")
        .TypeKeys("yz")
        .ExpectText(kEdit, "xyz")
        .Press(VK_HOME)
        .Press(VK_RIGHT, kShift)
        .Do([](HWND dlg) { EXPECT_EQ("x", test_support::SelectedPart(GetDlgItem(dlg, kEdit))); })
        .Type(kEdit, "")
        .ExpectText(kEdit, "")
        .Type(kEditable, "free")
        .ExpectText(kEditable, "free")
        .ExpectSelected(kEditable, "free")
        .Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, MovesByKeys) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.ExpectFocus(kEdit)
        .Press(VK_TAB)
        .ExpectFocus(kCheck)
        .Press(VK_TAB)
        .ExpectFocus(kRadioA)
        .Press(VK_DOWN)
        .ExpectFocus(kRadioB)
        .ExpectChecked(kRadioB, BST_CHECKED)
        .Press(VK_TAB, kShift)
        .ExpectFocus(kCheck)
        .Press(VK_SPACE)
        .ExpectChecked(kCheck, BST_CHECKED)
        .Mnemonic('c')
        .ExpectChecked(kCheck, BST_UNCHECKED)
        .Press(VK_RETURN);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, ChoosesItemsAsAUserDoes) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.Focus(kCombo)
        .Do([&] { dialog.Notifications().Take(); })
        .Choose(kCombo, 1)
        .ExpectSelected(kCombo, "beta")
        .Do([&] {
            EXPECT_EQ("CBN_DROPDOWN(103) CBN_SELENDOK(103) CBN_CLOSEUP(103) CBN_SELCHANGE(103)",
                      dialog.Notifications().Take());
        })
        .Choose(kCombo, "gamma")
        .ExpectSelected(kCombo, "gamma")
        .Choose(kEditable, "alpha")
        .ExpectSelected(kEditable, "alpha")
        .Focus(kList)
        .Do([&] { dialog.Notifications().Take(); })
        .Choose(kList, 2)
        .ExpectSelected(kList, "gamma")
        .Do([&] { EXPECT_EQ("LBN_SELCHANGE(104)", dialog.Notifications().Take()); })
        .ClickItem(kMulti, 0)
        .ClickItem(kMulti, 2, kShift)
        .ClickItem(kMulti, 1, test_support::kControl)
        .Do([](HWND dlg) {
            EXPECT_EQ((std::vector<int>{0, 2}),
                      test_support::SelectedIndexes(GetDlgItem(dlg, kMulti)));
        })
        .ExpectItems(kList, {"alpha", "beta", "gamma"})
        .Click(IDCANCEL);
    EXPECT_EQ(IDCANCEL, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, SwitchesTabs) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.SelectTab(1)
        .ExpectSelected(kTab, "beta")
        .Do([&] { dialog.Notifications().Take(); })
        .SelectTab("gamma")
        .Do([&] {
            const std::string seen = dialog.Notifications().Take();
            EXPECT_NE(std::string::npos, seen.find("TCN_SELCHANGING(105) TCN_SELCHANGE(105)"))
                << seen;
        })
        .SelectTabOf(kTab, 0)
        .ExpectSelected(kTab, "alpha")
        .Click(IDOK);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, AnswersMessages) {
    int answer = 0;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message == WM_COMMAND && LOWORD(wParam) == kButton) {
            answer = MessageBoxA(dlg, "Really?\n100% sure", "Title", MB_YESNO | MB_ICONQUESTION);
            return TRUE;
        }
        return FillControls(dlg, message, wParam, lParam);
    });
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.Click(kButton)
        .Answer(IDNO, "Really?\n100% sure")
        .Do([&] { EXPECT_EQ(IDNO, answer); })
        .Click(kButton)
        .Answer(IDYES)
        .Do([&] { EXPECT_EQ(IDYES, answer); })
        .Click(IDOK);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
    ASSERT_EQ(2u, script.Messages().size());
    EXPECT_EQ("Title", script.Messages()[0].title);
    ASSERT_EQ(2u, script.Messages()[0].buttons.size());
    EXPECT_EQ(IDYES, script.Messages()[0].buttons[0].id);
    EXPECT_EQ(IDNO, script.Messages()[0].buttons[1].id);
    EXPECT_EQ(IDYES, script.Messages()[0].focusId);
}

TEST(DialogScript, AnswersAMessageThatStandsAlone) {
    DialogScript script;
    script.Answer(IDOK, "alone");
    EXPECT_EQ(IDOK, script.Run([] { return MessageBoxA(nullptr, "alone", "Title", MB_OK); }));
}

TEST(DialogScript, EntersAndLeavesANestedDialog) {
    DialogTemplate innerShape("Inner", 100, 60);
    innerShape.Edit(kEdit, 10, 10).DefaultButton("OK", IDOK, 10, 30);
    std::string typed;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message == WM_COMMAND && LOWORD(wParam) == kButton) {
            TestDialog inner([&](HWND in, UINT msg, WPARAM w, LPARAM) -> INT_PTR {
                if (msg == WM_COMMAND && LOWORD(w) == IDOK)
                    typed = test_support::TextOf(GetDlgItem(in, kEdit));
                return TestDialog::EndOnCommand(in, msg, w);
            });
            inner.Run(innerShape, dlg);
            return TRUE;
        }
        return FillControls(dlg, message, wParam, lParam);
    });
    DialogTemplate shape = EverySort();
    DialogScript script;
    script.Click(kButton)
        .EnterDialog()
        .ExpectTitle("Inner")
        .Type(kEdit, "7")
        .Click(IDOK)
        .ExpectTitle("Every sort")
        .Do([&] { EXPECT_EQ("7", typed); })
        .Click(IDOK);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogScript, DrivesAModelessDialog) {
    TestDialog dialog(FillControls);
    DialogTemplate shape = EverySort();
    HWND handle = dialog.Create(shape);
    ShowWindow(handle, SW_SHOW);
    DialogScript script;
    script.Type(kEdit, "modeless").Press(VK_TAB).ExpectFocus(kCheck).ExpectText(kEdit, "modeless");
    script.RunModeless(handle);
    EXPECT_FALSE(script.Failed());
    DestroyWindow(handle);
}

// A script that goes wrong fails its test and ends the dialog; each of these would hang otherwise.
class FailingScript : public testing::Test {
  protected:
    // Runs the script on a dialog and gives the text of the failure that it must report.
    static std::string FailureOf(DialogScript& script, TestDialog::Handler handler = FillControls) {
        TestDialog dialog(handler);
        DialogTemplate shape = EverySort();
        testing::TestPartResultArray failures;
        {
            testing::ScopedFakeTestPartResultReporter reporter(
                testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD,
                &failures);
            script.Run([&] { return dialog.Run(shape); });
        }
        EXPECT_EQ(1, failures.size());
        return failures.size() ? failures.GetTestPartResult(0).message() : "";
    }
};

TEST_F(FailingScript, MissingControl) {
    DialogScript script;
    script.Click(999).Click(IDOK);
    EXPECT_NE(std::string::npos, FailureOf(script).find("there is no control 999"));
}

TEST_F(FailingScript, DisabledControl) {
    DialogScript script;
    script.Do([](HWND dlg) { EnableWindow(GetDlgItem(dlg, kButton), FALSE); }).Click(kButton);
    EXPECT_NE(std::string::npos, FailureOf(script).find("control 106, which is disabled"));
}

TEST_F(FailingScript, UnexpectedMessage) {
    const auto handler = [](HWND dlg, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
        if (message == WM_COMMAND && LOWORD(wParam) == kButton)
            return MessageBoxA(dlg, "Surprise", "Title", MB_OK) != 0;
        return FillControls(dlg, message, wParam, lParam);
    };
    DialogScript script;
    script.Click(kButton).Click(IDOK);
    EXPECT_NE(
        std::string::npos,
        FailureOf(script, handler).find("an unexpected message appears: \"Title\": \"Surprise\""));
}

TEST_F(FailingScript, DialogLeftOpen) {
    DialogScript script;
    script.Click(kCheck);
    EXPECT_NE(std::string::npos,
              FailureOf(script).find("the script is over and the dialog is still open"));
}

TEST_F(FailingScript, StepsLeft) {
    DialogScript script;
    script.Click(IDOK).Click(kCheck).Click(kCheck);
    EXPECT_NE(std::string::npos, FailureOf(script).find("2 steps are left"));
}

TEST_F(FailingScript, TimeLimit) {
    DialogScript script(200);
    script.Wait(100000).Click(IDOK);
    EXPECT_NE(std::string::npos, FailureOf(script).find("takes longer than its 200 ms"));
}

}  // namespace
