#include "sigproc/SamplingRate.h"

#include "text/NumberFormat.h"

double KnownRate(double dRate) {
    return dRate > 0.0 && dRate <= kDoubleLimit ? dRate : 0.0;
}

double RateOfInterval(const ZXADLG_SignalProcessingOptions& options) {
    return options.dSampleInterval > 0.0 ? KnownRate(1000000.0 / options.dSampleInterval) : 0.0;
}
