// Where the dialogs with a data tab keep their selection: each under the name of its analysis.

#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>
#include <utility>

#include "DialogRows.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "store/ProfileStore.h"

namespace {

using namespace dialogs_test;
using test_support::DialogScript;

class EverySelection : public testing::Test {
  protected:
    EverySelection() : m_bOld(SetUseProfileFile(true)) {}
    ~EverySelection() override { SetUseProfileFile(m_bOld); }

    static const DialogRow& RowOf(const std::string& name) {
        for (const DialogRow& row : Rows()) {
            if (row.szName == name) return row;
        }
        throw std::out_of_range(name);
    }
    void Accept(const DialogRow& row, Opening& opening) const {
        opening.source.Profile(m_store.ProfileFile());
        DialogScript script;
        script.Click(IDOK);
        EXPECT_EQ(script.Run([&] { return row.show(opening); }), IDOK);
    }
    std::string Stored(const std::string& section, const char* key) const {
        char text[1000];
        return ReadString(section.c_str(), key, nullptr, text, sizeof text,
                          m_store.ProfileFile().c_str())
                   ? text
                   : "(none)";
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
};

TEST_F(EverySelection, IsKeptUnderTheNameOfTheAnalysis) {
    const std::pair<const char*, const char*> rows[] = {
        {"Normalize", "NormalizeDataSection"},
        {"Time Shift", "TimeShiftDataSection"},
        {"Curve Fitting", "CurveFitDataSection"},
        {"Histogram", "HistogramDataSection"},
        {"Force Values", "ForceValuesDataSection"},
        {"Adjust Baseline", "AdjustBaselineDataSection"},
        {"Leak Subtraction", "LeakSubtractionDataSection"},
        {"Resistance", "ResistanceDataSection"},
        {"Filter", "FilterDataSection"},
        {"Power Spectrum", "SpectrumDataSection"},
        {"Correlation", "CorrelationDataSection"},
        {"Measurements", "MeasurementsDataSection"},
    };
    std::size_t tabbed = 0;
    for (const DialogRow& row : Rows()) tabbed += row.bHasDataTab ? 1 : 0;
    EXPECT_EQ(tabbed, std::size(rows));
    for (const auto& [name, section] : rows) {
        SCOPED_TRACE(name);
        WriteString(section, "szUnitarySelectionList1", "1..2", m_store.ProfileFile().c_str());
        Opening opening(RowOf(name));
        Accept(RowOf(name), opening);
        EXPECT_STREQ(opening.data.szUnitarySelectionList1, "1..2");
        EXPECT_EQ(Stored(section, "eDataGroup1SelectionMode"), "1");
    }
}

TEST_F(EverySelection, OfACurveFitIsTheRegionThatTheHostNumbersOneWhereItAsks) {
    const DialogRow& row = RowOf("Curve Fitting");
    for (const int asked : {0, 1, 2}) {
        SCOPED_TRACE(asked);
        WriteString("CurveFitDataSection", "eAnalysisRegion", "3", m_store.ProfileFile().c_str());
        Opening opening(row);
        opening.source.Region(1, "Cursors 3..4", 500, 899);
        opening.params.bFitSelectRegionOne =
            static_cast<decltype(opening.params.bFitSelectRegionOne)>(asked);
        Accept(row, opening);
        EXPECT_EQ(opening.data.eAnalysisRegion, asked == 0 ? 3 : 1);
    }
}

}  // namespace
