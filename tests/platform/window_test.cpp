// Windows themselves: the tree, texts, styles, longs, properties, subclassing, classes.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::PumpMessages;
using test_support::RecordingWindow;
using test_support::TextOf;

TEST(WindowTree, ChildrenStandInTheOrderOfTheirCreation) {
    RecordingWindow window(false);
    HWND a = window.Add("Static", "a", 1, 0), b = window.Add("Static", "b", 2, 0),
         c = window.Add("Static", "c", 3, 0);
    EXPECT_EQ(a, GetWindow(window, GW_CHILD));
    EXPECT_EQ(a, GetTopWindow(window));
    EXPECT_EQ(b, GetWindow(a, GW_HWNDNEXT));
    EXPECT_EQ(c, GetWindow(a, GW_HWNDLAST));
    EXPECT_EQ(a, GetWindow(c, GW_HWNDFIRST));
    EXPECT_EQ(b, GetWindow(c, GW_HWNDPREV));
    EXPECT_EQ(nullptr, GetWindow(c, GW_HWNDNEXT));
    EXPECT_EQ(window.Handle(), GetParent(a));
    EXPECT_TRUE(IsChild(window, b));
    EXPECT_FALSE(IsChild(a, b));
    EXPECT_FALSE(IsChild(window, window));
    EXPECT_EQ(2, GetDlgCtrlID(b));
    EXPECT_EQ(window.Handle(), GetAncestor(a, GA_PARENT));
    EXPECT_EQ(window.Handle(), GetAncestor(a, GA_ROOT));
}

TEST(WindowTree, OwnedPopupsAreNotChildren) {
    RecordingWindow owner(false);
    HWND popup = CreateWindowExA(0, "Static", "", WS_POPUP, 0, 0, 10, 10, owner, nullptr,
                                 GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(owner.Handle(), GetWindow(popup, GW_OWNER));
    EXPECT_EQ(owner.Handle(), GetParent(popup));
    EXPECT_FALSE(IsChild(owner, popup));
    EXPECT_EQ(popup, GetAncestor(popup, GA_ROOT));
    EXPECT_EQ(owner.Handle(), GetAncestor(popup, GA_ROOTOWNER));
    DestroyWindow(owner);
    EXPECT_FALSE(IsWindow(popup));
}

TEST(WindowTree, DestroyingAParentDestroysItsChildren) {
    HWND child = nullptr;
    {
        RecordingWindow window(false);
        child = window.Add("Button", "x", 1, 0);
        EXPECT_TRUE(IsWindow(child));
    }
    EXPECT_FALSE(IsWindow(child));
}

TEST(WindowTree, ChildrenCanMoveToAnotherParent) {
    RecordingWindow first(false), second(false);
    HWND child = first.Add("Button", "x", 1, 0);
    EXPECT_EQ(first.Handle(), SetParent(child, second));
    EXPECT_EQ(second.Handle(), GetParent(child));
    EXPECT_EQ(nullptr, GetDlgItem(first, 1));
    EXPECT_EQ(child, GetDlgItem(second, 1));
}

TEST(WindowTree, EnumChildWindowsVisitsGrandchildrenAndStops) {
    RecordingWindow window(false);
    HWND group = window.Add("Static", "g", 1, 0);
    HWND inner = CreateWindowExA(0, "Button", "i", WS_CHILD, 0, 0, 5, 5, group,
                                 reinterpret_cast<HMENU>(static_cast<INT_PTR>(2)),
                                 GetModuleHandleA(nullptr), nullptr);
    HWND last = window.Add("Static", "l", 3, 0);
    EXPECT_EQ((std::vector<HWND>{group, inner, last}), test_support::Descendants(window));
    struct Stop {
        static BOOL CALLBACK AtFirst(HWND, LPARAM count) {
            ++*reinterpret_cast<int*>(count);
            return FALSE;
        }
    };
    int count = 0;
    EnumChildWindows(window, Stop::AtFirst, reinterpret_cast<LPARAM>(&count));
    EXPECT_EQ(1, count);
}

TEST(WindowText, IsCutAtTheBuffer) {
    RecordingWindow window(false);
    HWND edit = window.Add("Edit", "abcdef", 1, 0);
    EXPECT_EQ(6, GetWindowTextLengthA(edit));
    char buffer[8];
    std::memset(buffer, 'x', sizeof buffer);
    EXPECT_EQ(3, GetWindowTextA(edit, buffer, 4));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ('x', buffer[4]);
    EXPECT_EQ(0, GetWindowTextA(edit, buffer, 1));
    EXPECT_STREQ("", buffer);
}

TEST(WindowText, KeepsHighBytes) {
    RecordingWindow window(false);
    const char text[] = "\xB5s \xB0 \x80 \xE4\xF6\xFC \x96";
    SetWindowTextA(window, text);
    EXPECT_EQ(text, TextOf(window));
}

TEST(WindowState, VisibilityNeedsVisibleParents) {
    RecordingWindow window(false);
    HWND child = window.Add("Button", "x", 1, 0);
    EXPECT_FALSE(IsWindowVisible(child));
    EXPECT_NE(0, GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE);
    EXPECT_FALSE(ShowWindow(window, SW_SHOW));
    EXPECT_TRUE(IsWindowVisible(child));
    EXPECT_TRUE(ShowWindow(child, SW_HIDE));
    EXPECT_FALSE(IsWindowVisible(child));
    EXPECT_EQ(0, GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE);
}

TEST(WindowState, EnablingSendsAMessageOnChangeOnly) {
    RecordingWindow window;
    window.Messages().Take();
    EXPECT_FALSE(EnableWindow(window, TRUE));
    EXPECT_EQ(std::string::npos, window.Messages().Take().find("WM_ENABLE"));
    EXPECT_FALSE(EnableWindow(window, FALSE));
    EXPECT_NE(std::string::npos, window.Messages().Take().find("WM_ENABLE"));
    EXPECT_NE(0, GetWindowLongA(window, GWL_STYLE) & WS_DISABLED);
    EXPECT_TRUE(EnableWindow(window, TRUE));
}

TEST(WindowLongs, KeepStyleIdAndPointers) {
    RecordingWindow window(false);
    HWND child = window.Add("Button", "x", 17, WS_TABSTOP, 0, 0, 10, 10, WS_EX_NOPARENTNOTIFY);
    EXPECT_EQ(17, GetWindowLongA(child, GWL_ID));
    EXPECT_EQ(17, SetWindowLongA(child, GWL_ID, 18));
    EXPECT_EQ(child, GetDlgItem(window, 18));
    const LONG style = GetWindowLongA(child, GWL_STYLE);
    EXPECT_EQ(WS_CHILD | WS_VISIBLE | WS_TABSTOP, style & (WS_CHILD | WS_VISIBLE | WS_TABSTOP));
    EXPECT_EQ(style, SetWindowLongA(child, GWL_STYLE, style & ~WS_TABSTOP));
    EXPECT_EQ(0, GetWindowLongA(child, GWL_STYLE) & WS_TABSTOP);
    EXPECT_EQ(WS_EX_NOPARENTNOTIFY, GetWindowLongA(child, GWL_EXSTYLE) & WS_EX_NOPARENTNOTIFY);
    const auto pointer = reinterpret_cast<LONG_PTR>(&child);
    EXPECT_EQ(0, SetWindowLongPtrA(child, GWLP_USERDATA, pointer));
    EXPECT_EQ(pointer, GetWindowLongPtrA(child, GWLP_USERDATA));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(GetModuleHandleA(nullptr)),
              GetWindowLongPtrA(child, GWLP_HINSTANCE));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(window.Handle()),
              GetWindowLongPtrA(child, GWLP_HWNDPARENT));
}

