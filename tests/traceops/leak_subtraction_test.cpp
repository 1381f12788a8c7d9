// Leak Subtraction from end to end.

#include <limits>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class LeakSubtraction : public TraceDialog<ZXADLG_LeakSubtractionOptions> {
  protected:
    LeakSubtraction() : TraceDialog(&ZXADLG_ShowLeakSubtractionDialog) {
        options.dPassiveResistance = 500.0;
        options.dConversionFactor = 1.0;
        options.uWaveformIndex = 2;
    }
};

TEST_F(LeakSubtraction, ShowsTheRecord) {
    options.dConversionFactor = 0.001;
    DialogScript script;
    script.ExpectTitle("Leak Subtraction")
        .ExpectItems(IDC_WAVEFORM, {"Analog OUT #0", "Analog OUT #1", "Analog OUT #2"})
        .ExpectSelected(IDC_WAVEFORM, "Analog OUT #1")
        .ExpectItems(IDC_CONVERSION_FACTOR,
                     {"0.000001 (for pA and V)", "0.001 (for pA and mV)", "1 (for nA and mV)",
                      "1000 (for \xB5"
                      "A and mV)",
                      "1000000 (for mA and mV)"})
        .ExpectSelected(IDC_CONVERSION_FACTOR, "0.001 (for pA and mV)")
        .ExpectText(IDC_PASSIVE_RESISTANCE, "500");
    ShowAndCancel(script);
}

TEST_F(LeakSubtraction, FieldsStoreWhatIsTypedAndChosen) {
    DialogScript script;
    script.Choose(IDC_WAVEFORM, "Analog OUT #2")
        .Choose(IDC_CONVERSION_FACTOR, 3)
        .Type(IDC_PASSIVE_RESISTANCE, "1.23456789");
    ShowAndAccept(script);
    EXPECT_EQ(options.uWaveformIndex, 9u);
    EXPECT_EQ(options.dConversionFactor, 1000.0);
    EXPECT_EQ(options.dPassiveResistance, 1.23456789);
}

TEST_F(LeakSubtraction, PickedFactorLosesDigitsAndIsNotFoundAgain) {
    DialogScript pick;
    pick.Choose(IDC_CONVERSION_FACTOR, "0.001 (for pA and mV)");
    ShowAndAccept(pick);
    EXPECT_EQ(options.dConversionFactor, 0.0010000000474974513);
    DialogScript next;
    next.ExpectSelected(IDC_CONVERSION_FACTOR, "0.000001 (for pA and V)");
    ShowAndCancel(next);
}

TEST_F(LeakSubtraction, WholeFactorsKeepTheirEntry) {
    const struct {
        int entry;
        double factor;
    } rows[] = {{2, 1.0}, {3, 1000.0}, {4, 1000000.0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.factor);
        options.dConversionFactor = 0.001;
        DialogScript pick;
        pick.Choose(IDC_CONVERSION_FACTOR, row.entry);
        ShowAndAccept(pick);
        EXPECT_EQ(options.dConversionFactor, row.factor);
        DialogScript next;
        next.Do([&](HWND dialog) {
            EXPECT_EQ(test_support::SelectedIndex(FindControl(dialog, IDC_CONVERSION_FACTOR)),
                      row.entry);
        });
        ShowAndCancel(next);
    }
}

TEST_F(LeakSubtraction, ResistanceStaysAsItIsUntilTheStoreRoundsIt) {
    UseStore();
    options.dPassiveResistance = 1.23456789;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.dPassiveResistance, 1.23456789);
    EXPECT_EQ(Stored("LeakSubtractionSection", "dPassiveResistance"), "1.23457");
    DialogScript next;
    ShowAndAccept(next);
    EXPECT_EQ(options.dPassiveResistance, 1.23457);
}

TEST_F(LeakSubtraction, FileWithoutWaveformSaysSo) {
    source.waveforms.clear();
    DialogScript look;
    look.ExpectItems(IDC_WAVEFORM, {"Not a waveform file"})
        .ExpectSelected(IDC_WAVEFORM, "Not a waveform file");
    ShowAndAccept(look);
    EXPECT_EQ(options.uWaveformIndex, 2u);
    DialogScript pick;
    pick.Choose(IDC_WAVEFORM, 0);
    ShowAndAccept(pick);
    EXPECT_EQ(options.uWaveformIndex, 0u);
}

TEST_F(LeakSubtraction, WaveformThatTheDataLackSelectsTheFirstEntryAndStays) {
    for (const uint32_t waveform : {77u, std::numeric_limits<uint32_t>::max()}) {
        SCOPED_TRACE(waveform);
        options.uWaveformIndex = waveform;
        DialogScript script;
        script.ExpectSelected(IDC_WAVEFORM, "Analog OUT #0");
        ShowAndAccept(script);
        EXPECT_EQ(options.uWaveformIndex, waveform);
    }
}

TEST_F(LeakSubtraction, NumbersThatAreNoneStay) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max()}) {
        SCOPED_TRACE(value);
        options.dPassiveResistance = options.dConversionFactor = value;
        DialogScript script;
        script.ExpectSelected(IDC_CONVERSION_FACTOR, "0.000001 (for pA and V)")
            .Focus(IDC_PASSIVE_RESISTANCE)
            .Press(VK_TAB);
        ShowAndAccept(script);
        EXPECT_EQ(std::memcmp(&options.dPassiveResistance, &value, sizeof value), 0);
        EXPECT_EQ(std::memcmp(&options.dConversionFactor, &value, sizeof value), 0);
    }
}

TEST_F(LeakSubtraction, DataTabOffersTheRegion) {
    DialogScript script;
    script.SelectTab("Data")
        .ExpectVisible(IDC_REGION, true)
        .ExpectVisible(IDC_REGION_LABEL, true)
        .ExpectVisible(IDC_FORCE_TO_ZERO, false)
        .ExpectVisible(IDC_GROUP, true)
        .ExpectVisible(IDC_SELECT_ALL, true);
    ShowAndCancel(script);
}

}  // namespace
