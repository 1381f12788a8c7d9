#include "FilterObject.h"

#include <algorithm>
#include <cstring>
#include <exception>
#include <vector>

#include "Checks.h"
#include "MinimumPoints.h"
#include "RunSection.h"

namespace filter {

namespace {

constexpr char kNoData[] = "There are no data.";
constexpr char kFewPoints[] = "The data have fewer points than the filter needs.";
constexpr char kNoMemory[] = "There is not enough memory.";

}  // namespace

FilterObject::FilterObject(const FilterOptions& options) : m_Settings(SettingsOf(options)) {}

uint32_t FilterObject::GetMinimumPoints() {
    return MinimumPoints(m_Settings);
}

int32_t FilterObject::FilterArray(double* values, uint32_t nPoints) {
    m_szError = WhyNotFilter(values, nPoints);
    if (m_szError[0] != '\0') return 0;
    const std::vector<Section>& sections = m_Settings.sections;
    try {
        if (sections.size() == 1) {
            RunSection(sections.front(), m_Settings.dSamplingFrequency, values, nPoints);
        } else if (sections.size() > 1) {
            // What a later section lacks memory for must not leave the work of an earlier one.
            std::vector<double> trace(values, values + nPoints);
            for (const Section& section : sections)
                RunSection(section, m_Settings.dSamplingFrequency, trace.data(), trace.size());
            std::copy(trace.begin(), trace.end(), values);
        }
    } catch (const std::exception&) {
        m_szError = kNoMemory;
        return 0;
    }
    return 1;
}

// Empty where nothing is wrong.
const char* FilterObject::WhyNotFilter(const double* values, std::size_t nPoints) const {
    if (m_Settings.sections.empty()) return "";
    for (const Section& section : m_Settings.sections) {
        if (const char* szWhy = WhyNot(section, m_Settings.dSamplingFrequency)) return szWhy;
    }
    if (values == nullptr) return kNoData;
    if (nPoints < MinimumPoints(m_Settings)) return kFewPoints;
    const char* szWhy = WhyNot(values, nPoints);
    return szWhy != nullptr ? szWhy : "";
}

int32_t FilterObject::GetErrorText(char* text, uint32_t size) {
    if (text == nullptr || size == 0) return 0;
    const std::size_t nLength = std::min<std::size_t>(std::strlen(m_szError), size - 1);
    std::memcpy(text, m_szError, nLength);
    text[nLength] = '\0';
    return 1;
}

}  // namespace filter
