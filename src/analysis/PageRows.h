// The rows of a page: which control shows and stores which field, what else follows a change by the
// user, and what follows what other pages tell.
//
// A row has two directions. Showing puts the field's value into the control. Storing puts what the
// user did into the field and then runs what the row says besides. The page decides when either
// happens.
#pragma once

#include <deque>
#include <functional>
#include <utility>
#include <vector>

#include "contract/NotificationCodes.h"

class ADM_Wnd;

class PageRows {
  public:
    using Step = std::function<void()>;

    class Row {
      public:
        Row(const ADM_Wnd* pControl, int nCode, Step show, Step store)
            : m_pControl(pControl),
              m_nCode(nCode),
              m_show(std::move(show)),
              m_store(std::move(store)) {}

        // What follows a change by the user, behind the storing.
        Row& Then(Step step) {
            m_then = std::move(step);
            return *this;
        }
        // A value that the control cannot show becomes, in the record, the one that it shows.
        Row& Corrects() {
            m_bCorrects = true;
            return *this;
        }
        // A field in which the user may still be typing shows what the record made of it when it is
        // left, and not before.
        Row& ShowsWhenLeft() {
            m_bWhenLeft = true;
            return *this;
        }
        // Works in read-only mode as well: it edits nothing, it only moves between entries.
        Row& StaysAlive() {
            m_bAlive = true;
            return *this;
        }

      private:
        friend class PageRows;

        const ADM_Wnd* m_pControl;
        int m_nCode;
        Step m_show;
        Step m_store;
        Step m_then;
        bool m_bCorrects = false;
        bool m_bWhenLeft = false;
        bool m_bAlive = false;
    };

    // Rows are shown, and run, in the order of adding.
    Row& Add(const ADM_Wnd* pControl, int nCode, Step show, Step store);
    void AddBroadcast(NotificationCode eCode, Step step);

    void Show() const;
    void Run(const ADM_Wnd* pSender, int nCode) const;
    void RunBroadcast(NotificationCode eCode) const;
    // Whether a row of this control stays alive in read-only mode.
    bool IsAlive(const ADM_Wnd* pControl) const;

  private:
    std::deque<Row> m_rows;  // a row stays where it is while others are added
    std::vector<std::pair<NotificationCode, Step>> m_vBroadcasts;
};
