// What the headless system keeps of what is drawn.
#include "platform/headless/recording.h"

#include <gtest/gtest.h>

#include <string>

#include "fixtures/TestWindows.h"
#include "platform/headless/display.h"
#include "platform/headless/gdi.h"
#include "platform/platform.h"

namespace {

using headless::DrawKind;
using headless::DrawOp;
using headless::RecordedOps;
using headless::RecordedTexts;
using test_support::RecordingWindow;

const DrawOp* FindOp(HWND hwnd, DrawKind kind) {
    for (const DrawOp& op : RecordedOps(hwnd))
        if (op.kind == kind) return &op;
    return nullptr;
}

std::string Describe(const RECT& rect) {
    return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
           std::to_string(rect.right) + "," + std::to_string(rect.bottom);
}

HWND AddInDialogFont(RecordingWindow& window, const char* className, const char* text, DWORD style,
                     int width = 100, int height = 23) {
    HWND control = window.Add(className, text, 5, style, 10, 10, width, height);
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    InvalidateRect(control, nullptr, TRUE);
    UpdateWindow(control);
    return control;
}

// A window of its own that paints what it is told.
class Painted {
  public:
    using Painter = void (*)(HDC dc);
    explicit Painted(Painter painter) : m_painter(painter) {
        m_window.OnMessage([this](UINT message, WPARAM, LPARAM, LRESULT* result) {
            if (message != WM_PAINT) return false;
            PAINTSTRUCT paint = {};
            m_painter(BeginPaint(m_window, &paint));
            EndPaint(m_window, &paint);
            *result = 0;
            return true;
        });
        InvalidateRect(m_window, nullptr, FALSE);
        UpdateWindow(m_window);
    }
    HWND Handle() const { return m_window.Handle(); }

