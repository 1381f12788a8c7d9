// Drawing objects, text measurement and pixels in memory.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::RecordingWindow;

// A device context in memory with the dialog font and a bitmap of 32 bits.
class Drawing : public testing::Test {
  protected:
    void SetUp() override {
        dc_ = CreateCompatibleDC(nullptr);
        ASSERT_NE(nullptr, dc_);
        font_ = CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                            CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "MS Shell Dlg");
        ASSERT_NE(nullptr, font_);
        oldFont_ = SelectObject(dc_, font_);
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = 40;
        info.bmiHeader.biHeight = 30;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        ASSERT_NE(nullptr, bitmap_);
        oldBitmap_ = SelectObject(dc_, bitmap_);
    }
    void TearDown() override {
        SelectObject(dc_, oldFont_);
        SelectObject(dc_, oldBitmap_);
        EXPECT_TRUE(DeleteDC(dc_));
        EXPECT_TRUE(DeleteObject(font_));
        EXPECT_TRUE(DeleteObject(bitmap_));
    }
    SIZE Extent(const std::string& text) {
        SIZE size = {};
        EXPECT_TRUE(GetTextExtentPoint32A(dc_, text.data(), static_cast<int>(text.size()), &size));
        return size;
    }
    RECT Measure(const char* text, UINT format, int width = 0) {
        RECT rect = {0, 0, width, 0};
        DrawTextA(dc_, text, -1, &rect, format | DT_CALCRECT);
        return rect;
    }
    void Fill(int left, int top, int right, int bottom, COLORREF color) {
        HBRUSH brush = CreateSolidBrush(color);
        const RECT rect = {left, top, right, bottom};
        FillRect(dc_, &rect, brush);
        DeleteObject(brush);
    }

    HDC dc_ = nullptr;
    HFONT font_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HGDIOBJ oldFont_ = nullptr, oldBitmap_ = nullptr;
};

TEST_F(Drawing, TheDialogFontIsThirteenPixelsHigh) {
    TEXTMETRICA metrics = {};
    ASSERT_TRUE(GetTextMetricsA(dc_, &metrics));
    EXPECT_EQ(13, metrics.tmHeight);
    EXPECT_EQ(metrics.tmHeight, metrics.tmAscent + metrics.tmDescent);
    EXPECT_GE(metrics.tmAveCharWidth, 4);
    EXPECT_LE(metrics.tmAveCharWidth, 7);
}

TEST_F(Drawing, TextExtentsGrowWithTheirText) {
    EXPECT_EQ(0, Extent("").cx);
    EXPECT_EQ(13, Extent("x").cy);
    EXPECT_GT(Extent("WWWW").cx, Extent("iiii").cx);
    EXPECT_EQ(Extent("ab").cx * 2, Extent("abab").cx);
    EXPECT_GT(Extent("\xB5").cx, 0);
    EXPECT_GT(Extent("\xE4\xF6").cx, Extent("\xE4").cx);
}

TEST_F(Drawing, TheAlphabetHasTheWidthThatDialogUnitsRestOn) {
    const int width = Extent("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz").cx;
    EXPECT_EQ(6, (width / 26 + 1) / 2);
}

TEST_F(Drawing, DrawTextMeasuresOneLine) {
    const RECT rect = Measure("Cutoff", DT_SINGLELINE);
    EXPECT_EQ(Extent("Cutoff").cx, rect.right);
    EXPECT_EQ(13, rect.bottom);
}

TEST_F(Drawing, DrawTextMeasuresLines) {
    const RECT rect = Measure("One\nthree\r\ntwo", DT_LEFT);
    EXPECT_EQ(Extent("three").cx, rect.right);
    EXPECT_EQ(39, rect.bottom);
    EXPECT_EQ(13, Measure("One\nthree", DT_SINGLELINE).bottom);
}

TEST_F(Drawing, DrawTextBreaksWords) {
    const int width = Extent("several words").cx + 2;
    const RECT rect = Measure("several words that do not fit", DT_WORDBREAK, width);
    EXPECT_LE(rect.right, width);
    EXPECT_EQ(39, rect.bottom);
    // A word that is longer than the line widens the rectangle.
    const RECT wide = Measure("indivisible", DT_WORDBREAK, 10);
    EXPECT_GT(wide.right, 10);
    EXPECT_EQ(13, wide.bottom);
}

