// The graph library beside the module, and a graph of it in a control.
#pragma once

#include "analysis/CompanionLibrary.h"
#include "zxadlg/Graph.h"

// The functions that graphical seeding calls. All of them are there, or none is called.
class GraphLibrary {
  private:
    CompanionLibrary m_library;

  public:
    // `szFile` is looked for in the folder of the module `hModule`.
    GraphLibrary(HINSTANCE hModule, const char* szFile);

    // Whether the file has been found and has all that is called.
    bool IsComplete() const;

    GMT_CreateGraph create;
    GMT_DestroyGraph destroy;
    GMT_SetSource setSource;
    GMT_AutoScale autoScale;
    GMT_CurveChanged curveChanged;
    GMT_SetFlag setFlag;
    GMT_SetTitle setTitle;
    GMT_Redraw redraw;
};
