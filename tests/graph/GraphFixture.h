// A graph in a control of a window, a source whose curves a test writes down, and the pixels of
// what is drawn.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "Functions.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"
#include "zxadlg/Graph.h"

namespace graph_test {

class TestSource final : public GMT_DataSource {
  public:
    struct Item {
        std::string sName;
        uint32_t uKind = GMT_KIND_TOTAL;
        bool bVisible = true;
        std::vector<double> x, y;
        std::function<double(double)> function;
        uint32_t uColor = GMT_COLOR_AUTOMATIC;
    };

    TestSource& Data(std::vector<double> x, std::vector<double> y, std::string sName = "Data") {
        items.push_back({std::move(sName), GMT_KIND_DATA, true, std::move(x), std::move(y), {}});
        return *this;
    }
    TestSource& Curve(uint32_t uKind, std::function<double(double)> function,
                      std::string sName = "Fit") {
        items.push_back({std::move(sName), uKind, true, {}, {}, std::move(function)});
        return *this;
    }

    uint32_t GetCurveCount() override { return static_cast<uint32_t>(items.size()); }
    int32_t GetCurve(uint32_t uCurve, GMT_Curve* pCurve) override {
        const Item& item = items[uCurve];
        std::strncpy(pCurve->szName, item.sName.c_str(), sizeof pCurve->szName);
        pCurve->uKind = item.uKind;
        pCurve->bVisible = item.bVisible;
        return 1;
    }
    int32_t GetPoints(uint32_t uCurve, GMT_Points* pPoints) override {
        ++nPointCalls;
        const Item& item = items[uCurve];
        *pPoints = {item.x.data(), item.y.data(), static_cast<uint32_t>(item.x.size())};
        return bHasPoints;
    }
    int32_t Evaluate(uint32_t uCurve, const double* pX, double* pY, uint32_t uCount) override {
        evaluated.push_back(uCurve);
        asked.assign(pX, pX + uCount);
        for (uint32_t i = 0; i < uCount; ++i) pY[i] = items[uCurve].function(pX[i]);
        return bEvaluates;
    }
    const char* GetUnits(uint32_t uAxis) override { return uAxis == GMT_X ? szXUnits : szYUnits; }
    uint32_t GetColor(uint32_t uCurve) override { return items[uCurve].uColor; }
    int32_t GetRange(uint32_t uAxis, double* pMin, double* pMax) override {
        if (!bHasRange) return 0;
        *pMin = uAxis == GMT_X ? -7 : -70;
        *pMax = uAxis == GMT_X ? 8 : 80;
        return 1;
    }
    const char* GetEmptyText() override { return szEmpty; }
    void OnScaleChanged(uint32_t uAxis, double dMin, double dMax) override {
        scales.push_back({static_cast<double>(uAxis), dMin, dMax});
    }
    void OnPointer(double dX, double dY) override { pointer = {dX, dY}; }

    std::vector<Item> items;
    int32_t bHasPoints = 1, bEvaluates = 1;
    bool bHasRange = false;
    const char *szXUnits = "", *szYUnits = "", *szEmpty = "No data";
    int nPointCalls = 0;
    std::vector<uint32_t> evaluated;
    std::vector<double> asked;
    std::vector<std::vector<double>> scales;
    std::vector<double> pointer;
};

// The pixels of a control, as it draws itself when it is asked for a picture.
class Picture {
  public:
    explicit Picture(HWND hWnd) {
        RECT rc;
        GetClientRect(hWnd, &rc);
        m_nWidth = static_cast<int>(rc.right);
        m_nHeight = static_cast<int>(rc.bottom);
        BITMAPINFO info = {};
        info.bmiHeader = {
            sizeof info.bmiHeader, m_nWidth, -m_nHeight, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* pBits = nullptr;
        const HDC dc = CreateCompatibleDC(nullptr);
        const HBITMAP hBitmap = CreateDIBSection(dc, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
        const HGDIOBJ hOld = SelectObject(dc, hBitmap);
        SendMessageA(hWnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc), PRF_CLIENT);
        SelectObject(dc, hOld);
        const auto* pPixels = static_cast<const RGBQUAD*>(pBits);
        for (int i = 0; i < m_nWidth * m_nHeight; ++i)
            m_pixels.push_back(RGB(pPixels[i].rgbRed, pPixels[i].rgbGreen, pPixels[i].rgbBlue));
        DeleteObject(hBitmap);
        DeleteDC(dc);
    }
    COLORREF At(int x, int y) const {
        return m_pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_nWidth) +
                        static_cast<std::size_t>(x)];
    }
    int Width() const { return m_nWidth; }
    int Height() const { return m_nHeight; }
    // How many pixels of a rectangle have a colour.
    int Count(const RECT& rc, COLORREF cr) const {
        int nCount = 0;
        for (LONG y = rc.top; y < rc.bottom; ++y)
            for (LONG x = rc.left; x < rc.right; ++x)
                nCount += At(static_cast<int>(x), static_cast<int>(y)) == cr;
        return nCount;
    }
    // The pixels of a colour in one column.
    std::vector<int> Rows(int x, COLORREF cr) const {
        std::vector<int> rows;
        for (int y = 0; y < m_nHeight; ++y)
            if (At(x, y) == cr) rows.push_back(y);
        return rows;
    }
    bool operator==(const Picture& other) const { return m_pixels == other.m_pixels; }

