// The clock that a test can stop, and waits that nothing can end.
#include "zxadlg/headless/clock.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>
#include <vector>

#include "platform/platform.h"
#include "zxadlg/headless/diagnostics.h"

namespace {

class FrozenClock : public testing::Test {
  protected:
    void SetUp() override { headless::FreezeClock(); }
    void TearDown() override { headless::ThawClock(); }
};

std::vector<DWORD> fired;

void CALLBACK Record(HWND, UINT, UINT_PTR, DWORD time) {
    fired.push_back(time);
}

void PumpOnce() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
}

TEST_F(FrozenClock, StandsStillUntilItIsMoved) {
    const DWORD start = GetTickCount();
    std::this_thread::sleep_for(std::chrono::milliseconds(15));
    EXPECT_EQ(start, GetTickCount());
    headless::AdvanceClock(1234);
    EXPECT_EQ(start + 1234, GetTickCount());
}

TEST_F(FrozenClock, SleepMovesItWithoutWaiting) {
    const DWORD start = GetTickCount();
    const auto real = std::chrono::steady_clock::now();
    Sleep(3600000);
    EXPECT_EQ(start + 3600000, GetTickCount());
    EXPECT_LT(std::chrono::steady_clock::now() - real, std::chrono::seconds(10));
}

TEST_F(FrozenClock, GoesOnFromItsTimeWhenThawed) {
    headless::AdvanceClock(100000);
    const DWORD stopped = GetTickCount();
    headless::ThawClock();
    EXPECT_LT(GetTickCount() - stopped, 1000u);
    headless::FreezeClock();
}

TEST_F(FrozenClock, ATimerFiresOnlyOnceItsTimeHasCome) {
    fired.clear();
    const UINT_PTR timer = SetTimer(nullptr, 0, 100, Record);
    PumpOnce();
    EXPECT_TRUE(fired.empty());
    headless::AdvanceClock(99);
    PumpOnce();
    EXPECT_TRUE(fired.empty());
    headless::AdvanceClock(1);
    PumpOnce();
    EXPECT_EQ(1u, fired.size());
    KillTimer(nullptr, timer);
}

TEST_F(FrozenClock, ALateTimerFiresOnceAndNotForEachMissedInterval) {
    fired.clear();
    const UINT_PTR timer = SetTimer(nullptr, 0, 100, Record);
    headless::AdvanceClock(1000);
    PumpOnce();
    EXPECT_EQ(1u, fired.size());
    KillTimer(nullptr, timer);
}

TEST_F(FrozenClock, AWaitMovesItToTheNextTimer) {
    fired.clear();
    const DWORD start = GetTickCount();
    const UINT_PTR slow = SetTimer(nullptr, 0, 5000, Record);
    const UINT_PTR quick = SetTimer(nullptr, 0, 2000, Record);
    for (int i = 0; i < 3; ++i) {
        MSG msg;
        ASSERT_TRUE(GetMessageA(&msg, nullptr, 0, 0));
        DispatchMessageA(&msg);
    }
    EXPECT_EQ((std::vector<DWORD>{start + 2000, start + 4000, start + 5000}), fired);
    KillTimer(nullptr, slow);
    KillTimer(nullptr, quick);
}

TEST_F(FrozenClock, AWaitWithALimitEndsAtTheLimit) {
    const DWORD start = GetTickCount();
    EXPECT_EQ(static_cast<DWORD>(WAIT_TIMEOUT),
              MsgWaitForMultipleObjects(0, nullptr, FALSE, 700, QS_ALLINPUT));
    EXPECT_EQ(start + 700, GetTickCount());
}

TEST(HopelessWait, IsRecordedAndEndsWithAnError) {
    MSG msg;
    EXPECT_EQ(-1, GetMessageA(&msg, nullptr, 0, 0));
    const std::vector<std::string> faults = headless::TakeUnsupported();
    ASSERT_EQ(1u, faults.size());
    EXPECT_EQ("a wait for messages that nothing can end", faults[0]);
}

TEST(HopelessWait, EndsTheProcessWhenTheLoopDoesNotLookAtTheResult) {
    EXPECT_DEATH(
        {
            MSG msg;
            while (GetMessageA(&msg, nullptr, 0, 0)) {
            }
        },
        "the loop goes on waiting for messages that cannot come");
}

TEST(HopelessWait, IsNoneWhileAnotherThreadCanPost) {
    const DWORD main = GetCurrentThreadId();
    MSG msg;
    PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE);
    std::thread other([main] {
        std::this_thread::sleep_for(std::chrono::milliseconds(120));
        PostThreadMessageA(main, WM_APP + 3, 4, 5);
    });
    EXPECT_TRUE(GetMessageA(&msg, nullptr, 0, 0));
    EXPECT_EQ(static_cast<UINT>(WM_APP + 3), msg.message);
    other.join();
}

INT_PTR CALLBACK NeverEnds(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

TEST(HopelessWait, EndsAModalDialogAndGivesTheOwnerBack) {
    HWND owner = CreateWindowExA(0, "Static", "owner", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                                 nullptr, nullptr, nullptr);
    struct {
        DLGTEMPLATE head;
        WORD rest[3];
    } shape{};
    shape.head.style = WS_POPUP | WS_VISIBLE;
    shape.head.cx = shape.head.cy = 20;
    EXPECT_EQ(-1, DialogBoxIndirectParamA(nullptr, &shape.head, owner, NeverEnds, 0));
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(owner, GetActiveWindow());
    EXPECT_EQ(1u, headless::TakeUnsupported().size());
    DestroyWindow(owner);
}

}  // namespace
