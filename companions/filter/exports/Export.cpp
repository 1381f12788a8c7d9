// The exported functions under the names that stand for their numbers. On Windows the definition
// file gives them the numbers and no name.

#include "CreateFilter.h"

extern "C" {

ZXADLG_CFilter* ZXADLG_FILTER_CALL Ordinal1000(const FilterOptions* options) {
    return filter::CreateFilter(options);
}

void ZXADLG_FILTER_CALL Ordinal1001(ZXADLG_CFilter* pFilter) {
    filter::ReleaseFilter(pFilter);
}
}
