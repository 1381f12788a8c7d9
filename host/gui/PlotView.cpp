#include "PlotView.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "Look.h"
#include "Numbers.h"
#include "System.h"

namespace zxhost {
namespace {

constexpr char kClassName[] = "ZxHostPlot";
// Margins in pixels.
int Left() {
    return Scaled(62);
}
int Right() {
    return Scaled(14);
}
int Top() {
    return Scaled(20);
}
int Bottom() {
    return Scaled(34);
}
int Gap() {
    return Scaled(16);
}
// Beside a cursor: still takes it.
int Grab() {
    return Scaled(6);
}

constexpr COLORREF kCursorColors[] = {RGB(200, 60, 40), RGB(20, 130, 90)};

// From the first set to the last, blue to orange; lighter ones on a dark ground.
COLORREF SetColor(std::size_t index, std::size_t count) {
    const double at = count < 2 ? 0.0 : static_cast<double>(index) / static_cast<double>(count - 1);
    const auto mix = [at](int from, int to) { return static_cast<int>(from + (to - from) * at); };
    return IsDark() ? RGB(mix(110, 255), mix(170, 180), mix(255, 110))
                    : RGB(mix(30, 235), mix(70, 130), mix(150, 40));
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
        DrawTitles(screen, client);
        BitBlt(dc, 0, 0, client.right, client.bottom, screen, 0, 0, SRCCOPY);
        SelectObject(screen, oldBoth);
        SelectObject(memory, oldPicture);
        DeleteDC(screen);
        DeleteDC(memory);
        DeleteObject(both);
        EndPaint(hwnd_, &paint);
    }

    void Press(int x) {
        SetFocus(hwnd_);
        dragged_ = CursorAt(x);
        if (dragged_ > 0) SetCapture(hwnd_);
    }
    void Move(int x) {
        pointer_ = x;
        if (dragged_ == 0) {
            SetCursor(LoadCursorA(nullptr, CursorAt(x) > 0 ? IDC_SIZEWE : IDC_ARROW));
            if (recording_->PointCount() > 0) Notify(kPlotReadout);
            return;
        }
        SetCursor(LoadCursorA(nullptr, IDC_SIZEWE));
        recording_->cursors[static_cast<std::size_t>(dragged_ - 1)] = PointAt(x);
        InvalidateRect(hwnd_, nullptr, FALSE);
        Notify(dragged_);
    }
    void Release() {
        if (dragged_ > 0) ReleaseCapture();
        dragged_ = 0;
    }

    // --- The part of the axis that is shown, in points.

    void ShowAll() { Show(0, LastPoint()); }

    // A factor below 1 magnifies; the point under the pixel stays where it is.
    void Zoom(double factor, int x) {
        const double at = Fraction(x);
        const double span = std::clamp((last_ - first_) * factor, 1.0 * std::min(10, LastPoint()),
                                       1.0 * LastPoint());
        const double first = first_ + at * ((last_ - first_) - span);
        Show(first, first + span);
    }

    // By a part of what is shown; above 0 to later points.
    void Scroll(double part) {
        const double by = part * (last_ - first_);
        Show(first_ + by, last_ + by);
    }

    void ScrollTo(WORD code) {
        SCROLLINFO info = {sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
        GetScrollInfo(hwnd_, SB_HORZ, &info);
        switch (code) {
            case SB_LINELEFT:
                return Scroll(-0.1);
            case SB_LINERIGHT:
                return Scroll(0.1);
            case SB_PAGELEFT:
                return Scroll(-0.9);
            case SB_PAGERIGHT:
                return Scroll(0.9);
            case SB_THUMBTRACK:
                return Show(info.nTrackPos, info.nTrackPos + (last_ - first_));
            default:
                return;
        }
    }

    // Gives false for a key that means nothing here.
    bool Key(WPARAM key) {
        const int middle = Left() + PlotWidth() / 2;
        switch (key) {
            case VK_LEFT:
                Scroll(-0.1);
                return true;
            case VK_RIGHT:
                Scroll(0.1);
                return true;
            case VK_HOME:
                ShowAll();
                return true;
            case VK_ADD:
            case VK_OEM_PLUS:
                Zoom(0.8, middle);
                return true;
            case VK_SUBTRACT:
            case VK_OEM_MINUS:
                Zoom(1.25, middle);
                return true;
            default:
                return false;
        }
    }

    // "12.3 ms, point 124: Im 34.5 pA, Vm -70.1 mV" of the active set.
    std::string Readout() const {
        const auto point = static_cast<std::size_t>(PointAt(pointer_));
        std::string text;
        if (!recording_->x.empty())
            text = ShortNumber(recording_->x[point]) + " " + recording_->xUnits + ", ";
        text += "point " + std::to_string(point + 1) + ":";
        const auto value = [&](const std::string& name, const Set& set, const std::string& units) {
            text += (text.back() == ':' ? " " : ", ") + name + " " +
                    ShortNumber(set.values[point]) + (units.empty() ? "" : " " + units);
        };
        for (const Group& group : recording_->groups) {
            if (recording_->kind == DataKind::kSheet) {
                for (const Set& set : group.sets) value(set.name, set, set.units);
            } else {
                value(group.name, group.sets[recording_->activeSet], group.units);
            }
        }
        return text;
    }

  private:
    void Notify(int code) {
        SendMessageA(GetParent(hwnd_), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hwnd_), code),
                     reinterpret_cast<LPARAM>(hwnd_));
    }

