// A library that stands beside the module, loaded on first use, or before where its owner has the
// time, and kept until this object goes.
#pragma once

#include <string>

#include "platform/platform.h"

class CompanionLibrary {
  public:
    // `szFile` is looked for in the folder of the module `hModule`.
    CompanionLibrary(HINSTANCE hModule, const char* szFile);
    ~CompanionLibrary();
    CompanionLibrary(const CompanionLibrary&) = delete;
    CompanionLibrary& operator=(const CompanionLibrary&) = delete;

    // An exported function by its name, or by MAKEINTRESOURCEA of its number. Null where the
    // library is missing or has no such export.
    template <class Function>
    Function Find(LPCSTR szName) {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(Address(szName)));
    }
    // Looks for the file, once.
    void Load();
    // Whether the file has been found and loaded.
    bool IsLoaded() const { return m_hLibrary != nullptr; }

  private:
    FARPROC Address(LPCSTR szName);

    HINSTANCE m_hModule;
    std::string m_strFile;
    bool m_bTried = false;
    HMODULE m_hLibrary = nullptr;
};
