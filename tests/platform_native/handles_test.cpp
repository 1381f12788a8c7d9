// Stale handles, counts of what lives, and threads with windows of their own.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "platform/platform.h"
#include "zxadlg/headless/census.h"
#include "zxadlg/headless/diagnostics.h"

namespace {

HWND MakeStatic(const char* text, DWORD style = WS_POPUP, HWND parent = nullptr) {
    return CreateWindowExA(0, "Static", text, style, 0, 0, 40, 20, parent, nullptr, nullptr,
                           nullptr);
}

TEST(StaleWindow, IsRefusedByEveryCall) {
    HWND window = MakeStatic("gone");
    DestroyWindow(window);
    RECT rect;
    POINT point{};
    char text[8];
    MSG msg{};
    msg.hwnd = window;
    msg.message = WM_KEYDOWN;
    EXPECT_FALSE(IsWindow(window));
    EXPECT_FALSE(DestroyWindow(window));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE), GetLastError());
    EXPECT_FALSE(GetWindowRect(window, &rect));
    EXPECT_FALSE(GetClientRect(window, &rect));
    EXPECT_FALSE(SetWindowTextA(window, "x"));
    EXPECT_EQ(0, GetWindowTextA(window, text, sizeof text));
    EXPECT_EQ(0, SendMessageA(window, WM_GETTEXTLENGTH, 0, 0));
    EXPECT_FALSE(PostMessageA(window, WM_APP, 0, 0));
    EXPECT_EQ(0, DispatchMessageA(&msg));
    EXPECT_FALSE(IsDialogMessageA(window, &msg));
    EXPECT_EQ(0, GetWindowLongA(window, GWL_STYLE));
    EXPECT_EQ(0, SetWindowLongPtrA(window, GWLP_USERDATA, 1));
    EXPECT_FALSE(SetPropA(window, "p", text));
    EXPECT_EQ(nullptr, GetParent(window));
    EXPECT_EQ(nullptr, GetWindow(window, GW_CHILD));
    EXPECT_EQ(nullptr, GetDlgItem(window, 1));
    EXPECT_EQ(nullptr, SetFocus(window));
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_FALSE(MoveWindow(window, 0, 0, 1, 1, TRUE));
    EXPECT_FALSE(EnableWindow(window, TRUE));
    EXPECT_FALSE(InvalidateRect(window, nullptr, TRUE));
    EXPECT_FALSE(ClientToScreen(window, &point));
    EXPECT_EQ(0u, SetTimer(window, 1, 10, nullptr));
    EXPECT_FALSE(EndDialog(window, 0));
    EXPECT_EQ(nullptr, GetDC(window));
    EXPECT_EQ(nullptr, GetNextDlgTabItem(window, nullptr, FALSE));
    EXPECT_EQ(nullptr, MakeStatic("child", WS_CHILD, window));
    EXPECT_EQ(0, MessageBoxA(window, "t", "c", MB_OK));
    EXPECT_EQ(0, DialogBoxParamA(nullptr, MAKEINTRESOURCEA(1), window, nullptr, 0) + 1);
}

TEST(StaleWindow, HandlesNeverComeBack) {
    HWND first = MakeStatic("a");
    DestroyWindow(first);
    for (int i = 0; i < 100; ++i) {
        HWND next = MakeStatic("b");
        EXPECT_NE(first, next);
        DestroyWindow(next);
    }
}

WNDPROC original = nullptr;

// Replaces the procedure of a window; the new one hands on to `original`.
void Subclass(HWND window, WNDPROC proc) {
    original = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(proc)));
}

LRESULT CALLBACK DestroysItself(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) {
        DestroyWindow(hwnd);
        return 7;
    }
    return CallWindowProcA(original, hwnd, message, wParam, lParam);
}

TEST(StaleWindow, AWindowMayDestroyItselfWithinAMessage) {
    HWND window = MakeStatic("self");
    Subclass(window, DestroysItself);
    EXPECT_EQ(7, SendMessageA(window, WM_APP, 0, 0));
    EXPECT_FALSE(IsWindow(window));
}

TEST(Census, CountsWhatLivesAndSaysWhatGrew) {
    const headless::Census before = headless::TakeCensus();
    HWND window = MakeStatic("w");
    SetPropA(window, "p", window);
    const UINT_PTR timer = SetTimer(nullptr, 0, 1000, nullptr);
    HFONT font = CreateFontA(12, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, "Tahoma");
    EXPECT_EQ("1 window, 1 timer, 1 property, 1 font",
              headless::Growth(before, headless::TakeCensus()));
    DeleteObject(font);
    KillTimer(nullptr, timer);
    DestroyWindow(window);
    EXPECT_EQ("", headless::Growth(before, headless::TakeCensus()));
}

TEST(Threads, EachHasItsOwnWindowsAndFocus) {
    std::atomic<int> good{0};
    std::vector<std::thread> threads;
    for (int n = 0; n < 4; ++n) {
        threads.emplace_back([&good] {
            bool fine = true;
            for (int i = 0; i < 50; ++i) {
                HWND top = MakeStatic("top", WS_POPUP | WS_VISIBLE);
                HWND edit = CreateWindowExA(0, "Edit", "text", WS_CHILD | WS_VISIBLE, 0, 0, 30, 10,
                                            top, nullptr, nullptr, nullptr);
                SetFocus(edit);
                fine = fine && GetFocus() == edit && GetActiveWindow() == top;
                SetWindowTextA(edit, "other");
                MSG msg;
                while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
                fine = fine && DestroyWindow(top);
            }
            if (fine) ++good;
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(4, good);
}

LRESULT CALLBACK Doubles(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP) return InSendMessage() ? static_cast<LRESULT>(wParam) * 2 : -1;
    return CallWindowProcA(original, hwnd, message, wParam, lParam);
}

TEST(Threads, OneSendsToAndPostsToTheWindowOfAnother) {
    HWND window = MakeStatic("w");
    Subclass(window, Doubles);
    LRESULT answer = 0;
    std::thread other([&] {
        EXPECT_TRUE(IsWindow(window));
        answer = SendMessageA(window, WM_APP, 21, 0);
        PostMessageA(window, WM_APP + 1, 0, 0);
    });
    MSG msg;
    ASSERT_TRUE(GetMessageA(&msg, nullptr, 0, 0));
    EXPECT_EQ(static_cast<UINT>(WM_APP + 1), msg.message);
    other.join();
    EXPECT_EQ(42, answer);
    DestroyWindow(window);
}

TEST(Threads, DirectUseOfAnothersWindowIsRefusedAndRecorded) {
    HWND window = MakeStatic("w");
    std::thread other([window] {
        RECT rect;
        EXPECT_FALSE(GetWindowRect(window, &rect));
    });
    other.join();
    EXPECT_EQ((std::vector<std::string>{"direct use of a window of another thread"}),
              headless::TakeUnsupported());
    DestroyWindow(window);
}

TEST(Unsupported, IsRecordedOnceForEachRequest) {
    headless::TakeUnsupported();
    EXPECT_EQ(nullptr, SetWindowsHookExA(
                           77, [](int, WPARAM, LPARAM) -> LRESULT { return 0; }, nullptr,
                           GetCurrentThreadId()));
    EXPECT_EQ((std::vector<std::string>{"hook 77"}), headless::TakeUnsupported());
    EXPECT_TRUE(headless::TakeUnsupported().empty());
}

}  // namespace
