// The checks that a dialog runs at OK: their order, what each answer to a message leads to, and
// where the user stands afterwards. And the data tab that takes another one's place.

#include <gtest/gtest.h>

#include "PageDialog.h"
#include "analysis/CUntabbedDialogBase.h"

namespace {

using analysis_test::PageDialog;
using test_support::DialogScript;

class CheckedDialog : public PageDialog {
  public:
    using PageDialog::AddCheck;
    using PageDialog::PageDialog;
    using PageDialog::SetDataTab;
};

class ChecksAtOk : public testing::Test, protected analysis_test::PageSetup {
  protected:
    ChecksAtOk() {
        PageDialog::dataFirst = false;
        record.eDataSet1SelectionMode = 1;
        record.eDataGroup1SelectionMode = 1;
    }

    std::unique_ptr<CDataTabBase> UnitaryTab(CDataOptionsInterface* pData) const {
        return std::make_unique<CUnitaryDataTab>(pData, IDD_UNITARY_DATA, params.bReadOnly != 0);
    }
    // Fills `dialog` in with what `prepare` adds, and runs it.
    int Run(DialogScript& script, const std::function<void(CheckedDialog&)>& prepare) {
        CheckedDialog dialog(&record, &common, &source, &params, flags, &log,
                             [this](CDataOptionsInterface* pData) { return UnitaryTab(pData); });
        prepare(dialog);
        open = &dialog;
        return script.Run([&] { return static_cast<int>(dialog.DoModal()); });
    }
    // A check that tells that it ran, and finds what it is given.
    auto Step(char cName, CheckResult result = {}) {
        return [this, cName, result](const TypedValues&) {
            order += cName;
            return result;
        };
    }
    static Finding Question(std::vector<Finding::Answer> answers) {
        return {.szText = "Go on?",
                .uFlags = MB_YESNOCANCEL | MB_ICONQUESTION,
                .vAnswers = std::move(answers)};
    }

    std::string order;
    CheckedDialog* open = nullptr;
};

TEST_F(ChecksAtOk, RunInOrderAndBeforeTheDataAreDescribed) {
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(Run(script,
                  [this](CheckedDialog& dialog) {
                      dialog.AddCheck(Step('a'));
                      dialog.AddCheck([this](const TypedValues&) {
                          EXPECT_EQ(record.uGroupCount, 0u);
                          order += 'b';
                          return CheckResult{};
                      });
                  }),
              1);
    EXPECT_EQ(order, "ab");
    EXPECT_EQ(record.uGroupCount, 2u);
}

TEST_F(ChecksAtOk, RunAtOkAloneAndNotWhenAPageIsLeft) {
    DialogScript script;
    script.SelectTab("Data").SelectTab("Options").Click(IDCANCEL);
    EXPECT_EQ(Run(script, [this](CheckedDialog& dialog) { dialog.AddCheck(Step('a')); }), 2);
    EXPECT_EQ(order, "");
}

TEST_F(ChecksAtOk, AFindingKeepsTheDialogOpenOnItsPageWithItsControlFocused) {
    record.eDataSet1SelectionMode = 3;
    DialogScript script;
    script.Click(IDOK)
        .Answer(IDOK, "The list of 3 sets is too long for IN 1.")
        .Do([this] {
            EXPECT_EQ(open->GetCurrentPageIndex(), 1);
            EXPECT_EQ(order, "a");
            EXPECT_EQ(record.uGroupCount, 0u);
        })
        .ExpectFocus(IDC_SET_LIST)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script,
                  [this](CheckedDialog& dialog) {
                      dialog.AddCheck(Step('a', Finding{.szText = "The list of %s sets is too long "
                                                                  "for %s.",
                                                        .vArguments = {"3", "IN 1"},
                                                        .nPage = 1,
                                                        .nControl = IDC_SET_LIST}));
                      dialog.AddCheck(Step('b'));
                  }),
              2);
    EXPECT_EQ(order, "a");
}

TEST_F(ChecksAtOk, EachAnswerLeadsWhereItSays) {
    struct Case {
        int nAnswer;
        const char* szOrder;
        bool bEnds;
        int nResult;
    };
    const Case cases[] = {{IDYES, "ay b", true, 1},    // goes on with the next check
                          {IDNO, "an", true, 2},       // ends the dialog as by Cancel
                          {IDCANCEL, "a", false, 2}};  // is not named and stays
    for (const Case& c : cases) {
        SCOPED_TRACE(c.nAnswer);
        order.clear();
        DialogScript script;
        script.Click(IDOK).Answer(c.nAnswer, "Go on?");
        if (!c.bEnds) script.ExpectVisible(IDOK, true).Click(IDCANCEL);
        EXPECT_EQ(
            Run(script,
                [this](CheckedDialog& dialog) {
                    dialog.AddCheck(Step('a', Question({{.nButton = IDYES,
                                                         .eNext = Finding::Next::kGoOn,
                                                         .step = [this] { order += "y "; }},
                                                        {.nButton = IDNO,
                                                         .eNext = Finding::Next::kCancel,
                                                         .step = [this] { order += "n"; }}})));
                    dialog.AddCheck(Step('b'));
                }),
            c.nResult);
        EXPECT_EQ(order, c.szOrder);
    }
}

