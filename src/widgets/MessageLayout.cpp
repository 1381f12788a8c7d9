// The font of a message and the places of its parts, measured before its window exists.

#include <algorithm>
#include <string_view>

#include "text/BoundedText.h"
#include "text/NumberParse.h"
#include "widgets/MessageDialog.h"

namespace CommonCtls {
namespace {

constexpr double kPoints = 9.0;
constexpr char kFace[] = "MS Sans Serif";

// "face,points" or "points": what the variable says of the font replaces the library's own choice.
void ReadFontDefinition(char (&szFace)[LF_FACESIZE], double& dPoints) {
    char szDefinition[256];
    const DWORD nLength =
        GetEnvironmentVariableA("ZCC_Font_Definition", szDefinition, sizeof szDefinition);
    if (nLength == 0 || nLength >= sizeof szDefinition) return;
    std::string_view sRest(szDefinition, nLength);
    if (!(sRest.front() >= '0' && sRest.front() <= '9')) {
        const std::size_t nComma = sRest.find(',');
        if (nComma != 0) CopyText(szFace, sRest.substr(0, nComma));
        if (nComma == std::string_view::npos) return;
        sRest.remove_prefix(nComma + 1);
    }
    const double dWanted = TextToDouble(sRest.data());
    if (dWanted > 0.0 && dWanted <= 1000.0) dPoints = dWanted;
}

// A device context for measuring in one font; gives both back at its end.
class MeasureScope {
  public:
    explicit MeasureScope(HFONT hFont) : m_hDC(GetDC(nullptr)) {
        if (m_hDC != nullptr) m_hOld = SelectObject(m_hDC, hFont);
    }
    ~MeasureScope() {
        if (m_hDC == nullptr) return;
        SelectObject(m_hDC, m_hOld);
        ReleaseDC(nullptr, m_hDC);
    }
    MeasureScope(const MeasureScope&) = delete;
    MeasureScope& operator=(const MeasureScope&) = delete;

    HDC Get() const { return m_hDC; }

    SIZE Text(std::string_view sText, int nWidth, UINT uFormat) const {
        RECT rc = {0, 0, nWidth, 0};
        DrawTextA(m_hDC, sText.data(), static_cast<int>(sText.size()), &rc, DT_CALCRECT | uFormat);
        return {rc.right - rc.left, rc.bottom - rc.top};
    }

  private:
    HDC m_hDC;
    HGDIOBJ m_hOld = nullptr;
};

constexpr UINT kParagraphs = DT_LEFT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS;

}  // namespace

bool CZDMsgDialog::MakeFont() {
    char szFace[LF_FACESIZE];
    CopyText(szFace, kFace);
    double dPoints = kPoints;
    ReadFontDefinition(szFace, dPoints);

    HDC hDC = GetDC(nullptr);
    const int nDpi = hDC != nullptr ? GetDeviceCaps(hDC, LOGPIXELSY) : 96;
    if (hDC != nullptr) ReleaseDC(nullptr, hDC);
    LOGFONTA font = {};
    font.lfHeight = -static_cast<LONG>(dPoints * nDpi / 72.0 + 0.5);
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    CopyText(font.lfFaceName, szFace);
    m_hFont = CreateFontIndirectA(&font);
    if (m_hFont == nullptr) {
        m_bStockFont = true;
        m_hFont = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    }
    return m_hFont != nullptr;
}

bool CZDMsgDialog::ComputeLayout(HWND hOwner) {
    const MeasureScope measure(m_hFont);
    TEXTMETRICA metrics;
    if (measure.Get() == nullptr || !GetTextMetricsA(measure.Get(), &metrics)) return false;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    const HMONITOR hMonitor = hOwner != nullptr
                                  ? MonitorFromWindow(hOwner, MONITOR_DEFAULTTONEAREST)
                                  : MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY);
    if (!GetMonitorInfoA(hMonitor, &monitor)) return false;

