// Keys and mouse as from the hardware.
#include "zxadlg/headless/input.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/platform.h"

namespace {

struct Seen {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

std::vector<Seen> seen;
LRESULT hitAnswer = 0;

LRESULT CALLBACK Watch(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const bool key = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    const bool mouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    const bool frame = message >= WM_NCMOUSEMOVE && message <= WM_NCLBUTTONDBLCLK;
    if (key || mouse || frame || message == WM_MOUSELEAVE || message == WM_MOUSEACTIVATE ||
        message == WM_SYSCOMMAND)
        seen.push_back({message, wParam, lParam});
    if (message == WM_NCHITTEST && hitAnswer != 0) return hitAnswer;
    if (message == WM_SYSCOMMAND) return 0;
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class Input : public testing::Test {
  protected:
    void SetUp() override {
        headless::ResetInput();
        WNDCLASSA wc{};
        wc.lpfnWndProc = Watch;
        wc.style = CS_DBLCLKS;
        wc.lpszClassName = "InputTest";
        RegisterClassA(&wc);
        window_ = CreateWindowExA(0, "InputTest", "w", WS_POPUP | WS_VISIBLE, 100, 100, 200, 100,
                                  nullptr, nullptr, nullptr, nullptr);
        Pump();
        seen.clear();
    }
    void TearDown() override {
        if (IsWindow(window_)) DestroyWindow(window_);
        UnregisterClassA("InputTest", nullptr);
        headless::ResetInput();
        hitAnswer = 0;
    }
    static void Pump() {
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
        }
    }
    static std::vector<UINT> Messages() {
        std::vector<UINT> messages;
        for (const Seen& s : seen) messages.push_back(s.message);
        return messages;
    }
    static std::string Characters() {
        std::string text;
        for (const Seen& s : seen) {
            if (s.message == static_cast<UINT>(WM_CHAR))
                text.push_back(static_cast<char>(s.wParam));
        }
        return text;
    }

    HWND window_ = nullptr;
};

TEST_F(Input, AKeyGoesToTheFocusAndTypesItsCharacter) {
    headless::InjectKeyStroke('A');
    Pump();
    EXPECT_EQ((std::vector<UINT>{WM_KEYDOWN, WM_CHAR, WM_KEYUP}), Messages());
    EXPECT_EQ("a", Characters());
    EXPECT_EQ(0x001E0001, seen[0].lParam);
    EXPECT_EQ(static_cast<LPARAM>(static_cast<LONG>(0xC01E0001u)), seen[2].lParam);
}

TEST_F(Input, TextIsTypedWithShiftAndBeyondTheKeyboard) {
    const char text[] = "Hello, (\xB5V) \xE9!";
    headless::InjectText(text);
    Pump();
    EXPECT_EQ(text, Characters());
}

TEST_F(Input, ControlAndAltMakeTheirOwnCharacters) {
    headless::InjectKey(VK_CONTROL, true);
    headless::InjectKeyStroke('C');
    headless::InjectKey(VK_CONTROL, false);
    Pump();
    EXPECT_EQ(std::string(1, '\3'), Characters());
    seen.clear();
    headless::InjectKey(VK_MENU, true);
    headless::InjectKeyStroke('X');
    headless::InjectKey(VK_MENU, false);
    Pump();
    EXPECT_EQ((std::vector<UINT>{WM_SYSKEYDOWN, WM_SYSKEYDOWN, WM_SYSCHAR, WM_SYSKEYUP, WM_KEYUP}),
              Messages());
}

TEST_F(Input, KeyStatesFollowTheMessagesAndAsyncStatesTheKeys) {
    headless::InjectKey(VK_SHIFT, true);
    EXPECT_LT(GetAsyncKeyState(VK_SHIFT), 0);
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
    Pump();
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    headless::InjectKey(VK_SHIFT, false);
    EXPECT_GE(GetAsyncKeyState(VK_SHIFT), 0);
    EXPECT_LT(GetKeyState(VK_SHIFT), 0);
    Pump();
    EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST_F(Input, PostedMessagesComeBeforeKeys) {
    headless::InjectKeyStroke('A');
    PostMessageA(window_, WM_APP, 0, 0);
    MSG msg;
    ASSERT_TRUE(PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_APP), msg.message);
    ASSERT_TRUE(PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_KEYDOWN), msg.message);
}

TEST_F(Input, AKeyThatTheFilterHoldsBackStays) {
    headless::InjectKeyStroke('A');
    MSG msg;
    EXPECT_FALSE(PeekMessageA(&msg, nullptr, WM_APP, WM_APP + 1, PM_REMOVE));
    EXPECT_TRUE(PeekMessageA(&msg, nullptr, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE));
}

TEST_F(Input, AClickCarriesClientCoordinatesAndHeldButtons) {
    headless::InjectClick(130, 140);
    Pump();
    EXPECT_EQ((std::vector<UINT>{WM_MOUSEMOVE, WM_MOUSEACTIVATE, WM_LBUTTONDOWN, WM_LBUTTONUP}),
              Messages());
    EXPECT_EQ(MAKELPARAM(30, 40), seen[2].lParam);
    EXPECT_EQ(static_cast<WPARAM>(MK_LBUTTON), seen[2].wParam);
    EXPECT_EQ(0u, seen[3].wParam);
}

TEST_F(Input, TheSecondOfTwoQuickClicksIsADoubleClick) {
    headless::InjectClick(130, 140);
    headless::InjectClick(130, 140);
    headless::InjectClick(130, 140);
    Pump();
    std::vector<UINT> presses;
    for (const Seen& s : seen) {
        if (s.message == static_cast<UINT>(WM_LBUTTONDOWN) ||
            s.message == static_cast<UINT>(WM_LBUTTONDBLCLK))
            presses.push_back(s.message);
    }
    EXPECT_EQ((std::vector<UINT>{WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN}), presses);
}

TEST_F(Input, ClicksFarApartAreNoDoubleClick) {
    headless::InjectClick(130, 140);
    headless::InjectClick(160, 140);
    Pump();
    for (const Seen& s : seen) EXPECT_NE(static_cast<UINT>(WM_LBUTTONDBLCLK), s.message);
}

TEST_F(Input, CaptureTakesTheMouseOutsideOfTheWindow) {
    SetCapture(window_);
    headless::InjectMouseMove(10, 20);
    Pump();
    ASSERT_EQ((std::vector<UINT>{WM_MOUSEMOVE}), Messages());
    EXPECT_EQ(-90, GET_X_LPARAM(seen[0].lParam));
    EXPECT_EQ(-80, GET_Y_LPARAM(seen[0].lParam));
    ReleaseCapture();
}

TEST_F(Input, TheWheelGoesToTheFocus) {
    headless::InjectWheel(-120);
    Pump();
    ASSERT_EQ((std::vector<UINT>{WM_MOUSEWHEEL}), Messages());
    EXPECT_EQ(-120, static_cast<SHORT>(HIWORD(seen[0].wParam)));
}

TEST_F(Input, AClickOnTheCloseBoxAsksToClose) {
    hitAnswer = HTCLOSE;
    headless::InjectClick(130, 140);
    Pump();
    ASSERT_FALSE(seen.empty());
    bool close = false;
    for (const Seen& s : seen)
        close |= s.message == static_cast<UINT>(WM_SYSCOMMAND) && s.wParam == SC_CLOSE;
    EXPECT_TRUE(close);
}

TEST_F(Input, LeavingATrackedWindowTellsItOnce) {
    headless::InjectMouseMove(130, 140);
    Pump();
    TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window_, 0};
    ASSERT_TRUE(TrackMouseEvent(&track));
    headless::InjectMouseMove(10, 10);
    headless::InjectMouseMove(11, 10);
    Pump();
    int left = 0;
    for (const Seen& s : seen) left += s.message == static_cast<UINT>(WM_MOUSELEAVE);
    EXPECT_EQ(1, left);
}

