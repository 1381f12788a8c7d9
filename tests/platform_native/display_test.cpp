// The headless display: monitors, resolution, colours and themes as a test sets them.
#include "platform/headless/display.h"

#include <gtest/gtest.h>

#include "fixtures/TestWindows.h"
#include "platform/headless/monitors.h"
#include "platform/headless/recording.h"
#include "platform/platform.h"

namespace {

class Display : public testing::Test {
  protected:
    ~Display() override {
        headless::SetMonitors({});
        headless::SetDisplayDpi(96);
        headless::SetDisplayDepth(32);
        headless::SetThemed(false);
        headless::ResetSystemColors();
    }
};

TEST_F(Display, HasOneMonitorByDefault) {
    EXPECT_EQ(1, GetSystemMetrics(SM_CMONITORS));
    EXPECT_EQ(1280, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(1024, GetSystemMetrics(SM_CYSCREEN));
    RECT work = {};
    EXPECT_TRUE(SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0));
    EXPECT_EQ(1024, work.bottom);
}

TEST_F(Display, FindsTheMonitorOfARectangle) {
    headless::SetMonitors({{{0, 0, 1000, 800}, {0, 0, 1000, 760}},
                           {{-500, 0, 0, 600}, {-500, 20, 0, 600}},
                           {{1000, 0, 2000, 800}, {1000, 0, 2000, 800}}});
    const auto left = [](RECT rect, DWORD flags) -> LONG {
        MONITORINFO info = {};
        info.cbSize = sizeof info;
        const HMONITOR monitor = MonitorFromRect(&rect, flags);
        if (monitor == nullptr) return 9999;
        EXPECT_TRUE(GetMonitorInfoA(monitor, &info));
        return info.rcMonitor.left;
    };
    EXPECT_EQ(0, left({10, 10, 20, 20}, MONITOR_DEFAULTTONULL));
    EXPECT_EQ(-500, left({-300, 10, 100, 20}, MONITOR_DEFAULTTONULL)) << "the larger part";
    EXPECT_EQ(1000, left({990, 0, 1200, 10}, MONITOR_DEFAULTTONULL));
    EXPECT_EQ(9999, left({0, 900, 10, 950}, MONITOR_DEFAULTTONULL));
    EXPECT_EQ(0, left({1500, 900, 1510, 950}, MONITOR_DEFAULTTOPRIMARY));
    EXPECT_EQ(1000, left({1500, 900, 1510, 950}, MONITOR_DEFAULTTONEAREST));
    EXPECT_EQ(-500, left({-900, 100, -800, 200}, MONITOR_DEFAULTTONEAREST));
    EXPECT_EQ(1000, left({1200, 50, 1200, 50}, MONITOR_DEFAULTTONULL)) << "an empty one is a point";
    EXPECT_EQ(3, GetSystemMetrics(SM_CMONITORS));
    EXPECT_EQ(-500, GetSystemMetrics(SM_XVIRTUALSCREEN));
    EXPECT_EQ(2500, GetSystemMetrics(SM_CXVIRTUALSCREEN));
}

TEST_F(Display, TellsThePrimaryMonitorAndItsWorkArea) {
    headless::SetMonitors(
        {{{0, 0, 1000, 800}, {0, 0, 1000, 760}}, {{1000, 0, 2000, 800}, {1000, 0, 2000, 800}}});
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    EXPECT_TRUE(GetMonitorInfoA(MonitorFromPoint({5, 5}, MONITOR_DEFAULTTONULL), &info));
    EXPECT_EQ(760, info.rcWork.bottom);
    EXPECT_EQ(static_cast<DWORD>(MONITORINFOF_PRIMARY), info.dwFlags);
    EXPECT_TRUE(GetMonitorInfoA(MonitorFromPoint({1005, 5}, MONITOR_DEFAULTTONULL), &info));
    EXPECT_EQ(0u, info.dwFlags);
    EXPECT_FALSE(GetMonitorInfoA(nullptr, &info));
    info.cbSize = 4;
    EXPECT_FALSE(GetMonitorInfoA(MonitorFromPoint({5, 5}, MONITOR_DEFAULTTONULL), &info));
}

TEST_F(Display, At150PercentFontsAndMetricsGrow) {
    headless::SetDisplayDpi(144);
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(144, GetDeviceCaps(dc, LOGPIXELSY));
    HFONT font =
        CreateFontA(-MulDiv(8, 144, 72), 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, "MS Shell Dlg");
    HGDIOBJ old = SelectObject(dc, font);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    EXPECT_EQ(19, metrics.tmHeight);
    SelectObject(dc, old);
    DeleteObject(font);
    DeleteDC(dc);
    EXPECT_EQ(26, GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_EQ(28, GetSystemMetrics(SM_CYCAPTION));
    EXPECT_EQ(5, GetSystemMetrics(SM_CXFRAME));
    EXPECT_EQ(48, GetSystemMetrics(SM_CXICON));
    EXPECT_EQ(21, GetSystemMetrics(SM_CXMENUCHECK));
    EXPECT_EQ(166, GetSystemMetrics(SM_CXMIN));
    LOGFONTA log = {};
    GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof log, &log);
    EXPECT_EQ(-16, log.lfHeight);
}

TEST_F(Display, At96DpiMetricsAreThoseOfThePlatform) {
    constexpr int kMetrics[][2] = {{SM_CXVSCROLL, 17}, {SM_CYCAPTION, 19},  {SM_CXDLGFRAME, 3},
                                   {SM_CXFRAME, 4},    {SM_CYMENU, 19},     {SM_CXMIN, 112},
                                   {SM_CYMIN, 27},     {SM_CXSIZE, 18},     {SM_CYSMCAPTION, 16},
                                   {SM_CXEDGE, 2},     {SM_CXMENUCHECK, 13}};
    for (const auto& metric : kMetrics)
        EXPECT_EQ(metric[1], GetSystemMetrics(metric[0])) << metric[0];
}

TEST_F(Display, ColoursCanBeSet) {
    headless::SetSystemColor(COLOR_BTNFACE, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), GetSysColor(COLOR_BTNFACE));
    HDC dc = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = CreateCompatibleBitmap(dc, 2, 2);
    DeleteObject(bitmap);
    DeleteDC(dc);
    headless::ResetSystemColors();
    EXPECT_EQ(0xF0F0F0u, GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(0u, GetSysColor(99));
}

TEST_F(Display, ADepthOfOneBitMakesBitmapsOfTwoColours) {
    headless::SetDisplayDepth(1);
    test_support::RecordingWindow window;
    HDC screen = GetDC(window);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 8, 8);
    BITMAP info = {};
    GetObjectA(bitmap, sizeof info, &info);
    EXPECT_EQ(1, info.bmBitsPixel);
    EXPECT_EQ(1, GetDeviceCaps(screen, BITSPIXEL));
    ReleaseDC(window, screen);
    DeleteObject(bitmap);
}

