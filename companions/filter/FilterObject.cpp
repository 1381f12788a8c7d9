#include "FilterObject.h"

#include <algorithm>
#include <cstring>

#include "MinimumPoints.h"

namespace filter {

FilterObject::FilterObject(const FilterOptions& options) : m_Settings(SettingsOf(options)) {}

uint32_t FilterObject::GetMinimumPoints() {
    return MinimumPoints(m_Settings);
}

int32_t FilterObject::FilterArray(double* values, uint32_t nPoints) {
    m_szError = "";
    if (m_Settings.sections.empty()) return 1;
    m_szError = values == nullptr || nPoints < MinimumPoints(m_Settings)
                    ? "The data have fewer points than the filter needs."
                    : "This library designs no filters.";
    return 0;
}

int32_t FilterObject::GetErrorText(char* text, uint32_t size) {
    if (text == nullptr || size == 0) return 0;
    const std::size_t nLength = std::min<std::size_t>(std::strlen(m_szError), size - 1);
    std::memcpy(text, m_szError, nLength);
    text[nLength] = '\0';
    return 1;
}

}  // namespace filter
