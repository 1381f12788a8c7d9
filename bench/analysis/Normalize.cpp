// Normalize from the Show call to its first idle moment, and from OK to the return, against bare
// dialogs of the same templates with the same items in them.
#include "Benchmarks.h"
#include "TabbedOpening.h"

bool MeasureNormalize() {
    using opening::AddItem;
    NamedSource source(12);
    ZXADLG_DlgParams params = {};
    params.bUseDataOptions = params.bShowGroupSelector = params.bShowDestination = 1;
    params.bShowDynamicLink = params.bShowWriteRegionInfo = 1;
    const auto show = [&](HWND hOwner) {
        ZXADLG_NormalizeOptions options = {};
        options.bUseAllPoints = 1;
        ZXADLG_DataOptions data = {};
        data.eDataSet1SelectionMode = data.eDataGroup1SelectionMode = 1;
        ZXADLG_ShowNormalizeDialog(hOwner, &options, &data, &source, &params);
    };
    const opening::BareDialog bare = {
        IDD_NORMALIZE,
        {{IDD_NORMALIZE_OPTIONS, "Options"}, {IDD_UNITARY_DATA, "Data"}},
        [&](const std::vector<HWND>& pages) {
            for (const char* szName : NamedSource::kRegionNames) {
                AddItem(pages[0], IDC_NORMALIZE_BASELINE, CB_ADDSTRING, szName);
                AddItem(pages[0], IDC_NORMALIZE_PEAK, CB_ADDSTRING, szName);
            }
            for (const std::string& sName : source.names)
                AddItem(pages[1], IDC_SET_LIST, LB_ADDSTRING, sName.c_str());
            for (const char* szName : NamedSource::kGroupNames)
                AddItem(pages[1], IDC_GROUP, CB_ADDSTRING, szName);
            for (const int nId : {IDC_NORMALIZE_BASELINE, IDC_NORMALIZE_PEAK})
                SendMessageA(GetDlgItem(pages[0], nId), CB_SETCURSEL, 0, 0);
            SendMessageA(GetDlgItem(pages[1], IDC_GROUP), CB_SETCURSEL, 0, 0);
            SendMessageA(GetDlgItem(pages[1], IDC_SET_LIST), LB_SETSEL, TRUE, -1);
            CheckDlgButton(pages[0], IDC_NORMALIZE_REGIONS, BST_CHECKED);
            CheckDlgButton(pages[0], IDC_DESTINATION_APPEND, BST_CHECKED);
            CheckDlgButton(pages[1], IDC_SETS_ALL, BST_CHECKED);
            CheckDlgButton(pages[1], IDC_GROUPS_ONE, BST_CHECKED);
        }};
    return opening::MeasureOpening("Normalize", show, bare, 1.2, 1.3);
}
