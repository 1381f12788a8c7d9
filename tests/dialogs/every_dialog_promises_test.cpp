// What every dialog promises, the tabbed ones and the single pages: only OK changes the host's
// records or the store, read-only mode changes nothing at all, and a deferred run leaves the store
// alone.

#include <gtest/gtest.h>

#include <cstring>

#include "DialogRows.h"
#include "fixtures/DialogScript.h"
#include "fixtures/PageState.h"
#include "fixtures/ScratchStore.h"
#include "store/ProfileStore.h"

namespace {

using namespace dialogs_test;
using test_support::DialogScript;
using test_support::Disturb;
using test_support::IsInput;
using test_support::PageState;
using test_support::StateOf;
using test_support::VisibleControls;

class EveryDialogPromises : public testing::TestWithParam<DialogRow> {
  protected:
    EveryDialogPromises() : m_bOld(SetUseProfileFile(true)) {
        m_opening.source.Profile(m_store.ProfileFile());
    }
    ~EveryDialogPromises() override { SetUseProfileFile(m_bOld); }

    // Changes every control of the page; a change must show, or the promise would mean nothing.
    static void DisturbAll(DialogScript& script) {
        script.Do([](HWND dialog) {
            const std::string before = PageState(dialog);
            for (HWND control : VisibleControls(dialog)) Disturb(control);
            EXPECT_NE(PageState(dialog), before);
        });
    }

    // The same but for what OK might refuse.
    void DisturbForOk(DialogScript& script) const {
        script.Do([this](HWND dialog) {
            const std::string before = PageState(dialog);
            for (HWND control : VisibleControls(dialog)) {
                if (GetParam().delicate.count(GetDlgCtrlID(control)) == 0) Disturb(control);
            }
            EXPECT_NE(PageState(dialog), before);
        });
    }

    int Show(DialogScript& script, Opening& opening) const {
        return script.Run([&] { return GetParam().show(opening); });
    }

    std::string StateShown(Opening& opening) const {
        std::string state;
        DialogScript script;
        script.Do([&](HWND dialog) { state = PageState(dialog); }).Click(IDCANCEL);
        EXPECT_EQ(Show(script, opening), IDCANCEL);
        return state;
    }

    void ExpectUntouched(const Opening& before) const {
        EXPECT_EQ(m_opening.options, before.options);
        if (!GetParam().bWritesDataDirectly) {
            EXPECT_EQ(std::memcmp(&m_opening.data, &before.data, sizeof before.data), 0);
        }
        EXPECT_EQ(m_store.ReadFile(), "");
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
    Opening m_opening{GetParam()};
};

TEST_P(EveryDialogPromises, CancelChangesNothing) {
    const Opening before = m_opening;
    DialogScript script;
    DisturbAll(script);
    script.Click(IDCANCEL);
    EXPECT_EQ(Show(script, m_opening), IDCANCEL);
    ExpectUntouched(before);
}

TEST_P(EveryDialogPromises, CloseBoxAndEscapeAreCancel) {
    const Opening before = m_opening;
    DialogScript frame;
    DisturbAll(frame);
    frame.CloseByFrame();
    EXPECT_EQ(Show(frame, m_opening), IDCANCEL);
    ExpectUntouched(before);
    DialogScript key;
    DisturbAll(key);
    key.Press(VK_ESCAPE);
    EXPECT_EQ(Show(key, m_opening), IDCANCEL);
    ExpectUntouched(before);
}

TEST_P(EveryDialogPromises, OkChangesTheRecordAndStoresIt) {
    const Opening before = m_opening;
    DialogScript script;
    DisturbForOk(script);
    script.Click(IDOK);
    EXPECT_EQ(Show(script, m_opening), IDOK);
    EXPECT_NE(m_opening.options, before.options);
    EXPECT_NE(m_store.ReadFile(), "");
}

TEST_P(EveryDialogPromises, ReadOnlyShowsTheRecordAndLetsNothingChange) {
    m_opening.params.bReadOnly = 1;
    const Opening before = m_opening;
    std::size_t nControls = 0;
    DialogScript script;
    script.ExpectTitle(GetParam().Title() + " (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Do([&](HWND dialog) {
            const std::string state = PageState(dialog);
            for (HWND control : VisibleControls(dialog)) {
                SCOPED_TRACE(StateOf(control));
                ++nControls;
                if (GetParam().alive.count(GetDlgCtrlID(control)) != 0) {
                    EXPECT_TRUE(IsWindowEnabled(control));
                    continue;
                }
                EXPECT_FALSE(IsInput(control) && IsWindowEnabled(control));
                Disturb(control);
                EXPECT_EQ(PageState(dialog), state);
            }
        })
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script, m_opening), IDCANCEL);
    EXPECT_GT(nControls, 6u);
    ExpectUntouched(before);
}

TEST_P(EveryDialogPromises, DeferredRunReadsAndWritesNoStoreButHandsTheEditsBack) {
    const Opening before = m_opening;
    DialogScript first;
    DisturbForOk(first);
    first.Click(IDOK);
    EXPECT_EQ(Show(first, m_opening), IDOK);
    const std::string stored = m_store.ReadFile();
    EXPECT_NE(stored, "");

    // What the record alone shows, and what the store would make of it.
    m_opening = before;
    m_opening.source.hasProfile = false;
    const std::string bare = StateShown(m_opening);
    m_opening = before;
    EXPECT_EQ(StateShown(m_opening) != bare, GetParam().bShowsStored);

    m_opening = before;
    m_opening.params.bDeferredRun = 1;
    EXPECT_EQ(StateShown(m_opening), bare);
    DialogScript script;
    DisturbForOk(script);
    script.Click(IDOK);
    EXPECT_EQ(Show(script, m_opening), IDOK);
    EXPECT_NE(m_opening.options, before.options);
    EXPECT_EQ(m_store.ReadFile(), stored);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, EveryDialogPromises, testing::ValuesIn(Rows()), NameOfRow);

}  // namespace
