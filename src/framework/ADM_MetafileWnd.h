// A placeable metafile of the resources (type "METAFILE"), stretched over its control: the equation
// pictures. A resource that is missing, too short or no placeable metafile shows nothing.
// On a page with light text on dark it stands on white, since the pictures are black.
//
// A placeable metafile begins with a header of 22 bytes: the key 0x9AC6CDD7, a handle, the bounding
// box left, top, right, bottom (signed 16-bit), units to the inch, a reserved word and a checksum.
// The metafile's own bits follow.
#pragma once

#include "framework/ADM_PictureWnd.h"

class ADM_MetafileWnd : public ADM_PictureWnd {
  public:
    static constexpr DWORD kPlaceableKey = 0x9AC6CDD7;
    static constexpr DWORD kPlaceableHeaderSize = 22;

    void Draw(HDC hDC) override;

    // Shows the metafile szName (or MAKEINTRESOURCEA id) with a map mode (MM_ANISOTROPIC fits it to
    // the control). The one shown before is dropped, also when this one can't be had.
    virtual void LoadMetafile(HINSTANCE hInstance, LPCSTR szName, int nMapMode);

    // The factor on the suggested size of the picture; 1 at first.
    void SetScale(int nScale);

    // Plays the picture into a rectangle of device units.
    void PlayInto(HDC hDC, int rcLeft, int rcTop, int rcRight, int rcBottom) const;

    // What the conversion is told of the picture.
    METAFILEPICT GetPicture() const;

  protected:
    HINSTANCE m_hInstance = nullptr;
    int m_nBitmapId = 0;  // unused; keeps the layout of the picture controls alike
    HGLOBAL m_hMetafile = nullptr;
    UINT m_uBitsSize = 0;
    int m_nWidth = 0;
    int m_nHeight = 0;
    int m_nMapMode = 0;
    int m_nScale = 1;
};
