// The exported functions. The definition file gives them their numbers and no name.

#include "CreateFilter.h"

extern "C" {

ZXADLG_CFilter* ZXADLG_FILTER_CALL FLT_CreateFilter(const FilterOptions* options) {
    return filter::CreateFilter(options);
}

void ZXADLG_FILTER_CALL FLT_ReleaseFilter(ZXADLG_CFilter* pFilter) {
    filter::ReleaseFilter(pFilter);
}
}
