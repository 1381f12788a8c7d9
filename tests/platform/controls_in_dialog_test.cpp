// Edits, lists and combo boxes under a user's keys and mouse in a modal dialog: what reaches them
// and what stays with the dialog.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/DialogScript.h"
#include "fixtures/DialogTemplate.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::kControl;
using test_support::kShift;
using test_support::SelectedPart;
using test_support::TestDialog;

constexpr int kName = 101, kNotes = 102, kKind = 103, kValue = 104, kItems = 105;

class ControlsInDialog : public testing::Test {
  protected:
    ControlsInDialog()
        : m_dialog([this](HWND dialog, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
              if (message != WM_INITDIALOG) {
                  return TestDialog::EndOnCommand(dialog, message, wParam);
              }
              for (const char* text : {"alpha", "beta", "gamma"}) {
                  const LPARAM item = reinterpret_cast<LPARAM>(text);
                  SendDlgItemMessageA(dialog, kKind, CB_ADDSTRING, 0, item);
                  SendDlgItemMessageA(dialog, kValue, CB_ADDSTRING, 0, item);
                  SendDlgItemMessageA(dialog, kItems, LB_ADDSTRING, 0, item);
              }
              SendDlgItemMessageA(dialog, kKind, CB_SETCURSEL, 0, 0);
              SetDlgItemTextA(dialog, kName, "name");
              return TRUE;
          }),
          m_shape("Controls", 220, 120) {
        m_shape.Edit(kName, 10, 10)
            .Control("Edit", "", kNotes, ES_MULTILINE | ES_AUTOVSCROLL | WS_TABSTOP, 10, 30, 80, 40)
            .DropDownList(kKind, 110, 10)
            .DropDown(kValue, 110, 30)
            .ListBox(kItems, 110, 50, 60, 40)
            .DefaultButton("OK", IDOK, 10, 100)
            .PushButton("Cancel", IDCANCEL, 70, 100);
    }
    INT_PTR Run(DialogScript& script) {
        return script.Run([this] { return m_dialog.Run(m_shape); });
    }
    HWND Item(int id) { return GetDlgItem(m_dialog.Handle(), id); }

    TestDialog m_dialog;
    DialogTemplate m_shape;
};

TEST_F(ControlsInDialog, TabSelectsTheWholeTextOfAnEdit) {
    DialogScript script;
    script.ExpectFocus(kName)
        .Do([&] { EXPECT_EQ("name", SelectedPart(Item(kName))); })
        .TypeKeys("x")
        .ExpectText(kName, "x")
        .Press(VK_TAB)
        .ExpectFocus(kNotes)
        .Press(VK_TAB, kShift)
        .Do([&] { EXPECT_EQ("x", SelectedPart(Item(kName))); })
        .Press(VK_RETURN);
    EXPECT_EQ(IDOK, Run(script));
}

TEST_F(ControlsInDialog, EnterInSeveralLinesPressesTheDefaultButton) {
    DialogScript script;
    script.Focus(kNotes).TypeKeys("ab").Press(VK_RETURN);
    EXPECT_EQ(IDOK, Run(script));
}

TEST_F(ControlsInDialog, TabLeavesSeveralLines) {
    DialogScript script;
    script.Focus(kNotes)
        .TypeKeys("ab")
        .Press(VK_TAB)
        .ExpectText(kNotes, "ab")
        .ExpectFocus(kKind)
        .Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, Run(script));
}

TEST_F(ControlsInDialog, EnterAndEscapeBelongToAnOpenList) {
    DialogScript script;
    script.Focus(kKind)
        .Press(VK_F4)
        .Press(VK_DOWN)
        .Press(VK_RETURN)
        .ExpectSelected(kKind, "beta")
        .Do([&] { EXPECT_EQ(FALSE, SendMessageA(Item(kKind), CB_GETDROPPEDSTATE, 0, 0)); })
        .Press(VK_F4)
        .Press(VK_ESCAPE)
        .Do([&] { EXPECT_EQ(FALSE, SendMessageA(Item(kKind), CB_GETDROPPEDSTATE, 0, 0)); })
        .ExpectTitle("Controls")
        .Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, Run(script));
}

TEST_F(ControlsInDialog, EnterAndEscapeBelongToAnOpenListWithAnEdit) {
    DialogScript script;
    script.Focus(kValue)
        .Press(VK_F4)
        .Press(VK_DOWN)
        .Press(VK_RETURN)
        .ExpectText(kValue, "alpha")
        .Press(VK_F4)
        .Press(VK_ESCAPE)
        .ExpectTitle("Controls")
        .Press(VK_RETURN);
    EXPECT_EQ(IDOK, Run(script));
}

TEST_F(ControlsInDialog, TypingAndKeysInTheEditOfAComboBox) {
    DialogScript script;
    script.Type(kValue, "12.5")
        .ExpectText(kValue, "12.5")
        .Do([&] { EXPECT_EQ(CB_ERR, SendMessageA(Item(kValue), CB_GETCURSEL, 0, 0)); })
        .Press(VK_DOWN)
        .ExpectText(kValue, "alpha")
        .Press(VK_DOWN)
        .ExpectText(kValue, "beta")
        .Press(VK_TAB)
        .ExpectFocus(kItems)
        .Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, Run(script));
}

TEST_F(ControlsInDialog, ArrowsStayInListsAndLettersChoose) {
    DialogScript script;
    script.Focus(kItems)
        .Press(VK_DOWN)
        .ExpectSelected(kItems, "alpha")
        .Press(VK_DOWN)
        .ExpectSelected(kItems, "beta")
        .ExpectFocus(kItems)
        .TypeKeys("g")
        .ExpectSelected(kItems, "gamma")
        .Focus(kKind)
        .TypeKeys("b")
        .ExpectSelected(kKind, "beta")
        .Press(VK_RETURN);
    EXPECT_EQ(IDOK, Run(script));
}

TEST_F(ControlsInDialog, ChoosingWithTheMouse) {
    DialogScript script;
    script.Choose(kKind, "gamma")
        .ExpectSelected(kKind, "gamma")
        .Choose(kValue, "beta")
        .ExpectText(kValue, "beta")
        .Choose(kItems, 2)
        .ExpectSelected(kItems, "gamma")
        .Click(IDOK);
    EXPECT_EQ(IDOK, Run(script));
}

TEST_F(ControlsInDialog, ClipboardKeysFromTheKeyboard) {
    DialogScript script;
    script.ExpectFocus(kName)
        .Press('C', kControl)
        .Focus(kNotes)
        .Press('V', kControl)
        .Press('V', kControl)
        .ExpectText(kNotes, "namename")
        .Press('Z', kControl)
        .ExpectText(kNotes, "")
        .Click(IDOK);
    EXPECT_EQ(IDOK, Run(script));
}

class WantReturnInDialog : public ControlsInDialog {
  protected:
    WantReturnInDialog() {
        m_shape = DialogTemplate("Controls", 220, 120);
        m_shape
            .Control("Edit", "", kNotes, ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN | WS_TABSTOP,
                     10, 30, 80, 40)
            .DefaultButton("OK", IDOK, 10, 100)
            .PushButton("Cancel", IDCANCEL, 70, 100);
    }
};

TEST_F(WantReturnInDialog, EnterGoesIntoTheText) {
    DialogScript script;
    script.ExpectFocus(kNotes)
        .TypeKeys("a")
        .Press(VK_RETURN)
        .TypeKeys("b")
        .ExpectText(kNotes, "a\r\nb")
        .Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, Run(script));
}

}  // namespace