    void Show(double first, double last) {
        const double span = std::min(last - first, 1.0 * LastPoint());
        first_ = std::clamp(first, 0.0, LastPoint() - span);
        last_ = first_ + span;
        SCROLLINFO info = {};
        info.cbSize = sizeof info;
        info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
        info.nMax = LastPoint();
        info.nPage = static_cast<UINT>(span) + 1;
        info.nPos = static_cast<int>(first_);
        SetScrollInfo(hwnd_, SB_HORZ, &info, TRUE);
        DropPicture();
        InvalidateRect(hwnd_, nullptr, FALSE);
    }

    double Fraction(int x) const { return static_cast<double>(x - Left()) / PlotWidth(); }

    int LastPoint() const { return std::max(1, static_cast<int>(recording_->PointCount()) - 1); }
    int PlotWidth() const {
        RECT client;
        GetClientRect(hwnd_, &client);
        return std::max(1, static_cast<int>(client.right) - Left() - Right());
    }
    int PixelOf(double point) const {
        const double pixel = (point - first_) / (last_ - first_) * PlotWidth() + 0.5;
        return Left() + static_cast<int>(std::clamp(pixel, -30000.0, 30000.0));
    }
    bool IsShown(int x) const { return x >= Left() && x <= Left() + PlotWidth(); }
    int PointAt(int x) const {
        const double at = first_ + Fraction(x) * (last_ - first_);
        return static_cast<int>(std::clamp(at + 0.5, 0.0, static_cast<double>(LastPoint())));
    }
    // The cursor under this pixel, from 1; the last drawn one first. 0 for none.
    int CursorAt(int x) const {
        if (recording_->PointCount() == 0) return 0;
        for (int i = kCursors; i >= 1; --i) {
            const int at = PixelOf(recording_->cursors[static_cast<std::size_t>(i - 1)]);
            if (IsShown(at) && std::abs(at - x) <= Grab()) return i;
        }
        return 0;
    }
    // What the axis shows at a place between points.
    double AxisValue(double place) const {
        const std::vector<double>& x = recording_->x;
        if (x.empty()) return place + 1.0;
        const auto point = std::min(static_cast<std::size_t>(place), x.size() - 1);
        const std::size_t next = std::min(point + 1, x.size() - 1);
        return x[point] + (place - std::floor(place)) * (x[next] - x[point]);
    }

    template <class Each>
    void ForEachPane(const RECT& client, Each each) const {
        const int panes = static_cast<int>(recording_->groups.size());
        const int height = static_cast<int>(client.bottom) - Top() - Bottom() - Gap() * (panes - 1);
        for (int i = 0; i < panes && recording_->PointCount() > 0; ++i) {
            const int top = Top() + i * (height / panes + Gap());
            const RECT pane = {Left(), top, Left() + PlotWidth(), top + height / panes};
            if (pane.bottom - pane.top > 20)
                each(pane, recording_->groups[static_cast<std::size_t>(i)], i == panes - 1);
        }
    }