TEST_F(Drawing, DrawTextTakesAmpersandsAsMarks) {
    EXPECT_EQ(Extent("Open").cx, Measure("&Open", DT_SINGLELINE).right);
    EXPECT_EQ(Extent("a&b").cx, Measure("a&&b", DT_SINGLELINE).right);
    EXPECT_EQ(Extent("&Open").cx, Measure("&Open", DT_SINGLELINE | DT_NOPREFIX).right);
    EXPECT_EQ(Extent("Open").cx, Measure("&Open", DT_SINGLELINE | DT_HIDEPREFIX).right);
}

TEST_F(Drawing, DrawTextCutsWithEllipsis) {
    char text[64] = "a rather long text";
    const int width = Extent("a rather").cx;
    RECT rect = {0, 0, width, 13};
    DrawTextA(dc_, text, -1, &rect, DT_SINGLELINE | DT_END_ELLIPSIS | DT_MODIFYSTRING);
    const std::string cut = text;
    ASSERT_GT(cut.size(), 3u);
    EXPECT_EQ("...", cut.substr(cut.size() - 3));
    EXPECT_EQ(0u, std::string("a rather long text").find(cut.substr(0, cut.size() - 3)));
    EXPECT_LE(Extent(cut).cx, width);
}

TEST_F(Drawing, DrawTextOfNothingHasNoWidth) {
    const RECT rect = Measure("", DT_SINGLELINE);
    EXPECT_EQ(0, rect.right);
}

TEST_F(Drawing, SelectingGivesTheObjectBefore) {
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(1, 2, 3));
    HGDIOBJ old = SelectObject(dc_, pen);
    EXPECT_NE(nullptr, old);
    EXPECT_EQ(static_cast<HGDIOBJ>(pen), GetCurrentObject(dc_, OBJ_PEN));
    EXPECT_EQ(static_cast<HGDIOBJ>(pen), SelectObject(dc_, old));
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_EQ(static_cast<HGDIOBJ>(font_), GetCurrentObject(dc_, OBJ_FONT));
}

TEST_F(Drawing, TellsWhatAnObjectIs) {
    LOGFONTA font = {};
    EXPECT_EQ(static_cast<int>(sizeof font), GetObjectA(font_, sizeof font, &font));
    EXPECT_EQ(-11, font.lfHeight);
    EXPECT_STREQ("MS Shell Dlg", font.lfFaceName);
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(font_));
    EXPECT_EQ(static_cast<DWORD>(OBJ_BITMAP), GetObjectType(bitmap_));
    EXPECT_EQ(static_cast<DWORD>(OBJ_MEMDC), GetObjectType(reinterpret_cast<HGDIOBJ>(dc_)));
    EXPECT_EQ(0u, GetObjectType(nullptr));
}

TEST_F(Drawing, AttributesAreSavedAndRestored) {
    EXPECT_EQ(RGB(0, 0, 0), SetTextColor(dc_, RGB(10, 20, 30)));
    EXPECT_EQ(OPAQUE, SetBkMode(dc_, TRANSPARENT));
    const int level = SaveDC(dc_);
    EXPECT_GT(level, 0);
    SetTextColor(dc_, RGB(1, 1, 1));
    SetBkMode(dc_, OPAQUE);
    EXPECT_TRUE(RestoreDC(dc_, -1));
    EXPECT_EQ(RGB(10, 20, 30), GetTextColor(dc_));
    EXPECT_EQ(TRANSPARENT, GetBkMode(dc_));
    EXPECT_FALSE(RestoreDC(dc_, 5));
}

TEST_F(Drawing, PixelsAreWhatWasDrawn) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    Fill(5, 6, 10, 12, RGB(200, 100, 50));
    EXPECT_EQ(RGB(200, 100, 50), GetPixel(dc_, 5, 6));
    EXPECT_EQ(RGB(200, 100, 50), GetPixel(dc_, 9, 11));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 10, 11));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 4, 6));
    EXPECT_EQ(CLR_INVALID, GetPixel(dc_, 40, 0));
    SetPixel(dc_, 1, 1, RGB(7, 8, 9));
    EXPECT_EQ(RGB(7, 8, 9), GetPixel(dc_, 1, 1));
}

TEST_F(Drawing, LinesLeaveTheirLastPixelOut) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    HPEN pen = CreatePen(PS_SOLID, 1, RGB(0, 0, 255));
    HGDIOBJ old = SelectObject(dc_, pen);
    POINT before = {};
    MoveToEx(dc_, 2, 3, &before);
    EXPECT_TRUE(LineTo(dc_, 12, 3));
    MoveToEx(dc_, 0, 0, &before);
    EXPECT_EQ(12, before.x);
    SelectObject(dc_, old);
    DeleteObject(pen);
    EXPECT_EQ(RGB(0, 0, 255), GetPixel(dc_, 2, 3));
    EXPECT_EQ(RGB(0, 0, 255), GetPixel(dc_, 11, 3));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 12, 3));
}

