// The rules that the two floating validators share, written once over the names of their fields.
// The traits of a class give its value type, its conversions and where its fields are.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "framework/ValidationMessages.h"
#include "framework/ValueList.h"
#include "text/BoundedText.h"
#include "text/NumberFormat.h"

template <class Validator>
struct FloatingTraits;

template <class Validator>
class FloatingRules {
    using T = FloatingTraits<Validator>;
    using Value = typename T::Value;
    static constexpr int kSize = Validator::kNumberSize;

  public:
    static Value Reparse(Validator& v) {
        Value& value = v.*T::pValue;
        if (v.m_sText.empty()) return value = 0;
        char szNumber[kSize];
        CopyText(szNumber, v.m_sText);
        Parse(v, szNumber, value);
        if (v.m_bStepSet) {
            T::Snap(&value, v.*T::pStep);
            Format(v, value, szNumber);
            Parse(v, szNumber, value);
        }
        v.m_sText = szNumber;
        return value;
    }

    static void SetValue(Validator& v, Value value) {
        if (v.m_bRangeSet) value = Clamped(v, value);
        char szNumber[kSize];
        Format(v, value, szNumber);
        v.m_sText = szNumber;
        Reparse(v);
    }

    static void RewriteUnreadable(Validator& v) {
        if (v.m_sText.empty()) return;
        char szNumber[kSize];
        CopyText(szNumber, v.m_sText);
        Value read = 0;
        if (Parse(v, szNumber, read)) return;
        // A record may hold what is no number: its form was not typed, and stays.
        using Limits = std::numeric_limits<Value>;
        for (const Value none : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity()}) {
            Format(v, none, szNumber);
            if (v.m_sText == szNumber) return;
        }
        Format(v, v.*T::pValue, szNumber);
        v.m_sText = szNumber;
    }

    static void ClampValue(Validator& v) {
        if (!v.m_bRangeSet) return;
        const Value before = v.*T::pValue;
        const Value value = Clamped(v, before);
        // A NaN is in no range and has no end to go to; CheckRange fails it.
        if (value != before && !std::isnan(before)) SetValue(v, value);
    }

    static void SetLimits(Validator& v, Value low, Value high) {
        v.*T::pMin = low;
        v.*T::pMax = high;
        v.m_bRangeSet = 1;
        v.m_bCheck = 1;
    }

    static void SetRange(Validator& v, Value low, Value high) {
        SetLimits(v, low, high);
        ClampValue(v);
    }

    static void SetList(Validator& v, const Value* pValues, std::uint32_t uCount) {
        v.m_uListCount = CopyValueList(v.*T::pList, pValues, uCount);
        v.m_bCheck = 1;
        v.m_bListSet = 1;
    }

    static Value RoundToDisplay(const Validator& v, Value limit) {
        if (std::fabs(limit) == std::numeric_limits<Value>::max()) return limit;
        char szNumber[kSize];
        Format(v, limit, szNumber);
        Parse(v, szNumber, limit);
        return limit;
    }

    static std::int32_t CheckRange(Validator& v, const char* szField, char* szMsg, int nMsgSize,
                                   std::int32_t* pnReason) {
        if (!v.m_bCheck) return 1;
        CopyText(szMsg, nMsgSize, "");
        const Value value = Reparse(v);
        // Written so that a NaN fails.
        if (!v.m_bRangeSet ||
            (value <= RoundToDisplay(v, v.*T::pMax) && value >= RoundToDisplay(v, v.*T::pMin))) {
            return 1;
        }
        if (szMsg != nullptr) {
            // The limits show in the field's own form, and it is the unrounded limits that show.
            Validator high;
            Validator low;
            ShowIn(v, high, v.*T::pMax);
            ShowIn(v, low, v.*T::pMin);
            WriteRangeMessage(T::kFamily, szField, low.GetText(), high.GetText(), szMsg, nMsgSize);
        }
        if (pnReason != nullptr) *pnReason = kReasonRange;
        return 0;
    }

    static std::int32_t CheckList(Validator& v, const char* szField, char* szMsg, int nMsgSize,
                                  std::int32_t* pnReason) {
        if (!v.m_bCheck) return 1;
        CopyText(szMsg, nMsgSize, "");
        const Value value = Reparse(v);
        // Entries are compared as they are, unlike limits.
        if (!v.m_bListSet || FindInList((v.*T::pList).get(), v.m_uListCount, value) >= 0) return 1;
        if (szMsg != nullptr) WriteListMessage(T::kFamily, szField, szMsg, nMsgSize);
        if (pnReason != nullptr) *pnReason = kReasonList;
        return 0;
    }

  private:
    static Value Clamped(const Validator& v, Value value) {
        if (value < v.*T::pMin) value = v.*T::pMin;
        if (value > v.*T::pMax) value = v.*T::pMax;
        return value;
    }

    static void Format(const Validator& v, Value value, char (&szNumber)[kSize]) {
        T::Format(value, szNumber, kSize, v.m_eFormat, v.m_uDecimals, v.m_uSigDigits, nullptr);
    }

    // A text that is no number leaves text and value.
    static bool Parse(const Validator& v, char (&szNumber)[kSize], Value& value) {
        return T::ParseNormal(szNumber, kSize, &value, v.m_eFormat, v.m_uDecimals, v.m_uSigDigits,
                              nullptr) != 0;
    }

    static void ShowIn(const Validator& v, Validator& shown, Value value) {
        shown.SetFormat(v.m_eFormat, v.m_uDecimals);
        if (v.m_eFormat == kFormatSignificant) shown.SetSigDigits(v.m_uSigDigits);
        shown.SetValue(value);
    }
};
