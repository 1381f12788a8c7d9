// The keys of every section of the store, one table per section.
//
// From a table come the load, the save and the list of a record's fields.
#pragma once

#include <span>
#include <string_view>

#include "contract/OptionTable.h"
#include "zxadlg/fields.h"

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

// The fields of a record by the name of its type, in the order of the record; none for a name that
// is none.
std::span<const ZXADLG_FieldInfo> RecordFields(std::string_view sRecord);
