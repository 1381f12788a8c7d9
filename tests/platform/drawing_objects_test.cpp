// Drawing objects and the pixels of bitmaps in memory.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "platform/platform.h"

namespace {

class MemoryBitmap : public testing::Test {
  protected:
    MemoryBitmap() : m_dc(CreateCompatibleDC(nullptr)) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kWidth;
        info.bmiHeader.biHeight = -kHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_old = SelectObject(m_dc, m_bitmap);
    }
    ~MemoryBitmap() override {
        SelectObject(m_dc, m_old);
        DeleteDC(m_dc);
        DeleteObject(m_bitmap);
    }

    static constexpr int kWidth = 40;
    static constexpr int kHeight = 30;

    // Rows of the picture, one letter per pixel: '.' black, 'R', 'G', 'B', 'W', '?' anything else.
    std::string Row(int y, int from, int to) const {
        std::string row;
        for (int x = from; x < to; ++x) {
            switch (GetPixel(m_dc, x, y)) {
                case RGB(0, 0, 0):
                    row += '.';
                    break;
                case RGB(255, 0, 0):
                    row += 'R';
                    break;
                case RGB(0, 255, 0):
                    row += 'G';
                    break;
                case RGB(0, 0, 255):
                    row += 'B';
                    break;
                case RGB(255, 255, 255):
                    row += 'W';
                    break;
                default:
                    row += '?';
                    break;
            }
        }
        return row;
    }
    void Fill(int left, int top, int right, int bottom, COLORREF color) {
        RECT rect = {left, top, right, bottom};
        HBRUSH brush = CreateSolidBrush(color);
        FillRect(m_dc, &rect, brush);
        DeleteObject(brush);
    }

