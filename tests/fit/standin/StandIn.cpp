// A curve-fit library that misbehaves: the function number of the record says how.

#include <cstring>

#include "CreateCurveFit.h"

namespace {

enum Behaviour {
    kNoObject = 0,
    kNoProperties = 1,
    kFiveParametersManyTerms = 2,
    kNoVariables = 3,
    kSevenVariables = 4,
    kTextIsAFormat = 5,
    kNoSeeds = 6,
    kNoSetUp = 7,
    kNoEvaluation = 8,
    kTwentyFiveParameters = 9,
    kFiveParametersOneTerm = 10,
    kNoTexts = 11,
};

class StandIn final : public ZXADLG_CCurveFit {
  public:
    explicit StandIn(const FitOptions& options) : m_eBehaviour(options.eFunctionType) {}
    void* DeleteSelf(uint32_t flags) override {
        if ((flags & 1u) != 0) delete this;
        return nullptr;
    }
    int32_t ComputeSeeds(const double* const*, double* seeds, uint32_t, uint32_t) override {
        seeds[0] = 4.5;
        return m_eBehaviour != kNoSeeds;
    }
    int32_t GetErrorText(char* text, uint32_t size) override {
        std::strncpy(text, "stand-in", size);
        return 1;
    }
    int32_t Evaluate(const double* const*, double* y, uint32_t n) override {
        for (uint32_t i = 0; i < n; ++i) y[i] = 0.25;
        return m_eBehaviour != kNoEvaluation;
    }
    uint32_t GetVariableCount() override {
        return m_eBehaviour == kNoVariables ? 0 : m_eBehaviour == kSevenVariables ? 7 : 1;
    }
    const char* GetFunctionText() override {
        return m_eBehaviour == kNoTexts         ? nullptr
               : m_eBehaviour == kTextIsAFormat ? "%d of %s 5%%"
                                                : "Plain";
    }
    int32_t GetProperties(FitFunctionProps* props) override {
        if (m_eBehaviour == kNoProperties) return 0;
        props->uParamsPerTerm =
            m_eBehaviour == kFiveParametersManyTerms || m_eBehaviour == kFiveParametersOneTerm ? 5
            : m_eBehaviour == kTwentyFiveParameters                                            ? 25
                                                                                               : 1;
        props->bMultiTerm = m_eBehaviour == kFiveParametersManyTerms;
        props->uNumDataArrays = 2;
        return 1;
    }
    const char* GetVariableLabel(uint32_t, uint32_t) override { return Text("variable"); }
    const char* GetDependentLabel() override { return Text("dependent"); }
    const char* GetParameterName(uint32_t, uint32_t) override {
        return Text("a name that is longer than its field");
    }
    const char* GetOffsetName() override { return Text("offset"); }
    const char* GetSlopeName() override { return Text("slope"); }
    int32_t SetUpCurve(const FitDataStats*, const double*) override {
        return m_eBehaviour != kNoSetUp;
    }

  private:
    ~StandIn() = default;
    const char* Text(const char* szText) const {
        return m_eBehaviour == kNoTexts ? nullptr : szText;
    }
    int32_t m_eBehaviour;
};

}  // namespace

ZXADLG_CCurveFit* curvefit::CreateCurveFit(const FitOptions* options) {
    return options->eFunctionType == kNoObject ? nullptr : new StandIn(*options);
}
