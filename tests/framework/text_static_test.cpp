// Labels: the format with its arguments, colours, clicks and images.
#include <gtest/gtest.h>

#include <string>

#include "ControlHost.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_StaticText.h"

namespace {

using framework_test::ControlHost;
using test_support::TextOf;

HWND BindLabel(ControlHost& host, ADM_Wnd& label, const char* szText, DWORD dwStyle = 0) {
    return host.Bind(label, "Static", szText, 10, dwStyle);
}

TEST(TextStatic, TheCaptionOfTheTemplateIsTheFormat) {
    ControlHost host;
    ADM_StaticText label;
    label.SetArg(0, "12");
    const HWND hWnd = BindLabel(host, label, "From %0 to %1");
    EXPECT_EQ(TextOf(hWnd), "From 12 to ");
    label.SetArg(1, "20");
    EXPECT_EQ(TextOf(hWnd), "From 12 to 20");
}

TEST(TextStatic, AFormatSetBeforeWins) {
    ControlHost host;
    ADM_StaticText label;
    label.SetFormat("%0 ms");
    label.SetArgInt(0, -5);
    const HWND hWnd = BindLabel(host, label, "caption");
    EXPECT_EQ(TextOf(hWnd), "-5 ms");
    label.SetFormat("100%% of %0");
    EXPECT_EQ(TextOf(hWnd), "100% of -5");
    label.SetFormat("");
    EXPECT_EQ(TextOf(hWnd), "");
    label.SetFormat(nullptr);
    EXPECT_EQ(TextOf(hWnd), "");
}

TEST(TextStatic, KeepsFormatAndArgumentsBetweenWindows) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "%0!");
    label.SetArg(0, "one");
    label.Attach(nullptr);
    DestroyWindow(hWnd);
    label.SetArg(0, "two");
    const HWND hNext = host.Bind(label, "Static", "other caption", 11, 0);
    EXPECT_EQ(TextOf(hNext), "two!");
}

TEST(TextStatic, ArgumentsBeyondTheTenthAreRefused) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "%0%1%2%3%4%5%6%7%8%9");
    for (int i = 0; i < 10; ++i) EXPECT_EQ(label.SetArgInt(i, i), 1);
    EXPECT_EQ(TextOf(hWnd), "0123456789");
    EXPECT_EQ(label.SetArg(10, "x"), 0);
    EXPECT_EQ(label.SetArg(-1, "x"), 0);
    EXPECT_EQ(label.SetArg(10, nullptr), 0);
    EXPECT_EQ(label.SetArgLong(11, 5), 0);
    EXPECT_EQ(label.SetArg(3, nullptr), 1);
    EXPECT_EQ(TextOf(hWnd), "0123456789");
}

TEST(TextStatic, NumbersTakeTheirFormat) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "%0|%1|%2|%3|%4");
    EXPECT_EQ(label.SetArgLong(0, -2147483647), 1);
    EXPECT_EQ(label.SetArgFloat(1, 1.23456f, 2, 6), 1);
    EXPECT_EQ(label.SetArgFloat(2, 1234.5678f, -1, 6), 1);
    EXPECT_EQ(label.SetArgDouble(3, 0.5, 3, 15), 1);
    EXPECT_EQ(label.SetArgDouble(4, 1234.5678, -1, 6), 1);
    EXPECT_EQ(TextOf(hWnd), "-2147483647|1.23|1234.57|0.500|1234.57");
}

TEST(TextStatic, AMissingStringChangesNothing) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "%0");
    label.SetArg(0, "kept");
    EXPECT_EQ(label.SetArgString(0, GetModuleHandleA(nullptr), 65000), 0);
    EXPECT_EQ(TextOf(hWnd), "kept");
    EXPECT_EQ(label.LoadText(GetModuleHandleA(nullptr), 65000), 0);
    EXPECT_EQ(TextOf(hWnd), "kept");
}

TEST(TextStatic, ALongTextIsCutAt4095Characters) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "%0%0");
    label.SetArg(0, std::string(3000, 'x').c_str());
    EXPECT_EQ(TextOf(hWnd), std::string(4095, 'x'));
}

TEST(TextStatic, TakesNoPartInChangeTests) {
    ADM_StaticText label;
    EXPECT_EQ(label.GetTrackChanges(), 0);
    label.SetForceModified(1);
    EXPECT_EQ(label.IsModified(), 0);
}

