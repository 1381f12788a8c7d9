#include "framework/ValueListText.h"

#include "framework/ADM_ListText.h"
#include "framework/ValidationMessages.h"
#include "framework/ValueList.h"

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::OnAttach() {
    Base::OnAttach();
    EnableByList();
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::Enable(BOOL bEnable) {
    Base::Enable(bEnable);
    if (m_pGauge != nullptr) m_pGauge->Enable(bEnable);
}

template <class Base, class ListFields>
BOOL ValueListText<Base, ListFields>::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    if (!Base::Validate(bSilent, ppFailed)) return 0;
    if (!m_bStrict || IndexOf() != -1) return 1;
    if (!bSilent) {
        // The form without the field's name for all three classes, as is required.
        char szMsg[256];
        ValidationMessage(kIntegerFamily + 1 + kUnnamedField, szMsg,
                          static_cast<int>(sizeof szMsg));
        this->ShowFailure(szMsg);
    }
    return 0;
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::SetValue(Value value) {
    Base::SetValue(value);
    if (m_uListCount == 0 || m_pGauge == nullptr) return;
    const int nIndex = IndexOf();
    if (nIndex != -1) m_pGauge->SetPos(nIndex);
    TellPosition();
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::SetGauge(ADM_GaugeControl* pGauge) {
    m_pGauge = pGauge;
    if (pGauge == nullptr) return;
    pGauge->SetNotifyTarget(this);
    if (m_uListCount == 0) return;
    pGauge->SetRange(0, LastIndex());
    const int nIndex = IndexOf();
    if (nIndex != -1) pGauge->SetPos(nIndex);
}

template <class Base, class ListFields>
BOOL ValueListText<Base, ListFields>::SetValueList(std::uint32_t uCount, const Value* pValues) {
    m_uListCount = CopyValueList(this->*ListFields::pList, pValues, uCount);
    if (m_uListCount != uCount) return 0;
    EnableByList();
    if (m_uListCount == 0 || m_pGauge == nullptr) return 1;
    m_pGauge->SetRange(0, LastIndex());
    const int nIndex = IndexOf();
    if (nIndex != -1) {
        m_pGauge->SetPos(nIndex);
        TellPosition();
    }
    return 1;
}

template <class Base, class ListFields>
int ValueListText<Base, ListFields>::IndexOf() {
    return FindInList(List(), m_uListCount, this->HeldValue());
}

template <class Base, class ListFields>
int ValueListText<Base, ListFields>::FloorIndex() {
    if (m_uListCount == 0) return 0;
    const Value value = this->HeldValue();
    for (int i = 1; i <= LastIndex(); ++i) {
        if (value <= List()[i]) return i - 1;
    }
    return LastIndex();
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::StepListUp() {
    if (m_uListCount == 0) return;
    this->ReadControl();
    const int nIndex = IndexOf();
    if (nIndex == LastIndex()) {
        ::MessageBeep(0);
    } else if (nIndex != -1) {
        SetValue(List()[nIndex + 1]);
    } else if (!StepFromOutside()) {
        const int nNext = FloorIndex() + 1;
        SetValue(List()[nNext <= LastIndex() ? nNext : LastIndex()]);
    }
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::StepListDown() {
    if (m_uListCount == 0) return;
    this->ReadControl();
    const int nIndex = IndexOf();
    if (nIndex == 0) {
        ::MessageBeep(0);
    } else if (nIndex != -1) {
        SetValue(List()[nIndex - 1]);
    } else if (!StepFromOutside()) {
        SetValue(List()[FloorIndex()]);
    }
}

// A value beyond either end goes to that end, in whichever direction it is stepped.
template <class Base, class ListFields>
bool ValueListText<Base, ListFields>::StepFromOutside() {
    const Value value = this->HeldValue();
    if (value >= List()[LastIndex()]) {
        SetValueWithBeep(List()[LastIndex()]);
        return true;
    }
    if (value <= List()[0]) {
        SetValueWithBeep(List()[0]);
        return true;
    }
    return false;
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::SetValueWithBeep(Value value) {
    SetValue(value);
    ::MessageBeep(0);
}

// To the receivers of this field alone, so that a value set by the program takes no focus.
template <class Base, class ListFields>
void ValueListText<Base, ListFields>::TellPosition() {
    ADM_Wnd::Notify(m_pGauge, m_pGauge->GetControlId(), ADMN_GAUGEPOSITION, 0);
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    const bool bFromGauge = m_pGauge != nullptr && pSender == m_pGauge;
    const bool bMoved = bFromGauge && (nCode == ADMN_GAUGEPOSITION ||
                                       (nCode >= ADMN_GAUGELINEUP && nCode <= ADMN_GAUGEPAGEDOWN));
    if (bMoved && !this->HasFocus()) this->SetFocus();
    if (bFromGauge) {
        FollowGauge(nCode, nData);
    } else if (pSender == this) {
        FollowKeys(nCode);
    }
    Base::Notify(pSender, nId, nCode, nData);
    if (bMoved) this->SelectContents();
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::FollowGauge(int nCode, int nData) {
    switch (nCode) {
        case ADMN_GAUGELINEUP:
        case ADMN_GAUGEPAGEUP:
            StepListDown();
            break;
        case ADMN_GAUGELINEDOWN:
        case ADMN_GAUGEPAGEDOWN:
            StepListUp();
            break;
        case ADMN_GAUGETHUMB:
            if (nData >= 0 && nData <= LastIndex()) SetValue(List()[nData]);
            break;
        default:
            break;
    }
}

template <class Base, class ListFields>
void ValueListText<Base, ListFields>::FollowKeys(int nCode) {
    switch (nCode) {
        case ADMN_KEYUP:
        case ADMN_SHIFTKEYUP:
            if (m_pGauge != nullptr) m_pGauge->PressLineDown(0);
            StepListUp();
            break;
        case ADMN_KEYDOWN:
        case ADMN_SHIFTKEYDOWN:
            if (m_pGauge != nullptr) m_pGauge->PressLineUp(0);
            StepListDown();
            break;
        case ADMN_KEYRELEASE:
            if (m_pGauge != nullptr) m_pGauge->ReleaseButtons();
            return;
        default:
            return;
    }
    if (this->HasFocus()) this->SelectContents();
}

template class ValueListText<ADM_IntegerText, IntegerListFields>;
template class ValueListText<ADM_FloatText, FloatListFields>;
template class ValueListText<ADM_DoubleText, DoubleListFields>;
