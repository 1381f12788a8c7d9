// The validator of single-precision numbers. Reading its value can change its text, as the text is
// brought into display form.
#pragma once

#include <cstdint>
#include <memory>

#include "framework/AVC_Base.h"

class AVC_Float : public AVC_Numeric {
  public:
    AVC_Float();
    // Sets the value alone; the text stays empty.
    explicit AVC_Float(float fValue);
    ~AVC_Float() override;

    std::int32_t SetText(const char* szText) override;
    std::int32_t Validate(const char* szField, char* szMsg, int nMsgSize,
                          std::int32_t* pnReason) override;

    // Sets both limits and pulls the value into them.
    void SetRange(float fMin, float fMax);
    // Either pointer may be null.
    void GetRange(float* pfMin, float* pfMax) const;
    // Copies the allowable values. With no memory the list stays empty, and every value then fails.
    void SetList(const float* pfValues, std::uint32_t uCount);
    // Value and text follow at the next Reparse.
    void SetStep(float fStep);
    // Makes a value, pulled into the range, the value and the text.
    void SetValue(float fValue);
    // Brings value and text into line with what the text shows; returns the value. A text that is
    // no number leaves both.
    float Reparse();
    // Gives a text that is no number the form of the value, which stays as it is.
    void RewriteUnreadable();
    // Pulls the value into the range, and the text with it.
    void ClampValue();
    // The value, in the range.
    float GetValue();

    // Store the format and nothing else. eFormat is a NumberFormatKind.
    void SetFormat(std::int32_t eFormat, std::uint32_t uDecimals);
    void SetSigDigits(std::uint32_t uDigits) { m_uSigDigits = uDigits; }

    // A limit as the display format shows it. The largest value of the type stands for no limit and
    // stays.
    float RoundToDisplay(float fLimit) const;

    // The two halves of Validate.
    std::int32_t CheckRange(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);
    std::int32_t CheckList(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);

    std::int32_t m_eFormat = 1;
    std::uint32_t m_uDecimals = 0;
    std::uint32_t m_uSigDigits = 6;
    float m_fMin = 0;
    float m_fMax = 0;
    std::unique_ptr<float[]> m_pfList;
    std::uint32_t m_uListCount = 0;
    float m_fStep = 1;
    float m_fValue = 0;
};
