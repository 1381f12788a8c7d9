#include "fit/FitCatalogue.h"

#include "fit_ids.h"

namespace {

// In stored order, which follows neither numbers nor captions.
constexpr FitFunctionEntry kFunctions[] = {
    {0, IDS_FIT_BETA_FUNCTION, kElectrophysiology, "EQ_BETA"},
    {1, IDS_FIT_BINOMIAL, kDistributions, "EQ_BINOM"},
    {2, IDS_FIT_BOLTZMANN_CHARGE_VOLTAGE, kElectrophysiology, "EQ_QVBOLT"},
    {3, IDS_FIT_BOLTZMANN_SHIFTED, kElectrophysiology, "EQ_FBOLTM"},
    {4, IDS_FIT_BOLTZMANN_STANDARD, kDistributions, "EQ_SBOLT"},
    {5, IDS_FIT_BOLTZMANN_Z_DELTA_INACTIVATION, kElectrophysiology, "EQ_ZDBOLT1"},
    {6, IDS_FIT_BOLTZMANN_Z_DELTA_ACTIVATION, kElectrophysiology, "EQ_ZDBOLT2"},
    {7, IDS_FIT_CURRENT_TIME_COURSE_HODGKIN_HUXLEY, kElectrophysiology, "EQ_CURTIM"},
    {8, IDS_FIT_EXPONENTIAL_ALPHA, kElectrophysiology, "EQ_ALPHA"},
    {9, IDS_FIT_EXPONENTIAL_CUMULATIVE_PROBABILITY, kElectrophysiology, "EQ_CUMUL"},
    {10, IDS_FIT_EXPONENTIAL_LOG_PROBABILITY, kElectrophysiology, "EQ_LOGEXP"},
    {11, IDS_FIT_EXPONENTIAL_POWER, kExponentialGrowth, "EQ_MPOWEXP"},
    {12, IDS_FIT_EXPONENTIAL_PROBABILITY, kElectrophysiology, "EQ_PDCEXPNOC"},
    {13, IDS_FIT_EXPONENTIAL_PRODUCT, kExponentialGrowth, "EQ_EXPPROD"},
    {14, IDS_FIT_EXPONENTIAL_SLOPING_BASELINE, kExponentialGrowth, "EQ_SLPEXP"},
    {15, IDS_FIT_EXPONENTIAL_STANDARD, kExponentialGrowth, "EQ_STDEXP"},
    {16, IDS_FIT_EXPONENTIAL_WEIGHTED, kExponentialGrowth, "EQ_FTEXPN"},
    {17, IDS_FIT_EXPONENTIAL_WEIGHTED_CONSTRAINED, kExponentialGrowth, "EQ_FTEXPC"},
    {18, IDS_FIT_GAUSSIAN, kDistributions, "EQ_GAUSS"},
    {19, IDS_FIT_GOLDMAN_HODGKIN_KATZ, kElectrophysiology, "EQ_GHK"},
    {20, IDS_FIT_GOLDMAN_HODGKIN_KATZ_EXTENDED, kElectrophysiology, "EQ_EXTGHK"},
    {22, IDS_FIT_HILL_4_PARAMETER_LOGISTIC, kDoseResponse, "EQ_HILL"},
    {23, IDS_FIT_HILL_LANGMUIR, kDoseResponse, "EQ_LANGHILL"},
    {21, IDS_FIT_HILL_STEADY_STATE, kDoseResponse, "EQ_HILLENZ"},
    {25, IDS_FIT_LOGISTIC_GROWTH, kExponentialGrowth, "EQ_LOGISTIC"},
    {24, IDS_FIT_LINEWEAVER_BURK, kDoseResponse, "EQ_LINBUR"},
    {26, IDS_FIT_LORENTZIAN_DISTRIBUTION, kDistributions, "EQ_LOREND"},
    {27, IDS_FIT_LORENTZIAN_POWER_1, kDistributions, "EQ_LORENF"},
    {28, IDS_FIT_LORENTZIAN_POWER_2, kDistributions, "EQ_LORENT"},
    {29, IDS_FIT_MICHAELIS_MENTEN, kDoseResponse, "EQ_MICMEN"},
    {30, IDS_FIT_NERNST, kDoseResponse, "EQ_NERNST"},
    {31, IDS_FIT_PARABOLA_VARIANCE_MEAN, kParabolic, "EQ_PARABN"},
    {32, IDS_FIT_PARABOLA_STANDARD, kParabolic, "EQ_PARABC"},
    {33, IDS_FIT_POISSON, kDistributions, "EQ_POISS"},
    {34, IDS_FIT_POLYNOMIAL, kLinearPolynomial, "EQ_POLYA"},
    {35, IDS_FIT_STRAIGHT_LINE_STANDARD, kLinearPolynomial, "EQ_LIN"},
    {36, IDS_FIT_STRAIGHT_LINE_ORIGIN_AT_ZERO, kLinearPolynomial, "EQ_LINZI"},
    {37, IDS_FIT_VOLTAGE_DEPENDENT_RELAXATION, kElectrophysiology, "EQ_TAUFUN"},
};

constexpr FitGroupEntry kGroups[] = {
    {kAllFunctions, "All"},
    {kDistributions, "Distributions"},
    {kElectrophysiology, "Electrophysiology"},
    {kExponentialGrowth, "Exponential, Growth"},
    {kDoseResponse, "Dose Response"},
    {kLinearPolynomial, "Linear, Polynomial"},
    {kParabolic, "Parabolic"},
};

// Where a function keeps its own numbers.
struct OwnFields {
    std::int32_t eFunction;
    double FitOptions::*pTemperature;
    std::uint32_t FitOptions::*pPowerA;
    std::uint32_t FitOptions::*pPowerB;
    std::uint32_t FitOptions::*pValence;
};
constexpr OwnFields kOwnFields[] = {
    {7, nullptr, &FitOptions::uCurTimePowerA, &FitOptions::uCurTimePowerB, nullptr},
    {11, nullptr, &FitOptions::uExpPower, nullptr, nullptr},
    {5, &FitOptions::dZDBoltzmanTemperature, nullptr, nullptr, nullptr},
    {6, &FitOptions::dZDBoltzmanTemperature, nullptr, nullptr, nullptr},
    {19, &FitOptions::dGoldmanTemperature, nullptr, nullptr, nullptr},
    {20, &FitOptions::dExtGoldmanTemperature, nullptr, nullptr, nullptr},
    {30, &FitOptions::dNernstTemperature, nullptr, nullptr, &FitOptions::uNernstValence},
};

template <class Field>
Field FieldOf(std::int32_t eFunction, Field OwnFields::*pField) {
    for (const OwnFields& row : kOwnFields) {
        if (row.eFunction == eFunction) return row.*pField;
    }
    return nullptr;
}

constexpr std::int32_t kKeep = -1;

struct MethodRow {
    std::int32_t eFunction;
    std::int32_t eSearch;
    std::int32_t eWeighting;
    std::int32_t eMinim;
};

// What automatic fitting methods choose; any other function: the last row.
constexpr MethodRow kMethods[] = {
    {10, kSearchVM, kKeep, kMinimML},
    {17, kSearchVM, kKeep, kKeep},
    {21, kSearchSimplex, kWeightNone, kMinimSS},
    {22, kSearchSimplex, kWeightNone, kMinimSS},
    {23, kSearchSimplex, kWeightNone, kMinimSS},
    {25, kSearchSimplex, kWeightNone, kMinimSS},
    {29, kSearchSimplex, kWeightNone, kMinimSS},
    {26, kSearchLM, kWeightNone, kKeep},
    {30, kSearchSimplex, kKeep, kMinimSS},
    {34, kKeep, kKeep, kKeep},
    {35, kKeep, kKeep, kKeep},
    {36, kSearchLM, kKeep, kMinimSS},
    {kCustomFitFunction, kSearchSimplex, kWeightNone, kMinimSS},
    {kNoFitFunction, kSearchLM, kWeightNone, kMinimSS},
};
constexpr MethodRow kByChebyshev = {0, kSearchChebyshev, kKeep, kKeep};

const MethodRow& MethodsFor(const FitOptions& options, const AutomaticMethodInput& input) {
    const bool bForced = options.bForcePropsPositive != 0 || options.bForceTausPositive != 0;
    const bool bFromZero =
        options.bAutoZeroShift != 0 || options.bDoZeroShift != 0 || input.bFirstXIsZero;
    switch (options.eFunctionType) {
        case 11:
            // Under Chebyshev the function has one term, and no models to compare.
            if (input.uTerms == 1 && !input.bComparing) return kByChebyshev;
            break;
        case 14:
        case 15:
            if (!bForced && bFromZero) return kByChebyshev;
            break;
        default:
            break;
    }
    for (const MethodRow& row : kMethods) {
        if (row.eFunction == options.eFunctionType) return row;
    }
    return kMethods[std::size(kMethods) - 1];
}

void Choose(std::int32_t& eField, std::int32_t eChoice) {
    if (eChoice != kKeep) eField = eChoice;
}

}  // namespace