  private:
    RecordingWindow m_window;
    Painter m_painter;
};

TEST(Recording, KeepsATextWithItsPlaceFontAndColours) {
    Painted window([](HDC dc) {
        SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetTextColor(dc, RGB(1, 2, 3));
        SetBkColor(dc, RGB(4, 5, 6));
        TextOutA(dc, 20, 30, "Hello", 5);
    });
    const DrawOp* op = FindOp(window.Handle(), DrawKind::kText);
    ASSERT_NE(nullptr, op);
    EXPECT_EQ("Hello", op->text);
    EXPECT_EQ("20,30,47,43", Describe(op->rect));
    EXPECT_EQ(RGB(1, 2, 3), op->textColor);
    EXPECT_EQ(RGB(4, 5, 6), op->backColor);
    EXPECT_TRUE(op->opaque);
    EXPECT_STREQ("MS Shell Dlg", op->font.lfFaceName);
    EXPECT_EQ(-11, op->font.lfHeight);
}

TEST(Recording, KeepsEachLineOfATextWithItsMnemonic) {
    Painted window([](HDC dc) {
        SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        RECT rect = {0, 0, 60, 40};
        DrawTextA(dc, "one two three &four", -1, &rect, DT_WORDBREAK);
    });
    EXPECT_EQ((std::vector<std::string>{"one two ", "three four"}), RecordedTexts(window.Handle()));
    const DrawOp& second = RecordedOps(window.Handle()).back();
    EXPECT_EQ(6, second.underlined);
    EXPECT_EQ(13, second.rect.top);
    EXPECT_EQ("0,0,60,40", Describe(second.clip));
}

TEST(Recording, ATextIsAlignedAsAsked) {
    Painted window([](HDC dc) {
        SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetTextAlign(dc, TA_RIGHT | TA_BOTTOM);
        TextOutA(dc, 100, 50, "Hello", 5);
        SetTextAlign(dc, TA_CENTER | TA_BASELINE);
        TextOutA(dc, 100, 50, "Hello", 5);
    });
    const auto& ops = RecordedOps(window.Handle());
    ASSERT_EQ(2u, ops.size());
    EXPECT_EQ("73,37,100,50", Describe(ops[0].rect));
    EXPECT_EQ("87,39,114,52", Describe(ops[1].rect));
}

TEST(Recording, KeepsShapesAndTheirColours) {
    Painted window([](HDC dc) {
        RECT rect = {1, 2, 11, 12};
        FillRect(dc, &rect, reinterpret_cast<HBRUSH>(static_cast<ULONG_PTR>(COLOR_BTNFACE + 1)));
        FrameRect(dc, &rect, GetSysColorBrush(COLOR_BTNSHADOW));
        DrawFocusRect(dc, &rect);
        DrawEdge(dc, &rect, EDGE_ETCHED, BF_RECT);
        DrawFrameControl(dc, &rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED);
        const POINT points[3] = {{0, 0}, {5, 5}, {0, 5}};
        Polygon(dc, points, 3);
        MoveToEx(dc, 3, 3, nullptr);
        LineTo(dc, 9, 9);
    });
    const HWND hwnd = window.Handle();
    EXPECT_EQ(GetSysColor(COLOR_BTNFACE), FindOp(hwnd, DrawKind::kFill)->color);
    EXPECT_EQ(GetSysColor(COLOR_BTNSHADOW), FindOp(hwnd, DrawKind::kFrame)->color);
    EXPECT_EQ("1,2,11,12", Describe(FindOp(hwnd, DrawKind::kFocus)->rect));
    EXPECT_EQ(static_cast<UINT>(EDGE_ETCHED), FindOp(hwnd, DrawKind::kEdge)->type);
    EXPECT_NE(0u, FindOp(hwnd, DrawKind::kFrameControl)->flags & DFCS_CHECKED);
    EXPECT_EQ(3u, FindOp(hwnd, DrawKind::kPolygon)->points.size());
    EXPECT_EQ(9, FindOp(hwnd, DrawKind::kLine)->points[1].x);
}

TEST(Recording, APaintStartsAnew) {
    Painted window([](HDC dc) { TextOutA(dc, 0, 0, "once", 4); });
    InvalidateRect(window.Handle(), nullptr, TRUE);
    UpdateWindow(window.Handle());
    EXPECT_EQ((std::vector<std::string>{"once"}), RecordedTexts(window.Handle()));
    HDC dc = GetDC(window.Handle());
    TextOutA(dc, 0, 20, "more", 4);
    ReleaseDC(window.Handle(), dc);
    EXPECT_EQ((std::vector<std::string>{"once", "more"}), RecordedTexts(window.Handle()));
}

TEST(Recording, AFillOfTheWholeWindowHidesWhatWasBefore) {
    Painted window([](HDC dc) { TextOutA(dc, 0, 0, "hidden", 6); });
    HDC dc = GetDC(window.Handle());
    RECT client = {};
    GetClientRect(window.Handle(), &client);
    FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
    ReleaseDC(window.Handle(), dc);
    EXPECT_TRUE(RecordedTexts(window.Handle()).empty());
    EXPECT_EQ(1u, RecordedOps(window.Handle()).size());
}

TEST(Recording, APictureDrawnInMemoryBringsItsContents) {
    Painted window([](HDC dc) {
        HDC memory = CreateCompatibleDC(dc);
        HBITMAP bitmap = CreateCompatibleBitmap(dc, 100, 50);
        HGDIOBJ old = SelectObject(memory, bitmap);
        SelectObject(memory, GetStockObject(DEFAULT_GUI_FONT));
        TextOutA(memory, 10, 5, "Hello", 5);
        BitBlt(dc, 200, 100, 100, 50, memory, 0, 0, SRCCOPY);
        SelectObject(memory, old);
        DeleteDC(memory);
        DeleteObject(bitmap);
    });
    ASSERT_NE(nullptr, FindOp(window.Handle(), DrawKind::kBlit));
    EXPECT_EQ("200,100,300,150", Describe(FindOp(window.Handle(), DrawKind::kBlit)->rect));
    const DrawOp* text = FindOp(window.Handle(), DrawKind::kText);
    ASSERT_NE(nullptr, text);
    EXPECT_EQ("210,105,237,118", Describe(text->rect));
}

TEST(Recording, KeepsAMetafileWithItsPicture) {
    Painted window([](HDC dc) {
        const WORD words[12] = {1, 9, 0x300, 12, 0, 0, 3, 0, 0, 3, 0, 0};
        const METAFILEPICT picture = {MM_ANISOTROPIC, 1000, 500, nullptr};
        HENHMETAFILE metafile =
            SetWinMetaFileBits(sizeof words, reinterpret_cast<const BYTE*>(words), dc, &picture);
        const RECT rect = {5, 6, 105, 56};
        PlayEnhMetaFile(dc, metafile, &rect);
        DeleteEnhMetaFile(metafile);
    });
    const DrawOp* op = FindOp(window.Handle(), DrawKind::kMetafile);
    ASSERT_NE(nullptr, op);
    EXPECT_EQ("5,6,105,56", Describe(op->rect));
    EXPECT_EQ(MM_ANISOTROPIC, op->picture.mm);
    EXPECT_EQ(1000, op->picture.xExt);
    EXPECT_EQ(500, op->picture.yExt);
}

TEST(Recording, EndsWithItsWindow) {
    HWND hwnd = nullptr;
    {
        Painted window([](HDC dc) { TextOutA(dc, 0, 0, "x", 1); });
        hwnd = window.Handle();
        EXPECT_FALSE(RecordedOps(hwnd).empty());
    }
    EXPECT_TRUE(RecordedOps(hwnd).empty());
}

TEST(ControlPainting, APushButtonShowsItsTextInTheMiddle) {
    RecordingWindow window;
    HWND button = AddInDialogFont(window, "Button", "&Push", BS_PUSHBUTTON, 75, 23);
    const DrawOp* text = FindOp(button, DrawKind::kText);
    ASSERT_NE(nullptr, text);
    EXPECT_EQ("Push", text->text);
    EXPECT_EQ("25,5,50,18", Describe(text->rect));
    EXPECT_EQ(0, text->underlined);
    EXPECT_EQ(GetSysColor(COLOR_BTNTEXT), text->textColor);
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    bool pushed = false;
    for (const DrawOp& op : RecordedOps(button))
        if (op.kind == DrawKind::kFrameControl) pushed = (op.flags & DFCS_PUSHED) != 0;
    EXPECT_TRUE(pushed);
}

TEST(ControlPainting, ADefaultButtonHasAFrame) {
    RecordingWindow window;
    HWND button = AddInDialogFont(window, "Button", "OK", BS_DEFPUSHBUTTON, 75, 23);
    const DrawOp* frame = FindOp(button, DrawKind::kFrame);
    ASSERT_NE(nullptr, frame);
    EXPECT_EQ("0,0,75,23", Describe(frame->rect));
}

TEST(ControlPainting, ADisabledControlIsGrey) {
    RecordingWindow window;
    HWND button = AddInDialogFont(window, "Button", "Push", BS_PUSHBUTTON | WS_DISABLED);
    HWND label = AddInDialogFont(window, "Static", "Label", SS_LEFT | WS_DISABLED);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), FindOp(button, DrawKind::kText)->textColor);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), FindOp(label, DrawKind::kText)->textColor);
}