TEST_F(Drawing, CopiesBits) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    Fill(0, 0, 2, 2, RGB(9, 8, 7));
    EXPECT_TRUE(BitBlt(dc_, 20, 10, 4, 4, dc_, 0, 0, SRCCOPY));
    EXPECT_EQ(RGB(9, 8, 7), GetPixel(dc_, 21, 11));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 22, 12));
    EXPECT_TRUE(StretchBlt(dc_, 30, 20, 8, 8, dc_, 0, 0, 2, 2, SRCCOPY));
    EXPECT_EQ(RGB(9, 8, 7), GetPixel(dc_, 37, 27));
}

TEST_F(Drawing, ClippingKeepsDrawingInside) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    IntersectClipRect(dc_, 0, 0, 10, 10);
    Fill(5, 5, 20, 20, RGB(1, 2, 3));
    EXPECT_EQ(RGB(1, 2, 3), GetPixel(dc_, 9, 9));
    SelectObject(dc_, oldBitmap_);
    SelectObject(dc_, bitmap_);
}

TEST_F(Drawing, InvertsARectangle) {
    Fill(0, 0, 40, 30, RGB(255, 0, 255));
    const RECT rect = {0, 0, 5, 5};
    EXPECT_TRUE(InvertRect(dc_, &rect));
    EXPECT_EQ(RGB(0, 255, 0), GetPixel(dc_, 4, 4));
    EXPECT_EQ(RGB(255, 0, 255), GetPixel(dc_, 5, 5));
}

TEST_F(Drawing, TheFocusRectangleIsDottedAndTakesItselfBack) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    const RECT rect = {4, 6, 24, 18};
    const auto dots = [&] {
        int count = 0;
        for (int x = 0; x < 40; ++x) {
            for (int y = 0; y < 30; ++y) count += GetPixel(dc_, x, y) != RGB(255, 255, 255);
        }
        return count;
    };
    const auto isDot = [&](int x, int y) { return GetPixel(dc_, x, y) == RGB(0, 0, 0); };
    EXPECT_TRUE(DrawFocusRect(dc_, &rect));
    EXPECT_EQ(30, dots()) << "half of the 60 pixels of the frame";
    EXPECT_NE(isDot(10, 6), isDot(11, 6));
    EXPECT_NE(isDot(4, 10), isDot(4, 11));
    EXPECT_NE(isDot(23, 10), isDot(23, 11));
    EXPECT_NE(isDot(10, 17), isDot(11, 17));
    EXPECT_TRUE(DrawFocusRect(dc_, &rect));
    EXPECT_EQ(0, dots());
}

TEST_F(Drawing, AWidePenStandsOnBothSidesOfItsLine) {
    Fill(0, 0, 40, 30, RGB(255, 255, 255));
    const HPEN pen = CreatePen(PS_SOLID, 3, RGB(0, 0, 255));
    const HGDIOBJ old = SelectObject(dc_, pen);
    MoveToEx(dc_, 10, 15, nullptr);
    EXPECT_TRUE(LineTo(dc_, 30, 15));
    SelectObject(dc_, old);
    DeleteObject(pen);
    for (int y = 14; y <= 16; ++y) EXPECT_EQ(RGB(0, 0, 255), GetPixel(dc_, 20, y)) << y;
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 20, 13));
    EXPECT_EQ(RGB(255, 255, 255), GetPixel(dc_, 20, 17));
}

TEST(Painting, BeginPaintValidatesAndTellsTheRectangle) {
    RecordingWindow window;
    test_support::PumpMessages();
    RECT dirty = {3, 4, 20, 30}, painted = {};
    bool validAfter = false;
    window.OnMessage([&](UINT message, WPARAM, LPARAM, LRESULT* result) {
        if (message != WM_PAINT) return false;
        PAINTSTRUCT paint = {};
        HDC dc = BeginPaint(window, &paint);
        EXPECT_NE(nullptr, dc);
        painted = paint.rcPaint;
        EndPaint(window, &paint);
        validAfter = !GetUpdateRect(window, nullptr, FALSE);
        *result = 0;
        return true;
    });
    InvalidateRect(window, &dirty, FALSE);
    RECT update = {};
    EXPECT_TRUE(GetUpdateRect(window, &update, FALSE));
    EXPECT_TRUE(EqualRect(&dirty, &update));
    UpdateWindow(window);
    EXPECT_TRUE(EqualRect(&dirty, &painted));
    EXPECT_TRUE(validAfter);
}

