// Events bound in one place: which notification of which control runs which step, one row each.
#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "analysis/DialogMessages.h"
#include "framework/UpdateScope.h"

class ADM_Wnd;

// The rows alone.
class EventTable {
  public:
    using Step = std::function<void()>;

    void On(ADM_Wnd* pControl, int nCode, Step step) {
        m_vRows.push_back({pControl, nCode, std::move(step)});
    }

    // Runs every step of this notification, in the order of binding.
    void Run(ADM_Wnd* pSender, int nCode) const {
        for (const Row& row : m_vRows) {
            if (row.pControl == pSender && row.nCode == nCode) row.step();
        }
    }

  private:
    struct Row {
        ADM_Wnd* pControl;
        int nCode;
        Step step;
    };

    std::vector<Row> m_vRows;
};

// The events of a single-page dialog. Nothing runs before the dialog is ready or while it shows
// values. In read-only mode every event shows the record again and gives the focus to the Cancel
// button.
class EditEvents {
  public:
    using Step = EventTable::Step;

    // `show` shows the record in the controls.
    EditEvents(bool bReadOnly, Step show) : m_show(std::move(show)), m_bReadOnly(bReadOnly) {}

    void On(ADM_Wnd* pControl, int nCode, Step step) {
        m_table.On(pControl, nCode, std::move(step));
    }

    // Shows the record; what the controls then tell is not the user's doing.
    void Show() {
        const UpdateScope updating(m_bUpdating);
        m_show();
    }

    // Events count from now on.
    void SetReady() { m_bReady = true; }

    // For the dialog's Notify, behind that of its base.
    void Serve(HWND hDialog, ADM_Wnd* pSender, int nCode) {
        if (!m_bReady || m_bUpdating != 0) return;
        if (m_bReadOnly) {
            Show();
            const UpdateScope updating(m_bUpdating);
            FocusCancel(hDialog);
            return;
        }
        m_table.Run(pSender, nCode);
    }

  private:
    EventTable m_table;
    Step m_show;
    bool m_bReadOnly;
    bool m_bReady = false;
    BOOL m_bUpdating = 0;
};
