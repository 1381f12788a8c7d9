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
        {2136, "T{ALL}"},
        {2137, "/ (divide)"},
        {2138, "= (equals)"},
        {2139, "+ (add)"},
        {2140, "T{ACTIVE}"},
        {2141, "* (multiply)"},
        {2142, "^ (power)"},
        {2143, "- (subtract)"},
        {2144, "T{VISIBLE}"},
        {2153, "Constant"},
        {2155, "0.000001 (for pA and V)"},
        {2156, "0.001 (for pA and mV)"},
        {2157, "1 (for nA and mV)"},
        {2158,
         "1000 (for \xB5"
         "A and mV)"},
        {2159, "1000000 (for mA and mV)"},
        {2160, "The sampling frequency is fixed."},
        {2161, "The sampling frequency must be specified."},
        {2163, "Current Clamp"},
        {2174, "Data group"},
        {2175, "Data"},
        {2203, "You must provide the sampling frequency."},
        {2205, "The first point of the data range must be smaller than the last."},
        {2206, "An error was encountered during dialog initialization."},
        {2208,
         "The maximum length of the expression is %d characters.\nThe current expression contains "
         "%d characters."},
        {2210, "The minimum value of the data range\nmust be smaller then the maximum."},
        {2211, "The number of bins per decade must be greater than zero."},
        {2212, "The lower bin value must be greater than zero if log binning."},
        {2216, "The expression cannot contain an \"=\" sign."},
        {2219, "Only one independent variable can be assigned."},
        {2227, "No data have been selected. At least one data set must be specified."},
        {2231,
         "The data region is shorter than one period of the interference.\nSelect more data or "
         "another filter."},
        {2232, "The lowpass cutoff frequency must be greater than the highpass cutoff frequency."},
        {2233, "The notch center frequency is outside the available range."},
        {2234, "The highpass cutoff frequency is outside the available range."},
        {2235, "The number of smoothing points must be at least %d."},
        {2236, "The number of cycles to average must be greater than zero."},
        {2237, "The number of harmonics must be greater than zero."},
        {2238,
         "The notch filter settles over more points than the data contain.\nIncrease the notch "
         "width or select more data."},
        {2239, "The lowpass cutoff is outside the available range."},
        {2240, "The filter needs at least %d data points.\nThe data region contains %d points."},
        {2241, "The notch width is too small for the sampling interval."},
        {2242, "The filter frequency is too small for the sampling interval."},
        {2243,
         "The power spectrum needs at least %d data points.\nThe data region contains %d points."},
        {2244,
         "The maximum number of spectral segments that can be displayedis %d.\nThe current "
         "settings give %d segments.\nDo you want to change the settings?"},
        {2248, "The sampling interval must be greater than zero."},
        {2253, "Bessel (8-pole)"},
        {2254, "Boxcar"},
        {2255, "Butterworth (8-pole)"},
        {2256, "Chebyshev (8-pole)"},
        {2257, "Cutoff range"},
        {2258, "Gaussian"},
        {2259, "Hz"},
        {2260, "(odd values only)"},
        {2261, "RC (single pole)"},
        {2262, "RC (8-coincident-pole)"},
        {2263, "Points range"},
        {2274, "&Fixed value (%0):"},
        {2280, "%0 to sear&ch:"},
        {2287, "The start or end data index exceeds the number of available data."},
        {2298, "Measurements"},
        {2299, "Output"},
        {2304,
         "Some or all groups do not contain enough data sets.\nThe minimum number of data sets in "
         "each data "
         "group is %d."},
        {2305, "Some or all of the available data sets contain no data."},
        {2325, "Options"},
        {2330,
         "The lag time exceeds the data length. Adjust the\nnumber of lags automatically and "
         "proceed?\n"},
        {2331,
         "The data region is too short for the number of cycles to average.\nReduce the number of "
         "cycles to %d?"},
        {2332,
         "The window length of %d points exceeds the sweep length of %d points.\nReduce the window "
         "length to %d points and proceed?"},
        {2333,
         "The window length of %d points exceeds the data length of %d points.\nReduce the window "
         "length to %d points and proceed?"},
        {2343, "Antipeak amplitude (%s)"},
        {2344, "Area (%s \xB7 ms)"},
        {2345, "Baseline (%s)"},
        {2346, "Decay slope (%s/ms)"},
        {2347, "Maximum decay slope (%s/ms)"},
        {2348, "Maximum rise slope (%s/ms)"},
        {2349, "Mean (%s)"},
        {2350, "Pea&k amplitude (%s)"},
        {2351, "Slope (%s/ms)"},
        {2352, "Rise slope (%s/ms)"},
        {2353, "Standard deviation (%s)"},
        {2366, "User list"},
        {2367, "Voltage Clamp"},
        {2370, "Bartlett (Triangular)"},
        {2371, "Blackman"},
        {2372, "Blackman-Harris 3"},
        {2373, "Blackman-Harris 4"},
        {2374, "Cosine"},
        {2375, "Hamming"},
        {2376, "Kaiser"},
        {2377, "Poisson"},
        {2378, "None (Rectangular)"},
        {2379, "Von Hann"},
        {2384, "%s (read only)"},
        {2385, "NEWCOL"},
        {2386, "An arithmetic expression has not been specified."},
        {2387, "Enter a column title for the output data."},
        {2388, "Data Range = Not available (text column or empty sheet)"},
        {2389, "Data Range = %0 to %1"},
        {2394,
         "One or more measurement regions have different x axis variable assignments.\nThe graph x "
         "axis label will show only the first region selection."},
        {2395, "Close"},
        {2399, "The search and baseline regions must be different."},
        {2400, "Could not establish data properties. Select a valid data set."},
        {2403, "No valid data have been selected. Columns are empty or contain only strings."},
        {2410, "No data are available for processing."},
        {2411, "The bin width must be greater than zero."},
        {2701, "The data file does not tell its sampling interval."},
        {2702, "The list names a %s that the data do not have. They are numbered from 1 to %s."},
        {2703, "Not available"},
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
