#include "analysis/PageInputs.h"

#include <string>
#include <string_view>

#include "text/TextTests.h"

namespace {

std::string ClassOf(HWND hWnd) {
    char szClass[64] = {};
    GetClassNameA(hWnd, szClass, sizeof szClass);
    return szClass;
}

bool IsGroupBox(HWND hWnd) {
    return (GetWindowLongPtrA(hWnd, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

bool IsInput(HWND hWnd) {
    const int nId = GetDlgCtrlID(hWnd);
    if (nId == IDOK || nId == IDCANCEL) return false;
    const std::string sClass = ClassOf(hWnd);
    if (EqualNoCase(sClass, "Button")) return !IsGroupBox(hWnd);
    return EqualNoCase(sClass, "Edit") || EqualNoCase(sClass, "ComboBox") ||
           std::string_view(sClass).starts_with("ZDC_Spinner");
}

// The caption of the label or button directly before a field, without its access key and colon.
std::string LabelBefore(HWND hField) {
    HWND hLabel = GetWindow(hField, GW_HWNDPREV);
    if (hLabel == nullptr) return {};
    const std::string sClass = ClassOf(hLabel);
    const bool bButton = EqualNoCase(sClass, "Button") && !IsGroupBox(hLabel);
    if (!bButton && !EqualNoCase(sClass, "Static")) return {};
    char szCaption[128] = {};
    GetWindowTextA(hLabel, szCaption, sizeof szCaption);
    std::string sName;
    for (const char* p = szCaption; *p != '\0'; ++p) {
        if (*p == '&' && *++p == '\0') break;
        sName += *p;
    }
    while (!sName.empty() && (sName.back() == ':' || sName.back() == ' ')) sName.pop_back();
    return sName;
}

}  // namespace

void NameFields(const ADM_Dialog& page, const std::vector<ADM_Wnd*>& vControls) {
    for (ADM_Wnd* pControl : vControls) {
        HWND hField = pControl->GetHandle();
        if (hField == nullptr || hField == page.GetHandle()) continue;
        if (pControl->GetFieldName() != nullptr || !EqualNoCase(ClassOf(hField), "Edit")) continue;
        const std::string sName = LabelBefore(hField);
        if (!sName.empty()) pControl->SetFieldName(sName.c_str());
    }
}

void GreyInputs(ADM_Dialog& page, const std::function<bool(ADM_Wnd*)>& isAlive) {
    for (HWND hItem = GetWindow(page.GetHandle(), GW_CHILD); hItem != nullptr;
         hItem = GetWindow(hItem, GW_HWNDNEXT)) {
        if (!IsInput(hItem)) continue;
        ADM_Wnd* pControl = page.FindControl(hItem);
        if (pControl == nullptr) {
            EnableWindow(hItem, FALSE);
        } else if (!isAlive(pControl)) {
            pControl->Enable(FALSE);
        }
    }
}

void LeaveField() {
    HWND hField = GetFocus();
    if (hField == nullptr || !EqualNoCase(ClassOf(hField), "Edit")) return;
    SendMessageA(GetParent(hField), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(hField), EN_KILLFOCUS),
                 reinterpret_cast<LPARAM>(hField));
}