    HDC m_dc;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
    void* m_bits = nullptr;
};

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kGreen = RGB(0, 255, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

TEST_F(MemoryBitmap, BeginsBlackAndTakesPixels) {
    EXPECT_EQ(RGB(0, 0, 0), GetPixel(m_dc, 0, 0));
    EXPECT_EQ(RGB(1, 2, 3), SetPixel(m_dc, 5, 6, RGB(1, 2, 3)));
    EXPECT_EQ(RGB(1, 2, 3), GetPixel(m_dc, 5, 6));
    EXPECT_EQ(CLR_INVALID, GetPixel(m_dc, kWidth, 0));
    EXPECT_EQ(CLR_INVALID, GetPixel(m_dc, 0, -1));
}

TEST_F(MemoryBitmap, ItsBitsAreBlueGreenRedFromTheTop) {
    SetPixel(m_dc, 1, 0, RGB(1, 2, 3));
    const BYTE* bits = static_cast<const BYTE*>(m_bits);
    EXPECT_EQ(3, bits[4]);
    EXPECT_EQ(2, bits[5]);
    EXPECT_EQ(1, bits[6]);
    static_cast<BYTE*>(m_bits)[8] = 9;
    EXPECT_EQ(RGB(0, 0, 9), GetPixel(m_dc, 2, 0));
}

TEST_F(MemoryBitmap, FillsAndFramesStopBeforeRightAndBottom) {
    Fill(1, 1, 4, 3, kRed);
    EXPECT_EQ("......", Row(0, 0, 6));
    EXPECT_EQ(".RRR..", Row(1, 0, 6));
    EXPECT_EQ(".RRR..", Row(2, 0, 6));
    EXPECT_EQ("......", Row(3, 0, 6));
    RECT rect = {10, 10, 15, 13};
    FrameRect(m_dc, &rect, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    EXPECT_EQ("WWWWW", Row(10, 10, 15));
    EXPECT_EQ("W...W", Row(11, 10, 15));
    EXPECT_EQ("WWWWW.", Row(12, 10, 16));
}

TEST_F(MemoryBitmap, LinesLeaveTheirEndOut) {
    HPEN pen = CreatePen(PS_SOLID, 1, kGreen);
    HGDIOBJ old = SelectObject(m_dc, pen);
    MoveToEx(m_dc, 2, 5, nullptr);
    LineTo(m_dc, 6, 5);
    EXPECT_EQ("..GGGG..", Row(5, 0, 8));
    LineTo(m_dc, 6, 2);
    EXPECT_EQ("G", Row(5, 6, 7));
    EXPECT_EQ("G", Row(3, 6, 7));
    EXPECT_EQ(".", Row(2, 6, 7));
    SelectObject(m_dc, old);
    DeleteObject(pen);
}

TEST_F(MemoryBitmap, RectanglesHaveAnOutlineAndAnInside) {
    HGDIOBJ oldPen = SelectObject(m_dc, GetStockObject(WHITE_PEN));
    HBRUSH brush = CreateSolidBrush(kBlue);
    HGDIOBJ oldBrush = SelectObject(m_dc, brush);
    Rectangle(m_dc, 1, 1, 6, 4);
    EXPECT_EQ(".WWWWW.", Row(1, 0, 7));
    EXPECT_EQ(".WBBBW.", Row(2, 0, 7));
    EXPECT_EQ(".WWWWW.", Row(3, 0, 7));
    SelectObject(m_dc, GetStockObject(NULL_BRUSH));
    Fill(20, 0, 30, 10, kRed);
    Rectangle(m_dc, 20, 0, 25, 4);
    EXPECT_EQ("WRRRW", Row(1, 20, 25));
    SelectObject(m_dc, oldPen);
    SelectObject(m_dc, oldBrush);
    DeleteObject(brush);
}

TEST_F(MemoryBitmap, ClippingHolds) {
    const int saved = SaveDC(m_dc);
    EXPECT_EQ(2, IntersectClipRect(m_dc, 2, 0, 8, 3)) << "a single rectangle";
    EXPECT_EQ(3, ExcludeClipRect(m_dc, 4, 0, 6, 3)) << "more than one";
    Fill(0, 0, 20, 20, kWhite);
    RestoreDC(m_dc, saved);
    EXPECT_EQ("..WW..WW..", Row(0, 0, 10));
    EXPECT_EQ("..........", Row(3, 0, 10));
    Fill(0, 0, 1, 1, kWhite);
    EXPECT_EQ("W", Row(0, 0, 1));
}

TEST_F(MemoryBitmap, CopiesWithEachOperation) {
    HDC from = CreateCompatibleDC(m_dc);
    HBITMAP picture = CreateCompatibleBitmap(m_dc, 2, 1);
    HGDIOBJ old = SelectObject(from, picture);
    SetPixel(from, 0, 0, kRed);
    SetPixel(from, 1, 0, kWhite);
    Fill(0, 0, 40, 1, kGreen);
    EXPECT_TRUE(BitBlt(m_dc, 1, 0, 2, 1, from, 0, 0, SRCCOPY));
    EXPECT_EQ("GRWG", Row(0, 0, 4));
    EXPECT_TRUE(BitBlt(m_dc, 5, 0, 2, 1, from, 0, 0, SRCAND));
    EXPECT_EQ(".G", Row(0, 5, 7));
    EXPECT_TRUE(BitBlt(m_dc, 8, 0, 2, 1, from, 0, 0, SRCPAINT));
    EXPECT_EQ(RGB(255, 255, 0), GetPixel(m_dc, 8, 0));
    EXPECT_TRUE(BitBlt(m_dc, 11, 0, 2, 1, from, 0, 0, SRCINVERT));
    EXPECT_EQ(RGB(255, 0, 255), GetPixel(m_dc, 12, 0));
    EXPECT_TRUE(BitBlt(m_dc, 15, 0, 2, 1, nullptr, 0, 0, WHITENESS));
    EXPECT_EQ("WW", Row(0, 15, 17));
    EXPECT_TRUE(StretchBlt(m_dc, 20, 0, 4, 1, from, 0, 0, 2, 1, SRCCOPY));
    EXPECT_EQ("RRWW", Row(0, 20, 24));
    SelectObject(from, old);
    DeleteDC(from);
    DeleteObject(picture);
}

TEST_F(MemoryBitmap, TwoColoursBecomeTextAndBackground) {
    HDC from = CreateCompatibleDC(m_dc);
    const WORD bits[1] = {0x40};
    HBITMAP mask = CreateBitmap(2, 1, 1, 1, bits);
    HGDIOBJ old = SelectObject(from, mask);
    SetTextColor(m_dc, kRed);
    SetBkColor(m_dc, kBlue);
    BitBlt(m_dc, 0, 0, 2, 1, from, 0, 0, SRCCOPY);
    EXPECT_EQ("RB", Row(0, 0, 2));
    SelectObject(from, old);
    DeleteDC(from);
    DeleteObject(mask);
}

TEST_F(MemoryBitmap, InvertingTwiceChangesNothing) {
    RECT rect = {0, 0, 3, 1};
    InvertRect(m_dc, &rect);
    EXPECT_EQ("WWW.", Row(0, 0, 4));
    InvertRect(m_dc, &rect);
    EXPECT_EQ("....", Row(0, 0, 4));
}

TEST_F(MemoryBitmap, LogicalUnitsScaleAndMove) {
    SetMapMode(m_dc, MM_ANISOTROPIC);
    SetWindowExtEx(m_dc, 10, 10, nullptr);
    SetViewportExtEx(m_dc, 20, 20, nullptr);
    SetViewportOrgEx(m_dc, 4, 0, nullptr);
    Fill(0, 0, 2, 1, kRed);
    EXPECT_EQ("....RRRR.", [&] {
        SetMapMode(m_dc, MM_TEXT);
        SetViewportOrgEx(m_dc, 0, 0, nullptr);
        return Row(1, 0, 9);
    }());
}

TEST_F(MemoryBitmap, EdgesTellWhatTheyLeave) {
    const auto inner = [&](UINT edge, UINT flags) {
        RECT rect = {10, 10, 30, 25};
        DrawEdge(m_dc, &rect, edge, flags);
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
               std::to_string(rect.right) + "," + std::to_string(rect.bottom);
    };
    EXPECT_EQ("12,12,28,23", inner(EDGE_RAISED, BF_RECT | BF_ADJUST));
    EXPECT_EQ("12,12,28,23", inner(EDGE_ETCHED, BF_RECT | BF_ADJUST));
    EXPECT_EQ("11,11,29,24", inner(BDR_SUNKENOUTER, BF_RECT | BF_ADJUST));
    EXPECT_EQ("10,12,30,25", inner(EDGE_RAISED, BF_TOP | BF_ADJUST));
    EXPECT_EQ("11,10,30,24", inner(BDR_RAISEDOUTER, BF_LEFT | BF_BOTTOM | BF_ADJUST));
    EXPECT_EQ("10,10,30,25", inner(EDGE_RAISED, BF_RECT));
    RECT rect = {10, 10, 30, 25};
    EXPECT_TRUE(DrawFrameControl(m_dc, &rect, DFC_BUTTON, DFCS_BUTTONPUSH | DFCS_ADJUSTRECT));
    EXPECT_EQ(12, rect.left);
    EXPECT_EQ(23, rect.bottom);
}

TEST_F(MemoryBitmap, EdgesHaveTheColoursOfTheSystem) {
    Fill(0, 0, 40, 30, kRed);
    RECT rect = {10, 10, 30, 25};
    DrawEdge(m_dc, &rect, EDGE_ETCHED, BF_RECT);
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), GetPixel(m_dc, 10, 15));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), GetPixel(m_dc, 11, 15));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), GetPixel(m_dc, 29, 15));
    rect = {10, 10, 30, 25};
    DrawEdge(m_dc, &rect, EDGE_SUNKEN, BF_RECT);
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), GetPixel(m_dc, 10, 15));
    EXPECT_EQ(GetSysColor(COLOR_3DDKSHADOW), GetPixel(m_dc, 11, 15));
    EXPECT_EQ(GetSysColor(COLOR_3DLIGHT), GetPixel(m_dc, 28, 15));
    EXPECT_EQ(GetSysColor(COLOR_BTNHIGHLIGHT), GetPixel(m_dc, 29, 15));
    EXPECT_EQ(kRed, GetPixel(m_dc, 20, 15)) << "the middle is left as it is";
}

