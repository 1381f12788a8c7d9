// Private profile files. Each call reads the file, and a change replaces it whole.
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "platform/headless/diagnostics.h"
#include "platform/headless/headless.h"
#include "platform/headless/paths.h"
#include "text/ProfileText.h"

namespace {

// A name without a folder stands in the system's own folder.
std::string FileOf(LPCSTR file) {
    const std::string path = file;
    if (path.find_first_of("\\/:") != std::string::npos) return headless::NativePath(file);
    char folder[MAX_PATH];
    GetWindowsDirectoryA(folder, MAX_PATH);
    return headless::NativePath((std::string(folder) + "\\" + path).c_str());
}

// Reads the text of a file, empty when there is none. Returns the platform's error.
unsigned ReadText(LPCSTR file, std::string* text) {
    text->clear();
    if (file == nullptr) return ERROR_FILE_NOT_FOUND;
    const unsigned error = headless::ReadFileText(FileOf(file), text);
    if (error == ERROR_SUCCESS && (std::string_view(*text).substr(0, 2) == "\xFF\xFE" ||
                                   std::string_view(*text).substr(0, 2) == "\xFE\xFF")) {
        headless::ReportUnsupported("profile file in UTF-16");
        text->clear();
        return ERROR_BAD_FORMAT;
    }
    return error;
}

// Copies a text, cut to the buffer; returns its length without the zero.
DWORD DeliverText(std::string_view text, LPSTR buffer, DWORD size) {
    const std::size_t count = text.size() < size - 1 ? text.size() : size - 1;
    if (count != 0) std::memcpy(buffer, text.data(), count);
    buffer[count] = '\0';
    return static_cast<DWORD>(count);
}

// Copies a list of texts, each with a zero, and one more at the end; one that does not fit is cut,
// and then the result is the size less two.
DWORD DeliverList(const std::string& list, LPSTR buffer, DWORD size) {
    if (size < 2) {
        if (size == 1) buffer[0] = '\0';
        return 0;
    }
    if (list.size() < size) {
        std::memcpy(buffer, list.data(), list.size());
        buffer[list.size()] = '\0';
        if (list.empty()) buffer[1] = '\0';
        return static_cast<DWORD>(list.size());
    }
    std::memcpy(buffer, list.data(), size - 2);
    buffer[size - 2] = '\0';
    buffer[size - 1] = '\0';
    return size - 2;
}

std::string NamesOf(const ProfileText& profile) {
    std::string list;
    profile.EachSection([&](std::string_view name) {
        list += name;
        list += '\0';
    });
    return list;
}

// The default's own blanks at its end are dropped, quotes around it too.
std::string_view DefaultText(LPCSTR text) {
    std::string_view view = text != nullptr ? text : "";
    while (!view.empty() && view.back() == ' ') view.remove_suffix(1);
    return ProfileText::Unquoted(view);
}

BOOL Fail(unsigned error) {
    SetLastError(error);
    return FALSE;
}

// Reads a profile for a change, and writes it back if the change was one.
template <typename Change>
BOOL ChangeProfile(LPCSTR file, Change change) {
    std::string text;
    const unsigned error = ReadText(file, &text);
    if (file == nullptr) return Fail(error);
    if (error != ERROR_SUCCESS && error != ERROR_FILE_NOT_FOUND && error != ERROR_PATH_NOT_FOUND) {
        return Fail(error);
    }
    ProfileText profile(std::move(text));
    change(profile);
    if (!profile.IsChanged()) return TRUE;
    const unsigned written = headless::ReplaceFileText(FileOf(file), profile.Text());
    return written == ERROR_SUCCESS ? TRUE : Fail(written);
}

}  // namespace

DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR defaultText, LPSTR buffer,
                               DWORD size, LPCSTR file) {
    if (buffer == nullptr || size == 0) return 0;
    if (section == nullptr) return GetPrivateProfileSectionNamesA(buffer, size, file);
    std::string text;
    const unsigned error = ReadText(file, &text);
    if (error != ERROR_SUCCESS) SetLastError(error);
    ProfileText profile(std::move(text));
    if (key == nullptr) {
        std::string list;
        const bool found =
            profile.EachEntry(section, [&](std::string_view name, std::string_view, bool hasEqual) {
                if (!hasEqual) return;
                list += name;
                list += '\0';
            });
        if (found) return DeliverList(list, buffer, size);
        return DeliverText(DefaultText(defaultText), buffer, size);
    }
    std::string_view value;
    if (profile.Find(section, key, &value)) {
        return DeliverText(ProfileText::Unquoted(value), buffer, size);
    }
    return DeliverText(DefaultText(defaultText), buffer, size);
}

UINT GetPrivateProfileIntA(LPCSTR section, LPCSTR key, INT defaultValue, LPCSTR file) {
    char text[32];
    if (section == nullptr || key == nullptr ||
        GetPrivateProfileStringA(section, key, "", text, sizeof text, file) == 0) {
        return static_cast<UINT>(defaultValue);
    }
    const char* p = text;
    const bool minus = *p == '-';
    if (*p == '-' || *p == '+') ++p;
    UINT base = 10;
    if (p[0] == '0' && (p[1] | 0x20) == 'x') {
        base = 16;
        p += 2;
    }
    UINT value = 0;
    for (;; ++p) {
        UINT digit = 99;
        if (*p >= '0' && *p <= '9') digit = static_cast<UINT>(*p - '0');
        if ((*p | 0x20) >= 'a' && (*p | 0x20) <= 'f')
            digit = static_cast<UINT>((*p | 0x20) - 'a' + 10);
        if (digit >= base) break;
        value = value * base + digit;
    }
    return minus ? 0u - value : value;
}

DWORD GetPrivateProfileSectionA(LPCSTR section, LPSTR buffer, DWORD size, LPCSTR file) {
    if (section == nullptr || buffer == nullptr) return 0;
    std::string text;
    const unsigned error = ReadText(file, &text);
    if (error != ERROR_SUCCESS) SetLastError(error);
    ProfileText profile(std::move(text));
    std::string list;
    profile.EachEntry(section, [&](std::string_view name, std::string_view value, bool hasEqual) {
        list += name;
        if (hasEqual) {
            list += '=';
            list += value;
        }
        list += '\0';
    });
    return DeliverList(list, buffer, size);
}

DWORD GetPrivateProfileSectionNamesA(LPSTR buffer, DWORD size, LPCSTR file) {
    if (buffer == nullptr) return 0;
    std::string text;
    const unsigned error = ReadText(file, &text);
    if (error != ERROR_SUCCESS) SetLastError(error);
    const ProfileText profile(std::move(text));
    return DeliverList(NamesOf(profile), buffer, size);
}

BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR key, LPCSTR value, LPCSTR file) {
    // Nothing is kept back here, so that there is nothing to flush; the call answers FALSE all the
    // same.
    if (section == nullptr)
        return key == nullptr && value == nullptr ? FALSE : Fail(ERROR_FILE_NOT_FOUND);
    return ChangeProfile(file, [&](ProfileText& profile) {
        if (key == nullptr) {
            profile.RemoveSection(section);
        } else if (value == nullptr) {
            profile.RemoveKey(section, key);
        } else {
            profile.Set(section, key, value);
        }
    });
}

BOOL WritePrivateProfileSectionA(LPCSTR section, LPCSTR pairs, LPCSTR file) {
    if (section == nullptr) return Fail(ERROR_INVALID_PARAMETER);
    return ChangeProfile(file, [&](ProfileText& profile) {
        if (pairs == nullptr) {
            profile.RemoveSection(section);
            return;
        }
        profile.ClearSection(section);
        for (const char* pair = pairs; *pair != '\0'; pair += std::strlen(pair) + 1) {
            const std::string_view line = pair;
            const std::size_t equal = line.find('=');
            if (equal != std::string_view::npos) {
                profile.Set(section, line.substr(0, equal), line.substr(equal + 1));
            }
        }
    });
}
