#include "Functions.h"

#include "Graph.h"

namespace graph {
namespace {

// 1 when the work is done; 0 for a null graph, when it says no, and without memory.
template <class Work>
int32_t With(GMT_Graph* pGraph, const Work& work) {
    if (pGraph == nullptr) return 0;
    try {
        return work(*pGraph) ? 1 : 0;
    } catch (...) {
        return 0;
    }
}

}  // namespace

GMT_Graph* GMT_CALL Create(HWND__* hControl) {
    const auto hWnd = reinterpret_cast<HWND>(hControl);
    if (!IsWindow(hWnd) || GMT_Graph::IsGraph(hWnd)) return nullptr;
    try {
        return new GMT_Graph(hWnd);
    } catch (...) {
        return nullptr;
    }
}

int32_t GMT_CALL SetSource(GMT_Graph* pGraph, GMT_DataSource* pSource) {
    return With(pGraph, [&](GMT_Graph& graph) {
        graph.SetSource(pSource);
        return true;
    });
}

int32_t GMT_CALL SetScale(GMT_Graph* pGraph, uint32_t uAxis, double dMin, double dMax) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.SetScale(uAxis, dMin, dMax); });
}

int32_t GMT_CALL AutoScale(GMT_Graph* pGraph, uint32_t uAxis) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.AutoScale(uAxis); });
}

int32_t GMT_CALL Destroy(GMT_Graph* pGraph) {
    return With(pGraph, [&](GMT_Graph&) {
        delete pGraph;
        return true;
    });
}

int32_t GMT_CALL GetScale(GMT_Graph* pGraph, uint32_t uAxis, double* pMin, double* pMax) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.GetScale(uAxis, pMin, pMax); });
}

int32_t GMT_CALL CurveChanged(GMT_Graph* pGraph, uint32_t uCurve) {
    return With(pGraph, [&](GMT_Graph& graph) {
        graph.CurveChanged(uCurve);
        return true;
    });
}

int32_t GMT_CALL ValueAt(GMT_Graph* pGraph, int32_t x, int32_t y, double* pX, double* pY) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.ValueAt(x, y, pX, pY); });
}

int32_t GMT_CALL GetFlag(GMT_Graph* pGraph, uint32_t uFlags) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.GetFlag(uFlags); });
}

int32_t GMT_CALL Redraw(GMT_Graph* pGraph) {
    return With(pGraph, [&](GMT_Graph& graph) {
        graph.Redraw();
        return true;
    });
}

int32_t GMT_CALL SetFlag(GMT_Graph* pGraph, uint32_t uFlags, int32_t bSet) {
    return With(pGraph, [&](GMT_Graph& graph) {
        graph.SetFlag(uFlags, bSet != 0);
        return true;
    });
}

int32_t GMT_CALL SetTitle(GMT_Graph* pGraph, uint32_t uWhich, const char* szTitle) {
    return With(pGraph, [&](GMT_Graph& graph) { return graph.SetTitle(uWhich, szTitle); });
}

}  // namespace graph
