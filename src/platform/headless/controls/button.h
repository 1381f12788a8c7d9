// The class "Button": push buttons, check boxes, radio buttons, group boxes and owner-drawn
// buttons.
#pragma once

#include <string>

#include "platform/headless/controls/control_object.h"

namespace headless {

class Button : public ControlObject<Button> {
  public:
    Button(HWND hwnd, const CREATESTRUCTA& create);

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    // --- Behaviour, in button.cpp
    UINT Type() const;
    bool IsPush() const;
    bool IsRadio() const;
    UINT HighestCheck() const;
    void Press(bool withFocus);
    void Release(bool inside);
    void Click();
    void ClearRadioGroup();
    void SetHighlight(bool on);
    void SetCheck(UINT check);
    void SetFocusState(bool focused);
    void SetButtonStyle(UINT style, bool redraw);
    LRESULT DialogCode() const;
    void Notify(int code) const;
    bool InClient(LPARAM position) const;
    LRESULT ExchangeImage(UINT type, HANDLE image);

    // --- Painting, in button_paint.cpp
    void PaintNow(UINT action = ODA_DRAWENTIRE);
    void Paint(HDC dc, UINT action);
    void PaintPush(HDC dc, const RECT& client);
    void PaintBox(HDC dc, const RECT& client, HBRUSH background);
    void PaintGroup(HDC dc, const RECT& client, HBRUSH background);
    void PaintOwner(HDC dc, const RECT& client, UINT action);
    void PaintLabel(HDC dc, RECT rect);
    HBRUSH AskColor(HDC dc) const;
    std::string Text() const;
    SIZE LabelSize(HDC dc, const RECT& rect) const;
    RECT LabelRect(HDC dc, const RECT& room) const;
    UINT TextFormat() const;

    HFONT m_font = nullptr;
    HANDLE m_image = nullptr;
    UINT m_imageType = IMAGE_BITMAP;
    UINT m_check = BST_UNCHECKED;
    bool m_highlit = false;  // drawn as pressed
    bool m_pressed = false;  // the mouse or the space bar is down on it
    bool m_focused = false;
};

}  // namespace headless
