// Handles that are gone, null pointers, ids that do not exist: a failed call and nothing else.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::DialogTemplate;
using test_support::RecordingWindow;
using test_support::TestDialog;

class GoneWindow : public testing::Test {
  protected:
    void SetUp() override {
        RecordingWindow window(false);
        gone_ = window;
    }
    static DWORD ErrorOf(BOOL result) {
        EXPECT_FALSE(result);
        return GetLastError();
    }
    HWND gone_ = nullptr;
};

TEST_F(GoneWindow, IsNoWindow) {
    EXPECT_FALSE(IsWindow(gone_));
    EXPECT_FALSE(IsWindow(nullptr));
    EXPECT_FALSE(IsWindowVisible(gone_));
    EXPECT_FALSE(IsWindowEnabled(gone_));
    EXPECT_FALSE(IsChild(gone_, gone_));
}

TEST_F(GoneWindow, TakesNoMessages) {
    EXPECT_EQ(0, SendMessageA(gone_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("x")));
    EXPECT_EQ(static_cast<DWORD>(ERROR_INVALID_WINDOW_HANDLE),
              ErrorOf(PostMessageA(gone_, WM_APP, 0, 0)));
    EXPECT_EQ(0, SendMessageA(nullptr, WM_APP, 0, 0));
}

TEST_F(GoneWindow, FailsEachCall) {
    const DWORD invalid = ERROR_INVALID_WINDOW_HANDLE;
    RECT rect = {};
    EXPECT_FALSE(DestroyWindow(gone_));
    EXPECT_EQ(invalid, ErrorOf(GetWindowRect(gone_, &rect)));
    EXPECT_EQ(invalid, ErrorOf(GetClientRect(gone_, &rect)));
    EXPECT_EQ(invalid, ErrorOf(SetWindowPos(gone_, nullptr, 0, 0, 1, 1, SWP_NOZORDER)));
    EXPECT_FALSE(ShowWindow(gone_, SW_SHOW));
    EXPECT_FALSE(EnableWindow(gone_, TRUE));
    EXPECT_EQ(nullptr, GetParent(gone_));
    EXPECT_EQ(nullptr, GetWindow(gone_, GW_CHILD));
    EXPECT_EQ(nullptr, SetFocus(gone_));
    EXPECT_EQ(0, GetWindowLongA(gone_, GWL_STYLE));
    EXPECT_EQ(0, SetWindowLongPtrA(gone_, GWLP_USERDATA, 1));
    EXPECT_EQ(0, GetDlgCtrlID(gone_));
    EXPECT_EQ(nullptr, GetDlgItem(gone_, 1));
    EXPECT_FALSE(SetDlgItemTextA(gone_, 1, "x"));
    EXPECT_EQ(nullptr, GetPropA(gone_, "x"));
    EXPECT_FALSE(SetPropA(gone_, "x", &rect));
    EXPECT_FALSE(EndDialog(gone_, 1));
    EXPECT_EQ(nullptr, GetDC(gone_));
}

TEST_F(GoneWindow, HasNoText) {
    char text[8] = "old";
    EXPECT_EQ(0, GetWindowTextA(gone_, text, sizeof text));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0, GetWindowTextLengthA(gone_));
    EXPECT_FALSE(SetWindowTextA(gone_, "x"));
    EXPECT_EQ(0, GetClassNameA(gone_, text, sizeof text));
    std::strcpy(text, "old");
    EXPECT_EQ(0u, GetDlgItemTextA(gone_, 1, text, sizeof text));
    EXPECT_STREQ("", text);
}

TEST_F(GoneWindow, OwnsNoDialog) {
    DialogTemplate shape("x", 50, 50);
    TestDialog dialog;
    EXPECT_EQ(nullptr, dialog.Create(shape, gone_));
    KNOWN_GAP(kWine, "an owner that is gone gives -1", dialog.Run(shape, gone_) == 0);
}

TEST_F(GoneWindow, HasNoDialogKeys) {
    MSG msg = {};
    msg.message = WM_KEYDOWN;
    msg.wParam = VK_TAB;
    EXPECT_FALSE(IsDialogMessageA(gone_, &msg));
    EXPECT_EQ(nullptr, GetNextDlgTabItem(gone_, nullptr, FALSE));
    EXPECT_EQ(nullptr, GetNextDlgGroupItem(gone_, nullptr, FALSE));
}

