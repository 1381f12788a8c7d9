#include "platform/headless/system/paths.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <vector>

#include "zxadlg/headless/names.h"

namespace headless {
namespace {

bool IsSeparator(char ch) {
    return ch == '\\' || ch == '/';
}

bool IsDrive(std::string_view path) {
    const char ch = path.empty() ? '\0' : static_cast<char>(path[0] | 0x20);
    return path.size() >= 2 && path[1] == ':' && ch >= 'a' && ch <= 'z';
}

std::string WithSlashes(std::string_view path) {
    std::string result(path);
    for (char& ch : result) {
        if (ch == '\\') ch = '/';
    }
    return result;
}

// Puts the components of a path behind its root, "." and ".." resolved and the dots and blanks that
// the platform drops from the end of a name left out.
std::string Resolve(const std::string& root, std::string_view rest) {
    std::vector<std::string_view> parts;
    const bool folder = !rest.empty() && IsSeparator(rest.back());
    std::size_t begin = 0;
    while (begin < rest.size()) {
        std::size_t end = begin;
        while (end < rest.size() && !IsSeparator(rest[end])) ++end;
        std::string_view part = rest.substr(begin, end - begin);
        begin = end + 1;
        if (part == "..") {
            if (!parts.empty()) parts.pop_back();
            continue;
        }
        while (!part.empty() && part.back() == '.') part.remove_suffix(1);
        if (begin >= rest.size()) {
            while (!part.empty() && (part.back() == '.' || part.back() == ' '))
                part.remove_suffix(1);
        }
        if (!part.empty()) parts.push_back(part);
    }
    std::string result = root;
    for (const std::string_view part : parts) {
        result += '\\';
        result += part;
    }
    if (parts.empty() ? root.size() == 2 : folder) result += '\\';
    return result;
}

std::string CurrentFolder() {
    std::error_code error;
    const std::filesystem::path path = std::filesystem::current_path(error);
    return error ? "/" : path.string();
}

}  // namespace

std::string Home() {
    const char* home = std::getenv("ZX_HEADLESS_HOME");
    if (home != nullptr && *home != '\0') return home;
    const char* data = std::getenv("XDG_DATA_HOME");
    if (data != nullptr && *data == '/') return std::string(data) + "/zxanalysisdialogs";
    const char* user = std::getenv("HOME");
    if (user != nullptr && *user == '/')
        return std::string(user) + "/.local/share/zxanalysisdialogs";
    return "/tmp/zxanalysisdialogs-" + std::to_string(getuid());
}

std::string NativePath(const char* path) {
    if (path == nullptr || *path == '\0') return {};
    if (*path == '/') return WithSlashes(path);
    const std::string full = FullPath(path);
    if (IsDrive(full)) {
        const char drive = static_cast<char>(full[0] | 0x20);
        if (drive == 'z') return WithSlashes(std::string_view(full).substr(2));
        const std::string root = Home() + "/drive_" + drive;
        std::error_code ignored;
        std::filesystem::create_directories(root, ignored);
        return root + WithSlashes(std::string_view(full).substr(2));
    }
    return Home() + "/unc" + WithSlashes(std::string_view(full).substr(1));
}

std::string PlatformPath(std::string_view native) {
    std::string result = "Z:";
    for (const char ch : native) result += ch == '/' ? '\\' : ch;
    return result;
}

std::string FullPath(std::string_view path) {
    if (path.empty()) return {};
    if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
        // Server and share are the root.
        std::size_t end = 2;
        for (int part = 0; part < 2; ++part) {
            if (part != 0 && end < path.size()) ++end;
            while (end < path.size() && !IsSeparator(path[end])) ++end;
        }
        std::string root(path.substr(0, end));
        for (char& ch : root) {
            if (ch == '/') ch = '\\';
        }
        return Resolve(root, path.substr(end));
    }
    if (IsDrive(path)) {
        const std::string root(path.substr(0, 2));
        const std::string_view rest = path.substr(2);
        // A path behind the bare letter starts in the drive's current folder: only Z: has one.
        const bool relative = rest.empty() || !IsSeparator(rest[0]);
        if (relative && (path[0] | 0x20) == 'z') {
            return Resolve(root, CurrentFolder() + "/" + std::string(rest));
        }
        return Resolve(root, rest);
    }
    if (IsSeparator(path[0])) return Resolve("Z:", path);
    return Resolve("Z:", CurrentFolder() + "/" + std::string(path));
}

unsigned ErrorOfSystem(int error) {
    switch (error) {
        case 0:
            return ERROR_SUCCESS;
        case ENOENT:
            return ERROR_FILE_NOT_FOUND;
        case ENOTDIR:
            return ERROR_PATH_NOT_FOUND;
        case EEXIST:
            return ERROR_ALREADY_EXISTS;
        case ENOTEMPTY:
            return ERROR_DIR_NOT_EMPTY;
        case ENOSPC:
            return ERROR_DISK_FULL;
        case ENAMETOOLONG:
            return ERROR_INVALID_NAME;
        default:
            return ERROR_ACCESS_DENIED;
    }
}

unsigned ReadFileText(const std::string& native, std::string* text) {
    text->clear();
    const int file = open(native.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return ErrorOfSystem(errno);
    struct stat state = {};
    unsigned error = fstat(file, &state) == 0 ? ERROR_SUCCESS : ErrorOfSystem(errno);
    if (error == ERROR_SUCCESS && !S_ISREG(state.st_mode)) error = ERROR_ACCESS_DENIED;
    while (error == ERROR_SUCCESS) {
        constexpr std::size_t kBlock = 65536;
        const std::size_t old = text->size();
        const std::size_t left = static_cast<std::size_t>(state.st_size);
        text->resize(old + (left > old ? left - old : kBlock));
        const ssize_t done = read(file, text->data() + old, text->size() - old);
        text->resize(old + static_cast<std::size_t>(done > 0 ? done : 0));
        if (done < 0) error = ErrorOfSystem(errno);
        if (done <= 0 || text->size() == left) break;
    }
    close(file);
    return error;
}

unsigned ReplaceFileText(const std::string& native, std::string_view text) {
    struct stat state = {};
    const bool exists = stat(native.c_str(), &state) == 0;
    // A file that may not be written would otherwise be replaced by its name alone.
    if (exists && (!S_ISREG(state.st_mode) || (state.st_mode & S_IWUSR) == 0)) {
        return ERROR_ACCESS_DENIED;
    }
    std::string temporary = native + "." + std::string(6, 'X');  // filled in by mkstemp
    const int file = mkostemp(temporary.data(), O_CLOEXEC);
    if (file < 0) return errno == ENOENT ? ERROR_PATH_NOT_FOUND : ErrorOfSystem(errno);
    unsigned error = ERROR_SUCCESS;
    while (error == ERROR_SUCCESS && !text.empty()) {
        const ssize_t done = write(file, text.data(), text.size());
        if (done < 0) {
            error = ErrorOfSystem(errno);
        } else {
            text.remove_prefix(static_cast<std::size_t>(done));
        }
    }
    if (fchmod(file, exists ? state.st_mode & 07777 : 0644) != 0 && error == ERROR_SUCCESS) {
        error = ErrorOfSystem(errno);
    }
    if (close(file) != 0 && error == ERROR_SUCCESS) error = ErrorOfSystem(errno);
    if (error == ERROR_SUCCESS && rename(temporary.c_str(), native.c_str()) != 0) {
        error = ErrorOfSystem(errno);
    }
    if (error != ERROR_SUCCESS) unlink(temporary.c_str());
    return error;
}

}  // namespace headless
