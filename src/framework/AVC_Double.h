// The validator of double-precision numbers. Reading its value can change its text, as the text is
// brought into display form.
#pragma once

#include <cstdint>
#include <memory>

#include "framework/AVC_Base.h"

class AVC_Double : public AVC_Numeric {
  public:
    AVC_Double();
    // Sets the value alone; the text stays empty.
    explicit AVC_Double(double dValue);
    ~AVC_Double() override;

    std::int32_t SetText(const char* szText) override;
    std::int32_t Validate(const char* szField, char* szMsg, int nMsgSize,
                          std::int32_t* pnReason) override;

    // Sets both limits and pulls the value into them.
    void SetRange(double dMin, double dMax);
    // Sets both limits and leaves the value where it is.
    void SetLimits(double dMin, double dMax);
    // Either pointer may be null.
    void GetRange(double* pdMin, double* pdMax) const;
    // Copies the allowable values. With no memory the list stays empty, and every value then fails.
    void SetList(const double* pdValues, std::uint32_t uCount);
    // Value and text follow at the next Reparse.
    void SetStep(double dStep);
    // Makes a value, pulled into the range, the value and the text.
    void SetValue(double dValue);
    // Brings value and text into line with what the text shows; returns the value. A text that is
    // no number leaves both.
    double Reparse();
    // Gives a text that is no number the form of the value, which stays as it is.
    void RewriteUnreadable();
    // Pulls the value into the range, and the text with it.
    void ClampValue();
    // The value, in the range.
    double GetValue();

    // Store the format and nothing else. eFormat is a NumberFormatKind.
    void SetFormat(std::int32_t eFormat, std::uint32_t uDecimals);
    void SetSigDigits(std::uint32_t uDigits) { m_uSigDigits = uDigits; }

    // A limit as the display format shows it. The largest value of the type stands for no limit and
    // stays.
    double RoundToDisplay(double dLimit) const;

    // The two halves of Validate.
    std::int32_t CheckRange(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);
    std::int32_t CheckList(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);

    std::int32_t m_eFormat = 1;
    std::uint32_t m_uDecimals = 0;
    std::uint32_t m_uSigDigits = 15;
    double m_dMin = 0;
    double m_dMax = 0;
    std::unique_ptr<double[]> m_pdList;
    std::uint32_t m_uListCount = 0;
    double m_dStep = 1;
    double m_dValue = 0;
};
