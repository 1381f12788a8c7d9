// What the data layer of one dialog offers. Built by the dialog and held by it; the data layer only
// reads it.
#pragma once

#include <cstdint>

struct ZXADLG_DataTabFlags {
    std::uint8_t bAllowExtrapolate = 0;  // the extrapolation settings take effect
    std::uint8_t bAllowForceToZero = 0;  // the force-to-zero check box is offered, data files only
    std::uint8_t bAllowRegion = 1;       // the analysis region is offered, data files only
    std::uint8_t bShowGroups = 1;        // the group combo box and its label are shown
    std::uint8_t bShowSetTools = 1;      // the tools of the set list are offered
    std::uint8_t bUseStoredInfo =
        0;  // answers come from the data-information block, not the source
};
static_assert(sizeof(ZXADLG_DataTabFlags) == 6);