TEST(WindowLongs, AnIndexBeyondTheExtraBytesFails) {
    RecordingWindow window(false);
    SetLastError(0);
    EXPECT_EQ(0, GetWindowLongPtrA(window, 400));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_INDEX), GetLastError());
}

TEST(WindowProps, AreFoundByNameWithoutCase) {
    RecordingWindow window(false);
    int value = 0;
    EXPECT_EQ(nullptr, GetPropA(window, "ZxProp"));
    EXPECT_TRUE(SetPropA(window, "ZxProp", &value));
    EXPECT_EQ(&value, GetPropA(window, "ZxProp"));
    EXPECT_EQ(&value, GetPropA(window, "zxPROP"));
    EXPECT_TRUE(SetPropA(window, "ZxProp", &window));
    EXPECT_EQ(static_cast<HANDLE>(&window), GetPropA(window, "ZxProp"));
    EXPECT_EQ(static_cast<HANDLE>(&window), RemovePropA(window, "ZxProp"));
    EXPECT_EQ(nullptr, RemovePropA(window, "ZxProp"));
    EXPECT_EQ(nullptr, GetPropA(window, "ZxProp"));
}

WNDPROC originalProcedure = nullptr;
int setTextCalls = 0;
LRESULT CALLBACK CountingProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETTEXT) {
        ++setTextCalls;
        char changed[64] = "<";
        std::strncat(changed, reinterpret_cast<const char*>(lParam), 60);
        return CallWindowProcA(originalProcedure, hwnd, message, wParam,
                               reinterpret_cast<LPARAM>(changed));
    }
    return CallWindowProcA(originalProcedure, hwnd, message, wParam, lParam);
}

