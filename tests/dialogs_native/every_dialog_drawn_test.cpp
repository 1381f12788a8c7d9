// Every page of every dialog as it is drawn: in the colours of the user's scheme and nothing else,
// and with every text whole, at 8 points and at 12.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <set>

#include "dialogs/DialogRows.h"
#include "fixtures/DialogScript.h"
#include "fixtures/PageState.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/WindowReading.h"
#include "store/ProfileStore.h"
#include "zxadlg/headless.h"
#include "zxadlg/headless/recording.h"

namespace {

using namespace dialogs_test;
using headless::DrawKind;
using headless::DrawOp;
using test_support::ClassOf;
using test_support::DialogScript;
using test_support::StateOf;
using test_support::VisibleControls;

constexpr int kSystemColors = 31;

// A dark scheme in which no two colours are the same, and none is one that a program would name.
COLORREF SchemeColor(int nIndex) {
    const bool bText = nIndex == COLOR_WINDOWTEXT || nIndex == COLOR_BTNTEXT;
    return bText ? RGB(250, 251, 200 + nIndex) : RGB(3, 40 + nIndex, 2);
}

class EveryDialogDrawn : public testing::TestWithParam<DialogRow> {
  protected:
    EveryDialogDrawn() : m_bOld(SetUseProfileFile(true)) {
        m_opening.source.Profile(m_store.ProfileFile());
    }
    ~EveryDialogDrawn() override {
        SetUseProfileFile(m_bOld);
        headless::ResetSystemColors();
        headless::SetDisplayDpi(96);
    }

