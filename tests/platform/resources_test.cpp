// Resources of the module: strings, dialogs, bitmaps, bytes of a type of its own.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"
#include "platform/platform_test.h"

namespace {

using test_support::DialogScript;
using test_support::TestDialog;
using test_support::TextOf;

HINSTANCE Self() {
    return GetModuleHandleA(nullptr);
}

TEST(StringTable, LoadsTexts) {
    char text[64] = "";
    EXPECT_EQ(10, LoadStringA(Self(), IDS_PLAIN, text, sizeof text));
    EXPECT_STREQ("Plain text", text);
    EXPECT_EQ(8, LoadStringA(Self(), IDS_FAR, text, sizeof text));
    EXPECT_STREQ("far away", text);
}

TEST(StringTable, GivesBytesOfTheCodePage) {
    char text[64] = "";
    EXPECT_EQ(29, LoadStringA(Self(), IDS_HIGH_BYTES, text, sizeof text));
    EXPECT_STREQ(
        "10 \xB5s at 20 \xB0"
        "C, 3 \xD7 4 \xB1 1 \x96 \x80",
        text);
}

TEST(StringTable, CutsAtTheBuffer) {
    char text[8];
    std::memset(text, 'x', sizeof text);
    EXPECT_EQ(4, LoadStringA(Self(), IDS_PLAIN, text, 5));
    EXPECT_STREQ("Plai", text);
    EXPECT_EQ('x', text[5]);
}

TEST(StringTable, AMissingTextIsEmpty) {
    char text[8] = "old";
    EXPECT_EQ(0, LoadStringA(Self(), IDS_PLAIN + 5, text, sizeof text));
    EXPECT_STREQ("", text);
    EXPECT_EQ(0, LoadStringA(Self(), 60000, text, sizeof text));
}

TEST(ResourceDialog, HasItsTextsAndControls) {
    TestDialog dialog;
    HWND handle = dialog.CreateResource(IDD_SIMPLE);
    ASSERT_NE(nullptr, handle);
    EXPECT_EQ(
        "Gr\xF6\xDF"
        "e in \xB5m",
        TextOf(handle));
    EXPECT_EQ(
        "Temperature \xB0"
        "C",
        TextOf(GetDlgItem(handle, IDC_HIGH_LABEL)));
    EXPECT_EQ("edit", test_support::ClassOf(GetDlgItem(handle, IDC_NAME)));
    EXPECT_EQ("listbox", test_support::ClassOf(GetDlgItem(handle, IDC_LIST)));
    EXPECT_EQ("&Name:", TextOf(GetDlgItem(handle, -1)));
    EXPECT_NE(0, GetWindowLongA(handle, GWL_STYLE) & WS_CAPTION);
    DestroyWindow(handle);
}

TEST(ResourceDialog, ShowsABitmapOfTheModule) {
    TestDialog dialog;
    HWND handle = dialog.CreateResource(IDD_SIMPLE);
    HWND picture = GetDlgItem(handle, IDC_PICTURE);
    EXPECT_NE(0, SendMessageA(picture, STM_GETIMAGE, IMAGE_BITMAP, 0));
    RECT rect = {};
    GetClientRect(picture, &rect);
    EXPECT_EQ(3, rect.right);
    EXPECT_EQ(2, rect.bottom);
    DestroyWindow(handle);
}

TEST(ResourceDialog, RunsModally) {
    TestDialog dialog;
    DialogScript script;
    script.ExpectFocus(IDC_NAME).Type(IDC_NAME, "x").Press(VK_RETURN);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.RunResource(IDD_SIMPLE); }));
}

TEST(ResourceDialog, OfTheShortFormWorksAsWell) {
    TestDialog dialog;
    HWND handle = dialog.CreateResource(IDD_PLAIN_FORM);
    ASSERT_NE(nullptr, handle);
    EXPECT_EQ("Plain form", TextOf(handle));
    EXPECT_EQ("Short", TextOf(GetDlgItem(handle, IDC_CHECK)));
    DestroyWindow(handle);
}

