// The update step of a dialog: asked for by every event, run once, never inside itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/PrivateMessages.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::PumpMessages;

class DialogUpdate : public testing::Test {
  protected:
    DialogUpdate() : dialog(log), open(dialog, IDD_PLAIN) {
        PumpMessages();
        dialog.nUpdates = 0;
    }
    int Updates() {
        PumpMessages();
        return std::exchange(dialog.nUpdates, 0);
    }

    EventLog log;
    LoggedDialog dialog;
    OpenDialog open;
};

TEST_F(DialogUpdate, TenThousandRequestsRunItOnce) {
    for (int i = 0; i < 10000; ++i) dialog.RequestUpdate();
    EXPECT_EQ(dialog.nUpdates, 0) << "not inside the events";
    EXPECT_EQ(Updates(), 1);
}

TEST_F(DialogUpdate, TenThousandCommandsRunItOnce) {
    for (int i = 0; i < 10000; ++i) open.Command(IDC_CHECK, BN_CLICKED);
    EXPECT_EQ(Updates(), 1);
}

TEST_F(DialogUpdate, EveryCommandAsksForIt) {
    open.Command(IDC_FIRST, EN_CHANGE);
    EXPECT_EQ(Updates(), 1);
    open.Command(IDC_RUN, BN_CLICKED);
    EXPECT_EQ(Updates(), 1);
    EXPECT_EQ(Updates(), 0);
}

TEST_F(DialogUpdate, NotificationsAskForItButForThoseOfTheMouse) {
    NMHDR header = {open.Item(IDC_LISTBOX), IDC_LISTBOX, static_cast<UINT>(NM_CLICK)};
    open.Send(WM_NOTIFY, IDC_LISTBOX, reinterpret_cast<LPARAM>(&header));
    EXPECT_EQ(Updates(), 1);
    for (const UINT uCode : {static_cast<UINT>(NM_CUSTOMDRAW), static_cast<UINT>(NM_HOVER),
                             static_cast<UINT>(NM_NCHITTEST)}) {
        SCOPED_TRACE(uCode);
        header.code = uCode;
        open.Send(WM_NOTIFY, IDC_LISTBOX, reinterpret_cast<LPARAM>(&header));
        EXPECT_EQ(Updates(), 0);
    }
}

TEST_F(DialogUpdate, SecondEntryDoesNothing) {
    int nDepth = 0, nDeepest = 0;
    dialog.onUpdate = [&] {
        nDeepest = std::max(nDeepest, ++nDepth);
        PostMessageA(open.Handle(), ADMM_UPDATE_CONTROLS, 0, 0);
        PumpMessages();
        EXPECT_EQ(dialog.m_bInUpdate, 1);
        EXPECT_EQ(dialog.m_bUpdatePending, 0) << "a refused entry changes nothing";
        --nDepth;
    };
    dialog.RequestUpdate();
    EXPECT_EQ(Updates(), 1);
    EXPECT_EQ(nDeepest, 1);
    EXPECT_EQ(dialog.m_bInUpdate, 0);
    EXPECT_EQ(dialog.m_bUpdatePending, 1);
}

TEST_F(DialogUpdate, WhatItChangesItselfAsksForNoOther) {
    int nText = 0;
    dialog.onUpdate = [&] {
        SetWindowTextA(open.Item(IDC_FIRST), std::to_string(++nText).c_str());
    };
    dialog.RequestUpdate();
    EXPECT_EQ(Updates(), 1);
    EXPECT_EQ(Updates(), 0);
}

TEST_F(DialogUpdate, RequestWithNoWindowIsDropped) {
    EventLog other;
    LoggedDialog closed(other);
    closed.RequestUpdate();
    EXPECT_EQ(closed.m_bUpdatePending, 1);
}

TEST(DialogUpdateShown, EachUserActionIsFollowedByOne) {
    EventLog log;
    LoggedDialog dialog(log);
    std::vector<int> anCounts;
    const auto count = [&] { anCounts.push_back(std::exchange(dialog.nUpdates, 0)); };
    DialogScript script;
    script.Do(count).Click(IDC_CHECK).Do(count).Click(IDC_RUN).Do(count).Do(count).Click(IDOK);
    script.Run([&] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
    ASSERT_EQ(anCounts.size(), 4u);
    EXPECT_GE(anCounts[0], 1);
    EXPECT_GE(anCounts[1], 1);
    EXPECT_GE(anCounts[2], 1);
    EXPECT_EQ(anCounts[3], 0);
}

}  // namespace
}  // namespace framework_test
