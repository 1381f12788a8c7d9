#include "framework/ADM_DoubleGaugeText.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "framework/StepSnap.h"
#include "text/StepScale.h"

void ADM_DoubleGaugeText::SetRange(double dMin, double dMax, double dStep) {
    m_validator.SetRange(dMin, dMax);
    ScaleGauge(dMin, dMax, dStep);
}

void ADM_DoubleGaugeText::SetLimits(double dMin, double dMax, double dStep) {
    ReadControl();
    m_validator.SetLimits(dMin, dMax);
    ScaleGauge(dMin, dMax, dStep);
}

void ADM_DoubleGaugeText::ScaleGauge(double dMin, double dMax, double dStep) {
    m_dRequestedStep = dStep;
    int nPositions = 0;
    m_dGaugeStep = 0;
    m_dGaugeOrigin = 0;
    if (dMin < dMax) {
        ComputeGaugeScale(dMin, dMax, dStep, &nPositions, &m_dGaugeStep, &m_dGaugeOrigin);
    }
    if (m_pGauge != nullptr) {
        m_pGauge->SetRange(0, nPositions);
        if (m_dGaugeStep != 0) ShowPosition();
    }
    OnAttach();
}

void ADM_DoubleGaugeText::StepBy(int nDelta) {
    if (m_dGaugeStep == 0) return;
    const double dDelta = nDelta * m_dGaugeStep;
    double dValue = StepValue(HeldValue(), dDelta);
    // The step is made in single precision; this brings the value back onto the grid.
    SnapToStep(&dValue, std::fabs(dDelta));
    m_validator.SetValue(dValue);
}

void ADM_DoubleGaugeText::ShowPosition() {
    const double dSteps = (HeldValue() - m_dGaugeOrigin) / m_dGaugeStep;
    // A value a little behind a position has left it.
    double dPos = std::trunc(dSteps);
    if (dSteps - dPos > 0.1) dPos += 1;
    m_pGauge->SetPos(static_cast<int>(std::clamp<double>(dPos, std::numeric_limits<int>::min(),
                                                         std::numeric_limits<int>::max())));
}

void ADM_DoubleGaugeText::SetFromPosition(int nPos) {
    m_validator.SetValue(nPos * m_dGaugeStep + m_dGaugeOrigin);
}
