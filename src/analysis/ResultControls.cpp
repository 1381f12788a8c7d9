#include "analysis/ResultControls.h"

#include "ids.h"

namespace {

RECT PlaceOf(HWND hWnd) {
    RECT rc = {};
    GetWindowRect(hWnd, &rc);
    MapWindowPoints(nullptr, GetParent(hWnd), reinterpret_cast<POINT*>(&rc), 2);
    return rc;
}

void MoveTo(HWND hWnd, int x, int y) {
    SetWindowPos(hWnd, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// The group box around a control, or null.
HWND FrameOf(HWND hWnd) {
    const RECT rc = PlaceOf(hWnd);
    for (HWND hItem = GetWindow(GetParent(hWnd), GW_CHILD); hItem != nullptr;
         hItem = GetWindow(hItem, GW_HWNDNEXT)) {
        const LONG_PTR nType = GetWindowLongPtrA(hItem, GWL_STYLE) & BS_TYPEMASK;
        if (nType != BS_GROUPBOX || (SendMessageA(hItem, WM_GETDLGCODE, 0, 0) & DLGC_STATIC) == 0)
            continue;
        const RECT rcFrame = PlaceOf(hItem);
        if (rcFrame.left <= rc.left && rcFrame.right >= rc.right && rcFrame.top <= rc.top &&
            rcFrame.bottom >= rc.bottom)
            return hItem;
    }
    return nullptr;
}

}  // namespace

void ResultControls::Register(ADM_Dialog* pDialog) {
    // The id between the two buttons belongs to another page.
    constexpr int kDestinations[] = {IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE};
    pDialog->RegisterControl(IDC_DESTINATION_GROUP, &grpDestination);
    radDestination.SetupIds(pDialog, 2, kDestinations, nullptr);
    pDialog->RegisterControl(IDC_DYNAMIC_LINK, &chkDynamicLink);
    pDialog->RegisterControl(IDC_WRITE_REGION_INFO, &chkWriteRegionInfo);
}

void ResultControls::ShowWhere(const ZXADLG_DlgParams& params) {
    const auto command = [](std::uint8_t bShow) { return bShow != 0 ? SW_SHOW : SW_HIDE; };
    grpDestination.Show(command(params.bShowDestination));
    radDestination.Show(command(params.bShowDestination));
    chkDynamicLink.Show(command(params.bShowDynamicLink));
    chkWriteRegionInfo.Show(command(params.bShowWriteRegionInfo));
    const HWND hPage = GetParent(chkWriteRegionInfo.GetHandle());
    if (hPage == m_hArranged) return;
    m_hArranged = hPage;
    CloseGaps(params);
}

void ResultControls::CloseGaps(const ZXADLG_DlgParams& params) const {
    const HWND hLink = chkDynamicLink.GetHandle();
    const HWND hRegion = chkWriteRegionInfo.GetHandle();
    if (hRegion == nullptr) return;
    if (hLink != nullptr && params.bShowDynamicLink == 0) {
        const RECT rcLink = PlaceOf(hLink);
        if (params.bShowWriteRegionInfo != 0) {
            MoveTo(hRegion, rcLink.left, rcLink.top);
        } else if (const HWND hFrame = FrameOf(hLink)) {
            ShowWindow(hFrame, SW_HIDE);
        }
    }
    const HWND hGroup = grpDestination.GetHandle();
    if (hGroup == nullptr || params.bShowDestination != 0) return;
    // What stands under the hidden box takes its place.
    const RECT rcGroup = PlaceOf(hGroup);
    const RECT rcFirst = PlaceOf(hLink != nullptr ? hLink : hRegion);
    const LONG nUp = rcFirst.top - rcGroup.top;
    if (rcFirst.left != rcGroup.left || nUp <= 0) return;
    for (const HWND hCheck : {hLink, hRegion}) {
        if (hCheck == nullptr) continue;
        const RECT rc = PlaceOf(hCheck);
        MoveTo(hCheck, rc.left, rc.top - nUp);
    }
}
