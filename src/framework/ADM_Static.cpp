#include "framework/ADM_Static.h"

void ADM_Static::OnCommand(HWND, int nId, HWND, int nCode) {
    switch (nCode) {
        case STN_CLICKED:
            Notify(this, nId, ADMN_CLICK, 0);
            break;
        case STN_DBLCLK:
            Notify(this, nId, ADMN_DBLCLK, 0);
            break;
        case STN_ENABLE:
            Notify(this, nId, ADMN_STATICENABLE, 0);
            break;
        case STN_DISABLE:
            Notify(this, nId, ADMN_STATICDISABLE, 0);
            break;
        default:
            break;
    }
}

LRESULT ADM_Static::Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const {
    return m_hWnd != nullptr ? ::SendMessageA(m_hWnd, uMsg, wParam, lParam) : 0;
}

HICON ADM_Static::SetIcon(HICON hIcon) const {
    return reinterpret_cast<HICON>(Send(STM_SETICON, reinterpret_cast<WPARAM>(hIcon), 0));
}

HICON ADM_Static::GetIcon() const {
    return reinterpret_cast<HICON>(Send(STM_GETICON, 0, 0));
}

HBITMAP ADM_Static::SetBitmap(HBITMAP hBitmap) const {
    return reinterpret_cast<HBITMAP>(
        Send(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(hBitmap)));
}

HBITMAP ADM_Static::GetBitmap() const {
    return reinterpret_cast<HBITMAP>(Send(STM_GETIMAGE, IMAGE_BITMAP, 0));
}

HCURSOR ADM_Static::SetCursor(HCURSOR hCursor) const {
    return reinterpret_cast<HCURSOR>(
        Send(STM_SETIMAGE, IMAGE_CURSOR, reinterpret_cast<LPARAM>(hCursor)));
}

HCURSOR ADM_Static::GetCursor() const {
    return reinterpret_cast<HCURSOR>(Send(STM_GETIMAGE, IMAGE_CURSOR, 0));
}
