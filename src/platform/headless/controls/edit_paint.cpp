#include <algorithm>

#include "platform/headless/controls/edit.h"

namespace headless {

void Edit::Paint(HDC dc) {
    RECT client;
    GetClientRect(m_hwnd, &client);
    const bool enabled = IsWindowEnabled(m_hwnd) != FALSE;
    const int saved = SaveDC(dc);
    SelectObject(dc, m_font != nullptr ? m_font : GetStockObject(SYSTEM_FONT));
    // One that cannot be edited takes the colours of a label.
    const UINT colours = enabled && !IsReadOnly() ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC;
    const HBRUSH brush = reinterpret_cast<HBRUSH>(SendMessageA(GetParent(m_hwnd), colours,
                                                               reinterpret_cast<WPARAM>(dc),
                                                               reinterpret_cast<LPARAM>(m_hwnd)));
    FillRect(dc, &client, brush != nullptr ? brush : GetSysColorBrush(COLOR_WINDOW));
    if (m_drawBorder) FrameRect(dc, &client, GetSysColorBrush(COLOR_WINDOWFRAME));
    IntersectClipRect(dc, m_format.left, m_format.top, m_format.right, m_format.bottom);
    if (!enabled) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    SetBkMode(dc, TRANSPARENT);
    const bool showSelection = enabled && (GetFocus() == m_hwnd || HasStyle(ES_NOHIDESEL));
    {
        const ControlDc measure(m_hwnd, m_font);
        const size_t last =
            std::min(m_lines.size(), m_firstLine + static_cast<size_t>(VisibleLines()));
        int y = m_format.top;
        for (size_t i = m_firstLine; i < last; ++i) {
            PaintLine(dc, measure, m_lines[i], y, showSelection);
            y += m_lineHeight;
        }
    }
    RestoreDC(dc, saved);
}

// One call per run of characters in the same colours, cut at tabs.
void Edit::PaintLine(HDC dc, const ControlDc& measure, const Line& line, int y,
                     bool showSelection) {
    const int left = LineLeft(measure, line);
    const size_t end = line.start + line.length;
    const size_t selectionStart = showSelection ? SelectionStart() : 0;
    const size_t selectionEnd = showSelection ? SelectionEnd() : 0;
    size_t at = std::min(IsMultiLine() ? line.start : m_firstChar, end);
    while (at < end) {
        const bool selected = at >= selectionStart && at < selectionEnd;
        size_t stop = end;
        if (selected) {
            stop = std::min(stop, selectionEnd);
        } else if (at < selectionStart && selectionStart < selectionEnd) {
            stop = std::min(stop, selectionStart);
        }
        if (IsMultiLine()) stop = std::min(stop, m_text.find('\t', at));
        if (stop == at) {
            ++at;
            continue;
        }
        std::string shown = m_text.substr(at, stop - at);
        if (m_passwordChar != '\0') shown.assign(shown.size(), m_passwordChar);
        const int x = left + TextWidth(measure, line.start, at - line.start);
        const COLORREF oldText = GetTextColor(dc);
        const COLORREF oldBack = GetBkColor(dc);
        const RECT run = {x, y, left + TextWidth(measure, line.start, stop - line.start),
                          y + m_lineHeight};
        if (selected) {
            SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
            SetBkColor(dc, GetSysColor(COLOR_HIGHLIGHT));
        }
        ExtTextOutA(dc, x, y, selected ? ETO_OPAQUE : 0, &run, shown.data(),
                    static_cast<UINT>(shown.size()), nullptr);
        SetTextColor(dc, oldText);
        SetBkColor(dc, oldBack);
        at = stop;
    }
}

}  // namespace headless
