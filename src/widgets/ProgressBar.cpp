#include "widgets/ProgressBar.h"

#include <algorithm>
#include <charconv>

#include "text/BoundedText.h"
#include "text/TextTests.h"
#include "widgets/TextFormat.h"

namespace CommonCtls {

namespace {

// Parts of the theme class "Progress".
constexpr int kThemeBar = 1;
constexpr int kThemeChunk = 3;
constexpr int kThemeInset = 1;

CProgressBar* ObjectOf(HWND hWnd) {
    return reinterpret_cast<CProgressBar*>(::GetWindowLongPtrA(hWnd, 0));
}

}  // namespace

LRESULT CALLBACK ProgressBarProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    CProgressBar* pBar = ObjectOf(hWnd);
    if (uMsg == WM_NCCREATE && pBar == nullptr) {
        pBar = new CProgressBar(hWnd);
        ::SetWindowLongPtrA(hWnd, 0, reinterpret_cast<LONG_PTR>(pBar));
    }
    if (pBar == nullptr) return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    if (uMsg == WM_NCDESTROY) {
        ::SetWindowLongPtrA(hWnd, 0, 0);
        delete pBar;
        return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    }
    return pBar->HandleMessage(uMsg, wParam, lParam);
}

CProgressBar::~CProgressBar() = default;

CProgressBar* CProgressBar::FromWindow(HWND hWnd) {
    char szClass[32] = "";
    if (hWnd == nullptr || ::GetClassNameA(hWnd, szClass, static_cast<int>(sizeof szClass)) <= 0) {
        return nullptr;
    }
    return EqualNoCase(szClass, kProgressBarClass) ? ObjectOf(hWnd) : nullptr;
}

void CProgressBar::SetRange(int nMin, int nMax) {
    m_nMin = nMin;
    m_nMax = nMax;
    MoveTo(m_nPos);
}

void CProgressBar::GetRange(int* pnMin, int* pnMax) const {
    if (pnMin != nullptr) *pnMin = m_nMin;
    if (pnMax != nullptr) *pnMax = m_nMax;
}

void CProgressBar::SetPos(int nPos) {
    MoveTo(nPos);
}

void CProgressBar::StepIt() {
    MoveTo(static_cast<long long>(m_nPos) + m_nStep);
}

void CProgressBar::MoveTo(long long nPos) {
    nPos = std::max<long long>(nPos, m_nMin);
    m_nPos = static_cast<int>(std::min<long long>(nPos, std::max(m_nMin, m_nMax)));
    Redraw();
}

void CProgressBar::SetFont(HFONT hFont) {
    m_hFont = hFont;
    Redraw();
}

HFONT CProgressBar::GetFont() const {
    return m_hFont != nullptr ? m_hFont : static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
}

void CProgressBar::SetFormat(LPCSTR szFormat) {
    CopyText(m_szFormat, szFormat);
    Redraw();
}

int CProgressBar::GetPercent() const {
    if (m_nMax <= m_nMin) return 0;
    const long long nRange = static_cast<long long>(m_nMax) - m_nMin;
    return static_cast<int>((static_cast<long long>(m_nPos) - m_nMin) * 100 / nRange);
}

void CProgressBar::Redraw() const {
    ::InvalidateRect(m_hWnd, nullptr, FALSE);
}

LRESULT CProgressBar::HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    switch (uMsg) {
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintWindow();
            return 0;
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_SETFONT:
            SetFont(reinterpret_cast<HFONT>(wParam));
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(GetFont());
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
        case WM_ENABLE:
            Redraw();
            return 0;
        default:
            return ::DefWindowProcA(m_hWnd, uMsg, wParam, lParam);
    }
}

void CProgressBar::PaintWindow() {
    PAINTSTRUCT paint;
    if (const HDC hDC = ::BeginPaint(m_hWnd, &paint)) Paint(hDC);
    ::EndPaint(m_hWnd, &paint);
}

void CProgressBar::Paint(HDC hDC) {
    ::GetClientRect(m_hWnd, &m_rcBar);
    RECT done = m_rcBar;
    RECT rest = m_rcBar;
    const HTHEME hTheme = ::OpenThemeData(m_hWnd, L"Progress");
    if (hTheme != nullptr) {
        ::DrawThemeBackground(hTheme, hDC, kThemeBar, 0, &m_rcBar, nullptr);
        ::InflateRect(&m_rcBar, -kThemeInset, -kThemeInset);
    } else {
        ::DrawEdge(hDC, &m_rcBar, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    }
    const long long nWidth = std::max<LONG>(m_rcBar.right - m_rcBar.left, 0);
    done = m_rcBar;
    done.right = m_rcBar.left + static_cast<LONG>(nWidth * GetPercent() / 100);
    rest = m_rcBar;
    rest.left = done.right;
    if (hTheme != nullptr) {
        ::DrawThemeBackground(hTheme, hDC, kThemeChunk, 0, &done, nullptr);
        DrawLabel(hDC, m_rcBar, ::GetSysColor(COLOR_WINDOWTEXT));
        ::CloseThemeData(hTheme);
        return;
    }
    ::FillRect(hDC, &done, ::GetSysColorBrush(COLOR_HIGHLIGHT));
    ::FillRect(hDC, &rest, ::GetSysColorBrush(COLOR_BTNFACE));
    DrawLabel(hDC, done, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    DrawLabel(hDC, rest, ::GetSysColor(COLOR_BTNTEXT));
}

// The label in the middle of the bar, as far as it stands in `clip`.
void CProgressBar::DrawLabel(HDC hDC, const RECT& clip, COLORREF crText) const {
    if (::IsRectEmpty(&clip)) return;
    char szPercent[16];
    *std::to_chars(szPercent, szPercent + sizeof szPercent - 1, GetPercent()).ptr = '\0';
    const char* apszArgs[10];
    std::fill(apszArgs + 1, apszArgs + 10, "");
    apszArgs[0] = szPercent;
    char szLabel[sizeof m_szFormat];
    FormatArgs(nullptr, szLabel, m_szFormat, apszArgs);

    const int nSaved = ::SaveDC(hDC);
    ::IntersectClipRect(hDC, clip.left, clip.top, clip.right, clip.bottom);
    ::SelectObject(hDC, GetFont());
    ::SetBkMode(hDC, TRANSPARENT);
    ::SetTextColor(hDC, crText);
    RECT rc = m_rcBar;
    ::DrawTextA(hDC, szLabel, -1, &rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    ::RestoreDC(hDC, nSaved);
}

}  // namespace CommonCtls
