#include "CurveFitFixture.h"

#include <charconv>
#include <fstream>
#include <iterator>
#include <sstream>

namespace curvefit_test {

namespace {

double Number(const std::string& sText) {
    double d = 0.0;
    const auto result = std::from_chars(sText.data(), sText.data() + sText.size(), d);
    EXPECT_EQ(result.ptr, sText.data() + sText.size()) << sText;
    return d;
}

struct FigureFile {
    uint32_t uChecksum = 0;
    std::vector<FigureCase> cases;
};

void ReadCase(std::istringstream& line, const std::string& sName, FigureFile& file) {
    int32_t eFunction = 0;
    int32_t eMethod = 0;
    int32_t eMinim = 0;
    uint32_t uTerms = 0;
    uint32_t uPowerA = 0;
    uint32_t uPowerB = 0;
    std::string sTemperature;
    int32_t nValence = 0;
    line >> eFunction >> eMethod >> eMinim >> uTerms >> uPowerA >> uPowerB >> sTemperature >>
        nValence;
    FigureCase next{OptionsFor(eFunction, uTerms), sName, {}, {}};
    next.options.eSearchMethod = eMethod;
    next.options.eMinimMethod = eMinim;
    next.options.uCurTimePowerA = next.options.uExpPower = uPowerA;
    next.options.uCurTimePowerB = uPowerB;
    const double dTemperature = Number(sTemperature);
    next.options.dZDBoltzmanTemperature = next.options.dNernstTemperature =
        next.options.dGoldmanTemperature = next.options.dExtGoldmanTemperature = dTemperature;
    next.options.uNernstValence = static_cast<uint32_t>(nValence);
    // The figures count x from zero.
    next.options.bAutoZeroShift = 0;
    next.options.bDoZeroShift = 0;
    file.cases.push_back(next);
}

FigurePoint ReadPoint(std::istringstream& line) {
    FigurePoint point;
    std::vector<double> parts[4];
    std::string sWord;
    for (int nPart = 0; line >> sWord;) {
        if (sWord == "|") {
            ++nPart;
        } else {
            parts[nPart].push_back(Number(sWord));
        }
    }
    point.x = parts[0];
    point.dValue = parts[1].at(0);
    point.dSize = parts[2].at(0);
    point.derivatives = parts[3];
    return point;
}

FigureFile ReadFigures() {
    FigureFile file;
    std::istringstream text(ReadFile("tests/curvefit/figures.txt"));
    for (std::string sLine; std::getline(text, sLine);) {
        std::istringstream line(sLine);
        std::string sKind;
        line >> sKind;
        if (sKind == "equations") {
            line >> file.uChecksum;
        } else if (sKind == "case") {
            ReadCase(line, sLine, file);
        } else if (sKind == "params") {
            for (std::string sWord; line >> sWord;)
                file.cases.back().params.push_back(Number(sWord));
        } else if (sKind == "x") {
            file.cases.back().points.push_back(ReadPoint(line));
        }
    }
    return file;
}

const FigureFile& File() {
    static const FigureFile file = ReadFigures();
    return file;
}

}  // namespace

const std::vector<FigureCase>& Figures() {
    return File().cases;
}

uint32_t FiguresChecksum() {
    return File().uChecksum;
}

std::string ReadFile(const std::string& sPath) {
    std::ifstream file(std::string(ZX_SOURCE_DIR) + "/" + sPath, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << sPath;
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace curvefit_test