TEST(BadArguments, AnUnknownClassMakesNoWindow) {
    EXPECT_EQ(nullptr, CreateWindowExA(0, "ZxNoSuchClass", "", 0, 0, 0, 1, 1, nullptr, nullptr,
                                       GetModuleHandleA(nullptr), nullptr));
    const DWORD error = GetLastError();
    EXPECT_TRUE(error == ERROR_CANNOT_FIND_WND_CLASS || error == ERROR_CLASS_DOES_NOT_EXIST)
        << error;
}

TEST(BadArguments, AChildNeedsAParent) {
    EXPECT_EQ(nullptr, CreateWindowExA(0, "Button", "", WS_CHILD, 0, 0, 1, 1, nullptr, nullptr,
                                       GetModuleHandleA(nullptr), nullptr));
}

TEST(BadArguments, NoTemplateMakesNoDialog) {
    struct Plain {
        static INT_PTR CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM) { return FALSE; }
    };
    EXPECT_EQ(nullptr, CreateDialogIndirectParamA(GetModuleHandleA(nullptr), nullptr, nullptr,
                                                  Plain::Procedure, 0));
    EXPECT_EQ(-1, DialogBoxParamA(GetModuleHandleA(nullptr), "NOSUCHDIALOG", nullptr,
                                  Plain::Procedure, 0));
}

TEST(BadArguments, UnknownItemsFail) {
    DialogTemplate shape("x", 50, 50);
    TestDialog dialog;
    HWND handle = dialog.Create(shape);
    EXPECT_EQ(nullptr, GetDlgItem(handle, 77));
    EXPECT_EQ(0, SendDlgItemMessageA(handle, 77, WM_GETTEXTLENGTH, 0, 0));
    BOOL good = TRUE;
    EXPECT_EQ(0u, GetDlgItemInt(handle, 77, &good, FALSE));
    EXPECT_FALSE(good);
    DestroyWindow(handle);
}

TEST(BadArguments, BuffersOfNoSizeAreLeftAlone) {
    RecordingWindow window(false);
    char text[4] = "abc";
    EXPECT_EQ(0, GetWindowTextA(window, text, 0));
    EXPECT_STREQ("abc", text);
    EXPECT_EQ(0, GetWindowTextA(window, nullptr, 0));
}

TEST(BadArguments, NullObjectsFail) {
    EXPECT_FALSE(DeleteObject(nullptr));
    EXPECT_FALSE(DeleteDC(nullptr));
    EXPECT_EQ(nullptr, SelectObject(nullptr, GetStockObject(BLACK_PEN)));
    SIZE size = {};
    EXPECT_FALSE(GetTextExtentPoint32A(nullptr, "x", 1, &size));
    EXPECT_EQ(0, GetObjectA(nullptr, 0, nullptr));
    EXPECT_FALSE(UnhookWindowsHookEx(nullptr));
    EXPECT_FALSE(CloseHandle(nullptr));
}

TEST(BadArguments, ControlMessagesOfWrongIndexesFail) {
    RecordingWindow window(false);
    HWND combo = window.Add("ComboBox", "", 1, CBS_DROPDOWNLIST, 0, 0, 50, 100);
    HWND list = window.Add("ListBox", "", 2, 0, 0, 50, 50, 50);
    EXPECT_EQ(CB_ERR, static_cast<int>(SendMessageA(combo, CB_SETCURSEL, 3, 0)));
    EXPECT_EQ(CB_ERR, static_cast<int>(SendMessageA(combo, CB_GETLBTEXTLEN, 3, 0)));
    EXPECT_EQ(CB_ERR, static_cast<int>(SendMessageA(combo, CB_DELETESTRING, 0, 0)));
    EXPECT_EQ(CB_ERR, static_cast<int>(SendMessageA(combo, CB_GETITEMDATA, 1, 0)));
    EXPECT_EQ(LB_ERR, static_cast<int>(SendMessageA(list, LB_SETCURSEL, 3, 0)));
    EXPECT_EQ(LB_ERR, static_cast<int>(SendMessageA(list, LB_GETTEXTLEN, 3, 0)));
    EXPECT_EQ(LB_ERR, static_cast<int>(SendMessageA(list, LB_DELETESTRING, 9, 0)));
    EXPECT_EQ(LB_ERR, static_cast<int>(SendMessageA(list, LB_GETITEMDATA, 1, 0)));
}

}  // namespace