TEST_F(Input, ADisabledWindowGetsNoClickAndItsPopupComesForward) {
    HWND popup = CreateWindowExA(0, "Static", "p", WS_POPUP | WS_VISIBLE, 400, 400, 20, 20, window_,
                                 nullptr, nullptr, nullptr);
    SetActiveWindow(popup);
    EnableWindow(window_, FALSE);
    SetActiveWindow(nullptr);
    Pump();
    seen.clear();
    headless::TakeBeeps();
    headless::InjectClick(130, 140);
    Pump();
    EXPECT_TRUE(seen.empty());
    EXPECT_EQ(1, headless::TakeBeeps());
    EXPECT_EQ(popup, GetActiveWindow());
    DestroyWindow(popup);
}

TEST_F(Input, SendInputTypesAndClicks) {
    INPUT inputs[2] = {};
    inputs[0].type = INPUT_KEYBOARD;
    inputs[0].ki.wVk = 'Q';
    inputs[1] = inputs[0];
    inputs[1].ki.dwFlags = KEYEVENTF_KEYUP;
    EXPECT_EQ(2u, SendInput(2, inputs, sizeof(INPUT)));
    Pump();
    EXPECT_EQ("q", Characters());
    EXPECT_EQ(0u, SendInput(1, inputs, 3));
}

TEST_F(Input, EveryPrintableCharacterHasAKeyThatTypesIt) {
    for (int c = 32; c < 127; ++c) {
        SCOPED_TRACE(c);
        const SHORT key = VkKeyScanA(static_cast<char>(c));
        ASSERT_NE(-1, key);
        seen.clear();
        if (HIBYTE(key) & 1) headless::InjectKey(VK_SHIFT, true);
        headless::InjectKeyStroke(LOBYTE(key));
        if (HIBYTE(key) & 1) headless::InjectKey(VK_SHIFT, false);
        Pump();
        EXPECT_EQ(std::string(1, static_cast<char>(c)), Characters());
    }
}

}  // namespace
