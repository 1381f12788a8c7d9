#include "framework/Theming.h"

#include <string_view>

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

bool TellsVersion6(HMODULE hModule) {
    const auto pGetVersion =
        reinterpret_cast<GetVersionProc>(GetProcAddress(hModule, "DllGetVersion"));
    LibraryVersion version = {};
    version.cbSize = sizeof version;
    return pGetVersion != nullptr && SUCCEEDED(pGetVersion(&version)) &&
           version.dwMajorVersion >= 6;
}

// A manifest gives a program the library of this assembly. On some systems that library still tells
// the number of the older one.
bool IsOfAssembly6(HMODULE hModule) {
    char szPath[MAX_PATH] = "";
    const DWORD nLength = GetModuleFileNameA(hModule, szPath, MAX_PATH);
    const std::string_view sPath(szPath, nLength < MAX_PATH ? nLength : MAX_PATH - 1);
    return sPath.find("common-controls_6595b64144ccf1df_6.") != std::string_view::npos;
}

}  // namespace

bool IsDialogThemingActive() {
    return IsAppThemed() && IsThemeActive();
}

bool IsThemedWithCommonControls6() {
    if (!IsDialogThemingActive()) return false;
    const HMODULE hModule = GetModuleHandleA("comctl32.dll");
    if (hModule == nullptr) return false;
    return TellsVersion6(hModule) || IsOfAssembly6(hModule);
}
