#include "framework/AVC_Double.h"

#include "framework/FloatingRules.h"
#include "framework/StepSnap.h"
#include "text/NumberFormat.h"

template <>
struct FloatingTraits<AVC_Double> {
    using Value = double;
    static constexpr ValidationFamily kFamily = kDoubleFamily;
    static constexpr auto Format = FormatDouble;
    static constexpr auto ParseNormal = ParseDoubleNormal;
    static constexpr auto Snap = SnapToStep;
    static constexpr auto pMin = &AVC_Double::m_dMin;
    static constexpr auto pMax = &AVC_Double::m_dMax;
    static constexpr auto pList = &AVC_Double::m_pdList;
    static constexpr auto pStep = &AVC_Double::m_dStep;
    static constexpr auto pValue = &AVC_Double::m_dValue;
};

using Rules = FloatingRules<AVC_Double>;

AVC_Double::AVC_Double() = default;

AVC_Double::AVC_Double(double dValue) : m_dValue(dValue) {}

AVC_Double::~AVC_Double() = default;

std::int32_t AVC_Double::SetText(const char* szText) {
    AVC_Base::SetText(szText);
    Reparse();
    return 1;
}

std::int32_t AVC_Double::Validate(const char* szField, char* szMsg, int nMsgSize,
                                  std::int32_t* pnReason) {
    return CheckRange(szField, szMsg, nMsgSize, pnReason) &&
           CheckList(szField, szMsg, nMsgSize, pnReason);
}

void AVC_Double::SetRange(double dMin, double dMax) {
    Rules::SetRange(*this, dMin, dMax);
}

void AVC_Double::SetLimits(double dMin, double dMax) {
    Rules::SetLimits(*this, dMin, dMax);
}

void AVC_Double::GetRange(double* pdMin, double* pdMax) const {
    if (pdMin != nullptr) *pdMin = m_dMin;
    if (pdMax != nullptr) *pdMax = m_dMax;
}

void AVC_Double::SetList(const double* pdValues, std::uint32_t uCount) {
    Rules::SetList(*this, pdValues, uCount);
}

void AVC_Double::SetStep(double dStep) {
    m_dStep = dStep;
    m_bStepSet = 1;
}

void AVC_Double::SetValue(double dValue) {
    Rules::SetValue(*this, dValue);
}

double AVC_Double::Reparse() {
    return Rules::Reparse(*this);
}

void AVC_Double::RewriteUnreadable() {
    Rules::RewriteUnreadable(*this);
}

void AVC_Double::ClampValue() {
    Rules::ClampValue(*this);
}

double AVC_Double::GetValue() {
    Reparse();
    ClampValue();
    return Reparse();
}

void AVC_Double::SetFormat(std::int32_t eFormat, std::uint32_t uDecimals) {
    m_eFormat = eFormat;
    m_uDecimals = uDecimals;
}

double AVC_Double::RoundToDisplay(double dLimit) const {
    return Rules::RoundToDisplay(*this, dLimit);
}

std::int32_t AVC_Double::CheckRange(const char* szField, char* szMsg, int nMsgSize,
                                    std::int32_t* pnReason) {
    return Rules::CheckRange(*this, szField, szMsg, nMsgSize, pnReason);
}

std::int32_t AVC_Double::CheckList(const char* szField, char* szMsg, int nMsgSize,
                                   std::int32_t* pnReason) {
    return Rules::CheckList(*this, szField, szMsg, nMsgSize, pnReason);
}
