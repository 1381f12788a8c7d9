#include "analysis/DialogMessages.h"

#include "analysis/CaptionText.h"
#include "ids.h"
#include "widgets/Framework.h"
#include "widgets/MessageDialog.h"

void ShowErrorString(HWND hOwner, UINT nStringId, const char* szArgument) {
    char szTemplate[512];
    if (LoadStringA(GetFrameworkInstance(), nStringId, szTemplate, sizeof szTemplate) <= 0) return;
    char szText[512];
    FormatCaption(szText, szTemplate, szArgument);
    CommonCtls::ShowMessage(hOwner, "%0", MB_ICONHAND, {szText});
}

void DressReadOnly(HWND hDialog) {
    char szCaption[128];
    GetWindowTextA(hDialog, szCaption, sizeof szCaption);
    char szText[256];
    if (LoadStringA(GetFrameworkInstance(), IDS_READ_ONLY_CAPTION, szText, sizeof szText) > 0) {
        char szDressed[256];
        FormatCaption(szDressed, szText, szCaption);
        SetWindowTextA(hDialog, szDressed);
    }
    ShowWindow(GetDlgItem(hDialog, IDOK), SW_HIDE);
    if (LoadStringA(GetFrameworkInstance(), IDS_CLOSE, szText, sizeof szText) > 0) {
        SetDlgItemTextA(hDialog, IDCANCEL, szText);
    }
}

void FocusCancel(HWND hDialog) {
    HWND hCancel = GetDlgItem(hDialog, IDCANCEL);
    if (hCancel != nullptr && GetFocus() != hCancel) SetFocus(hCancel);
}
