#include "framework/AVC_Integer.h"

#include <charconv>

#include "framework/StepSnap.h"
#include "framework/ValidationMessages.h"
#include "framework/ValueList.h"
#include "text/BoundedText.h"
#include "text/NumberParse.h"

namespace {

void WriteInteger(std::int32_t nValue, char (&szBuffer)[AVC_Base::kIntegerSize]) {
    *std::to_chars(szBuffer, szBuffer + AVC_Base::kIntegerSize - 1, nValue).ptr = '\0';
}

}  // namespace

AVC_Integer::AVC_Integer() {
    SetStep(1);
}

AVC_Integer::~AVC_Integer() = default;

std::int32_t AVC_Integer::SetText(const char* szText) {
    AVC_Base::SetText(szText);
    Reparse();
    SetValue(m_nValue);
    return 1;
}

std::int32_t AVC_Integer::Validate(const char* szField, char* szMsg, int nMsgSize,
                                   std::int32_t* pnReason) {
    return CheckRange(szField, szMsg, nMsgSize, pnReason) &&
           CheckList(szField, szMsg, nMsgSize, pnReason);
}

void AVC_Integer::SetRange(std::int32_t nMin, std::int32_t nMax) {
    m_nMin = nMin;
    m_nMax = nMax;
    m_bRangeSet = 1;
    m_bCheck = 1;
    ClampValue();
}

void AVC_Integer::GetRange(std::int32_t* pnMin, std::int32_t* pnMax) const {
    if (pnMin != nullptr) *pnMin = m_nMin;
    if (pnMax != nullptr) *pnMax = m_nMax;
}

void AVC_Integer::SetList(const std::int32_t* pnValues, std::uint32_t uCount) {
    m_uListCount = CopyValueList(m_pnList, pnValues, uCount);
    m_bCheck = 1;
    m_bListSet = 1;
}

void AVC_Integer::SetStep(std::int32_t nStep) {
    m_nStep = nStep;
    m_bStepSet = 1;
}

void AVC_Integer::SetValue(std::int32_t nValue) {
    WriteValue(nValue);
    Reparse();
    WriteValue(m_nValue);
}

void AVC_Integer::WriteValue(std::int32_t nValue) {
    char szText[kIntegerSize];
    WriteInteger(nValue, szText);
    m_sText = szText;
}

std::int32_t AVC_Integer::Reparse() {
    m_nValue = TextToInt(m_sText.c_str());
    if (m_bStepSet) SnapToStepInt(&m_nValue, m_nStep);
    return m_nValue;
}

void AVC_Integer::ClampValue() {
    if (!m_bRangeSet) return;
    std::int32_t nValue = m_nValue;
    if (nValue < m_nMin) nValue = m_nMin;
    if (nValue > m_nMax) nValue = m_nMax;
    if (nValue != m_nValue) SetValue(nValue);
}

std::int32_t AVC_Integer::CheckRange(const char* szField, char* szMsg, int nMsgSize,
                                     std::int32_t* pnReason) {
    if (!m_bCheck) return 1;
    CopyText(szMsg, nMsgSize, "");
    Reparse();
    if (!m_bRangeSet || (m_nValue <= m_nMax && m_nValue >= m_nMin)) return 1;
    if (szMsg != nullptr) {
        char szMin[kIntegerSize];
        char szMax[kIntegerSize];
        WriteInteger(m_nMin, szMin);
        WriteInteger(m_nMax, szMax);
        WriteRangeMessage(kIntegerFamily, szField, szMin, szMax, szMsg, nMsgSize);
    }
    if (pnReason != nullptr) *pnReason = kReasonRange;
    return 0;
}

std::int32_t AVC_Integer::CheckList(const char* szField, char* szMsg, int nMsgSize,
                                    std::int32_t* pnReason) {
    if (!m_bCheck) return 1;
    CopyText(szMsg, nMsgSize, "");
    Reparse();
    if (!m_bListSet || FindInList(m_pnList.get(), m_uListCount, m_nValue) >= 0) return 1;
    if (szMsg != nullptr) WriteListMessage(kIntegerFamily, szField, szMsg, nMsgSize);
    if (pnReason != nullptr) *pnReason = kReasonList;
    return 0;
}
