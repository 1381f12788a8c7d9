// The checks of curve fitting over a file of eight points or a sheet of them, and what a finding
// tells.
#pragma once

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "FitFixture.h"
#include "fit/FitChecks.h"
#include "platform/platform.h"

namespace fit_test {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// A file of eight even points over function 15, which everything passes.
class FitChecks : public FitModel {
  public:
    FitChecks() {
        source.x = {1, 2, 3, 4, 5, 6, 7, 8};
        source.y = {9, 7, 5, 4, 3, 2.5, 2.25, 2};
        fit.Open();
        Choose(15);
    }
    // The same points as three columns of a sheet: x the first, y the second.
    void MakeSheet() {
        source.Kind(2).Groups({"Sheet"}).Sets(3);
        dataRecord.uGroup1Index = dataRecord.uGroup2Index = dataRecord.uPairedGroupIndex = 0;
        dataRecord.uIndepVarDataSetIndex = 0;
        dataRecord.uDepVarDataSetIndex = 1;
        dataRecord.bUseFullDataRange = 1;
    }
    // The first of six variables is a column, the others are constants.
    void MakeConstants() {
        MakeSheet();
        Choose(19);
        for (std::uint32_t i = 0; i < 6; ++i) {
            data.SetIsConstant(i, i != 0);
            data.SetConstant(i, i == 0 ? 0.0 : 10.0 + i);
        }
    }
    void Compare() {
        options.bCompareModels = 1;
        options.uFitOrder = fit.EffectiveTermCount();
    }
    void Type(std::vector<double> flat) {
        flat.resize(26);
        seeds.SetSeeds(flat.data());
    }

    // "id" of the message with what it points at and asks: page, control, arguments, flags.
    static std::string Told(const CheckResult& result) {
        if (!result) return "";
        std::string sTold =
            std::to_string(result->nStringId) + " page " + std::to_string(result->nPage);
        if (result->nControl != 0) sTold += " control " + std::to_string(result->nControl);
        for (const std::string& s : result->vArguments) sTold += " (" + s + ")";
        return sTold;
    }
    void ExpectRefused(const CheckResult& result, const char* szTold, UINT uFlags = MB_ICONHAND) {
        EXPECT_EQ(Told(result), szTold);
        if (!result) return;
        EXPECT_EQ(result->uFlags, uFlags) << szTold;
        EXPECT_TRUE(result->vAnswers.empty()) << szTold;
    }
    std::string DataTold(FitDataUse eUse = FitDataUse::kFit) {
        return Told(CheckDataForFit(fit, eUse));
    }
};

}  // namespace fit_test
