// What the numeric text controls share: an edit field around one validator. The fields of a class
// (its validator, the value to compare with, its limits) come as a base, so that each keeps its own
// names.
//
// Setting a value does not make the control changed by itself: a dialog takes the values after its
// set-up as the ones to compare with (SaveInitialValue).
#pragma once

#include <cstdint>

#include "framework/ADM_Text.h"
#include "framework/AVC_Double.h"
#include "framework/AVC_Float.h"
#include "framework/AVC_Integer.h"

struct IntegerTextFields {
    using Value = std::int32_t;
    static constexpr UINT kMostCharacters = 11;
    static constexpr char kAllowed[] = "0123456789+- ";
    static constexpr bool kReadsEmpty = false;
    // A whole number is rewritten as it is read.
    static void RewriteUnreadable(AVC_Integer&) {}

    AVC_Integer m_validator;
    Value m_nInitial = 0;
    static constexpr Value IntegerTextFields::*pInitial = &IntegerTextFields::m_nInitial;
};

// An empty field counts as 0 here and keeps the last value in the other two classes; the difference
// is required.
struct FloatTextFields {
    using Value = float;
    static constexpr UINT kMostCharacters = 13;
    static constexpr char kAllowed[] = "0123456789+-Ee. ";
    static constexpr bool kReadsEmpty = true;
    static void RewriteUnreadable(AVC_Float& validator) { validator.RewriteUnreadable(); }

    AVC_Float m_validator;
    Value m_fInitial = 0;
    static constexpr Value FloatTextFields::*pInitial = &FloatTextFields::m_fInitial;
};

struct DoubleTextFields {
    using Value = double;
    static constexpr UINT kMostCharacters = 23;
    static constexpr char kAllowed[] = "0123456789+-Ee. ";
    static constexpr bool kReadsEmpty = false;
    static void RewriteUnreadable(AVC_Double& validator) { validator.RewriteUnreadable(); }

    AVC_Double m_validator;
    Value m_dInitial = 0;
    static constexpr Value DoubleTextFields::*pInitial = &DoubleTextFields::m_dInitial;
};

template <class Fields>
class NumericText : public ADM_Text, protected Fields {
  public:
    using Value = typename Fields::Value;

    NumericText();

    void OnAttach() override;
    void ReadControl() override;
    void SaveInitialValue() override;
    BOOL HasChanged() override;
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    LRESULT OnChar(HWND hWnd, int nChar) override;

    // The rules; they stay for the life of the control.
    void SetRange(Value low, Value high) { this->m_validator.SetRange(low, high); }
    void GetRange(Value* pLow, Value* pHigh) const { this->m_validator.GetRange(pLow, pHigh); }
    void SetList(const Value* pValues, std::uint32_t uCount) {
        this->m_validator.SetList(pValues, uCount);
    }
    void SetStep(Value step) { this->m_validator.SetStep(step); }

    // Makes a value, pulled into the range, the value and the text, on the screen too.
    void SetValue(Value value);
    // The value in the window, or the one held when there is none. The floating classes pull it
    // into their range; the integer class does not.
    Value GetValue();
    // The value that the window shows, in whatever range; the last one that could be read where the
    // text is no number. For a field whose dialog has a message of its own about its range.
    Value GetTypedValue();

  protected:
    // Shows the validator's text, if it has any.
    void ShowText();
    // The value as the validator holds it now.
    Value HeldValue() { return this->m_validator.Reparse(); }

  private:
    BOOL m_bLimitSet = 0;
};

// A numeric text with a display format.
template <class Fields>
class FloatingText : public NumericText<Fields> {
  public:
    // The number of decimals, or -1 for significant digits.
    void SetDecimalPlaces(int nPlaces);
    void SetSigDigits(int nDigits);

  private:
    void Reformat();
};

extern template class NumericText<IntegerTextFields>;
extern template class NumericText<FloatTextFields>;
extern template class NumericText<DoubleTextFields>;
extern template class FloatingText<FloatTextFields>;
extern template class FloatingText<DoubleTextFields>;