    void DrawPicture(HDC dc, const RECT& client) {
        FillRect(dc, &client, GetSysColorBrush(COLOR_WINDOW));
        HGDIOBJ oldFont = SelectObject(dc, DialogFont());
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, Ink());
        ForEachPane(client, [&](const RECT& pane, const Group& group, bool isLast) {
            DrawPane(dc, pane, group, isLast);
        });
        SelectObject(dc, oldFont);
    }

    void DrawPane(HDC dc, const RECT& pane, const Group& group, bool isLast) {
        const Extent extent = ExtentOf(group);
        const auto y = [&](double value) {
            const double at = (extent.high - value) / (extent.high - extent.low);
            return static_cast<int>(pane.top + at * (pane.bottom - pane.top) + 0.5);
        };
        HPEN grid = CreatePen(PS_SOLID, 1, Shade(0.12));
        HGDIOBJ oldPen = SelectObject(dc, grid);
        const double step = GridStep(extent.high - extent.low, 5);
        SetTextAlign(dc, TA_RIGHT | TA_TOP);
        for (double value = std::ceil(extent.low / step) * step; value < extent.high;
             value += step) {
            MoveToEx(dc, pane.left, y(value), nullptr);
            LineTo(dc, pane.right, y(value));
            const std::string label = Label(value, step);
            TextOutA(dc, pane.left - Scaled(6), y(value) - Scaled(7), label.c_str(),
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

        HBRUSH frame = CreateSolidBrush(Shade(0.4));
        const RECT edge = {pane.left, pane.top, pane.right + 1, pane.bottom + 1};
        FrameRect(dc, &edge, frame);
        DeleteObject(frame);
    }

    // On top of the cursors, so that none crosses them.
    void DrawTitles(HDC dc, const RECT& client) {
        HGDIOBJ oldFont = SelectObject(dc, DialogFont());
        SetTextAlign(dc, TA_LEFT | TA_TOP);
        SetTextColor(dc, Ink());
        SetBkColor(dc, Ground());
        SetBkMode(dc, OPAQUE);
        ForEachPane(client, [&](const RECT& pane, const Group& group, bool) {
            const std::string title =
                ToSystem(group.units.empty() ? group.name : group.name + " (" + group.units + ")");
            TextOutA(dc, pane.left + Scaled(6), pane.top + Scaled(4), title.c_str(),
                     static_cast<int>(title.size()));
        });
        SelectObject(dc, oldFont);
    }

    void DrawAxis(HDC dc, const RECT& pane, bool isLast) {
        const double first = AxisValue(first_), last = AxisValue(last_);
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
            TextOutA(dc, x, pane.bottom + Scaled(4), label.c_str(), static_cast<int>(label.size()));
        }
        if (!isLast) return;
        const std::string units = recording_->xUnits.empty() ? "row" : ToSystem(recording_->xUnits);
        SetTextAlign(dc, TA_RIGHT | TA_TOP);
        TextOutA(dc, pane.right, pane.bottom + Scaled(18), units.c_str(),
                 static_cast<int>(units.size()));
    }

    // With more points than pixels, each pixel shows the lowest and the highest of its points.
    template <class Y>
    void DrawSet(HDC dc, const Group& group, std::size_t index, Y y) {
        const std::vector<double>& values = group.sets[index].values;
        HPEN pen = CreatePen(PS_SOLID, 1, SetColor(index, group.sets.size()));
        HGDIOBJ oldPen = SelectObject(dc, pen);
        std::vector<POINT> line;
        const auto begin = static_cast<std::size_t>(first_);
        const auto behind = std::min(values.size(), static_cast<std::size_t>(last_) + 2);
        const std::size_t perPixel =
            std::max<std::size_t>(1, (behind - begin) / static_cast<std::size_t>(PlotWidth()));
        for (std::size_t i = begin; i < behind; i += perPixel) {
            const std::size_t end = std::min(behind, i + perPixel);
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
        HGDIOBJ oldFont = SelectObject(dc, DialogFont());
        SetTextAlign(dc, TA_CENTER | TA_TOP);
        for (int i = 0; i < kCursors; ++i) {
            const COLORREF color = kCursorColors[i / 2];
            const int x = PixelOf(recording_->cursors[static_cast<std::size_t>(i)]);
            if (!IsShown(x)) continue;
            HPEN pen = CreatePen(PS_SOLID, 1, color);
            HGDIOBJ oldPen = SelectObject(dc, pen);
            MoveToEx(dc, x, Top() - Scaled(3), nullptr);
            LineTo(dc, x, client.bottom - Bottom());
            SelectObject(dc, oldPen);
            DeleteObject(pen);
            HBRUSH brush = CreateSolidBrush(color);
            const RECT flag = {x - Scaled(7), Scaled(2), x + Scaled(8), Top() - Scaled(3)};
            FillRect(dc, &flag, brush);
            DeleteObject(brush);
            SetBkMode(dc, TRANSPARENT);
            SetTextColor(dc, RGB(255, 255, 255));
            const char number = static_cast<char>('1' + i);
            TextOutA(dc, x, Scaled(3), &number, 1);
        }
        SelectObject(dc, oldFont);
    }

    HWND hwnd_;
    Recording* recording_;
    HBITMAP picture_ = nullptr;
    int dragged_ = 0;
    int pointer_ = 0;     // where the mouse is
    double first_ = 0.0;  // what is shown, in points
    double last_ = 1.0;
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
            plot->DropPicture();
            InvalidateRect(hwnd, nullptr, FALSE);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            plot->Paint();
            return 0;
        case WM_LBUTTONDOWN:
            plot->Press(GET_X_LPARAM(lParam));
            return 0;
        case WM_LBUTTONDBLCLK:
            plot->ShowAll();
            return 0;
        case WM_MOUSEWHEEL: {
            const int delta = GET_WHEEL_DELTA_WPARAM(wParam);
            POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
            ScreenToClient(hwnd, &at);
            if (GET_KEYSTATE_WPARAM(wParam) & MK_SHIFT) {
                plot->Scroll(delta > 0 ? -0.1 : 0.1);
            } else {
                plot->Zoom(delta > 0 ? 0.8 : 1.25, at.x);
            }
            return 0;
        }
        case WM_HSCROLL:
            plot->ScrollTo(LOWORD(wParam));
            return 0;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_KEYDOWN:
            if (plot->Key(wParam)) return 0;
            break;
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
    wc.style = CS_DBLCLKS;
    wc.lpfnWndProc = PlotProc;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = kClassName;
    RegisterClassA(&wc);
    return CreateWindowExA(
        WS_EX_CLIENTEDGE, kClassName, "", WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_TABSTOP, 0, 0, 0,
        0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), wc.hInstance, recording);
}

void RefreshPlot(HWND plot) {
    PlotOf(plot)->ShowAll();
}

std::string ReadPlot(HWND plot) {
    return PlotOf(plot)->Readout();
}

}  // namespace zxhost
