// The keys of a section as they were written, read back from the profile file.
#pragma once

#include <string>
#include <vector>

#include "fixtures/ScratchStore.h"
#include "store/ProfileStore.h"

namespace test_support {

// A scratch profile file that is the store while the object lives.
class ProfileScope {
  public:
    ProfileScope() : m_bOld(SetUseProfileFile(true)) {}
    ~ProfileScope() { SetUseProfileFile(m_bOld); }
    ProfileScope(const ProfileScope&) = delete;
    ProfileScope& operator=(const ProfileScope&) = delete;

    const char* Name() const { return m_store.ProfileFile().c_str(); }

    // The lines "key=value" of a section, in the order of the file.
    std::vector<std::string> Lines(const std::string& sSection) const {
        std::vector<std::string> vLines;
        bool bInside = false;
        std::string sLine;
        for (const char ch : m_store.ReadFile() + "\n") {
            if (ch == '\r') continue;
            if (ch != '\n') {
                sLine += ch;
                continue;
            }
            if (!sLine.empty() && sLine.front() == '[') {
                bInside = sLine == "[" + sSection + "]";
            } else if (bInside && !sLine.empty()) {
                vLines.push_back(sLine);
            }
            sLine.clear();
        }
        return vLines;
    }

    std::vector<std::string> Keys(const std::string& sSection) const {
        std::vector<std::string> vKeys = Lines(sSection);
        for (std::string& sLine : vKeys) sLine.resize(sLine.find('='));
        return vKeys;
    }

    bool Has(const std::string& sSection, const std::string& sKey) const {
        char szText[4];
        return ReadString(sSection.c_str(), sKey.c_str(), "", szText, sizeof szText, Name());
    }

    std::string Value(const std::string& sSection, const std::string& sKey) const {
        char szText[1200];
        ReadString(sSection.c_str(), sKey.c_str(), "(missing)", szText, sizeof szText, Name());
        return szText;
    }

    void Put(const std::string& sSection, const std::string& sKey,
             const std::string& sValue) const {
        WriteString(sSection.c_str(), sKey.c_str(), sValue.c_str(), Name());
    }

  private:
    ScratchStore m_store;
    bool m_bOld;
};

}  // namespace test_support
