// The guide of the functions is made from their rows: this writes it anew and compares. With
// ZX_WRITE_GUIDE set to a file it is written there.

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>
#include <sstream>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;
using namespace curvefit;

constexpr char kHead[] =
    "# The fit functions\n"
    "\n"
    "The predefined functions of curve fitting, by their numbers, as the open curve-fit library "
    "has them. Made "
    "from the library's own rows.\n"
    "\n"
    "- A function with terms is the sum of 1 to 6 of them, plus the offset and the slope where it "
    "has one.\n"
    "- Units are those of the data: x and y stand for the units of the axes. Millivolts are fixed "
    "only where a "
    "physical constant is in the formula.\n"
    "- *Zero-shift* means that x is counted from the first x of the fitted region (of a descending "
    "record: from "
    "its last). Responses with an onset are at rest before it.\n"
    "- A concentration of zero is replaced by the smallest positive one divided by the factor of "
    "the options.\n"
    "- Parameters cross the boundary flat, the first parameter of every term, then the second of "
    "every term, "
    "and so on, then offset and slope.\n"
    "- How often the seeds lead a solver to the best fit stands in `seeds.md`.\n";

std::map<int32_t, std::vector<std::string>> Pictures() {
    std::map<int32_t, std::vector<std::string>> pictures;
    std::istringstream text(ReadFile("resources/pictures/equations.txt"));
    for (std::string sLine; std::getline(text, sLine);) {
        std::istringstream words(sLine);
        std::string sName;
        int32_t eFunction = -1;
        if (words >> sName >> eFunction && sName.rfind("EQ_", 0) == 0) {
            for (char& ch : sName)
                ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
            pictures[eFunction].push_back(sName);
        }
    }
    return pictures;
}

const char* ShiftText(ZeroShift shift) {
    switch (shift) {
        case ZeroShift::kNone:
            return "not available";
        case ZeroShift::kAllowedOff:
            return "available, off by default";
        case ZeroShift::kAllowedOn:
            return "available, on by default";
        case ZeroShift::kMandatory:
            return "always";
    }
    return "";
}

std::string Joined(const char* const* texts, uint32_t uCount) {
    std::string sAll;
    for (uint32_t i = 0; i < uCount; ++i) sAll += (i > 0 ? ", " : "") + std::string(texts[i]);
    return sAll;
}

std::string Guide() {
    const auto pictures = Pictures();
    std::string s = kHead;
    for (int32_t eFunction = 0; eFunction < kCustomFunction; ++eFunction) {
        const FunctionRow& row = *FindFunction(eFunction);
        s += "\n## " + std::to_string(eFunction) + " " + row.szCaption + "\n\n";
        for (const std::string& sName : pictures.at(eFunction))
            s += "![" + sName + "](pictures/equations/" + sName + ".svg)\n\n";
        s += "| | |\n|---|---|\n";
        const auto line = [&](const char* szWhat, const std::string& sText) {
            s += "| " + std::string(szWhat) + " | " + sText + " |\n";
        };
        line("Parameters", Joined(row.aszParams, row.uParams));
        const bool bOffset = row.traits.bHasOffset != kNo;
        const bool bSlope = row.traits.bHasSlope != kNo;
        if (bOffset) {
            line("Offset", std::string(row.szOffset) + (row.traits.bHasOffset == kNotLikelihood
                                                            ? " (none under maximum likelihood)"
                                                            : ""));
        }
        if (bSlope) line("Slope", row.szSlope);
        line("Units", row.szUnits);
        line("x", Joined(row.aszVariables, row.uVariables));
        line("y", row.szDependent);
        line("Terms", row.traits.bMultiTerm == kNo             ? "1"
                      : row.traits.bMultiTerm == kNotChebyshev ? "1 to 6 (1 under Chebyshev)"
                      : row.traits.bPolynomial == kYes         ? "1 to 6, the degree"
                                                               : "1 to 6");
        line("Zero-shift", ShiftText(row.traits.zeroShift));
        line("Source", row.szSource);
    }
    return s;
}

TEST(Guide, IsMadeFromTheRows) {
    const std::string sGuide = Guide();
    if (const char* szPath = std::getenv("ZX_WRITE_GUIDE")) {
        std::ofstream(szPath, std::ios::binary) << sGuide;
    }
    EXPECT_EQ(ReadFile("docs/fit-functions.md"), sGuide)
        << "write it anew: ZX_WRITE_GUIDE=docs/fit-functions.md";
}

}  // namespace
