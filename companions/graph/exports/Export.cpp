// The exported functions under the names that stand for their numbers. On Windows the definition
// file gives them the numbers and no name.

#include "Functions.h"

extern "C" {

GMT_Graph* GMT_CALL Ordinal1000(HWND__* hControl) {
    return graph::Create(hControl);
}
int32_t GMT_CALL Ordinal1002(GMT_Graph* pGraph, GMT_DataSource* pSource) {
    return graph::SetSource(pGraph, pSource);
}
int32_t GMT_CALL Ordinal1013(GMT_Graph* pGraph, uint32_t uAxis, double dMin, double dMax) {
    return graph::SetScale(pGraph, uAxis, dMin, dMax);
}
int32_t GMT_CALL Ordinal1014(GMT_Graph* pGraph, uint32_t uAxis) {
    return graph::AutoScale(pGraph, uAxis);
}
int32_t GMT_CALL Ordinal1018(GMT_Graph* pGraph) {
    return graph::Destroy(pGraph);
}
int32_t GMT_CALL Ordinal1021(GMT_Graph* pGraph, uint32_t uAxis, double* pMin, double* pMax) {
    return graph::GetScale(pGraph, uAxis, pMin, pMax);
}
int32_t GMT_CALL Ordinal1036(GMT_Graph* pGraph, uint32_t uCurve) {
    return graph::CurveChanged(pGraph, uCurve);
}
int32_t GMT_CALL Ordinal1039(GMT_Graph* pGraph, int32_t x, int32_t y, double* pX, double* pY) {
    return graph::ValueAt(pGraph, x, y, pX, pY);
}
int32_t GMT_CALL Ordinal1043(GMT_Graph* pGraph, uint32_t uFlags) {
    return graph::GetFlag(pGraph, uFlags);
}
int32_t GMT_CALL Ordinal1044(GMT_Graph* pGraph) {
    return graph::Redraw(pGraph);
}
int32_t GMT_CALL Ordinal1054(GMT_Graph* pGraph, uint32_t uFlags, int32_t bSet) {
    return graph::SetFlag(pGraph, uFlags, bSet);
}
int32_t GMT_CALL Ordinal1058(GMT_Graph* pGraph, uint32_t uWhich, const char* szTitle) {
    return graph::SetTitle(pGraph, uWhich, szTitle);
}
}
