// A bitmap of the resources, centred in its control with an edge around it. The bitmap is loaded at
// each paint; one that is missing leaves the control empty.
#pragma once

#include "framework/ADM_PictureWnd.h"

class ADM_BitmapPictureWnd : public ADM_PictureWnd {
  public:
    void Draw(HDC hDC) override;

    // Drawn over the picture; pRect is the area that it took. The base draws an edge.
    virtual void DrawOverlay(HDC hDC, const RECT* pRect);

    // The picture shown from now on; an id of 0 shows none.
    void SetBitmap(HINSTANCE hInstance, int nId);

  protected:
    HINSTANCE m_hInstance = nullptr;
    int m_nBitmapId = 0;
};
