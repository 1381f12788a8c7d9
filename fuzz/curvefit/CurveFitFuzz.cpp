#include "CurveFitFuzz.h"

#include <cmath>
#include <vector>

#include "../bytes/FuzzBytes.h"
#include "CreateCurveFit.h"

namespace {

class Bytes : public FuzzBytes {
  public:
    using FuzzBytes::FuzzBytes;
    double Value() { return FuzzBytes::Value(16); }
};

}  // namespace

void FuzzCurveFit(const std::uint8_t* pData, std::size_t nSize) {
    Bytes bytes(pData, nSize);
    FitOptions options = {};
    options.eFunctionType = static_cast<int32_t>(bytes.Byte() % 42) - 1;
    options.uFitOrder = bytes.Byte() % 9;
    const std::uint8_t uFlags = bytes.Byte();
    options.bForcePropsPositive = uFlags & 1;
    options.bForceTausPositive = (uFlags >> 1) & 1;
    options.bAutoZeroShift = (uFlags >> 2) & 1;
    options.bDoZeroShift = (uFlags >> 3) & 1;
    options.eMinimMethod = (uFlags >> 4) & 3;
    options.eSearchMethod = (uFlags >> 6) & 3;
    options.uCurTimePowerA = options.uExpPower = bytes.Byte() % 8;
    options.uCurTimePowerB = bytes.Byte() % 8;
    options.uNernstValence = static_cast<uint32_t>(bytes.Byte() % 10) - 5u;
    options.dSubstZeroLinearFactor = bytes.Value();
    options.dZDBoltzmanTemperature = options.dNernstTemperature = options.dGoldmanTemperature =
        options.dExtGoldmanTemperature = bytes.Value();
    options.nNumCustomParams = bytes.Byte();
    ZXADLG_CCurveFit* pFit = curvefit::CreateCurveFit(&options);
    const bool bKnown = options.eFunctionType >= 0 && options.eFunctionType <= 38;
    Require((pFit != nullptr) == bKnown, "an object for each function and no other");
    if (pFit == nullptr) return;
    FitFunctionProps props;
    pFit->GetProperties(&props);
    Require(props.uParamsPerTerm <= 24 && props.uNumDataArrays <= 7, "counts within the record");

    // Arrays of just their size, so that a reader or writer beyond them is caught.
    const std::uint32_t nPoints = bytes.Byte();
    const std::uint32_t nTerms = props.bMultiTerm ? (options.uFitOrder > 6    ? 6
                                                     : options.uFitOrder == 0 ? 1
                                                                              : options.uFitOrder)
                                                  : 1;
    const std::size_t nSeeds = nTerms * props.uParamsPerTerm +
                               static_cast<std::size_t>(props.bHasOffset + props.bHasSlope);
    std::vector<double> flat(nSeeds);
    for (double& d : flat) d = bytes.Value();
    const double dFirstX = bytes.Value();
    std::vector<std::vector<double>> columns(props.uNumDataArrays, std::vector<double>(nPoints));
    std::vector<const double*> arrays;
    const std::uint8_t uRepeat = bytes.Byte();
    for (std::vector<double>& column : columns) {
        for (std::size_t i = 0; i < column.size(); ++i) {
            column[i] =
                bytes.Left() > 0 || i == 0 ? bytes.Value() : column[i - 1] + 0.125 * (uRepeat % 16);
        }
        arrays.push_back(column.data());
    }
    std::vector<double> seeds(nSeeds, 77.0);
    const bool bFound =
        pFit->ComputeSeeds(arrays.data(), seeds.data(), props.uNumDataArrays, nPoints) != 0;
    char szText[256] = "";
    pFit->GetErrorText(szText, sizeof szText);
    Require(bFound == (szText[0] == '\0'), "a refusal has a text, a success none");
    for (const double d : seeds)
        Require(bFound ? std::isfinite(d) : d == 77.0, "seeds are finite or untouched");

    FitDataStats stats = {};
    stats.uNumPoints = nPoints;
    stats.uOrder = options.uFitOrder < nTerms ? options.uFitOrder : nTerms;
    stats.dFirstX = dFirstX;
    stats.dOffsetSeed = flat.empty() ? 0.0 : flat.back();
    stats.dSlopeSeed = bytes.Value();
    if (flat.empty()) flat.push_back(0.0);
    std::vector<double> y(nPoints);
    if (pFit->SetUpCurve(&stats, flat.data()) != 0)
        pFit->Evaluate(arrays.data(), y.data(), nPoints);
    if (bFound) {
        stats.uOrder = nTerms;
        if (pFit->SetUpCurve(&stats, seeds.data()) != 0)
            pFit->Evaluate(arrays.data(), y.data(), nPoints);
    }
    pFit->DeleteSelf(1);
}