TEST_F(ChecksAtOk, ACheckSeesTheTextsOfAllPagesAsTheyStandThen) {
    record.eDataSet1SelectionMode = 3;
    std::vector<std::string> seen;
    const auto look = [&seen](const TypedValues& typed) {
        seen.push_back(typed.count(IDC_SET_LIST_TEXT) != 0 ? typed.at(IDC_SET_LIST_TEXT) : "none");
        return CheckResult{};
    };
    DialogScript script;
    script.SelectTab("Data")
        .Click(IDC_SETS_TYPED)
        .Type(IDC_SET_LIST_TEXT, "2,3")
        .SelectTab("Options")
        .Click(IDOK);
    EXPECT_EQ(Run(script,
                  [&](CheckedDialog& dialog) {
                      dialog.AddCheck(look);
                      dialog.AddCheck([&dialog](const TypedValues&) {
                          SetDlgItemTextA(dialog.DataTab()->GetHandle(), IDC_SET_LIST_TEXT, "1");
                          return CheckResult{};
                      });
                      dialog.AddCheck(look);
                  }),
              1);
    EXPECT_EQ(seen, (std::vector<std::string>{"2,3", "1"}));
}

// --- Another data tab

TEST_F(ChecksAtOk, AnotherDataTabTakesThePlaceOfTheOpenOne) {
    DialogScript script;
    script.SelectTab("Data")
        .ExpectVisible(IDC_SELECT_ALL, true)
        .Do([this] {
            open->SetDataTab(
                std::make_unique<CPairedDataTab>(&open->Model(), IDD_PAIRED_LIST, true, false));
            EXPECT_EQ(open->GetPageCount(), 2);
            EXPECT_EQ(open->GetCurrentPageIndex(), 1);
        })
        .ExpectVisible(IDC_RANGE_FROM, true)
        .Do([this] { open->SetDataTab(UnitaryTab(&open->Model())); })
        .ExpectVisible(IDC_SELECT_ALL, true)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script, [](CheckedDialog&) {}), 2);
}

TEST_F(ChecksAtOk, AnExchangeBehindAnotherPageLeavesThatPageUp) {
    DialogScript script;
    script
        .Do([this] {
            open->SetDataTab(UnitaryTab(&open->Model()));
            EXPECT_EQ(open->GetPageCount(), 2);
            EXPECT_EQ(open->GetCurrentPageIndex(), 0);
            EXPECT_FALSE(IsWindowVisible(open->DataTab()->GetHandle()));
        })
        .ExpectVisible(IDC_DYNAMIC_LINK, true)
        .SelectTab("Data")
        .ExpectVisible(IDC_SELECT_ALL, true)
        .Click(IDCANCEL);
    EXPECT_EQ(Run(script, [](CheckedDialog&) {}), 2);
}

// --- The single page

class CheckedPage : public CSinglePage {
  public:
    CheckedPage() : CSinglePage(nullptr, kTemplate, false) {}
    using CSinglePage::AddCheck;
    bool PrepareOK() override {
        prepared = true;
        return true;
    }
    // The options page of the library serves as a dialog of its own.
    static constexpr UINT kTemplate = 101;
    bool prepared = false;
};

TEST_F(ChecksAtOk, OfASinglePageLeadToTheSameAnswers) {
    for (const int nAnswer : {IDYES, IDNO, IDCANCEL}) {
        SCOPED_TRACE(nAnswer);
        order.clear();
        CheckedPage page;
        Finding question = Question({{.nButton = IDYES, .eNext = Finding::Next::kGoOn},
                                     {.nButton = IDNO, .eNext = Finding::Next::kCancel}});
        question.nControl = IDC_DYNAMIC_LINK;
        page.AddCheck(Step('a', question));
        page.AddCheck(Step('b'));
        DialogScript script;
        script.Click(IDOK).Answer(nAnswer, "Go on?");
        if (nAnswer == IDCANCEL) script.ExpectFocus(IDC_DYNAMIC_LINK).Click(IDCANCEL);
        EXPECT_EQ(script.Run([&] { return static_cast<int>(page.DoModal()); }),
                  nAnswer == IDYES ? 1 : 2);
        EXPECT_EQ(order, nAnswer == IDYES ? "ab" : "a");
        EXPECT_EQ(page.prepared, nAnswer == IDYES);
    }
}

}  // namespace
