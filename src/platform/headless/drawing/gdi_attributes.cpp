// The attributes of a device context: colours, modes, alignment, and the map from logical to device
// units.
#include <cstdlib>

#include "platform/headless/drawing/display_state.h"
#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

// Sets a field of the current state and returns its old value, or `wrong` for a wrong handle.
template <typename T, typename V>
V Exchange(HDC handle, T DcState::*field, V value, V wrong) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return wrong;
    const V old = static_cast<V>(dc->state.*field);
    dc->state.*field = static_cast<T>(value);
    return old;
}

template <typename T>
T Read(HDC handle, T DcState::*field, T wrong) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    return dc == nullptr ? wrong : dc->state.*field;
}

template <typename T>
BOOL ExchangePair(HDC handle, T DcState::*field, const T& value, T* old, bool allowed) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    if (old != nullptr) *old = dc->state.*field;
    if (allowed) dc->state.*field = value;
    return TRUE;
}

bool MayScale(HDC handle) {
    const int mode = GetMapMode(handle);
    return mode == MM_ISOTROPIC || mode == MM_ANISOTROPIC;
}

// Shrinks the longer side of the viewport until both axes have the same scale.
void MakeIsotropic(HDC handle) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || dc->state.mapMode != MM_ISOTROPIC) return;
    const SIZE window = dc->state.windowExtent;
    SIZE& view = dc->state.viewportExtent;
    const double scaleX = std::abs(static_cast<double>(view.cx) / window.cx);
    const double scaleY = std::abs(static_cast<double>(view.cy) / window.cy);
    if (scaleX > scaleY) {
        const LONG length = static_cast<LONG>(std::abs(window.cx * scaleY) + 0.5);
        view.cx = view.cx < 0 ? -length : length;
        if (view.cx == 0) view.cx = 1;
    } else if (scaleY > scaleX) {
        const LONG length = static_cast<LONG>(std::abs(window.cy * scaleX) + 0.5);
        view.cy = view.cy < 0 ? -length : length;
        if (view.cy == 0) view.cy = 1;
    }
}

}  // namespace
}  // namespace headless::gdi

using namespace headless::gdi;

COLORREF SetTextColor(HDC dc, COLORREF color) {
    return Exchange(dc, &DcState::textColor, color, COLORREF{CLR_INVALID});
}
COLORREF GetTextColor(HDC dc) {
    return Read(dc, &DcState::textColor, COLORREF{CLR_INVALID});
}
COLORREF SetBkColor(HDC dc, COLORREF color) {
    return Exchange(dc, &DcState::backColor, color, COLORREF{CLR_INVALID});
}
COLORREF GetBkColor(HDC dc) {
    return Read(dc, &DcState::backColor, COLORREF{CLR_INVALID});
}

int SetBkMode(HDC dc, int mode) {
    if (mode != OPAQUE && mode != TRANSPARENT) return 0;
    return Exchange(dc, &DcState::backMode, mode, 0);
}
int GetBkMode(HDC dc) {
    return Read(dc, &DcState::backMode, 0);
}

UINT SetTextAlign(HDC dc, UINT align) {
    constexpr UINT kKnown = TA_CENTER | TA_BASELINE;
    if ((align & ~kKnown) != 0)
        headless::ReportUnsupported("SetTextAlign " + std::to_string(align));
    return Exchange(dc, &DcState::align, align & kKnown, UINT{CLR_INVALID});
}

int SetROP2(HDC dc, int mode) {
    if (mode < 1 || mode > 16) return 0;
    return Exchange(dc, &DcState::rop2, mode, 0);
}

int GetMapMode(HDC dc) {
    return Read(dc, &DcState::mapMode, 0);
}

int SetMapMode(HDC handle, int mode) {
    if (mode < MM_TEXT || mode > MM_ANISOTROPIC) return 0;
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return 0;
    DcState& state = dc->state;
    const int old = state.mapMode;
    if (mode == old) return old;
    const LONG width = GetDeviceCaps(handle, HORZRES);
    const LONG height = GetDeviceCaps(handle, VERTRES);
    const LONG millimetresX = GetDeviceCaps(handle, HORZSIZE);
    const LONG millimetresY = GetDeviceCaps(handle, VERTSIZE);
    // Logical units per millimetre, times ten, with the y axis upwards.
    int tenths = 0;
    double inches = 0;
    switch (mode) {
        case MM_LOMETRIC:
        case MM_ISOTROPIC:
            tenths = 100;
            break;
        case MM_HIMETRIC:
            tenths = 1000;
            break;
        case MM_LOENGLISH:
            inches = 100;
            break;
        case MM_HIENGLISH:
            inches = 1000;
            break;
        case MM_TWIPS:
            inches = 1440;
            break;
        default:
            break;
    }
    if (mode == MM_TEXT) {
        state.windowExtent = {1, 1};
        state.viewportExtent = {1, 1};
    } else if (mode != MM_ANISOTROPIC) {
        const auto units = [&](LONG millimetres) {
            return inches != 0 ? static_cast<LONG>(millimetres * inches / 25.4 + 0.5)
                               : millimetres * tenths / 10;
        };
        state.windowExtent = {units(millimetresX), units(millimetresY)};
        state.viewportExtent = {width, -height};
    }
    state.mapMode = mode;
    return old;
}

BOOL SetWindowExtEx(HDC dc, int x, int y, SIZE* old) {
    if (MayScale(dc) && (x == 0 || y == 0)) return FALSE;
    const BOOL done = ExchangePair(dc, &DcState::windowExtent, SIZE{x, y}, old, MayScale(dc));
    MakeIsotropic(dc);
    return done;
}

BOOL SetViewportExtEx(HDC dc, int x, int y, SIZE* old) {
    if (MayScale(dc) && (x == 0 || y == 0)) return FALSE;
    const BOOL done = ExchangePair(dc, &DcState::viewportExtent, SIZE{x, y}, old, MayScale(dc));
    MakeIsotropic(dc);
    return done;
}

BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old) {
    return ExchangePair(dc, &DcState::windowOrigin, POINT{x, y}, old, true);
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old) {
    return ExchangePair(dc, &DcState::viewportOrigin, POINT{x, y}, old, true);
}

BOOL GetWindowExtEx(HDC handle, SIZE* size) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || size == nullptr) return FALSE;
    *size = dc->state.windowExtent;
    return TRUE;
}

int GetDeviceCaps(HDC handle, int index) {
    {
        const Lock lock;
        if (FindDc(handle) == nullptr) return 0;
    }
    constexpr int kRasterDisplay = 1;
    const RECT screen = headless::PrimaryBounds();
    const int dpi = headless::DisplayDpi();
    switch (index) {
        case HORZRES:
            return screen.right - screen.left;
        case VERTRES:
            return screen.bottom - screen.top;
        case HORZSIZE:
            return MulDiv(screen.right - screen.left, 254, dpi * 10);
        case VERTSIZE:
            return MulDiv(screen.bottom - screen.top, 254, dpi * 10);
        case LOGPIXELSX:
        case LOGPIXELSY:
            return dpi;
        case BITSPIXEL:
            return headless::DisplayDepth();
        case PLANES:
            return 1;
        case NUMCOLORS:
            return headless::DisplayDepth() > 8 ? -1 : 1 << headless::DisplayDepth();
        case TECHNOLOGY:
            return kRasterDisplay;
        default:
            headless::ReportUnsupported("GetDeviceCaps " + std::to_string(index));
            return 0;
    }
}
