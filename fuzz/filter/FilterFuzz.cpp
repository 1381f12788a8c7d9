#include "FilterFuzz.h"

#include <cmath>
#include <cstring>
#include <vector>

#include "../bytes/FuzzBytes.h"
#include "CreateFilter.h"

namespace {

class Bytes : public FuzzBytes {
  public:
    using FuzzBytes::FuzzBytes;
    // A frequency or interval as records have it, or any bits.
    double Figure(double dScale) {
        const std::uint8_t uKind = Byte();
        if (uKind < 16) return Raw<double>();
        return dScale * std::ldexp(1.0 + Byte() / 256.0, -(uKind % 16));
    }
    double Value() { return FuzzBytes::Value(4); }
    std::uint32_t Count() {
        const std::uint8_t uKind = Byte();
        return uKind == 255 ? Raw<std::uint32_t>() : uKind;
    }
};

constexpr std::size_t kMostPoints = 4096;

}  // namespace

void FuzzFilter(const std::uint8_t* pData, std::size_t nSize) {
    Bytes bytes(pData, nSize);
    FilterOptions options = {};
    const std::uint8_t uSelected = bytes.Byte();
    options.lowpass.m_bIsSelected = uSelected & 1;
    options.highpass.m_bIsSelected = (uSelected >> 1) & 1;
    options.notch.m_bIsSelected = (uSelected >> 2) & 1;
    options.adaptive.m_bIsSelected = (uSelected >> 3) & 1;
    options.adaptive.m_bEndEffectCompensation = (uSelected >> 4) & 1;
    options.dSampleInterval = bytes.Figure(1000.0);
    options.lowpass.m_eFilterFamily = static_cast<std::int32_t>(bytes.Byte() % 11) - 1;
    options.lowpass.m_dCornerFreq = bytes.Figure(10000.0);
    options.lowpass.m_uNumAveragePoints = bytes.Count();
    options.highpass.m_eFilterFamily = static_cast<std::int32_t>(bytes.Byte() % 11) - 1;
    options.highpass.m_dCornerFreq = bytes.Figure(10000.0);
    options.notch.m_dCornerFreq = bytes.Figure(10000.0);
    options.notch.m_d3dbWidth = bytes.Figure(10000.0);
    const std::uint8_t uOrders = bytes.Byte();
    options.lowpass.uApplyOrder = uOrders & 3;
    options.highpass.uApplyOrder = (uOrders >> 2) & 3;
    options.notch.uApplyOrder = (uOrders >> 4) & 3;
    options.adaptive.m_eReferenceGeneration = static_cast<std::int32_t>(bytes.Byte() % 5) - 1;
    options.adaptive.m_uHarmonicNumberStart = bytes.Count();
    options.adaptive.m_uHarmonicNumberEnd = bytes.Count();
    options.adaptive.m_uAveragingCycles = bytes.Count();
    ZXADLG_CFilter* pFilter = filter::CreateFilter(&options);
    Require(pFilter != nullptr, "an object for every record");
    const std::uint32_t uFewest = pFilter->GetMinimumPoints();
    Require(uFewest >= 1 && uFewest <= 2147483647u, "a count that a message can show");

    // A trace of just its size, so that a reader or writer beyond it is caught: as many points as
    // are asked for where that is not too much, else a few.
    const std::uint8_t uMore = bytes.Byte();
    const std::size_t nPoints = uFewest <= kMostPoints && uMore != 0 ? uFewest + uMore - 1 : uMore;
    std::vector<double> values(nPoints);
    for (std::size_t i = 0; i < nPoints; ++i)
        values[i] = bytes.Left() > 0 || i == 0 ? bytes.Value() : 0.875 * values[i - 1] + 1.0;
    const std::vector<double> before = values;
    const bool bDone =
        pFilter->FilterArray(values.data(), static_cast<std::uint32_t>(nPoints)) != 0;
    char szText[128] = "";
    pFilter->GetErrorText(szText, sizeof szText);
    Require(bDone == (szText[0] == '\0'), "a refusal has a text, a success none");
    if (!bDone) {
        Require(nPoints == 0 ||
                    std::memcmp(values.data(), before.data(), nPoints * sizeof(double)) == 0,
                "a refusal leaves the trace");
    } else if ((uSelected & 15) != 0) {
        for (const double d : values) Require(std::isfinite(d), "a result is finite");
    }
    filter::ReleaseFilter(pFilter);
}
