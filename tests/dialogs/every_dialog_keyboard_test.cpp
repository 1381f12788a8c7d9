// Every dialog at the keyboard and at a glance: every input is reached without the mouse, what a
// combo box offers can be read in its field.

#include <gtest/gtest.h>

#include <set>

#include "DialogRows.h"
#include "fixtures/DialogScript.h"
#include "fixtures/PageState.h"
#include "fixtures/ScratchStore.h"
#include "ids.h"
#include "store/ProfileStore.h"

namespace {

using namespace dialogs_test;
using test_support::ClassOf;
using test_support::DialogScript;
using test_support::IsInput;
using test_support::StateOf;
using test_support::VisibleControls;

class EveryDialogAtTheKeyboard : public testing::TestWithParam<DialogRow> {
  protected:
    EveryDialogAtTheKeyboard() : m_bOld(SetUseProfileFile(true)) {
        m_opening.source.Profile(m_store.ProfileFile());
    }
    ~EveryDialogAtTheKeyboard() override { SetUseProfileFile(m_bOld); }

    int PageCount() const { return GetParam().PageCount(); }
    int Show(DialogScript& script) {
        return script.Run([&] { return GetParam().show(m_opening); });
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
    Opening m_opening{GetParam()};
};

// The inputs that a user can reach now: of a radio set the chosen button.
std::set<HWND> ReachableInputs(HWND dialog) {
    std::set<HWND> inputs;
    for (HWND control : test_support::Descendants(dialog)) {
        const LONG_PTR nStyle = GetWindowLongPtrA(control, GWL_STYLE);
        if ((nStyle & WS_TABSTOP) == 0 || !IsWindowVisible(control) || !IsWindowEnabled(control))
            continue;
        if (ClassOf(GetParent(control)) == "combobox") continue;
        // Tab passes through the tabs into their page; keys of their own change the page.
        if (ClassOf(control) == "systabcontrol32") continue;
        inputs.insert(control);
    }
    return inputs;
}

// What has the focus, as a user sees it: the edit of a combo box is part of the box.
HWND FocusedInput() {
    const HWND focus = GetFocus();
    const HWND parent = GetParent(focus);
    return parent != nullptr && ClassOf(parent) == "combobox" ? parent : focus;
}

TEST_P(EveryDialogAtTheKeyboard, TabMeetsEveryInputOfEveryPage) {
    constexpr int kMostSteps = 40;
    DialogScript script;
    std::set<HWND> wanted, met;
    for (int nPage = 0; nPage < PageCount(); ++nPage) {
        if (nPage > 0) script.Press(VK_TAB, test_support::kControl);
        script.Do([&](HWND dialog) {
            met.clear();
            wanted = ReachableInputs(dialog);
            EXPECT_GT(wanted.size(), 3u);
        });
        for (int i = 0; i < kMostSteps; ++i) {
            script.Do([&] { met.insert(FocusedInput()); }).Press(VK_TAB);
        }
        script.Do([&](HWND) {
            for (HWND control : wanted)
                EXPECT_EQ(met.count(control), 1u) << test_support::DescribeWindow(control);
            // The focus never rests where nothing can be done.
            for (HWND control : met) EXPECT_EQ(wanted.count(control), 1u) << StateOf(control);
        });
    }
    script.Press(VK_ESCAPE);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_P(EveryDialogAtTheKeyboard, ArrowsChooseEveryButtonOfARadioSet) {
    int nSets = 0;
    DialogScript script;
    for (int nPage = 0; nPage < PageCount(); ++nPage) {
        if (nPage > 0) script.Press(VK_TAB, test_support::kControl);
        script.Do([&](HWND dialog) {
            for (HWND first : ReachableInputs(dialog)) {
                const LONG_PTR nType = GetWindowLongPtrA(first, GWL_STYLE) & BS_TYPEMASK;
                if (ClassOf(first) != "button" || nType != BS_AUTORADIOBUTTON) continue;
                ++nSets;
                // A whole round ends where it began, with every enabled button met once.
                std::set<HWND> met;
                HWND page = GetParent(first);
                for (HWND at = first; met.insert(at).second;
                     at = GetNextDlgGroupItem(page, at, FALSE)) {
                    ASSERT_LT(met.size(), 9u);
                    EXPECT_EQ(GetWindowLongPtrA(at, GWL_STYLE) & BS_TYPEMASK, BS_AUTORADIOBUTTON);
                    EXPECT_TRUE(IsWindowEnabled(at));
                }
                EXPECT_GT(met.size(), 1u) << StateOf(first);
            }
        });
    }
    script.Press(VK_ESCAPE);
    EXPECT_EQ(Show(script), IDCANCEL);
    EXPECT_EQ(nSets == 0, std::string(GetParam().szName) == "Subtract Control");
}

TEST_P(EveryDialogAtTheKeyboard, WhatAComboBoxOffersCanBeReadInItsField) {
    DialogScript script;
    for (int nPage = 0; nPage < PageCount(); ++nPage) {
        if (nPage > 0) script.Press(VK_TAB, test_support::kControl);
        script.Do([&](HWND dialog) {
            for (HWND combo : test_support::Descendants(dialog)) {
                if (ClassOf(combo) != "combobox" || !IsWindowVisible(combo)) continue;
                RECT rc;
                GetClientRect(combo, &rc);
                const int nRoom = static_cast<int>(rc.right) - GetSystemMetrics(SM_CXVSCROLL) - 8;
                const HDC dc = GetDC(combo);
                SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(combo, WM_GETFONT, 0, 0)));
                for (const std::string& text : test_support::ItemsOf(combo)) {
                    SIZE size = {};
                    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
                    EXPECT_LE(size.cx, nRoom) << StateOf(combo) << text;
                }
                ReleaseDC(combo, dc);
            }
        });
    }
    script.Press(VK_ESCAPE);
    EXPECT_EQ(Show(script), IDCANCEL);
}

RECT PlaceOf(HWND control) {
    RECT rc;
    GetWindowRect(control, &rc);
    return rc;
}

// Whatever the host leaves out.
TEST_P(EveryDialogAtTheKeyboard, NoFrameIsEmptyAndNoCheckBoxLeavesAGap) {
    for (int bits = 0; bits < 8; ++bits) {
        SCOPED_TRACE(bits);
        m_opening.params.bShowDestination = bits & 1;
        m_opening.params.bShowDynamicLink = bits >> 1 & 1;
        m_opening.params.bShowWriteRegionInfo = bits >> 2 & 1;
        DialogScript script;
        script
            .Do([&](HWND dialog) {
                const std::vector<HWND> shown = VisibleControls(dialog);
                for (HWND frame : shown) {
                    if (IsInput(frame) || ClassOf(frame) != "button") continue;
                    const RECT rc = PlaceOf(frame);
                    int nInside = 0;
                    for (HWND control : shown) {
                        const RECT rcControl = PlaceOf(control);
                        if (control != frame && rcControl.left >= rc.left &&
                            rcControl.right <= rc.right && rcControl.top >= rc.top &&
                            rcControl.bottom <= rc.bottom)
                            ++nInside;
                    }
                    EXPECT_GT(nInside, 0) << StateOf(frame);
                }
                HWND link = test_support::FindControl(dialog, IDC_DYNAMIC_LINK);
                HWND region = test_support::FindControl(dialog, IDC_WRITE_REGION_INFO);
                if (link == nullptr || region == nullptr) return;
                const bool bAtItsPlace = PlaceOf(link).left == PlaceOf(region).left &&
                                         PlaceOf(link).top == PlaceOf(region).top;
                EXPECT_EQ(bAtItsPlace, !IsWindowVisible(link) && IsWindowVisible(region));
            })
            .Press(VK_ESCAPE);
        EXPECT_EQ(Show(script), IDCANCEL);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryDialogAtTheKeyboard, testing::ValuesIn(Rows()), NameOfRow);

}  // namespace
