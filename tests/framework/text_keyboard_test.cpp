// The keys that a text field takes for itself.
#include <gtest/gtest.h>

#include "ControlHost.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_Text.h"

namespace {

using framework_test::ControlHost;
using framework_test::HoldShift;
using framework_test::KeyDown;
using framework_test::KeyUp;
using framework_test::Stroke;
using framework_test::TypeText;
using test_support::TextOf;

class TextKeyboard : public testing::Test {
  protected:
    TextKeyboard() {
        hWnd = host.BindEdit(field, 10, "text");
        KeyUp(hWnd, 'A');
        host.log.Take();
    }
    ~TextKeyboard() override { HoldShift(false); }

    ControlHost host;
    ADM_Text field;
    HWND hWnd = nullptr;
};

TEST_F(TextKeyboard, ArrowsBecomeNotifications) {
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(host.log.Take(), "307(10) 306(10)");
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(host.log.Take(), "308(10) 306(10)");
    HoldShift(true);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(host.log.Take(), "309(10) 306(10)");
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(host.log.Take(), "310(10) 306(10)");
}

TEST_F(TextKeyboard, ArrowsReachTheParentAsCommands) {
    host.window.Notifications().Take();
    std::string sSeen;
    host.window.OnMessage([&](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT*) {
        if (uMsg != WM_COMMAND) return false;
        EXPECT_EQ(LOWORD(wParam), 10);
        EXPECT_EQ(reinterpret_cast<HWND>(lParam), hWnd);
        sSeen += std::to_string(HIWORD(wParam)) + " ";
        return true;
    });
    Stroke(hWnd, VK_UP);
    Stroke(hWnd, VK_DOWN);
    HoldShift(true);
    Stroke(hWnd, VK_UP);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(sSeen, "501 500 502 500 503 500 504 500 ");
}

TEST_F(TextKeyboard, ArrowsDoNotMoveTheCaret) {
    field.SetFocus();
    field.SetSel(4, 4);
    Stroke(hWnd, VK_UP);
    DWORD dwStart = 0;
    SendMessageA(hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), 0);
    EXPECT_EQ(dwStart, 4u);
    Stroke(hWnd, VK_LEFT);
    SendMessageA(hWnd, EM_GETSEL, reinterpret_cast<WPARAM>(&dwStart), 0);
    EXPECT_EQ(dwStart, 3u);
}

TEST_F(TextKeyboard, AHeldArrowStepsAtMostOncePer20Milliseconds) {
    const DWORD dwStart = GetTickCount();
    int nSteps = 0;
    for (int i = 0; i < 12; ++i) {
        KeyDown(hWnd, VK_UP);
        if (host.log.Take() == "307(10)") ++nSteps;
        Sleep(5);
    }
    const auto nElapsed = static_cast<int>(GetTickCount() - dwStart);
    EXPECT_GE(nSteps, 2);
    EXPECT_LE(nSteps, nElapsed / 20 + 1);
    KeyUp(hWnd, VK_UP);
}

TEST_F(TextKeyboard, TheThrottleIsOneForAllFieldsAndEndsWithTheKey) {
    ADM_Text other;
    const HWND hOther = host.BindEdit(other, 11);
    host.log.Take();
    // Two keys in the same moment, whichever the fields; tried again should the clock tick between.
    std::string sLog;
    for (int i = 0; i < 50 && sLog != "307(10)"; ++i) {
        KeyUp(hWnd, 'A');
        host.log.Take();
        KeyDown(hWnd, VK_UP);
        KeyDown(hOther, VK_DOWN);
        sLog = host.log.Take();
    }
    EXPECT_EQ(sLog, "307(10)");
    KeyUp(hWnd, VK_UP);
    host.log.Take();
    KeyDown(hOther, VK_DOWN);
    EXPECT_EQ(host.log.Take(), "308(11)");
    KeyUp(hOther, VK_DOWN);
}

TEST_F(TextKeyboard, OtherKeysPass) {
    field.SetFocus();
    field.SetSel(0, 0);
    Stroke(hWnd, VK_END);
    Stroke(hWnd, VK_DELETE);
    TypeText(hWnd, "!");
    EXPECT_EQ(TextOf(hWnd), "text!");
}