TEST(DrawingContext, BeginsWithTheDefaults) {
    HDC dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(RGB(0, 0, 0), GetTextColor(dc));
    EXPECT_EQ(kWhite, GetBkColor(dc));
    EXPECT_EQ(OPAQUE, GetBkMode(dc));
    EXPECT_EQ(MM_TEXT, GetMapMode(dc));
    EXPECT_EQ(GetStockObject(SYSTEM_FONT), GetCurrentObject(dc, OBJ_FONT));
    EXPECT_EQ(GetStockObject(WHITE_BRUSH), GetCurrentObject(dc, OBJ_BRUSH));
    EXPECT_EQ(GetStockObject(BLACK_PEN), GetCurrentObject(dc, OBJ_PEN));
    DeleteDC(dc);
}

TEST(DrawingContext, SavesAndRestoresByLevels) {
    HDC dc = CreateCompatibleDC(nullptr);
    SetTextColor(dc, 1);
    EXPECT_EQ(1, SaveDC(dc));
    SetTextColor(dc, 2);
    EXPECT_EQ(2, SaveDC(dc));
    SetTextColor(dc, 3);
    EXPECT_TRUE(RestoreDC(dc, 1));
    EXPECT_EQ(1u, GetTextColor(dc));
    EXPECT_FALSE(RestoreDC(dc, 1));
    SaveDC(dc);
    SetTextColor(dc, 4);
    EXPECT_TRUE(RestoreDC(dc, -1));
    EXPECT_EQ(1u, GetTextColor(dc));
    EXPECT_FALSE(RestoreDC(dc, -1));
    DeleteDC(dc);
}

