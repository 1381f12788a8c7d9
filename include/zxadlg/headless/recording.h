// What was drawn, for tests to ask. Each window keeps the operations of its last paint: BeginPaint
// starts anew, and what is drawn through GetDC is added. A bitmap keeps what was drawn into it;
// when it is copied elsewhere, its operations follow the copy, moved to where they appear. A fill
// of the whole area forgets what it covers.
//
// Coordinates are device units: pixels of the window's client area (of the whole window for the
// frame). Colours are COLORREF. What lies outside the clip rectangle is recorded as well, with the
// rectangle that it is cut to. Windows have no pixels; bitmaps have, but for glyphs and icons.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "zxadlg/headless/types.h"

namespace headless {

enum class DrawKind {
    kText,          // text, rect (box of the text as drawn), textColor, backColor, opaque, font
    kFill,          // rect, color: FillRect, PatBlt, inside of Rectangle, opaque text backgrounds
    kFrame,         // rect, color: FrameRect, outline of Rectangle
    kInvert,        // rect
    kFocus,         // rect: DrawFocusRect
    kLine,          // points (two), color, width
    kPolyline,      // points, color, width
    kPolygon,       // points, color (inside), width and frameColor (outline)
    kPixel,         // rect (one pixel), color
    kEdge,          // rect, type (EDGE_*), flags (BF_*)
    kFrameControl,  // rect, type (DFC_*), flags (DFCS_*)
    kIcon,          // rect, handle
    kBlit,          // rect, source (rectangle in the source), handle (the bitmap or 0), operation
    kMetafile,      // rect, handle, picture
    kThemePart,     // rect, theme (class name), part, state
    kThemeParent,   // rect: the parent's background was asked for
};

struct DrawOp {
    DrawKind kind = DrawKind::kFill;
    RECT rect{};
    RECT clip{};
    COLORREF color = 0;
    COLORREF frameColor = 0;
    COLORREF textColor = 0;
    COLORREF backColor = 0;
    bool opaque = false;
    int width = 0;
    UINT type = 0;
    UINT flags = 0;
    DWORD operation = 0;
    std::string text;
    // Place in `text` of the character that is underlined as the mnemonic, or -1.
    int underlined = -1;
    LOGFONTA font{};
    std::vector<POINT> points;
    RECT source{};
    HANDLE handle = nullptr;
    METAFILEPICT picture{};
    std::string theme;
    int part = 0;
    int state = 0;
};

// The operations of the window's last paint, oldest first; empty for a window that never painted.
// The reference holds until the window paints again or is destroyed.
const std::vector<DrawOp>& RecordedOps(HWND hwnd);
// The same for the window's frame.
const std::vector<DrawOp>& RecordedFrameOps(HWND hwnd);
// The operations of a device context: those of its window or of its bitmap.
const std::vector<DrawOp>& RecordedOps(HDC dc);

// The texts among the operations, in their order.
std::vector<std::string> RecordedTexts(HWND hwnd);

}  // namespace headless
