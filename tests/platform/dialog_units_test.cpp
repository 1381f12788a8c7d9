// Dialog units: how a template's numbers become pixels in the dialog font.
#include <gtest/gtest.h>

#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::DialogTemplate;
using test_support::TestDialog;

constexpr int kEdit = 101, kCombo = 102;

class DialogUnits : public testing::Test {
  protected:
    void SetUp() override {
        DialogTemplate shape("Units", 200, 100);
        shape.At(30, 40);
        shape.Control("Edit", "", kEdit, WS_TABSTOP | WS_BORDER, 7, 11, 61, 13)
            .Control("ComboBox", "", kCombo, CBS_DROPDOWNLIST | WS_VSCROLL, 80, 11, 60, 90);
        handle_ = dialog_.Create(shape);
        ASSERT_NE(nullptr, handle_);
    }
    void TearDown() override { DestroyWindow(handle_); }
    RECT Map(int left, int top, int right, int bottom) {
        RECT rect = {left, top, right, bottom};
        EXPECT_TRUE(MapDialogRect(handle_, &rect));
        return rect;
    }

    TestDialog dialog_;
    HWND handle_ = nullptr;
};

TEST_F(DialogUnits, TheDialogFontHasABaseUnitOf6By13) {
    const RECT rect = Map(0, 0, 4, 8);
    EXPECT_EQ(6, rect.right);
    EXPECT_EQ(13, rect.bottom);
}

TEST_F(DialogUnits, AreRoundedToTheNearestPixel) {
    const RECT rect = Map(7, 11, 61, 13);
    EXPECT_EQ(11, rect.left);    // 10.5
    EXPECT_EQ(18, rect.top);     // 17.875
    EXPECT_EQ(92, rect.right);   // 91.5
    EXPECT_EQ(21, rect.bottom);  // 21.125
}

TEST_F(DialogUnits, PlaceTheControls) {
    RECT rect = {};
    GetWindowRect(GetDlgItem(handle_, kEdit), &rect);
    MapWindowPoints(nullptr, handle_, reinterpret_cast<POINT*>(&rect), 2);
    EXPECT_EQ(11, rect.left);
    EXPECT_EQ(18, rect.top);
    EXPECT_EQ(11 + 92, rect.right);
    EXPECT_EQ(18 + 21, rect.bottom);
}

TEST_F(DialogUnits, SizeTheClientArea) {
    RECT client = {};
    GetClientRect(handle_, &client);
    EXPECT_EQ(300, client.right);
    EXPECT_EQ(163, client.bottom);  // 162.5
}

TEST_F(DialogUnits, AClosedComboBoxIsAsHighAsItsField) {
    RECT rect = {};
    GetWindowRect(GetDlgItem(handle_, kCombo), &rect);
    EXPECT_EQ(90, rect.right - rect.left);
    EXPECT_GE(rect.bottom - rect.top, 19);
    EXPECT_LE(rect.bottom - rect.top, 24);
}

TEST_F(DialogUnits, NeedADialog) {
    RECT rect = {0, 0, 4, 8};
    EXPECT_FALSE(MapDialogRect(nullptr, &rect));
}

TEST(DialogPosition, ADialogLiesRelativeToItsOwner) {
    test_support::RecordingWindow owner;
    SetWindowPos(owner, nullptr, 100, 120, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    POINT origin = {0, 0};
    ClientToScreen(owner, &origin);
    DialogTemplate shape("Placed", 80, 40);
    shape.At(20, 16);
    TestDialog dialog;
    HWND handle = dialog.Create(shape, owner);
    // Client area to client area: the frame lies outside.
    POINT client = {0, 0};
    ClientToScreen(handle, &client);
    EXPECT_EQ(origin.x + 30, client.x);
    EXPECT_EQ(origin.y + 26, client.y);
    DestroyWindow(handle);
}

TEST(DialogPosition, CenterPutsADialogIntoTheMiddleOfItsOwner) {
    DialogTemplate shape("Centered", 80, 40);
    shape.Style(DWORD{WS_POPUP} | WS_CAPTION | DS_MODALFRAME | DS_SETFONT | DS_CENTER);
    TestDialog dialog;
    HWND handle = dialog.Create(shape);
    RECT rect = {}, work = {};
    GetWindowRect(handle, &rect);
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    EXPECT_NEAR((work.left + work.right) / 2, (rect.left + rect.right) / 2, 2);
    EXPECT_NEAR((work.top + work.bottom) / 2, (rect.top + rect.bottom) / 2, 2);
    DestroyWindow(handle);
}

TEST(DialogPosition, BaseUnitsOfTheSystemFontAreSane) {
    const LONG units = GetDialogBaseUnits();
    EXPECT_GE(LOWORD(units), 6);
    EXPECT_LE(LOWORD(units), 12);
    EXPECT_GE(HIWORD(units), 13);
    EXPECT_LE(HIWORD(units), 24);
}

}  // namespace
