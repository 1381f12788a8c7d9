#include "Surface.h"

namespace graph {

Surface::~Surface() {
    Drop();
}

void Surface::Drop() {
    if (m_dc == nullptr) return;
    SelectObject(m_dc, m_hOldFont);
    SelectObject(m_dc, m_hOldBitmap);
    DeleteObject(m_hBitmap);
    DeleteDC(m_dc);
    m_dc = nullptr;
}

HDC Surface::Prepare(HDC screen, SIZE size, HFONT hFont) {
    if (m_dc != nullptr && size.cx == m_size.cx && size.cy == m_size.cy) return m_dc;
    Drop();
    const HBITMAP hBitmap = CreateCompatibleBitmap(screen, size.cx, size.cy);
    if (hBitmap == nullptr) return nullptr;
    m_dc = CreateCompatibleDC(screen);
    if (m_dc == nullptr) {
        DeleteObject(hBitmap);
        return nullptr;
    }
    m_hBitmap = hBitmap;
    m_hOldBitmap = SelectObject(m_dc, m_hBitmap);
    m_hOldFont = SelectObject(
        m_dc, hFont != nullptr ? static_cast<HGDIOBJ>(hFont) : GetStockObject(DEFAULT_GUI_FONT));
    m_size = size;
    return m_dc;
}

void Surface::CopyTo(HDC dc) const {
    if (m_dc != nullptr) BitBlt(dc, 0, 0, m_size.cx, m_size.cy, m_dc, 0, 0, SRCCOPY);
}

}  // namespace graph
