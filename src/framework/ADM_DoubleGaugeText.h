// A field of double-precision numbers beside a gauge.
#pragma once

#include "framework/ADM_DoubleText.h"
#include "framework/GaugeText.h"

class ADM_DoubleGaugeText : public GaugeText<ADM_DoubleGaugeText, ADM_DoubleText> {
  public:
    // The range, and the gauge's scale over it in steps of at least dStep. A range of no width
    // leaves the gauge nowhere to go and disables the field. Set the gauge first.
    void SetRange(double dMin, double dMax, double dStep);
    // The same, but a value outside stays as it is shown.
    void SetLimits(double dMin, double dMax, double dStep);
    double GetRequestedStep() const { return m_dRequestedStep; }

  private:
    friend GaugeText<ADM_DoubleGaugeText, ADM_DoubleText>;

    bool HasGaugeStep() const { return m_dGaugeStep != 0; }
    bool TakesThumb() const { return true; }
    // The field alone moves the gauge.
    void LinkGauge() { m_pGauge->SetLinked(1); }
    void StepBy(int nDelta);
    void ShowPosition();
    void SetFromPosition(int nPos);
    void ScaleGauge(double dMin, double dMax, double dStep);

    double m_dGaugeStep = 1.0;
    double m_dGaugeOrigin = 0;
    double m_dRequestedStep = 1.0;
};
