// The exported functions under the names that stand for their numbers.

#include "Functions.h"

extern "C" {

GMT_Graph* Ordinal1000(HWND__* hControl) {
    return graph::Create(hControl);
}
int32_t Ordinal1002(GMT_Graph* pGraph, GMT_DataSource* pSource) {
    return graph::SetSource(pGraph, pSource);
}
int32_t Ordinal1013(GMT_Graph* pGraph, uint32_t uAxis, double dMin, double dMax) {
    return graph::SetScale(pGraph, uAxis, dMin, dMax);
}
int32_t Ordinal1014(GMT_Graph* pGraph, uint32_t uAxis) {
    return graph::AutoScale(pGraph, uAxis);
}
int32_t Ordinal1018(GMT_Graph* pGraph) {
    return graph::Destroy(pGraph);
}
int32_t Ordinal1021(GMT_Graph* pGraph, uint32_t uAxis, double* pMin, double* pMax) {
    return graph::GetScale(pGraph, uAxis, pMin, pMax);
}
int32_t Ordinal1036(GMT_Graph* pGraph, uint32_t uCurve) {
    return graph::CurveChanged(pGraph, uCurve);
}
int32_t Ordinal1039(GMT_Graph* pGraph, int32_t x, int32_t y, double* pX, double* pY) {
    return graph::ValueAt(pGraph, x, y, pX, pY);
}
int32_t Ordinal1043(GMT_Graph* pGraph, uint32_t uFlags) {
    return graph::GetFlag(pGraph, uFlags);
}
int32_t Ordinal1044(GMT_Graph* pGraph) {
    return graph::Redraw(pGraph);
}
int32_t Ordinal1054(GMT_Graph* pGraph, uint32_t uFlags, int32_t bSet) {
    return graph::SetFlag(pGraph, uFlags, bSet);
}
int32_t Ordinal1058(GMT_Graph* pGraph, uint32_t uWhich, const char* szTitle) {
    return graph::SetTitle(pGraph, uWhich, szTitle);
}
}