TEST(Painting, ADialogAsksForTheColoursOfItsControls) {
    test_support::DialogTemplate shape("Colours", 100, 60);
    shape.Edit(1, 5, 5).Label("x", 2, 5, 25);
    int edits = 0, statics = 0;
    test_support::TestDialog dialog([&](HWND, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_CTLCOLOREDIT) ++edits;
        if (message == WM_CTLCOLORSTATIC) ++statics;
        return FALSE;
    });
    HWND handle = dialog.Create(shape);
    ShowWindow(handle, SW_SHOW);
    test_support::PumpMessages();
    EXPECT_GT(edits, 0);
    EXPECT_GT(statics, 0);
    DestroyWindow(handle);
}

TEST(Painting, StockObjectsExistAndStay) {
    for (int index :
         {WHITE_BRUSH, NULL_BRUSH, BLACK_PEN, NULL_PEN, SYSTEM_FONT, DEFAULT_GUI_FONT}) {
        HGDIOBJ object = GetStockObject(index);
        EXPECT_NE(nullptr, object) << index;
        DeleteObject(object);
        EXPECT_EQ(object, GetStockObject(index)) << index;
    }
}

TEST(Painting, SystemColoursHaveBrushes) {
    EXPECT_NE(nullptr, GetSysColorBrush(COLOR_BTNFACE));
    EXPECT_NE(GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_3DFACE));
}

TEST(Painting, AWindowLendsADeviceContext) {
    RecordingWindow window;
    HDC dc = GetDC(window);
    ASSERT_NE(nullptr, dc);
    EXPECT_EQ(96, GetDeviceCaps(dc, LOGPIXELSX));
    EXPECT_EQ(96, GetDeviceCaps(dc, LOGPIXELSY));
    EXPECT_EQ(1, ReleaseDC(window, dc));
}

TEST_F(Drawing, APenMayTurnColoursRoundAndBack) {
    SetPixel(dc_, 5, 4, RGB(10, 20, 30));
    const HGDIOBJ old = SelectObject(dc_, GetStockObject(WHITE_PEN));
    const auto line = [&] {
        MoveToEx(dc_, 2, 4, nullptr);
        LineTo(dc_, 12, 4);
    };
    EXPECT_EQ(R2_COPYPEN, SetROP2(dc_, R2_NOT));
    line();
    EXPECT_EQ(RGB(245, 235, 225), GetPixel(dc_, 5, 4));
    line();
    EXPECT_EQ(RGB(10, 20, 30), GetPixel(dc_, 5, 4));
    EXPECT_EQ(R2_NOT, SetROP2(dc_, R2_XORPEN));
    line();
    EXPECT_EQ(RGB(245, 235, 225), GetPixel(dc_, 5, 4));
    EXPECT_EQ(0, SetROP2(dc_, 17));
    EXPECT_EQ(R2_XORPEN, SetROP2(dc_, R2_COPYPEN));
    SelectObject(dc_, old);
}

TEST_F(Drawing, TheOriginOfTheWindowMovesWhatIsDrawn) {
    POINT before = {9, 9};
    ASSERT_TRUE(SetWindowOrgEx(dc_, 3, -2, &before));
    EXPECT_EQ(0, before.x);
    EXPECT_EQ(0, before.y);
    SetPixel(dc_, 10, 5, RGB(1, 2, 3));
    ASSERT_TRUE(SetWindowOrgEx(dc_, 0, 0, &before));
    EXPECT_EQ(3, before.x);
    EXPECT_EQ(-2, before.y);
    EXPECT_EQ(RGB(1, 2, 3), GetPixel(dc_, 7, 7));
}

TEST_F(Drawing, TheFaceOfTheFontHasAName) {
    const HFONT font =
        CreateFontA(-11, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS,
                    CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, "Tahoma");
    const HGDIOBJ old = SelectObject(dc_, font);
    char face[32] = "";
    EXPECT_EQ(6, GetTextFaceA(dc_, sizeof face, face));
    EXPECT_STREQ("Tahoma", face);
    EXPECT_EQ(7, GetTextFaceA(dc_, 0, nullptr)) << "with the end";
    SelectObject(dc_, old);
    DeleteObject(font);
}

}  // namespace
