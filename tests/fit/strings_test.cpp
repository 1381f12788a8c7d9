// The texts that curve fitting shows, each literally. The captions of the functions are asserted
// with the catalogue, and those that other dialogs show as well with theirs.

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/platform.h"

namespace {

struct Expected {
    UINT nId;
    const char* szText;
};

const Expected kExpected[] = {
    {2134,
     "All parameters are fixed, so nothing is left to fit.\nPress OK to continue or Cancel to "
     "change the fixed parameters."},
    {2145, " (auto-free fixed)"},
    {2148, " "},
    {2149,
     "Chebyshev fitting of a standard exponential needs no seed values. Enter fixed parameters "
     "only."},
    {2150,
     "Chebyshev fitting of a sloping baseline needs no seed values. Enter fixed parameters only."},
    {2151, " (compare models)"},
    {2152, "(Comparing models)"},
    {2167,
     "\n The independent variable must be expressed as x1.\n The parameters must be expressed as "
     "p1...p24.\n You can use either upper case or lower case."},
    {2168, "P%d"},
    {2169, "Enter a seed value for each parameter of the custom function."},
    {2170, "P1 - P%d"},
    {2171, "P7 - P%d"},
    {2172, "P13 - P%d"},
    {2173, "P19 - P%d"},
    {2196,
     "Models cannot be compared when all parameters are fixed.\nAt least one parameter must be "
     "free."},
    {2197, "All x axis values are zero. Select a valid data set."},
    {2198, "The seed values could not be estimated from the data.\nEnter the seed values."},
    {2199,
     "The Chebyshev method requires evenly spaced x axis values.\nSelect another search method."},
    {2200,
     "Maximum likelihood requires evenly spaced x axis values.\nSelect another minimization "
     "method."},
    {2201,
     "One independent variable must be assigned to a data column and all others must be "
     "constants."},
    {2202, "The ending term must be greater than the starting term."},
    {2207, "The dialog could not be initialized."},
    {2214,
     "The text of the custom function could not be interpreted.\n\nPossible problems might be:\n1) "
     "Invalid or no variable name(s).\n2) Invalid or no parameters name(s).\n3) Too many equal "
     "signs.\n4) Too many parameters.\n5) Mismatched parentheses.\n\nFor help, refer to the "
     "example in the fitting dialog."},
    {2218,
     "Maximum likelihood requires positive parameters.\nThe negative seed values were made "
     "positive."},
    {2220, "Models cannot be compared on normalized data."},
    {2221,
     "A seed value must be entered for each parameter of the custom function. Zero is not "
     "allowed."},
    {2222, "The selected function cannot be fitted to negative data values."},
    {2223, "The selected function cannot be fitted to negative data values."},
    {2224,
     "The negative proportions were made positive.\nProportions are no longer forced positive."},
    {2225,
     "The negative time constants were made positive.\nTime constants are no longer forced "
     "positive."},
    {2226,
     "The custom function definition contains no parameters.\nYou must include at least one "
     "parameter (e.g. p1)."},
    {2229,
     "No custom function has been defined.\n\nDefine the independent variables and "
     "the\nparameters. You can have up to 6 independent\nvariables and up to 24 parameters. "
     "The\nindependent variables must be named x1 to x6\nand the parameters must be named p1 to "
     "p24\n(lower or upper case x or p)."},
    {2230,
     "All parameters of the selected function must be positive.\nThe negative seed values were "
     "made positive."},
    {2245,
     "The number of data points (%0) must not be smaller than the number of parameters (%1)."},
    {2246,
     "The seed values cannot be estimated. The number of data points (%0) must not be smaller than "
     "the number of parameters (%1)."},
    {2247, "The constants of the independent variables must be greater than zero."},
    {2265, "All parameters are forced positive."},
    {2266, " (force +ve)"},
    {2267, "All parameters except the offset are forced positive."},
    {2268, "Only the proportions can be forced positive."},
    {2269, "Parameters cannot be forced positive in a regression."},
    {2270, "Parameters cannot be forced positive under maximum likelihood."},
    {2271, "Proportions are forced positive."},
    {2272, "Proportions and time constants are forced positive."},
    {2273, "Time constants are forced positive."},
    {2275, "Function"},
    {2276, "The curve fit library could not be loaded or does not support the selected function."},
    {2279, "Graphical seeding uses absolute proportions."},
    {2281,
     "The seed values are not valid.\nPress OK to see the seed values or Cancel to close the "
     "dialog."},
    {2283, "The limits of the fitted curve must be greater than zero for the selected function."},
    {2284,
     "The seed values are not valid for the selected function.\nEstimate the seed values "
     "automatically?"},
    {2285, " (integral x)"},
    {2296, "Zero-shift is always used by the Chebyshev method."},
    {2297, "Zero-shift is always used by this function."},
    {2302, " (normalized x)"},
    {2303, " (normalized y)"},
    {2306, "The number of terms is found by comparing models.\nPress OK to stop comparing models."},
    {2307, "The parameters of this function cannot be forced positive."},
    {2308, "The Chebyshev method does not force parameters positive."},
    {2309, "Graphical seeding is not required for Chebyshev fitting of a shifted Boltzmann."},
    {2310,
     "Graphical seeding of a standard exponential under Chebyshev requires a fixed parameter."},
    {2311, "Graphical seeding of a sloping baseline under Chebyshev requires a fixed parameter."},
    {2312, "Graphical seeding is not required for Chebyshev fitting of a power exponential."},
    {2313, "Graphical seeding is not required for straight line fitting."},
    {2314, "Graphical seeding is not required for polynomial fitting."},
    {2315, "The custom function must be defined before graphical seeding."},
    {2316, "All seed values must be entered before graphical seeding. Zero is not allowed."},
    {2317, "Seed entry is not required for Chebyshev fitting of a shifted Boltzmann."},
    {2318, "Seed entry is not required for Chebyshev fitting of a power exponential."},
    {2319, "Seed entry is not required for straight line fitting."},
    {2320, "Seed entry is not required for polynomial fitting."},
    {2321, "Zero-shift is not available for this function."},
    {2322, "Number of te&rms (n):"},
    {2337, "Models are compared. Seed values are estimated for each model."},
    {2338, "Seed Values"},
    {2342, "Enter seed values or press Auto-Estimate."},
    {2357, "Term 1"},
    {2358, "Term 2"},
    {2359, "Term 3"},
    {2360, "Term 4"},
    {2361, "Term 5"},
    {2362, "Term 6"},
    {2381, " (zero-shift)"},
    {2392, "Advanced"},
    {2396, "All selected y columns must contain the same number of rows."},
    {2398, "Fitted Curve Range"},
    {2401, "No x axis data have been selected. Select a valid data set."},
    {2402, "No y axis data have been selected. Select a valid data set."},
    {2405,
     "The Chebyshev method requires evenly spaced x axis values.\nPress OK to use "
     "Levenberg-Marquardt."},
    {2406, "The x and y columns must be different."},
};

std::string TextOf(UINT nId) {
    char szText[512] = "";
    LoadStringA(GetModuleHandleA(nullptr), nId, szText, sizeof szText);
    return szText;
}

TEST(FitStrings, EachIsTold) {
    std::set<UINT> ids;
    for (const Expected& row : kExpected) {
        EXPECT_EQ(TextOf(row.nId), row.szText) << row.nId;
        EXPECT_TRUE(ids.insert(row.nId).second) << row.nId;
    }
    EXPECT_EQ(ids.size(), 90u);
}

}  // namespace