TEST(Subclassing, ReplacesTheProcedureAndCallsTheOldOne) {
    RecordingWindow window(false);
    HWND edit = window.Add("Edit", "", 1, 0);
    setTextCalls = 0;
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountingProcedure)));
    ASSERT_NE(nullptr, originalProcedure);
    SetWindowTextA(edit, "text");
    EXPECT_EQ("<text", TextOf(edit));
    EXPECT_EQ(1, setTextCalls);
    SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(originalProcedure));
    SetWindowTextA(edit, "plain");
    EXPECT_EQ("plain", TextOf(edit));
    EXPECT_EQ(1, setTextCalls);
}

// A class of its own with extra bytes, as the framework registers.
std::vector<std::string> lifeOfWindow;
LRESULT CALLBACK LifeProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE || message == WM_CREATE) {
        const auto& created = *reinterpret_cast<const CREATESTRUCTA*>(lParam);
        EXPECT_STREQ("life", created.lpszName);
        EXPECT_EQ(static_cast<void*>(&lifeOfWindow), created.lpCreateParams);
    }
    for (UINT shown : {WM_NCCREATE, WM_CREATE, WM_DESTROY, WM_NCDESTROY})
        if (message == shown) lifeOfWindow.push_back(test_support::MessageName(message));
    if (message == WM_CREATE && GetWindowLongPtrA(hwnd, 0) == -1) return -1;
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

class CustomClass : public testing::Test {
  protected:
    void SetUp() override {
        lifeOfWindow.clear();
        WNDCLASSA wc = {};
        wc.style = CS_DBLCLKS;
        wc.lpfnWndProc = LifeProcedure;
        wc.cbWndExtra = 3 * static_cast<int>(sizeof(LONG_PTR));
        wc.hInstance = GetModuleHandleA(nullptr);
        wc.lpszClassName = "ZxLife";
        EXPECT_NE(0, RegisterClassA(&wc));
        EXPECT_EQ(0, RegisterClassA(&wc));
        EXPECT_EQ(static_cast<DWORD>(ERROR_CLASS_ALREADY_EXISTS), GetLastError());
    }
    void TearDown() override { UnregisterClassA("ZxLife", GetModuleHandleA(nullptr)); }
    HWND Create() {
        return CreateWindowExA(0, "zxlife", "life", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                               GetModuleHandleA(nullptr), &lifeOfWindow);
    }
};

TEST_F(CustomClass, CreationAndDestructionRunInOrder) {
    HWND hwnd = Create();
    ASSERT_NE(nullptr, hwnd);
    EXPECT_TRUE(DestroyWindow(hwnd));
    EXPECT_EQ((std::vector<std::string>{"WM_NCCREATE", "WM_CREATE", "WM_DESTROY", "WM_NCDESTROY"}),
              lifeOfWindow);
}

TEST_F(CustomClass, ExtraBytesStartAtZeroAndKeepPointers) {
    HWND hwnd = Create();
    for (int slot = 0; slot < 3; ++slot) {
        const int index = slot * static_cast<int>(sizeof(LONG_PTR));
        EXPECT_EQ(0, GetWindowLongPtrA(hwnd, index));
        SetWindowLongPtrA(hwnd, index, reinterpret_cast<LONG_PTR>(&lifeOfWindow) + slot);
        EXPECT_EQ(reinterpret_cast<LONG_PTR>(&lifeOfWindow) + slot, GetWindowLongPtrA(hwnd, index));
    }
    DestroyWindow(hwnd);
}

TEST_F(CustomClass, CannotBeUnregisteredWhileAWindowLives) {
    HWND hwnd = Create();
    EXPECT_FALSE(UnregisterClassA("ZxLife", GetModuleHandleA(nullptr)));
    DestroyWindow(hwnd);
    EXPECT_TRUE(UnregisterClassA("ZxLife", GetModuleHandleA(nullptr)));
    EXPECT_EQ(nullptr, Create());
}

TEST_F(CustomClass, TellsItsNameAndData) {
    HWND hwnd = Create();
    char name[32] = "";
    EXPECT_EQ(6, GetClassNameA(hwnd, name, sizeof name));
    EXPECT_STREQ("ZxLife", name);
    EXPECT_EQ(3, GetClassNameA(hwnd, name, 4));
    EXPECT_STREQ("ZxL", name);
    WNDCLASSA wc = {};
    EXPECT_TRUE(GetClassInfoA(GetModuleHandleA(nullptr), "ZXLIFE", &wc));
    EXPECT_EQ(LifeProcedure, wc.lpfnWndProc);
    EXPECT_EQ(3 * static_cast<int>(sizeof(LONG_PTR)), wc.cbWndExtra);
    EXPECT_FALSE(GetClassInfoA(GetModuleHandleA(nullptr), "ZxNoSuchClass", &wc));
    DestroyWindow(hwnd);
}