class LoggedLabel : public ADM_StaticText {
  public:
    void Refresh(LPCSTR szText) override {
        sShown += std::string("[") + szText + "]";
        ADM_StaticText::Refresh(szText);
    }
    std::string sShown;
};

TEST(TextStatic, EveryChangeRefreshes) {
    LoggedLabel label;
    label.SetFormat("%0");
    label.SetArg(0, "a");
    label.SetArgInt(0, 2);
    label.SetFormat("");
    EXPECT_EQ(label.sShown, "[][a][2][]");
}

TEST(TextStatic, AColourIsForItsTextAlone) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "text");
    const HDC hDC = GetDC(hWnd);
    EXPECT_EQ(label.OnCtlColor(host.window, hDC, hWnd, 6), nullptr);
    label.SetTextColor(RGB(255, 0, 0));
    EXPECT_NE(label.OnCtlColor(host.window, hDC, hWnd, 6), nullptr);
    EXPECT_EQ(GetTextColor(hDC), RGB(255, 0, 0));
    label.SetTextColor(ADM_StaticText::kNoColor);
    EXPECT_EQ(label.OnCtlColor(host.window, hDC, hWnd, 6), nullptr);
    ReleaseDC(hWnd, hDC);
}

TEST(TextStatic, AColouredLabelTakesItsGroundFromTheParent) {
    ControlHost host;
    ADM_StaticText label;
    const HWND hWnd = BindLabel(host, label, "text");
    const HDC hDC = GetDC(hWnd);
    const LRESULT nPlain =
        DefWindowProcA(host.window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(hDC),
                       reinterpret_cast<LPARAM>(hWnd));
    const COLORREF crGround = GetBkColor(hDC);
    SetBkColor(hDC, RGB(1, 2, 3));
    label.SetTextColor(RGB(0, 0, 255));
    EXPECT_EQ(SendMessageA(host.window, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(hDC),
                           reinterpret_cast<LPARAM>(hWnd)),
              nPlain);
    EXPECT_EQ(GetBkColor(hDC), crGround);
    EXPECT_EQ(GetTextColor(hDC), RGB(0, 0, 255));
    ReleaseDC(hWnd, hDC);
}

TEST(TextStatic, CodesBecomeNotifications) {
    framework_test::NotificationLog log;
    ADM_StaticText label;
    label.SetNotifyTarget(&log);
    for (int nRaw = 0; nRaw <= 4; ++nRaw) label.OnCommand(nullptr, 9, nullptr, nRaw);
    EXPECT_EQ(log.Take(), "203(9) 204(9) 1001(9) 1002(9)");
    ADM_Static picture;
    picture.SetNotifyTarget(&log);
    for (int nRaw = 0; nRaw <= 4; ++nRaw) picture.OnCommand(nullptr, 9, nullptr, nRaw);
    EXPECT_EQ(log.Take(), "203(9) 204(9) 1001(9) 1002(9)");
}

TEST(TextStatic, EnablingATellingLabelIsNotified) {
    ControlHost host;
    ADM_StaticText label;
    BindLabel(host, label, "text", SS_NOTIFY);
    host.log.Take();
    label.Enable(0);
    EXPECT_EQ(host.log.Take(), "1002(10)");
    label.Enable(1);
    EXPECT_EQ(host.log.Take(), "1001(10)");
}

TEST(TextStatic, ImagesAreSetAndRead) {
    ControlHost host;
    ADM_Static picture;
    EXPECT_EQ(picture.SetIcon(nullptr), nullptr);
    EXPECT_EQ(picture.GetBitmap(), nullptr);
    BindLabel(host, picture, "", SS_BITMAP);
    const HBITMAP hBitmap = CreateBitmap(8, 8, 1, 1, nullptr);
    EXPECT_EQ(picture.SetBitmap(hBitmap), nullptr);
    EXPECT_EQ(picture.GetBitmap(), hBitmap);
    EXPECT_EQ(picture.SetBitmap(nullptr), hBitmap);
    DeleteObject(hBitmap);
    ADM_Static iconic;
    host.Bind(iconic, "Static", "", 11, SS_ICON);
    const HICON hIcon = LoadIconA(nullptr, reinterpret_cast<LPCSTR>(IDI_ASTERISK));
    EXPECT_EQ(iconic.SetIcon(hIcon), nullptr);
    EXPECT_EQ(iconic.GetIcon(), hIcon);
}

}  // namespace
