#include "platform/headless/drawing/gdi_dc.h"

#include <algorithm>
#include <cstdlib>

#include "platform/headless/drawing/display_state.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

int Scale(int value, int to, int from) {
    if (from == 0) return 0;
    const long long product = static_cast<long long>(value) * to;
    const long long half = std::llabs(from) / 2;
    const long long rounded = (product < 0) != (from < 0)
                                  ? -((std::llabs(product) + half) / std::llabs(from))
                                  : (std::llabs(product) + half) / std::llabs(from);
    return static_cast<int>(std::clamp<long long>(rounded, INT32_MIN, INT32_MAX));
}

int Clamped(long long value) {
    return static_cast<int>(std::clamp<long long>(value, -0x3FFFFFFF, 0x3FFFFFFF));
}

void SelectAll(const DcState& state) {
    Select(state.font);
    Select(state.brush);
    Select(state.pen);
    Select(state.bitmap);
}

void UnselectAll(const DcState& state) {
    Unselect(state.font);
    Unselect(state.brush);
    Unselect(state.pen);
    Unselect(state.bitmap);
}

HDC AddContext(UINT type, HWND hwnd, DcUse use, const RECT& bounds, HBITMAP bitmap) {
    auto dc = std::make_unique<DeviceContext>(type);
    dc->hwnd = hwnd;
    dc->use = use;
    dc->bounds = bounds;
    dc->state.font = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    dc->state.brush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    dc->state.pen = static_cast<HPEN>(GetStockObject(BLACK_PEN));
    dc->state.bitmap = bitmap;
    dc->state.clip = {bounds};
    SelectAll(dc->state);
    return static_cast<HDC>(AddObject(std::move(dc)));
}

bool EndContext(HDC handle) {
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return false;
    UnselectAll(dc->state);
    for (const DcState& saved : dc->saved) UnselectAll(saved);
    RemoveObject(handle);
    return true;
}

int Complexity(const std::vector<RECT>& clip) {
    constexpr int kNull = 1;
    constexpr int kSimple = 2;
    constexpr int kComplex = 3;
    return clip.empty() ? kNull : clip.size() == 1 ? kSimple : kComplex;
}

void AddPart(std::vector<RECT>& parts, LONG left, LONG top, LONG right, LONG bottom) {
    if (left < right && top < bottom) parts.push_back({left, top, right, bottom});
}

}  // namespace

HDC CreateWindowDc(HWND hwnd, const RECT& client, DcUse use) {
    const Lock lock;
    if (use == DcUse::kPaint) BeginRecording(hwnd);
    return AddContext(OBJ_DC, hwnd, use, client, nullptr);
}

bool ReleaseWindowDc(HDC handle) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    return dc != nullptr && dc->type == OBJ_DC && EndContext(handle);
}

HWND WindowOfDc(HDC handle) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    return dc == nullptr ? nullptr : dc->hwnd;
}

DeviceContext* FindDc(HDC handle) {
    Object* object = FindObject(handle);
    if (object == nullptr || (object->type != OBJ_DC && object->type != OBJ_MEMDC)) return nullptr;
    return static_cast<DeviceContext*>(object);
}

POINT DeviceContext::ToDevice(int x, int y) const {
    const long long fromX = static_cast<long long>(x) - state.windowOrigin.x;
    const long long fromY = static_cast<long long>(y) - state.windowOrigin.y;
    return {
        Clamped(static_cast<long long>(WidthToDevice(Clamped(fromX))) + state.viewportOrigin.x),
        Clamped(static_cast<long long>(HeightToDevice(Clamped(fromY))) + state.viewportOrigin.y)};
}

RECT DeviceContext::ToDevice(const RECT& logical) const {
    const POINT a = ToDevice(logical.left, logical.top);
    const POINT b = ToDevice(logical.right, logical.bottom);
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

int DeviceContext::WidthToDevice(int width) const {
    return Scale(width, state.viewportExtent.cx, state.windowExtent.cx);
}

int DeviceContext::HeightToDevice(int height) const {
    return Scale(height, state.viewportExtent.cy, state.windowExtent.cy);
}

int DeviceContext::WidthToLogical(int width) const {
    return std::abs(Scale(width, state.windowExtent.cx, state.viewportExtent.cx));
}

int DeviceContext::HeightToLogical(int height) const {
    return std::abs(Scale(height, state.windowExtent.cy, state.viewportExtent.cy));
}

LOGFONTA DeviceContext::DeviceFont() const {
    const Font* font = Find<Font>(state.font);
    LOGFONTA log = font == nullptr ? LOGFONTA{} : font->log;
    if (state.windowExtent.cy != state.viewportExtent.cy) {
        const int height = std::abs(HeightToDevice(log.lfHeight));
        log.lfHeight = log.lfHeight < 0 ? -height : height;
    }
    return log;
}

Bitmap* DeviceContext::Surface() const {
    return type == OBJ_MEMDC ? Find<Bitmap>(state.bitmap) : nullptr;
}

RECT DeviceContext::ClipBox() const {
    RECT box{};
    for (const RECT& part : state.clip) UnionRect(&box, &box, &part);
    return box;
}

}  // namespace headless::gdi

