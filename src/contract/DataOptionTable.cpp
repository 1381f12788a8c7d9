// The keys of the data record, the same in the section of every analysis.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_DataOptions;

constexpr OptionKey kDataKeys[] = {
    Text("szUnitarySelectionList1", offsetof(Record, szUnitarySelectionList1), 1000),
    Text("szUnitarySelectionList2", offsetof(Record, szUnitarySelectionList2), 1000),
    Dependent(Text("szDepVarSelectionList", offsetof(Record, szDepVarSelectionList), 1000)),
    Single("eDataGroup1SelectionMode", kInt32, offsetof(Record, eDataGroup1SelectionMode)),
    Single("eDataGroup2SelectionMode", kInt32, offsetof(Record, eDataGroup2SelectionMode)),
    Single("eDataSet1SelectionMode", kInt32, offsetof(Record, eDataSet1SelectionMode)),
    Single("eDataSet2SelectionMode", kInt32, offsetof(Record, eDataSet2SelectionMode)),
    Single("eAnalysisRegion", kInt32, offsetof(Record, eAnalysisRegion)),
    Single("uGroup1Index", kUInt32, offsetof(Record, uGroup1Index)),
    Single("uGroup2Index", kUInt32, offsetof(Record, uGroup2Index)),
    Single("uPairedGroupIndex", kUInt32, offsetof(Record, uPairedGroupIndex)),
    Dependent(Single("uIndepVarDataSetIndex", kUInt32, offsetof(Record, uIndepVarDataSetIndex))),
    Dependent(Single("uDepVarDataSetIndex", kUInt32, offsetof(Record, uDepVarDataSetIndex))),
    Single("uFirstDataIndex", kUInt32, offsetof(Record, uFirstDataIndex)),
    Single("uLastDataIndex", kUInt32, offsetof(Record, uLastDataIndex)),
    Single("uExtrapolationCursor", kUInt32, offsetof(Record, uExtrapolationCursor)),
    Single("uSelectedDataSet", kUInt32, offsetof(Record, uSelectedDataSet)),
    Single("bUseFullDataRange", kBool8, offsetof(Record, bUseFullDataRange)),
    Single("bExtrapolate", kBool8, offsetof(Record, bExtrapolate)),
    Single("bForceExcludedRegionToZero", kBool8, offsetof(Record, bForceExcludedRegionToZero)),
};

constexpr OptionKey kDataIsConstantKeys[] = {
    Repeated("IsConstant%d", kBool8, offsetof(Record, abIsConstant), 1),
};

constexpr OptionKey kDataConstantKeys[] = {
    Repeated("Constant%d", kDouble, offsetof(Record, adConstants), 8),
};

constexpr OptionBlock kDataBlocks[] = {
    {kDataKeys}, {kDataIsConstantKeys, 6}, {kDataConstantKeys, 6}};

}  // namespace

const OptionSection kDataSection = {nullptr, kDataBlocks};