TEST(ControlPainting, ACheckBoxShowsItsState) {
    RecordingWindow window;
    HWND box = AddInDialogFont(window, "Button", "Check", BS_AUTO3STATE, 100, 17);
    const auto flags = [&] {
        InvalidateRect(box, nullptr, TRUE);
        UpdateWindow(box);
        return FindOp(box, DrawKind::kFrameControl)->flags;
    };
    EXPECT_EQ(0u, flags() & (DFCS_CHECKED | DFCS_BUTTON3STATE));
    EXPECT_EQ("0,2,13,15", Describe(FindOp(box, DrawKind::kFrameControl)->rect));
    EXPECT_EQ("17,2,50,15", Describe(FindOp(box, DrawKind::kText)->rect));
    SendMessageA(box, BM_SETCHECK, BST_CHECKED, 0);
    EXPECT_NE(0u, flags() & DFCS_CHECKED);
    SendMessageA(box, BM_SETCHECK, BST_INDETERMINATE, 0);
    EXPECT_NE(0u, flags() & DFCS_BUTTON3STATE);
}

TEST(ControlPainting, AGroupBoxLeavesRoomForItsText) {
    RecordingWindow window;
    HWND group = AddInDialogFont(window, "Button", "&Group", BS_GROUPBOX, 100, 60);
    EXPECT_EQ("0,5,100,60", Describe(FindOp(group, DrawKind::kEdge)->rect));
    EXPECT_EQ("7,0,39,14", Describe(FindOp(group, DrawKind::kFill)->rect));
    EXPECT_EQ("8,0,38,13", Describe(FindOp(group, DrawKind::kText)->rect));
}

TEST(ControlPainting, StaticsDrawTheirStyle) {
    RecordingWindow window;
    struct Row {
        DWORD style;
        const char* text;
        const char* expected;
        LONG left, top;
    };
    constexpr Row kRows[] = {
        {SS_LEFT, "&Label", "Label", 0, 0},
        {SS_CENTER, "&Label", "Label", 35, 0},
        {SS_RIGHT, "&Label", "Label", 71, 0},
        {SS_NOPREFIX, "&Label", "&Label", 0, 0},
        {SS_CENTERIMAGE, "&Label", "Label", 0, 14},
        {SS_ENDELLIPSIS, "Label one two three four five", "Label one two thr...", 0, 0},
        {SS_PATHELLIPSIS, "c:\\Label one two\\ three four five", "c:...\\ three four five", 0, 0},
        {SS_LEFTNOWORDWRAP, "Label one two three four five six seven",
         "Label one two three four five six seven", 0, 0},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.style);
        HWND label = AddInDialogFont(window, "Static", row.text, row.style, 100, 40);
        const DrawOp* text = FindOp(label, DrawKind::kText);
        ASSERT_NE(nullptr, text);
        EXPECT_EQ(row.expected, text->text);
        EXPECT_EQ(row.left, text->rect.left);
        EXPECT_EQ(row.top, text->rect.top);
        DestroyWindow(label);
    }
}

