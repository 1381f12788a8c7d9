// Every exported dialog, in every mode, over every kind of data and over hostile hosts, under a
// user who does anything: the promises that hold for all of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <sstream>
#include <string>
#include <vector>

#include "DialogRows.h"
#include "fixtures/HardLimit.h"
#include "fixtures/LeakCheck.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestWindows.h"
#include "framework/RandomUser.h"
#include "store/ProfileStore.h"

namespace {

using test_support::RandomUser;
using namespace dialogs_test;

enum class Mode { kNormal, kReadOnly, kDeferred };
constexpr Mode kModes[] = {Mode::kNormal, Mode::kReadOnly, Mode::kDeferred};

class EveryDialog : public testing::TestWithParam<DialogRow> {
  protected:
    EveryDialog() : m_bOld(SetUseProfileFile(true)) {}
    ~EveryDialog() override { SetUseProfileFile(m_bOld); }

    Opening Open(const DialogRow& dialog, const SourceRow& source, Mode eMode) const {
        Opening o(dialog);
        source.build(o.source);
        o.source.Profile(m_store.ProfileFile());
        o.params.bReadOnly = eMode == Mode::kReadOnly;
        o.params.bDeferredRun = eMode == Mode::kDeferred;
        return o;
    }

    // Opens the dialog under a random user and checks what every dialog promises.
    void Play(const DialogRow& dialog, const SourceRow& source, Mode eMode, int nEvents, int nEnd) {
        SCOPED_TRACE(std::string(dialog.szName) + " over " + source.szName + ", mode " +
                     std::to_string(static_cast<int>(eMode)) + ", end " + std::to_string(nEnd));
        Opening o = Open(dialog, source, eMode);
        const std::vector<unsigned char> optionsBefore = o.options;
        const ZXADLG_DataOptions dataBefore = o.data;
        const std::string storeBefore = m_store.ReadFile();
        int nResult;
        {
            RandomUser user(m_uSeed++, nEvents, nEnd);
            nResult = dialog.show(o);
        }
        ASSERT_TRUE(nResult == 1 || nResult == 2) << nResult;
        const bool bHandsBack = nResult == 1 && eMode != Mode::kReadOnly;
        if (bHandsBack) ++m_nHandedBack;
        if (!bHandsBack) {
            EXPECT_EQ(o.options, optionsBefore);
            if (!dialog.bWritesDataDirectly) {
                EXPECT_EQ(std::memcmp(&o.data, &dataBefore, sizeof dataBefore), 0);
            }
        }
        if (!bHandsBack || eMode == Mode::kDeferred) {
            EXPECT_EQ(OfTheDialog(m_store.ReadFile(), dialog), OfTheDialog(storeBefore, dialog));
            return;
        }
        if (dialog.bShowsStored) ExpectShownAsStored(dialog, source);
    }

    // The lines of the store but for those of a second window, and for sections that then are
    // empty.
    static std::string OfTheDialog(const std::string& stored, const DialogRow& dialog) {
        std::string kept, section;
        std::istringstream lines(stored);
        for (std::string line; std::getline(lines, line);) {
            if (line[0] == '[') {
                section = line + '\n';
                continue;
            }
            const auto& keys = dialog.keptBySecondWindow;
            if (std::any_of(keys.begin(), keys.end(),
                            [&](const std::string& key) { return line.rfind(key, 0) == 0; }))
                continue;
            kept += section + line + '\n';
            section.clear();
        }
        return kept;
    }

    // The lines of the store but for those that the dialog makes anew.
    static std::string Lasting(const std::string& stored, const DialogRow& dialog) {
        std::string lasting;
        std::istringstream lines(stored);
        for (std::string line; std::getline(lines, line);) {
            const bool bFromData =
                std::any_of(dialog.fromData.begin(), dialog.fromData.end(),
                            [&line](const std::string& key) { return line.starts_with(key); });
            if (!bFromData) lasting += line + '\n';
        }
        return lasting;
    }

    // A second opening that is accepted at once stores just what is stored.
    void ExpectShownAsStored(const DialogRow& dialog, const SourceRow& source) {
        const std::string stored = m_store.ReadFile();
        EXPECT_NE(stored, "");
        Opening again = Open(dialog, source, Mode::kNormal);
        RandomUser user(0, 0, IDOK);
        EXPECT_EQ(dialog.show(again), 1);
        EXPECT_EQ(Lasting(m_store.ReadFile(), dialog), Lasting(stored, dialog));
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
    unsigned m_uSeed = 20261120u;
    int m_nHandedBack = 0;
};

TEST_P(EveryDialog, KeepsItsPromisesUnderARandomUser) {
    const DialogRow& dialog = GetParam();
    const test_support::HardLimit limit(600000);
    // The budget is that of one long run; here it is spread over many short ones.
    const int nEvents = test_support::RandomEventBudget() / 50;
    {
        Opening first = Open(dialog, Sources()[0], Mode::kReadOnly);
        RandomUser user(1, 0);
        dialog.show(first);
    }
    const test_support::LeakCheck leaks;
    int nEnds = 0;
    for (const SourceRow& source : Sources()) {
        for (const Mode eMode : kModes) {
            if (source.bHostile) {
                // One ending each, in turns.
                Play(dialog, source, eMode, nEvents / 10, ++nEnds % 2 == 0 ? IDOK : IDCANCEL);
            } else {
                Play(dialog, source, eMode, nEvents, IDCANCEL);
                Play(dialog, source, eMode, nEvents / 4, IDOK);
            }
        }
    }
    test_support::PumpMessages();
    EXPECT_EQ(leaks.Growth(), "");
    // The promises of OK were put to the test at all.
    EXPECT_GT(m_nHandedBack, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryDialog, testing::ValuesIn(Rows()), NameOfRow);

}  // namespace
