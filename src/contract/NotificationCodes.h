// What the tabs of one dialog tell each other through their option interfaces. The numbers are part
// of the dialogs' contract and stay as they are.
#pragma once

enum NotificationCode {
    // Curve fitting.
    kNotifyFitFunctionChanged = 2200,       // function or form of it, or the custom one compiled
    kNotifyFitCustomText = 2201,            // the custom text is to be compiled
    kNotifyFitMethodChanged = 2203,         // methods or number of terms
    kNotifyFitCompareChanged = 2204,        // comparison of models, or the seed page was activated
    kNotifyFitSeedsChanged = 2205,          // seeds
    kNotifyFitZeroShiftChanged = 2206,      // zero-shift in effect
    kNotifyFitForcePositiveChanged = 2207,  // what is forced positive
    kNotifyFitRefitChanged = 2208,          // fixed parameters, auto-free, validity of the seeds
    kNotifyFitShowDataPage = 2209,          // the data page is to be shown
    kNotifyFitMethodsLeft = 2224,           // the page of the methods was left
    kNotifyFitAutomaticChanged = 2225,      // methods are chosen automatically, or no longer

    kNotifyDataSelectionChanged = 2212,  // data tabs: the selection of data changed
    kNotifyPairingChanged = 2213,        // paired data tab: the x or y assignment changed
    kNotifyRegionChanged = 2214,         // unitary data tab: the analysis region changed
    kNotifySpectrumFirst = 2215,         // spectrum dialog: option changes
    kNotifySpectrumSecond = 2216,
    kNotifyCorrelationChanged = 2217,  // correlation dialog: option change
    kNotifyDataTabCurrent = 2218,  // unitary data tab: it was activated and its state is current
    kNotifyDataTabShown = 2221,    // data tab: about to be shown
    kNotifyDataTabLeft = 2222,     // data tab: about to be left
    kNotifyMeasurementSwitched = 2223,  // measurements: one is measured, or no longer
    kNotifySearchChanged = 2226,        // measurements: another search is shown
    kNotifySearchRegionChanged = 2228,  // measurements: a region, or all of them by an import
    kNotifyImportChanged = 2230,        // measurements: what is on, the acquisition's or a search
    kNotifyRegionRecount = 2227,        // unitary data tab: the selection needs a recount
    kNotifyDataInfoRebuilt = 2229,      // data layer: the data-information block was rebuilt
};
