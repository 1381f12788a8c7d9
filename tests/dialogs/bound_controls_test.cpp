// Between a dialog's template and its code nothing is missing: each item that a user can change has
// a control object, and each registered id stands in the template.

#include <gtest/gtest.h>

#include <string>

#include "DialogRows.h"
#include "fixtures/DialogScript.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_Dialog.h"
#include "ids.h"

namespace {

using namespace dialogs_test;
using test_support::ClassOf;
using test_support::DialogScript;

bool IsEditable(HWND hItem) {
    const std::string kind = ClassOf(hItem);
    if (kind == "static") return false;
    const LONG_PTR type = GetWindowLongPtrA(hItem, GWL_STYLE) & 0xF;
    return kind != "button" || type != BS_GROUPBOX;
}

// The dialog and its pages that exist now.
std::vector<HWND> DialogsOf(HWND dialog) {
    std::vector<HWND> dialogs = {dialog};
    for (HWND hWnd : test_support::Descendants(dialog)) {
        if (ADM_Dialog::FromWindow(hWnd) != nullptr) dialogs.push_back(hWnd);
    }
    return dialogs;
}

// Registered by a base whose templates are not all alike: in these dialogs the item is absent, and
// the control stays a value without a window.
bool IsAbsent(const DialogRow& dialog, int nId) {
    // Two selections have a data tab of their own; these dialogs have one.
    if (nId == IDC_SET_LIST_2) return dialog.bHasDataTab;
    // Their graphs are not linked.
    if (nId == IDC_DYNAMIC_LINK &&
        (dialog.Title() == "Curve Fitting" || dialog.Title() == "Histogram"))
        return true;
    // An expression has no results of the library's.
    if (dialog.Title() == "Arithmetic") {
        return nId == IDC_DESTINATION_GROUP || nId == IDC_DYNAMIC_LINK ||
               nId == IDC_WRITE_REGION_INFO;
    }
    // Each page of the measurements has some of what the results need.
    if (dialog.Title() == "Measurements") {
        return nId == IDC_DESTINATION_GROUP || nId == IDC_DYNAMIC_LINK ||
               nId == IDC_WRITE_REGION_INFO;
    }
    // The y axis shows the current of a region there, never a waveform.
    return nId == IDC_AXES_Y_WAVEFORM && std::string(dialog.szName) == "Current/Voltage";
}

// What is looked at, over all dialogs.
struct Counts {
    int nPages = 0;
    int nItems = 0;
    int nControls = 0;
    int nAbsent = 0;
};

void ExpectComplete(const DialogRow& dialog, HWND hDialog, Counts& counts) {
    ADM_Dialog* const pDialog = ADM_Dialog::FromWindow(hDialog);
    ASSERT_NE(pDialog, nullptr);
    ++counts.nPages;
    for (HWND hItem = GetWindow(hDialog, GW_CHILD); hItem != nullptr;
         hItem = GetWindow(hItem, GW_HWNDNEXT)) {
        if (!IsEditable(hItem) || ADM_Dialog::FromWindow(hItem) != nullptr) continue;
        ++counts.nItems;
        EXPECT_NE(pDialog->FindControl(hItem), nullptr)
            << "no control for " << ClassOf(hItem) << " " << GetDlgCtrlID(hItem) << " \""
            << test_support::TextOf(hItem) << "\"";
    }
    for (ADM_Wnd* pControl : pDialog->GetControls()) {
        if (pControl->GetControlId() == ADM_Wnd::kNoItem) continue;
        ++counts.nControls;
        const bool bBound = pControl->GetHandle() != nullptr;
        if (IsAbsent(dialog, pControl->GetControlId()) && !bBound) {
            ++counts.nAbsent;
            continue;
        }
        EXPECT_TRUE(bBound) << "no item in the template for the id " << pControl->GetControlId();
    }
}

TEST(BoundControls, EveryEditableItemHasAControlAndEveryRegisteredIdAnItem) {
    Counts counts;
    for (const DialogRow& dialog : Rows()) {
        SCOPED_TRACE(dialog.szName);
        Opening opening(dialog);
        DialogScript script;
        if (dialog.bHasDataTab) script.SelectTab("Data").SelectTab(0);
        script.Do([&](HWND hDialog) {
            for (HWND hPage : DialogsOf(hDialog)) {
                SCOPED_TRACE(test_support::TextOf(hPage));
                ExpectComplete(dialog, hPage, counts);
            }
        });
        script.Click(IDCANCEL);
        EXPECT_EQ(script.Run([&] { return dialog.show(opening); }), IDCANCEL);
    }
    // Ten dialogs of a frame and two pages, one with three and one with four, and seven single
    // pages.
    EXPECT_EQ(counts.nPages, 10 * 3 + 4 + 5 + 7);
    EXPECT_GT(counts.nItems, 150);
    EXPECT_GT(counts.nControls, 180);
    EXPECT_EQ(counts.nAbsent, 12 + 2 + 1 + 3 * 3 + 5);
}

}  // namespace
