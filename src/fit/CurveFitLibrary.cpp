#include "fit/CurveFitLibrary.h"

CurveFitLibrary::CurveFitLibrary(HINSTANCE hModule, const char* szFile)
    : m_hModule(hModule), m_strFile(szFile) {}

CurveFitLibrary::~CurveFitLibrary() {
    if (m_hLibrary != nullptr) FreeLibrary(m_hLibrary);
}

void CurveFitLibrary::Load() {
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
    if (m_hLibrary == nullptr) return;
    m_pCreate = reinterpret_cast<ZXADLG_CreateCurveFit>(
        reinterpret_cast<void*>(GetProcAddress(m_hLibrary, ZXADLG_CURVEFIT_CREATE)));
}

CurveFitUse CurveFitLibrary::Use(const FitOptions& options) {
    if (!m_bTried) Load();
    return CurveFitUse(m_pCreate == nullptr ? nullptr : m_pCreate(&options));
}
