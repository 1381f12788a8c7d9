// The object behind the table of zxadlg/Filter.h: the filters of one record.
#pragma once

#include <cstddef>

#include "Settings.h"
#include "zxadlg/Filter.h"

namespace filter {

class FilterObject final : public ZXADLG_CFilter {
  public:
    explicit FilterObject(const FilterOptions& options);
    ~FilterObject() = default;

    uint32_t GetMinimumPoints() override;
    int32_t FilterArray(double* values, uint32_t nPoints) override;
    int32_t GetErrorText(char* text, uint32_t size) override;

  private:
    const char* WhyNotFilter(const double* values, std::size_t nPoints) const;

    Settings m_Settings;
    const char* m_szError = "";
};

}  // namespace filter