TEST(DrawingContext, ExtentsChangeOnlyInFreeModes) {
    HDC dc = CreateCompatibleDC(nullptr);
    SIZE size = {};
    SetWindowExtEx(dc, 100, 100, nullptr);
    GetWindowExtEx(dc, &size);
    EXPECT_EQ(1, size.cx);
    EXPECT_EQ(MM_TEXT, SetMapMode(dc, MM_ANISOTROPIC));
    EXPECT_TRUE(SetWindowExtEx(dc, 100, 50, nullptr));
    GetWindowExtEx(dc, &size);
    EXPECT_EQ(100, size.cx);
    EXPECT_EQ(50, size.cy);
    DeleteDC(dc);
}

TEST(DrawingObject, AFontKeepsItsDescription) {
    LOGFONTA made = {};
    made.lfHeight = -19;
    made.lfWeight = FW_BOLD;
    made.lfItalic = 1;
    made.lfCharSet = DEFAULT_CHARSET;
    made.lfPitchAndFamily = 34;
    std::strcpy(made.lfFaceName, "Tahoma");
    HFONT font = CreateFontIndirectA(&made);
    LOGFONTA read = {};
    EXPECT_EQ(static_cast<int>(sizeof read), GetObjectA(font, sizeof read, &read));
    EXPECT_EQ(-19, read.lfHeight);
    EXPECT_EQ(FW_BOLD, read.lfWeight);
    EXPECT_EQ(1, read.lfItalic);
    EXPECT_EQ(34, read.lfPitchAndFamily);
    EXPECT_STREQ("Tahoma", read.lfFaceName);
    EXPECT_EQ(static_cast<int>(sizeof read), GetObjectA(font, 0, nullptr));
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(font));
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_EQ(0u, GetObjectType(font));
}

TEST(DrawingObject, TheFontOfDialogsIsAStockObject) {
    LOGFONTA font = {};
    GetObjectA(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font);
    EXPECT_STREQ("MS Shell Dlg", font.lfFaceName);
    EXPECT_EQ(-11, font.lfHeight);
    EXPECT_TRUE(DeleteObject(GetStockObject(DEFAULT_GUI_FONT))) << "and nothing happens";
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(GetStockObject(DEFAULT_GUI_FONT)));
}

