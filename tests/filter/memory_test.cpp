// Memory that is lacking, at each place where the library asks for some: a refusal with its text,
// and the values as they were.

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "FilterFixture.h"
#include "fixtures/memory/CountedMemory.h"

namespace {

using namespace filter_test;
using test_support::MemoryLimit;

TEST(Memory, ThatIsLackingLeavesTheValues) {
    FilterOptions all = Lowpass(6, 0.01);
    all.highpass = Highpass(2, 0.01).highpass;
    all.adaptive = Interference(0, 1, 5, 3).adaptive;
    FilterOptions compensated = Interference(2, 1, 5, 3);
    compensated.adaptive.m_bEndEffectCompensation = 1;
    for (const FilterOptions& options : {Lowpass(6, 0.001), Lowpass(6, 0.1), Boxcar(21),
                                         Interference(1, 1, 5, 3), compensated, all}) {
        std::vector<double> values(2000);
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = std::sin(0.1 * static_cast<double>(i));
        const std::vector<double> before = values;
        const Filter filter = Make(options);
        std::size_t nAllowed = 0;
        for (bool bDone = false; !bDone; ++nAllowed) {
            {
                const MemoryLimit limit(nAllowed);
                bDone = filter->FilterArray(values.data(), 2000) != 0;
            }
            if (bDone) break;
            ASSERT_EQ(ErrorOf(*filter), "There is not enough memory.") << nAllowed;
            ASSERT_EQ(values, before) << nAllowed;
            ASSERT_LT(nAllowed, 1000u);
        }
        EXPECT_GE(nAllowed, 2u);
        EXPECT_EQ(ErrorOf(*filter), "");
        EXPECT_NE(values, before);
    }
}

TEST(Memory, ThatIsLackingForTheObjectGivesNull) {
    const FilterOptions options = Lowpass(2, 0.1);
    std::size_t nAllowed = 0;
    for (;; ++nAllowed) {
        ZXADLG_CFilter* p = nullptr;
        {
            const MemoryLimit limit(nAllowed);
            p = filter::CreateFilter(&options);
        }
        filter::ReleaseFilter(p);
        if (p != nullptr) break;
    }
    EXPECT_GE(nAllowed, 2u);
}

// A recursive filter works where the values are.
TEST(Memory, IsNotNeededByARecursiveFilter) {
    for (const FilterOptions& options : {Lowpass(5, 0.1), Lowpass(7, 0.1), Lowpass(8, 0.1),
                                         Highpass(2, 0.1), Highpass(7, 0.1), Notch(0.1, 0.1)}) {
        std::vector<double> values(2000, 1.0);
        const Filter filter = Make(options);
        int32_t bDone = 0;
        {
            const MemoryLimit limit(0);
            bDone = filter->FilterArray(values.data(), 2000);
        }
        EXPECT_EQ(bDone, 1) << ErrorOf(*filter);
    }
}

}  // namespace
