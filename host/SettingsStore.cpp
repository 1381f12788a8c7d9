#include "SettingsStore.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "System.h"
#include "zxadlg/headless.h"

namespace zxhost {
namespace {

// The library looks below "Software" in the branch that this variable names.
constexpr char kRootVariable[] = "ZDC_REGISTRY_ROOT";
constexpr char kOwnRoot[] = "ZxHost";
// The file that takes the name of the store when it is whole.
constexpr char kNewFile[] = ".new";
constexpr DWORD kNameSize = 1024;

int runs = 0;

std::string Escaped(const std::string& value) {
    std::string text;
    for (char c : value) {
        if (c == '\\') {
            text += "\\\\";
        } else if (c == '\n') {
            text += "\\n";
        } else if (c != '\r') {
            text += c;
        }
    }
    return text;
}

std::string Unescaped(const std::string& text) {
    std::string value;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            ++i;
            value += text[i] == 'n' ? '\n' : text[i];
        } else {
            value += text[i];
        }
    }
    return value;
}

std::vector<std::string> SubKeys(HKEY key) {
    std::vector<std::string> names;
    for (DWORD i = 0;; ++i) {
        char name[kNameSize];
        DWORD size = sizeof name;
        if (RegEnumKeyExA(key, i, name, &size, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return names;
        names.emplace_back(name, size);
    }
}

void ReadSection(HKEY key, std::map<std::string, std::string>* values) {
    for (DWORD i = 0;; ++i) {
        char name[kNameSize];
        DWORD nameSize = sizeof name, type = 0, size = 0;
        if (RegEnumValueA(key, i, name, &nameSize, nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
            return;
        if (type != REG_SZ) continue;
        std::string text(size, '\0');
        if (RegQueryValueExA(key, name, nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                             &size) != ERROR_SUCCESS)
            continue;
        text.resize(std::min<std::size_t>(text.find('\0'), size));
        (*values)[FromSystem(std::string(name, nameSize))] = FromSystem(text);
    }
}

bool WriteSection(const std::string& path, const std::map<std::string, std::string>& values) {
    HKEY key = nullptr;
    if (RegCreateKeyExA(HKEY_CURRENT_USER, ToSystem(path).c_str(), 0, nullptr, 0, KEY_SET_VALUE,
                        nullptr, &key, nullptr) != ERROR_SUCCESS)
        return false;
    bool good = true;
    for (const auto& [name, text] : values) {
        const std::string value = ToSystem(text);
        if (RegSetValueExA(key, ToSystem(name).c_str(), 0, REG_SZ,
                           reinterpret_cast<const BYTE*>(value.c_str()),
                           static_cast<DWORD>(value.size() + 1)) != ERROR_SUCCESS)
            good = false;
    }
    RegCloseKey(key);
    return good;
}

bool IsReadOnly(const std::filesystem::path& path) {
    using std::filesystem::perms;
    std::error_code code;
    const perms rights = std::filesystem::status(path, code).permissions();
    return !code && (rights & perms::owner_write) == perms::none;
}

}  // namespace

std::string FormatSettings(const Settings& settings) {
    std::string text;
    for (const auto& [section, values] : settings) {
        if (values.empty()) continue;
        if (!text.empty()) text += '\n';
        text += "[" + section + "]\n";
        for (const auto& [name, value] : values) text += name + "=" + Escaped(value) + "\n";
    }
    return text;
}

bool ParseSettings(const std::string& text, const std::string& name, Settings* settings,
                   std::string* error) {
    const std::string wide = WrongEncoding(text);
    if (!wide.empty()) {
        *error = name + ": " + wide;
        return false;
    }
    Settings read;
    std::map<std::string, std::string>* section = nullptr;
    std::size_t at = 0;
    for (int number = 1; at < text.size(); ++number) {
        const std::size_t end = std::min(text.find('\n', at), text.size());
        std::string line = text.substr(at, end - at);
        at = end + 1;
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const auto fail = [&](const char* why) {
            *error = name + ":" + std::to_string(number) + ": " + why;
            return false;
        };
        if (line.find('\0') != std::string::npos) return fail("this is not a text file");
        if (FindWrongByte(line) != std::string::npos) return fail("this is not UTF-8 text");
        if (line.empty() || line.front() == ';') continue;
        if (line.front() == '[') {
            if (line.size() < 3 || line.back() != ']') return fail("a section is \"[NAME]\"");
            const std::string inner = line.substr(1, line.size() - 2);
            if (inner.find('\\') != std::string::npos) return fail("a section has no backslash");
            section = &read[inner];
            continue;
        }
        const std::size_t equals = line.find('=');
        if (equals == std::string::npos || equals == 0) return fail("a setting is \"KEY=VALUE\"");
        if (section == nullptr) return fail("a setting stands before the first section");
        (*section)[line.substr(0, equals)] = Unescaped(line.substr(equals + 1));
    }
    *settings = std::move(read);
    return true;
}

SettingsStore::~SettingsStore() {
    if (!open_) return;
    if (keep_ != Keep::kLive) RegDeleteTreeA(HKEY_CURRENT_USER, ("Software\\" + root_).c_str());
    SetEnvironmentVariableA(kRootVariable, hadRoot_ ? oldRoot_.c_str() : nullptr);
}

std::string SettingsStore::Key() const {
    return "Software\\" + root_ + "\\" + ProfileName();
}

bool SettingsStore::Open(const std::string& path, std::string* error) {
    if (path.empty()) return Prepare(Keep::kLive, {}, error);
    Settings settings;
    const std::filesystem::path file = PathOf(path);
    std::error_code code;
    if (std::filesystem::exists(file, code)) {
        if (std::filesystem::is_directory(file, code)) {
            *error = path + ": this is a folder, not a store";
            return false;
        }
        if (IsReadOnly(file)) {
            *error = path + ": the store is read-only";
            return false;
        }
        std::ifstream stream(file, std::ios::binary);
        textBefore_.assign(std::istreambuf_iterator<char>(stream),
                           std::istreambuf_iterator<char>());
        if (!stream) {
            *error = path + ": the store cannot be read";
            return false;
        }
        if (!ParseSettings(textBefore_, path, &settings, error)) return false;
    } else if (!file.parent_path().empty() &&
               !std::filesystem::is_directory(file.parent_path(), code)) {
        *error = path + ": there is no such folder for the store";
        return false;
    }
    // Better now than when the user has made all choices.
    const std::filesystem::path made = PathOf(path + kNewFile);
    if (!std::ofstream(made, std::ios::binary | std::ios::trunc)) {
        *error = path + ": the store cannot be written";
        return false;
    }
    std::filesystem::remove(made, code);
    path_ = path;
    return Prepare(Keep::kFile, settings, error);
}

bool SettingsStore::OpenScratch(std::string* error) {
    return Prepare(Keep::kNothing, {}, error);
}

bool SettingsStore::OpenCopy(std::string* error) {
    Settings settings;
    {
        SettingsStore own;
        if (!own.Open("", error)) return false;
        settings = own.Read();
    }
    return Prepare(Keep::kOwn, settings, error);
}

bool SettingsStore::Prepare(Keep keep, const Settings& settings, std::string* error) {
    char old[kNameSize];
    const DWORD size = GetEnvironmentVariableA(kRootVariable, old, sizeof old);
    hadRoot_ = size > 0 && size < sizeof old;
    if (hadRoot_) oldRoot_.assign(old, size);
    keep_ = keep;
    if (keep == Keep::kLive) {
        root_ = hadRoot_ ? oldRoot_ : kOwnRoot;
    } else {
        root_ = "ZxHost-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++runs);
        // A run that was killed may have left a branch of this name behind.
        RegDeleteTreeA(HKEY_CURRENT_USER, ("Software\\" + root_).c_str());
    }
    SetEnvironmentVariableA(kRootVariable, root_.c_str());
    open_ = true;
    if (!WriteAll(settings, error)) return false;
    before_ = Read();
    return true;
}

bool SettingsStore::WriteAll(const Settings& settings, std::string* error) {
    for (const auto& [section, values] : settings) {
        if (WriteSection(Key() + "\\" + section, values)) continue;
        *error = path_ + ": the settings cannot be kept in the registry";
        return false;
    }
    return true;
}

bool SettingsStore::Replace(const Settings& settings, std::string* error) {
    RegDeleteTreeA(HKEY_CURRENT_USER, Key().c_str());
    return WriteAll(settings, error);
}

Settings SettingsStore::Read() const {
    Settings settings;
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, Key().c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return settings;
    for (const std::string& name : SubKeys(key)) {
        HKEY section = nullptr;
        if (RegOpenKeyExA(key, name.c_str(), 0, KEY_READ, &section) != ERROR_SUCCESS) continue;
        ReadSection(section, &settings[FromSystem(name)]);
        RegCloseKey(section);
    }
    RegCloseKey(key);
    return settings;
}

bool SettingsStore::Save(std::string* error) const {
    if (keep_ == Keep::kOwn) {
        const std::string own = "Software\\" + (hadRoot_ ? oldRoot_ : std::string(kOwnRoot)) +
                                "\\" + ProfileName() + "\\";
        for (const auto& [section, values] : Read()) {
            if (WriteSection(own + section, values)) continue;
            *error = "the user's own settings cannot be written";
            return false;
        }
    }
    if (keep_ != Keep::kFile) return true;
    const std::string text = FormatSettings(Read());
    if (text == textBefore_) return true;
    const std::filesystem::path made = PathOf(path_ + kNewFile);
    std::error_code code;
    {
        std::ofstream file(made, std::ios::binary | std::ios::trunc);
        file << text;
        file.close();
        if (!file) {
            std::filesystem::remove(made, code);
            *error = path_ + ": the store cannot be written";
            return false;
        }
    }
    std::filesystem::rename(made, PathOf(path_), code);
    if (!code) return true;
    *error = path_ + ": the store cannot be replaced: " + code.message();
    std::filesystem::remove(made, code);
    return false;
}

}  // namespace zxhost