TEST(DrawingObject, OneThatIsSelectedLivesUntilItIsSelectedOut) {
    HDC dc = CreateCompatibleDC(nullptr);
    HFONT font = CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, "Tahoma");
    HGDIOBJ old = SelectObject(dc, font);
    EXPECT_TRUE(DeleteObject(font));
    EXPECT_EQ(static_cast<DWORD>(OBJ_FONT), GetObjectType(font));
    EXPECT_EQ(font, SelectObject(dc, old));
    EXPECT_EQ(0u, GetObjectType(font));
    DeleteDC(dc);
}

TEST(DrawingObject, ABitmapIsInOneContextAtATime) {
    HDC first = CreateCompatibleDC(nullptr);
    HDC second = CreateCompatibleDC(nullptr);
    HBITMAP bitmap = CreateBitmap(4, 4, 1, 1, nullptr);
    HGDIOBJ old = SelectObject(first, bitmap);
    EXPECT_NE(nullptr, old);
    EXPECT_EQ(nullptr, SelectObject(second, bitmap));
    SelectObject(first, old);
    EXPECT_NE(nullptr, SelectObject(second, bitmap));
    DeleteDC(first);
    DeleteDC(second);
    DeleteObject(bitmap);
}

TEST(DrawingObject, ABitmapTellsItsSize) {
    HBITMAP bitmap = CreateBitmap(17, 3, 1, 1, nullptr);
    BITMAP info = {};
    EXPECT_EQ(static_cast<int>(sizeof info), GetObjectA(bitmap, sizeof info, &info));
    EXPECT_EQ(17, info.bmWidth);
    EXPECT_EQ(3, info.bmHeight);
    EXPECT_EQ(4, info.bmWidthBytes);
    EXPECT_EQ(1, info.bmBitsPixel);
    DeleteObject(bitmap);
}

TEST(DrawingObject, AWrongHandleIsRefused) {
    HDC dc = CreateCompatibleDC(nullptr);
    DeleteDC(dc);
    EXPECT_EQ(nullptr, SelectObject(dc, GetStockObject(BLACK_PEN)));
    EXPECT_EQ(CLR_INVALID, SetTextColor(dc, 1));
    RECT rect = {0, 0, 5, 5};
    EXPECT_EQ(0, DrawTextA(dc, "x", -1, &rect, 0));
    EXPECT_FALSE(DeleteDC(dc));
}

TEST(Metafile, AMalformedOneIsRefused) {
    const METAFILEPICT picture = {MM_ANISOTROPIC, 1000, 500, nullptr};
    const BYTE rubbish[32] = {1, 2, 3, 4};
    EXPECT_EQ(nullptr, SetWinMetaFileBits(sizeof rubbish, rubbish, nullptr, &picture));
    EXPECT_EQ(nullptr, SetWinMetaFileBits(0, rubbish, nullptr, &picture));
}

TEST(Metafile, AnEmptyOneIsMadePlayedAndDeleted) {
    const WORD words[12] = {1, 9, 0x300, 12, 0, 0, 3, 0, 0, 3, 0, 0};
    const METAFILEPICT picture = {MM_ANISOTROPIC, 1000, 500, nullptr};
    HENHMETAFILE metafile =
        SetWinMetaFileBits(sizeof words, reinterpret_cast<const BYTE*>(words), nullptr, &picture);
    ASSERT_NE(nullptr, metafile);
    HDC dc = CreateCompatibleDC(nullptr);
    const RECT rect = {0, 0, 10, 10};
    EXPECT_TRUE(PlayEnhMetaFile(dc, metafile, &rect));
    DeleteDC(dc);
    EXPECT_TRUE(DeleteEnhMetaFile(metafile));
    EXPECT_FALSE(DeleteEnhMetaFile(metafile));
}

}  // namespace
