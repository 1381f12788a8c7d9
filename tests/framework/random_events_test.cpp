// The gallery under random events: keys, characters, clicks, commands, focus, pasted rubbish,
// private messages, OK and Cancel. Nothing may crash, hang or stay behind.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/HardLimit.h"
#include "fixtures/LeakCheck.h"
#include "fixtures/RandomUser.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_TabbedDialog.h"
#include "framework/MessageFilter.h"
#include "gallery_dialog.h"
#include "widgets/Framework.h"

namespace framework_test {
namespace {

constexpr DWORD kTimeLimit = 240000;  // ms

TEST(RandomEvents, GallerySurvivesThemAndLeavesNothing) {
    const HINSTANCE hInstance = GetModuleHandleA(nullptr);
    // What the first opening keeps for the process is no leak.
    if (const auto warmUp = gallery::MakeGallery(hInstance)) {
        ASSERT_TRUE(warmUp->CreateModeless(hInstance, gallery::GalleryTemplate(), nullptr));
        warmUp->Destroy();
        test_support::PumpMessages();
    }
    const test_support::HardLimit limit(kTimeLimit);
    const test_support::LeakCheck leaks;
    int nOpenings = 0;
    {
        const auto dialog = gallery::MakeGallery(hInstance);
        ASSERT_NE(dialog, nullptr);
        // Another seed: --gtest_shuffle --gtest_random_seed=N.
        const unsigned uSeed =
            20241120u + static_cast<unsigned>(testing::UnitTest::GetInstance()->random_seed());
        SCOPED_TRACE("seed " + std::to_string(uSeed));
        test_support::RandomUser user(uSeed, test_support::RandomEventBudget());
        while (user.EventsLeft() > 0) {
            ++nOpenings;
            const INT_PTR nResult = dialog->DoModal(hInstance, gallery::GalleryTemplate(), nullptr);
            ASSERT_TRUE(nResult == IDOK || nResult == IDCANCEL) << nResult;
        }
    }
    test_support::PumpMessages();
    EXPECT_GT(nOpenings, 1);
    EXPECT_EQ(MessageFilterUsers(), 0);
    EXPECT_EQ(leaks.Growth(), "");
    ShutDownDialogFramework();
}

}  // namespace
}  // namespace framework_test
