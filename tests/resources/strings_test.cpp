// The library's texts, to the letter.

#include <gtest/gtest.h>

#include <string>

#include "platform/platform.h"

namespace {

std::string Load(UINT id) {
    char text[512] = {};
    LoadStringA(GetModuleHandleA(nullptr), id, text, sizeof text);
    return text;
}

TEST(Strings, StandAsTheyAreGiven) {
    const std::pair<UINT, const char*> rows[] = {
        {2153, "Constant"},
        {2155, "0.000001 (for pA and V)"},
        {2156, "0.001 (for pA and mV)"},
        {2157, "1 (for nA and mV)"},
        {2158,
         "1000 (for \xB5"
         "A and mV)"},
        {2159, "1000000 (for mA and mV)"},
        {2163, "Current Clamp"},
        {2174, "Data group"},
        {2175, "Data"},
        {2205, "The first point of the data range must be smaller than the last."},
        {2206, "An error was encountered during dialog initialization."},
        {2219, "Only one independent variable can be assigned."},
        {2227, "No data have been selected. At least one data set must be specified."},
        {2274, "&Fixed value (%0):"},
        {2280, "%0 to sear&ch:"},
        {2304,
         "Some or all groups do not contain enough data sets.\nThe minimum number of data sets in "
         "each data "
         "group is %d."},
        {2305, "Some or all of the available data sets contain no data."},
        {2325, "Options"},
        {2366, "User list"},
        {2367, "Voltage Clamp"},
        {2384, "%s (read only)"},
        {2395, "Close"},
        {2400, "Could not establish data properties. Select a valid data set."},
        {2701, "The data file does not tell its sampling interval."},
        {2702, "The list names a %s that the data do not have. They are numbered from 1 to %s."},
    };
    for (const auto& [id, text] : rows) {
        SCOPED_TRACE(id);
        EXPECT_EQ(Load(id), text);
    }
}

TEST(Strings, NameEveryEpochVariable) {
    for (UINT i = 0; i < 10; ++i) {
        const std::string name = std::string("Epoch ") + static_cast<char>('A' + i);
        EXPECT_EQ(Load(2177 + 2 * i), name + " level");
        EXPECT_EQ(Load(2176 + 2 * i), name + " duration");
    }
}

}  // namespace