    // Opens the dialog and calls `look` with each of its pages.
    void LookAtEachPage(const std::function<void(HWND)>& look) {
        DialogScript script;
        for (int nPage = 0; nPage < GetParam().PageCount(); ++nPage) {
            if (nPage > 0) script.Press(VK_TAB, test_support::kControl);
            script.Do([&, nPage](HWND dialog) {
                SCOPED_TRACE("page " + std::to_string(nPage));
                RedrawWindow(dialog, nullptr, nullptr,
                             RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW | RDW_ALLCHILDREN);
                look(dialog);
            });
        }
        script.Press(VK_ESCAPE);
        EXPECT_EQ(script.Run([&] { return GetParam().show(m_opening); }), IDCANCEL);
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
    Opening m_opening{GetParam()};
};

// The colours that one step of drawing uses.
std::vector<COLORREF> ColorsOf(const DrawOp& op) {
    switch (op.kind) {
        case DrawKind::kText:
            return op.opaque ? std::vector{op.textColor, op.backColor} : std::vector{op.textColor};
        case DrawKind::kFill:
        case DrawKind::kFrame:
        case DrawKind::kLine:
        case DrawKind::kPolyline:
        case DrawKind::kPixel:
            return {op.color};
        case DrawKind::kPolygon:
            return {op.color, op.frameColor};
        default:
            return {};
    }
}

TEST_P(EveryDialogDrawn, HasTheColoursOfTheUsersSchemeAndNoOther) {
    std::set<COLORREF> scheme;
    for (int i = 0; i < kSystemColors; ++i) {
        headless::SetSystemColor(i, SchemeColor(i));
        scheme.insert(SchemeColor(i));
    }
    ASSERT_EQ(scheme.size(), static_cast<std::size_t>(kSystemColors));
    int nDrawn = 0;
    LookAtEachPage([&](HWND dialog) {
        std::vector<HWND> windows = test_support::Descendants(dialog);
        windows.push_back(dialog);
        for (HWND window : windows) {
            if (!IsWindowVisible(window)) continue;
            const std::vector<DrawOp>& ops = headless::RecordedOps(window);
            const bool bFormula = std::any_of(ops.begin(), ops.end(), [](const DrawOp& op) {
                return op.kind == DrawKind::kMetafile;
            });
            for (const DrawOp& op : ops) {
                for (const COLORREF color : ColorsOf(op)) {
                    // A formula is black, on white.
                    const bool bOfFormula = color == RGB(0, 0, 0) || color == RGB(255, 255, 255);
                    EXPECT_TRUE(scheme.count(color) == 1 || (bFormula && bOfFormula))
                        << std::hex << color << " " << test_support::DescribeWindow(window);
                    ++nDrawn;
                }
            }
        }
    });
    EXPECT_GT(nDrawn, 20);
}

TEST_P(EveryDialogDrawn, GreysWhatCannotBeUsed) {
    for (int i = 0; i < kSystemColors; ++i) headless::SetSystemColor(i, SchemeColor(i));
    int nTexts = 0;
    LookAtEachPage([&](HWND dialog) {
        for (HWND control : VisibleControls(dialog)) {
            if (ClassOf(control) == "systabcontrol32") continue;
            const bool bGrey = !IsWindowEnabled(control);
            for (const DrawOp& op : headless::RecordedOps(control)) {
                if (op.kind != DrawKind::kText || op.text.empty()) continue;
                EXPECT_EQ(op.textColor == SchemeColor(COLOR_GRAYTEXT), bGrey) << StateOf(control);
                ++nTexts;
            }
        }
    });
    EXPECT_GT(nTexts, 5);
}

// Each text of a label or a button lies within its control.
void ExpectTextsWhole(HWND dialog) {
    for (HWND control : test_support::Descendants(dialog)) {
        const std::string sClass = ClassOf(control);
        if (!IsWindowVisible(control) || (sClass != "static" && sClass != "button")) continue;
        RECT rc;
        GetClientRect(control, &rc);
        for (const DrawOp& op : headless::RecordedOps(control)) {
            if (op.kind != DrawKind::kText || op.text.empty()) continue;
            EXPECT_GE(op.rect.left, rc.left) << test_support::DescribeWindow(control);
            EXPECT_LE(op.rect.right, rc.right) << test_support::DescribeWindow(control);
            EXPECT_LE(op.rect.bottom, rc.bottom + 1) << test_support::DescribeWindow(control);
        }
    }
}

// Where the visible controls of a page stand, in hundredths of the dialog's own units. The height
// of a combo box follows its font.
std::vector<RECT> PlacesOf(HWND dialog) {
    RECT units = {0, 0, 400, 800};
    MapDialogRect(dialog, &units);
    std::vector<RECT> places;
    for (HWND control : VisibleControls(dialog)) {
        RECT rc;
        GetWindowRect(control, &rc);
        MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rc), 2);
        if (ClassOf(control) == "combobox") rc.bottom = rc.top;
        places.push_back({MulDiv(rc.left, 40000, units.right), MulDiv(rc.top, 80000, units.bottom),
                          MulDiv(rc.right, 40000, units.right),
                          MulDiv(rc.bottom, 80000, units.bottom)});
    }
    return places;
}

TEST_P(EveryDialogDrawn, ShowsEveryTextWholeAtTwelvePointsAndLeavesAllInItsPlace) {
    std::vector<std::vector<RECT>> pages[2];
    for (const bool bLarge : {false, true}) {
        headless::SetDisplayDpi(bLarge ? 144 : 96);
        LookAtEachPage([&](HWND dialog) {
            ExpectTextsWhole(dialog);
            pages[bLarge].push_back(PlacesOf(dialog));
        });
    }
    constexpr long kTolerance = 225;
    ASSERT_EQ(pages[0].size(), pages[1].size());
    for (std::size_t nPage = 0; nPage < pages[0].size(); ++nPage) {
        ASSERT_EQ(pages[0][nPage].size(), pages[1][nPage].size());
        for (std::size_t i = 0; i < pages[0][nPage].size(); ++i) {
            const RECT &small = pages[0][nPage][i], &large = pages[1][nPage][i];
            for (const auto side : {&RECT::left, &RECT::top, &RECT::right, &RECT::bottom})
                EXPECT_LE(std::labs(small.*side - large.*side), kTolerance) << nPage << " " << i;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryDialogDrawn, testing::ValuesIn(Rows()), NameOfRow);

}  // namespace
