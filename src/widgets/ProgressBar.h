// A progress bar with a text in it. Each window of the class kProgressBarClass (see Framework.h)
// owns one object, made and destroyed with it.
//
// The text is a format in which "%0" is the position in percent of the range; at first it shows
// just that. The font belongs to the caller.
#pragma once

#include "platform/platform.h"

namespace CommonCtls {

inline constexpr char kProgressBarClass[] = "ZCC_ProgressBar";

class CProgressBar {
  public:
    explicit CProgressBar(HWND hWnd) : m_hWnd(hWnd) {}
    CProgressBar(const CProgressBar&) = delete;
    CProgressBar& operator=(const CProgressBar&) = delete;
    virtual ~CProgressBar();

    // The object behind a window, or null if that is no progress bar.
    static CProgressBar* FromWindow(HWND hWnd);

    // The position is pulled into the range.
    void SetRange(int nMin, int nMax);
    // Either pointer may be null.
    void GetRange(int* pnMin, int* pnMax) const;
    void SetPos(int nPos);
    int GetPos() const { return m_nPos; }
    // One step on, to the end of the range at most.
    void StepIt();
    void SetStep(int nStep) { m_nStep = nStep; }
    void SetFont(HFONT hFont);
    // The stock system font if none is set.
    HFONT GetFont() const;
    // Cut at 2047 characters; null is empty.
    void SetFormat(LPCSTR szFormat);
    // 0 to 100; a range of no width is at 0.
    int GetPercent() const;

    LRESULT HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam);

  private:
    void MoveTo(long long nPos);
    void PaintWindow();
    void Paint(HDC hDC);
    void DrawLabel(HDC hDC, const RECT& clip, COLORREF crText) const;
    void Redraw() const;

    HWND m_hWnd;
    RECT m_rcBar = {};  // inside of the frame
    HFONT m_hFont = nullptr;
    int m_nMin = 0;
    int m_nMax = 100;
    int m_nPos = 0;
    int m_nStep = 10;
    char m_szFormat[2048] = "%0%%";
};

LRESULT CALLBACK ProgressBarProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);

}  // namespace CommonCtls