TEST_F(Display, IsNotThemedUnlessSet) {
    test_support::RecordingWindow window;
    EXPECT_FALSE(IsAppThemed());
    EXPECT_EQ(nullptr, OpenThemeData(window, L"BUTTON"));
    headless::SetThemed(true);
    EXPECT_TRUE(IsThemeActive());
    EXPECT_NE(0u, GetThemeAppProperties() & STAP_ALLOW_CONTROLS);
    const HTHEME theme = OpenThemeData(window, L"Spin;Button");
    ASSERT_NE(nullptr, theme);
    HDC dc = GetDC(window);
    const RECT rect = {1, 2, 3, 4};
    EXPECT_EQ(S_OK, DrawThemeBackground(theme, dc, 1, 2, &rect, nullptr));
    ReleaseDC(window, dc);
    const headless::DrawOp& op = headless::RecordedOps(window.Handle()).back();
    EXPECT_EQ(headless::DrawKind::kThemePart, op.kind);
    EXPECT_EQ("SPIN", op.theme);
    EXPECT_EQ(1, op.part);
    EXPECT_EQ(2, op.state);
    EXPECT_EQ(S_OK, CloseThemeData(theme));
    EXPECT_NE(S_OK, CloseThemeData(theme));
}

TEST_F(Display, AWindowCanTurnItsThemeOff) {
    headless::SetThemed(true);
    test_support::RecordingWindow window;
    EXPECT_EQ(S_OK, SetWindowTheme(window, L"", L""));
    EXPECT_EQ(nullptr, OpenThemeData(window, L"BUTTON"));
    EXPECT_EQ(S_OK, SetWindowTheme(window, nullptr, nullptr));
    const HTHEME theme = OpenThemeData(window, L"BUTTON");
    EXPECT_NE(nullptr, theme);
    CloseThemeData(theme);
}

TEST_F(Display, DialogTextureIsKeptPerWindow) {
    test_support::RecordingWindow window;
    EXPECT_FALSE(IsThemeDialogTextureEnabled(window));
    EXPECT_EQ(S_OK, EnableThemeDialogTexture(window, ETDT_ENABLETAB));
    EXPECT_TRUE(IsThemeDialogTextureEnabled(window));
    EXPECT_EQ(S_OK, EnableThemeDialogTexture(window, ETDT_DISABLE));
    EXPECT_FALSE(IsThemeDialogTextureEnabled(window));
}

TEST_F(Display, AChildAsksItsParentForTheBackground) {
    test_support::RecordingWindow window;
    HWND child = window.Add("Static", "", 5, 0, 30, 40, 50, 20);
    window.OnMessage([](UINT message, WPARAM wParam, LPARAM, LRESULT* result) {
        if (message != WM_ERASEBKGND) return false;
        RECT rect = {30, 40, 35, 45};
        FillRect(reinterpret_cast<HDC>(wParam), &rect, GetSysColorBrush(COLOR_BTNFACE));
        *result = TRUE;
        return true;
    });
    HDC dc = GetDC(child);
    EXPECT_EQ(S_OK, DrawThemeParentBackground(child, dc, nullptr));
    ReleaseDC(child, dc);
    const auto& ops = headless::RecordedOps(child);
    ASSERT_GE(ops.size(), 2u);
    EXPECT_EQ(headless::DrawKind::kFill, ops.back().kind);
    EXPECT_EQ(0, ops.back().rect.left) << "the parent's (30,40) is the child's corner";
    EXPECT_EQ(0, ops.back().rect.top);
    window.OnMessage(nullptr);
}

}  // namespace
