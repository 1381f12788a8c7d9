// The message queue: its order, its filters, timers, hooks, and quitting.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::PumpMessages;
using test_support::RecordingWindow;
using test_support::TestDialog;

// Handles messages until none waits, or for that long.
void PumpFor(DWORD milliseconds) {
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < milliseconds) {
        PumpMessages();
        Sleep(1);
    }
}

class MessageOrder : public testing::Test {
  protected:
    void SetUp() override {
        window_.OnMessage([this](UINT message, WPARAM wParam, LPARAM, LRESULT* result) {
            if (message == WM_PAINT) {
                PAINTSTRUCT paint;
                BeginPaint(window_, &paint);
                EndPaint(window_, &paint);
                seen_ += "paint ";
                *result = 0;
                return true;
            }
            if (message == WM_TIMER) seen_ += "timer ";
            if (message >= WM_APP && message < WM_APP + 100)
                seen_ +=
                    "post" + std::to_string(message - WM_APP) + "/" + std::to_string(wParam) + " ";
            return false;
        });
        PumpMessages();
        seen_.clear();
    }

    RecordingWindow window_;
    std::string seen_;
};

TEST_F(MessageOrder, PostedMessagesKeepTheirOrder) {
    for (WPARAM i = 1; i <= 4; ++i) EXPECT_TRUE(PostMessageA(window_, WM_APP, i, 0));
    EXPECT_EQ("", seen_);
    PumpMessages();
    EXPECT_EQ("post0/1 post0/2 post0/3 post0/4 ", seen_);
}

TEST_F(MessageOrder, SentMessagesOvertakePostedOnes) {
    PostMessageA(window_, WM_APP, 1, 0);
    SendMessageA(window_, WM_APP + 1, 2, 0);
    PumpMessages();
    EXPECT_EQ("post1/2 post0/1 ", seen_);
}

TEST_F(MessageOrder, PaintingComesAfterPostedMessages) {
    InvalidateRect(window_, nullptr, TRUE);
    PostMessageA(window_, WM_APP, 1, 0);
    PostMessageA(window_, WM_APP, 2, 0);
    PumpMessages();
    EXPECT_EQ("post0/1 post0/2 paint ", seen_);
}

TEST_F(MessageOrder, TimersComeAfterPostedMessagesAndPainting) {
    SetTimer(window_, 7, 10, nullptr);
    Sleep(40);
    InvalidateRect(window_, nullptr, TRUE);
    PostMessageA(window_, WM_APP, 1, 0);
    MSG msg;
    for (int i = 0; i < 3 && PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++i)
        DispatchMessageA(&msg);
    KillTimer(window_, 7);
    EXPECT_EQ("post0/1 paint timer ", seen_);
}

TEST_F(MessageOrder, ManyInvalidationsAreOnePaint) {
    for (int i = 0; i < 5; ++i) InvalidateRect(window_, nullptr, TRUE);
    PumpMessages();
    EXPECT_EQ("paint ", seen_);
}

TEST_F(MessageOrder, UpdateWindowPaintsAtOnceAndOnlyIfNeeded) {
    InvalidateRect(window_, nullptr, TRUE);
    UpdateWindow(window_);
    EXPECT_EQ("paint ", seen_);
    UpdateWindow(window_);
    PumpMessages();
    EXPECT_EQ("paint ", seen_);
}

TEST_F(MessageOrder, ValidatingCancelsThePaint) {
    InvalidateRect(window_, nullptr, TRUE);
    ValidateRect(window_, nullptr);
    PumpMessages();
    EXPECT_EQ("", seen_);
}

