// Resistance from end to end.

#include <limits>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class Resistance : public TraceDialog<ZXADLG_ResistanceOptions> {
  protected:
    Resistance() : TraceDialog(&ZXADLG_ShowResistanceDialog) {
        options.dConversionFactor = 1.0;
        options.uWaveformIndex = 2;
    }
};

TEST_F(Resistance, ShowsTheRecord) {
    options.uExperimentType = 1;
    options.dConversionFactor = 1000.0;
    options.common.eDestinationOption = 1;
    DialogScript script;
    script.ExpectTitle("Resistance")
        .ExpectItems(IDC_EXPERIMENT_TYPE, {"Voltage Clamp", "Current Clamp"})
        .ExpectSelected(IDC_EXPERIMENT_TYPE, "Current Clamp")
        .ExpectItems(IDC_WAVEFORM, {"Analog OUT #0", "Analog OUT #1", "Analog OUT #2"})
        .ExpectSelected(IDC_WAVEFORM, "Analog OUT #1")
        .ExpectSelected(IDC_CONVERSION_FACTOR,
                        "1000 (for \xB5"
                        "A and mV)")
        .ExpectText(IDC_DESTINATION_APPEND, "&Append to contents in sheet")
        .ExpectText(IDC_DESTINATION_REPLACE, "&Replace contents of sheet")
        .ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED);
    ShowAndCancel(script);
}

TEST_F(Resistance, FieldsStoreWhatIsChosen) {
    DialogScript script;
    script.Choose(IDC_EXPERIMENT_TYPE, "Current Clamp")
        .Choose(IDC_WAVEFORM, "Analog OUT #0")
        .Choose(IDC_CONVERSION_FACTOR, "0.001 (for pA and mV)")
        .Click(IDC_DESTINATION_REPLACE);
    ShowAndAccept(script);
    EXPECT_EQ(options.uExperimentType, 1u);
    EXPECT_EQ(options.uWaveformIndex, 5u);
    // Stored as it stands, in double precision.
    EXPECT_EQ(options.dConversionFactor, 0.001);
    EXPECT_EQ(options.common.eDestinationOption, 1);
    DialogScript back;
    back.ExpectSelected(IDC_CONVERSION_FACTOR, "0.001 (for pA and mV)")
        .Choose(IDC_EXPERIMENT_TYPE, "Voltage Clamp");
    ShowAndAccept(back);
    EXPECT_EQ(options.uExperimentType, 0u);
}

TEST_F(Resistance, ReadOnlyAddsTheExperimentTypesWithEveryEvent) {
    params.bReadOnly = 1;
    options.uExperimentType = 1;
    std::size_t before = 0;
    DialogScript script;
    script
        .Do([&](HWND dialog) { before = ItemsOf(FindControl(dialog, IDC_EXPERIMENT_TYPE)).size(); })
        .Ungrey(IDC_DYNAMIC_LINK)
        .Click(IDC_DYNAMIC_LINK)
        .Do([&](HWND dialog) {
            const auto items = ItemsOf(FindControl(dialog, IDC_EXPERIMENT_TYPE));
            EXPECT_GE(before, 2u);
            EXPECT_GE(items.size(), before + 2);
            for (std::size_t i = 0; i < items.size(); ++i) {
                EXPECT_EQ(items[i], i % 2 == 0 ? "Voltage Clamp" : "Current Clamp");
            }
        })
        .ExpectSelected(IDC_EXPERIMENT_TYPE, "Current Clamp");
    ShowAndCancel(script);
}

TEST_F(Resistance, EditModeNeverAddsTheExperimentTypesAgain) {
    DialogScript script;
    script.Choose(IDC_WAVEFORM, 0)
        .Click(IDC_DESTINATION_REPLACE)
        .SelectTab("Data")
        .SelectTab("Options")
        .ExpectItems(IDC_EXPERIMENT_TYPE, {"Voltage Clamp", "Current Clamp"});
    ShowAndCancel(script);
}

TEST_F(Resistance, FactorThatIsNotOfferedShowsTheFirstEntryAndStaysUntilAPick) {
    using Limits = std::numeric_limits<double>;
    for (const double factor :
         {0.5, 0.0, -1.0, Limits::quiet_NaN(), Limits::infinity(), 0.0010000000474974513}) {
        SCOPED_TRACE(factor);
        options.dConversionFactor = factor;
        DialogScript look;
        look.ExpectSelected(IDC_CONVERSION_FACTOR, "0.000001 (for pA and V)");
        ShowAndAccept(look);
        EXPECT_EQ(std::memcmp(&options.dConversionFactor, &factor, sizeof factor), 0);
        DialogScript pick;
        pick.Choose(IDC_CONVERSION_FACTOR, 4);
        ShowAndAccept(pick);
        EXPECT_EQ(options.dConversionFactor, 1000000.0);
    }
}

TEST_F(Resistance, ExperimentTypeOutsideItsRangeShowsTheFirstEntryAndStays) {
    for (const uint32_t type : {2u, std::numeric_limits<uint32_t>::max()}) {
        SCOPED_TRACE(type);
        options.uExperimentType = type;
        DialogScript script;
        script.ExpectSelected(IDC_EXPERIMENT_TYPE, "Voltage Clamp");
        ShowAndAccept(script);
        EXPECT_EQ(options.uExperimentType, type);
    }
}

TEST_F(Resistance, FileWithoutWaveformSaysSo) {
    source.waveforms.clear();
    DialogScript script;
    script.ExpectItems(IDC_WAVEFORM, {"Not a waveform file"});
    ShowAndAccept(script);
    EXPECT_EQ(options.uWaveformIndex, 2u);
}

TEST_F(Resistance, DestinationIsStored) {
    UseStore();
    options.common.eDestinationOption = 1;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(Stored("ResistanceSection", "eDestinationOption"), "1");
    EXPECT_EQ(Stored("ResistanceSection", "dConversionFactor"), "1");
    options.common.eDestinationOption = 0;
    DialogScript next;
    next.ExpectChecked(IDC_DESTINATION_REPLACE, BST_CHECKED);
    ShowAndCancel(next);
}

TEST_F(Resistance, DataTabOffersTheRegion) {
    DialogScript script;
    script.SelectTab("Data")
        .ExpectVisible(IDC_REGION, true)
        .ExpectVisible(IDC_FORCE_TO_ZERO, false)
        .ExpectVisible(IDC_GROUP, true);
    ShowAndCancel(script);
}

}  // namespace
