#include "framework/Theming.h"

#include "platform/platform.h"

namespace {

// The answer of a library's DllGetVersion.
struct LibraryVersion {
    DWORD cbSize;
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformID;
};
using GetVersionProc = HRESULT(CALLBACK*)(LibraryVersion*);

}  // namespace

bool IsDialogThemingActive() {
    return IsAppThemed() && IsThemeActive();
}

bool IsThemedWithCommonControls6() {
    if (!IsDialogThemingActive()) return false;
    const HMODULE hModule = GetModuleHandleA("comctl32.dll");
    if (hModule == nullptr) return false;
    const auto pGetVersion =
        reinterpret_cast<GetVersionProc>(GetProcAddress(hModule, "DllGetVersion"));
    LibraryVersion version = {};
    version.cbSize = sizeof version;
    return pGetVersion != nullptr && SUCCEEDED(pGetVersion(&version)) &&
           version.dwMajorVersion >= 6;
}
