#include "zxadlg/headless/monitors.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <mutex>

#include "platform/headless/drawing/display_state.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

const MonitorLayout kDefault{{0, 0, 1280, 1024}, {0, 0, 1280, 1024}};
// Handles are numbers from here on, in the order of the layout.
constexpr std::uintptr_t kFirstHandle = 0x00010001;

struct Monitors {
    std::mutex mutex;
    std::vector<MonitorLayout> layout{kDefault};
};

Monitors& State() {
    static Monitors& monitors = *new Monitors;
    return monitors;
}

std::vector<MonitorLayout> Layout() {
    const std::lock_guard lock(State().mutex);
    return State().layout;
}

HMONITOR HandleOf(std::size_t index) {
    return reinterpret_cast<HMONITOR>(kFirstHandle + index);
}

long long Area(const RECT& rect) {
    return static_cast<long long>(rect.right - rect.left) * (rect.bottom - rect.top);
}

// The square of the distance between two rectangles.
long long Distance(const RECT& a, const RECT& b) {
    const long long dx = std::max({0, a.left - b.right, b.left - a.right});
    const long long dy = std::max({0, a.top - b.bottom, b.top - a.bottom});
    return dx * dx + dy * dy;
}

HMONITOR FromRect(const RECT& rect, DWORD flags) {
    const std::vector<MonitorLayout> layout = Layout();
    long long most = 0;
    std::size_t best = 0;
    for (std::size_t i = 0; i < layout.size(); ++i) {
        RECT common;
        if (!IntersectRect(&common, &rect, &layout[i].bounds) || Area(common) <= most) continue;
        most = Area(common);
        best = i;
    }
    if (most > 0) return HandleOf(best);
    if (flags == MONITOR_DEFAULTTOPRIMARY) return HandleOf(0);
    if (flags != MONITOR_DEFAULTTONEAREST) return nullptr;
    for (std::size_t i = 1; i < layout.size(); ++i)
        if (Distance(rect, layout[i].bounds) < Distance(rect, layout[best].bounds)) best = i;
    return HandleOf(best);
}

}  // namespace

void SetMonitors(const std::vector<MonitorLayout>& monitors) {
    const std::lock_guard lock(State().mutex);
    State().layout = monitors.empty() ? std::vector<MonitorLayout>{kDefault} : monitors;
}

RECT PrimaryBounds() {
    return Layout().front().bounds;
}

RECT VirtualBounds() {
    RECT all{};
    for (const MonitorLayout& monitor : Layout()) UnionRect(&all, &all, &monitor.bounds);
    return all;
}

int MonitorCount() {
    return static_cast<int>(Layout().size());
}

}  // namespace headless

using namespace headless;

HMONITOR MonitorFromRect(const RECT* rect, DWORD flags) {
    if (rect == nullptr) return nullptr;
    // An empty rectangle counts as the point at its corner.
    RECT area = *rect;
    if (IsRectEmpty(&area)) area = {area.left, area.top, area.left + 1, area.top + 1};
    return FromRect(area, flags);
}

HMONITOR MonitorFromPoint(POINT point, DWORD flags) {
    return FromRect({point.x, point.y, point.x + 1, point.y + 1}, flags);
}

HMONITOR MonitorFromWindow(HWND hwnd, DWORD flags) {
    RECT rect;
    if (!GetWindowRect(hwnd, &rect)) {
        const bool any = flags == MONITOR_DEFAULTTOPRIMARY || flags == MONITOR_DEFAULTTONEAREST;
        return any ? HandleOf(0) : nullptr;
    }
    return MonitorFromRect(&rect, flags);
}

BOOL GetMonitorInfoA(HMONITOR monitor, MONITORINFO* info) {
    const std::vector<MonitorLayout> layout = Layout();
    const std::uintptr_t index = reinterpret_cast<std::uintptr_t>(monitor) - kFirstHandle;
    if (index >= layout.size() || info == nullptr || info->cbSize < sizeof(MONITORINFO))
        return FALSE;
    info->rcMonitor = layout[index].bounds;
    info->rcWork = layout[index].work;
    info->dwFlags = index == 0 ? MONITORINFOF_PRIMARY : 0;
    return TRUE;
}

BOOL SystemParametersInfoA(UINT action, UINT, PVOID data, UINT) {
    if (action == SPI_GETWORKAREA) {
        if (data == nullptr) return FALSE;
        *static_cast<RECT*>(data) = Layout().front().work;
        return TRUE;
    }
    ReportUnsupported("SystemParametersInfoA " + std::to_string(action));
    return FALSE;
}
