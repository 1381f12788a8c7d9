// The store in which the dialogs keep their settings, as the host sees it.
//
// The library writes to the registry, below a branch that the environment names. The host has a
// branch of its own; with a store file it uses one made for the run, filled from the file before
// and written back to it afterwards: whole, to a temporary file that then takes its name.
//
// The file's text, sorted by section and key, is the same on every system:
//
//     [NormalizeSection]
//     ePeakRegion=2
//
// In values a backslash is "\\" and a line end "\n".
#pragma once

#include <map>
#include <string>

namespace zxhost {

// Values by section and key.
using Settings = std::map<std::string, std::map<std::string, std::string>>;

std::string FormatSettings(const Settings& settings);

// On failure false with "NAME:LINE: what is wrong".
bool ParseSettings(const std::string& text, const std::string& name, Settings* settings,
                   std::string* error);

class SettingsStore {
  public:
    SettingsStore() = default;
    ~SettingsStore();
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;

    // Makes the store ready; an empty path means the host's own branch as it is. A file that is not
    // there yet is an empty store. On failure, also where the file could not be written afterwards,
    // false with what is wrong, and the file as it was.
    bool Open(const std::string& path, std::string* error);
    // A store for this run alone.
    bool OpenScratch(std::string* error);
    // What the host's own branch holds; what a run changes goes there with Save.
    bool OpenCopy(std::string* error);

    // What the dialogs get as the name of the store.
    const char* ProfileName() const { return "zxhost"; }

    // What is in the store now.
    Settings Read() const;

    // Makes these all that is in the store.
    bool Replace(const Settings& settings, std::string* error);

    // Writes the file or the own branch, where the run has a branch to itself and its content is
    // another one than before. On failure false with what is wrong, and the file as it was.
    bool Save(std::string* error) const;

    // What was in the store when it was opened.
    const Settings& Before() const { return before_; }

  private:
    enum class Keep { kLive, kNothing, kFile, kOwn };
    std::string Key() const;
    bool WriteAll(const Settings& settings, std::string* error);
    bool Prepare(Keep keep, const Settings& settings, std::string* error);

    Keep keep_ = Keep::kLive;
    Settings before_;
    std::string path_;
    std::string root_;
    std::string oldRoot_;
    bool open_ = false;
    bool hadRoot_ = false;
    std::string textBefore_;  // of the file
};

}  // namespace zxhost
