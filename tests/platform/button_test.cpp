// Buttons and static controls: check rules, notifications, default styles.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::PumpMessages;
using test_support::RecordingWindow;
using test_support::TestDialog;

constexpr int kId = 101, kSecond = 102, kThird = 103, kOther = 104;

LRESULT State(HWND button) {
    return SendMessageA(button, BM_GETCHECK, 0, 0);
}

void ClickWith(HWND hwnd, int x = 5, int y = 5) {
    SendMessageA(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageA(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

TEST(Button, AClickSendsClickedOnce) {
    RecordingWindow window;
    HWND button = window.Add("Button", "Push", kId, BS_PUSHBUTTON);
    window.Notifications().Take();
    SendMessageA(button, BM_CLICK, 0, 0);
    EXPECT_EQ("BN_CLICKED(101)", window.Notifications().Take());
    ClickWith(button);
    EXPECT_EQ("BN_CLICKED(101)", window.Notifications().Take());
}

TEST(Button, ReleasingOutsideIsNoClick) {
    RecordingWindow window;
    HWND button = window.Add("Button", "Push", kId, BS_PUSHBUTTON);
    SendMessageA(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(button, GetCapture());
    EXPECT_EQ(BST_PUSHED, SendMessageA(button, BM_GETSTATE, 0, 0) & BST_PUSHED);
    SendMessageA(button, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 500));
    EXPECT_EQ(0, SendMessageA(button, BM_GETSTATE, 0, 0) & BST_PUSHED);
    window.Notifications().Take();
    SendMessageA(button, WM_LBUTTONUP, 0, MAKELPARAM(500, 500));
    EXPECT_EQ("", window.Notifications().Take());
    EXPECT_EQ(nullptr, GetCapture());
}

TEST(Button, AMouseClickTakesTheFocus) {
    RecordingWindow window;
    HWND first = window.Add("Button", "A", kId, BS_PUSHBUTTON);
    HWND second = window.Add("Button", "B", kSecond, BS_PUSHBUTTON, 10, 50);
    SetFocus(first);
    ClickWith(second);
    EXPECT_EQ(second, GetFocus());
}

TEST(Button, AutoCheckBoxToggles) {
    RecordingWindow window;
    HWND box = window.Add("Button", "Check", kId, BS_AUTOCHECKBOX);
    EXPECT_EQ(BST_UNCHECKED, State(box));
    SendMessageA(box, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_CHECKED, State(box));
    SendMessageA(box, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_UNCHECKED, State(box));
}

TEST(Button, AutoThreeStateCycles) {
    RecordingWindow window;
    HWND box = window.Add("Button", "Three", kId, BS_AUTO3STATE);
    for (int wanted : {BST_CHECKED, BST_INDETERMINATE, BST_UNCHECKED, BST_CHECKED}) {
        SendMessageA(box, BM_CLICK, 0, 0);
        EXPECT_EQ(wanted, State(box));
    }
}

TEST(Button, PlainCheckBoxAndRadioOnlyNotify) {
    RecordingWindow window;
    HWND check = window.Add("Button", "Check", kId, BS_CHECKBOX);
    HWND radio = window.Add("Button", "Radio", kSecond, BS_RADIOBUTTON, 10, 50);
    window.Notifications().Take();
    SendMessageA(check, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_UNCHECKED, State(check));
    SendMessageA(radio, BM_CLICK, 0, 0);
    EXPECT_EQ(BST_UNCHECKED, State(radio));
    EXPECT_NE(std::string::npos, window.Notifications().Take().find("BN_CLICKED(101)"));
}

TEST(Button, SettingTheCheckNotifiesNobody) {
    RecordingWindow window;
    HWND box = window.Add("Button", "Check", kId, BS_AUTOCHECKBOX);
    HWND radio = window.Add("Button", "Radio", kSecond, BS_AUTORADIOBUTTON, 10, 50);
    window.Notifications().Take();
    SendMessageA(box, BM_SETCHECK, BST_CHECKED, 0);
    SendMessageA(radio, BM_SETCHECK, BST_CHECKED, 0);
    CheckDlgButton(window, kId, BST_UNCHECKED);
    CheckRadioButton(window, kSecond, kSecond, kSecond);
    EXPECT_EQ("", window.Notifications().Take());
}

TEST(Button, AThirdStateNeedsAThreeStateButton) {
    RecordingWindow window;
    HWND box = window.Add("Button", "Check", kId, BS_AUTOCHECKBOX);
    SendMessageA(box, BM_SETCHECK, BST_INDETERMINATE, 0);
    EXPECT_EQ(BST_CHECKED, State(box));
    HWND push = window.Add("Button", "Push", kSecond, BS_PUSHBUTTON, 10, 50);
    SendMessageA(push, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_EQ(BST_UNCHECKED, State(push));
}

TEST(Button, AutoRadioUnchecksItsGroupOnly) {
    DialogTemplate shape("Radio", 200, 100);
    shape.Radio("A", kId, 5, 5, WS_GROUP | WS_TABSTOP)
        .Radio("B", kSecond, 5, 17)
        .Radio("C", kThird, 5, 29, WS_GROUP | WS_TABSTOP)
        .Radio("D", kOther, 5, 41)
        .DefaultButton("OK", IDOK, 5, 70, WS_GROUP);
    TestDialog dialog;
    DialogScript script;
    script.Click(kId)
        .Click(kThird)
        .Click(kSecond)
        .ExpectChecked(kId, BST_UNCHECKED)
        .ExpectChecked(kSecond, BST_CHECKED)
        .ExpectChecked(kThird, BST_CHECKED)
        .Click(kOther)
        .ExpectChecked(kThird, BST_UNCHECKED)
        .ExpectChecked(kSecond, BST_CHECKED)
        .Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(Button, AClickedRadioTakesTheTabStopOfItsGroup) {
    DialogTemplate shape("Radio", 200, 100);
    shape.Radio("A", kId, 5, 5, WS_GROUP | WS_TABSTOP)
        .Radio("B", kSecond, 5, 17)
        .DefaultButton("OK", IDOK, 5, 70, WS_GROUP);
    TestDialog dialog;
    DialogScript script;
    script.Click(kSecond)
        .Do([](HWND dlg) {
            EXPECT_EQ(0, GetWindowLongA(GetDlgItem(dlg, kId), GWL_STYLE) & WS_TABSTOP);
            EXPECT_EQ(WS_TABSTOP, GetWindowLongA(GetDlgItem(dlg, kSecond), GWL_STYLE) & WS_TABSTOP);
        })
        .Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(Button, CheckRadioButtonChecksOneOfARange) {
    DialogTemplate shape("Radio", 200, 100);
    shape.Radio("A", kId, 5, 5, WS_GROUP | WS_TABSTOP)
        .Radio("B", kSecond, 5, 17)
        .Radio("C", kThird, 5, 29);
    TestDialog dialog;
    HWND handle = dialog.Create(shape);
    EXPECT_TRUE(CheckRadioButton(handle, kId, kThird, kSecond));
    EXPECT_EQ(BST_CHECKED, static_cast<int>(IsDlgButtonChecked(handle, kSecond)));
    EXPECT_TRUE(CheckRadioButton(handle, kId, kThird, kThird));
    EXPECT_EQ(BST_UNCHECKED, static_cast<int>(IsDlgButtonChecked(handle, kSecond)));
    EXPECT_EQ(BST_CHECKED, static_cast<int>(IsDlgButtonChecked(handle, kThird)));
    EXPECT_EQ(0u, IsDlgButtonChecked(handle, 999));
    DestroyWindow(handle);
}

TEST(Button, DisabledIgnoresTheMouse) {
    DialogTemplate shape("Disabled", 200, 100);
    shape.CheckBox("Check", kId, 5, 5, WS_DISABLED).DefaultButton("OK", IDOK, 5, 70);
    TestDialog dialog;
    HWND handle = dialog.Create(shape);
    HWND box = GetDlgItem(handle, kId);
    EXPECT_FALSE(IsWindowEnabled(box));
    EXPECT_TRUE(EnableWindow(box, TRUE));
    EXPECT_TRUE(IsWindowEnabled(box));
    EXPECT_FALSE(EnableWindow(box, FALSE));
    DestroyWindow(handle);
}

TEST(Button, AnswersDialogCodesByItsKind) {
    RecordingWindow window;
    const auto code = [&](DWORD style) {
        HWND button = window.Add("Button", "x", kId, style);
        const auto result = static_cast<int>(SendMessageA(button, WM_GETDLGCODE, 0, 0));
        DestroyWindow(button);
        return result;
    };
    EXPECT_EQ(DLGC_BUTTON | DLGC_UNDEFPUSHBUTTON, code(BS_PUSHBUTTON));
    EXPECT_EQ(DLGC_BUTTON | DLGC_DEFPUSHBUTTON, code(BS_DEFPUSHBUTTON));
    EXPECT_EQ(DLGC_BUTTON, code(BS_AUTOCHECKBOX));
    EXPECT_EQ(DLGC_BUTTON | DLGC_RADIOBUTTON, code(BS_AUTORADIOBUTTON));
    EXPECT_EQ(DLGC_STATIC, code(BS_GROUPBOX));
}

TEST(Button, StyleCanChangeByMessage) {
    RecordingWindow window;
    HWND button = window.Add("Button", "x", kId, BS_PUSHBUTTON | WS_TABSTOP);
    SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
    const LONG style = GetWindowLongA(button, GWL_STYLE);
    EXPECT_EQ(BS_DEFPUSHBUTTON, style & BS_TYPEMASK);
    EXPECT_EQ(WS_TABSTOP, style & WS_TABSTOP);
    EXPECT_EQ(WS_VISIBLE, style & WS_VISIBLE);
}

TEST(Button, FocusIsNotifiedOnlyWithNotifyStyle) {
    RecordingWindow window;
    HWND loud = window.Add("Button", "A", kId, BS_PUSHBUTTON | BS_NOTIFY);
    HWND quiet = window.Add("Button", "B", kSecond, BS_PUSHBUTTON, 10, 50);
    SetFocus(quiet);
    window.Notifications().Take();
    SetFocus(loud);
    EXPECT_EQ("BN_SETFOCUS(101)", window.Notifications().Take());
    SetFocus(quiet);
    EXPECT_EQ("BN_KILLFOCUS(101)", window.Notifications().Take());
}

TEST(Button, AnAutoRadioThatTakesTheFocusByKeysIsChecked) {
    // The focus alone, given by a program, does not check.
    RecordingWindow window;
    HWND radio = window.Add("Button", "R", kId, BS_AUTORADIOBUTTON);
    SetFocus(radio);
    EXPECT_EQ(BST_UNCHECKED, State(radio));
}

TEST(Button, OwnerDrawnAsksItsParentToDraw) {
    RecordingWindow window;
    UINT itemId = 0, kind = 0;
    window.OnMessage([&](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
        if (message != WM_DRAWITEM) return false;
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        itemId = item.CtlID;
        kind = item.CtlType;
        *result = TRUE;
        return true;
    });
    HWND button = window.Add("Button", "x", kId, BS_OWNERDRAW);
    UpdateWindow(button);
    EXPECT_EQ(static_cast<UINT>(kId), itemId);
    EXPECT_EQ(static_cast<UINT>(ODT_BUTTON), kind);
}

TEST(Button, KeepsABitmapGivenByMessage) {
    RecordingWindow window;
    HWND button = window.Add("Button", "x", kId, BS_PUSHBUTTON | BS_BITMAP);
    HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    EXPECT_EQ(0, SendMessageA(button, BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(bitmap),
              SendMessageA(button, BM_GETIMAGE, IMAGE_BITMAP, 0));
    DestroyWindow(button);
    EXPECT_TRUE(DeleteObject(bitmap));
}

TEST(Static, NotifiesAClickOnlyWithNotifyStyle) {
    RecordingWindow window;
    HWND loud = window.Add("Static", "A", kId, SS_LEFT | SS_NOTIFY);
    HWND quiet = window.Add("Static", "B", kSecond, SS_LEFT, 10, 50);
    window.Notifications().Take();
    ClickWith(quiet);
    EXPECT_EQ("", window.Notifications().Take());
    ClickWith(loud);
    EXPECT_EQ("STN_CLICKED(101)", window.Notifications().Take());
    SendMessageA(loud, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ("STN_DBLCLK(101)", window.Notifications().Take());
}

TEST(Static, TakesNeitherFocusNorKeys) {
    RecordingWindow window;
    HWND label = window.Add("Static", "A", kId, SS_LEFT);
    EXPECT_EQ(DLGC_STATIC, SendMessageA(label, WM_GETDLGCODE, 0, 0));
    // Only with notification is it there for the mouse.
    EXPECT_EQ(static_cast<LRESULT>(static_cast<int>(HTTRANSPARENT)),
              SendMessageA(label, WM_NCHITTEST, 0, 0));
    HWND loud = window.Add("Static", "B", kSecond, SS_LEFT | SS_NOTIFY, 10, 50);
    EXPECT_EQ(HTCLIENT, SendMessageA(loud, WM_NCHITTEST, 0, 0));
}

TEST(Static, KeepsItsTextWithAmpersandsAndHighBytes) {
    RecordingWindow window;
    HWND label = window.Add("Static", "&Temp \xB0\x43", kId, SS_LEFT);
    EXPECT_EQ("&Temp \xB0\x43", test_support::TextOf(label));
    SetWindowTextA(label, "");
    EXPECT_EQ("", test_support::TextOf(label));
    SetWindowTextA(label, nullptr);
    EXPECT_EQ(0, GetWindowTextLengthA(label));
}

TEST(Static, HoldsABitmapAndTakesItsSize) {
    RecordingWindow window;
    HWND picture = window.Add("Static", "", kId, SS_BITMAP, 10, 10, 50, 50);
    HBITMAP bitmap = CreateBitmap(12, 7, 1, 1, nullptr);
    EXPECT_EQ(0,
              SendMessageA(picture, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(bitmap),
              SendMessageA(picture, STM_GETIMAGE, IMAGE_BITMAP, 0));
    RECT rect = {};
    GetClientRect(picture, &rect);
    EXPECT_EQ(12, rect.right);
    EXPECT_EQ(7, rect.bottom);
    DestroyWindow(picture);
    DeleteObject(bitmap);
}

TEST(DialogItems, TextAndNumbersByControlId) {
    DialogTemplate shape("Items", 200, 100);
    shape.Edit(kId, 5, 5).Label("label", kSecond, 5, 25);
    TestDialog dialog;
    HWND handle = dialog.Create(shape);
    char text[32] = "";
    EXPECT_TRUE(SetDlgItemTextA(handle, kId, "abc"));
    EXPECT_EQ(3u, GetDlgItemTextA(handle, kId, text, sizeof text));
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(2u, GetDlgItemTextA(handle, kId, text, 3));
    EXPECT_STREQ("ab", text);
    EXPECT_EQ(0u, GetDlgItemTextA(handle, 999, text, sizeof text));
    EXPECT_STREQ("", text);
    EXPECT_FALSE(SetDlgItemTextA(handle, 999, "x"));

    EXPECT_TRUE(SetDlgItemInt(handle, kId, static_cast<UINT>(-12), TRUE));
    EXPECT_EQ("-12", test_support::TextOf(GetDlgItem(handle, kId)));
    BOOL good = FALSE;
    EXPECT_EQ(static_cast<UINT>(-12), GetDlgItemInt(handle, kId, &good, TRUE));
    EXPECT_TRUE(good);
    SetDlgItemTextA(handle, kId, "  42x");
    // Digits up to the first other character count.
    EXPECT_EQ(42u, GetDlgItemInt(handle, kId, &good, FALSE));
    EXPECT_TRUE(good);
    SetDlgItemTextA(handle, kId, "x42");
    EXPECT_EQ(0u, GetDlgItemInt(handle, kId, &good, FALSE));
    EXPECT_FALSE(good);
    SetDlgItemInt(handle, kId, 4000000000u, FALSE);
    EXPECT_EQ("4000000000", test_support::TextOf(GetDlgItem(handle, kId)));
    DestroyWindow(handle);
}

}  // namespace
