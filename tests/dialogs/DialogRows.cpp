#include "DialogRows.h"

#include <cctype>
#include <cstring>
#include <ostream>

#include "fit_control_ids.h"
#include "measurement_ids.h"
#include "sigproc_ids.h"

namespace dialogs_test {
namespace {

using test_support::TestDataSource;

class NoFiles : public ZXADLG_CDlgFileSource {
  public:
    virtual ~NoFiles() = default;
    int32_t GetGroupCount() override { return 3; }
    uint32_t GetFileHandle() override { return 1; }
    const char* GetGroupName(uint32_t) override { return "IN"; }
    const char* GetTitle(HWND__*, HWND__*, intptr_t) override { return nullptr; }
    const char* BrowseForFile(HWND__*) override { return nullptr; }
    void SelectFile(uint32_t) override {}
};

template <class Record>
using TabbedShow = int32_t(ZXADLG_CALL*)(HWND__*, Record*, ZXADLG_DataOptions*,
                                         ZXADLG_CDlgDataSource*, const ZXADLG_DlgParams*);

template <class Record>
DialogRow Row(const char* szName, TabbedShow<Record> pShow, bool bWritesDataDirectly = false) {
    return {szName, sizeof(Record), bWritesDataDirectly, !bWritesDataDirectly, [pShow](Opening& o) {
                return pShow(nullptr, reinterpret_cast<Record*>(o.options.data()), &o.data,
                             &o.source, &o.params);
            }};
}

// Another function or more terms would need other seeds, and a custom one seeds of the user's.
DialogRow FitRow() {
    DialogRow row = Row("Curve Fitting", &ZXADLG_ShowCurveFitDialog);
    row.prepare = [](std::vector<unsigned char>& options) {
        reinterpret_cast<FitOptions*>(options.data())->eFunctionType = 15;
    };
    row.fromData = {"Parameter"};
    row.delicate = {IDC_FIT_CUSTOM, IDC_FIT_GROUP, IDC_FIT_TERMS, IDC_FIT_COMPARE};
    row.nOptionPages = 3;
    row.keptBySecondWindow = {"bShowLegend=", "bShowAxes=", "bContinuousAutoScale="};
    return row;
}

// A record that has no length of its own gets one by the data.
DialogRow SpectrumRow() {
    DialogRow row = Row("Power Spectrum", &ZXADLG_ShowPowerSpectrumDialog);
    row.prepare = [](std::vector<unsigned char>& options) {
        reinterpret_cast<SpectrumOptions*>(options.data())->uTransformLength = 64;
    };
    row.delicate = {IDC_SPECTRUM_EXCLUDE};
    return row;
}

// Data that tell no frequency need the record's.
DialogRow CorrelationRow() {
    DialogRow row = Row("Correlation", &ZXADLG_ShowCorrelationDialog);
    row.prepare = [](std::vector<unsigned char>& options) {
        auto* pOptions = reinterpret_cast<ZXADLG_CorrelationOptions*>(options.data());
        pOptions->dSamplingFrequency = 500.0;
        pOptions->uNumberOfLags = 20;
    };
    return row;
}

// Limits of zeros would be those of data that have none.
DialogRow HistogramRow() {
    DialogRow row = Row("Histogram", &ZXADLG_ShowHistogramDialog);
    row.prepare = [](std::vector<unsigned char>& options) {
        auto* pOptions = reinterpret_cast<ZXADLG_HistogramOptions*>(options.data());
        pOptions->fBinWidth = 2.5f;
        pOptions->fMinDataValue = 20.0f;
        pOptions->fMaxDataValue = 60.0f;
        pOptions->nBinsPerDecade = 7;
    };
    return row;
}

// A form of arithmetic, and a record whose expression OK accepts.
DialogRow ArithmeticRow(const char* szName, std::uint32_t eKind, bool bNewColumn) {
    DialogRow row = {szName, sizeof(ZXADLG_ArithmeticOptions), false, false,
                     [eKind, bNewColumn](Opening& o) {
                         // The kind of data makes the form: columns take any data but a file.
                         if ((o.source.kind == 0) != (eKind == 0)) o.source.Kind(eKind);
                         o.params.bNewColumnArithmetic = bNewColumn;
                         return ZXADLG_ShowArithmeticDialog(
                             nullptr, reinterpret_cast<ZXADLG_ArithmeticOptions*>(o.options.data()),
                             &o.data, &o.source, &o.params, 0);
                     }};
    row.szTitle = "Arithmetic";
    row.bShowsStored = eKind == 0;
    row.prepare = [](std::vector<unsigned char>& options) {
        auto* pOptions = reinterpret_cast<ZXADLG_ArithmeticOptions*>(options.data());
        std::strcpy(pOptions->szExpression, "A=B+C");
        std::strcpy(pOptions->szColumnTitle, "Sum");
        std::strcpy(pOptions->szSelectionList, "0..2");
        pOptions->bUseFullDataRange = 1;
    };
    return row;
}

// Searches with the regions that the host has, of which one is on. OK refuses a search that is
// none, one region for both, and an even number of points.
DialogRow MeasurementRow() {
    DialogRow row = {
        "Measurements", sizeof(ZXADLG_MeasurementOptions), false, true, [](Opening& o) {
            return ZXADLG_ShowMeasurementDialog(
                nullptr, reinterpret_cast<ZXADLG_MeasurementOptions*>(o.options.data()), nullptr,
                &o.data, &o.source, &o.params);
        }};
    row.prepare = [](std::vector<unsigned char>& options) {
        auto* pOptions = reinterpret_cast<ZXADLG_MeasurementOptions*>(options.data());
        for (int i = 0; i < 24; ++i) {
            pOptions->aStatsRegions[i] = {
                .eStatsRegion = 8, .nStatsRegionEndIndex = 999, .dStatsRegionEndTime = 999 * 0.1};
            pOptions->aBaselines[i] = {.eBaseRegion = 3,
                                       .nBaseRegionStartIndex = 100,
                                       .nBaseRegionEndIndex = 199,
                                       .dBaseRegionStartTime = 100 * 0.1,
                                       .dBaseRegionEndTime = 199 * 0.1};
            pOptions->aSearches[i].nSmoothingPoints = 5;
        }
        pOptions->aSearches[0].bRegionEnable = 1;
        pOptions->aSearches[0].bMean = 1;
    };
    row.delicate = {IDC_MEASURE_SEARCH, IDC_MEASURE_REGION, IDC_MEASURE_BASELINE,
                    IDC_MEASURE_LENGTH};
    // The regions follow the data, and what is plotted is emptied where the peak's amplitude is.
    row.fromData = {"StatsRegionStart", "StatsRegionEnd", "BaseRegionStart",
                    "BaseRegionEnd",    "NumYPlotItems",  "AutoPlotYVariable"};
    row.alive = {IDC_MEASURE_SEARCH, IDC_MEASURE_SEARCH_SPIN};
    row.nOptionPages = 2;
    return row;
}

}  // namespace

Opening::Opening(const DialogRow& dialog) : options(dialog.nSize) {
    if (dialog.prepare != nullptr) dialog.prepare(options);
    source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
    source.Waveform(5, "Analog OUT #0");
    data.eDataSet1SelectionMode = 3;
    data.eDataGroup1SelectionMode = 1;
    std::strcpy(data.szUnitarySelectionList1, "0..2");
    // What a host keeps of an earlier run: the largest value of these sets.
    data.dMaxValue = 1199.0;
    params.bUseDataOptions = 1;
    params.bShowGroupSelector = 1;
    params.bShowDestination = 1;
    params.bShowDynamicLink = 1;
    params.bShowWriteRegionInfo = 1;
    params.bShowMeasurementOutput = 1;
    params.bMeasurementOutputB = 1;
    params.bMeasurementOutputC = 1;
}

void PrintTo(const DialogRow& row, std::ostream* pOut) {
    *pOut << row.szName;
}

const std::vector<DialogRow>& Rows() {
    static const std::vector<DialogRow> rows = {
        Row("Normalize", &ZXADLG_ShowNormalizeDialog),
        Row("Time Shift", &ZXADLG_ShowTimeShiftDialog),
        FitRow(),
        HistogramRow(),
        Row("Force Values", &ZXADLG_ShowForceValuesDialog),
        Row("Adjust Baseline", &ZXADLG_ShowAdjustBaselineDialog),
        Row("Leak Subtraction", &ZXADLG_ShowLeakSubtractionDialog),
        Row("Resistance", &ZXADLG_ShowResistanceDialog),
        Row("Filter", &ZXADLG_ShowFilterDialog),
        SpectrumRow(),
        CorrelationRow(),
        MeasurementRow(),
        Row("Current/Voltage", &ZXADLG_ShowCurrentVoltageDialog, true),
        Row("Trace vs. Trace", &ZXADLG_ShowTraceVsTraceDialog, true),
        ArithmeticRow("Arithmetic", 0, false),
        ArithmeticRow("Arithmetic of Columns", 2, false),
        ArithmeticRow("Arithmetic of a New Column", 2, true),
        {"Data Reduction/Interpolation", sizeof(ZXADLG_ModifySampleRateOptions), false, false,
         [](Opening& o) {
             return ZXADLG_ShowModifySamplingRateDialog(
                 nullptr, reinterpret_cast<ZXADLG_ModifySampleRateOptions*>(o.options.data()),
                 &o.source, &o.params);
         }},
        {"Subtract Control", sizeof(ZXADLG_SubtractControlOptions), false, false,
         [](Opening& o) {
             NoFiles files;
             return ZXADLG_ShowSubtractControlDialog(
                 nullptr, reinterpret_cast<ZXADLG_SubtractControlOptions*>(o.options.data()),
                 nullptr, &o.source, &files, &o.params);
         }},
    };
    return rows;
}

std::string NameOfRow(const testing::TestParamInfo<DialogRow>& row) {
    std::string sName;
    for (const char* p = row.param.szName; *p != '\0'; ++p) {
        if (std::isalnum(static_cast<unsigned char>(*p))) sName += *p;
    }
    return sName;
}

const std::vector<SourceRow>& Sources() {
    static const std::vector<SourceRow> rows = {
        {"a data file", false, [](TestDataSource& s) { s.Kind(0); }},
        {"other sets", false, [](TestDataSource& s) { s.Kind(1); }},
        {"a sheet", false, [](TestDataSource& s) { s.Kind(2); }},
        {"null texts", true, [](TestDataSource& s) { s.NullTexts().NullArrays(); }},
        {"no data", true,
         [](TestDataSource& s) {
             s.Groups({});
             s.regions.clear();
             s.waveforms.clear();
         }},
        {"no points, no waveform", true,
         [](TestDataSource& s) {
             s.Points(0);
             s.waveforms.clear();
             s.samplingFrequency = 0.0;
         }},
    };
    return rows;
}

}  // namespace dialogs_test
