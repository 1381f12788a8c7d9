// What the tabs of one dialog tell each other through their option interfaces. The numbers are part
// of the dialogs' contract and stay as they are.
#pragma once

enum NotificationCode {
    kNotifyDataSelectionChanged = 2212,  // data tabs: the selection of data changed
    kNotifyPairingChanged = 2213,        // paired data tab: the x or y assignment changed
    kNotifyRegionChanged = 2214,         // unitary data tab: the analysis region changed
    kNotifySpectrumFirst = 2215,         // spectrum dialog: option changes
    kNotifySpectrumSecond = 2216,
    kNotifyCorrelationChanged = 2217,  // correlation dialog: option change
    kNotifyDataTabCurrent = 2218,   // unitary data tab: it was activated and its state is current
    kNotifyDataTabShown = 2221,     // data tab: about to be shown
    kNotifyDataTabLeft = 2222,      // data tab: about to be left
    kNotifyRegionRecount = 2227,    // unitary data tab: the selection needs a recount
    kNotifyDataInfoRebuilt = 2229,  // data layer: the data-information block was rebuilt
};