std::span<const FitFunctionEntry> FitFunctions() {
    return kFunctions;
}

std::span<const FitGroupEntry> FitGroups() {
    return kGroups;
}

const FitFunctionEntry* FindFitFunction(std::int32_t eFunction) {
    for (const FitFunctionEntry& entry : kFunctions) {
        if (entry.eFunction == eFunction) return &entry;
    }
    return nullptr;
}

int FitCaptionString(std::int32_t eFunction) {
    const FitFunctionEntry* pEntry = FindFitFunction(eFunction);
    return pEntry == nullptr ? IDS_FIT_CUSTOM_FUNCTION : pEntry->nCaptionString;
}

const char* FitFunctionPictureName(std::int32_t eFunction, std::int32_t eSearch, bool bHasOffset) {
    const FitFunctionEntry* pEntry = FindFitFunction(eFunction);
    if (pEntry == nullptr) return "EQ_NOFUN";
    if (eFunction == 3 && eSearch == kSearchChebyshev) return "EQ_FBOLTS";
    if (eFunction == 11 && eSearch == kSearchChebyshev) return "EQ_POWEXP";
    if (eFunction == 12 && bHasOffset) return "EQ_PDCEXP";
    return pEntry->szPicture;
}

bool IsFittedByChebyshev(std::int32_t eFunction) {
    return eFunction == 3 || eFunction == 11 || eFunction == 14 || eFunction == 15;
}

