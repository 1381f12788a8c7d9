// A graph library that draws nothing and keeps a log of what it is asked.
#include <cstdarg>
#include <cstdio>

#include "GraphLog.h"

namespace {

GraphLog g_log;

int32_t Log(const char* szFormat, ...) {
    if (g_log.nCalls == 256) return 0;
    va_list arguments;
    va_start(arguments, szFormat);
    std::vsnprintf(g_log.aszCalls[g_log.nCalls++], sizeof g_log.aszCalls[0], szFormat, arguments);
    va_end(arguments);
    return 1;
}

}  // namespace

extern "C" {

GraphLog* GraphLogOfStandIn() {
    return &g_log;
}
GMT_Graph* GMT_CALL Ordinal1000(HWND__*) {
    Log("create");
    return reinterpret_cast<GMT_Graph*>(&g_log);
}
int32_t GMT_CALL Ordinal1002(GMT_Graph*, GMT_DataSource* pSource) {
    g_log.pSource = pSource;
    return Log("source");
}
int32_t GMT_CALL Ordinal1014(GMT_Graph*, uint32_t uAxis) {
    return Log("scale %u", uAxis);
}
int32_t GMT_CALL Ordinal1018(GMT_Graph*) {
    return Log("destroy");
}
int32_t GMT_CALL Ordinal1036(GMT_Graph*, uint32_t uCurve) {
    return Log("changed %u", uCurve);
}
int32_t GMT_CALL Ordinal1044(GMT_Graph*) {
    return Log("redraw");
}
int32_t GMT_CALL Ordinal1054(GMT_Graph*, uint32_t uFlags, int32_t bSet) {
    return Log("flag %x %d", uFlags, bSet);
}
int32_t GMT_CALL Ordinal1058(GMT_Graph*, uint32_t uWhich, const char* szTitle) {
    return Log("title %x %s", uWhich, szTitle == nullptr ? "(null)" : szTitle);
}
}
