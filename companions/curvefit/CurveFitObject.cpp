#include "CurveFitObject.h"

#include <algorithm>
#include <exception>

#include "BoundedCopy.h"
#include "seeds/SeedTask.h"

namespace curvefit {

namespace {

constexpr char kCustomText[] = "A custom function is evaluated by the program that compiled it.";
constexpr char kNoCurve[] = "No curve has been set up.";
constexpr char kNoMemory[] = "There is not enough memory.";

// The custom function is named by its parameters, which the record counts.
FitFunctionProps CustomProperties(const FitOptions& options) {
    FitFunctionProps props{};
    props.uParamsPerTerm = std::min<uint32_t>(options.nNumCustomParams, 24);
    props.uNumDataArrays = std::clamp<uint32_t>(options.nNumCustomIndepVars, 1, 6) + 1;
    props.uZeroAllowedParam = kNoZeroColumn;
    props.bOnlyProportionsForced = 1;
    props.bAllowLM = 1;
    props.bAllowSimplex = 1;
    const auto name = [](char(&szTarget)[15], char chLetter, uint32_t uNumber) {
        char* psz = szTarget;
        *psz++ = chLetter;
        if (uNumber >= 10) *psz++ = static_cast<char>('0' + uNumber / 10);
        *psz++ = static_cast<char>('0' + uNumber % 10);
        *psz = '\0';
    };
    for (uint32_t i = 0; i < props.uParamsPerTerm; ++i) name(props.szParamNames[i], 'P', i + 1);
    for (uint32_t i = 0; i + 1 < props.uNumDataArrays; ++i)
        name(props.szVariableNames[i], 'x', i + 1);
    CopyText(props.szDependentName, "y1");
    CopyText(props.szFunctionName, "Custom function");
    return props;
}

}  // namespace

CurveFitObject::CurveFitObject(const FunctionRow* pRow, const FitOptions& options)
    : m_pRow(pRow), m_Settings(SettingsOf(options)) {
    if (m_pRow == nullptr) {
        m_Props = CustomProperties(options);
    } else {
        FillProperties(*m_pRow, m_Settings, &m_Props);
    }
}

void* CurveFitObject::DeleteSelf(uint32_t flags) {
    if ((flags & 1u) != 0) delete this;
    return this;
}

int32_t CurveFitObject::Fail(const char* szText) {
    m_szError = szText;
    return 0;
}

int32_t CurveFitObject::Succeed() {
    m_szError = "";
    return 1;
}

int32_t CurveFitObject::ComputeSeeds(const double* const* arrays, double* seeds, uint32_t nArrays,
                                     uint32_t nPoints) {
    if (m_pRow == nullptr) return Fail(kCustomText);
    if (arrays == nullptr || seeds == nullptr || nArrays != m_Props.uNumDataArrays)
        return Fail(kIncomplete);
    if (std::any_of(arrays, arrays + nArrays, [](const double* p) { return p == nullptr; }))
        return Fail(kIncomplete);
    try {
        SeedTask task(*m_pRow, m_Settings, arrays, nPoints);
        return task.Run(seeds) ? Succeed() : Fail(task.ErrorText());
    } catch (const std::exception&) {
        return Fail(kNoMemory);
    }
}

int32_t CurveFitObject::GetErrorText(char* text, uint32_t size) {
    if (text == nullptr || size == 0) return 0;
    CopyText(text, size, m_szError);
    return 1;
}

int32_t CurveFitObject::SetUpCurve(const FitDataStats* stats, const double* seeds) {
    m_bCurve = false;
    if (m_pRow == nullptr) return Fail(kCustomText);
    if (stats == nullptr || seeds == nullptr) return Fail(kIncomplete);
    if (Holds(m_pRow->traits.bUsesTemperature, m_Settings) && !(m_Settings.dThermalMv > 0.0))
        return Fail(kBelowAbsoluteZero);
    m_uTerms = m_Props.bMultiTerm ? std::clamp<uint32_t>(stats->uOrder, 1, kMaxTerms) : 1;
    std::copy(seeds, seeds + m_uTerms * m_pRow->uParams, m_grid);
    m_dOffset = m_Props.bHasOffset ? stats->dOffsetSeed : 0.0;
    m_dSlope = m_Props.bHasSlope ? stats->dSlopeSeed : 0.0;
    m_dFirstX = stats->dFirstX;
    m_bCurve = true;
    return Succeed();
}

int32_t CurveFitObject::Evaluate(const double* const* xArrays, double* y, uint32_t nPoints) {
    if (!m_bCurve) return Fail(m_pRow == nullptr ? kCustomText : kNoCurve);
    if (xArrays == nullptr || y == nullptr) return Fail(kIncomplete);
    if (std::any_of(xArrays, xArrays + m_pRow->uVariables,
                    [](const double* p) { return p == nullptr; })) {
        return Fail(kIncomplete);
    }
    Curve curve;
    curve.pSettings = &m_Settings;
    curve.uTerms = m_uTerms;
    curve.pGrid = m_grid;
    curve.dOffset = m_dOffset;
    curve.dSlope = m_dSlope;
    if (nPoints > 0 && IsZeroShiftInEffect(*m_pRow, m_Settings)) {
        const double* x = xArrays[0];
        // A descending record has its origin at its smallest x.
        const bool bDescends = x[0] == m_dFirstX && x[nPoints - 1] < x[0];
        curve.dOrigin = bDescends ? x[nPoints - 1] : m_dFirstX;
    }
    m_pRow->pEvaluate(curve, xArrays, nPoints, y);
    return Succeed();
}

uint32_t CurveFitObject::GetVariableCount() {
    return m_Props.uNumDataArrays - 1;
}

const char* CurveFitObject::GetFunctionText() {
    return m_Props.szFunctionName;
}

int32_t CurveFitObject::GetProperties(FitFunctionProps* props) {
    if (props == nullptr) return 0;
    *props = m_Props;
    return 1;
}

const char* CurveFitObject::GetVariableLabel(uint32_t, uint32_t index) {
    return index < GetVariableCount() ? m_Props.szVariableNames[index] : "";
}

const char* CurveFitObject::GetDependentLabel() {
    return m_Props.szDependentName;
}

const char* CurveFitObject::GetParameterName(uint32_t, uint32_t index) {
    return index < m_Props.uParamsPerTerm ? m_Props.szParamNames[index] : "";
}

const char* CurveFitObject::GetOffsetName() {
    return m_Props.szOffsetName;
}

const char* CurveFitObject::GetSlopeName() {
    return m_Props.szSlopeName;
}

}  // namespace curvefit
