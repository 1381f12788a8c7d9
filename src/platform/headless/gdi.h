// What the window half of the headless system needs from the drawing half, and nothing more: device
// contexts of windows, the end of a window's recordings, and the counts of live objects.
//
// A device context of a window records what is drawn into it (see recording.h). Handles are numbers
// that are never used twice, so a stale one is told from a live one.
#pragma once

#include <cstddef>

#include "platform/headless/types.h"

namespace headless::gdi {

// What a device context of a window is for.
enum class DcUse {
    kPaint,      // BeginPaint: starts a new recording of the window, before WM_ERASEBKGND is sent
    kDraw,       // GetDC: draws on top of what is recorded
    kNonClient,  // GetWindowDC, WM_NCPAINT: draws on top, into the recording of the frame
};

// A device context for the window; `client` is the drawable area in its own coordinates, (0,0)
// first. `hwnd` may be null for the screen. The caller releases it.
HDC CreateWindowDc(HWND hwnd, const RECT& client, DcUse use = DcUse::kDraw);

// Ends a device context of CreateWindowDc; objects selected into it become free. Returns false for
// a handle that is none.
bool ReleaseWindowDc(HDC dc);

// The window of a device context, null for the screen, for one in memory and for a wrong handle.
HWND WindowOfDc(HDC dc);

// Drops all that is kept for a window: recordings, theme settings, its hold on the clipboard.
// Called once at the end of its destruction.
void ForgetWindow(HWND hwnd);

// What the application has made and not yet given back; stock objects and system brushes do not
// count.
struct Counts {
    std::size_t fonts = 0;
    std::size_t brushes = 0;
    std::size_t pens = 0;
    std::size_t bitmaps = 0;
    std::size_t metafiles = 0;
    std::size_t memoryDcs = 0;
    std::size_t windowDcs = 0;
    std::size_t themes = 0;
    std::size_t globals = 0;  // GlobalAlloc; what the clipboard owns is not counted
};
Counts LiveCounts();

}  // namespace headless::gdi
