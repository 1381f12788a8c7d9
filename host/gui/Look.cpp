#include "Look.h"

namespace zxhost {
namespace {

int Luminance(COLORREF color) {
    return (299 * GetRValue(color) + 587 * GetGValue(color) + 114 * GetBValue(color)) / 1000;
}

}  // namespace

int Scaled(int measure) {
    static const int resolution = [] {
        HDC screen = GetDC(nullptr);
        const int found = GetDeviceCaps(screen, LOGPIXELSX);
        ReleaseDC(nullptr, screen);
        return found;
    }();
    return MulDiv(measure, resolution, 96);
}

HFONT DialogFont() {
    static HFONT font = [] {
        NONCLIENTMETRICSA metrics = {};
        metrics.cbSize = sizeof metrics;
        SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        return CreateFontIndirectA(&metrics.lfMessageFont);
    }();
    return font;
}

bool IsDark() {
    return Luminance(Ground()) < Luminance(Ink());
}

COLORREF Ground() {
    return GetSysColor(COLOR_WINDOW);
}

COLORREF Ink() {
    return GetSysColor(COLOR_WINDOWTEXT);
}

COLORREF Shade(double part) {
    const COLORREF ground = Ground(), ink = Ink();
    const auto mix = [part](int from, int to) {
        return static_cast<BYTE>(from + (to - from) * part);
    };
    return RGB(mix(GetRValue(ground), GetRValue(ink)), mix(GetGValue(ground), GetGValue(ink)),
               mix(GetBValue(ground), GetBValue(ink)));
}

}  // namespace zxhost
