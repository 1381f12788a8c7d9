// Files and folders: what the library needs to read a file whole and to replace one in a single
// step.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <unordered_map>

#include "platform/headless/system/paths.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/names.h"

namespace {

// Open files by handle; a handle that isn't here is none.
std::unordered_map<HANDLE, int>& OpenFiles() {
    static std::unordered_map<HANDLE, int> files;
    return files;
}

int FileOf(HANDLE handle) {
    const auto found = OpenFiles().find(handle);
    if (found != OpenFiles().end()) return found->second;
    SetLastError(ERROR_INVALID_HANDLE);
    return -1;
}

BOOL Succeed(bool success) {
    if (!success) SetLastError(headless::ErrorOfSystem(errno));
    return success;
}

std::string FolderOf(const std::string& native) {
    const std::size_t end = native.rfind('/');
    return end == std::string::npos ? "." : native.substr(0, end + 1);
}

// A file in a folder that isn't there has another error than one that is missing itself.
void SetMissingError(const std::string& native) {
    struct stat state = {};
    const bool folder = errno != ENOENT || stat(FolderOf(native).c_str(), &state) == 0;
    SetLastError(folder ? headless::ErrorOfSystem(errno) : ERROR_PATH_NOT_FOUND);
}

}  // namespace

HANDLE CreateFileA(LPCSTR path, DWORD access, DWORD, void*, DWORD disposition, DWORD, HANDLE) {
    const std::string native = headless::NativePath(path);
    int flags = O_CLOEXEC;
    const bool writes = (access & GENERIC_WRITE) != 0;
    flags |= !writes ? O_RDONLY : (access & GENERIC_READ) != 0 ? O_RDWR : O_WRONLY;
    switch (disposition) {
        case CREATE_NEW:
            flags |= O_CREAT | O_EXCL;
            break;
        case CREATE_ALWAYS:
            flags |= O_CREAT | O_TRUNC;
            break;
        case OPEN_ALWAYS:
            flags |= O_CREAT;
            break;
        case OPEN_EXISTING:
            break;
        default:
            headless::ReportUnsupported("CreateFileA disposition " + std::to_string(disposition));
            SetLastError(ERROR_INVALID_PARAMETER);
            return INVALID_HANDLE_VALUE;
    }
    struct stat state = {};
    if (stat(native.c_str(), &state) == 0 &&
        (S_ISDIR(state.st_mode) || (writes && (state.st_mode & S_IWUSR) == 0))) {
        SetLastError(ERROR_ACCESS_DENIED);
        return INVALID_HANDLE_VALUE;
    }
    const int file = open(native.c_str(), flags, 0644);
    if (file < 0) {
        SetMissingError(native);
        return INVALID_HANDLE_VALUE;
    }
    // Handle numbers are multiples of 4 and never 0.
    const HANDLE handle = reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(file + 1) * 4);
    OpenFiles()[handle] = file;
    return handle;
}

BOOL ReadFile(HANDLE file, LPVOID buffer, DWORD count, DWORD* done, void*) {
    const int number = FileOf(file);
    if (number < 0) return FALSE;
    const ssize_t result = read(number, buffer, count);
    if (done != nullptr) *done = result > 0 ? static_cast<DWORD>(result) : 0;
    return Succeed(result >= 0);
}

BOOL WriteFile(HANDLE file, LPCVOID buffer, DWORD count, DWORD* done, void*) {
    const int number = FileOf(file);
    if (number < 0) return FALSE;
    DWORD written = 0;
    bool success = true;
    while (success && written < count) {
        const ssize_t result =
            write(number, static_cast<const char*>(buffer) + written, count - written);
        success = result >= 0;
        if (success) written += static_cast<DWORD>(result);
    }
    if (done != nullptr) *done = written;
    return Succeed(success);
}

BOOL FlushFileBuffers(HANDLE file) {
    const int number = FileOf(file);
    return number >= 0 && Succeed(fdatasync(number) == 0);
}

DWORD GetFileSize(HANDLE file, DWORD* high) {
    const int number = FileOf(file);
    struct stat state = {};
    if (number < 0 || !Succeed(fstat(number, &state) == 0)) return INVALID_FILE_SIZE;
    const std::uint64_t size = static_cast<std::uint64_t>(state.st_size);
    if (high != nullptr) *high = static_cast<DWORD>(size >> 32);
    return static_cast<DWORD>(size);
}

