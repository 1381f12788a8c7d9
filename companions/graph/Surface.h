// A bitmap to draw into, as large as a control, so that a window shows a picture at once.
#pragma once

#include "platform/platform.h"

namespace graph {

class Surface {
  public:
    Surface() = default;
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    // The context of a bitmap of that size, with the font selected; null without memory. What was
    // drawn stays while the size does.
    HDC Prepare(HDC screen, SIZE size, HFONT hFont);
    HDC Context() const { return m_dc; }
    // Copies all of it.
    void CopyTo(HDC dc) const;
    // The next Prepare makes it anew, for the same size as well.
    void Drop();

  private:
    HDC m_dc = nullptr;
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hOldBitmap = nullptr, m_hOldFont = nullptr;
    SIZE m_size{};
};

}  // namespace graph