TEST(ControlPainting, AnEtchedLineIsTwoPixelsHigh) {
    RecordingWindow window;
    HWND line = AddInDialogFont(window, "Static", "", SS_ETCHEDHORZ, 100, 10);
    const DrawOp* edge = FindOp(line, DrawKind::kEdge);
    ASSERT_NE(nullptr, edge);
    EXPECT_EQ("0,0,100,2", Describe(edge->rect));
}

TEST(ControlPainting, TheSelectedTabIsDrawnLast) {
    RecordingWindow window;
    HWND tab = AddInDialogFont(window, WC_TABCONTROLA, "", WS_TABSTOP, 300, 200);
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    for (const char* name : {"First", "&Second"}) {
        item.pszText = const_cast<char*>(name);
        SendMessageA(tab, TCM_INSERTITEMA, 99, reinterpret_cast<LPARAM>(&item));
    }
    UpdateWindow(tab);
    EXPECT_EQ((std::vector<std::string>{"Second", "First"}), RecordedTexts(tab));
    SendMessageA(tab, TCM_SETCURSEL, 1, 0);
    UpdateWindow(tab);
    EXPECT_EQ((std::vector<std::string>{"First", "Second"}), RecordedTexts(tab));
}

TEST(ControlPainting, AParentSetsTheColours) {
    RecordingWindow window;
    HWND label = AddInDialogFont(window, "Static", "Label", SS_LEFT);
    window.OnMessage([](UINT message, WPARAM wParam, LPARAM, LRESULT* result) {
        if (message != WM_CTLCOLORSTATIC) return false;
        SetTextColor(reinterpret_cast<HDC>(wParam), RGB(200, 0, 0));
        *result = reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
        return true;
    });
    InvalidateRect(label, nullptr, TRUE);
    UpdateWindow(label);
    EXPECT_EQ(RGB(200, 0, 0), FindOp(label, DrawKind::kText)->textColor);
    EXPECT_EQ(RGB(255, 255, 255), FindOp(label, DrawKind::kFill)->color);
    window.OnMessage(nullptr);
}

TEST(LiveObjects, AreCountedUntilTheyAreGone) {
    const headless::gdi::Counts before = headless::gdi::LiveCounts();
    HDC dc = CreateCompatibleDC(nullptr);
    HFONT font = CreateFontA(-11, 0, 0, 0, 400, 0, 0, 0, 1, 0, 0, 0, 0, "Tahoma");
    HBRUSH brush = CreateSolidBrush(1);
    HPEN pen = CreatePen(PS_SOLID, 1, 1);
    HBITMAP bitmap = CreateBitmap(1, 1, 1, 1, nullptr);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, 4);
    SelectObject(dc, font);
    headless::gdi::Counts now = headless::gdi::LiveCounts();
    EXPECT_EQ(before.memoryDcs + 1, now.memoryDcs);
    EXPECT_EQ(before.fonts + 1, now.fonts);
    EXPECT_EQ(before.brushes + 1, now.brushes);
    EXPECT_EQ(before.pens + 1, now.pens);
    EXPECT_EQ(before.bitmaps + 1, now.bitmaps);
    EXPECT_EQ(before.globals + 1, now.globals);
    DeleteObject(font);
    EXPECT_EQ(before.fonts + 1, headless::gdi::LiveCounts().fonts) << "it is still selected";
    DeleteDC(dc);
    DeleteObject(brush);
    DeleteObject(pen);
    DeleteObject(bitmap);
    GlobalFree(memory);
    now = headless::gdi::LiveCounts();
    EXPECT_EQ(before.memoryDcs, now.memoryDcs);
    EXPECT_EQ(before.fonts, now.fonts);
    EXPECT_EQ(before.brushes, now.brushes);
    EXPECT_EQ(before.pens, now.pens);
    EXPECT_EQ(before.bitmaps, now.bitmaps);
    EXPECT_EQ(before.globals, now.globals);
}

TEST(LiveObjects, WindowContextsCountUntilReleased) {
    RecordingWindow window;
    const std::size_t before = headless::gdi::LiveCounts().windowDcs;
    HDC dc = GetDC(window);
    EXPECT_EQ(before + 1, headless::gdi::LiveCounts().windowDcs);
    ReleaseDC(window, dc);
    EXPECT_EQ(before, headless::gdi::LiveCounts().windowDcs);
}

}  // namespace
