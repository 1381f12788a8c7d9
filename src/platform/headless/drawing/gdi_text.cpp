// Text metrics, extents and plain text output.
#include "platform/headless/drawing/gdi_text.h"

#include <cstring>

#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {

std::shared_ptr<const FontFace> FaceOf(const DeviceContext& dc) {
    return ResolveFont(dc.DeviceFont());
}

void PutText(DeviceContext& dc, int left, int top, int width, const std::string& text,
             int underlined) {
    const LOGFONTA font = dc.DeviceFont();
    DrawOp op;
    op.kind = DrawKind::kText;
    op.rect = {left, top, left + width, top + ResolveFont(font)->metrics.tmHeight};
    op.text = text;
    op.underlined = underlined;
    op.textColor = dc.state.textColor;
    op.backColor = dc.state.backColor;
    op.opaque = dc.state.backMode == OPAQUE;
    op.font = font;
    if (op.opaque) PaintPixels(dc, op.rect, op.backColor);
    Record(dc, std::move(op));
}

int TextLength(const char* text, int length) {
    if (length >= 0) return length;
    return static_cast<int>(std::strlen(text));
}

namespace {

bool PutAligned(HDC handle, int x, int y, UINT options, const RECT* rect, LPCSTR text, int length,
                const INT* advances) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || (text == nullptr && length > 0) || length < 0) return false;
    const auto face = FaceOf(*dc);
    int width = length > 0 ? face->Width(text, length) : 0;
    if (advances != nullptr) {
        width = 0;
        for (int i = 0; i < length; ++i) width += dc->WidthToDevice(advances[i]);
    }
    POINT at = dc->ToDevice(x, y);
    if ((dc->state.align & TA_CENTER) == TA_CENTER)
        at.x -= width / 2;
    else if ((dc->state.align & TA_RIGHT) != 0)
        at.x -= width;
    if ((dc->state.align & TA_BASELINE) == TA_BASELINE)
        at.y -= face->metrics.tmAscent;
    else if ((dc->state.align & TA_BOTTOM) != 0)
        at.y -= face->metrics.tmHeight;
    if (rect != nullptr && (options & ETO_OPAQUE) != 0)
        Fill(*dc, dc->ToDevice(*rect), dc->state.backColor);
    if (length == 0) return true;
    const std::vector<RECT> clip = dc->state.clip;
    if (rect != nullptr && (options & ETO_CLIPPED) != 0)
        IntersectClipRect(handle, rect->left, rect->top, rect->right, rect->bottom);
    PutText(*dc, at.x, at.y, width, std::string(text, static_cast<std::size_t>(length)), -1);
    dc->state.clip = clip;
    return true;
}

}  // namespace
}  // namespace headless::gdi

using namespace headless::gdi;

BOOL GetTextMetricsA(HDC handle, TEXTMETRICA* metrics) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || metrics == nullptr) return FALSE;
    *metrics = FaceOf(*dc)->metrics;
    for (LONG TEXTMETRICA::*field :
         {&TEXTMETRICA::tmHeight, &TEXTMETRICA::tmAscent, &TEXTMETRICA::tmDescent,
          &TEXTMETRICA::tmInternalLeading, &TEXTMETRICA::tmExternalLeading})
        metrics->*field = dc->HeightToLogical(metrics->*field);
    for (LONG TEXTMETRICA::*field :
         {&TEXTMETRICA::tmAveCharWidth, &TEXTMETRICA::tmMaxCharWidth, &TEXTMETRICA::tmOverhang})
        metrics->*field = dc->WidthToLogical(metrics->*field);
    return TRUE;
}

BOOL GetTextExtentPoint32A(HDC handle, LPCSTR text, int length, SIZE* size) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr || size == nullptr || length < 0 || (text == nullptr && length > 0))
        return FALSE;
    *size = {};
    if (length == 0) return TRUE;
    const auto face = FaceOf(*dc);
    *size = {dc->WidthToLogical(face->Width(text, length)),
             dc->HeightToLogical(face->metrics.tmHeight)};
    return TRUE;
}

// The length counts the end where it is asked for, and not where the name is copied.
int GetTextFaceA(HDC handle, int size, LPSTR buffer) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return 0;
    const Font* font = Find<Font>(dc->state.font);
    const std::string face = font == nullptr || font->log.lfFaceName[0] == '\0'
                                 ? "Tahoma"
                                 : std::string(font->log.lfFaceName);
    const int needed = static_cast<int>(face.size()) + 1;
    if (buffer == nullptr) return needed;
    if (size <= 0) return 0;
    const int count = std::min(size, needed);
    std::memcpy(buffer, face.c_str(), static_cast<std::size_t>(count - 1));
    buffer[count - 1] = '\0';
    return count - 1;
}

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length) {
    return PutAligned(dc, x, y, 0, nullptr, text, length, nullptr) ? TRUE : FALSE;
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length,
                 const INT* dx) {
    if ((options & ~static_cast<UINT>(ETO_OPAQUE | ETO_CLIPPED)) != 0)
        headless::ReportUnsupported("ExtTextOutA options " + std::to_string(options));
    return PutAligned(dc, x, y, options, rect, text, static_cast<int>(length), dx) ? TRUE : FALSE;
}
