#include "framework/ADM_BitmapPictureWnd.h"

void ADM_BitmapPictureWnd::SetBitmap(HINSTANCE hInstance, int nId) {
    m_hInstance = hInstance;
    m_nBitmapId = nId;
    Invalidate(TRUE);
}

void ADM_BitmapPictureWnd::Draw(HDC hDC) {
    ADM_PictureWnd::Draw(hDC);
    if (m_nBitmapId == 0) return;
    const HBITMAP hBitmap = LoadBitmapA(m_hInstance, MAKEINTRESOURCEA(m_nBitmapId));
    if (hBitmap == nullptr) return;
    BITMAP bitmap = {};
    GetObjectA(hBitmap, sizeof bitmap, &bitmap);
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
