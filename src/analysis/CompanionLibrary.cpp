#include "analysis/CompanionLibrary.h"

CompanionLibrary::CompanionLibrary(HINSTANCE hModule, const char* szFile)
    : m_hModule(hModule), m_strFile(szFile) {}

CompanionLibrary::~CompanionLibrary() {
    if (m_hLibrary != nullptr) FreeLibrary(m_hLibrary);
}

void CompanionLibrary::Load() {
    if (m_bTried) return;
    m_bTried = true;
    // By its full path: a library of that name in the host's folder is not the one beside the
    // module.
    char szPath[MAX_PATH] = "";
    const DWORD uLength = GetModuleFileNameA(m_hModule, szPath, sizeof szPath);
    if (uLength == 0 || uLength >= sizeof szPath) return;
    std::string strPath(szPath, uLength);
    strPath.erase(strPath.find_last_of("/\\") + 1);
    m_hLibrary =
        LoadLibraryExA((strPath + m_strFile).c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

FARPROC CompanionLibrary::Address(LPCSTR szName) {
    Load();
    return m_hLibrary == nullptr ? nullptr : GetProcAddress(m_hLibrary, szName);
}
