#include "Settings.h"

#include <algorithm>

namespace curvefit {

namespace {

constexpr double kGasConstant = 8.31446261815324;         // J/(mol K), exact since 2019
constexpr double kFaradayConstant = 96485.3321233100184;  // C/mol, exact since 2019
constexpr double kZeroCelsius = 273.15;                   // K

struct TemperatureField {
    int32_t eFunction;
    double FitOptions::*pField;
};
constexpr TemperatureField kTemperatureFields[] = {
    {5, &FitOptions::dZDBoltzmanTemperature}, {6, &FitOptions::dZDBoltzmanTemperature},
    {19, &FitOptions::dGoldmanTemperature},   {20, &FitOptions::dExtGoldmanTemperature},
    {30, &FitOptions::dNernstTemperature},
};

constexpr int32_t kPowerExponential = 11;

}  // namespace

double ThermalMillivolts(double dCelsius) {
    return 1000.0 * kGasConstant * (dCelsius + kZeroCelsius) / kFaradayConstant;
}

Settings SettingsOf(const FitOptions& options) {
    Settings settings;
    settings.eSearchMethod = options.eSearchMethod;
    settings.eMinimMethod = options.eMinimMethod;
    settings.uOrder = std::clamp<uint32_t>(options.uFitOrder, 1, kMaxTerms);
    const uint32_t uPowerA =
        options.eFunctionType == kPowerExponential ? options.uExpPower : options.uCurTimePowerA;
    settings.uPowerA = std::max<uint32_t>(uPowerA, 1);
    settings.uPowerB = std::max<uint32_t>(options.uCurTimePowerB, 1);
    for (const TemperatureField& row : kTemperatureFields) {
        if (row.eFunction == options.eFunctionType) settings.dTemperature = options.*row.pField;
    }
    settings.dThermalMv = ThermalMillivolts(settings.dTemperature);
    const auto nValence = static_cast<int32_t>(options.uNernstValence);
    settings.nValence = nValence == 0 ? 1 : nValence;
    settings.bForceProps = options.bForcePropsPositive != 0;
    settings.bForceTaus = options.bForceTausPositive != 0;
    settings.bAutoZeroShift = options.bAutoZeroShift != 0;
    settings.bDoZeroShift = options.bDoZeroShift != 0;
    if (options.dSubstZeroLinearFactor > 0.0)
        settings.dSubstZeroFactor = options.dSubstZeroLinearFactor;
    return settings;
}

}  // namespace curvefit
