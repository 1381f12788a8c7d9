// The exported functions under the names that stand for their numbers.

#include "CreateFilter.h"

extern "C" {

ZXADLG_CFilter* Ordinal1000(const FilterOptions* options) {
    return filter::CreateFilter(options);
}

void Ordinal1001(ZXADLG_CFilter* pFilter) {
    filter::ReleaseFilter(pFilter);
}
}
