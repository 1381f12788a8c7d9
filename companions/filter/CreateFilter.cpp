#include "CreateFilter.h"

#include <exception>

#include "FilterObject.h"

namespace filter {

ZXADLG_CFilter* CreateFilter(const FilterOptions* options) {
    if (options == nullptr) return nullptr;
    try {
        return new FilterObject(*options);
    } catch (const std::exception&) {
        return nullptr;
    }
}

void ReleaseFilter(ZXADLG_CFilter* pFilter) {
    delete static_cast<FilterObject*>(pFilter);
}

}  // namespace filter
