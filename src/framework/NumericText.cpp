#include "framework/NumericText.h"

#include "framework/PrivateMessages.h"
#include "text/NumberFormat.h"
#include "text/TextTests.h"

template <class Fields>
NumericText<Fields>::NumericText() {
    this->m_validator.SetValue(0);
}

template <class Fields>
void NumericText<Fields>::OnAttach() {
    ADM_Text::OnAttach();
    if (m_hWnd == nullptr) {
        // The next window gets its limit anew.
        m_bLimitSet = 0;
        return;
    }
    if (!m_bLimitSet) {
        m_bLimitSet = 1;
        LimitText(Fields::kMostCharacters);
    }
    ShowText();
}

template <class Fields>
void NumericText<Fields>::ShowText() {
    if (!this->m_validator.m_sText.empty()) SetWindowText(this->m_validator.GetText());
}

template <class Fields>
void NumericText<Fields>::ReadControl() {
    if (m_hWnd == nullptr) return;
    char szText[AVC_Base::kNumberSize];
    GetWindowText(szText, static_cast<int>(sizeof szText));
    if (szText[0] == '\0' && !Fields::kReadsEmpty) return;
    this->m_validator.SetText(szText);
}

template <class Fields>
void NumericText<Fields>::SaveInitialValue() {
    this->*Fields::pInitial = this->m_validator.GetValue();
}

template <class Fields>
BOOL NumericText<Fields>::HasChanged() {
    return m_bTrackChanges && this->m_validator.GetValue() != this->*Fields::pInitial;
}

template <class Fields>
BOOL NumericText<Fields>::Validate(BOOL bSilent, ADM_Wnd**) {
    ReadControl();
    char szMsg[256];
    if (this->m_validator.Validate(GetFieldName(), szMsg, static_cast<int>(sizeof szMsg),
                                   nullptr)) {
        return 1;
    }
    if (!bSilent) ShowFailure(szMsg);
    return 0;
}

template <class Fields>
void NumericText<Fields>::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    if (pSender == this) {
        if (nCode == ADMN_TEXTCHANGE && m_hWnd != nullptr) {
            ::PostMessageA(GetParent(), ADMM_APPLY_LATER, reinterpret_cast<WPARAM>(this), nCode);
        } else if (nCode == ADMN_KILLFOCUS) {
            // The text takes its display form; it is not validated, and a value out of range stays.
            ReadControl();
            Fields::RewriteUnreadable(this->m_validator);
            ShowText();
        }
    }
    ADM_Text::Notify(pSender, nId, nCode, nData);
}

template <class Fields>
LRESULT NumericText<Fields>::OnChar(HWND, int nChar) {
    if (IsCharInSet(nChar, Fields::kAllowed)) return 1;
    ::MessageBeep(0);
    return 0;
}

template <class Fields>
void NumericText<Fields>::SetValue(Value value) {
    this->m_validator.SetValue(value);
    this->m_validator.ClampValue();
    ShowText();
}

template <class Fields>
typename NumericText<Fields>::Value NumericText<Fields>::GetValue() {
    ReadControl();
    return this->m_validator.GetValue();
}

template <class Fields>
typename NumericText<Fields>::Value NumericText<Fields>::GetTypedValue() {
    ReadControl();
    return HeldValue();
}

template <class Fields>
void FloatingText<Fields>::SetDecimalPlaces(int nPlaces) {
    this->ReadControl();
    if (nPlaces == -1) {
        this->m_validator.SetFormat(kFormatSignificant, 0);
    } else {
        this->m_validator.SetFormat(kFormatFixed, static_cast<std::uint32_t>(nPlaces));
    }
    Reformat();
}

template <class Fields>
void FloatingText<Fields>::SetSigDigits(int nDigits) {
    this->ReadControl();
    this->m_validator.SetSigDigits(static_cast<std::uint32_t>(nDigits));
    Reformat();
}

template <class Fields>
void FloatingText<Fields>::Reformat() {
    this->m_validator.SetValue(this->m_validator.GetValue());
    this->OnAttach();
}

template class NumericText<IntegerTextFields>;
template class NumericText<FloatTextFields>;
template class NumericText<DoubleTextFields>;
template class FloatingText<FloatTextFields>;
template class FloatingText<DoubleTextFields>;
