// What a window carries: longs, extra bytes, properties and its text.
#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/headless/system/codepage.h"
#include "platform/headless/window/window.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

// Integer atoms name properties too.
std::string PropertyName(LPCSTR name) {
    if (IS_INTRESOURCE(name))
        return "#" + std::to_string(LOWORD(reinterpret_cast<ULONG_PTR>(name)));
    return name;
}

std::vector<Property>::iterator FindProperty(Window& window, LPCSTR name) {
    const std::string wanted = PropertyName(name);
    return std::find_if(window.properties.begin(), window.properties.end(),
                        [&](const Property& p) { return SameName(p.name, wanted); });
}

template <typename T>
bool ReadExtra(const Window& window, int index, T& value) {
    if (index < 0 || static_cast<std::size_t>(index) + sizeof(T) > window.extra.size()) {
        SetLastError(ERROR_INVALID_INDEX);
        return false;
    }
    std::memcpy(&value, window.extra.data() + index, sizeof(T));
    return true;
}

template <typename T>
T ExchangeExtra(Window& window, int index, T value) {
    T old{};
    if (!ReadExtra(window, index, old)) return T{};
    std::memcpy(window.extra.data() + index, &value, sizeof(T));
    return old;
}

DWORD ChangeStyle(Window& window, int index, DWORD wanted) {
    DWORD& place = index == GWL_STYLE ? window.style : window.exStyle;
    STYLESTRUCT change{place, wanted};
    Send(window.handle, WM_STYLECHANGING, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(&change));
    if (!window.alive) return change.styleOld;
    const DWORD old = place;
    if (index == GWL_STYLE) {
        // The place in depth and the kind of edge follow from other calls.
        DWORD style = change.styleNew;
        if (!window.IsChildWindow()) style |= WS_CLIPSIBLINGS;
        window.style = style;
        window.exStyle = EdgeCorrected(window.style, window.exStyle);
        if (((old ^ style) & WS_VISIBLE) != 0 && (style & WS_VISIBLE) == 0) ForgetUpdates(window);
    } else {
        const DWORD fixed = WS_EX_TOPMOST;
        window.exStyle = EdgeCorrected(window.style, (change.styleNew & ~fixed) | (old & fixed));
    }
    change = {old, place};
    Send(window.handle, WM_STYLECHANGED, static_cast<WPARAM>(index),
         reinterpret_cast<LPARAM>(&change));
    return old;
}

}  // namespace

}  // namespace headless

using namespace headless;

LONG_PTR GetWindowLongPtrA(HWND hwnd, int index) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr) return 0;
    switch (index) {
        case GWLP_WNDPROC:
            return reinterpret_cast<LONG_PTR>(window->proc);
        case GWLP_HINSTANCE:
            return reinterpret_cast<LONG_PTR>(window->instance);
        case GWLP_HWNDPARENT:
            return reinterpret_cast<LONG_PTR>(GetParent(hwnd));
        case GWLP_ID:
            return static_cast<LONG_PTR>(window->id);
        case GWLP_USERDATA:
            return window->userData;
        case GWL_STYLE:
            return window->style;
        case GWL_EXSTYLE:
            return window->exStyle;
        default:
            break;
    }
    LONG_PTR value = 0;
    ReadExtra(*window, index, value);
    return value;
}

LONG_PTR SetWindowLongPtrA(HWND hwnd, int index, LONG_PTR value) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr) return 0;
    switch (index) {
        case GWLP_WNDPROC: {
            const auto old = reinterpret_cast<LONG_PTR>(window->proc);
            if (value != 0) window->proc = reinterpret_cast<WNDPROC>(value);
            return old;
        }
        case GWLP_HINSTANCE: {
            const auto old = reinterpret_cast<LONG_PTR>(window->instance);
            window->instance = reinterpret_cast<HINSTANCE>(value);
            return old;
        }
        case GWLP_HWNDPARENT: {
            if (window->IsChildWindow())
                return reinterpret_cast<LONG_PTR>(SetParent(hwnd, reinterpret_cast<HWND>(value)));
            const HWND old = window->owner;
            Window* owner = Peek(reinterpret_cast<HWND>(value));
            window->owner = owner == nullptr || owner->IsDesktop() ? nullptr : Root(owner)->handle;
            return reinterpret_cast<LONG_PTR>(old);
        }
        case GWLP_ID: {
            const auto old = static_cast<LONG_PTR>(window->id);
            window->id = static_cast<UINT_PTR>(value);
            return old;
        }
        case GWLP_USERDATA:
            return std::exchange(window->userData, value);
        case GWL_STYLE:
        case GWL_EXSTYLE:
            return ChangeStyle(*window, index, static_cast<DWORD>(value));
        default:
            return ExchangeExtra(*window, index, value);
    }
}

LONG GetWindowLongA(HWND hwnd, int index) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr) return 0;
    if (index == GWLP_WNDPROC || index == GWLP_HINSTANCE) {
        ReportUnsupported("GetWindowLongA of a pointer");
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    if (index < 0) return static_cast<LONG>(GetWindowLongPtrA(hwnd, index));
    LONG value = 0;
    ReadExtra(*window, index, value);
    return value;
}

LONG SetWindowLongA(HWND hwnd, int index, LONG value) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr) return 0;
    if (index == GWLP_WNDPROC || index == GWLP_HINSTANCE) {
        ReportUnsupported("SetWindowLongA of a pointer");
        SetLastError(ERROR_INVALID_INDEX);
        return 0;
    }
    if (index < 0) {
        const bool flags = index == GWL_STYLE || index == GWL_EXSTYLE;
        const LONG_PTR wide = flags ? static_cast<LONG_PTR>(static_cast<DWORD>(value)) : value;
        return static_cast<LONG>(SetWindowLongPtrA(hwnd, index, wide));
    }
    return ExchangeExtra(*window, index, value);
}

HANDLE GetPropA(HWND hwnd, LPCSTR name) {
    Window* window = Lookup(hwnd);
    if (window == nullptr || name == nullptr) return nullptr;
    const auto found = FindProperty(*window, name);
    return found == window->properties.end() ? nullptr : found->value;
}

BOOL SetPropA(HWND hwnd, LPCSTR name, HANDLE value) {
    Window* window = Lookup(hwnd);
    if (window == nullptr || name == nullptr) return FALSE;
    const auto found = FindProperty(*window, name);
    if (found == window->properties.end()) {
        window->properties.push_back({PropertyName(name), value});
    } else {
        found->value = value;
    }
    return TRUE;
}

HANDLE RemovePropA(HWND hwnd, LPCSTR name) {
    Window* window = Lookup(hwnd);
    if (window == nullptr || name == nullptr) return nullptr;
    const auto found = FindProperty(*window, name);
    if (found == window->properties.end()) return nullptr;
    const HANDLE value = found->value;
    window->properties.erase(found);
    return value;
}

BOOL SetWindowTextA(HWND hwnd, LPCSTR text) {
    if (OwnerThread(hwnd) == 0) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    return SendMessageA(hwnd, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text)) != 0;
}

int GetWindowTextA(HWND hwnd, LPSTR buffer, int size) {
    if (buffer == nullptr || size <= 0) return 0;
    buffer[0] = '\0';
    return static_cast<int>(SendMessageA(hwnd, WM_GETTEXT, static_cast<WPARAM>(size),
                                         reinterpret_cast<LPARAM>(buffer)));
}

int GetWindowTextLengthA(HWND hwnd) {
    return static_cast<int>(SendMessageA(hwnd, WM_GETTEXTLENGTH, 0, 0));
}
