// What has to be painted and when. A window keeps one rectangle, which stands for the region.
#include <algorithm>

#include "platform/headless/drawing/gdi.h"
#include "platform/headless/window/window.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr UINT kKnownRedrawFlags = RDW_INVALIDATE | RDW_INTERNALPAINT | RDW_ERASE | RDW_VALIDATE |
                                   RDW_NOINTERNALPAINT | RDW_NOERASE | RDW_NOCHILDREN |
                                   RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_ERASENOW | RDW_FRAME |
                                   RDW_NOFRAME;

RECT ClientArea(const Window& window) {
    return {0, 0, Width(window.client), Height(window.client)};
}

bool TakesChildren(const Window& window, UINT flags) {
    if ((flags & RDW_NOCHILDREN) != 0) return false;
    return (flags & RDW_ALLCHILDREN) != 0 || (window.style & WS_CLIPCHILDREN) == 0;
}

// `area` is in the window's client coordinates and may reach over its edges.
void Invalidate(Window& window, const RECT& area, UINT flags) {
    if ((window.style & WS_VISIBLE) == 0 || (window.style & WS_MINIMIZE) != 0) return;
    const RECT inside = Intersection(area, ClientArea(window));
    if (!Empty(inside)) {
        window.update.dirty = window.update.hasDirty ? Bounds(window.update.dirty, inside) : inside;
        window.update.hasDirty = true;
        if ((flags & RDW_ERASE) != 0) window.update.erase = true;
    }
    if ((flags & RDW_FRAME) != 0) window.update.frame = true;
    if (!TakesChildren(window, flags)) return;
    for (Window* child : window.children) {
        if (Empty(Intersection(child->frame, area))) continue;
        Invalidate(*child, Moved(area, -child->client.left, -child->client.top), flags | RDW_FRAME);
    }
}

void Validate(Window& window, const RECT* area, UINT flags) {
    UpdateState& update = window.update;
    if (update.hasDirty) {
        update.dirty = area == nullptr ? RECT{} : Without(update.dirty, *area);
        update.hasDirty = !Empty(update.dirty);
    }
    if (!update.hasDirty || (flags & RDW_NOERASE) != 0) update.erase = false;
    if ((flags & RDW_NOFRAME) != 0) update.frame = false;
    if (!TakesChildren(window, flags)) return;
    for (Window* child : window.children) {
        if (area == nullptr) {
            Validate(*child, nullptr, flags);
        } else {
            const RECT moved = Moved(*area, -child->client.left, -child->client.top);
            Validate(*child, &moved, flags);
        }
    }
}

bool NeedsPaint(const Window& window) {
    return window.update.hasDirty || window.update.internalPaint;
}

Window* FirstToPaint(Window& window) {
    if ((window.style & WS_VISIBLE) == 0) return nullptr;
    if (NeedsPaint(window) && !window.IsDesktop()) return &window;
    if ((window.style & WS_MINIMIZE) != 0) return nullptr;
    for (Window* child : window.children) {
        if (Window* found = FirstToPaint(*child)) return found;
    }
    return nullptr;
}

void UpdateTree(HWND hwnd, bool children) {
    Window* window = Peek(hwnd);
    if (window == nullptr || !Visible(*window)) return;
    if (NeedsPaint(*window)) PaintWindow(*window);
    if (!children || !window->alive) return;
    std::vector<HWND> all;
    for (const Window* child : window->children) all.push_back(child->handle);
    for (HWND child : all) UpdateTree(child, true);
}

void EraseTree(HWND hwnd, bool children) {
    Window* window = Peek(hwnd);
    if (window == nullptr || !Visible(*window)) return;
    if (window->update.hasDirty && window->update.erase) {
        RECT unused{};
        GetUpdateRect(hwnd, &unused, TRUE);
    }
    if (!children || !window->alive) return;
    std::vector<HWND> all;
    for (const Window* child : window->children) all.push_back(child->handle);
    for (HWND child : all) EraseTree(child, true);
}

}  // namespace

void InvalidateAll(Window& window, bool frame) {
    if (window.parent != nullptr && !Visible(window)) return;
    Invalidate(window, ClientArea(window),
               RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | (frame ? RDW_FRAME : 0));
}

void InvalidateParentArea(Window& window, const RECT& frameInParent) {
    if (window.parent == nullptr || window.parent->IsDesktop() || !Visible(*window.parent)) return;
    // The window itself and what lies outside the area stay as they are.
    Window& parent = *window.parent;
    Invalidate(parent, frameInParent, RDW_INVALIDATE | RDW_ERASE | RDW_NOCHILDREN);
    for (Window* sibling : parent.children) {
        if (sibling == &window || Empty(Intersection(sibling->frame, frameInParent))) continue;
        Invalidate(*sibling, Moved(frameInParent, -sibling->client.left, -sibling->client.top),
                   RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_FRAME);
    }
}

Window* NextToPaint(Window* within) {
    if (within == nullptr) return FirstToPaint(*ThisWorld().desktop);
    return Visible(*within) ? FirstToPaint(*within) : nullptr;
}

