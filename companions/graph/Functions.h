// The functions of zxadlg/Graph.h, which each platform exports by number. No exception leaves them.
#pragma once

#include "zxadlg/Graph.h"

namespace graph {

GMT_Graph* GMT_CALL Create(HWND__* hControl);
int32_t GMT_CALL SetSource(GMT_Graph* pGraph, GMT_DataSource* pSource);
int32_t GMT_CALL SetScale(GMT_Graph* pGraph, uint32_t uAxis, double dMin, double dMax);
int32_t GMT_CALL AutoScale(GMT_Graph* pGraph, uint32_t uAxis);
int32_t GMT_CALL Destroy(GMT_Graph* pGraph);
int32_t GMT_CALL GetScale(GMT_Graph* pGraph, uint32_t uAxis, double* pMin, double* pMax);
int32_t GMT_CALL CurveChanged(GMT_Graph* pGraph, uint32_t uCurve);
int32_t GMT_CALL ValueAt(GMT_Graph* pGraph, int32_t x, int32_t y, double* pX, double* pY);
int32_t GMT_CALL GetFlag(GMT_Graph* pGraph, uint32_t uFlags);
int32_t GMT_CALL Redraw(GMT_Graph* pGraph);
int32_t GMT_CALL SetFlag(GMT_Graph* pGraph, uint32_t uFlags, int32_t bSet);
int32_t GMT_CALL SetTitle(GMT_Graph* pGraph, uint32_t uWhich, const char* szTitle);

}  // namespace graph
