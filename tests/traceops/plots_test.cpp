// Current/Voltage and Trace vs. Trace: sources for each axis, and the refusals without a waveform.

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class CurrentVoltage : public TraceDialog<ZXADLG_CurrentVoltageOptions> {
  protected:
    CurrentVoltage() : TraceDialog(&ZXADLG_ShowCurrentVoltageDialog) {
        source.Region(26, "Epoch A level", 0, 1).Region(37, "Epoch B duration", 0, 1);
        options.ePeakRegion = 3;
        options.uWaveformIndex = 2;
    }
};

TEST_F(CurrentVoltage, ShowsTheRecordAndHandsBackTheEdits) {
    DialogScript script;
    script.ExpectTitle("Current/Voltage")
        .ExpectSelected(IDC_AXES_X_WAVEFORM, "Analog OUT #1")
        .ExpectSelected(IDC_REGION, "Cursors 1..2")
        .ExpectText(IDC_IV_GROUP_LABEL, "&Signal:")
        .ExpectText(IDC_IV_GROUP_AT_3, "Signal at c&ursor 3:")
        .ExpectItems(IDC_IV_EPOCH, {"Epoch A level", "Epoch B duration"})
        .ExpectChecked(IDC_IV_VISIBLE_TRACES, BST_CHECKED)
        .Click(IDC_IV_FROM_EPOCH)
        .Choose(IDC_IV_EPOCH, "Epoch B duration")
        .Click(IDC_IV_ALL_TRACES)
        .Choose(IDC_AXES_Y_GROUP, "IN 1")
        .Click(IDC_IV_PEAK)
        .Click(IDC_IV_ABSOLUTE)
        .Choose(IDC_REGION, "Cursors 3..4")
        .Click(IDC_IV_SMOOTH)
        .Type(IDC_IV_SMOOTHING, "7")
        .Click(IDC_AXES_X_INVERT)
        .Click(IDC_AXES_Y_INVERT)
        .Click(IDC_DESTINATION_REPLACE)
        .Click(IDC_DYNAMIC_LINK)
        .Click(IDC_WRITE_REGION_INFO)
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.eVoltageSource, 3);
    EXPECT_EQ(options.eFixedEpoch, 11);
    EXPECT_EQ(options.eSetSelectionMode, 1);
    EXPECT_EQ(options.uYDataGroupIndex, 1u);
    EXPECT_EQ(options.eCurrentSource, 2);
    EXPECT_EQ(options.ePeakPolarity, 2);
    EXPECT_EQ(options.ePeakRegion, 4);
    EXPECT_EQ(options.bDoFilter, 1);
    EXPECT_EQ(options.uSmoothingPoints, 7u);
    EXPECT_EQ(options.bInvertX, 1);
    EXPECT_EQ(options.bInvertY, 1);
    EXPECT_EQ(options.common.eDestinationOption, 1);
    EXPECT_EQ(options.common.bDynamicLink, 1);
    EXPECT_EQ(options.common.bWriteRegionInfo, 1);
}

TEST_F(CurrentVoltage, TheVoltageSourceEnablesItsComboBox) {
    DialogScript script;
    script.ExpectEnabled(IDC_AXES_X_GROUP, false)
        .ExpectEnabled(IDC_IV_EPOCH, false)
        .Click(IDC_IV_GROUP_AT_3)
        .ExpectEnabled(IDC_AXES_X_GROUP, true)
        .ExpectEnabled(IDC_IV_EPOCH, false)
        .Click(IDC_IV_FROM_EPOCH)
        .ExpectEnabled(IDC_AXES_X_GROUP, false)
        .ExpectEnabled(IDC_IV_EPOCH, true);
    ShowAndCancel(script);
}

TEST_F(CurrentVoltage, ACurrentSourceOfZeroDisablesRegionAndPolarity) {
    DialogScript script;
    script.ExpectEnabled(IDC_REGION, false)
        .ExpectEnabled(IDC_IV_REGION_LABEL, false)
        .ExpectEnabled(IDC_IV_POSITIVE, false)
        .ExpectText(IDC_IV_REGION_LABEL, "Mean/peak region:")
        .Click(IDC_IV_MEAN)
        .ExpectEnabled(IDC_REGION, true)
        .ExpectEnabled(IDC_IV_POSITIVE, false)
        .ExpectText(IDC_IV_REGION_LABEL, "Mean r&egion:")
        .Click(IDC_IV_PEAK)
        .ExpectEnabled(IDC_IV_ABSOLUTE, true)
        .ExpectText(IDC_IV_REGION_LABEL, "Peak r&egion:");
    ShowAndCancel(script);
}

TEST_F(CurrentVoltage, SmoothingIsEnabledByItsCheckBox) {
    DialogScript script;
    script.ExpectEnabled(IDC_IV_SMOOTHING, false)
        .ExpectEnabled(IDC_IV_SMOOTHING_SPIN, false)
        .Click(IDC_IV_SMOOTH)
        .ExpectEnabled(IDC_IV_SMOOTHING, true)
        .ExpectEnabled(IDC_IV_SMOOTHING_SPIN, true);
    ShowAndCancel(script);
}

