// A field of whole numbers beside a gauge.
#pragma once

#include "framework/ADM_IntegerText.h"
#include "framework/GaugeText.h"

class ADM_IntegerGaugeText : public GaugeText<ADM_IntegerGaugeText, ADM_IntegerText> {
  public:
    // The range, and the gauge's scale over it in steps of at least nStep. A range of no width
    // leaves the gauge nowhere to go and disables the field. Set the gauge first.
    void SetRange(int nMin, int nMax, int nStep);

  private:
    friend GaugeText<ADM_IntegerGaugeText, ADM_IntegerText>;

    bool HasGaugeStep() const { return m_nGaugeStep != 0; }
    bool TakesThumb() const { return false; }
    void StepBy(int nDelta);
    void ShowPosition();
    void SetFromPosition(int nPos);

    int m_nGaugeStep = 1;
    int m_nGaugeOrigin = 0;
};