TEST_F(MessageOrder, PeekCanFilterByWindowAndNumber) {
    RecordingWindow other;
    PumpMessages();
    PostMessageA(window_, WM_APP, 1, 0);
    PostMessageA(window_, WM_APP + 5, 2, 0);
    PostMessageA(other, WM_APP, 3, 0);
    MSG msg = {};
    EXPECT_TRUE(PeekMessageA(&msg, window_, WM_APP + 5, WM_APP + 9, PM_REMOVE));
    EXPECT_EQ(2u, msg.wParam);
    EXPECT_TRUE(PeekMessageA(&msg, other, WM_APP, WM_APP, PM_REMOVE));
    EXPECT_EQ(3u, msg.wParam);
    EXPECT_TRUE(PeekMessageA(&msg, nullptr, WM_APP, WM_APP, PM_NOREMOVE));
    EXPECT_EQ(1u, msg.wParam);
    EXPECT_TRUE(PeekMessageA(&msg, nullptr, WM_APP, WM_APP, PM_REMOVE));
    EXPECT_FALSE(PeekMessageA(&msg, nullptr, WM_APP, WM_APP + 9, PM_REMOVE));
}

TEST_F(MessageOrder, MessagesOfADestroyedWindowVanish) {
    HWND child = window_.Add("Button", "x", 5, 0);
    PostMessageA(child, WM_APP, 1, 0);
    DestroyWindow(child);
    MSG msg = {};
    EXPECT_FALSE(PeekMessageA(&msg, nullptr, WM_APP, WM_APP, PM_REMOVE));
}

TEST_F(MessageOrder, AThreadMessageHasNoWindow) {
    PostThreadMessageA(GetCurrentThreadId(), WM_APP + 3, 8, 9);
    MSG msg = {};
    ASSERT_TRUE(PeekMessageA(&msg, nullptr, WM_APP + 3, WM_APP + 3, PM_REMOVE));
    EXPECT_EQ(nullptr, msg.hwnd);
    EXPECT_EQ(8u, msg.wParam);
    EXPECT_EQ(9, msg.lParam);
}

TEST(Quit, ComesAfterThePostedMessages) {
    RecordingWindow window;
    PumpMessages();
    PostQuitMessage(3);
    PostMessageA(window, WM_APP, 1, 0);
    MSG msg = {};
    EXPECT_TRUE(GetMessageA(&msg, nullptr, WM_APP, WM_APP));
    EXPECT_EQ(static_cast<UINT>(WM_APP), msg.message);
    while (GetMessageA(&msg, nullptr, 0, 0)) {
    }
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), msg.message);
    EXPECT_EQ(3u, msg.wParam);
}

TEST(Timer, FiresAgainAndAgainUntilKilled) {
    RecordingWindow window;
    int fired = 0;
    WPARAM id = 0;
    window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_TIMER) {
            ++fired;
            id = wParam;
        }
        return false;
    });
    EXPECT_NE(0u, SetTimer(window, 12, 10, nullptr));
    PumpFor(150);
    EXPECT_GE(fired, 3);
    EXPECT_LE(fired, 16);
    EXPECT_EQ(12u, id);
    EXPECT_TRUE(KillTimer(window, 12));
    EXPECT_FALSE(KillTimer(window, 12));
    PumpMessages();
    const int before = fired;
    PumpFor(50);
    EXPECT_EQ(before, fired);
}

TEST(Timer, DoesNotPileUp) {
    RecordingWindow window;
    int fired = 0;
    window.OnMessage([&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_TIMER) ++fired;
        return false;
    });
    SetTimer(window, 1, 10, nullptr);
    Sleep(120);
    MSG msg;
    int handled = 0;
    while (PeekMessageA(&msg, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE) && handled++ < 100)
        DispatchMessageA(&msg);
    KillTimer(window, 1);
    EXPECT_GE(fired, 1);
    EXPECT_LE(fired, 3);
}

