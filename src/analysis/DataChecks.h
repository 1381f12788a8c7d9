// The checks of the data and of their selection that all dialogs share. No window: each answers a
// finding or none.
#pragma once

#include <cstdint>
#include <vector>

#include "contract/Finding.h"

class ZXADLG_CDlgDataSource;

// One finding for each group that cannot be analysed: a set without points, or fewer sets than the
// kind of data needs.
std::vector<Finding> FindUnusableGroups(ZXADLG_CDlgDataSource& source);

// At least one set must be selected; nListControl is where the user selects.
CheckResult CheckAnySetSelected(int nSelected, int nListControl);

// The first row must lie before the last, and neither be 0; nFirstControl is the field of the
// first.
CheckResult CheckRowOrder(int nFirst, int nLast, int nFirstControl);

// Every item, counted from 0, is one of nCount sets.
CheckResult CheckSetsExist(const std::vector<std::int32_t>& vItems, int nCount, const char* szNoun,
                           int nListControl);
