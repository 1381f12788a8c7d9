#include "framework/ADM_IntegerGaugeText.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "text/StepScale.h"

namespace {

// Cuts the fraction off; a value out of the type's range stays at its end.
int ToInt(double dValue) {
    return static_cast<int>(std::clamp<double>(dValue, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

}  // namespace

void ADM_IntegerGaugeText::SetRange(int nMin, int nMax, int nStep) {
    m_validator.SetRange(nMin, nMax);
    if (m_pGauge != nullptr && nMin < nMax) {
        int nPositions = 0;
        double dStep = 0;
        double dOrigin = 0;
        ComputeGaugeScale(nMin, nMax, nStep, &nPositions, &dStep, &dOrigin);
        m_nGaugeStep = std::max(ToInt(dStep), 1);
        m_nGaugeOrigin = ToInt(dOrigin);
        m_pGauge->SetRange(0, nPositions);
        ShowPosition();
    } else if (m_pGauge != nullptr) {
        m_nGaugeStep = 0;
        m_nGaugeOrigin = 0;
        m_pGauge->SetRange(0, 0);
    }
    OnAttach();
}

void ADM_IntegerGaugeText::StepBy(int nDelta) {
    if (m_nGaugeStep == 0) return;
    const double dDelta = static_cast<double>(m_nGaugeStep) * nDelta;
    m_validator.SetValue(ToInt(StepValue(HeldValue(), dDelta)));
}

void ADM_IntegerGaugeText::ShowPosition() {
    const std::int64_t nDistance = std::int64_t{HeldValue()} - m_nGaugeOrigin;
    m_pGauge->SetPos(ToInt(static_cast<double>(nDistance / m_nGaugeStep)));
}

void ADM_IntegerGaugeText::SetFromPosition(int nPos) {
    m_validator.SetValue(ToInt(static_cast<double>(nPos) * m_nGaugeStep + m_nGaugeOrigin));
    m_validator.ClampValue();
}
