// The base of the validators. A validator is the value inside a numeric text control: its text, the
// number that the text stands for, the format in which the number shows, and the rules it must
// obey. It has no window.
//
// The number that is checked and kept is the one that the user can see: a text that comes in is
// parsed, written anew in the display format and parsed again, and limits go through the same
// format before they are compared. So no test needs a tolerance: a value that shows the same as its
// limit is inside.
//
// Rules are set once and stay; none can be taken back. The virtual operations stand in a fixed
// order.
#pragma once

#include <cstdint>
#include <string>

class AVC_Base {
  public:
    static constexpr int kNumberSize = 64;   // a number's text, with its zero
    static constexpr int kIntegerSize = 32;  // an integer's

    AVC_Base() = default;
    AVC_Base(const AVC_Base&) = delete;
    AVC_Base& operator=(const AVC_Base&) = delete;
    virtual ~AVC_Base();

    // Takes a text; null is empty. Returns 1.
    virtual std::int32_t SetText(const char* szText);

    // Nonzero when the value passes its rules. On failure the message, unless szMsg is null, and
    // the reason (a ValidationReason), unless pnReason is null, are written; on success the reason
    // is left alone. szField is the field's name in the message, null when it has none.
    virtual std::int32_t Validate(const char* szField, char* szMsg, int nMsgSize,
                                  std::int32_t* pnReason);

    const char* GetText() const { return m_sText.c_str(); }

    std::string m_sText;
    std::int32_t m_bCheck = 0;  // validation is active
};

class AVC_Numeric : public AVC_Base {
  public:
    std::int32_t m_bRangeSet = 0;
    std::int32_t m_bListSet = 0;
    std::int32_t m_bStepSet = 0;
};
