#include "framework/ADM_MetafileWnd.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// The file is little-endian and its fields stand on no boundary of their own.
int ReadInt16(const BYTE* pBytes) {
    return static_cast<std::int16_t>(pBytes[0] | (pBytes[1] << 8));
}

DWORD ReadUInt32(const BYTE* pBytes) {
    return static_cast<DWORD>(pBytes[0]) | static_cast<DWORD>(pBytes[1]) << 8 |
           static_cast<DWORD>(pBytes[2]) << 16 | static_cast<DWORD>(pBytes[3]) << 24;
}

// A scale that takes the extent out of range gives the largest one.
LONG Scaled(int nExtent, int nScale) {
    constexpr std::int64_t kLargest = std::numeric_limits<LONG>::max();
    return static_cast<LONG>(std::clamp(std::int64_t{nExtent} * nScale, -kLargest, kLargest));
}

// Whether the texts of a page that gives this colour to its labels are light on dark.
bool IsLight(COLORREF crText) {
    return GetRValue(crText) * 2 + GetGValue(crText) * 5 + GetBValue(crText) > 8 * 127;
}

}  // namespace

void ADM_MetafileWnd::LoadMetafile(HINSTANCE hInstance, LPCSTR szName, int nMapMode) {
    m_hMetafile = nullptr;  // resources are freed with their module
    m_uBitsSize = 0;
    m_nWidth = 0;
    m_nHeight = 0;
    m_nMapMode = nMapMode;
    m_hInstance = hInstance;
    Invalidate(TRUE);
    const HRSRC hResource =
        szName == nullptr ? nullptr : FindResourceA(hInstance, szName, "METAFILE");
    if (hResource == nullptr) return;
    const DWORD uSize = SizeofResource(hInstance, hResource);
    const HGLOBAL hMetafile = LoadResource(hInstance, hResource);
    const auto* pBytes =
        hMetafile == nullptr ? nullptr : static_cast<const BYTE*>(LockResource(hMetafile));
    if (pBytes == nullptr || uSize <= kPlaceableHeaderSize || ReadUInt32(pBytes) != kPlaceableKey)
        return;
    m_hMetafile = hMetafile;
    m_uBitsSize = uSize - kPlaceableHeaderSize;
    m_nWidth = ReadInt16(pBytes + 10) - ReadInt16(pBytes + 6);
    m_nHeight = ReadInt16(pBytes + 12) - ReadInt16(pBytes + 8);
}

void ADM_MetafileWnd::SetScale(int nScale) {
    m_nScale = nScale;
    Invalidate(TRUE);
}

METAFILEPICT ADM_MetafileWnd::GetPicture() const {
    METAFILEPICT picture = {};
    picture.mm = m_nMapMode;
    picture.xExt = Scaled(m_nWidth, m_nScale);
    picture.yExt = Scaled(m_nHeight, m_nScale);
    return picture;
}

void ADM_MetafileWnd::PlayInto(HDC hDC, int rcLeft, int rcTop, int rcRight, int rcBottom) const {
    if (m_hMetafile == nullptr || m_nWidth <= 0 || m_nHeight <= 0) return;
    const METAFILEPICT picture = GetPicture();
    const int nSaved = SaveDC(hDC);
    if (m_nMapMode == MM_ANISOTROPIC) {
        SetMapMode(hDC, MM_ANISOTROPIC);
        SetWindowExtEx(hDC, rcRight - rcLeft, rcBottom - rcTop, nullptr);
        SetViewportExtEx(hDC, rcRight - rcLeft, rcBottom - rcTop, nullptr);
    }
    const auto* pBytes = static_cast<const BYTE*>(LockResource(m_hMetafile));
    if (const HENHMETAFILE hPicture =
            SetWinMetaFileBits(m_uBitsSize, pBytes + kPlaceableHeaderSize, hDC, &picture)) {
        const RECT rc = {rcLeft, rcTop, rcRight, rcBottom};
        PlayEnhMetaFile(hDC, hPicture, &rc);
        DeleteEnhMetaFile(hPicture);
    }
    RestoreDC(hDC, nSaved);
}

void ADM_MetafileWnd::Draw(HDC hDC) {
    ADM_PictureWnd::Draw(hDC);
    // The pictures are black, which a dark scheme would hide.
    if (IsLight(GetTextColor(hDC)))
        FillRect(hDC, &m_rcClient, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    PlayInto(hDC, m_rcClient.left, m_rcClient.top, m_rcClient.right, m_rcClient.bottom);
}
