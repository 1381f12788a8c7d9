#include "fit/GraphLibrary.h"

namespace {

template <class Function>
Function ByNumber(CompanionLibrary& library, WORD wOrdinal) {
    return library.Find<Function>(MAKEINTRESOURCEA(wOrdinal));
}

}  // namespace

GraphLibrary::GraphLibrary(HINSTANCE hModule, const char* szFile)
    : m_library(hModule, szFile),
      create(ByNumber<GMT_CreateGraph>(m_library, GMT_ORDINAL_CREATE)),
      destroy(ByNumber<GMT_DestroyGraph>(m_library, GMT_ORDINAL_DESTROY)),
      setSource(ByNumber<GMT_SetSource>(m_library, GMT_ORDINAL_SET_SOURCE)),
      autoScale(ByNumber<GMT_AutoScale>(m_library, GMT_ORDINAL_AUTO_SCALE)),
      curveChanged(ByNumber<GMT_CurveChanged>(m_library, GMT_ORDINAL_CURVE_CHANGED)),
      setFlag(ByNumber<GMT_SetFlag>(m_library, GMT_ORDINAL_SET_FLAG)),
      setTitle(ByNumber<GMT_SetTitle>(m_library, GMT_ORDINAL_SET_TITLE)),
      redraw(ByNumber<GMT_Redraw>(m_library, GMT_ORDINAL_REDRAW)) {}

bool GraphLibrary::IsComplete() const {
    return create != nullptr && destroy != nullptr && setSource != nullptr &&
           autoScale != nullptr && curveChanged != nullptr && setFlag != nullptr &&
           setTitle != nullptr && redraw != nullptr;
}
