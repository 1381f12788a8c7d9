// A button with a drop arrow that opens a fixed menu of texts and remembers the last one that was
// picked. It opens by a press of the mouse, Space, the down arrow and the mnemonic of its caption,
// and tells its dialog of each pick by kPicked. A menu that is closed without a choice tells
// nothing.
//
// A template holds a plain item (a static) in its place, whose caption it takes. A subclass fills
// the menu in BuildMenu; the menu is made with the window and goes with the object.
#pragma once

#include "framework/ADM_PictureWnd.h"

class ADM_NoListCombo : public ADM_PictureWnd {
  public:
    // What the dialog is told of a pick.
    static constexpr int kPicked = 20201;

    explicit ADM_NoListCombo(int nFirstPick = 0) : m_nPick(nFirstPick) {}
    ~ADM_NoListCombo() override;

    BOOL RegisterClass(HINSTANCE hInstance) override;
    void UnregisterClass(HINSTANCE hInstance) override;
    LPCSTR GetClassName() const override;
    BOOL OnCreate() override;
    void Draw(HDC hDC) override;
    LRESULT DefaultProc(UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    // Appends the items to m_hMenu. The base shows a demonstration.
    virtual void BuildMenu();

    // The number of the last pick.
    int GetPick() const { return m_nPick; }

  protected:
    // An item that stands for a pick. A menu tells a choice from none by the number 0, which is a
    // pick as well.
    void AppendPick(int nPick, LPCSTR szText);

    HMENU m_hMenu = nullptr;
    BOOL m_bPressed = FALSE;  // the menu is open
    int m_nPick;

  private:
    void Open();
    void DestroyOwnMenu();
    void DrawFace(HDC hDC, bool bEnabled) const;
    void DrawArrow(HDC hDC, bool bEnabled) const;
};