TEST_F(CurrentVoltage, SmoothingTakesOnePointAndMore) {
    options.bDoFilter = 1;
    options.uSmoothingPoints = 5;
    DialogScript script;
    script.Type(IDC_IV_SMOOTHING, "0")
        .Press(VK_RETURN)
        .Answer(
            IDOK,
            "Validation Error\r\n\r\nValue in field 'Smoothing filter points' must fall within the "
            "range of 1 to "
            "2147483647.")
        .ExpectFocus(IDC_IV_SMOOTHING)
        .Type(IDC_IV_SMOOTHING, "1")
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.uSmoothingPoints, 1u);
}

// The axes offer every group, the hidden ones too.
TEST_F(CurrentVoltage, BothAxesOfferHiddenGroups) {
    source.hiddenGroup = 1;
    DialogScript script;
    script.ExpectItems(IDC_AXES_X_GROUP, {"IN 0", "IN 1"})
        .ExpectItems(IDC_AXES_Y_GROUP, {"IN 0", "IN 1"})
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), IDCANCEL);
}

TEST_F(CurrentVoltage, AFileWithoutAWaveformIsRefused) {
    source.waveforms.clear();
    DialogScript script;
    script.Answer(101, "Current/voltage analysis applies to waveform stimulus files only.");
    EXPECT_EQ(Show(script), 2);
}

TEST_F(CurrentVoltage, DeferredModeOpensWithoutAWaveform) {
    source.waveforms.clear();
    options.uWaveformIndex = 7;
    params.bDeferredRun = 1;
    DialogScript script;
    script.ExpectSelected(IDC_AXES_X_WAVEFORM, "Not a waveform file").Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.uWaveformIndex, 0u);
}

TEST_F(CurrentVoltage, WithoutNounsTheBuiltInCaptionsStand) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_IV_GROUP_LABEL, "Data &Group:")
        .ExpectText(IDC_IV_GROUP_AT_3, "Data group at c&ursor 3:");
    ShowAndCancel(script);
}