// A field that answers for itself what the parent asks it.
class Choosy : public ADM_Text {
  public:
    LRESULT OnChar(HWND, int nChar) override { return nChar != 'x'; }
    LRESULT OnGetDlgCode(HWND hWnd) override { return ADM_Text::OnGetDlgCode(hWnd) | DLGC_WANTTAB; }
};

TEST(TextParent, IsAskedForCharactersAndTheDialogCode) {
    ControlHost host;
    Choosy field;
    const HWND hWnd = host.BindEdit(field);
    TypeText(hWnd, "axbxc");
    EXPECT_EQ(TextOf(hWnd), "abc");
    const LRESULT nCode = SendMessageA(hWnd, WM_GETDLGCODE, 0, 0);
    EXPECT_EQ(nCode & DLGC_WANTTAB, DLGC_WANTTAB);
    EXPECT_EQ(nCode & DLGC_HASSETSEL, DLGC_HASSETSEL);
    EXPECT_EQ(nCode & DLGC_WANTCHARS, DLGC_WANTCHARS);
}

TEST(TextParent, GetsCharacterAndIdInItsQuestion) {
    ControlHost host;
    Choosy field;
    const HWND hWnd = host.BindEdit(field, 33);
    WPARAM wChar = 0;
    LPARAM lId = 0;
    host.window.OnMessage([&](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
        if (uMsg != 0x8067) return false;
        wChar = wParam;
        lId = lParam;
        *pResult = 1;
        return true;
    });
    TypeText(hWnd, "q");
    EXPECT_EQ(wChar, static_cast<WPARAM>('q'));
    EXPECT_EQ(lId, 33);
    EXPECT_EQ(TextOf(hWnd), "q");
}

TEST(TextParent, ThatKnowsNoAnswerDropsTheCharacter) {
    ControlHost host;
    ADM_Text field;
    const HWND hWnd = host.BindEdit(field);
    host.window.OnMessage(nullptr);
    TypeText(hWnd, "q");
    EXPECT_EQ(TextOf(hWnd), "");
}

TEST(TextCommands, EditCodesBecomeNotifications) {
    framework_test::NotificationLog log;
    ADM_Text field;
    field.SetNotifyTarget(&log);
    struct Row {
        int nRaw;
        const char* szLine;
    };
    const Row kRows[] = {
        {EN_SETFOCUS, "201(5)"},
        {EN_KILLFOCUS, "202(5)"},
        {EN_CHANGE, "300(5)"},
        {EN_UPDATE, "301(5)"},
        {EN_ERRSPACE, "302(5)"},
        {EN_MAXTEXT, "303(5)"},
        {EN_HSCROLL, "304(5)"},
        {EN_VSCROLL, "305(5)"},
        {500, "306(5)"},
        {501, "307(5)"},
        {502, "308(5)"},
        {503, "309(5)"},
        {504, "310(5)"},
        {505, ""},
        {0, ""},
    };
    for (const Row& row : kRows) {
        field.OnCommand(nullptr, 5, nullptr, row.nRaw);
        EXPECT_EQ(log.Take(), row.szLine) << row.nRaw;
    }
}

TEST(TextOperations, ReachTheEdit) {
    ControlHost host;
    ADM_Text field;
    const HWND hWnd = host.Bind(field, "Edit", "one\r\ntwo\r\nthree", 10,
                                WS_TABSTOP | ES_MULTILINE | ES_AUTOVSCROLL, 10, 10, 120, 60);
    EXPECT_EQ(field.GetLineCount(), 3);
    EXPECT_EQ(field.GetFirstVisibleLine(), 0);
    field.SetModify(0);
    EXPECT_EQ(field.GetModify(), 0);
    field.SetModify(1);
    EXPECT_EQ(field.GetModify(), 1);
    field.SetSel(0, 3);
    field.Cut();
    EXPECT_EQ(TextOf(hWnd), "\r\ntwo\r\nthree");
    EXPECT_EQ(field.Undo(), 1);
    EXPECT_EQ(TextOf(hWnd), "one\r\ntwo\r\nthree");
    field.SetSel(0, 3);
    field.Copy();
    field.SetSel(0, -1);
    field.Paste();
    EXPECT_EQ(TextOf(hWnd), "one");
    field.LimitText(4);
    field.SetSel(3, 3);
    TypeText(hWnd, "abc");
    EXPECT_EQ(TextOf(hWnd), "onea");
}

}  // namespace
