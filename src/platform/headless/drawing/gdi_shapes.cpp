// Filled and outlined shapes, lines, edges and frame controls.
#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

struct PenLook {
    COLORREF color = 0;
    int width = 1;
    bool none = false;
};

PenLook PenOf(const DeviceContext& dc) {
    const Pen* pen = Find<Pen>(dc.state.pen);
    if (pen == nullptr || pen->style == PS_NULL) return {0, 0, true};
    return {pen->color, std::max(1, std::abs(dc.WidthToDevice(pen->width))), false};
}

void PaintPoint(DeviceContext& dc, int x, int y, const PenLook& pen) {
    const int before = (pen.width - 1) / 2;
    PaintPixels(dc, {x - before, y - before, x - before + pen.width, y - before + pen.width},
                pen.color, FromBinary(dc.state.rop2));
}

// The end point itself is not painted.
void PaintLine(DeviceContext& dc, POINT from, POINT to, const PenLook& pen) {
    if (dc.Surface() == nullptr || pen.none) return;
    const int dx = std::abs(to.x - from.x);
    const int dy = std::abs(to.y - from.y);
    const int stepX = from.x < to.x ? 1 : -1;
    const int stepY = from.y < to.y ? 1 : -1;
    long long error = static_cast<long long>(dx) - dy;
    // A line far outside of any surface is not worth walking along.
    constexpr int kLongest = 1 << 20;
    if (dx > kLongest || dy > kLongest) return;
    while (from.x != to.x || from.y != to.y) {
        PaintPoint(dc, from.x, from.y, pen);
        const long long twice = 2 * error;
        if (twice > -dy) {
            error -= dy;
            from.x += stepX;
        }
        if (twice < dx) {
            error += dx;
            from.y += stepY;
        }
    }
}

void RecordRect(DeviceContext& dc, DrawKind kind, const RECT& rect, COLORREF color = 0) {
    DrawOp op;
    op.kind = kind;
    op.rect = rect;
    op.color = color;
    Record(dc, std::move(op));
}

void PaintFrame(DeviceContext& dc, const RECT& rect, COLORREF color, DWORD operation = PATCOPY) {
    PaintPixels(dc, {rect.left, rect.top, rect.right, rect.top + 1}, color, operation);
    PaintPixels(dc, {rect.left, rect.bottom - 1, rect.right, rect.bottom}, color, operation);
    PaintPixels(dc, {rect.left, rect.top + 1, rect.left + 1, rect.bottom - 1}, color, operation);
    PaintPixels(dc, {rect.right - 1, rect.top + 1, rect.right, rect.bottom - 1}, color, operation);
}

// Every second pixel of the frame turned round, which a second time takes back.
void PaintDottedFrame(DeviceContext& dc, const RECT& rect) {
    const auto dot = [&](LONG x, LONG y) {
        if (((x + y) & 1) == 0) PaintPixels(dc, {x, y, x + 1, y + 1}, 0, DSTINVERT);
    };
    for (LONG x = rect.left; x < rect.right; ++x) {
        dot(x, rect.top);
        if (rect.bottom - 1 > rect.top) dot(x, rect.bottom - 1);
    }
    for (LONG y = rect.top + 1; y < rect.bottom - 1; ++y) {
        dot(rect.left, y);
        if (rect.right - 1 > rect.left) dot(rect.right - 1, y);
    }
}

RECT BoxOf(const std::vector<POINT>& points) {
    RECT box{points.front().x, points.front().y, points.front().x, points.front().y};
    for (const POINT& point : points) {
        box.left = std::min(box.left, point.x);
        box.top = std::min(box.top, point.y);
        box.right = std::max(box.right, point.x + 1);
        box.bottom = std::max(box.bottom, point.y + 1);
    }
    return box;
}

using Ring = std::vector<POINT>;

// Fills what the rings enclose by the even-odd rule, a row of pixels at a time.
void PaintRings(DeviceContext& dc, const std::vector<Ring>& rings, COLORREF color) {
    const Bitmap* surface = dc.Surface();
    if (surface == nullptr || rings.empty()) return;
    RECT box = BoxOf(rings.front());
    for (const Ring& ring : rings) {
        const RECT more = BoxOf(ring);
        UnionRect(&box, &box, &more);
    }
    const int last = std::min<int>(box.bottom, surface->height);
    for (int y = std::max<int>(box.top, 0); y < last; ++y) {
        std::vector<double> crossings;
        for (const Ring& points : rings) {
            for (std::size_t i = 0; i < points.size(); ++i) {
                const POINT& a = points[i];
                const POINT& b = points[(i + 1) % points.size()];
                if ((a.y <= y) == (b.y <= y)) continue;
                crossings.push_back(a.x + static_cast<double>(y - a.y) * (b.x - a.x) / (b.y - a.y));
            }
        }
        std::sort(crossings.begin(), crossings.end());
        for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
            PaintPixels(dc,
                        {static_cast<LONG>(std::ceil(crossings[i])), y,
                         static_cast<LONG>(std::ceil(crossings[i + 1])), y + 1},
                        color, FromBinary(dc.state.rop2));
    }
}

