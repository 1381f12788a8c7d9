// The keys of the data record, the same in the section of every analysis.

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_DataOptions;

constexpr OptionKey kDataKeys[] = {
    KEY(szUnitarySelectionList1),
    KEY(szUnitarySelectionList2),
    Dependent(KEY(szDepVarSelectionList)),
    KEY(eDataGroup1SelectionMode),
    KEY(eDataGroup2SelectionMode),
    KEY(eDataSet1SelectionMode),
    KEY(eDataSet2SelectionMode),
    KEY(eAnalysisRegion),
    KEY(uGroup1Index),
    KEY(uGroup2Index),
    KEY(uPairedGroupIndex),
    Dependent(KEY(uIndepVarDataSetIndex)),
    Dependent(KEY(uDepVarDataSetIndex)),
    KEY(uFirstDataIndex),
    KEY(uLastDataIndex),
    KEY(uExtrapolationCursor),
    KEY(uSelectedDataSet),
    KEY(bUseFullDataRange),
    KEY(bExtrapolate),
    KEY(bForceExcludedRegionToZero),
};

constexpr OptionKey kDataIsConstantKeys[] = {
    KEY_OF_ELEMENTS("IsConstant%d", abIsConstant),
};

constexpr OptionKey kDataConstantKeys[] = {
    KEY_OF_ELEMENTS("Constant%d", adConstants),
};

// What the library writes for the host, and the store does not keep.
constexpr OptionKey kInformationKeys[] = {
    NotKept(KEY(eDataKind)),       NotKept(KEY(uVisibleGroups)),     NotKept(KEY(uVisibleSets)),
    NotKept(KEY(uGroupCount)),     NotKept(KEY(uSetCount)),          NotKept(KEY(bSegmented)),
    NotKept(KEY(uRegionCount)),    NotKept(KEY(dSamplingFrequency)), NotKept(KEY(dMinValue)),
    NotKept(KEY(dMaxValue)),       NotKept(KEY(bHasUserList)),       NotKept(KEY(uBlobSize)),
    NotKept(BYTES(aBlob)),         NotKept(KEY(uActiveGroup)),       NotKept(KEY(uEpochCount)),
    NotKept(KEY(szVisibleGroups)), NotKept(KEY(szVisibleSets)),      NotKept(KEY(bPaired)),
};
constexpr OptionKey kGroupKeys[] = {
    NotKept(KEY_OF_EACH(nullptr, aGroups, szName)),
    NotKept(KEY_OF_EACH(nullptr, aGroups, uCode)),
    NotKept(KEY_OF_ELEMENTS(nullptr, aActiveSets)),
};
constexpr OptionKey kRegionPointKeys[] = {
    NotKept(KEY_OF_EACH(nullptr, aRegionPoints, uFirstPoint)),
    NotKept(KEY_OF_EACH(nullptr, aRegionPoints, uLastPoint)),
};
constexpr OptionKey kEpochKeys[] = {
    NotKept(KEY_OF_EACH(nullptr, aEpochs, uNumber)),
    NotKept(KEY_OF_EACH(nullptr, aEpochs, szName)),
};
constexpr OptionKey kRegionKeys[] = {
    NotKept(KEY_OF_EACH(nullptr, aRegions, nRegionId)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, uFirstPoint)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, uLastPoint)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, uGroup)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, uSet)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, dStart)),
    NotKept(KEY_OF_EACH(nullptr, aRegions, dEnd)),
};

constexpr OptionBlock kDataBlocks[] = {
    {kInformationKeys}, {kGroupKeys, 16}, {kRegionPointKeys, 25},   {kEpochKeys, 2},
    {kRegionKeys, 50},  {kDataKeys},      {kDataIsConstantKeys, 6}, {kDataConstantKeys, 6}};

}  // namespace

const OptionSection kDataSection = {nullptr, "ZXADLG_DataOptions", kDataBlocks};
