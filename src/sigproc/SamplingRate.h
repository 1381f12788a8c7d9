// The sampling rate of a signal in Hz, as limits and figures take it: 0 stands for an unknown one.
#pragma once

#include "zxadlg/SignalProcessingOptions.h"

// A rate that limits can be made of: 0 unless it is above 0 and at most 1e300.
double KnownRate(double dRate);
// The rate of the record's own interval, which is in microseconds.
double RateOfInterval(const ZXADLG_SignalProcessingOptions& options);
