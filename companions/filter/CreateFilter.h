// The ways to an object and from it: what the exported functions of each platform call.
#pragma once

#include "zxadlg/Filter.h"

namespace filter {

// Null for a null record and without memory.
ZXADLG_CFilter* CreateFilter(const FilterOptions* options);

// Null is nothing to do.
void ReleaseFilter(ZXADLG_CFilter* pFilter);

}  // namespace filter