BOOL CloseHandle(HANDLE handle) {
    const int number = FileOf(handle);
    if (number < 0) return FALSE;
    OpenFiles().erase(handle);
    return Succeed(close(number) == 0);
}

BOOL DeleteFileA(LPCSTR path) {
    const std::string native = headless::NativePath(path);
    struct stat state = {};
    if (stat(native.c_str(), &state) == 0 &&
        (S_ISDIR(state.st_mode) || (state.st_mode & S_IWUSR) == 0)) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (unlink(native.c_str()) == 0) return TRUE;
    SetMissingError(native);
    return FALSE;
}

BOOL MoveFileExA(LPCSTR from, LPCSTR to, DWORD flags) {
    const std::string source = headless::NativePath(from);
    const std::string target = headless::NativePath(to);
    struct stat state = {};
    if (stat(target.c_str(), &state) == 0) {
        if ((flags & MOVEFILE_REPLACE_EXISTING) == 0) {
            SetLastError(ERROR_ALREADY_EXISTS);
            return FALSE;
        }
        if (S_ISDIR(state.st_mode) || (state.st_mode & S_IWUSR) == 0) {
            SetLastError(ERROR_ACCESS_DENIED);
            return FALSE;
        }
    }
    if (rename(source.c_str(), target.c_str()) == 0) return TRUE;
    SetMissingError(target);
    return FALSE;
}

DWORD GetFileAttributesA(LPCSTR path) {
    const std::string native = headless::NativePath(path);
    struct stat state = {};
    if (stat(native.c_str(), &state) != 0) {
        SetMissingError(native);
        return INVALID_FILE_ATTRIBUTES;
    }
    DWORD attributes = 0;
    if (S_ISDIR(state.st_mode)) attributes |= FILE_ATTRIBUTE_DIRECTORY;
    if ((state.st_mode & S_IWUSR) == 0) attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes != 0 ? attributes : FILE_ATTRIBUTE_NORMAL;
}

BOOL SetFileAttributesA(LPCSTR path, DWORD attributes) {
    const std::string native = headless::NativePath(path);
    struct stat state = {};
    if (stat(native.c_str(), &state) != 0) {
        SetMissingError(native);
        return FALSE;
    }
    const bool readOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    const mode_t mode = readOnly ? state.st_mode & ~0222u : state.st_mode | S_IWUSR;
    return Succeed(chmod(native.c_str(), mode & 07777) == 0);
}

BOOL CreateDirectoryA(LPCSTR path, void*) {
    const std::string native = headless::NativePath(path);
    if (mkdir(native.c_str(), 0755) == 0) return TRUE;
    SetLastError(errno == ENOENT ? ERROR_PATH_NOT_FOUND : headless::ErrorOfSystem(errno));
    return FALSE;
}

BOOL RemoveDirectoryA(LPCSTR path) {
    return Succeed(rmdir(headless::NativePath(path).c_str()) == 0);
}

UINT GetTempFileNameA(LPCSTR directory, LPCSTR prefix, UINT unique, LPSTR buffer) {
    std::string folder = directory != nullptr ? directory : "";
    while (!folder.empty() && (folder.back() == '\\' || folder.back() == '/')) folder.pop_back();
    const std::string start = std::string(prefix != nullptr ? prefix : "").substr(0, 3);
    static UINT next = static_cast<UINT>(getpid());
    for (UINT attempt = 0; attempt < 0xFFFF; ++attempt) {
        const UINT number = unique != 0 ? unique & 0xFFFF : ++next & 0xFFFF;
        if (number == 0) continue;
        char digits[8];
        static const char* const kHex = "0123456789ABCDEF";
        std::size_t length = 0;
        for (int shift = 12; shift >= 0; shift -= 4) {
            if (length != 0 || number >> shift != 0) digits[length++] = kHex[number >> shift & 15];
        }
        const std::string path = folder + "\\" + start + std::string(digits, length) + ".tmp";
        if (path.size() >= MAX_PATH) break;
        std::memcpy(buffer, path.c_str(), path.size() + 1);
        if (unique != 0) return number;
        const HANDLE file =
            CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr);
        if (file != INVALID_HANDLE_VALUE) {
            CloseHandle(file);
            return number;
        }
        if (GetLastError() != ERROR_ALREADY_EXISTS && GetLastError() != ERROR_ACCESS_DENIED) break;
    }
    return 0;
}
