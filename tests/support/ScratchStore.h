// Places for stored settings that belong to one test and vanish with it, and environment variables
// that come back to what they were.
#pragma once

#include <string>

namespace test_support {

// A profile file and a registry branch that no other test or process uses. Neither exists until it
// is written to; both are deleted at the end.
class ScratchStore {
  public:
    ScratchStore();
    ~ScratchStore();
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;

    // Full path of the profile file.
    const std::string& ProfileFile() const { return file_; }
    // The folder of the profile file, without a final separator.
    const std::string& Folder() const { return folder_; }
    // Path of the branch below HKEY_CURRENT_USER.
    const std::string& RegistryBranch() const { return branch_; }
    // Full path of another file in the folder.
    std::string File(const std::string& name) const;

    // The bytes of the profile file, "" if it does not exist.
    std::string ReadFile() const;
    void WriteFile(const std::string& bytes) const;

  private:
    std::string folder_;
    std::string file_;
    std::string branch_;
};

// Sets a variable, or removes it for a null value, and restores it at the end.
class ScopedEnvironment {
  public:
    ScopedEnvironment(const std::string& name, const char* value);
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

  private:
    std::string name_;
    std::string before_;
    bool existed_;
};

}  // namespace test_support