  private:
    int m_nWidth = 0, m_nHeight = 0;
    std::vector<COLORREF> m_pixels;
};

// The colours of curves on a white window.
constexpr COLORREF kDataColor = RGB(0x50, 0x50, 0x50);
constexpr COLORREF kTotalColor = RGB(0xC0, 0, 0);
constexpr COLORREF kFirstTermColor = RGB(0, 0x50, 0xB0);

class GraphTest : public testing::Test {
  protected:
    GraphTest() : GraphTest(500, 300) {}
    GraphTest(int nWidth, int nHeight) {
        owner = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, nWidth, nHeight,
                                nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
        control = CreateWindowExA(0, "STATIC", "", WS_CHILD | WS_VISIBLE, 0, 0, nWidth, nHeight,
                                  owner, nullptr, GetModuleHandleA(nullptr), nullptr);
        pGraph = graph::Create(control);
    }
    ~GraphTest() override {
        graph::Destroy(pGraph);
        DestroyWindow(owner);
    }

    void Attach() { graph::SetSource(pGraph, &source); }
    void ScaleAll() {
        graph::AutoScale(pGraph, GMT_X);
        graph::AutoScale(pGraph, GMT_Y);
    }
    std::vector<double> Scale(uint32_t uAxis) const {
        double dMin = 0, dMax = 0;
        graph::GetScale(pGraph, uAxis, &dMin, &dMax);
        return {dMin, dMax};
    }
    // The corners of the plot, found by asking for values; the middle of the control is in it.
    RECT Plot() const {
        RECT rc;
        GetClientRect(control, &rc);
        const auto isInside = [this](LONG x, LONG y) {
            double dX, dY;
            return graph::ValueAt(pGraph, x, y, &dX, &dY) != 0;
        };
        const LONG nX = rc.right / 2, nY = rc.bottom / 2;
        RECT plot = {nX, nY, nX, nY};
        while (isInside(plot.left - 1, nY)) --plot.left;
        while (isInside(plot.right, nY)) ++plot.right;
        while (isInside(nX, plot.top - 1)) --plot.top;
        while (isInside(nX, plot.bottom)) ++plot.bottom;
        return plot;
    }
    void Mouse(UINT uMsg, int x, int y) {
        SendMessageA(control, uMsg, uMsg == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(x, y));
    }
    void Drag(int x1, int y1, int x2, int y2) {
        Mouse(WM_LBUTTONDOWN, x1, y1);
        Mouse(WM_MOUSEMOVE, x2, y2);
        Mouse(WM_LBUTTONUP, x2, y2);
    }

    TestSource source;
    HWND owner, control;
    GMT_Graph* pGraph;
};

// Values 0, 1, ... `nCount` - 1, times a step.
inline std::vector<double> Steps(int nCount, double dStep = 1.0) {
    std::vector<double> values(static_cast<std::size_t>(nCount));
    for (int i = 0; i < nCount; ++i) values[static_cast<std::size_t>(i)] = i * dStep;
    return values;
}

}  // namespace graph_test
