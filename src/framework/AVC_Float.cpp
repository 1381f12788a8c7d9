#include "framework/AVC_Float.h"

#include "framework/FloatingRules.h"
#include "framework/StepSnap.h"
#include "text/NumberFormat.h"

template <>
struct FloatingTraits<AVC_Float> {
    using Value = float;
    static constexpr ValidationFamily kFamily = kFloatFamily;
    static constexpr auto Format = FormatFloat;
    static constexpr auto ParseNormal = ParseFloatNormal;
    static constexpr auto Snap = SnapToStepFloat;
    static constexpr auto pMin = &AVC_Float::m_fMin;
    static constexpr auto pMax = &AVC_Float::m_fMax;
    static constexpr auto pList = &AVC_Float::m_pfList;
    static constexpr auto pStep = &AVC_Float::m_fStep;
    static constexpr auto pValue = &AVC_Float::m_fValue;
};

using Rules = FloatingRules<AVC_Float>;

AVC_Float::AVC_Float() = default;

AVC_Float::AVC_Float(float fValue) : m_fValue(fValue) {}

AVC_Float::~AVC_Float() = default;

std::int32_t AVC_Float::SetText(const char* szText) {
    AVC_Base::SetText(szText);
    Reparse();
    return 1;
}

std::int32_t AVC_Float::Validate(const char* szField, char* szMsg, int nMsgSize,
                                 std::int32_t* pnReason) {
    return CheckRange(szField, szMsg, nMsgSize, pnReason) &&
           CheckList(szField, szMsg, nMsgSize, pnReason);
}

void AVC_Float::SetRange(float fMin, float fMax) {
    Rules::SetRange(*this, fMin, fMax);
}

void AVC_Float::GetRange(float* pfMin, float* pfMax) const {
    if (pfMin != nullptr) *pfMin = m_fMin;
    if (pfMax != nullptr) *pfMax = m_fMax;
}

void AVC_Float::SetList(const float* pfValues, std::uint32_t uCount) {
    Rules::SetList(*this, pfValues, uCount);
}

void AVC_Float::SetStep(float fStep) {
    m_fStep = fStep;
    m_bStepSet = 1;
}

void AVC_Float::SetValue(float fValue) {
    Rules::SetValue(*this, fValue);
}

float AVC_Float::Reparse() {
    return Rules::Reparse(*this);
}

void AVC_Float::ClampValue() {
    Rules::ClampValue(*this);
}

float AVC_Float::GetValue() {
    Reparse();
    ClampValue();
    return Reparse();
}

void AVC_Float::SetFormat(std::int32_t eFormat, std::uint32_t uDecimals) {
    m_eFormat = eFormat;
    m_uDecimals = uDecimals;
}

float AVC_Float::RoundToDisplay(float fLimit) const {
    return Rules::RoundToDisplay(*this, fLimit);
}

std::int32_t AVC_Float::CheckRange(const char* szField, char* szMsg, int nMsgSize,
                                   std::int32_t* pnReason) {
    return Rules::CheckRange(*this, szField, szMsg, nMsgSize, pnReason);
}

std::int32_t AVC_Float::CheckList(const char* szField, char* szMsg, int nMsgSize,
                                  std::int32_t* pnReason) {
    return Rules::CheckList(*this, szField, szMsg, nMsgSize, pnReason);
}