using namespace headless::gdi;

HDC CreateCompatibleDC(HDC reference) {
    const Lock lock;
    if (reference != nullptr && FindDc(reference) == nullptr) return nullptr;
    return AddContext(OBJ_MEMDC, nullptr, DcUse::kDraw, {0, 0, 1, 1}, DefaultBitmap());
}

BOOL DeleteDC(HDC handle) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    // One of a window is given back by ReleaseDC.
    if (dc == nullptr || dc->type != OBJ_MEMDC) return FALSE;
    return EndContext(handle) ? TRUE : FALSE;
}

int SaveDC(HDC handle) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return 0;
    SelectAll(dc->state);
    dc->saved.push_back(dc->state);
    return static_cast<int>(dc->saved.size());
}

BOOL RestoreDC(HDC handle, int level) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    const int count = static_cast<int>(dc->saved.size());
    if (level < 0) level = count + level + 1;
    if (level < 1 || level > count) return FALSE;
    while (static_cast<int>(dc->saved.size()) >= level) {
        UnselectAll(dc->state);
        dc->state = dc->saved.back();
        dc->saved.pop_back();
    }
    if (const Bitmap* surface = dc->Surface()) dc->bounds = {0, 0, surface->width, surface->height};
    return TRUE;
}

HGDIOBJ SelectObject(HDC handle, HGDIOBJ selected) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    Object* object = FindObject(selected);
    if (dc == nullptr || object == nullptr) return nullptr;
    HGDIOBJ old = nullptr;
    const auto exchange = [&](auto& place) {
        old = place;
        Select(selected);
        place = static_cast<std::remove_reference_t<decltype(place)>>(selected);
        Unselect(old);
    };
    switch (object->type) {
        case OBJ_FONT:
            exchange(dc->state.font);
            break;
        case OBJ_BRUSH:
            exchange(dc->state.brush);
            break;
        case OBJ_PEN:
            exchange(dc->state.pen);
            break;
        case OBJ_BITMAP: {
            const auto* bitmap = static_cast<const Bitmap*>(object);
            if (dc->type != OBJ_MEMDC) return nullptr;
            if (selected == dc->state.bitmap) return selected;
            // A bitmap is in one context at a time, and must suit the display.
            if (!bitmap->stock && bitmap->selections > 0) return nullptr;
            if (!bitmap->section && bitmap->bitsPerPixel != 1 &&
                bitmap->bitsPerPixel != headless::DisplayDepth())
                return nullptr;
            dc->bounds = {0, 0, bitmap->width, bitmap->height};
            dc->state.clip = {dc->bounds};
            exchange(dc->state.bitmap);
            break;
        }
        default:
            return nullptr;
    }
    return old;
}

HGDIOBJ GetCurrentObject(HDC handle, UINT type) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return nullptr;
    switch (type) {
        case OBJ_FONT:
            return dc->state.font;
        case OBJ_BRUSH:
            return dc->state.brush;
        case OBJ_PEN:
            return dc->state.pen;
        case OBJ_BITMAP:
            return dc->state.bitmap;
        default:
            headless::ReportUnsupported("GetCurrentObject " + std::to_string(type));
            return nullptr;
    }
}

int IntersectClipRect(HDC handle, int left, int top, int right, int bottom) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return 0;
    const RECT rect = dc->ToDevice(RECT{left, top, right, bottom});
    std::vector<RECT> parts;
    for (const RECT& part : dc->state.clip) {
        RECT common;
        if (IntersectRect(&common, &part, &rect)) parts.push_back(common);
    }
    dc->state.clip = std::move(parts);
    return Complexity(dc->state.clip);
}

int ExcludeClipRect(HDC handle, int left, int top, int right, int bottom) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return 0;
    const RECT rect = dc->ToDevice(RECT{left, top, right, bottom});
    std::vector<RECT> parts;
    for (const RECT& part : dc->state.clip) {
        RECT hole;
        if (!IntersectRect(&hole, &part, &rect)) {
            parts.push_back(part);
            continue;
        }
        AddPart(parts, part.left, part.top, part.right, hole.top);
        AddPart(parts, part.left, hole.top, hole.left, hole.bottom);
        AddPart(parts, hole.right, hole.top, part.right, hole.bottom);
        AddPart(parts, part.left, hole.bottom, part.right, part.bottom);
    }
    dc->state.clip = std::move(parts);
    return Complexity(dc->state.clip);
}
