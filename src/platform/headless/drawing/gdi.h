// What the window half of the headless system needs from the drawing half, and nothing more: device
// contexts of windows, the end of a window's recordings, and the counts of live objects.
//
// A device context of a window records what is drawn into it (see recording.h). Handles are numbers
// that are never used twice, so a stale one is told from a live one.
#pragma once

#include "zxadlg/headless/census.h"
#include "zxadlg/headless/types.h"

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

// What the application has made and not yet given back.
DrawingCounts LiveCounts();

}  // namespace headless::gdi