TEST_F(CurrentVoltage, CancelCanLeaveChangesInTheHostsDataRecord) {
    data.uGroup1Index = 9;
    const ZXADLG_CurrentVoltageOptions before = options;
    DialogScript script;
    script.Click(IDC_IV_PEAK);
    ShowAndCancel(script);
    // The record is the host's own: its index was corrected against the data.
    EXPECT_EQ(data.uGroup1Index, 1u);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(CurrentVoltage, HostileIndicesShowWhatTheDataHave) {
    options.ePeakRegion = 999;
    options.ePeakPolarity = -3;
    options.eVoltageSource = 44;
    options.eCurrentSource = -44;
    options.uWaveformIndex = 0xFFFFFFFFu;
    options.uXDataGroupIndex = 0xFFFFFFFFu;
    options.uYDataGroupIndex = 7;
    options.eFixedEpoch = -9;
    DialogScript script;
    script.ExpectSelected(IDC_AXES_X_WAVEFORM, "Analog OUT #0")
        .ExpectSelected(IDC_AXES_Y_GROUP, "IN 1")
        .ExpectSelected(IDC_REGION, "Whole trace")
        .ExpectChecked(IDC_IV_WAVEFORM_AT_1, BST_CHECKED)
        .ExpectChecked(IDC_IV_VALUE_AT_1, BST_CHECKED);
    ShowAndAccept(script);
    EXPECT_EQ(options.ePeakRegion, 8);
    EXPECT_EQ(options.uWaveformIndex, 5u);
    EXPECT_EQ(options.uXDataGroupIndex, 1u);
    EXPECT_EQ(options.uYDataGroupIndex, 1u);
}

TEST_F(CurrentVoltage, StoresItsOptionKeysAndNoSelection) {
    UseStore();
    DialogScript script;
    script.Click(IDC_WRITE_REGION_INFO).Click(IDC_DYNAMIC_LINK);
    ShowAndAccept(script);
    EXPECT_EQ(Stored("CurrentVoltageSection", "bVerboseOutput"), "TRUE");
    EXPECT_EQ(Stored("CurrentVoltageSection", "bGraphDynamicLink"), "TRUE");
    EXPECT_EQ(store.ReadFile().find("DataSection"), std::string::npos);
}

class TraceVsTrace : public TraceDialog<ZXADLG_TraceVsTraceOptions> {
  protected:
    TraceVsTrace() : TraceDialog(&ZXADLG_ShowTraceVsTraceDialog) {
        options.eValueRegion = 4;
        options.uXWaveformIndex = 9;
        options.eYSource = 1;
        options.uYDataGroupIndex = 1;
        options.uYDataSetIndex = 3;
    }
};

TEST_F(TraceVsTrace, ShowsTheRecordAndHandsBackTheEdits) {
    DialogScript script;
    script.ExpectTitle("Trace vs. Trace")
        .ExpectSelected(IDC_AXES_X_WAVEFORM, "Analog OUT #2")
        .ExpectSelected(IDC_AXES_Y_GROUP, "IN 1")
        .ExpectSelected(IDC_TVT_Y_SET, "Trace #4")
        .ExpectSelected(IDC_REGION, "Cursors 3..4")
        .ExpectText(IDC_TVT_X_FROM_GROUP, "Signal:")
        .ExpectText(IDC_TVT_X_SET_LABEL, "Trace:")
        .Click(IDC_TVT_X_FROM_GROUP)
        .Choose(IDC_AXES_X_GROUP, "IN 1")
        .Choose(IDC_TVT_X_SET, 2)
        .Click(IDC_TVT_Y_FROM_WAVEFORM)
        .Choose(IDC_AXES_Y_WAVEFORM, "Analog OUT #1")
        .Choose(IDC_REGION, "Cursors 1..2")
        .Click(IDC_AXES_Y_INVERT)
        .Click(IDC_WRITE_REGION_INFO);
    ShowAndAccept(script);
    EXPECT_EQ(options.eXSource, 1);
    EXPECT_EQ(options.uXDataGroupIndex, 1u);
    EXPECT_EQ(options.uXDataSetIndex, 2u);
    EXPECT_EQ(options.eYSource, 0);
    EXPECT_EQ(options.uYWaveformIndex, 2u);
    EXPECT_EQ(options.eValueRegion, 3);
    EXPECT_EQ(options.bInvertX, 0);
    EXPECT_EQ(options.bInvertY, 1);
    EXPECT_EQ(options.common.bWriteRegionInfo, 1);
}

TEST_F(TraceVsTrace, TheSourceEnablesItsComboBox) {
    DialogScript script;
    script.ExpectEnabled(IDC_AXES_X_WAVEFORM, true)
        .ExpectEnabled(IDC_AXES_X_GROUP, false)
        .ExpectEnabled(IDC_AXES_Y_WAVEFORM, false)
        .ExpectEnabled(IDC_AXES_Y_GROUP, true)
        .Click(IDC_TVT_X_FROM_GROUP)
        .ExpectEnabled(IDC_AXES_X_WAVEFORM, false)
        .ExpectEnabled(IDC_AXES_X_GROUP, true);
    ShowAndCancel(script);
}

TEST_F(TraceVsTrace, WithoutAWaveformTheGroupIsShownAndTheRecordKeepsItsSource) {
    source.waveforms.clear();
    DialogScript script;
    script.ExpectChecked(IDC_TVT_X_FROM_GROUP, BST_CHECKED)
        .ExpectEnabled(IDC_TVT_X_FROM_WAVEFORM, false)
        .ExpectEnabled(IDC_TVT_Y_FROM_WAVEFORM, false)
        .ExpectEnabled(IDC_AXES_X_WAVEFORM, false)
        .ExpectEnabled(IDC_AXES_X_GROUP, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.eXSource, 0);
    EXPECT_EQ(options.eYSource, 1);
}

TEST_F(TraceVsTrace, WithoutNounsTheBuiltInCaptionsStand) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_TVT_X_FROM_GROUP, "Data &Group:")
        .ExpectText(IDC_TVT_Y_FROM_GROUP, "Data Gro&up:")
        .ExpectText(IDC_TVT_X_SET_LABEL, "&Data Set:")
        .ExpectText(IDC_TVT_Y_SET_LABEL, "Data &Set:");
    ShowAndCancel(script);
}

TEST_F(TraceVsTrace, CancelCanLeaveChangesInTheHostsDataRecord) {
    data.uGroup1Index = 9;
    DialogScript script;
    ShowAndCancel(script);
    EXPECT_EQ(data.uGroup1Index, 1u);
}

TEST_F(TraceVsTrace, HostileIndicesShowWhatTheDataHave) {
    options.eXSource = -1;
    options.eYSource = 99;
    options.uXDataSetIndex = 0xFFFFFFFFu;
    options.uYDataSetIndex = 1000;
    options.uXDataGroupIndex = 0x80000000u;
    options.eValueRegion = -7;
    DialogScript script;
    script.ExpectSelected(IDC_TVT_X_SET, "Trace #1").ExpectSelected(IDC_REGION, "Whole trace");
    ShowAndAccept(script);
    EXPECT_EQ(options.uXDataSetIndex, 0u);
    EXPECT_EQ(options.uYDataSetIndex, 0u);
    EXPECT_EQ(options.uXDataGroupIndex, 1u);
}

TEST_F(TraceVsTrace, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    const ZXADLG_TraceVsTraceOptions before = options;
    DialogScript script;
    script.ExpectTitle("Trace vs. Trace (read only)")
        .Ungrey(IDC_TVT_X_FROM_GROUP)
        .Click(IDC_TVT_X_FROM_GROUP)
        .ExpectChecked(IDC_TVT_X_FROM_WAVEFORM, BST_CHECKED)
        .ExpectFocus(IDCANCEL);
    ShowAndCancel(script);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(TraceVsTrace, NoGroupsAndNoRegionsOpenAllTheSame) {
    source.groupNames.clear();
    source.setCounts.clear();
    source.regions.clear();
    DialogScript script;
    ShowAndCancel(script);
}

}  // namespace
