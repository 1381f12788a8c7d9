#include "analysis/PageRows.h"

#include <algorithm>

#include "framework/Notifications.h"

PageRows::Row& PageRows::Add(const ADM_Wnd* pControl, int nCode, Step show, Step store) {
    return m_rows.emplace_back(pControl, nCode, std::move(show), std::move(store));
}

void PageRows::AddBroadcast(NotificationCode eCode, Step step) {
    m_vBroadcasts.emplace_back(eCode, std::move(step));
}

void PageRows::Show() const {
    for (const Row& row : m_rows) {
        if (row.m_show) row.m_show();
        if (row.m_bCorrects) row.m_store();
    }
}

void PageRows::Run(const ADM_Wnd* pSender, int nCode) const {
    for (const Row& row : m_rows) {
        if (row.m_pControl != pSender) continue;
        if (row.m_bWhenLeft && nCode == ADMN_KILLFOCUS) row.m_show();
        if (row.m_nCode != nCode) continue;
        if (row.m_store) row.m_store();
        if (row.m_then) row.m_then();
    }
}

void PageRows::RunBroadcast(NotificationCode eCode) const {
    for (const auto& [eRowCode, step] : m_vBroadcasts) {
        if (eRowCode == eCode) step();
    }
}

bool PageRows::IsAlive(const ADM_Wnd* pControl) const {
    return std::any_of(m_rows.begin(), m_rows.end(), [pControl](const Row& row) {
        return row.m_pControl == pControl && row.m_bAlive;
    });
}
