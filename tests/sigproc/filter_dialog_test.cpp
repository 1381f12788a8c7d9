// The filter dialog: what it shows of a record, and what follows what.

#include "FilterDialogFixture.h"

namespace {

using namespace sigproc_test;

TEST_F(FilterDialogTest, AnEmptyRecordShowsTheLowpassAndPasses) {
    DialogScript script;
    script.ExpectTitle("Filter")
        .ExpectChecked(IDC_FILTER_LOWPASS, BST_CHECKED)
        .ExpectSelected(IDC_LOWPASS_FAMILY, "Gaussian")
        .ExpectText(IDC_LOWPASS_CUTOFF, "1000");
    ShowAndAccept(script);
    EXPECT_EQ(options.lowpass.m_bIsSelected, 1);
    EXPECT_EQ(options.lowpass.m_eFilterFamily, 6);
    EXPECT_EQ(options.lowpass.m_dCornerFreq, 1000.0);
    EXPECT_EQ(options.lowpass.uApplyOrder, 1u);
    EXPECT_EQ(options.dSampleInterval, 100.0);
}

}  // namespace
