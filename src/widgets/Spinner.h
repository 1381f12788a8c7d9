// A spinner: two small arrow buttons in one window, with auto-repeat. It holds no value; it tells
// its parent by WM_COMMAND which arrow fires, and the parent decides what that means.
//
// Each window of the classes kVerticalSpinnerClass and kHorizontalSpinnerClass (see Framework.h)
// owns one object, made and destroyed with it. The first arrow raises a value: it is the upper one,
// or the right one. Times are in ms. The functions below do nothing and return 0 for a window that
// is no spinner.
#pragma once

#include "platform/platform.h"

namespace CommonCtls {

inline constexpr char kVerticalSpinnerClass[] = "ZDC_SpinnerVert";
inline constexpr char kHorizontalSpinnerClass[] = "ZDC_SpinnerHorz";

enum SpinnerArrow : int {
    kArrowNone = 0,
    kArrowFirst = 1,
    kArrowSecond = 2,
};

// The codes of the WM_COMMAND messages; the large ones come with Shift held.
enum SpinnerCode : int {
    kSpinnerFirst = 1,
    kSpinnerSecond = 2,
    kSpinnerFirstLarge = 11,
    kSpinnerSecondLarge = 12,
};

// Sets the period of auto-repeat and returns the old one. A held arrow fires at once, then every
// ten periods for two seconds, then every period.
UINT SpinnerSetRepeat(HWND hWnd, UINT uMs);
UINT SpinnerGetRepeat(HWND hWnd);
// Gives the window its natural size.
void SpinnerFit(HWND hWnd);
// Shows an arrow as pressed, until the release.
void SpinnerPress(HWND hWnd, int nArrow);
void SpinnerRelease(HWND hWnd);
// Joins the window to the right side of an edit; null lets it go.
void SpinnerSetBuddy(HWND hWnd, HWND hEdit);

class CSpinnerBase {
  public:
    explicit CSpinnerBase(HWND hWnd) : m_hWnd(hWnd) {}
    CSpinnerBase(const CSpinnerBase&) = delete;
    CSpinnerBase& operator=(const CSpinnerBase&) = delete;
    virtual ~CSpinnerBase();

    virtual void OnCreate();
    virtual void FitSize() = 0;
    virtual void SetBuddy(HWND hEdit);
    // Draws both arrows in their states.
    virtual void OnDraw(HDC hDC);
    // Draws the ground and then the arrows.
    virtual void Paint(HDC hDC);
    virtual void SetSize(int nWidth, int nHeight);
    virtual void GetArrowRect(int nArrow, RECT* pRect) = 0;

    // One message of the window; the object may be gone afterwards.
    LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam);

    UINT SetRepeat(UINT uMs);
    UINT GetRepeat() const { return m_uRepeatMs; }
    void Press(int nArrow);

  protected:
    // What an arrow looks like: the part of the theme class "Spin" and the classic scroll arrow.
    struct ArrowLook {
        int nThemePart;
        UINT uClassic;
    };
    virtual ArrowLook LookOf(int nArrow) const = 0;

    HWND m_hWnd;
    int m_nWidth = 0;
    int m_nHeight = 0;
    DWORD m_dwNextFire = 0;    // the wait for the next repeat counts from here
    DWORD m_dwFirstPress = 0;  // when the button went down; 0 = not pressed
    BOOL m_bInRect = 0;        // the mouse is inside the pressed arrow
    BOOL m_bPressPending = 0;  // the next mouse move begins a press
    RECT m_rcArrow = {};       // the pressed arrow
    UINT m_uRepeatMs = 0;
    int m_nHot = kArrowNone;           // under the mouse
    int m_nPressedArrow = kArrowNone;  // held
    int m_nShownArrow = kArrowNone;    // drawn as pressed
    HBRUSH m_hBuddyBrush = nullptr;    // owned

  private:
    void OnPress(POINT point);
    void OnMove(POINT point);
    void OnHover(POINT point);
    void EndPress();
    bool ShouldFire();
    void Fire();
    int ArrowAt(POINT point);
    void Show(int nArrow);
    void Redraw() const;
    void PaintWindow();
    int ThemeState(int nArrow) const;
    UINT ClassicState(int nArrow) const;

    POINT m_ptMouse = {};  // where the mouse was last seen, for the ticks between its messages
};

class CSpinnerVertical : public CSpinnerBase {
  public:
    using CSpinnerBase::CSpinnerBase;
    void FitSize() override;
    void GetArrowRect(int nArrow, RECT* pRect) override;

  protected:
    ArrowLook LookOf(int nArrow) const override;
};

class CSpinnerHorizontal : public CSpinnerBase {
  public:
    using CSpinnerBase::CSpinnerBase;
    void FitSize() override;
    void GetArrowRect(int nArrow, RECT* pRect) override;

  protected:
    ArrowLook LookOf(int nArrow) const override;
};

// The procedures of the two window classes.
LRESULT CALLBACK VerticalSpinnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
LRESULT CALLBACK HorizontalSpinnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);

}  // namespace CommonCtls
