// The base of what ends with OK: its checks, in the order in which they were added, and what their
// findings lead to. Base is ADM_Dialog or ADM_TabbedDialog.
#pragma once

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

#include "ZXADLG.h"
#include "analysis/CEditPage.h"
#include "analysis/DialogMessages.h"
#include "analysis/PageInputs.h"
#include "contract/Finding.h"

template <class Base>
class CCheckedDialog : public CEditPage<Base> {
  public:
    using CEditPage<Base>::CEditPage;

  protected:
    using Check = std::function<CheckResult(const TypedValues&)>;

    // Adds a check that runs at OK behind those that are there, and at OK alone.
    void AddCheck(Check check) { m_vChecks.push_back(std::move(check)); }

    // Walks the checks up to the first finding that does not let the walk go on. Each sees the
    // fields as they stand then: an answer before may have changed them.
    bool PassChecks() {
        // Enter presses OK and leaves the focus where it is.
        if (!this->IsReadOnly()) LeaveField();
        if (m_vChecks.empty()) return true;
        this->ReadControls();
        return std::all_of(m_vChecks.begin(), m_vChecks.end(), [this](const Check& check) {
            const CheckResult result = check(GetTyped());
            return !result.has_value() || Answer(*result);
        });
    }

    // The texts of all fields as they stand.
    virtual TypedValues GetTyped() const { return TypedTexts(this->m_hWnd); }
    // Shows the page that a finding points at, and gives it.
    virtual const ADM_Dialog& BringUp(int) { return *this; }

  private:
    // Whether the next check is to run.
    bool Answer(const Finding& finding) {
        // A question stands over the page that the user sees; its answer decides on the page.
        const bool bAsks = !finding.vAnswers.empty();
        if (!bAsks) BringUp(finding.nPage);
        const UINT nButton = ShowFinding(this->m_hWnd, finding);
        const Finding::Answer* pAnswer = finding.FindAnswer(nButton);
        if (pAnswer != nullptr && pAnswer->step) pAnswer->step();
        const Finding::Next eNext = pAnswer != nullptr ? pAnswer->eNext : Finding::Next::kStay;
        if (eNext == Finding::Next::kCancel) this->EndDialogWith(ZXADLG_CANCEL);
        if (eNext == Finding::Next::kStay) FocusControl(BringUp(finding.nPage), finding.nControl);
        return eNext == Finding::Next::kGoOn;
    }

    std::vector<Check> m_vChecks;
};