std::vector<POINT> DevicePoints(const DeviceContext& dc, const POINT* points, int count) {
    std::vector<POINT> device;
    for (int i = 0; i < count; ++i) device.push_back(dc.ToDevice(points[i].x, points[i].y));
    return device;
}

bool DrawPolyline(HDC handle, const POINT* points, int count, DrawKind kind) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || points == nullptr || count < 2) return false;
    DrawOp op;
    op.kind = kind;
    op.points = DevicePoints(*dc, points, count);
    op.rect = BoxOf(op.points);
    const PenLook pen = PenOf(*dc);
    const std::vector<POINT> device = op.points;
    if (kind == DrawKind::kPolygon) {
        const Paint inside = PaintOf(dc->state.brush);
        op.color = inside.color;
        op.opaque = !inside.hollow;
        op.frameColor = pen.color;
        op.width = pen.none ? 0 : pen.width;
        if (!inside.hollow) PaintRings(*dc, {device}, inside.color);
        PaintLine(*dc, device.back(), device.front(), pen);
    } else {
        op.color = pen.color;
        op.width = pen.width;
        if (pen.none) return true;
    }
    for (std::size_t i = 0; i + 1 < device.size(); ++i)
        PaintLine(*dc, device[i], device[i + 1], pen);
    Record(*dc, std::move(op));
    return true;
}

// The colours of the outer and the inner line of an edge, at its left and top, and at its right and
// bottom.
struct EdgeColors {
    int outerLight, innerLight, outerDark, innerDark;
};

EdgeColors ColorsOf(UINT edge, UINT flags) {
    EdgeColors colors{-1, -1, -1, -1};
    if ((flags & BF_MONO) != 0) {
        if ((edge & 3) != 0) colors.outerLight = colors.outerDark = COLOR_WINDOWFRAME;
        if ((edge & 12) != 0) colors.innerLight = colors.innerDark = COLOR_WINDOW;
        return colors;
    }
    if ((flags & BF_FLAT) != 0) {
        if ((edge & 3) != 0) colors.outerLight = colors.outerDark = COLOR_BTNSHADOW;
        if ((edge & 12) != 0) colors.innerLight = colors.innerDark = COLOR_BTNFACE;
        return colors;
    }
    const bool soft = (flags & BF_SOFT) != 0;
    if ((edge & BDR_RAISEDOUTER) != 0) {
        colors.outerLight = soft ? COLOR_BTNHIGHLIGHT : COLOR_3DLIGHT;
        colors.outerDark = COLOR_3DDKSHADOW;
    } else if ((edge & BDR_SUNKENOUTER) != 0) {
        colors.outerLight = soft ? COLOR_3DDKSHADOW : COLOR_BTNSHADOW;
        colors.outerDark = COLOR_BTNHIGHLIGHT;
    }
    if ((edge & BDR_RAISEDINNER) != 0) {
        colors.innerLight = soft ? COLOR_3DLIGHT : COLOR_BTNHIGHLIGHT;
        colors.innerDark = COLOR_BTNSHADOW;
    } else if ((edge & BDR_SUNKENINNER) != 0) {
        colors.innerLight = soft ? COLOR_BTNSHADOW : COLOR_3DDKSHADOW;
        colors.innerDark = COLOR_3DLIGHT;
    }
    // A single raised outer line and the edges of group boxes are drawn without the extremes.
    if ((edge & 12) == 0 && (edge & BDR_RAISEDOUTER) != 0) {
        colors.outerLight = COLOR_BTNHIGHLIGHT;
        colors.outerDark = COLOR_BTNSHADOW;
    }
    if (edge == EDGE_ETCHED) colors.innerLight = COLOR_BTNHIGHLIGHT;
    if (edge == EDGE_BUMP) colors.outerDark = COLOR_BTNSHADOW;
    return colors;
}

