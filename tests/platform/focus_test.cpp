// Focus, activation and capture.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::PumpMessages;
using test_support::RecordingWindow;

TEST(Focus, MovesWithItsMessagesAndNotifications) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0), b = window.Add("Edit", "", 2, 0, 10, 50);
    SetFocus(a);
    EXPECT_EQ(a, GetFocus());
    window.Notifications().Take();
    EXPECT_EQ(a, SetFocus(b));
    EXPECT_EQ(b, GetFocus());
    EXPECT_EQ("EN_KILLFOCUS(1) EN_SETFOCUS(2)", window.Notifications().Take());
}

TEST(Focus, OnTheSameControlAgainSaysNothing) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "", 1, 0);
    SetFocus(edit);
    window.Notifications().Take();
    EXPECT_EQ(edit, SetFocus(edit));
    EXPECT_EQ("", window.Notifications().Take());
}

TEST(Focus, ADisabledControlCannotTakeIt) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0), b = window.Add("Edit", "", 2, WS_DISABLED, 10, 50);
    SetFocus(a);
    EXPECT_EQ(nullptr, SetFocus(b));
    EXPECT_EQ(a, GetFocus());
}

TEST(Focus, AChildOfADisabledWindowCannotTakeIt) {
    RecordingWindow window;
    HWND group = window.Add("Static", "", 1, WS_DISABLED, 0, 0, 100, 100);
    HWND edit = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 20, 20, group, nullptr,
                                GetModuleHandleA(nullptr), nullptr);
    SetFocus(window);
    SetFocus(edit);
    EXPECT_EQ(window.Handle(), GetFocus());
}

TEST(Focus, LeavesAControlThatIsDisabled) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0);
    SetFocus(a);
    window.Notifications().Take();
    EnableWindow(a, FALSE);
    EXPECT_EQ(nullptr, GetFocus());
    EXPECT_EQ("EN_KILLFOCUS(1)", window.Notifications().Take());
}

TEST(Focus, MovesToTheParentWhenItsControlIsHidden) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0);
    SetFocus(a);
    ShowWindow(a, SW_HIDE);
    EXPECT_EQ(window.Handle(), GetFocus());
}

TEST(Focus, LeavesAControlThatIsDestroyed) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0);
    SetFocus(a);
    DestroyWindow(a);
    EXPECT_NE(a, GetFocus());
    EXPECT_FALSE(IsWindow(a));
}

TEST(Focus, CanBeTakenFromAll) {
    RecordingWindow window;
    HWND a = window.Add("Edit", "", 1, 0);
    SetFocus(a);
    EXPECT_EQ(a, SetFocus(nullptr));
    EXPECT_EQ(nullptr, GetFocus());
}

TEST(Activation, FollowsTheFocusToAnotherTopLevelWindow) {
    RecordingWindow first, second;
    HWND edit = first.Add("Edit", "", 1, 0);
    SetActiveWindow(second);
    EXPECT_EQ(second.Handle(), GetActiveWindow());
    first.Messages().Take();
    SetFocus(edit);
    EXPECT_EQ(first.Handle(), GetActiveWindow());
    EXPECT_EQ(edit, GetFocus());
    EXPECT_NE(std::string::npos, first.Messages().Take().find("WM_ACTIVATE"));
}

TEST(Activation, APlainWindowGivesItselfTheFocus) {
    RecordingWindow first, second;
    SetActiveWindow(first);
    EXPECT_EQ(first.Handle(), GetFocus());
    SetActiveWindow(second);
    EXPECT_EQ(second.Handle(), GetFocus());
}

TEST(Activation, ADialogRemembersItsFocus) {
    RecordingWindow other;
    test_support::DialogTemplate shape("Remember", 100, 60);
    shape.Edit(1, 5, 5).Edit(2, 5, 25);
    test_support::TestDialog dialog;
    HWND handle = dialog.Create(shape);
    ShowWindow(handle, SW_SHOW);
    SetFocus(GetDlgItem(handle, 2));
    SetActiveWindow(other);
    EXPECT_EQ(other.Handle(), GetFocus());
    SetActiveWindow(handle);
    EXPECT_EQ(GetDlgItem(handle, 2), GetFocus());
    DestroyWindow(handle);
}

TEST(Capture, SendsTheMouseToOneWindowAndTellsItsLoss) {
    RecordingWindow window;
    HWND button = window.Add("Button", "x", 1, 0);
    EXPECT_EQ(nullptr, SetCapture(window));
    EXPECT_EQ(window.Handle(), GetCapture());
    window.Messages().Take();
    EXPECT_EQ(window.Handle(), SetCapture(button));
    EXPECT_NE(std::string::npos, window.Messages().Take().find("WM_CAPTURECHANGED"));
    EXPECT_TRUE(ReleaseCapture());
    EXPECT_EQ(nullptr, GetCapture());
}

TEST(KeyboardState, IsWhatWasSet) {
    BYTE keys[256] = {};
    ASSERT_TRUE(GetKeyboardState(keys));
    keys[VK_SHIFT] = 0x80;
    ASSERT_TRUE(SetKeyboardState(keys));
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    keys[VK_SHIFT] = 0;
    ASSERT_TRUE(SetKeyboardState(keys));
    EXPECT_EQ(0, GetKeyState(VK_SHIFT) & 0x8000);
}

}  // namespace
