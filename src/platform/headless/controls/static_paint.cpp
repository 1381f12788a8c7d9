// How a static control looks.
#include "platform/headless/controls/static.h"

namespace headless {

HBRUSH Static::AskColor(HDC dc) const {
    const HWND parent = GetParent(m_hwnd);
    const LRESULT brush = SendMessageA(parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                       reinterpret_cast<LPARAM>(m_hwnd));
    if (brush != 0) return reinterpret_cast<HBRUSH>(brush);
    return reinterpret_cast<HBRUSH>(DefWindowProcA(
        parent, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_hwnd)));
}

std::string Static::Text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(m_hwnd)), '\0');
    const int length = GetWindowTextA(m_hwnd, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

bool Static::IsOneLine() const {
    return Type() == SS_SIMPLE || HasStyle(SS_ELLIPSISMASK);
}

void Static::PaintText(HDC dc, const RECT& client) {
    UINT format = DT_EXPANDTABS | DT_WORDBREAK;
    switch (Type()) {
        case SS_CENTER:
            format |= DT_CENTER;
            break;
        case SS_RIGHT:
            format |= DT_RIGHT;
            break;
        case SS_SIMPLE:
        case SS_LEFTNOWORDWRAP:
            format &= ~static_cast<UINT>(DT_WORDBREAK);
            break;
        default:
            break;
    }
    if (IsOneLine()) format = (format & ~static_cast<UINT>(DT_WORDBREAK)) | DT_SINGLELINE;
    if (HasStyle(SS_NOPREFIX)) format |= DT_NOPREFIX;
    switch (GetWindowLongPtrA(m_hwnd, GWL_STYLE) & SS_ELLIPSISMASK) {
        case SS_ENDELLIPSIS:
            format |= DT_END_ELLIPSIS;
            break;
        case SS_PATHELLIPSIS:
            format |= DT_PATH_ELLIPSIS;
            break;
        case SS_WORDELLIPSIS:
            format |= DT_WORD_ELLIPSIS;
            break;
        default:
            break;
    }
    if ((SendMessageA(m_hwnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0)
        format |= DT_HIDEPREFIX;
    const HBRUSH background = AskColor(dc);
    FillRect(dc, &client, background);
    if (!IsWindowEnabled(m_hwnd)) SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    const std::string text = Text();
    if (text.empty()) return;
    RECT rect = client;
    if (HasStyle(SS_CENTERIMAGE)) {
        RECT size = client;
        const int height = DrawTextA(dc, text.c_str(), -1, &size, format | DT_CALCRECT);
        rect.top += (client.bottom - client.top) / 2 - height / 2;
    }
    DrawTextA(dc, text.c_str(), -1, &rect, format);
}

void Static::PaintPicture(HDC dc, const RECT& client, HBRUSH background) {
    FillRect(dc, &client, background);
    if (m_picture == nullptr) return;
    const SIZE size = PictureSize();
    int x = 0;
    int y = 0;
    if (HasStyle(SS_CENTERIMAGE)) {
        x = (client.right - client.left - size.cx) / 2;
        y = (client.bottom - client.top - size.cy) / 2;
    }
    if (PictureType() == IMAGE_ICON) {
        DrawIcon(dc, x, y, static_cast<HICON>(m_picture));
        return;
    }
    const HDC memory = CreateCompatibleDC(dc);
    const HGDIOBJ old = SelectObject(memory, m_picture);
    BitBlt(dc, x, y, size.cx, size.cy, memory, 0, 0, SRCCOPY);
    SelectObject(memory, old);
    DeleteDC(memory);
}

void Static::PaintShape(HDC dc, const RECT& client) {
    RECT rect = client;
    switch (Type()) {
        case SS_BLACKRECT:
            FillRect(dc, &rect, GetSysColorBrush(COLOR_3DDKSHADOW));
            break;
        case SS_GRAYRECT:
            FillRect(dc, &rect, GetSysColorBrush(COLOR_3DSHADOW));
            break;
        case SS_WHITERECT:
            FillRect(dc, &rect, GetSysColorBrush(COLOR_3DHIGHLIGHT));
            break;
        case SS_BLACKFRAME:
            FrameRect(dc, &rect, GetSysColorBrush(COLOR_3DDKSHADOW));
            break;
        case SS_GRAYFRAME:
            FrameRect(dc, &rect, GetSysColorBrush(COLOR_3DSHADOW));
            break;
        case SS_WHITEFRAME:
            FrameRect(dc, &rect, GetSysColorBrush(COLOR_3DHIGHLIGHT));
            break;
        case SS_ETCHEDHORZ:
            DrawEdge(dc, &rect, EDGE_ETCHED, BF_TOP | BF_BOTTOM);
            break;
        case SS_ETCHEDVERT:
            DrawEdge(dc, &rect, EDGE_ETCHED, BF_LEFT | BF_RIGHT);
            break;
        case SS_ETCHEDFRAME:
            DrawEdge(dc, &rect, EDGE_ETCHED, BF_RECT);
            break;
        default:
            break;
    }
}

void Static::PaintOwner(HDC dc, const RECT& client) {
    AskColor(dc);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_STATIC;
    item.CtlID = static_cast<UINT>(Id());
    item.itemAction = ODA_DRAWENTIRE;
    if (!IsWindowEnabled(m_hwnd)) item.itemState |= ODS_DISABLED;
    item.hwndItem = m_hwnd;
    item.hDC = dc;
    item.rcItem = client;
    SendMessageA(GetParent(m_hwnd), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void Static::Paint(HDC dc) {
    RECT client = {};
    GetClientRect(m_hwnd, &client);
    const int saved = SaveDC(dc);
    if (m_font != nullptr) SelectObject(dc, m_font);
    if (Type() == SS_OWNERDRAW)
        PaintOwner(dc, client);
    else if (HasText())
        PaintText(dc, client);
    else if (PictureType() >= 0)
        PaintPicture(dc, client, AskColor(dc));
    else
        PaintShape(dc, client);
    RestoreDC(dc, saved);
}

// A change shows at once, not with the next paint.
void Static::PaintNow() {
    if (m_hwnd == nullptr || !IsWindowVisible(m_hwnd)) return;
    const HWND hwnd = m_hwnd;
    const HDC dc = GetDC(hwnd);
    Paint(dc);
    ReleaseDC(hwnd, dc);
}

}  // namespace headless
