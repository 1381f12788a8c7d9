// What the two gauge texts share: a numeric field beside a gauge. The field decides on the value;
// the gauge shows where it is and passes on what the user does to it. Position p stands for the
// value origin + p * step.
//
// The class `Self` that derives from this supplies HasGaugeStep, StepBy, ShowPosition, TakePosition
// and TakeThumb. The gauge is not owned and has to live as long as the field is used.
#pragma once

#include "framework/ADM_GaugeControl.h"
#include "framework/UpdateScope.h"

template <class Self, class Base>
class GaugeText : public Base {
  public:
    // The field is enabled when its gauge has steps to go, unless the dialog greyed it.
    void OnAttach() override {
        Base::OnAttach();
        EnableBoth(m_bAllowed && self().HasGaugeStep());
    }

    void Enable(BOOL bEnable) override {
        m_bAllowed = bEnable;
        EnableBoth(bEnable);
    }

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        const bool bFromGauge = m_pGauge != nullptr && pSender == m_pGauge;
        const bool bMoved =
            bFromGauge && (nCode == ADMN_GAUGEPOSITION ||
                           (nCode >= ADMN_GAUGELINEUP && nCode <= ADMN_GAUGEPAGEDOWN));
        if (bMoved && !this->HasFocus()) this->SetFocus();
        if (m_pGauge != nullptr) FollowGauge(pSender, nCode, nData);
        Base::Notify(pSender, nId, nCode, nData);
        if (bMoved) this->SelectContents();
    }

    // The gauge, or null for none. It tells this field what happens to it.
    virtual void SetGauge(ADM_GaugeControl* pGauge) {
        m_pGauge = pGauge;
        if (pGauge == nullptr) return;
        if (self().HasGaugeStep()) self().ShowPosition();
        pGauge->SetNotifyTarget(this);
        self().LinkGauge();
    }

    ADM_GaugeControl* GetGauge() const { return m_pGauge; }

    // Moves the value by a number of gauge steps, as the arrow keys do. Nothing with no gauge.
    void Step(int nDelta) {
        if (m_pGauge == nullptr) return;
        this->ReadControl();
        self().StepBy(nDelta);
        this->m_validator.ClampValue();
        OnAttach();
        if (self().HasGaugeStep()) self().ShowPosition();
    }

  protected:
    void LinkGauge() {}

    ADM_GaugeControl* m_pGauge = nullptr;
    BOOL m_bFromGauge = 0;

  private:
    void EnableBoth(BOOL bEnable) {
        Base::Enable(bEnable);
        if (m_pGauge != nullptr) m_pGauge->Enable(bEnable);
    }

    BOOL m_bAllowed = 1;  // what the dialog's rules say

    Self& self() { return static_cast<Self&>(*this); }

    void FollowGauge(ADM_Wnd* pSender, int nCode, int nData) {
        const bool bGauge = pSender == m_pGauge;
        const bool bThis = pSender == this;
        if ((bGauge && nCode == ADMN_GAUGELINEUP) || (bThis && nCode == ADMN_KEYDOWN)) {
            Press(m_pGauge->GetLineUp(), &ADM_GaugeControl::PressLineUp);
        } else if ((bGauge && nCode == ADMN_GAUGELINEDOWN) || (bThis && nCode == ADMN_KEYUP)) {
            Press(m_pGauge->GetLineDown(), &ADM_GaugeControl::PressLineDown);
        } else if ((bGauge && nCode == ADMN_GAUGEPAGEUP) || (bThis && nCode == ADMN_SHIFTKEYDOWN)) {
            Press(m_pGauge->GetPageUp(), &ADM_GaugeControl::PressPageUp);
        } else if ((bGauge && nCode == ADMN_GAUGEPAGEDOWN) || (bThis && nCode == ADMN_SHIFTKEYUP)) {
            Press(m_pGauge->GetPageDown(), &ADM_GaugeControl::PressPageDown);
        } else if (bGauge && nCode == ADMN_GAUGEPOSITION) {
            TakePosition();
        } else if (bGauge && nCode == ADMN_GAUGETHUMB) {
            if (self().TakesThumb()) {
                m_pGauge->SetPos(nData);
                TakePosition();
            }
        } else if (nCode == ADMN_KEYRELEASE) {
            m_pGauge->ReleaseButtons();
        } else if (nCode == ADMN_TEXTCHANGE && !m_bFromGauge) {
            this->ReadControl();
            if (self().HasGaugeStep()) self().ShowPosition();
        }
    }

    void Press(int nDelta, void (ADM_GaugeControl::*pPress)(BOOL)) {
        Step(nDelta);
        (m_pGauge->*pPress)(0);
        // To the receivers of this field alone: taking the value back from the position would pull
        // a value at the end of its range onto the grid.
        ADM_Wnd::Notify(m_pGauge, m_pGauge->GetControlId(), ADMN_GAUGEPOSITION, 0);
        if (this->HasFocus()) this->SelectContents();
    }

    // The value follows the gauge.
    void TakePosition() {
        UpdateScope scope(m_bFromGauge);
        self().SetFromPosition(m_pGauge->GetPos());
        OnAttach();
    }
};
