// The object behind the table of zxadlg/CurveFit.h: one function under the options of one record.
#pragma once

#include <vector>

#include "FunctionRow.h"
#include "zxadlg/CurveFit.h"

namespace curvefit {

class CurveFitObject final : public ZXADLG_CCurveFit {
  public:
    // `row` is null for the custom function, whose formula only its owner knows: it reports its
    // names and is neither seeded nor evaluated.
    CurveFitObject(const FunctionRow* pRow, const FitOptions& options);

    void* DeleteSelf(uint32_t flags) override;
    int32_t ComputeSeeds(const double* const* arrays, double* seeds, uint32_t nArrays,
                         uint32_t nPoints) override;
    int32_t GetErrorText(char* text, uint32_t size) override;
    int32_t Evaluate(const double* const* xArrays, double* y, uint32_t nPoints) override;
    uint32_t GetVariableCount() override;
    const char* GetFunctionText() override;
    int32_t GetProperties(FitFunctionProps* props) override;
    const char* GetVariableLabel(uint32_t group, uint32_t index) override;
    const char* GetDependentLabel() override;
    const char* GetParameterName(uint32_t group, uint32_t index) override;
    const char* GetOffsetName() override;
    const char* GetSlopeName() override;
    int32_t SetUpCurve(const FitDataStats* stats, const double* seeds) override;

  private:
    ~CurveFitObject() = default;
    int32_t Fail(const char* szText);
    int32_t Succeed();

    const FunctionRow* m_pRow;
    Settings m_Settings;
    FitFunctionProps m_Props{};
    // The curve that was set up.
    bool m_bCurve = false;
    uint32_t m_uTerms = 1;
    double m_grid[kMaxParams] = {};
    double m_dOffset = 0.0;
    double m_dSlope = 0.0;
    double m_dFirstX = 0.0;
    const char* m_szError = "";
};

}  // namespace curvefit
