// The validator of whole numbers. Every one has a step of 1 from the start.
#pragma once

#include <cstdint>
#include <memory>

#include "framework/AVC_Base.h"

class AVC_Integer : public AVC_Numeric {
  public:
    AVC_Integer();
    ~AVC_Integer() override;

    // Takes a text and rewrites it as the number that it stands for.
    std::int32_t SetText(const char* szText) override;
    std::int32_t Validate(const char* szField, char* szMsg, int nMsgSize,
                          std::int32_t* pnReason) override;

    // Sets both limits and pulls the value into them.
    void SetRange(std::int32_t nMin, std::int32_t nMax);
    // Either pointer may be null.
    void GetRange(std::int32_t* pnMin, std::int32_t* pnMax) const;
    // Copies the allowable values. With no memory the list stays empty, and every value then fails.
    void SetList(const std::int32_t* pnValues, std::uint32_t uCount);
    // Value and text follow at the next Reparse.
    void SetStep(std::int32_t nStep);
    // Makes nValue the value and the text. The range does not pull here, as is required.
    void SetValue(std::int32_t nValue);
    // Brings the value into line with the text, which stays as it is; returns the value.
    std::int32_t Reparse();
    // Pulls the value into the range, and the text with it.
    void ClampValue();
    std::int32_t GetValue() { return Reparse(); }

    // The two halves of Validate.
    std::int32_t CheckRange(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);
    std::int32_t CheckList(const char* szField, char* szMsg, int nMsgSize, std::int32_t* pnReason);

    std::int32_t m_nMin = 0;
    std::int32_t m_nMax = 0;
    std::unique_ptr<std::int32_t[]> m_pnList;
    std::uint32_t m_uListCount = 0;
    std::int32_t m_nStep = 1;
    std::int32_t m_nValue = 0;

  private:
    void WriteValue(std::int32_t nValue);
};
