#include "Truth.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace filter_test {

namespace {

FilterOptions RecordOf(const std::string& sLine) {
    std::istringstream in(sLine);
    FilterOptions options = {};
    double dSamplingFrequency = 0.0;
    int nSelected = 0;
    in >> dSamplingFrequency >> nSelected >> options.lowpass.m_eFilterFamily >>
        options.lowpass.m_dCornerFreq >> options.lowpass.m_uNumAveragePoints >>
        options.lowpass.uApplyOrder;
    options.dSampleInterval = 1e6 / dSamplingFrequency;
    options.lowpass.m_bIsSelected = static_cast<uint8_t>(nSelected);
    in >> nSelected >> options.highpass.m_eFilterFamily >> options.highpass.m_dCornerFreq >>
        options.highpass.uApplyOrder;
    options.highpass.m_bIsSelected = static_cast<uint8_t>(nSelected);
    in >> nSelected >> options.notch.m_dCornerFreq >> options.notch.m_d3dbWidth >>
        options.notch.uApplyOrder;
    options.notch.m_bIsSelected = static_cast<uint8_t>(nSelected);
    int nCompensate = 0;
    in >> nSelected >> options.adaptive.m_eReferenceGeneration >>
        options.adaptive.m_uHarmonicNumberStart >> options.adaptive.m_uHarmonicNumberEnd >>
        options.adaptive.m_uAveragingCycles >> nCompensate;
    options.adaptive.m_bIsSelected = static_cast<uint8_t>(nSelected);
    options.adaptive.m_bEndEffectCompensation = static_cast<uint8_t>(nCompensate);
    EXPECT_FALSE(in.fail()) << sLine;
    return options;
}

Truth Read() {
    Truth truth;
    std::ifstream file(ZX_SOURCE_DIR "/tests/filter/truth.txt");
    EXPECT_TRUE(file.is_open());
    std::string sLine;
    while (std::getline(file, sLine)) {
        if (!sLine.empty() && sLine.back() == '\r') sLine.pop_back();
        if (sLine.empty() || sLine[0] == '#') continue;
        std::istringstream in(sLine);
        std::string sKind;
        std::size_t nLines = 0;
        in >> sKind >> nLines;
        std::string sRecord;
        std::getline(in >> std::ws, sRecord);
        const auto numbers = [&] {
            std::vector<double> values(nLines);
            for (double& d : values) file >> d;
            return values;
        };
        if (sKind == "response") {
            TrueResponse response = {sRecord, RecordOf(sRecord), {}};
            for (std::size_t i = 0; i < nLines; ++i) {
                double f = 0.0, re = 0.0, im = 0.0;
                file >> f >> re >> im;
                response.points.push_back({f, {re, im}});
            }
            truth.responses.push_back(std::move(response));
        } else if (sKind == "data") {
            truth.data = numbers();
        } else if (sKind == "trace") {
            truth.traces.push_back({sRecord, RecordOf(sRecord), numbers()});
        } else {
            ADD_FAILURE() << sLine;
        }
    }
    return truth;
}

}  // namespace

const Truth& GetTruth() {
    static const Truth truth = Read();
    return truth;
}

}  // namespace filter_test
