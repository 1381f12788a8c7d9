// An open record of curve fitting over a small sheet, with the real curve-fit library or a
// stand-in.
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "fit/CFitSeedInterface.h"
#include "fixtures/TestDataSource.h"

namespace fit_test {

inline FitOptions FreshRecord() {
    FitOptions options{};
    options.dUserLMPrecision = 3e-5;
    options.dUserVMPrecision = 4e-5;
    options.dUserFractError = 5e-5;
    options.dZDBoltzmanTemperature = 21.0;
    options.dNernstTemperature = 22.0;
    options.dGoldmanTemperature = 23.0;
    options.dExtGoldmanTemperature = 24.0;
    options.bAutoZeroShift = 1;
    options.bAutoCompare = 1;
    options.uFitOrder = 1;
    options.uDlgFitOrder = 1;
    options.uCurTimePowerA = 3;
    options.uCurTimePowerB = 1;
    options.uExpPower = 2;
    options.uStartCompare = 1;
    options.uEndCompare = 6;
    options.uNernstValence = 2;
    options.eFunctionType = 15;
    options.nNumCustomIndepVars = 1;
    return options;
}

// Data whose points are told one by one: the same x and y for every set. Where `x` is empty they
// are the base's.
class FitSource : public test_support::TestDataSource {
  public:
    const double* GetXValues(std::uint32_t group, std::uint32_t set, const ZXADLG_DataRange* range,
                             std::uint32_t n) override {
        const double* p = TestDataSource::GetXValues(group, set, range, n);
        return bNoX ? nullptr : x.empty() ? p : x.data();
    }
    const double* GetYValues(std::uint32_t group, std::uint32_t set, const ZXADLG_DataRange* range,
                             std::uint32_t n) override {
        const double* p = TestDataSource::GetYValues(group, set, range, n);
        return bNoY ? nullptr : x.empty() ? p : y.data();
    }
    std::uint32_t GetPointCount(std::uint32_t group, std::uint32_t set,
                                const ZXADLG_DataRange* range, std::uint32_t n) override {
        const std::uint32_t uCount = TestDataSource::GetPointCount(group, set, range, n);
        if (set < lengths.size()) return lengths[set];
        return x.empty() ? uCount : static_cast<std::uint32_t>(x.size());
    }

    std::vector<double> x;
    std::vector<double> y;
    std::vector<std::uint32_t> lengths;  // of the first columns
    bool bNoX = false;
    bool bNoY = false;
};

class FitModel : public ::testing::Test {
  public:
    explicit FitModel(const char* szLibrary = "CURVEFIT.dll")
        : library(GetModuleHandleA(nullptr), szLibrary) {}

    // The function under a method and a minimisation, its traits read.
    void Choose(std::int32_t eFunction, std::int32_t eSearch = kSearchLM,
                std::int32_t eMinim = kMinimSS) {
        options.eFunctionType = eFunction;
        fit.SetSearchMethod(eSearch);
        options.eMinimMethod = eMinim;
        ASSERT_EQ(fit.ReadProperties(), 0) << eFunction;
        options.uFitOrder = fit.EffectiveTermCount();
    }

    FitOptions options = FreshRecord();
    ZXADLG_DataOptions dataRecord{};
    ZXADLG_DataTabFlags flags;
    FitSource source;
    CDataOptionsInterface data{&dataRecord, &source, &flags};
    CurveFitLibrary library;
    CFitOptionsInterface fit{&options, &data, &library};
    CFitSeedInterface seeds{&fit, &data};
};

}  // namespace fit_test
