// Graphical seeding under a user who does anything at all, with the real graph and the real curves.

#include <cmath>

#include "FitFixture.h"
#include "fit/GraphicalSeeding.h"
#include "framework/RandomUser.h"
#include "widgets/FrameworkSetup.h"

namespace {

using fit_test::FitModel;

class GraphUser : public FitModel {
  protected:
    GraphUser() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        source.Kind(0);
        for (int i = 0; i < 3000; ++i) {
            source.x.push_back(0.01 * i + 0.5);
            source.y.push_back(4.0 * std::exp(-source.x.back() / 3.0) + 1.5);
        }
        source.y[700] = std::nan("");
        options.uDlgFitOrder = 3;
        Choose(15);
        for (const std::uint32_t uPlace : {0u, 1u, 4u, 5u, 8u, 9u, 24u})
            seeds.dSeeds[uPlace] = 0.5 + uPlace;
        seeds.dWork = seeds.dSeeds;
    }
};

TEST_F(GraphUser, DoesAnythingAndLeavesTheSeedsToOk) {
    constexpr int kEvents = 300;
    GraphLibrary graphs(GetModuleHandleA(nullptr), "GraphMT.dll");
    ASSERT_TRUE(graphs.IsComplete());
    const CFitSeedInterface::Values before = seeds.dSeeds;
    int nAccepted = 0;
    for (unsigned uSeed = 1; uSeed <= 8; ++uSeed) {
        SCOPED_TRACE(uSeed);
        test_support::RandomUser user(uSeed, kEvents, uSeed % 2 == 0 ? IDOK : IDCANCEL);
        CGraphicalSeedDialog dialog(nullptr, fit, seeds, graphs, nullptr);
        const INT_PTR nResult = dialog.DoModal();
        EXPECT_TRUE(nResult == IDOK || nResult == IDCANCEL) << nResult;
        nAccepted += nResult == IDOK;
        EXPECT_EQ(seeds.dSeeds, before);
        for (const double d : seeds.dWork) EXPECT_TRUE(std::isfinite(d));
    }
    EXPECT_GT(nAccepted, 0);
}

}  // namespace
