#include "platform/headless/system/system_modules.h"

#include "platform/headless/drawing/display_state.h"
#include "platform/headless/system/codepage.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/functions.h"

namespace headless {

namespace {

// What DllGetVersion fills: its size, the version, the build and the platform.
struct LibraryVersion {
    DWORD size;
    DWORD major;
    DWORD minor;
    DWORD build;
    DWORD platform;
};

// A themed display stands for a program whose manifest asks for version 6 of the common controls.
HRESULT CommonControlsVersion(LibraryVersion* version) {
    if (version == nullptr || version->size < sizeof *version) return E_INVALIDARG;
    version->major = Themed() ? 6 : 5;
    version->minor = Themed() ? 10 : 82;
    version->build = 0;
    version->platform = 2;
    return S_OK;
}

const char kCommonControls[] = "comctl32";

}  // namespace

HMODULE SystemModule(const std::string& stem) {
    if (!SameName(stem, kCommonControls)) return nullptr;
    return reinterpret_cast<HMODULE>(const_cast<char*>(kCommonControls));
}

bool IsSystemModule(HMODULE module) {
    return module != nullptr && module == SystemModule(kCommonControls);
}

FARPROC SystemFunction(HMODULE, LPCSTR name) {
    if (!IS_INTRESOURCE(name) && std::string(name) == "DllGetVersion")
        return reinterpret_cast<FARPROC>(&CommonControlsVersion);
    SetLastError(ERROR_PROC_NOT_FOUND);
    return nullptr;
}

}  // namespace headless
