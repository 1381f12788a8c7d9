// A picture or label that takes clicks. The images belong to the caller.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_Static : public ADM_Wnd {
  public:
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;

    // Each setter returns the image shown before, null for none.
    HICON SetIcon(HICON hIcon) const;
    HICON GetIcon() const;
    HBITMAP SetBitmap(HBITMAP hBitmap) const;
    HBITMAP GetBitmap() const;
    HCURSOR SetCursor(HCURSOR hCursor) const;
    HCURSOR GetCursor() const;

  private:
    LRESULT Send(UINT uMsg, WPARAM wParam, LPARAM lParam) const;
};