TEST(ResourceDialog, ThatIsMissingFails) {
    TestDialog dialog;
    EXPECT_EQ(nullptr, dialog.CreateResource(999));
    EXPECT_EQ(-1, dialog.RunResource(999));
}

TEST(UserResource, GivesItsBytes) {
    HRSRC found = FindResourceA(Self(), MAKEINTRESOURCEA(IDR_BYTES), "ZXDATA");
    ASSERT_NE(nullptr, found);
    ASSERT_GE(SizeofResource(Self(), found), 9u);
    const void* bytes = LockResource(LoadResource(Self(), found));
    ASSERT_NE(nullptr, bytes);
    EXPECT_EQ(0, std::memcmp(bytes, "bytes\x34\x12\xFF\x00", 9));
}

TEST(UserResource, IsFoundWithoutCase) {
    EXPECT_NE(nullptr, FindResourceA(Self(), MAKEINTRESOURCEA(IDR_BYTES), "zxdata"));
    EXPECT_NE(nullptr, FindResourceA(Self(), "#500", "ZxData"));
}

TEST(UserResource, ThatIsMissingIsNull) {
    EXPECT_EQ(nullptr, FindResourceA(Self(), MAKEINTRESOURCEA(999), "ZXDATA"));
    EXPECT_EQ(nullptr, FindResourceA(Self(), MAKEINTRESOURCEA(IDR_BYTES), "NOSUCHTYPE"));
}

TEST(UserResource, NamesCanBeListed) {
    struct Collect {
        static BOOL CALLBACK Name(HMODULE, LPCSTR, LPSTR name, LONG_PTR list) {
            reinterpret_cast<std::vector<LPSTR>*>(list)->push_back(name);
            return TRUE;
        }
    };
    std::vector<LPSTR> names;
    EXPECT_TRUE(
        EnumResourceNamesA(Self(), "ZXDATA", Collect::Name, reinterpret_cast<LONG_PTR>(&names)));
    EXPECT_EQ((std::vector<LPSTR>{MAKEINTRESOURCEA(IDR_BYTES)}), names);
}

TEST(BitmapResource, HasItsSizeAndPixels) {
    HBITMAP bitmap = LoadBitmapA(Self(), MAKEINTRESOURCEA(IDB_CORNERS));
    ASSERT_NE(nullptr, bitmap);
    BITMAP info = {};
    EXPECT_EQ(static_cast<int>(sizeof info), GetObjectA(bitmap, sizeof info, &info));
    EXPECT_EQ(3, info.bmWidth);
    EXPECT_EQ(2, info.bmHeight);
    HDC dc = CreateCompatibleDC(nullptr);
    HGDIOBJ old = SelectObject(dc, bitmap);
    EXPECT_EQ(RGB(255, 0, 0), GetPixel(dc, 0, 0));
    EXPECT_EQ(RGB(0, 255, 0), GetPixel(dc, 1, 0));
    EXPECT_EQ(RGB(0, 0, 255), GetPixel(dc, 2, 0));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc, 0, 1));
    EXPECT_EQ(RGB(128, 128, 128), GetPixel(dc, 2, 1));
    SelectObject(dc, old);
    DeleteDC(dc);
    EXPECT_TRUE(DeleteObject(bitmap));
    EXPECT_EQ(nullptr, LoadBitmapA(Self(), MAKEINTRESOURCEA(999)));
}

TEST(BitmapResource, LoadsAsAnImageToo) {
    HANDLE image =
        LoadImageA(Self(), MAKEINTRESOURCEA(IDB_CORNERS), IMAGE_BITMAP, 0, 0, LR_DEFAULTCOLOR);
    ASSERT_NE(nullptr, image);
    BITMAP info = {};
    GetObjectA(image, sizeof info, &info);
    EXPECT_EQ(3, info.bmWidth);
    DeleteObject(image);
}

}  // namespace
