// Environment variables, well-known folders and full paths.
#include <strings.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>

#include "platform/headless/system/paths.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/names.h"

namespace {

// Names of variables do not know case here; the exact spelling comes first.
const char* FindVariable(const char* name) {
    if (const char* value = std::getenv(name)) return value;
    const std::size_t length = std::strlen(name);
    for (char** entry = environ; entry != nullptr && *entry != nullptr; ++entry) {
        if (strncasecmp(*entry, name, length) == 0 && (*entry)[length] == '=') {
            return *entry + length + 1;
        }
    }
    return nullptr;
}

// The spelling under which a variable stands, or the given one.
std::string SpellingOf(const char* name) {
    const char* value = FindVariable(name);
    if (value == nullptr || std::getenv(name) != nullptr) return name;
    const std::size_t length = std::strlen(name);
    return std::string(value - length - 1, length);
}

// Copies a text into a buffer of the platform's kind: the length, or the size needed if it is too
// small.
DWORD Deliver(const std::string& text, LPSTR buffer, DWORD size) {
    if (buffer == nullptr || size <= text.size()) return static_cast<DWORD>(text.size() + 1);
    std::memcpy(buffer, text.c_str(), text.size() + 1);
    return static_cast<DWORD>(text.size());
}

std::string UserFolder() {
    const char* user = std::getenv("HOME");
    return user != nullptr && *user == '/' ? user : headless::Home();
}

}  // namespace

DWORD GetEnvironmentVariableA(LPCSTR name, LPSTR buffer, DWORD size) {
    const char* value = name != nullptr ? FindVariable(name) : nullptr;
    if (value == nullptr) {
        SetLastError(ERROR_ENVVAR_NOT_FOUND);
        return 0;
    }
    return Deliver(value, buffer, size);
}

BOOL SetEnvironmentVariableA(LPCSTR name, LPCSTR value) {
    if (name == nullptr || *name == '\0' || std::strchr(name, '=') != nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const std::string spelling = SpellingOf(name);
    const int result =
        value != nullptr ? setenv(spelling.c_str(), value, 1) : unsetenv(spelling.c_str());
    return result == 0;
}

DWORD GetFullPathNameA(LPCSTR path, DWORD size, LPSTR buffer, LPSTR* filePart) {
    if (filePart != nullptr) *filePart = nullptr;
    if (path == nullptr || *path == '\0') {
        SetLastError(ERROR_INVALID_NAME);
        return 0;
    }
    const std::string full = headless::FullPath(path);
    const DWORD length = Deliver(full, buffer, size);
    if (filePart != nullptr && length < size && full.back() != '\\') {
        *filePart = buffer + full.rfind('\\') + 1;
    }
    return length;
}

DWORD GetCurrentDirectoryA(DWORD size, LPSTR buffer) {
    return Deliver(headless::FullPath("."), buffer, size);
}

DWORD GetTempPathA(DWORD size, LPSTR buffer) {
    const char* folder = std::getenv("TMPDIR");
    const std::string native = folder != nullptr && *folder == '/' ? folder : "/tmp";
    return Deliver(headless::PlatformPath(native) + "\\", buffer, size);
}

UINT GetWindowsDirectoryA(LPSTR buffer, UINT size) {
    const std::string folder = "C:\\windows";
    std::error_code ignored;
    std::filesystem::create_directories(headless::NativePath(folder.c_str()), ignored);
    return Deliver(folder, buffer, size);
}

HRESULT SHGetFolderPathA(HWND, int folder, HANDLE, DWORD, LPSTR path) {
    std::string native;
    switch (folder) {
        case CSIDL_PERSONAL:
            native = UserFolder() + "/Documents";
            break;
        case CSIDL_APPDATA:
        case CSIDL_LOCAL_APPDATA:
            native = headless::Home();
            break;
        default:
            headless::ReportUnsupported("SHGetFolderPathA folder " + std::to_string(folder));
            return E_INVALIDARG;
    }
    return Deliver(headless::PlatformPath(native), path, MAX_PATH) < MAX_PATH ? S_OK : E_FAIL;
}
