#include "sigproc/FilterLibrary.h"

std::uint32_t FilterLibrary::MinimumPoints(const FilterOptions& options) {
    const auto pCreate =
        m_library.Find<ZXADLG_CreateFilter>(MAKEINTRESOURCEA(ZXADLG_FILTER_CREATE));
    const auto pRelease =
        m_library.Find<ZXADLG_ReleaseFilter>(MAKEINTRESOURCEA(ZXADLG_FILTER_RELEASE));
    if (pCreate == nullptr || pRelease == nullptr) return 0;
    ZXADLG_CFilter* pFilter = pCreate(&options);
    if (pFilter == nullptr) return 0;
    const std::uint32_t uPoints = pFilter->GetMinimumPoints();
    pRelease(pFilter);
    return uPoints;
}