void PaintSides(DeviceContext& dc, RECT& rect, UINT flags, int light, int dark) {
    if (light < 0) return;
    const COLORREF lightColor = GetSysColor(light);
    const COLORREF darkColor = GetSysColor(dark);
    if ((flags & BF_LEFT) != 0)
        PaintPixels(dc, {rect.left, rect.top, rect.left + 1, rect.bottom}, lightColor);
    if ((flags & BF_TOP) != 0)
        PaintPixels(dc, {rect.left, rect.top, rect.right, rect.top + 1}, lightColor);
    if ((flags & BF_RIGHT) != 0)
        PaintPixels(dc, {rect.right - 1, rect.top, rect.right, rect.bottom}, darkColor);
    if ((flags & BF_BOTTOM) != 0)
        PaintPixels(dc, {rect.left, rect.bottom - 1, rect.right, rect.bottom}, darkColor);
    if ((flags & BF_LEFT) != 0) ++rect.left;
    if ((flags & BF_TOP) != 0) ++rect.top;
    if ((flags & BF_RIGHT) != 0) --rect.right;
    if ((flags & BF_BOTTOM) != 0) --rect.bottom;
}

bool Edge(DeviceContext& dc, RECT& rect, UINT edge, UINT flags) {
    constexpr UINT kKnown = BF_RECT | BF_MIDDLE | BF_SOFT | BF_ADJUST | BF_FLAT | BF_MONO;
    if ((flags & ~kKnown) != 0) ReportUnsupported("DrawEdge flags " + std::to_string(flags));
    DrawOp op;
    op.kind = DrawKind::kEdge;
    op.rect = dc.ToDevice(rect);
    op.type = edge;
    op.flags = flags;
    RECT inner = op.rect;
    const RECT before = inner;
    Record(dc, std::move(op));
    const EdgeColors colors = ColorsOf(edge, flags);
    PaintSides(dc, inner, flags, colors.outerLight, colors.outerDark);
    PaintSides(dc, inner, flags, colors.innerLight, colors.innerDark);
    if ((flags & BF_MIDDLE) != 0)
        PaintPixels(dc, inner, GetSysColor((flags & BF_MONO) != 0 ? COLOR_WINDOW : COLOR_BTNFACE));
    if ((flags & BF_ADJUST) != 0) {
        rect.left += inner.left - before.left;
        rect.top += inner.top - before.top;
        rect.right += inner.right - before.right;
        rect.bottom += inner.bottom - before.bottom;
    }
    return true;
}

}  // namespace

// Recorded ring by ring, painted as one figure.
void FillPolyPolygon(DeviceContext& dc, const std::vector<std::vector<POINT>>& logical) {
    const Paint inside = PaintOf(dc.state.brush);
    const PenLook pen = PenOf(dc);
    std::vector<Ring> rings;
    for (const std::vector<POINT>& ring : logical) {
        if (ring.size() < 2) continue;
        rings.push_back(DevicePoints(dc, ring.data(), static_cast<int>(ring.size())));
        DrawOp op;
        op.kind = DrawKind::kPolygon;
        op.points = rings.back();
        op.rect = BoxOf(op.points);
        op.color = inside.color;
        op.opaque = !inside.hollow;
        op.frameColor = pen.color;
        op.width = pen.none ? 0 : pen.width;
        Record(dc, std::move(op));
    }
    if (!inside.hollow) PaintRings(dc, rings, inside.color);
    for (const Ring& ring : rings) {
        for (std::size_t i = 0; i < ring.size(); ++i)
            PaintLine(dc, ring[i], ring[(i + 1) % ring.size()], pen);
    }
}
}  // namespace headless::gdi

using namespace headless::gdi;
using headless::DrawKind;
using headless::DrawOp;

int FillRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr) return 0;
    const Paint paint = PaintOf(brush);
    if (!paint.hollow) Fill(*dc, dc->ToDevice(*rect), paint.color);
    return 1;
}

int FrameRect(HDC handle, const RECT* rect, HBRUSH brush) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr || IsRectEmpty(rect)) return 0;
    const Paint paint = PaintOf(brush);
    if (paint.hollow) return 1;
    const RECT device = dc->ToDevice(*rect);
    RecordRect(*dc, DrawKind::kFrame, device, paint.color);
    PaintFrame(*dc, device, paint.color);
    return 1;
}

BOOL InvertRect(HDC handle, const RECT* rect) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr) return FALSE;
    const RECT device = dc->ToDevice(*rect);
    RecordRect(*dc, DrawKind::kInvert, device);
    PaintPixels(*dc, device, 0, DSTINVERT);
    return TRUE;
}

