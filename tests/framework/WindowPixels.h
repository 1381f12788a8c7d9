// What a window paints, as pixels, by way of a bitmap in memory.
#pragma once

#include <vector>

#include "platform/platform.h"

namespace framework_test {

// The client area, row by row, as the window draws it when asked to print itself.
inline std::vector<COLORREF> PixelsOf(HWND hWnd) {
    RECT rc;
    ::GetClientRect(hWnd, &rc);
    const HDC hScreen = ::GetDC(hWnd);
    const HDC hDC = ::CreateCompatibleDC(hScreen);
    const HBITMAP hBitmap = ::CreateCompatibleBitmap(hScreen, rc.right, rc.bottom);
    const HGDIOBJ hOld = ::SelectObject(hDC, hBitmap);
    ::SendMessageA(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(hDC), PRF_CLIENT);
    std::vector<COLORREF> pixels;
    for (int y = 0; y < rc.bottom; ++y) {
        for (int x = 0; x < rc.right; ++x) pixels.push_back(::GetPixel(hDC, x, y));
    }
    ::SelectObject(hDC, hOld);
    ::DeleteObject(hBitmap);
    ::DeleteDC(hDC);
    ::ReleaseDC(hWnd, hScreen);
    return pixels;
}

}  // namespace framework_test
