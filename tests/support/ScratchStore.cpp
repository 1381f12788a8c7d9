#include "support/ScratchStore.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/platform.h"

namespace test_support {
namespace {

int lastNumber = 0;

std::string Variable(const std::string& name, bool* exists) {
    SetLastError(ERROR_SUCCESS);
    const DWORD size = GetEnvironmentVariableA(name.c_str(), nullptr, 0);
    *exists = size != 0 || GetLastError() != ERROR_ENVVAR_NOT_FOUND;
    if (size == 0) return "";
    std::string value(size, '\0');
    value.resize(GetEnvironmentVariableA(name.c_str(), value.data(), size));
    return value;
}

}  // namespace

ScratchStore::ScratchStore() {
    const std::string name =
        "zx-test-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++lastNumber);
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / name;
    std::filesystem::create_directories(folder);
    folder_ = folder.string();
    file_ = File("settings.ini");
    branch_ = "Software\\" + name;
}

ScratchStore::~ScratchStore() {
    // Ends what the platform may keep in memory of the file.
    WritePrivateProfileStringA(nullptr, nullptr, nullptr, file_.c_str());
    std::error_code ignored;
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::permissions(file_, std::filesystem::perms::owner_all, ignored);
    std::filesystem::remove_all(folder_, ignored);
    RegDeleteTreeA(HKEY_CURRENT_USER, branch_.c_str());
}

std::string ScratchStore::File(const std::string& name) const {
    return (std::filesystem::path(folder_) / name).string();
}

std::string ScratchStore::ReadFile() const {
    std::ifstream in(file_, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void ScratchStore::WriteFile(const std::string& bytes) const {
    std::ofstream(file_, std::ios::binary) << bytes;
}

ScopedEnvironment::ScopedEnvironment(const std::string& name, const char* value) : name_(name) {
    before_ = Variable(name, &existed_);
    SetEnvironmentVariableA(name.c_str(), value);
}

ScopedEnvironment::~ScopedEnvironment() {
    SetEnvironmentVariableA(name_.c_str(), existed_ ? before_.c_str() : nullptr);
}

}  // namespace test_support
