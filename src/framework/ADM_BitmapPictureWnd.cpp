#include "framework/ADM_BitmapPictureWnd.h"

void ADM_BitmapPictureWnd::SetBitmap(HINSTANCE hInstance, int nId, int nLargerId) {
    if (hInstance == m_hInstance && nId == m_nBitmapId && nLargerId == m_nLargerId) return;
    m_hInstance = hInstance;
    m_nBitmapId = nId;
    m_nLargerId = nLargerId;
    Invalidate(TRUE);
}

// The larger form if there is one and it fits; else the usual one, or null.
HBITMAP ADM_BitmapPictureWnd::LoadFitting(BITMAP* pBitmap) const {
    for (const int nId : {m_nLargerId, m_nBitmapId}) {
        const HBITMAP hBitmap =
            nId == 0 ? nullptr : LoadBitmapA(m_hInstance, MAKEINTRESOURCEA(nId));
        if (hBitmap == nullptr) continue;
        GetObjectA(hBitmap, sizeof *pBitmap, pBitmap);
        if (nId == m_nBitmapId || (pBitmap->bmWidth <= m_rcClient.right - m_rcClient.left &&
                                   pBitmap->bmHeight <= m_rcClient.bottom - m_rcClient.top)) {
            return hBitmap;
        }
        DeleteObject(hBitmap);
    }
    return nullptr;
}

void ADM_BitmapPictureWnd::Draw(HDC hDC) {
    ADM_PictureWnd::Draw(hDC);
    BITMAP bitmap = {};
    const HBITMAP hBitmap = LoadFitting(&bitmap);
    if (hBitmap == nullptr) return;
    RECT rc;
    rc.left = m_rcClient.left + (m_rcClient.right - m_rcClient.left - bitmap.bmWidth) / 2;
    rc.top = m_rcClient.top + (m_rcClient.bottom - m_rcClient.top - bitmap.bmHeight) / 2;
    rc.right = rc.left + bitmap.bmWidth;
    rc.bottom = rc.top + bitmap.bmHeight;
    if (const HDC hMemory = CreateCompatibleDC(hDC)) {
        const HGDIOBJ hOld = SelectObject(hMemory, hBitmap);
        BitBlt(hDC, rc.left, rc.top, bitmap.bmWidth, bitmap.bmHeight, hMemory, 0, 0, SRCCOPY);
        SelectObject(hMemory, hOld);
        DeleteDC(hMemory);
    }
    DeleteObject(hBitmap);
    DrawOverlay(hDC, &rc);
}

void ADM_BitmapPictureWnd::DrawOverlay(HDC hDC, const RECT* pRect) {
    RECT rc = *pRect;
    DrawEdge(hDC, &rc, BDR_SUNKENOUTER, BF_RECT);
}