bool NeedsColumns(std::int32_t eFunction) {
    return eFunction == 19 || eFunction == 20;
}

double FitOptions::*FitTemperatureField(std::int32_t eFunction) {
    return FieldOf(eFunction, &OwnFields::pTemperature);
}

std::uint32_t FitOptions::*FitPowerAField(std::int32_t eFunction) {
    return FieldOf(eFunction, &OwnFields::pPowerA);
}

std::uint32_t FitOptions::*FitPowerBField(std::int32_t eFunction) {
    return FieldOf(eFunction, &OwnFields::pPowerB);
}

std::uint32_t FitOptions::*FitValenceField(std::int32_t eFunction) {
    return FieldOf(eFunction, &OwnFields::pValence);
}

void ApplyAutomaticMethods(FitOptions& options, const AutomaticMethodInput& input) {
    const MethodRow& row = MethodsFor(options, input);
    Choose(options.eSearchMethod, row.eSearch);
    Choose(options.eWeightingType, row.eWeighting);
    Choose(options.eMinimMethod, row.eMinim);
    // A kept maximum likelihood that is not open would only lie greyed.
    const bool bSearches =
        options.eSearchMethod == kSearchVM || options.eSearchMethod == kSearchSimplex;
    const bool bDwellTimes = options.eFunctionType == 10 || options.eFunctionType == 12;
    if (options.eMinimMethod == kMinimML && !(bSearches && bDwellTimes))
        options.eMinimMethod = kMinimSS;
}
