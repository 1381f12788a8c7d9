#include "framework/ADM_GaugeControl.h"

#include "framework/ADM_Text.h"

void ADM_GaugeControl::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    const int nBefore = m_nPos;
    if (!m_bLinked) MoveTo(nCode, nData);
    ADM_Wnd::Notify(pSender, nId, nCode, nData);
    // Asked only now: a field that received the notification may have put the position back.
    if (!m_bLinked && m_nPos != nBefore) {
        ADM_Wnd::Notify(pSender, nId, ADMN_GAUGEPOSITION, 0);
    }
}

void ADM_GaugeControl::MoveTo(int nCode, int nData) {
    switch (nCode) {
        case ADMN_GAUGEBOTTOM:
            SetPos(m_nMax);
            break;
        case ADMN_GAUGETOP:
            SetPos(m_nMin);
            break;
        case ADMN_GAUGELINEUP:
            SetPos(InRange(std::int64_t{m_nPos} + m_nLineUp));
            break;
        case ADMN_GAUGELINEDOWN:
            SetPos(InRange(std::int64_t{m_nPos} + m_nLineDown));
            break;
        case ADMN_GAUGEPAGEUP:
            SetPos(InRange(std::int64_t{m_nPos} + m_nPageUp));
            break;
        case ADMN_GAUGEPAGEDOWN:
            SetPos(InRange(std::int64_t{m_nPos} + m_nPageDown));
            break;
        case ADMN_GAUGETHUMB:
            SetPos(nData);
            break;
        default:
            break;
    }
}

int ADM_GaugeControl::InRange(std::int64_t nPos) const {
    if (nPos < m_nMin) return m_nMin;
    return nPos > m_nMax ? m_nMax : static_cast<int>(nPos);
}

void ADM_GaugeControl::SetRange(int nMin, int nMax) {
    m_nMin = nMin;
    m_nMax = nMax;
    m_nPos = InRange(m_nPos);
}

void ADM_GaugeControl::SetPos(int nPos) {
    if (nPos == m_nPos) return;
    m_nPos = InRange(nPos);
    SetForceModified(1);
}

void ADM_GaugeControl::GetRange(int* pnMin, int* pnMax) {
    if (pnMin != nullptr) *pnMin = m_nMin;
    if (pnMax != nullptr) *pnMax = m_nMax;
}

int ADM_GaugeControl::GetPos() {
    return m_nPos;
}

void ADM_GaugeControl::PressPageDown(BOOL bNotify) {
    if (bNotify) Notify(this, m_nControlId, ADMN_GAUGEPAGEDOWN, 0);
}

void ADM_GaugeControl::PressPageUp(BOOL bNotify) {
    if (bNotify) Notify(this, m_nControlId, ADMN_GAUGEPAGEUP, 0);
}

void ADM_GaugeControl::PressLineDown(BOOL bNotify) {
    if (bNotify) Notify(this, m_nControlId, ADMN_GAUGELINEDOWN, 0);
}

void ADM_GaugeControl::PressLineUp(BOOL bNotify) {
    if (bNotify) Notify(this, m_nControlId, ADMN_GAUGELINEUP, 0);
}

void ADM_GaugeControl::ReleaseButtons() {}

void ADM_GaugeControl::SetBuddy(ADM_Text* pText) {
    if (pText != nullptr) SetNotifyTarget(pText);
}

ADM_Wnd* ADM_GaugeControl::GetNotifyTarget() {
    return m_pNotifyTarget;
}
