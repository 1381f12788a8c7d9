// The keys of every section of the store, one table per section.
#pragma once

#include "contract/OptionTable.h"

extern const OptionSection kCurveFitSection;
extern const OptionSection kLowpassFilterSection;
extern const OptionSection kHighpassFilterSection;
extern const OptionSection kNotchFilterSection;
extern const OptionSection kAdaptiveFilterSection;
extern const OptionSection kPowerSpectrumSection;
extern const OptionSection kHistogramSection;
extern const OptionSection kCorrelationSection;
extern const OptionSection kResistanceSection;
extern const OptionSection kNormalizeSection;
extern const OptionSection kConvertSampleRateSection;
extern const OptionSection kLeakSubtractionSection;
extern const OptionSection kForceValuesSection;
extern const OptionSection kTimeShiftSection;
extern const OptionSection kCurrentVoltageSection;
extern const OptionSection kTraceVsTraceSection;
extern const OptionSection kTraceArithmeticSection;
extern const OptionSection kAdjustBaselineSection;
extern const OptionSection kSubtractControlSection;
extern const OptionSection kMeasurementsSection;
// The data record; the section's name is that of the analysis.
extern const OptionSection kDataSection;
