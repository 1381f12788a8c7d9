// What the stand-in graph library exports beside the numbers: the calls that it got, a word or a
// few each, and the source that was attached.
#pragma once

#include "zxadlg/Graph.h"

struct GraphLog {
    int nCalls;
    char aszCalls[256][40];
    GMT_DataSource* pSource;
};

#define GRAPH_LOG "GraphLogOfStandIn"
