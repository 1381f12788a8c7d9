// How graphical seeding shows its graph, as the store keeps it among the keys of curve fitting.
#pragma once

#include <cstdint>

struct FitGraphView {
    std::int32_t bShowLegend = 1;
    std::int32_t bShowAxes = 1;
    std::int32_t bContinuousAutoScale = 0;
};

// As LoadCurveFitOptions and SaveCurveFitOptions, for the three keys alone.
void LoadFitGraphView(const char* pszProfile, FitGraphView* pView);
bool SaveFitGraphView(const char* pszProfile, const FitGraphView* pView);
