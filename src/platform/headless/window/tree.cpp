// Finding windows: parents, owners, siblings, names and points.
#include <algorithm>

#include "platform/headless/system/codepage.h"
#include "platform/headless/window/window.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

std::vector<HWND> ChildrenOf(const Window& window) {
    std::vector<HWND> handles;
    for (const Window* child : window.children) handles.push_back(child->handle);
    return handles;
}

// Parents before their children, each in depth order, as a list that stays whole while a callback
// changes the tree.
void Collect(const Window& window, std::vector<HWND>& all) {
    for (const Window* child : window.children) {
        all.push_back(child->handle);
        Collect(*child, all);
    }
}

Window* Sibling(const Window& window, int step) {
    if (window.parent == nullptr) return nullptr;
    const auto& siblings = window.parent->children;
    const auto at = std::find(siblings.begin(), siblings.end(), &window);
    if (at == siblings.end()) return nullptr;
    const auto index = (at - siblings.begin()) + step;
    if (index < 0 || index >= static_cast<std::ptrdiff_t>(siblings.size())) return nullptr;
    return siblings[static_cast<std::size_t>(index)];
}

HWND HandleOf(const Window* window) {
    return window == nullptr ? nullptr : window->handle;
}

}  // namespace

}  // namespace headless

using namespace headless;

HWND GetParent(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return nullptr;
    if ((window->style & WS_POPUP) != 0) return window->owner;
    return window->IsChildWindow() && !window->parent->IsDesktop() ? window->parent->handle
                                                                   : nullptr;
}

HWND SetParent(HWND hwnd, HWND parent) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    Window* target = LookupOrDesktop(parent);
    if (window == nullptr || target == nullptr) return nullptr;
    if (window->IsDesktop() || Within(window, target)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const HWND old = window->parent->handle;
    const bool visible = (window->style & WS_VISIBLE) != 0;
    if (visible) ShowWindow(hwnd, SW_HIDE);
    if (!window->alive || !target->alive) return nullptr;
    if (window->parent != target) {
        Unlink(*window);
        window->parent = target;
        LinkOnTop(*window);
    }
    UINT flags = SWP_NOSIZE;
    if (visible) flags |= SWP_SHOWWINDOW;
    SetWindowPos(hwnd, HWND_TOP, window->frame.left, window->frame.top, 0, 0, flags);
    return old;
}

HWND GetAncestor(HWND hwnd, UINT flags) {
    Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return nullptr;
    switch (flags) {
        case GA_PARENT:
            return window->parent->handle;
        case GA_ROOT:
            return Root(window)->handle;
        case GA_ROOTOWNER: {
            Window* root = Root(window);
            for (Window* owner = Peek(root->owner); owner != nullptr; owner = Peek(root->owner))
                root = Root(owner);
            return root->handle;
        }
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return nullptr;
    }
}

HWND GetWindow(HWND hwnd, UINT command) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr) return nullptr;
    switch (command) {
        case GW_HWNDFIRST:
            return window->parent == nullptr || window->parent->children.empty()
                       ? nullptr
                       : window->parent->children.front()->handle;
        case GW_HWNDLAST:
            return window->parent == nullptr || window->parent->children.empty()
                       ? nullptr
                       : window->parent->children.back()->handle;
        case GW_HWNDNEXT:
            return HandleOf(Sibling(*window, 1));
        case GW_HWNDPREV:
            return HandleOf(Sibling(*window, -1));
        case GW_OWNER:
            return window->owner;
        case GW_CHILD:
            return window->children.empty() ? nullptr : window->children.front()->handle;
        default:
            SetLastError(ERROR_INVALID_PARAMETER);
            return nullptr;
    }
}

HWND GetTopWindow(HWND hwnd) {
    const Window* window = LookupOrDesktop(hwnd);
    return window == nullptr || window->children.empty() ? nullptr
                                                         : window->children.front()->handle;
}

HWND GetLastActivePopup(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr) return hwnd;
    return Peek(window->lastActivePopup) != nullptr ? window->lastActivePopup : hwnd;
}

HWND GetDesktopWindow() {
    EnsureInitialized();
    return DesktopHandle();
}

BOOL IsChild(HWND parent, HWND hwnd) {
    const Window* outer = Peek(parent);
    const Window* inner = Peek(hwnd);
    if (outer == nullptr || inner == nullptr || outer == inner) return FALSE;
    // Only links between children and parents count, not those of owners.
    while (inner != nullptr && inner->IsChildWindow()) {
        inner = inner->parent;
        if (inner == outer) return !outer->IsDesktop();
    }
    return FALSE;
}

BOOL IsWindowVisible(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    return window != nullptr && Visible(*window);
}

BOOL IsWindowEnabled(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    return window != nullptr && Enabled(*window);
}

BOOL IsIconic(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    return window != nullptr && (window->style & WS_MINIMIZE) != 0;
}

HWND FindWindowA(LPCSTR className, LPCSTR windowName) {
    return FindWindowExA(nullptr, nullptr, className, windowName);
}

HWND FindWindowExA(HWND parent, HWND childAfter, LPCSTR className, LPCSTR windowName) {
    const Window* window = LookupOrDesktop(parent);
    if (window == nullptr) return nullptr;
    bool found = childAfter == nullptr;
    for (const Window* child : window->children) {
        if (!found) {
            found = child->handle == childAfter;
            continue;
        }
        if (className != nullptr) {
            const bool same =
                IS_INTRESOURCE(className)
                    ? child->cls->atom == LOWORD(reinterpret_cast<ULONG_PTR>(className))
                    : SameName(child->cls->name, className);
            if (!same) continue;
        }
        if (windowName != nullptr && !SameName(child->text, windowName)) continue;
        return child->handle;
    }
    return nullptr;
}

HWND ChildWindowFromPoint(HWND parent, POINT point) {
    const Window* window = Lookup(parent);
    if (window == nullptr) return nullptr;
    const RECT client{0, 0, Width(window->client), Height(window->client)};
    if (!Contains(client, point)) return nullptr;
    for (const Window* child : window->children) {
        if (Contains(child->frame, point)) return child->handle;
    }
    return parent;
}

BOOL EnumChildWindows(HWND parent, WNDENUMPROC proc, LPARAM param) {
    KeepAlive keep;
    const Window* window = LookupOrDesktop(parent);
    if (window == nullptr || proc == nullptr) return FALSE;
    std::vector<HWND> all;
    Collect(*window, all);
    for (HWND hwnd : all) {
        if (Peek(hwnd) != nullptr && !proc(hwnd, param)) return FALSE;
    }
    return TRUE;
}

BOOL EnumWindows(WNDENUMPROC proc, LPARAM param) {
    KeepAlive keep;
    if (proc == nullptr) return FALSE;
    for (HWND hwnd : ChildrenOf(*Peek(DesktopHandle()))) {
        if (Peek(hwnd) != nullptr && !proc(hwnd, param)) return FALSE;
    }
    return TRUE;
}

BOOL EnumThreadWindows(DWORD thread, WNDENUMPROC proc, LPARAM param) {
    if (thread != ThisWorld().thread) {
        ReportUnsupported("EnumThreadWindows of another thread");
        return FALSE;
    }
    return EnumWindows(proc, param);
}

DWORD GetWindowThreadProcessId(HWND hwnd, DWORD* process) {
    const DWORD thread = hwnd == DesktopHandle() ? ThisWorld().thread : OwnerThread(hwnd);
    if (thread == 0) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    if (process != nullptr) *process = GetCurrentProcessId();
    return thread;
}
