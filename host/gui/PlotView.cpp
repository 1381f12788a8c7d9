#include "PlotView.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "System.h"

namespace zxhost {
namespace {

constexpr char kClassName[] = "ZxHostPlot";
constexpr int kLeft = 62;  // margins in pixels
constexpr int kRight = 14;
constexpr int kTop = 20;
constexpr int kBottom = 34;
constexpr int kGap = 16;
constexpr int kGrab = 6;  // pixels beside a cursor that still take it

constexpr COLORREF kGrid = RGB(228, 231, 236);
constexpr COLORREF kFrame = RGB(160, 166, 176);
constexpr COLORREF kText = RGB(70, 76, 86);
constexpr COLORREF kCursorColors[] = {RGB(200, 60, 40), RGB(20, 130, 90)};

// From the first set to the last, dark blue to light orange.
COLORREF SetColor(std::size_t index, std::size_t count) {
    const double at = count < 2 ? 0.0 : static_cast<double>(index) / static_cast<double>(count - 1);
    const auto mix = [at](int from, int to) { return static_cast<int>(from + (to - from) * at); };
    return RGB(mix(30, 235), mix(70, 130), mix(150, 40));
}

struct Extent {
    double low = 0.0;
    double high = 1.0;
};

Extent ExtentOf(const Group& group) {
    Extent extent;
    bool any = false;
    for (const Set& set : group.sets) {
        for (double value : set.values) {
            extent.low = any ? std::min(extent.low, value) : value;
            extent.high = any ? std::max(extent.high, value) : value;
            any = true;
        }
    }
    const double span = extent.high - extent.low;
    const double air = span > 0.0 ? span * 0.05 : 1.0;
    return {extent.low - air, extent.high + air};
}

// The distance of grid lines that gives about this many of them: 1, 2 or 5 times a power of ten.
double GridStep(double span, int lines) {
    const double raw = span / lines;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (double factor : {1.0, 2.0, 5.0}) {
        if (raw <= factor * power) return factor * power;
    }
    return 10.0 * power;
}

std::string Label(double value, double step) {
    char text[48];
    if (std::fabs(value) < step * 1e-6) value = 0.0;
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

class Plot {
  public:
    Plot(HWND hwnd, Recording* recording) : hwnd_(hwnd), recording_(recording) {}
    ~Plot() { DropPicture(); }

    void DropPicture() {
        if (picture_) DeleteObject(picture_);
        picture_ = nullptr;
    }

    void Paint() {
        PAINTSTRUCT paint;
        HDC dc = BeginPaint(hwnd_, &paint);
        RECT client;
        GetClientRect(hwnd_, &client);
        HDC memory = CreateCompatibleDC(dc);
        if (!picture_) {
            picture_ =
                CreateCompatibleBitmap(dc, std::max(1L, client.right), std::max(1L, client.bottom));
            HGDIOBJ old = SelectObject(memory, picture_);
            DrawPicture(memory, client);
            SelectObject(memory, old);
        }
        HBITMAP both =
            CreateCompatibleBitmap(dc, std::max(1L, client.right), std::max(1L, client.bottom));
        HDC screen = CreateCompatibleDC(dc);
        HGDIOBJ oldPicture = SelectObject(memory, picture_);
        HGDIOBJ oldBoth = SelectObject(screen, both);
        BitBlt(screen, 0, 0, client.right, client.bottom, memory, 0, 0, SRCCOPY);
        DrawCursors(screen, client);
        BitBlt(dc, 0, 0, client.right, client.bottom, screen, 0, 0, SRCCOPY);
        SelectObject(screen, oldBoth);
        SelectObject(memory, oldPicture);
        DeleteDC(screen);
        DeleteDC(memory);
        DeleteObject(both);
        EndPaint(hwnd_, &paint);
    }

    void Press(int x) {
        dragged_ = CursorAt(x);
        if (dragged_ > 0) SetCapture(hwnd_);
    }
    void Move(int x) {
        if (dragged_ == 0) {
            SetCursor(LoadCursorA(nullptr, CursorAt(x) > 0 ? IDC_SIZEWE : IDC_ARROW));
            return;
        }
        SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
        recording_->cursors[static_cast<std::size_t>(dragged_ - 1)] = PointAt(x);
        InvalidateRect(hwnd_, nullptr, FALSE);
        SendMessageA(GetParent(hwnd_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd_), dragged_),
                     reinterpret_cast<LPARAM>(hwnd_));
    }
    void Release() {
        if (dragged_ > 0) ReleaseCapture();
        dragged_ = 0;
    }

  private:
    int LastPoint() const { return std::max(1, static_cast<int>(recording_->PointCount()) - 1); }
    int PlotWidth() const {
        RECT client;
        GetClientRect(hwnd_, &client);
        return std::max(1, static_cast<int>(client.right) - kLeft - kRight);
    }
    int PixelOf(double point) const {
        return kLeft + static_cast<int>(point / LastPoint() * PlotWidth() + 0.5);
    }
    int PointAt(int x) const {
        const double at = static_cast<double>(x - kLeft) / PlotWidth() * LastPoint();
        return static_cast<int>(std::clamp(at + 0.5, 0.0, static_cast<double>(LastPoint())));
    }
    // The cursor under this pixel, from 1; the last drawn one first. 0 for none.
    int CursorAt(int x) const {
        if (recording_->PointCount() == 0) return 0;
        for (int i = kCursors; i >= 1; --i) {
            const int at = PixelOf(recording_->cursors[static_cast<std::size_t>(i - 1)]);
            if (std::abs(at - x) <= kGrab) return i;
        }
        return 0;
    }
    // What the axis shows at a point.
    double AxisValue(int point) const {
        const std::vector<double>& x = recording_->x;
        return x.empty() ? point + 1 : x[static_cast<std::size_t>(point)];
    }

    void DrawPicture(HDC dc, const RECT& client) {
        FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
        HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, kText);
        const int panes = static_cast<int>(recording_->groups.size());
        const int height = static_cast<int>(client.bottom) - kTop - kBottom - kGap * (panes - 1);
        for (int i = 0; i < panes && recording_->PointCount() > 0; ++i) {
            const int top = kTop + i * (height / panes + kGap);
            const RECT pane = {kLeft, top, kLeft + PlotWidth(), top + height / panes};
            if (pane.bottom - pane.top > 20)
                DrawPane(dc, pane, recording_->groups[static_cast<std::size_t>(i)], i == panes - 1);
        }
        SelectObject(dc, oldFont);
    }

