#include "fit/CurveFitLibrary.h"

CurveFitLibrary::CurveFitLibrary(HINSTANCE hModule, const char* szFile)
    : m_library(hModule, szFile) {}

CurveFitUse CurveFitLibrary::Use(const FitOptions& options) {
    if (!m_bTried) {
        m_bTried = true;
        m_pCreate = m_library.Find<ZXADLG_CreateCurveFit>(ZXADLG_CURVEFIT_CREATE);
    }
    return CurveFitUse(m_pCreate == nullptr ? nullptr : m_pCreate(&options));
}
