// The class "Static": texts, pictures, rectangles, frames and etched lines.
#pragma once

#include <string>

#include "platform/headless/controls/control_object.h"

namespace headless {

class Static : public ControlObject<Static> {
  public:
    Static(HWND hwnd, const CREATESTRUCTA& create);

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    UINT Type() const;
    bool HasText() const;
    bool IsOneLine() const;
    LRESULT Create(const CREATESTRUCTA& create);
    void LoadPicture(const CREATESTRUCTA& create);
    HANDLE SetPicture(UINT type, HANDLE picture);
    void FitPicture();
    SIZE PictureSize() const;
    void Notify(int code) const;

    void PaintNow();
    void Paint(HDC dc);
    void PaintText(HDC dc, const RECT& client);
    void PaintPicture(HDC dc, const RECT& client, HBRUSH background);
    void PaintShape(HDC dc, const RECT& client);
    void PaintOwner(HDC dc, const RECT& client);
    HBRUSH AskColor(HDC dc) const;
    std::string Text() const;
    // The type of picture that the style shows: IMAGE_BITMAP, IMAGE_ICON, or -1.
    int PictureType() const;

    HFONT m_font = nullptr;
    HANDLE m_picture = nullptr;
    bool m_ownPicture = false;  // loaded by the control itself, from the name in its template
};

}  // namespace headless