    void DrawPane(HDC dc, const RECT& pane, const Group& group, bool isLast) {
        const Extent extent = ExtentOf(group);
        const auto y = [&](double value) {
            const double at = (extent.high - value) / (extent.high - extent.low);
            return static_cast<int>(pane.top + at * (pane.bottom - pane.top) + 0.5);
        };
        HPEN grid = CreatePen(PS_SOLID, 1, kGrid);
        HGDIOBJ oldPen = SelectObject(dc, grid);
        const double step = GridStep(extent.high - extent.low, 5);
        SetTextAlign(dc, TA_RIGHT | TA_TOP);
        for (double value = std::ceil(extent.low / step) * step; value < extent.high;
             value += step) {
            MoveToEx(dc, pane.left, y(value), nullptr);
            LineTo(dc, pane.right, y(value));
            const std::string label = Label(value, step);
            TextOutA(dc, pane.left - 6, y(value) - 7, label.c_str(),
                     static_cast<int>(label.size()));
        }
        DrawAxis(dc, pane, isLast);
        SelectObject(dc, oldPen);
        DeleteObject(grid);

        HRGN clip = CreateRectRgn(pane.left, pane.top, pane.right + 1, pane.bottom + 1);
        SelectClipRgn(dc, clip);
        for (std::size_t i = 0; i < group.sets.size(); ++i) DrawSet(dc, group, i, y);
        SelectClipRgn(dc, nullptr);
        DeleteObject(clip);

        HBRUSH frame = CreateSolidBrush(kFrame);
        const RECT edge = {pane.left, pane.top, pane.right + 1, pane.bottom + 1};
        FrameRect(dc, &edge, frame);
        DeleteObject(frame);
        SetTextAlign(dc, TA_LEFT | TA_TOP);
        const std::string title =
            ToSystem(group.units.empty() ? group.name : group.name + " (" + group.units + ")");
        TextOutA(dc, pane.left + 6, pane.top + 4, title.c_str(), static_cast<int>(title.size()));
    }

    void DrawAxis(HDC dc, const RECT& pane, bool isLast) {
        const double first = AxisValue(0), last = AxisValue(LastPoint() < 1 ? 0 : LastPoint());
        if (!(last > first)) return;
        const double step = GridStep(last - first, 8);
        SetTextAlign(dc, TA_CENTER | TA_TOP);
        for (double value = std::ceil(first / step) * step; value <= last + step * 1e-6;
             value += step) {
            const int x = static_cast<int>(
                pane.left + (value - first) / (last - first) * (pane.right - pane.left) + 0.5);
            MoveToEx(dc, x, pane.top, nullptr);
            LineTo(dc, x, pane.bottom);
            if (!isLast) continue;
            const std::string label = Label(value, step);
            TextOutA(dc, x, pane.bottom + 4, label.c_str(), static_cast<int>(label.size()));
        }
        if (!isLast) return;
        const std::string units = recording_->xUnits.empty() ? "row" : ToSystem(recording_->xUnits);
        SetTextAlign(dc, TA_RIGHT | TA_TOP);
        TextOutA(dc, pane.right, pane.bottom + 18, units.c_str(), static_cast<int>(units.size()));
    }

