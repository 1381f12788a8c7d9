// The user's page of the filters says what the library does.

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "FilterFixture.h"

namespace {

using namespace filter_test;

// The cells of the tables' rows, by the text of their first cell; `szHeading` begins the section.
std::map<std::string, std::vector<std::string>> RowsOf(const char* szHeading) {
    std::map<std::string, std::vector<std::string>> rows;
    std::ifstream file(ZX_SOURCE_DIR "/docs/filters.md");
    bool bInside = false;
    for (std::string sLine; std::getline(file, sLine);) {
        if (!sLine.empty() && sLine.back() == '\r') sLine.pop_back();
        if (sLine.rfind("## ", 0) == 0) bInside = sLine == std::string("## ") + szHeading;
        if (!bInside || sLine.rfind("| ", 0) != 0) continue;
        std::vector<std::string> cells;
        std::istringstream in(sLine.substr(2));
        for (std::string sCell; std::getline(in, sCell, '|');) {
            const std::size_t nEnd = sCell.find_last_not_of(' ');
            const std::size_t nBegin = sCell.find_first_not_of(' ');
            if (nEnd != std::string::npos) cells.push_back(sCell.substr(nBegin, nEnd - nBegin + 1));
        }
        rows[cells.front()] = cells;
    }
    return rows;
}

struct Family {
    const char* szName;       // among the families
    const char* szShortName;  // among the numbers of points
    FilterOptions (*record)(double);
};

const Family kFamilies[] = {
    {"Bessel (8-pole)", "Bessel", [](double f) { return Lowpass(2, f); }},
    {"Butterworth (8-pole)", "Butterworth", [](double f) { return Lowpass(4, f); }},
    {"Chebyshev (8-pole)", "Chebyshev", [](double f) { return Lowpass(5, f); }},
    {"RC (single pole)", "RC", [](double f) { return Lowpass(7, f); }},
    {"RC (8-coincident-pole)", "RC, 8 poles", [](double f) { return Lowpass(8, f); }},
    {"Gaussian", "Gaussian", [](double f) { return Lowpass(6, f); }},
    {"Highpass Bessel (8-pole)", "Highpass Bessel", [](double f) { return Highpass(2, f); }},
    {"Highpass RC (single pole)", "Highpass RC", [](double f) { return Highpass(7, f); }},
    {"Notch", "Notch", [](double f) { return Notch(f, 0.01); }},
};

TEST(Guide, HasTheSmallestNumbersOfPoints) {
    const auto rows = RowsOf("The smallest number of points");
    ASSERT_EQ(rows.size(), 1 + std::size(kFamilies));
    for (const Family& family : kFamilies) {
        SCOPED_TRACE(family.szShortName);
        ASSERT_EQ(rows.count(family.szShortName), 1u);
        const std::vector<std::string>& cells = rows.at(family.szShortName);
        ASSERT_EQ(cells.size(), 7u);
        const double fractions[] = {0.0001, 0.001, 0.01, 0.1};
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(cells[2 + i],
                      std::to_string(Make(family.record(fractions[i]))->GetMinimumPoints()));
        }
        std::istringstream last(cells[6]);
        std::string sCount, sAt;
        double dLimit = 0.0;
        last >> sCount >> sAt >> dLimit;
        EXPECT_EQ(sCount, std::to_string(Make(family.record(dLimit))->GetMinimumPoints()));
    }
}

TEST(Guide, HasTheHighestCutoffs) {
    const auto rows = RowsOf("The families");
    for (const Family& family : kFamilies) {
        SCOPED_TRACE(family.szName);
        ASSERT_EQ(rows.count(family.szName), 1u);
        const std::string& sCell = rows.at(family.szName)[1];
        const double dHighest = std::stod(sCell.substr(sCell.find("to ") + 3));
        std::vector<double> values(100, 1.0);
        EXPECT_EQ(Make(family.record(dHighest))->FilterArray(values.data(), 100), 1);
        EXPECT_EQ(Make(family.record(dHighest * 1.001))->FilterArray(values.data(), 100), 0);
    }
}

}  // namespace