    // Distances are dialog units of the message's own font.
    const auto horizontal = [&](int nUnits) { return MulDiv(nUnits, metrics.tmAveCharWidth, 4); };
    const auto vertical = [&](int nUnits) { return MulDiv(nUnits, metrics.tmHeight, 8); };
    const int nMarginX = horizontal(7);
    const int nMarginY = vertical(7);
    const int nScreenWidth = monitor.rcWork.right - monitor.rcWork.left;
    const int nScreenHeight = monitor.rcWork.bottom - monitor.rcWork.top;

    m_layout.nButtonHeight = vertical(14);
    m_nButtonWidth = horizontal(50);
    for (UINT i = 0; i < m_nButtonCount; ++i) {
        const SIZE label = measure.Text(m_aButtons[i].szLabel, 0, DT_SINGLELINE);
        m_nButtonWidth = std::max<int>(m_nButtonWidth, label.cx + 8);
    }
    const int nGap = 4 * m_layout.nButtonHeight / 14;
    const int nButtons = static_cast<int>(m_nButtonCount);
    const int nButtonsWidth = nButtons * m_nButtonWidth + (nButtons - 1) * nGap;

    const int nIconWidth = GetSystemMetrics(SM_CXICON);
    const int nIconHeight = GetSystemMetrics(SM_CYICON);
    m_layout.rcIcon = {nMarginX, nMarginY, nMarginX + nIconWidth, nMarginY + nIconHeight};
    const int nTextLeft = m_layout.rcIcon.right + nMarginX;

    // A comfortable line first; the widest that the screen allows before the text has to scroll.
    std::string_view sText(m_szMessage);
    std::string_view sHeading;
    if (m_bFatal) {
        const std::size_t nEnd = sText.find("\r\n\r\n");
        sHeading = sText.substr(0, nEnd);
        sText.remove_prefix(nEnd + 4);
    }
    const int nComfortable = std::min(horizontal(260), nScreenWidth / 2);
    const int nWidest = nScreenWidth * 4 / 5 - nTextLeft - nMarginX;
    const int nTallest = nScreenHeight * 4 / 5 - m_layout.nButtonHeight - 4 * nMarginY;
    int nLine = nComfortable;
    SIZE text = measure.Text(sText, nLine, kParagraphs);
    if (text.cy > nTallest) {
        nLine = nWidest;
        text = measure.Text(sText, nLine, kParagraphs);
    }
    // A single word may be wider than the line; a label cannot show it past the screen's edge.
    m_layout.bScroll = text.cy > nTallest || text.cx > nWidest;
    if (m_layout.bScroll) {
        text.cx = nComfortable + 2 * GetSystemMetrics(SM_CXVSCROLL);
        text.cy = std::min(nTallest, static_cast<int>(metrics.tmHeight) * 20);
    }

    int nTop = nMarginY;
    int nContentWidth = text.cx;
    if (!sHeading.empty()) {
        const SIZE heading = measure.Text(sHeading, nLine, kParagraphs);
        const int nHeadingTop = nTop + std::max<int>(0, (nIconHeight - heading.cy) / 2);
        m_layout.rcHeading = {nTextLeft, nHeadingTop, nTextLeft + heading.cx,
                              nHeadingTop + heading.cy};
        nContentWidth = std::max<int>(nContentWidth, heading.cx);
        nTop = std::max(m_layout.rcIcon.bottom, m_layout.rcHeading.bottom) + nMarginY;
    } else if (text.cy < nIconHeight) {
        nTop += (nIconHeight - text.cy) / 2;
    }
    m_layout.rcText = {nTextLeft, nTop, nTextLeft + text.cx, nTop + text.cy};

    const int nBottom = std::max(m_layout.rcIcon.bottom, m_layout.rcText.bottom);
    m_layout.nButtonTop = nBottom + 2 * nMarginY;
    m_layout.client.cx =
        std::max(nTextLeft + nContentWidth + nMarginX, nButtonsWidth + 2 * nMarginX);
    m_layout.client.cy = m_layout.nButtonTop + m_layout.nButtonHeight + nMarginY;
    m_layout.nButtonLeft = m_layout.client.cx - nMarginX - nButtonsWidth;
    return true;
}

}  // namespace CommonCtls
