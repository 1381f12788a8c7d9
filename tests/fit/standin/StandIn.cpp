// A curve-fit library that can be told to misbehave: the real one behind switches.

#include <algorithm>
#include <cstring>
#include <new>

#include "CreateCurveFit.h"
#include "CurveFitObject.h"
#include "FunctionTable.h"
#include "StandInControl.h"

namespace {

fit_test::StandInControl control{};

bool IsOn(const fit_test::FailSwitch& fail, std::uint32_t uCall) {
    return uCall >= fail.uFirst && uCall - fail.uFirst < fail.uCount;
}

// Logs a call; false where it is to fail.
bool Enter(std::uint32_t uPlace) {
    return !IsOn(control.places[uPlace], ++control.uCalls[uPlace]);
}

const char* TextOf(std::uint32_t uPlace, const char* szReal) {
    if (!Enter(uPlace)) return nullptr;
    const char* szOwn = control.szTexts[uPlace];
    return szOwn[0] != '\0' ? szOwn : szReal;
}

class StandIn final : public ZXADLG_CCurveFit {
  public:
    explicit StandIn(ZXADLG_CCurveFit* pReal) : m_pReal(pReal) {
        control.uMostAlive = std::max(control.uMostAlive, ++control.uAlive);
    }
    void* DeleteSelf(uint32_t flags) override {
        Enter(0);
        if ((flags & 1u) != 0) delete this;
        return nullptr;
    }
    // A failing place leaves half of its work behind.
    int32_t ComputeSeeds(const double* const* arrays, double* seeds, uint32_t nArrays,
                         uint32_t nPoints) override {
        control.uArrays = nArrays;
        control.uPoints = nPoints;
        if (!Enter(7)) {
            seeds[0] = 4.5;
            return 0;
        }
        if (control.bSeeds == 0) return m_pReal->ComputeSeeds(arrays, seeds, nArrays, nPoints);
        std::copy(std::begin(control.dSeeds), std::end(control.dSeeds), seeds);
        return 1;
    }
    int32_t GetErrorText(char* text, uint32_t size) override {
        if (!Enter(11)) return 0;
        if (control.szTexts[11][0] == '\0') return m_pReal->GetErrorText(text, size);
        std::strncpy(text, control.szTexts[11], size);
        return 1;
    }
    int32_t Evaluate(const double* const* x, double* y, uint32_t n) override {
        control.uPoints = n;
        for (std::uint32_t i = 0; n > 0 && i < std::min(m_pReal->GetVariableCount(), 6u); ++i)
            control.dFirstOfArrays[i] = x[i][0];
        if (!Enter(17)) {
            if (n > 0) y[0] = 0.75;
            return 0;
        }
        if (control.bCurve == 0) return m_pReal->Evaluate(x, y, n);
        std::fill(y, y + n, control.dCurve);
        return 1;
    }
    uint32_t GetVariableCount() override {
        if (!Enter(18)) return 0;
        return control.bVariableCount != 0 ? control.uVariableCount : m_pReal->GetVariableCount();
    }
    const char* GetFunctionText() override { return TextOf(30, m_pReal->GetFunctionText()); }
    int32_t GetProperties(FitFunctionProps* props) override {
        if (!Enter(40)) return 0;
        if (control.bProps == 0) return m_pReal->GetProperties(props);
        *props = control.props;
        return 1;
    }
    const char* GetVariableLabel(uint32_t group, uint32_t index) override {
        return TextOf(44, m_pReal->GetVariableLabel(group, index));
    }
    const char* GetDependentLabel() override { return TextOf(45, m_pReal->GetDependentLabel()); }
    const char* GetParameterName(uint32_t group, uint32_t index) override {
        return TextOf(46, m_pReal->GetParameterName(group, index));
    }
    const char* GetOffsetName() override { return TextOf(47, m_pReal->GetOffsetName()); }
    const char* GetSlopeName() override { return TextOf(48, m_pReal->GetSlopeName()); }
    int32_t SetUpCurve(const FitDataStats* stats, const double* seeds) override {
        control.stats = *stats;
        std::copy(seeds, seeds + 26, control.dCurveSeeds);
        return Enter(59) ? m_pReal->SetUpCurve(stats, seeds) : 0;
    }

  private:
    ~StandIn() {
        m_pReal->DeleteSelf(1);
        --control.uAlive;
    }

    ZXADLG_CCurveFit* m_pReal;
};

}  // namespace

extern "C" fit_test::StandInControl* StandInControl() {
    return &control;
}

ZXADLG_CCurveFit* curvefit::CreateCurveFit(const FitOptions* options) {
    if (options != nullptr) control.record = *options;
    if (IsOn(control.object, ++control.uObjects) || options == nullptr) return nullptr;
    const FunctionRow* pRow = FindFunction(options->eFunctionType);
    if (pRow == nullptr && options->eFunctionType != kCustomFunction) return nullptr;
    return new StandIn(new CurveFitObject(pRow, *options));
}
