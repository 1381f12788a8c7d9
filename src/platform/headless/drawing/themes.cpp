// Themes. The headless theme has every class and part, and no looks: parts are recorded, not
// painted.
#include <cctype>
#include <map>

#include "platform/headless/drawing/display_state.h"
#include "platform/headless/drawing/gdi_dc.h"
#include "platform/headless/drawing/window_state.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

struct WindowTheme {
    DWORD dialogTexture = 0;
    // Set to empty names: the window is drawn without a theme.
    bool off = false;
};

std::map<HWND, WindowTheme>& Windows() {
    static auto& windows = *new std::map<HWND, WindowTheme>;
    return windows;
}

bool IsOff(HWND hwnd) {
    const auto found = Windows().find(hwnd);
    return found != Windows().end() && found->second.off;
}

// The first name of a list that is parted by semicolons, in capitals.
std::string FirstName(LPCWSTR list) {
    std::string name;
    for (; *list != L'\0' && *list != L';'; ++list)
        name += *list < 128 ? static_cast<char>(std::toupper(static_cast<int>(*list))) : '?';
    return name;
}

}  // namespace

void ForgetTheme(HWND hwnd) {
    Windows().erase(hwnd);
}

}  // namespace headless::gdi

using namespace headless::gdi;

BOOL IsThemeActive() {
    return headless::Themed() ? TRUE : FALSE;
}

BOOL IsAppThemed() {
    return IsThemeActive();
}

DWORD GetThemeAppProperties() {
    return headless::Themed() ? STAP_ALLOW_NONCLIENT | STAP_ALLOW_CONTROLS | STAP_ALLOW_WEBCONTENT
                              : 0;
}

HTHEME OpenThemeData(HWND hwnd, LPCWSTR classList) {
    const Lock lock;
    if (!headless::Themed() || classList == nullptr || IsOff(hwnd)) return nullptr;
    auto theme = std::make_unique<Theme>();
    theme->name = FirstName(classList);
    return static_cast<HTHEME>(AddObject(std::move(theme)));
}

HRESULT CloseThemeData(HTHEME theme) {
    const Lock lock;
    if (Find<Theme>(theme) == nullptr) return E_HANDLE;
    RemoveObject(theme);
    return S_OK;
}

HRESULT DrawThemeBackground(HTHEME theme, HDC handle, int part, int state, const RECT* rect,
                            const RECT*) {
    const Lock lock;
    const Theme* object = Find<Theme>(theme);
    DeviceContext* dc = FindDc(handle);
    if (object == nullptr || dc == nullptr) return E_HANDLE;
    if (rect == nullptr) return E_INVALIDARG;
    headless::DrawOp op;
    op.kind = headless::DrawKind::kThemePart;
    op.rect = dc->ToDevice(*rect);
    op.theme = object->name;
    op.part = part;
    op.state = state;
    Record(*dc, std::move(op));
    return S_OK;
}

HRESULT DrawThemeParentBackground(HWND hwnd, HDC handle, const RECT* rect) {
    const HWND parent = GetParent(hwnd);
    POINT origin{0, 0};
    {
        const Lock lock;
        DeviceContext* dc = FindDc(handle);
        if (dc == nullptr || parent == nullptr) return E_HANDLE;
        headless::DrawOp op;
        op.kind = headless::DrawKind::kThemeParent;
        op.rect = rect == nullptr ? dc->bounds : dc->ToDevice(*rect);
        Record(*dc, std::move(op));
    }
    // The parent draws its background with its own origin, and only where the child asked.
    MapWindowPoints(hwnd, parent, &origin, 1);
    const int saved = SaveDC(handle);
    if (rect != nullptr)
        IntersectClipRect(handle, rect->left, rect->top, rect->right, rect->bottom);
    SetViewportOrgEx(handle, -origin.x, -origin.y, nullptr);
    SendMessageA(parent, WM_ERASEBKGND, reinterpret_cast<WPARAM>(handle), 0);
    SendMessageA(parent, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(handle), PRF_CLIENT);
    RestoreDC(handle, saved);
    return S_OK;
}

HRESULT EnableThemeDialogTexture(HWND hwnd, DWORD flags) {
    if (!IsWindow(hwnd)) return E_HANDLE;
    const Lock lock;
    Windows()[hwnd].dialogTexture = flags;
    return S_OK;
}

BOOL IsThemeDialogTextureEnabled(HWND hwnd) {
    const Lock lock;
    const auto found = Windows().find(hwnd);
    if (found == Windows().end()) return FALSE;
    const DWORD flags = found->second.dialogTexture;
    return (flags & ETDT_ENABLE) != 0 && (flags & ETDT_DISABLE) == 0 ? TRUE : FALSE;
}

HRESULT SetWindowTheme(HWND hwnd, LPCWSTR appName, LPCWSTR idList) {
    if (!IsWindow(hwnd)) return E_HANDLE;
    {
        const Lock lock;
        const auto isBlank = [](LPCWSTR name) {
            return name != nullptr && (*name == L'\0' || (*name == L' ' && name[1] == L'\0'));
        };
        Windows()[hwnd].off = isBlank(appName) && isBlank(idList);
    }
    SendMessageA(hwnd, WM_THEMECHANGED, 0, 0);
    return S_OK;
}

// The classes of the common controls stand ready from the start.
void InitCommonControls() {}
