// What filters should give, from the file that tools/filter/make_truth.py makes.
#pragma once

#include <complex>
#include <string>
#include <vector>

#include "zxadlg/SignalProcessingOptions.h"

namespace filter_test {

struct ResponsePoint {
    double dFraction;  // of the sampling frequency
    std::complex<double> gain;
};

struct TrueResponse {
    std::string sRecord;  // as the file has it
    FilterOptions options;
    std::vector<ResponsePoint> points;
};

struct TrueTrace {
    std::string sRecord;
    FilterOptions options;
    std::vector<double> values;
};

struct Truth {
    std::vector<TrueResponse> responses;
    std::vector<double> data;  // what the traces were made of
    std::vector<TrueTrace> traces;
};

// Empty, with a failure of the running test, where the file cannot be read.
const Truth& GetTruth();

}  // namespace filter_test
