// The graph window: one step of a seed over a million points, two terms and their total, curves
// computed and drawn, beside a plain polyline of two points a column; and the first picture of a
// million points against that of ten thousand.

#include <cmath>
#include <memory>
#include <vector>

#include "Functions.h"
#include "PairedTiming.h"
#include "fixtures/system.h"
#include "platform/platform.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

constexpr int kWidth = 640, kHeight = 400, kRounds = 41;
constexpr double kStepTarget = 16.0;  // ms

// Data, two terms and their total; a curve costs its formula and nothing else.
class Source final : public GMT_DataSource {
  public:
    explicit Source(uint32_t uPoints) : m_x(uPoints), m_y(uPoints) {
        for (uint32_t i = 0; i < uPoints; ++i) {
            m_x[i] = 100.0 * i / uPoints;
            m_y[i] = Term(0, m_x[i]) + Term(1, m_x[i]) + 0.3 * std::sin(7919.0 * i);
        }
    }
    uint32_t GetCurveCount() override { return 4; }
    int32_t GetCurve(uint32_t uCurve, GMT_Curve* pCurve) override {
        constexpr uint32_t kKinds[] = {GMT_KIND_DATA, GMT_KIND_TOTAL, 0, 1};
        pCurve->szName[0] = static_cast<char>('A' + uCurve);
        pCurve->uKind = kKinds[uCurve];
        pCurve->bVisible = 1;
        return 1;
    }
    int32_t GetPoints(uint32_t, GMT_Points* pPoints) override {
        *pPoints = {m_x.data(), m_y.data(), static_cast<uint32_t>(m_x.size())};
        return 1;
    }
    int32_t Evaluate(uint32_t uCurve, const double* pX, double* pY, uint32_t uCount) override {
        for (uint32_t i = 0; i < uCount; ++i)
            pY[i] = uCurve == 1 ? Term(0, pX[i]) + Term(1, pX[i]) : Term(uCurve - 2, pX[i]);
        return 1;
    }
    double dSeed = 20.0;

  private:
    double Term(uint32_t uTerm, double dX) const {
        return (uTerm + 1) * dSeed * std::exp(-dX / (10.0 + 20.0 * uTerm));
    }
    std::vector<double> m_x, m_y;
};

class Control {
  public:
    Control()
        : m_hWnd(CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, kWidth, kHeight,
                                 nullptr, nullptr, GetModuleHandleA(nullptr), nullptr)) {}
    ~Control() { DestroyWindow(m_hWnd); }
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    operator HWND() const { return m_hWnd; }

  private:
    HWND m_hWnd;
};

class OpenGraph {
  public:
    explicit OpenGraph(Source& source) : m_source(source), m_pGraph(graph::Create(m_control)) {
        graph::SetSource(m_pGraph, &source);
        graph::SetFlag(m_pGraph, GMT_FLAG_AXES | GMT_FLAG_LEGEND | GMT_FLAG_ZERO_LINE, 1);
        graph::AutoScale(m_pGraph, GMT_X);
        graph::AutoScale(m_pGraph, GMT_Y);
        graph::Redraw(m_pGraph);
        WaitForScreen();
    }
    ~OpenGraph() { graph::Destroy(m_pGraph); }
    OpenGraph(const OpenGraph&) = delete;
    OpenGraph& operator=(const OpenGraph&) = delete;

    void Step() {
        m_source.dSeed *= 1.01;
        for (const uint32_t uCurve : {1u, 2u}) graph::CurveChanged(m_pGraph, uCurve);
        graph::Redraw(m_pGraph);
        WaitForScreen();
    }

  private:
    // A pixel that is read back has been drawn.
    void WaitForScreen() const {
        const HDC dc = GetDC(m_control);
        GetPixel(dc, 1, 1);
        ReleaseDC(m_control, dc);
    }
    Source& m_source;
    Control m_control;
    GMT_Graph* m_pGraph;
};

// Two points a column into a bitmap, and that to the window.
class PlainLine {
  public:
    PlainLine() {
        for (int x = 0; x < kWidth; ++x)
            for (const int nSide : {0, 1})
                m_points.push_back({x, nSide == 0 ? 20 + x % 50 : kHeight - 20 - x % 70});
    }
    void Draw() const {
        const HDC screen = GetDC(m_control), dc = CreateCompatibleDC(screen);
        const HBITMAP hBitmap = CreateCompatibleBitmap(screen, kWidth, kHeight);
        const HGDIOBJ hOld = SelectObject(dc, hBitmap);
        const RECT all = {0, 0, kWidth, kHeight};
        FillRect(dc, &all, GetSysColorBrush(COLOR_WINDOW));
        Polyline(dc, m_points.data(), static_cast<int>(m_points.size()));
        BitBlt(screen, 0, 0, kWidth, kHeight, dc, 0, 0, SRCCOPY);
        GetPixel(screen, 1, 1);
        SelectObject(dc, hOld);
        DeleteObject(hBitmap);
        DeleteDC(dc);
        ReleaseDC(m_control, screen);
    }

  private:
    Control m_control;
    std::vector<POINT> m_points;
};

bool Measure() {
    Source million(1000000), tenThousand(10000);
    OpenGraph open(million);
    const PlainLine line;
    const PairedTiming step = TimeInTurn(
        kRounds, [&] { open.Step(); }, [&] { line.Draw(); });
    bool bGood = PrintTiming("a step of a seed against a plain polyline", step, 1.3);
    const bool bFast = step.dOurs <= kStepTarget;
    std::printf("%-52s %6.2f %6.2f  %s  (ms)\n", "a step of a seed, 1,000,000 points", step.dOurs,
                kStepTarget, bFast ? "ok" : "MISSED");
    bGood = bGood && bFast;
    // A hundred times the points may take a hundred times as long.
    bGood = PrintTiming("a first picture of 1,000,000 against 100 of 10,000",
                        TimeInTurn(
                            11, [&] { OpenGraph first(million); },
                            [&] {
                                for (int i = 0; i < 100; ++i) OpenGraph first(tenThousand);
                            }),
                        1.0) &&
            bGood;
    return bGood;
}

}  // namespace

int main() {
    // On Windows a desktop of its own, whose screen no other program paints on.
    test_support::StartSystem();
    const bool bGood = Measure();
    test_support::StopSystem();
    return bGood ? 0 : 1;
}