void PaintWindow(Window& window) {
    if (window.update.frame) {
        window.update.frame = false;
        Send(window.handle, WM_NCPAINT, 1, 0);
        if (!window.alive) return;
    }
    window.update.internalPaint = false;
    Send(window.handle, WM_PAINT, 0, 0);
}

void ForgetUpdates(Window& window) {
    window.update = {};
    for (Window* child : window.children) ForgetUpdates(*child);
}

}  // namespace headless

using namespace headless;

BOOL RedrawWindow(HWND hwnd, const RECT* rect, HRGN region, UINT flags) {
    KeepAlive keep;
    Window* window = LookupOrDesktop(hwnd);
    if (window == nullptr) return FALSE;
    if (region != nullptr) {
        ReportUnsupported("RedrawWindow with a region");
        return FALSE;
    }
    if ((flags & ~kKnownRedrawFlags) != 0)
        ReportUnsupported("RedrawWindow flags " + Hex(flags & ~kKnownRedrawFlags));
    if (window->IsDesktop()) flags |= RDW_ALLCHILDREN;
    if ((flags & RDW_INVALIDATE) != 0) {
        if (Visible(*window)) {
            RECT area = rect != nullptr ? *rect : ClientArea(*window);
            // A child's place is cut to what its parents show of it.
            Invalidate(*window, area, flags);
        }
    } else if ((flags & RDW_VALIDATE) != 0) {
        Validate(*window, rect, flags);
    }
    if ((flags & RDW_INTERNALPAINT) != 0) window->update.internalPaint = true;
    if ((flags & RDW_NOINTERNALPAINT) != 0) window->update.internalPaint = false;
    if ((flags & RDW_UPDATENOW) != 0) {
        UpdateTree(window->handle, (flags & RDW_NOCHILDREN) == 0);
    } else if ((flags & RDW_ERASENOW) != 0) {
        EraseTree(window->handle, (flags & RDW_NOCHILDREN) == 0);
    }
    return TRUE;
}

BOOL InvalidateRect(HWND hwnd, const RECT* rect, BOOL erase) {
    // Without a window the whole screen is meant.
    if (hwnd == nullptr)
        return RedrawWindow(nullptr, nullptr, nullptr,
                            RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_ERASE | RDW_ERASENOW);
    return RedrawWindow(hwnd, rect, nullptr, RDW_INVALIDATE | (erase ? RDW_ERASE : 0));
}

BOOL ValidateRect(HWND hwnd, const RECT* rect) {
    if (hwnd == nullptr) return InvalidateRect(nullptr, nullptr, TRUE);
    return RedrawWindow(hwnd, rect, nullptr, RDW_VALIDATE);
}

BOOL GetUpdateRect(HWND hwnd, RECT* rect, BOOL erase) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr) return FALSE;
    const bool dirty = window->update.hasDirty && Visible(*window);
    if (rect != nullptr) *rect = dirty ? window->update.dirty : RECT{};
    if (erase && dirty && window->update.erase) {
        window->update.erase = false;
        const HDC dc = GetDC(hwnd);
        Send(hwnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
        ReleaseDC(hwnd, dc);
    }
    return dirty;
}

BOOL UpdateWindow(HWND hwnd) {
    if (hwnd == nullptr) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    return RedrawWindow(hwnd, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

HDC BeginPaint(HWND hwnd, PAINTSTRUCT* paint) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr || paint == nullptr) return nullptr;
    *paint = {};
    if (window->update.frame) {
        window->update.frame = false;
        Send(hwnd, WM_NCPAINT, 1, 0);
        if (!window->alive) return nullptr;
    }
    const UpdateState update = window->update;
    window->update = {};
    const HDC dc = gdi::CreateWindowDc(hwnd, ClientArea(*window), gdi::DcUse::kPaint);
    paint->rcPaint = update.hasDirty ? update.dirty : RECT{};
    IntersectClipRect(dc, paint->rcPaint.left, paint->rcPaint.top, paint->rcPaint.right,
                      paint->rcPaint.bottom);
    paint->hdc = dc;
    if (update.hasDirty && update.erase)
        paint->fErase = Send(hwnd, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0) == 0;
    return dc;
}

BOOL EndPaint(HWND, const PAINTSTRUCT* paint) {
    if (paint == nullptr) return FALSE;
    gdi::ReleaseWindowDc(paint->hdc);
    return TRUE;
}

HDC GetDC(HWND hwnd) {
    const Window* window = LookupOrDesktop(hwnd);
    if (window == nullptr) return nullptr;
    return gdi::CreateWindowDc(hwnd == nullptr ? nullptr : window->handle, ClientArea(*window));
}

HDC GetWindowDC(HWND hwnd) {
    const Window* window = LookupOrDesktop(hwnd);
    if (window == nullptr) return nullptr;
    const RECT area{0, 0, Width(window->frame), Height(window->frame)};
    return gdi::CreateWindowDc(hwnd == nullptr ? nullptr : window->handle, area,
                               gdi::DcUse::kNonClient);
}

int ReleaseDC(HWND, HDC dc) {
    return gdi::ReleaseWindowDc(dc) ? 1 : 0;
}
