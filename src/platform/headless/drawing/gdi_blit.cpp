// Copies between device contexts, and single pixels.
#include <algorithm>

#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

bool NeedsSource(DWORD operation) {
    const DWORD table = operation >> 16 & 0xFF;
    return (table & 0x33) != (table >> 2 & 0x33);
}

// Between a bitmap of two colours and one of more, the two are the text and the background colour
// of the context on the other side.
COLORREF SourcePixel(const DeviceContext& to, const Bitmap& target, const DeviceContext& from,
                     const Bitmap& source, int x, int y) {
    if (x < 0 || y < 0 || x >= source.width || y >= source.height) return 0;
    const bool monoSource = source.bitsPerPixel == 1 && !source.section;
    const bool monoTarget = target.bitsPerPixel == 1 && !target.section;
    if (monoSource && !monoTarget)
        return source.Bit(x, y) ? to.state.backColor : to.state.textColor;
    if (!monoSource && monoTarget)
        return (source.Pixel(x, y) & 0xFFFFFF) == (from.state.backColor & 0xFFFFFF) ? 0xFFFFFF : 0;
    return source.Pixel(x, y);
}

struct Placement {
    RECT to;
    RECT from;
};

LONG MapLength(LONG offset, LONG to, LONG from) {
    if (from == 0) return 0;
    return static_cast<LONG>(static_cast<long long>(offset) * to / from);
}

// A picture that was drawn in memory is also known by what was drawn: the operations of the source
// follow the copy, moved to where they appear.
void RecordContents(DeviceContext& to, const std::vector<DrawOp>& ops, const Placement& place) {
    const LONG toWidth = place.to.right - place.to.left;
    const LONG toHeight = place.to.bottom - place.to.top;
    const LONG fromWidth = place.from.right - place.from.left;
    const LONG fromHeight = place.from.bottom - place.from.top;
    const auto moveX = [&](LONG x) {
        return place.to.left + MapLength(x - place.from.left, toWidth, fromWidth);
    };
    const auto moveY = [&](LONG y) {
        return place.to.top + MapLength(y - place.from.top, toHeight, fromHeight);
    };
    for (const DrawOp& op : ops) {
        RECT visible;
        if (op.kind == DrawKind::kBlit || !IntersectRect(&visible, &op.rect, &place.from)) continue;
        DrawOp moved = op;
        moved.rect = {moveX(op.rect.left), moveY(op.rect.top), moveX(op.rect.right),
                      moveY(op.rect.bottom)};
        for (POINT& point : moved.points) point = {moveX(point.x), moveY(point.y)};
        Record(to, std::move(moved));
    }
}

bool Blit(HDC toHandle, int x, int y, int width, int height, HDC fromHandle, int fromX, int fromY,
          int fromWidth, int fromHeight, DWORD operation) {
    const Lock lock;
    DeviceContext* to = FindDc(toHandle);
    DeviceContext* from = FindDc(fromHandle);
    if (to == nullptr || from == nullptr) return false;
    const Placement place{
        to->ToDevice(RECT{x, y, x + width, y + height}),
        from->ToDevice(RECT{fromX, fromY, fromX + fromWidth, fromY + fromHeight})};
    if ((width < 0) != (fromWidth < 0) || (height < 0) != (fromHeight < 0)) {
        ReportUnsupported("StretchBlt that mirrors");
        return false;
    }
    const Bitmap* source = from->Surface();
    if (source == nullptr) {
        ReportUnsupported("a copy from a window, which has no pixels");
        return false;
    }
    DrawOp op;
    op.kind = DrawKind::kBlit;
    op.rect = place.to;
    op.source = place.from;
    op.operation = operation;
    op.handle = from->state.bitmap;
    Record(*to, std::move(op));
    if (Bitmap* target = to->Surface()) {
        // A copy within one bitmap reads what was there before.
        std::unique_ptr<Bitmap> before;
        if (target == source) {
            before =
                MakeBitmap(source->width, source->height, source->bitsPerPixel, source->stride);
            before->bits = source->bits;
            before->palette = source->palette;
            before->section = source->section;
            before->bottomUp = source->bottomUp;
            source = before.get();
        }
        const Paint brush = PaintOf(to->state.brush);
        const LONG toWidth = place.to.right - place.to.left;
        const LONG toHeight = place.to.bottom - place.to.top;
        ForEachPixel(*to, *target, place.to, [&](int px, int py) {
            const LONG sx =
                place.from.left +
                MapLength(px - place.to.left, place.from.right - place.from.left, toWidth);
            const LONG sy =
                place.from.top +
                MapLength(py - place.to.top, place.from.bottom - place.from.top, toHeight);
            const COLORREF pixel = SourcePixel(*to, *target, *from, *source, sx, sy);
            target->SetPixel(px, py, Combine(operation, brush.color, pixel, target->Pixel(px, py)));
        });
    }
    const Bitmap* drawn = from->Surface();
    if (to->Surface() != drawn) RecordContents(*to, drawn->ops, place);
    return true;
}

}  // namespace
}  // namespace headless::gdi

using namespace headless::gdi;

BOOL BitBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
            DWORD operation) {
    if (!NeedsSource(operation)) return PatBlt(to, x, y, width, height, operation);
    return Blit(to, x, y, width, height, from, fromX, fromY, width, height, operation) ? TRUE
                                                                                       : FALSE;
}

BOOL StretchBlt(HDC to, int x, int y, int width, int height, HDC from, int fromX, int fromY,
                int fromWidth, int fromHeight, DWORD operation) {
    if (!NeedsSource(operation)) return PatBlt(to, x, y, width, height, operation);
    return Blit(to, x, y, width, height, from, fromX, fromY, fromWidth, fromHeight, operation)
               ? TRUE
               : FALSE;
}

COLORREF GetPixel(HDC handle, int x, int y) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return CLR_INVALID;
    const Bitmap* surface = dc->Surface();
    if (surface == nullptr) {
        headless::ReportUnsupported("GetPixel of a window, which has no pixels");
        return CLR_INVALID;
    }
    const POINT at = dc->ToDevice(x, y);
    COLORREF color = CLR_INVALID;
    ForEachPixel(*dc, *surface, {at.x, at.y, at.x + 1, at.y + 1},
                 [&](int px, int py) { color = surface->Pixel(px, py); });
    return color;
}

COLORREF SetPixel(HDC handle, int x, int y, COLORREF color) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return CLR_INVALID;
    const POINT at = dc->ToDevice(x, y);
    const RECT rect{at.x, at.y, at.x + 1, at.y + 1};
    headless::DrawOp op;
    op.kind = headless::DrawKind::kPixel;
    op.rect = rect;
    op.color = color;
    Record(*dc, std::move(op));
    PaintPixels(*dc, rect, color, FromBinary(dc->state.rop2));
    return dc->Surface() != nullptr ? GetPixel(handle, x, y) : color;
}
