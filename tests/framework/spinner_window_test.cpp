// The spinner window: its size, its arrows, what it tells its parent, and how it repeats.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "ControlHost.h"
#include "WindowPixels.h"
#include "fixtures/KnownGap.h"
#include "widgets/FrameworkSetup.h"
#include "widgets/Spinner.h"

namespace {

using framework_test::HoldShift;
using framework_test::PixelsOf;
using namespace CommonCtls;

constexpr int kId = 30;

class SpinnerWindow : public testing::Test {
  protected:
    SpinnerWindow() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        window.OnMessage([this](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT*) {
            if (uMsg != WM_COMMAND || LOWORD(wParam) != kId) return false;
            EXPECT_EQ(reinterpret_cast<HWND>(lParam), hWnd);
            steps.push_back({HIWORD(wParam), GetTickCount()});
            if (onStep) onStep();
            return true;
        });
        hWnd = Make(kVerticalSpinnerClass, 20, 40);
    }
    ~SpinnerWindow() override {
        LetGo();
        HoldShift(false);
        window.OnMessage(nullptr);
    }

    HWND Make(const char* szClass, int nWidth, int nHeight) {
        return window.Add(szClass, "", kId, 0, 50, 60, nWidth, nHeight);
    }

    // A press and release by message alone; the real button stays up.
    void Click(int x, int y) {
        SendMessageA(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        SendMessageA(hWnd, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    // The steps since the last look: "1 11".
    std::string Steps() {
        std::string sSteps;
        for (const Step& step : steps) {
            if (!sSteps.empty()) sSteps += " ";
            sSteps += std::to_string(step.nCode);
        }
        steps.clear();
        return sSteps;
    }

    static void Mouse(DWORD dwFlags) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = dwFlags;
        SendInput(1, &input, static_cast<int>(sizeof input));
    }

    // Moves the real pointer over the window and presses the real button.
    void HoldAt(int x, int y) {
        MoveTo(x, y);
        Mouse(MOUSEEVENTF_LEFTDOWN);
        bHeld = true;
    }
    void MoveTo(int x, int y) const {
        POINT point = {x, y};
        ClientToScreen(hWnd, &point);
        SetCursorPos(point.x, point.y);
    }
    void LetGo() {
        if (!bHeld) return;
        Mouse(MOUSEEVENTF_LEFTUP);
        bHeld = false;
        test_support::PumpMessages();
    }
    // A busy machine moves its pointer late: what must come is waited for, up to a limit.
    template <class Condition>
    static void PumpUntil(Condition condition) {
        const DWORD dwStart = GetTickCount();
        while (!condition() && GetTickCount() - dwStart < 5000) PumpFor(10);
    }
    static void PumpFor(DWORD dwMs) {
        const DWORD dwStart = GetTickCount();
        while (GetTickCount() - dwStart < dwMs) {
            test_support::PumpMessages();
            Sleep(2);
        }
    }

    struct Step {
        int nCode;
        DWORD dwTick;
    };
    test_support::RecordingWindow window;
    HWND hWnd = nullptr;
    std::vector<Step> steps;
    std::function<void()> onStep;
    bool bHeld = false;
};

TEST(SpinnerFramework, RegistersItsThreeClassesAndTakesThemAway) {
    const HINSTANCE hInstance = GetModuleHandleA(nullptr);
    EXPECT_TRUE(InitDialogFramework(hInstance));
    EXPECT_TRUE(IsDialogFrameworkReady());
    EXPECT_EQ(GetFrameworkInstance(), hInstance);
    for (const char* szClass : {"ZCC_ProgressBar", "ZDC_SpinnerHorz", "ZDC_SpinnerVert"}) {
        SCOPED_TRACE(szClass);
        WNDCLASSA wc = {};
        ASSERT_TRUE(GetClassInfoA(hInstance, szClass, &wc));
        EXPECT_EQ(wc.style, static_cast<UINT>(CS_HREDRAW | CS_VREDRAW | CS_GLOBALCLASS));
        EXPECT_EQ(wc.cbWndExtra, static_cast<int>(sizeof(void*)));
        EXPECT_EQ(wc.hCursor, LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
    }
    EXPECT_TRUE(InitDialogFramework(hInstance));
    ShutDownDialogFramework();
    EXPECT_FALSE(IsDialogFrameworkReady());
    WNDCLASSA wc = {};
    EXPECT_FALSE(GetClassInfoA(hInstance, "ZDC_SpinnerVert", &wc));
    EXPECT_FALSE(GetClassInfoA(hInstance, "ZCC_ProgressBar", &wc));
    ShutDownDialogFramework();
    EXPECT_TRUE(InitDialogFramework(hInstance));
}

TEST_F(SpinnerWindow, FitsTheVerticalFormTwiceAsHighAsWide) {
    const int nSize = static_cast<int>(GetSystemMetrics(SM_CYHSCROLL) * 0.7);
    SpinnerFit(hWnd);
    RECT rc;
    GetWindowRect(hWnd, &rc);
    EXPECT_EQ(rc.right - rc.left, nSize);
    EXPECT_EQ(rc.bottom - rc.top, 2 * nSize);
}

TEST_F(SpinnerWindow, FitsTheHorizontalFormTwiceAsWideAsHigh) {
    const HWND hHorizontal = Make(kHorizontalSpinnerClass, 40, 20);
    SpinnerFit(hHorizontal);
    RECT rc;
    GetWindowRect(hHorizontal, &rc);
    EXPECT_EQ(rc.right - rc.left, 2 * (rc.bottom - rc.top));
}

TEST_F(SpinnerWindow, TellsWhichArrowWasPressed) {
    Click(10, 5);
    EXPECT_EQ(Steps(), "1");
    Click(10, 35);
    EXPECT_EQ(Steps(), "2");
    hWnd = Make(kHorizontalSpinnerClass, 40, 20);
    Click(35, 10);
    EXPECT_EQ(Steps(), "1");
    Click(5, 10);
    EXPECT_EQ(Steps(), "2");
}

TEST_F(SpinnerWindow, ShiftMakesTheStepsLarge) {
    HoldShift(true);
    Click(10, 5);
    EXPECT_EQ(Steps(), "11");
    Click(10, 35);
    EXPECT_EQ(Steps(), "12");
}

TEST_F(SpinnerWindow, AButtonThatIsUpAlreadyEndsThePress) {
    SpinnerSetRepeat(hWnd, 10);
    SendMessageA(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
    EXPECT_EQ(Steps(), "1");
    EXPECT_NE(GetCapture(), hWnd);
    PumpFor(250);
    EXPECT_EQ(Steps(), "");
}

TEST_F(SpinnerWindow, ADisabledOneLooksDisabled) {
    const std::vector<COLORREF> enabled = PixelsOf(hWnd);
    EnableWindow(hWnd, FALSE);
    KNOWN_GAP(kHeadless, "a disabled arrow leaves the pixels of an enabled one",
              PixelsOf(hWnd) != enabled);
    EnableWindow(hWnd, TRUE);
    EXPECT_EQ(PixelsOf(hWnd), enabled);
}

TEST_F(SpinnerWindow, KeepsItsRepeatPeriod) {
    EXPECT_EQ(SpinnerGetRepeat(hWnd), 0u);
    EXPECT_EQ(SpinnerSetRepeat(hWnd, 50), 0u);
    EXPECT_EQ(SpinnerSetRepeat(hWnd, 20), 50u);
    EXPECT_EQ(SpinnerGetRepeat(hWnd), 20u);
}

TEST_F(SpinnerWindow, ShowsAPressedArrowUntilTheRelease) {
    const std::vector<COLORREF> plain = PixelsOf(hWnd);
    SpinnerPress(hWnd, kArrowFirst);
    const std::vector<COLORREF> first = PixelsOf(hWnd);
    EXPECT_NE(first, plain);
    SpinnerPress(hWnd, kArrowSecond);
    const std::vector<COLORREF> second = PixelsOf(hWnd);
    EXPECT_NE(second, plain);
    EXPECT_NE(second, first);
    SpinnerRelease(hWnd);
    EXPECT_EQ(PixelsOf(hWnd), plain);
    EXPECT_EQ(Steps(), "");
}

TEST_F(SpinnerWindow, JoinsTheEditThatItBelongsTo) {
    const HWND hEdit = window.Add("Edit", "", 31, WS_BORDER, 100, 100, 60, 26);
    SpinnerSetBuddy(hWnd, hEdit);
    RECT rcEdit;
    RECT rc;
    GetWindowRect(hEdit, &rcEdit);
    GetWindowRect(hWnd, &rc);
    EXPECT_EQ(rc.left, rcEdit.right);
    EXPECT_EQ(rc.top, rcEdit.top);
    EXPECT_EQ(rc.bottom, rcEdit.bottom);
    EXPECT_EQ(rc.right - rc.left, 20);
    SpinnerSetBuddy(hWnd, nullptr);
    SpinnerSetBuddy(hWnd, hEdit);
}

TEST_F(SpinnerWindow, FunctionsIgnoreOtherWindows) {
    const HWND hEdit = window.Add("Edit", "text", 31, 0);
    for (const HWND hOther : {hEdit, window.Handle(), HWND{nullptr}}) {
        EXPECT_EQ(SpinnerSetRepeat(hOther, 10), 0u);
        EXPECT_EQ(SpinnerGetRepeat(hOther), 0u);
        SpinnerFit(hOther);
        SpinnerPress(hOther, 1);
        SpinnerRelease(hOther);
        SpinnerSetBuddy(hOther, hEdit);
    }
}

TEST_F(SpinnerWindow, SurvivesAParentThatDestroysItInAStep) {
    onStep = [this] { DestroyWindow(hWnd); };
    SendMessageA(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
    EXPECT_FALSE(IsWindow(hWnd));
    EXPECT_EQ(Steps(), "1");
    onStep = nullptr;
    hWnd = Make(kVerticalSpinnerClass, 20, 40);
    Click(10, 5);
    EXPECT_EQ(Steps(), "1");
}

TEST_F(SpinnerWindow, AStepWithinAStepIsRefused) {
    const HWND hOuter = hWnd;
    bool bNested = false;
    onStep = [&] {
        if (bNested) return;
        bNested = true;
        SendMessageA(hOuter, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 5));
        PumpFor(50);
    };
    Click(10, 35);
    EXPECT_TRUE(bNested);
    EXPECT_EQ(Steps(), "2");
}

TEST_F(SpinnerWindow, AHeldArrowStepsAtOnceThenSlowlyThenFast) {
    SpinnerSetRepeat(hWnd, 30);
    HoldAt(10, 5);
    PumpFor(3200);
    LetGo();
    ASSERT_GE(steps.size(), 2u);
    // A step is noted a little after the spinner looked at the clock.
    constexpr DWORD kLate = 10;
    const DWORD dwStart = steps[0].dwTick;
    int nSlow = 0;
    int nFast = 0;
    for (std::size_t i = 1; i < steps.size(); ++i) {
        const DWORD dwGap = steps[i].dwTick - steps[i - 1].dwTick;
        if (steps[i].dwTick - dwStart < 2000) {
            ++nSlow;
            EXPECT_GE(dwGap + kLate, 300u);
        } else {
            ++nFast;
            EXPECT_GE(dwGap + kLate, 30u);
        }
    }
    // One in each ten periods of the first two seconds, then one in each period of the third.
    EXPECT_GE(nSlow, 3);
    EXPECT_LE(nSlow, 6);
    EXPECT_GE(nFast, 10);
    EXPECT_LE(nFast, 40);
    steps.clear();
    PumpFor(100);
    EXPECT_EQ(Steps(), "");
}

TEST_F(SpinnerWindow, DraggingOffStopsTheShowButNotTheSteps) {
    const std::vector<COLORREF> plain = PixelsOf(hWnd);
    const auto isPlain = [&] { return PixelsOf(hWnd) == plain; };
    const auto hasStepped = [this] { return !steps.empty(); };
    SpinnerSetRepeat(hWnd, 10);
    HoldAt(10, 5);
    PumpUntil(hasStepped);
    EXPECT_FALSE(steps.empty());
    EXPECT_FALSE(isPlain());
    MoveTo(60, 80);
    PumpUntil(isPlain);
    EXPECT_TRUE(isPlain());
    steps.clear();
    PumpUntil(hasStepped);
    EXPECT_FALSE(steps.empty());
    EXPECT_TRUE(isPlain());
    MoveTo(10, 5);
    PumpUntil([&] { return !isPlain(); });
    EXPECT_FALSE(isPlain());
    LetGo();
    PumpUntil([this] { return GetCapture() != hWnd; });
    steps.clear();
    PumpFor(250);
    EXPECT_EQ(Steps(), "");
}

TEST_F(SpinnerWindow, LosingTheCaptureEndsThePress) {
    SpinnerSetRepeat(hWnd, 10);
    HoldAt(10, 5);
    PumpUntil([this] { return GetCapture() == hWnd; });
    EXPECT_EQ(GetCapture(), hWnd);
    ReleaseCapture();
    steps.clear();
    PumpFor(250);
    EXPECT_EQ(Steps(), "");
}

}  // namespace
