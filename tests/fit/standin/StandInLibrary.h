// The stand-in curve-fit library as a test holds it: a file beside the test program that
// CurveFitLibrary loads by its name as it does the real one, and its switches, which start from
// nothing.
//
//     StandInLibrary standIn;
//     CurveFitLibrary library(GetModuleHandleA(nullptr), StandInLibrary::kFile);
//     standIn->places[7] = {2, 1};      // the second call of place 7 fails
//     standIn->object = {1, kAlways};   // there never is an object
//     EXPECT_EQ(standIn->uCalls[7], 0u);
#pragma once

#include <algorithm>
#include <initializer_list>
#include <iterator>

#include "StandInControl.h"
#include "platform/platform.h"

namespace fit_test {

class StandInLibrary {
  public:
    static constexpr const char* kFile = "CURVEFIT_STANDIN.dll";
    static constexpr const char* kMissingFile = "CURVEFIT_MISSING.dll";
    static constexpr const char* kFileWithoutExport = "CURVEFIT_NOEXPORT.dll";

    StandInLibrary() : m_hLibrary(LoadLibraryA(kFile)) {
        using Give = StandInControl* (*)();
        m_pControl = reinterpret_cast<Give>(
            reinterpret_cast<void*>(GetProcAddress(m_hLibrary, STANDIN_CONTROL)))();
        Reset();
    }
    ~StandInLibrary() { FreeLibrary(m_hLibrary); }
    StandInLibrary(const StandInLibrary&) = delete;
    StandInLibrary& operator=(const StandInLibrary&) = delete;

    void Reset() { *m_pControl = {}; }
    // From now on the library tells of a function of terms of two parameters with an offset, which
    // every method but one for likelihood can fit. A test adds to the traits.
    FitFunctionProps& TellTraits() {
        m_pControl->bProps = 1;
        FitFunctionProps& props = m_pControl->props;
        props = {};
        props.uParamsPerTerm = 2;
        props.uNumDataArrays = 2;
        props.uZeroAllowedParam = 99;
        props.bMultiTerm = props.bHasOffset = 1;
        props.bAllowLM = props.bAllowSimplex = props.bAllowChebyshev = 1;
        return props;
    }
    // Estimates give these seeds, flat, and 0 behind them.
    void TellSeeds(std::initializer_list<double> flat) {
        m_pControl->bSeeds = 1;
        std::fill(std::begin(m_pControl->dSeeds), std::end(m_pControl->dSeeds), 0.0);
        std::copy(flat.begin(), flat.end(), m_pControl->dSeeds);
    }
    // Estimates give this seed everywhere.
    void TellSeed(double dSeed) {
        m_pControl->bSeeds = 1;
        std::fill(std::begin(m_pControl->dSeeds), std::end(m_pControl->dSeeds), dSeed);
    }
    StandInControl* operator->() const { return m_pControl; }

  private:
    HMODULE m_hLibrary;
    StandInControl* m_pControl;
};

}  // namespace fit_test