    // With more points than pixels, each pixel shows the lowest and the highest of its points.
    template <class Y>
    void DrawSet(HDC dc, const Group& group, std::size_t index, Y y) {
        const std::vector<double>& values = group.sets[index].values;
        HPEN pen = CreatePen(PS_SOLID, 1, SetColor(index, group.sets.size()));
        HGDIOBJ oldPen = SelectObject(dc, pen);
        std::vector<POINT> line;
        const std::size_t perPixel =
            std::max<std::size_t>(1, values.size() / static_cast<std::size_t>(PlotWidth()));
        for (std::size_t i = 0; i < values.size(); i += perPixel) {
            const std::size_t end = std::min(values.size(), i + perPixel);
            const auto [low, high] =
                std::minmax_element(values.begin() + static_cast<std::ptrdiff_t>(i),
                                    values.begin() + static_cast<std::ptrdiff_t>(end));
            const int x = PixelOf(static_cast<double>(i));
            line.push_back({x, y(*low)});
            if (low != high) line.push_back({x, y(*high)});
        }
        if (line.size() > 1) Polyline(dc, line.data(), static_cast<int>(line.size()));
        SelectObject(dc, oldPen);
        DeleteObject(pen);
    }

    void DrawCursors(HDC dc, const RECT& client) {
        if (recording_->PointCount() == 0) return;
        HGDIOBJ oldFont = SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT));
        SetTextAlign(dc, TA_CENTER | TA_TOP);
        for (int i = 0; i < kCursors; ++i) {
            const COLORREF color = kCursorColors[i / 2];
            const int x = PixelOf(recording_->cursors[static_cast<std::size_t>(i)]);
            HPEN pen = CreatePen(PS_SOLID, 1, color);
            HGDIOBJ oldPen = SelectObject(dc, pen);
            MoveToEx(dc, x, kTop - 3, nullptr);
            LineTo(dc, x, client.bottom - kBottom);
            SelectObject(dc, oldPen);
            DeleteObject(pen);
            HBRUSH brush = CreateSolidBrush(color);
            const RECT flag = {x - 7, 2, x + 8, kTop - 3};
            FillRect(dc, &flag, brush);
            DeleteObject(brush);
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, RGB(255, 255, 255));
            const char number = static_cast<char>('1' + i);
            TextOutA(dc, x, 3, &number, 1);
        }
        SelectObject(dc, oldFont);
    }

    HWND hwnd_;
    Recording* recording_;
    HBITMAP picture_ = nullptr;
    int dragged_ = 0;
};

Plot* PlotOf(HWND hwnd) {
    return reinterpret_cast<Plot*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
}

LRESULT CALLBACK PlotProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    Plot* plot = PlotOf(hwnd);
    switch (message) {
        case WM_NCCREATE: {
            auto* recording =
                static_cast<Recording*>(reinterpret_cast<CREATESTRUCTA*>(lParam)->lpCreateParams);
            SetWindowLongPtrA(hwnd, GWLP_USERDATA,
                              reinterpret_cast<LONG_PTR>(new Plot(hwnd, recording)));
            break;
        }
        case WM_NCDESTROY:
            SetWindowLongPtrA(hwnd, GWLP_USERDATA, 0);
            delete plot;
            break;
        case WM_SIZE:
            RefreshPlot(hwnd);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            plot->Paint();
            return 0;
        case WM_LBUTTONDOWN:
            plot->Press(GET_X_LPARAM(lParam));
            return 0;
        case WM_MOUSEMOVE:
            plot->Move(GET_X_LPARAM(lParam));
            return 0;
        case WM_LBUTTONUP:
        case WM_CAPTURECHANGED:
            plot->Release();
            return 0;
        case WM_SETCURSOR:
            if (LOWORD(lParam) == HTCLIENT) return TRUE;
            break;
        default:
            break;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

}  // namespace

HWND CreatePlot(HWND parent, int id, Recording* recording) {
    WNDCLASSA wc = {};
    wc.lpfnWndProc = PlotProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = kClassName;
    RegisterClassA(&wc);
    return CreateWindowExA(WS_EX_CLIENTEDGE, kClassName, "", WS_CHILD | WS_VISIBLE, 0, 0, 0, 0,
                           parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), wc.hInstance,
                           recording);
}

void RefreshPlot(HWND plot) {
    PlotOf(plot)->DropPicture();
    InvalidateRect(plot, nullptr, FALSE);
}

}  // namespace zxhost
