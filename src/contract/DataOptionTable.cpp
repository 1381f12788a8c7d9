// The keys of the data record, the same in the section of every analysis.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

constexpr OptionKey kDataKeys[] = {
    {.szKey = "szUnitarySelectionList1",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_DataOptions, szUnitarySelectionList1),
     .uSize = 1000},
    {.szKey = "szUnitarySelectionList2",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_DataOptions, szUnitarySelectionList2),
     .uSize = 1000},
    {.szKey = "szDepVarSelectionList",
     .eType = OptionType::kText,
     .uOffset = offsetof(ZXADLG_DataOptions, szDepVarSelectionList),
     .uSize = 1000,
     .eUse = OptionUse::kDependent},
    {"eDataGroup1SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_DataOptions, eDataGroup1SelectionMode)},
    {"eDataGroup2SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_DataOptions, eDataGroup2SelectionMode)},
    {"eDataSet1SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_DataOptions, eDataSet1SelectionMode)},
    {"eDataSet2SelectionMode", OptionType::kInt32,
     offsetof(ZXADLG_DataOptions, eDataSet2SelectionMode)},
    {"eAnalysisRegion", OptionType::kInt32, offsetof(ZXADLG_DataOptions, eAnalysisRegion)},
    {"uGroup1Index", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uGroup1Index)},
    {"uGroup2Index", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uGroup2Index)},
    {"uPairedGroupIndex", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uPairedGroupIndex)},
    {.szKey = "uIndepVarDataSetIndex",
     .eType = OptionType::kUInt32,
     .uOffset = offsetof(ZXADLG_DataOptions, uIndepVarDataSetIndex),
     .eUse = OptionUse::kDependent},
    {.szKey = "uDepVarDataSetIndex",
     .eType = OptionType::kUInt32,
     .uOffset = offsetof(ZXADLG_DataOptions, uDepVarDataSetIndex),
     .eUse = OptionUse::kDependent},
    {"uFirstDataIndex", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uFirstDataIndex)},
    {"uLastDataIndex", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uLastDataIndex)},
    {"uExtrapolationCursor", OptionType::kUInt32,
     offsetof(ZXADLG_DataOptions, uExtrapolationCursor)},
    {"uSelectedDataSet", OptionType::kUInt32, offsetof(ZXADLG_DataOptions, uSelectedDataSet)},
    {"bUseFullDataRange", OptionType::kBool8, offsetof(ZXADLG_DataOptions, bUseFullDataRange)},
    {"bExtrapolate", OptionType::kBool8, offsetof(ZXADLG_DataOptions, bExtrapolate)},
    {"bForceExcludedRegionToZero", OptionType::kBool8,
     offsetof(ZXADLG_DataOptions, bForceExcludedRegionToZero)},
};

constexpr OptionKey kDataIsConstantKeys[] = {
    {.szKey = "IsConstant%d",
     .eType = OptionType::kBool8,
     .uOffset = offsetof(ZXADLG_DataOptions, abIsConstant),
     .uStride = 1},
};

constexpr OptionKey kDataConstantKeys[] = {
    {.szKey = "Constant%d",
     .eType = OptionType::kDouble,
     .uOffset = offsetof(ZXADLG_DataOptions, adConstants),
     .uStride = 8},
};

constexpr OptionBlock kDataBlocks[] = {
    {kDataKeys}, {kDataIsConstantKeys, 6}, {kDataConstantKeys, 6}};

}  // namespace

const OptionSection kDataSection = {nullptr, kDataBlocks};
