// Data Reduction/Interpolation: methods, factors and the note on the new sampling interval.

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class ModifySampleRate : public testing::Test {
  protected:
    ModifySampleRate() {
        options.nReduceFactor = 4;
        options.nInterpolFactor = 2;
    }
    int Show(DialogScript& script) {
        return script.Run([&] {
            return ZXADLG_ShowModifySamplingRateDialog(nullptr, &options, &source, &params);
        });
    }
    static std::string Note(const char* szOld, const char* szWord, const char* szNew) {
        return std::string("The data file has a single sampling interval of ") + szOld +
               " \xB5s. After " + szWord + ", the new sampling interval will be " + szNew +
               " \xB5s.";
    }

    Recording source;  // 10 kHz: 100 microseconds
    ZXADLG_ModifySampleRateOptions options = {};
    ZXADLG_DlgParams params = {};
};

TEST_F(ModifySampleRate, ANoteOnAFileWithoutASamplingFrequencySaysSo) {
    for (const double dFrequency : {0.0, -5.0}) {
        source.samplingFrequency = dFrequency;
        DialogScript script;
        script.ExpectText(IDC_RATE_NOTE, "The data file does not tell its sampling interval.")
            .Click(IDC_RATE_INTERPOLATION)
            .ExpectText(IDC_RATE_NOTE, "The data file does not tell its sampling interval.")
            .Click(IDCANCEL);
        EXPECT_EQ(Show(script), IDCANCEL);
    }
}

TEST_F(ModifySampleRate, ReductionByFourWithDecimateTurns100Into400Microseconds) {
    DialogScript script;
    script.ExpectTitle("Data Reduction/Interpolation")
        .ExpectText(IDC_RATE_NOTE, Note("100.00", "reduction", "400.00"))
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

TEST_F(ModifySampleRate, ReductionByFourWithMinMaxTurns100Into200Microseconds) {
    options.eReductionMethod = 2;
    DialogScript script;
    script.ExpectText(IDC_RATE_NOTE, Note("100.00", "reduction", "200.00")).Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

TEST_F(ModifySampleRate, AChangeOfTheMethodDoesNotRefreshTheNote) {
    DialogScript script;
    script.Click(IDC_RATE_MIN_MAX)
        .ExpectText(IDC_RATE_NOTE, Note("100.00", "reduction", "400.00"))
        .Type(IDC_RATE_REDUCE_FACTOR, "6")
        .ExpectText(IDC_RATE_NOTE, Note("100.00", "reduction", "300.00"))
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.eReductionMethod, 2);
    EXPECT_EQ(options.nReduceFactor, 6);
}

TEST_F(ModifySampleRate, InterpolationByOneShowsTheSameIntervalTwice) {
    options.eRateConversionType = 1;
    options.nInterpolFactor = 1;
    DialogScript script;
    script.ExpectText(IDC_RATE_NOTE, Note("100.00", "interpolation", "100.00")).Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

TEST_F(ModifySampleRate, TheFirstPairEnablesItsHalfAndRefreshesTheNote) {
    DialogScript script;
    for (const int id : {IDC_RATE_REDUCE_LABEL, IDC_RATE_REDUCE_FACTOR, IDC_RATE_REDUCE_SPIN,
                         IDC_RATE_DECIMATE, IDC_RATE_AVERAGE, IDC_RATE_MIN_MAX}) {
        script.ExpectEnabled(id, true);
    }
    for (const int id : {IDC_RATE_INTERPOLATE_LABEL, IDC_RATE_INTERPOLATE_FACTOR,
                         IDC_RATE_INTERPOLATE_SPIN, IDC_RATE_STRAIGHT, IDC_RATE_SPLINE}) {
        script.ExpectEnabled(id, false);
    }
    script.Click(IDC_RATE_INTERPOLATION)
        .ExpectEnabled(IDC_RATE_REDUCE_FACTOR, false)
        .ExpectEnabled(IDC_RATE_MIN_MAX, false)
        .ExpectEnabled(IDC_RATE_SPLINE, true)
        .ExpectText(IDC_RATE_NOTE, Note("100.00", "interpolation", "50.00"))
        .Click(IDC_RATE_SPLINE)
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.eRateConversionType, 1);
    EXPECT_EQ(options.eInterpolationMethod, 1);
}

TEST_F(ModifySampleRate, AFactorBelowItsLimitCountsAsTheLimitInTheNote) {
    DialogScript script;
    script.Type(IDC_RATE_REDUCE_FACTOR, "1")
        .ExpectText(IDC_RATE_NOTE, Note("100.00", "reduction", "200.00"))
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

TEST_F(ModifySampleRate, FactorsOutsideTheirRangesAreRefusedAtOk) {
    DialogScript script;
    script.Type(IDC_RATE_REDUCE_FACTOR, "1001")
        .Click(IDOK)
        .Answer(
            101,
            "Validation Error\r\n\r\nValue in field 'Reduction factor' must fall within the range "
            "of 2 to 1000.")
        .ExpectFocus(IDC_RATE_REDUCE_FACTOR)
        .Type(IDC_RATE_REDUCE_FACTOR, "1000")
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nReduceFactor, 1000);
}

TEST_F(ModifySampleRate, OkStoresTheOptionKeysAlone) {
    const ScratchStore store;
    source.Profile(store.ProfileFile());
    const bool old = SetUseProfileFile(true);
    DialogScript script;
    script.Click(IDC_RATE_AVERAGE).Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    const std::string bytes = store.ReadFile();
    EXPECT_NE(bytes.find("[ConvertSampleRateSection]"), std::string::npos);
    EXPECT_NE(bytes.find("eReductionMethod=1"), std::string::npos);
    EXPECT_EQ(bytes.find("DataSection"), std::string::npos);
    SetUseProfileFile(old);
}

TEST_F(ModifySampleRate, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    const ZXADLG_ModifySampleRateOptions before = options;
    DialogScript script;
    script.ExpectTitle("Data Reduction/Interpolation (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Ungrey(IDC_RATE_INTERPOLATION)
        .Click(IDC_RATE_INTERPOLATION)
        .ExpectChecked(IDC_RATE_REDUCTION, BST_CHECKED)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(ModifySampleRate, HostileValuesShowTheFirstButtons) {
    options = {77, -5, 1 << 30, -1, 1 << 30, {}};
    source.samplingFrequency = 0.0;
    DialogScript script;
    script.ExpectChecked(IDC_RATE_REDUCTION, BST_CHECKED)
        .ExpectChecked(IDC_RATE_DECIMATE, BST_CHECKED)
        .ExpectChecked(IDC_RATE_STRAIGHT, BST_CHECKED)
        .ExpectText(IDC_RATE_REDUCE_FACTOR, "2")
        .ExpectText(IDC_RATE_INTERPOLATE_FACTOR, "100")
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
}

}  // namespace
