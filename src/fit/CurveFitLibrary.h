// The curve-fit library beside the module, loaded on first use and kept until this object goes. It
// is the one place that knows how an object of the library is made and ended.
#pragma once

#include "analysis/CompanionLibrary.h"
#include "zxadlg/CurveFit.h"

// An object of the library for one use. Empty where the library is missing, lacks its export, or
// gave none.
class CurveFitUse {
  public:
    explicit CurveFitUse(ZXADLG_CCurveFit* pObject) : m_pObject(pObject) {}
    ~CurveFitUse() {
        if (m_pObject != nullptr) m_pObject->DeleteSelf(1);
    }
    CurveFitUse(const CurveFitUse&) = delete;
    CurveFitUse& operator=(const CurveFitUse&) = delete;

    explicit operator bool() const { return m_pObject != nullptr; }
    ZXADLG_CCurveFit* operator->() const { return m_pObject; }

  private:
    ZXADLG_CCurveFit* m_pObject;
};

class CurveFitLibrary {
  public:
    // `szFile` is looked for in the folder of the module `hModule`.
    explicit CurveFitLibrary(HINSTANCE hModule, const char* szFile = "CURVEFIT.dll");

    // An object for a finalised record.
    CurveFitUse Use(const FitOptions& options);
    // Whether the file has been found and loaded.
    bool IsLoaded() const { return m_library.IsLoaded(); }

  private:
    CompanionLibrary m_library;
    bool m_bTried = false;
    ZXADLG_CreateCurveFit m_pCreate = nullptr;
};
