// The marks of keyboard use, the underlines of mnemonics and the frames of the focus: hidden and
// shown for a whole top-level window at once.
#include <gtest/gtest.h>

#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::RecordingWindow;

class UiCues : public testing::Test {
  protected:
    UiCues()
        : m_button(m_window.Add("Button", "&a", 1, 0)),
          m_inner(CreateWindowExA(0, "Static", "&b", WS_CHILD | WS_VISIBLE, 0, 0, 5, 5, m_button,
                                  nullptr, GetModuleHandleA(nullptr), nullptr)) {
        Change(m_window, UIS_CLEAR, UISF_HIDEACCEL | UISF_HIDEFOCUS);
    }

    static LRESULT Hidden(HWND window) { return SendMessageA(window, WM_QUERYUISTATE, 0, 0); }
    static void Change(HWND window, int action, int marks) {
        SendMessageA(window, WM_CHANGEUISTATE,
                     MAKEWPARAM(static_cast<WORD>(action), static_cast<WORD>(marks)), 0);
    }

    RecordingWindow m_window;
    HWND m_button;
    HWND m_inner;
};

// Where marks are always shown, none of these changes hides any.
constexpr char kAlwaysShown[] = "the marks of keyboard use are always shown";

TEST_F(UiCues, AreShownWhereNothingHidesThem) {
    EXPECT_EQ(0, Hidden(m_window));
    EXPECT_EQ(0, Hidden(m_button));
    EXPECT_EQ(0, Hidden(m_inner));
}

TEST_F(UiCues, AChangeReachesTheTopAndAllBelow) {
    Change(m_inner, UIS_SET, UISF_HIDEACCEL);
    for (HWND window : {m_window.Handle(), m_button, m_inner})
        KNOWN_GAP(kWine, kAlwaysShown, Hidden(window) == UISF_HIDEACCEL);
}

TEST_F(UiCues, EachMarkIsShownByItself) {
    Change(m_window, UIS_SET, UISF_HIDEACCEL | UISF_HIDEFOCUS);
    KNOWN_GAP(kWine, kAlwaysShown, Hidden(m_inner) == (UISF_HIDEACCEL | UISF_HIDEFOCUS));
    Change(m_button, UIS_CLEAR, UISF_HIDEACCEL);
    KNOWN_GAP(kWine, kAlwaysShown, Hidden(m_window) == UISF_HIDEFOCUS);
    KNOWN_GAP(kWine, kAlwaysShown, Hidden(m_inner) == UISF_HIDEFOCUS);
}

TEST_F(UiCues, AnUpdateDoesNotRise) {
    SendMessageA(m_button, WM_UPDATEUISTATE, MAKEWPARAM(UIS_SET, UISF_HIDEFOCUS), 0);
    EXPECT_EQ(0, Hidden(m_window));
    KNOWN_GAP(kWine, kAlwaysShown, Hidden(m_button) == UISF_HIDEFOCUS);
}

}  // namespace
