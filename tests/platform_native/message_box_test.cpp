// The message box as a dialog of this system: the ids of its parts, its layout, the windows that it
// closes to the user.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/platform.h"

namespace {

std::function<void(HWND)> step;

void CALLBACK Tick(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = GetActiveWindow();
    char name[16] = "";
    GetClassNameA(box, name, sizeof name);
    if (std::string(name) != "#32770") return;
    KillTimer(nullptr, timer);
    const auto now = step;
    now(box);
}

int Ask(UINT type, std::function<void(HWND)> then, HWND owner = nullptr) {
    step = std::move(then);
    SetTimer(nullptr, 0, 10, Tick);
    return MessageBoxA(owner, "The text", "The title", type);
}

void Press(HWND box, int id) {
    PostMessageA(GetDlgItem(box, id), BM_CLICK, 0, 0);
}

TEST(HeadlessMessageBox, ShowTitleTextAndIcon) {
    EXPECT_EQ(IDOK, Ask(MB_OK | MB_ICONWARNING, [](HWND box) {
                  char text[32];
                  GetWindowTextA(box, text, sizeof text);
                  EXPECT_STREQ("The title", text);
                  GetDlgItemTextA(box, 0xFFFF, text, sizeof text);
                  EXPECT_STREQ("The text", text);
                  EXPECT_EQ(
                      LoadIconA(nullptr, IDI_EXCLAMATION),
                      reinterpret_cast<HICON>(SendDlgItemMessageA(box, 20, STM_GETICON, 0, 0)));
                  Press(box, IDOK);
              }));
}

TEST(HeadlessMessageBox, DisableTheirOwnerAndGiveItBack) {
    HWND owner = CreateWindowExA(0, "Static", "o", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr,
                                 nullptr, nullptr, nullptr);
    HWND other = CreateWindowExA(0, "Static", "x", WS_POPUP | WS_VISIBLE, 0, 0, 90, 90, nullptr,
                                 nullptr, nullptr, nullptr);
    Ask(
        MB_OK,
        [&](HWND box) {
            EXPECT_FALSE(IsWindowEnabled(owner));
            EXPECT_TRUE(IsWindowEnabled(other));
            Press(box, IDOK);
        },
        owner);
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_EQ(owner, GetActiveWindow());
    Ask(MB_OK | MB_TASKMODAL, [&](HWND box) {
        EXPECT_FALSE(IsWindowEnabled(owner));
        EXPECT_FALSE(IsWindowEnabled(other));
        Press(box, IDOK);
    });
    EXPECT_TRUE(IsWindowEnabled(owner));
    EXPECT_TRUE(IsWindowEnabled(other));
    DestroyWindow(owner);
    DestroyWindow(other);
}

TEST(HeadlessMessageBox, AnUnknownTypeShowsNothing) {
    EXPECT_EQ(0, MessageBoxA(nullptr, "t", "c", 0xF));
}

TEST(HeadlessMessageBox, ALongTextStaysOnTheScreenAndInTheBox) {
    std::string text;
    for (int i = 0; i < 200; ++i) text += "a few more words ";
    step = [](HWND box) {
        RECT frame, label;
        GetWindowRect(box, &frame);
        GetWindowRect(GetDlgItem(box, 0xFFFF), &label);
        EXPECT_GE(frame.left, 0);
        EXPECT_LE(frame.right, GetSystemMetrics(SM_CXSCREEN));
        EXPECT_GT(label.left, frame.left);
        EXPECT_LT(label.right, frame.right);
        RECT button;
        GetWindowRect(GetDlgItem(box, IDOK), &button);
        EXPECT_GE(button.top, label.bottom);
        EXPECT_LT(button.bottom, frame.bottom);
        Press(box, IDOK);
    };
    SetTimer(nullptr, 0, 10, Tick);
    EXPECT_EQ(IDOK, MessageBoxA(nullptr, text.c_str(), "t", MB_OK));
}

}  // namespace