BOOL DrawFocusRect(HDC handle, const RECT* rect) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr) return FALSE;
    const RECT device = dc->ToDevice(*rect);
    RecordRect(*dc, DrawKind::kFocus, device);
    PaintDottedFrame(*dc, device);
    return TRUE;
}

BOOL DrawEdge(HDC handle, RECT* rect, UINT edge, UINT flags) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr) return FALSE;
    return Edge(*dc, *rect, edge, flags) ? TRUE : FALSE;
}

BOOL DrawFrameControl(HDC handle, RECT* rect, UINT type, UINT state) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || rect == nullptr) return FALSE;
    if (type != DFC_BUTTON && type != DFC_SCROLL && type != DFC_CAPTION) {
        headless::ReportUnsupported("DrawFrameControl type " + std::to_string(type));
        return FALSE;
    }
    DrawOp op;
    op.kind = DrawKind::kFrameControl;
    op.rect = dc->ToDevice(*rect);
    op.type = type;
    op.flags = state;
    const RECT device = op.rect;
    Record(*dc, std::move(op));
    const bool framed = type != DFC_BUTTON || (state & DFCS_BUTTONPUSH) != 0;
    PaintPixels(*dc, device, GetSysColor(COLOR_BTNFACE));
    RECT inner = device;
    if (framed) {
        const UINT edge = (state & DFCS_PUSHED) != 0 ? EDGE_SUNKEN : EDGE_RAISED;
        const EdgeColors colors = ColorsOf(edge, (state & DFCS_FLAT) != 0 ? BF_FLAT : BF_SOFT);
        PaintSides(*dc, inner, BF_RECT, colors.outerLight, colors.outerDark);
        PaintSides(*dc, inner, BF_RECT, colors.innerLight, colors.innerDark);
    } else {
        PaintFrame(*dc, device, GetSysColor(COLOR_BTNSHADOW));
    }
    if ((state & DFCS_ADJUSTRECT) != 0 && framed) InflateRect(rect, -2, -2);
    return TRUE;
}

BOOL DrawIcon(HDC handle, int x, int y, HICON icon) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || icon == nullptr) return FALSE;
    DrawOp op;
    op.kind = DrawKind::kIcon;
    const POINT at = dc->ToDevice(x, y);
    op.rect = {at.x, at.y, at.x + GetSystemMetrics(SM_CXICON), at.y + GetSystemMetrics(SM_CYICON)};
    op.handle = icon;
    Record(*dc, std::move(op));
    return TRUE;
}

BOOL MoveToEx(HDC handle, int x, int y, POINT* old) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    if (old != nullptr) *old = dc->state.position;
    dc->state.position = {x, y};
    return TRUE;
}

BOOL LineTo(HDC handle, int x, int y) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    const POINT points[2] = {dc->state.position, {x, y}};
    DrawPolyline(handle, points, 2, DrawKind::kLine);
    dc->state.position = {x, y};
    return TRUE;
}

BOOL Rectangle(HDC handle, int left, int top, int right, int bottom) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    const RECT rect = dc->ToDevice(RECT{left, top, right, bottom});
    if (IsRectEmpty(&rect)) return TRUE;
    const Paint inside = PaintOf(dc->state.brush);
    const PenLook pen = PenOf(*dc);
    if (!inside.hollow) {
        RecordRect(*dc, DrawKind::kFill, rect, inside.color);
        PaintPixels(*dc, rect, inside.color, FromBinary(dc->state.rop2));
    }
    if (!pen.none) {
        RecordRect(*dc, DrawKind::kFrame, rect, pen.color);
        PaintFrame(*dc, rect, pen.color, FromBinary(dc->state.rop2));
    }
    return TRUE;
}

BOOL Polygon(HDC dc, const POINT* points, int count) {
    return DrawPolyline(dc, points, count, DrawKind::kPolygon) ? TRUE : FALSE;
}

BOOL Polyline(HDC dc, const POINT* points, int count) {
    return DrawPolyline(dc, points, count, DrawKind::kPolyline) ? TRUE : FALSE;
}

BOOL PatBlt(HDC handle, int x, int y, int width, int height, DWORD operation) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return FALSE;
    const RECT rect = dc->ToDevice(RECT{x, y, x + width, y + height});
    const Paint paint = PaintOf(dc->state.brush);
    if (operation == DSTINVERT) {
        RecordRect(*dc, DrawKind::kInvert, rect);
    } else if (operation != PATCOPY || !paint.hollow) {
        RecordRect(*dc, DrawKind::kFill, rect, Combine(operation, paint.color, 0, 0));
    } else {
        return TRUE;
    }
    PaintPixels(*dc, rect, paint.color, operation);
    return TRUE;
}