TEST(WindowPosition, MovesSizesAndTells) {
    RecordingWindow window(true, 300, 200);
    window.Messages().Take();
    EXPECT_TRUE(SetWindowPos(window, nullptr, 50, 60, 320, 240, SWP_NOZORDER | SWP_NOACTIVATE));
    RECT rect = {};
    GetWindowRect(window, &rect);
    EXPECT_EQ(50, rect.left);
    EXPECT_EQ(60, rect.top);
    EXPECT_EQ(370, rect.right);
    EXPECT_EQ(300, rect.bottom);
    const std::string seen = window.Messages().Take();
    EXPECT_LT(seen.find("WM_WINDOWPOSCHANGING"), seen.find("WM_WINDOWPOSCHANGED"));
    EXPECT_NE(std::string::npos, seen.find("WM_SIZE"));
    EXPECT_NE(std::string::npos, seen.find("WM_MOVE"));
    EXPECT_TRUE(SetWindowPos(window, nullptr, 1, 2, 3, 4,
                             SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE));
    RECT same = {};
    GetWindowRect(window, &same);
    EXPECT_TRUE(EqualRect(&rect, &same));
}

TEST(WindowPosition, ChildrenArePlacedInTheClientAreaOfTheirParent) {
    RecordingWindow window;
    HWND child = window.Add("Static", "x", 1, 0, 11, 13, 40, 20);
    POINT origin = {0, 0};
    ClientToScreen(window, &origin);
    RECT rect = {};
    GetWindowRect(child, &rect);
    EXPECT_EQ(origin.x + 11, rect.left);
    EXPECT_EQ(origin.y + 13, rect.top);
    RECT client = {};
    GetClientRect(child, &client);
    EXPECT_EQ(0, client.left);
    EXPECT_EQ(40, client.right);
    EXPECT_EQ(20, client.bottom);
    POINT corners[2] = {{0, 0}, {40, 20}};
    MapWindowPoints(child, window, corners, 2);
    EXPECT_EQ(11, corners[0].x);
    EXPECT_EQ(33, corners[1].y);
    POINT back = {rect.left, rect.top};
    EXPECT_TRUE(ScreenToClient(child, &back));
    EXPECT_EQ(0, back.x);
    EXPECT_EQ(0, back.y);
}

TEST(WindowPosition, FramesTakeRoomFromTheClientArea) {
    RECT frame = {0, 0, 100, 100};
    const DWORD style = DWORD{WS_POPUP} | WS_CAPTION | WS_SYSMENU;
    EXPECT_TRUE(AdjustWindowRectEx(&frame, style, FALSE, 0));
    EXPECT_LT(frame.left, 0);
    EXPECT_LE(frame.top, frame.left - GetSystemMetrics(SM_CYCAPTION) + 1);
    RecordingWindow window(false);
    SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    RECT client = {};
    GetClientRect(window, &client);
    EXPECT_EQ(100, client.right);
    EXPECT_EQ(100, client.bottom);
}

TEST(WindowPosition, AnEdgeTakesTwoPixelsOnEachSide) {
    RecordingWindow window(false);
    HWND edge = window.Add("Static", "", 1, 0, 0, 0, 50, 30, WS_EX_CLIENTEDGE);
    HWND border = window.Add("Static", "", 2, WS_BORDER, 0, 0, 50, 30);
    RECT client = {};
    GetClientRect(edge, &client);
    EXPECT_EQ(46, client.right);
    EXPECT_EQ(26, client.bottom);
    GetClientRect(border, &client);
    EXPECT_EQ(48, client.right);
    EXPECT_EQ(28, client.bottom);
}

TEST(WindowPosition, ZOrderChangesTheOrderOfChildren) {
    RecordingWindow window(false);
    HWND a = window.Add("Static", "a", 1, 0), b = window.Add("Static", "b", 2, 0);
    HWND c = window.Add("Static", "c", 3, 0);
    SetWindowPos(c, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(c, GetTopWindow(window));
    SetWindowPos(c, a, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(c, GetWindow(a, GW_HWNDNEXT));
    SetWindowPos(a, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_EQ(a, GetWindow(b, GW_HWNDLAST));
}

TEST(WindowPosition, FindsTheChildUnderAPoint) {
    RecordingWindow window;
    HWND child = window.Add("Button", "x", 1, 0, 20, 30, 40, 20);
    EXPECT_EQ(child, ChildWindowFromPoint(window, {25, 35}));
    EXPECT_EQ(window.Handle(), ChildWindowFromPoint(window, {5, 5}));
    EXPECT_EQ(nullptr, ChildWindowFromPoint(window, {-100, -100}));
}

}  // namespace
