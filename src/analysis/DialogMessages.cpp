#include "analysis/DialogMessages.h"

#include "framework/PrivateMessages.h"
#include "ids.h"
#include "text/CaptionText.h"
#include "text/TextTests.h"
#include "widgets/FrameworkSetup.h"
#include "widgets/MessageDialog.h"

namespace {

bool IsTextField(HWND hWnd) {
    char szClass[32] = {};
    GetClassNameA(hWnd, szClass, sizeof szClass);
    return EqualNoCase(szClass, "Edit") || EqualNoCase(szClass, "ComboBox");
}

}  // namespace

UINT ShowFinding(HWND hOwner, const Finding& finding) {
    char szTemplate[512] = {};
    const char* szText = finding.szText;
    if (szText == nullptr) {
        if (LoadStringA(GetFrameworkInstance(), finding.nStringId, szTemplate, sizeof szTemplate) <=
            0) {
            return 0;
        }
        szText = szTemplate;
    }
    char szMessage[512];
    FormatCaption(szMessage, sizeof szMessage, szText, finding.vArguments, finding.ePlaces);
    return CommonCtls::ShowMessage(hOwner, "%0", finding.uFlags, {szMessage});
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
    SendMessageA(hDialog, DM_SETDEFID, IDCANCEL, 0);
    // The system gives the focus to the first control behind the set-up.
    PostMessageA(hDialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(hDialog, IDCANCEL)),
                 TRUE);
}

void FocusCancel(HWND hDialog) {
    HWND hCancel = GetDlgItem(hDialog, IDCANCEL);
    if (hCancel != nullptr && GetFocus() != hCancel) SetFocus(hCancel);
}

void FocusControl(const ADM_Dialog& page, int nControlId) {
    if (nControlId == 0 || page.GetHandle() == nullptr) return;
    HWND hControl = GetDlgItem(page.GetHandle(), nControlId);
    if (hControl == nullptr || !IsWindowEnabled(hControl))
        hControl = GetNextDlgTabItem(page.GetHandle(), nullptr, FALSE);
    if (ADM_Wnd* pControl = page.FindControl(hControl)) {
        PostMessageA(page.GetHandle(), ADMM_FOCUS_CONTROL, 0, reinterpret_cast<LPARAM>(pControl));
    } else if (hControl != nullptr) {
        SetFocus(hControl);
    }
}

TypedValues TypedTexts(HWND hPage) {
    TypedValues typed;
    if (hPage == nullptr) return typed;
    for (HWND hItem = GetWindow(hPage, GW_CHILD); hItem != nullptr;
         hItem = GetWindow(hItem, GW_HWNDNEXT)) {
        if (!IsTextField(hItem)) continue;
        std::string sText(static_cast<std::size_t>(GetWindowTextLengthA(hItem)) + 1, '\0');
        sText.resize(static_cast<std::size_t>(
            GetWindowTextA(hItem, sText.data(), static_cast<int>(sText.size()))));
        typed.emplace(GetDlgCtrlID(hItem), std::move(sText));
    }
    return typed;
}