TEST(Timer, SetAgainWithTheSameIdIsOneTimer) {
    RecordingWindow window;
    int fired = 0;
    window.OnMessage([&](UINT message, WPARAM, LPARAM, LRESULT*) {
        if (message == WM_TIMER) ++fired;
        return false;
    });
    SetTimer(window, 1, 10, nullptr);
    SetTimer(window, 1, 100000, nullptr);
    PumpFor(60);
    EXPECT_EQ(0, fired);
    EXPECT_TRUE(KillTimer(window, 1));
    EXPECT_FALSE(KillTimer(window, 1));
}

int procedureCalls = 0;
UINT_PTR procedureId = 0;
HWND procedureWindow = nullptr;
void CALLBACK CountCalls(HWND hwnd, UINT message, UINT_PTR id, DWORD) {
    EXPECT_EQ(static_cast<UINT>(WM_TIMER), message);
    ++procedureCalls;
    procedureId = id;
    procedureWindow = hwnd;
}

TEST(Timer, WithoutAWindowMakesItsOwnIdAndCallsItsProcedure) {
    procedureCalls = 0;
    const UINT_PTR first = SetTimer(nullptr, 0, 10, CountCalls);
    const UINT_PTR second = SetTimer(nullptr, 0, 100000, CountCalls);
    EXPECT_NE(0u, first);
    EXPECT_NE(first, second);
    PumpFor(60);
    EXPECT_GE(procedureCalls, 2);
    EXPECT_EQ(first, procedureId);
    EXPECT_EQ(nullptr, procedureWindow);
    EXPECT_TRUE(KillTimer(nullptr, first));
    EXPECT_TRUE(KillTimer(nullptr, second));
    EXPECT_FALSE(KillTimer(nullptr, first));
}

TEST(Timer, WithAWindowAndAProcedureBypassesTheWindow) {
    procedureCalls = 0;
    RecordingWindow window;
    SetTimer(window, 5, 10, CountCalls);
    window.Messages().Take();
    PumpFor(60);
    KillTimer(window, 5);
    EXPECT_GE(procedureCalls, 2);
    EXPECT_EQ(window.Handle(), procedureWindow);
    EXPECT_EQ(std::string::npos, window.Messages().Take().find("WM_TIMER"));
}

TEST(Timer, DiesWithItsWindow) {
    int fired = 0;
    {
        RecordingWindow window;
        window.OnMessage([&](UINT message, WPARAM, LPARAM, LRESULT*) {
            if (message == WM_TIMER) ++fired;
            return false;
        });
        SetTimer(window, 1, 10, nullptr);
    }
    PumpFor(50);
    EXPECT_EQ(0, fired);
}

TEST(Timer, FailsForNoWindowThatExists) {
    HWND gone = nullptr;
    {
        RecordingWindow window(false);
        gone = window;
    }
    EXPECT_EQ(0u, SetTimer(gone, 1, 10, nullptr));
    EXPECT_FALSE(KillTimer(gone, 1));
}

