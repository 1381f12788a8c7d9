// The filter library beside the module: how many points a filter needs. The one place that knows
// how an object of the library is made and released.
#pragma once

#include "analysis/CompanionLibrary.h"
#include "zxadlg/Filter.h"

class FilterLibrary {
  public:
    // `szFile` is looked for in the folder of the module `hModule`.
    explicit FilterLibrary(HINSTANCE hModule, const char* szFile = "FILTER.dll")
        : m_library(hModule, szFile) {}

    // Loads the file now, so that the first question need not.
    void Load() { m_library.Load(); }
    // The smallest number of points that the filters of a record accept. 0 where the library is
    // missing, lacks an export or gives no object.
    std::uint32_t MinimumPoints(const FilterOptions& options);

  private:
    CompanionLibrary m_library;
};
