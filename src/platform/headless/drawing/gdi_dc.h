// Device contexts. Internal to the drawing half.
//
// A context of a window has no pixels: what is drawn is only recorded. One in memory draws into the
// bitmap that is selected, pixel by pixel except for glyphs and icons, and records as well.
#pragma once

#include <algorithm>
#include <vector>

#include "platform/headless/drawing/gdi_objects.h"
#include "zxadlg/headless/constants.h"

namespace headless::gdi {

struct DcState {
    HFONT font = nullptr;
    HBRUSH brush = nullptr;
    HPEN pen = nullptr;
    HBITMAP bitmap = nullptr;
    COLORREF textColor = 0;
    COLORREF backColor = 0xFFFFFF;
    int backMode = OPAQUE;
    UINT align = 0;
    int rop2 = R2_COPYPEN;
    int mapMode = MM_TEXT;
    POINT windowOrigin{};
    POINT viewportOrigin{};
    SIZE windowExtent{1, 1};
    SIZE viewportExtent{1, 1};
    POINT position{};
    // Rectangles in device units that do not overlap.
    std::vector<RECT> clip;
};

struct DeviceContext : Object {
    explicit DeviceContext(UINT objectType) : Object(objectType) {}

    POINT ToDevice(int x, int y) const;
    // With left <= right and top <= bottom.
    RECT ToDevice(const RECT& logical) const;
    int WidthToDevice(int width) const;
    int HeightToDevice(int height) const;
    int WidthToLogical(int width) const;
    int HeightToLogical(int height) const;
    // The font with its height in device units.
    LOGFONTA DeviceFont() const;
    // The bitmap that is drawn into, or null for a window.
    Bitmap* Surface() const;
    RECT ClipBox() const;

    HWND hwnd = nullptr;
    DcUse use = DcUse::kDraw;
    RECT bounds{};
    DcState state;
    std::vector<DcState> saved;
};

// Null for a wrong handle.
DeviceContext* FindDc(HDC dc);

// Keeps the operation with its window or bitmap; fills in its clip rectangle.
void Record(DeviceContext& dc, DrawOp op);
// Starts a new recording of the window.
void BeginRecording(HWND hwnd);

// Calls f(x, y) for each pixel of the rectangle that lies in the clip rectangles and on the
// surface.
template <typename F>
void ForEachPixel(const DeviceContext& dc, const Bitmap& surface, const RECT& rect, F f) {
    for (const RECT& part : dc.state.clip) {
        const int left = std::max({rect.left, part.left, LONG{0}});
        const int top = std::max({rect.top, part.top, LONG{0}});
        const int right = std::min({rect.right, part.right, static_cast<LONG>(surface.width)});
        const int bottom = std::min({rect.bottom, part.bottom, static_cast<LONG>(surface.height)});
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x) f(x, y);
    }
}

// The result of a ternary operation (the third byte of SRCCOPY and its like) on 24 bits of pattern,
// source and destination.
COLORREF Combine(DWORD operation, COLORREF pattern, COLORREF source, COLORREF destination);
// The ternary operation that does the same as a binary one of SetROP2 with the pattern as the pen.
DWORD FromBinary(int rop2);

// Paints the pixels of a device rectangle, if there are any; records nothing.
void PaintPixels(DeviceContext& dc, const RECT& rect, COLORREF color, DWORD operation = PATCOPY);
// Fills a device rectangle and records it.
void Fill(DeviceContext& dc, const RECT& rect, COLORREF color);

// Fills rings of logical points with the brush by the even-odd rule and outlines them with the pen.
void FillPolyPolygon(DeviceContext& dc, const std::vector<std::vector<POINT>>& rings);

}  // namespace headless::gdi