// The filter hook sees the messages of modal loops before the dialog does.
std::vector<std::string> filtered;
bool swallowKeys = false;
LRESULT CALLBACK Filter(int code, WPARAM wParam, LPARAM lParam) {
    const auto& msg = *reinterpret_cast<const MSG*>(lParam);
    if (code >= 0 && msg.message == WM_KEYDOWN) {
        filtered.push_back(std::to_string(code) + ":" + std::to_string(msg.wParam));
        if (swallowKeys && msg.wParam == VK_ESCAPE) return 1;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

class MessageFilter : public testing::Test {
  protected:
    void SetUp() override {
        filtered.clear();
        swallowKeys = false;
        hook_ = SetWindowsHookExA(WH_MSGFILTER, Filter, nullptr, GetCurrentThreadId());
        ASSERT_NE(nullptr, hook_);
    }
    void TearDown() override {
        if (hook_) {
            EXPECT_TRUE(UnhookWindowsHookEx(hook_));
            EXPECT_FALSE(UnhookWindowsHookEx(hook_));
        }
    }
    HHOOK hook_ = nullptr;
};

TEST_F(MessageFilter, SeesTheMessagesOfAModalDialog) {
    DialogTemplate shape("Filter", 100, 50);
    shape.Edit(5, 5, 5);
    TestDialog dialog;
    DialogScript script;
    script.Press(VK_TAB).Press(VK_ESCAPE);
    EXPECT_EQ(IDCANCEL, script.Run([&] { return dialog.Run(shape); }));
    ASSERT_EQ(2u, filtered.size());
    EXPECT_EQ("0:9", filtered[0]);
    EXPECT_EQ("0:27", filtered[1]);
}

TEST_F(MessageFilter, CanSwallowAMessage) {
    swallowKeys = true;
    DialogTemplate shape("Filter", 100, 50);
    shape.Edit(5, 5, 5).DefaultButton("OK", IDOK, 5, 30);
    TestDialog dialog;
    DialogScript script;
    script.Press(VK_ESCAPE).Press(VK_RETURN);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
}

TEST_F(MessageFilter, IsCalledByCallMsgFilter) {
    MSG msg = {};
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_ESCAPE;
    EXPECT_FALSE(CallMsgFilterA(&msg, 77));
    ASSERT_EQ(1u, filtered.size());
    EXPECT_EQ("77:27", filtered[0]);
    swallowKeys = true;
    EXPECT_TRUE(CallMsgFilterA(&msg, 77));
}

LRESULT CALLBACK SecondFilter(int code, WPARAM wParam, LPARAM lParam) {
    filtered.push_back("second");
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(MessageFilter, TheLastHookComesFirstAndPassesOn) {
    HHOOK second = SetWindowsHookExA(WH_MSGFILTER, SecondFilter, nullptr, GetCurrentThreadId());
    MSG msg = {};
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_TAB;
    CallMsgFilterA(&msg, 1);
    UnhookWindowsHookEx(second);
    EXPECT_EQ((std::vector<std::string>{"second", "1:9"}), filtered);
}

TEST(RegisteredMessage, IsTheSameForTheSameName) {
    const UINT first = RegisterWindowMessageA("ZxTestMessage");
    EXPECT_GE(first, 0xC000u);
    EXPECT_LE(first, 0xFFFFu);
    EXPECT_EQ(first, RegisterWindowMessageA("ZxTestMessage"));
    EXPECT_EQ(first, RegisterWindowMessageA("zxtestmessage"));
    EXPECT_NE(first, RegisterWindowMessageA("ZxOtherMessage"));
}

TEST(TranslateMessage, MakesCharactersOfKeys) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "", 5, ES_AUTOHSCROLL);
    SetFocus(edit);
    PumpMessages();
    PostMessageA(edit, WM_KEYDOWN, 'A', 0x001E0001);
    PostMessageA(edit, WM_KEYUP, 'A', 0xC01E0001);
    PostMessageA(edit, WM_KEYDOWN, '7', 0x00080001);
    PostMessageA(edit, WM_KEYUP, '7', 0xC0080001);
    PumpMessages();
    char text[16] = "";
    GetWindowTextA(edit, text, sizeof text);
    EXPECT_STREQ("a7", text);
}

// Waits and takes messages until this one comes; others may come before it.
bool WaitFor(UINT message, WPARAM wParam) {
    for (int i = 0; i < 200; ++i) {
        if (!WaitMessage()) return false;
        MSG msg = {};
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
            if (msg.message == message && msg.wParam == wParam) return true;
            DispatchMessageA(&msg);
        }
    }
    return false;
}

TEST(Waiting, EndsWithAPostedMessageAndWithATimer) {
    RecordingWindow window;
    PumpMessages();
    PostMessageA(window, WM_APP + 3, 5, 0);
    EXPECT_TRUE(WaitFor(WM_APP + 3, 5));
    SetTimer(window, 7, 20, nullptr);
    EXPECT_TRUE(WaitFor(WM_TIMER, 7));
    KillTimer(window, 7);
}

}  // namespace
