// A bitmap of the resources, centred in its control with an edge around it. The bitmap is loaded at
// each paint; one that is missing leaves the control empty. Where there is a larger form of it,
// that one is shown once the control has room for it.
#pragma once

#include "framework/ADM_PictureWnd.h"

class ADM_BitmapPictureWnd : public ADM_PictureWnd {
  public:
    void Draw(HDC hDC) override;

    // Drawn over the picture; pRect is the area that it took. The base draws an edge.
    virtual void DrawOverlay(HDC hDC, const RECT* pRect);

    // The picture shown from now on; an id of 0 shows none, or has no larger form.
    void SetBitmap(HINSTANCE hInstance, int nId, int nLargerId = 0);
    int GetBitmapId() const { return m_nBitmapId; }

  protected:
    HINSTANCE m_hInstance = nullptr;
    int m_nBitmapId = 0;
    int m_nLargerId = 0;

  private:
    HBITMAP LoadFitting(BITMAP* pBitmap) const;
};
