#include "framework/ADM_Spinner.h"

#include "framework/ADM_Text.h"
#include "widgets/Spinner.h"

using namespace CommonCtls;

void ADM_Spinner::OnAttach() {
    ADM_GaugeControl::OnAttach();
    if (m_hWnd != nullptr && SpinnerGetRepeat(m_hWnd) == 0) SpinnerSetRepeat(m_hWnd, kRepeatMs);
}

void ADM_Spinner::OnCommand(HWND, int nId, HWND, int nCode) {
    switch (nCode) {
        case kSpinnerFirst:
            Notify(this, nId, ADMN_GAUGELINEDOWN, 0);
            break;
        case kSpinnerSecond:
            Notify(this, nId, ADMN_GAUGELINEUP, 0);
            break;
        case kSpinnerFirstLarge:
            Notify(this, nId, ADMN_GAUGEPAGEDOWN, 0);
            break;
        case kSpinnerSecondLarge:
            Notify(this, nId, ADMN_GAUGEPAGEUP, 0);
            break;
        default:
            break;
    }
}

void ADM_Spinner::SetRange(int nMin, int nMax) {
    ADM_GaugeControl::SetRange(nMin, nMax);
    Enable(nMin != nMax);
}

void ADM_Spinner::PressPageDown(BOOL bNotify) {
    ADM_GaugeControl::PressPageDown(bNotify);
    SpinnerPress(m_hWnd, kArrowFirst);
}

void ADM_Spinner::PressPageUp(BOOL bNotify) {
    ADM_GaugeControl::PressPageUp(bNotify);
    SpinnerPress(m_hWnd, kArrowSecond);
}

void ADM_Spinner::PressLineDown(BOOL bNotify) {
    ADM_GaugeControl::PressLineDown(bNotify);
    SpinnerPress(m_hWnd, kArrowFirst);
}

void ADM_Spinner::PressLineUp(BOOL bNotify) {
    ADM_GaugeControl::PressLineUp(bNotify);
    SpinnerPress(m_hWnd, kArrowSecond);
}

void ADM_Spinner::ReleaseButtons() {
    SpinnerRelease(m_hWnd);
}

void ADM_Spinner::SetBuddy(ADM_Text* pText) {
    ADM_GaugeControl::SetBuddy(pText);
    SpinnerSetBuddy(m_hWnd, pText != nullptr ? pText->GetHandle() : nullptr);
}
