// A control that paints itself, on a window class of its own. A template holds a plain item (a
// static) in its place; at the first attachment that item is replaced by a window of the class with
// the same text, rectangle, id, styles and font, in the same place of the tab order. Where that
// fails the item stays.
//
// The base fills its area with the dialog's colour for labels; a subclass draws over it in Draw.
// The object does not own the font. The window may outlive the object, and then is an empty one.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_PictureWnd : public ADM_Wnd {
  public:
    ADM_PictureWnd() = default;
    ~ADM_PictureWnd() override;

    void OnAttach() override;

    // Registers the window class for this process, and the reverse; uses are counted.
    virtual BOOL RegisterClass(HINSTANCE hInstance);
    virtual void UnregisterClass(HINSTANCE hInstance);
    virtual LPCSTR GetClassName() const;
    // Creates the window with nX, nY, nWidth, nHeight in the parent's client pixels. Returns
    // whether it exists.
    virtual BOOL Create(HINSTANCE hInstance, LPCSTR szText, DWORD dwStyle, DWORD dwExStyle, int nX,
                        int nY, int nWidth, int nHeight, HWND hParent, int nId);
    virtual BOOL OnNcCreate(HWND hWnd);
    virtual BOOL OnCreate();
    virtual void OnSize();
    virtual LRESULT OnSetText();
    virtual void SetFont(HFONT hFont, BOOL bRedraw);
    virtual HFONT GetFont();
    virtual void OnPaint();
    virtual void Draw(HDC hDC);
    virtual void OnNcDestroy();
    virtual LRESULT DefaultProc(UINT uMsg, WPARAM wParam, LPARAM lParam);
    virtual void ReplaceTemplateItem(HWND hParent);

  protected:
    // The window that the message being handled is for: also one that is being created, or that the
    // object isn't bound to any more.
    HWND GetOwnWindow() const;
    // What RegisterClass and UnregisterClass do for a class of this name, whose uses nUses counts.
    static BOOL AddClassUse(HINSTANCE hInstance, LPCSTR szName, int& nUses);
    static void DropClassUse(HINSTANCE hInstance, LPCSTR szName, int& nUses);
    // Leaves the window without an object. The destructor of a subclass with a class of its own
    // calls it: in the base's the virtual operations are gone.
    void LeaveWindow();

    RECT m_rcClient = {};
    HFONT m_hFont = nullptr;
    BOOL m_bAttached = FALSE;
    HWND m_hWndCreating = nullptr;

  private:
    static LRESULT CALLBACK WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    LRESULT Dispatch(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT uMsg, WPARAM wParam, LPARAM lParam);

    // The message being handled, for the operations that pass it on.
    struct Message {
        HWND hWnd = nullptr;
        WPARAM wParam = 0;
        LPARAM lParam = 0;
    };
    Message m_message;
};
