// One computation of seeds: the data, the function, and what the methods share.
#pragma once

#include "FunctionRow.h"
#include "seeds/LeastSquares.h"
#include "seeds/Reduction.h"

namespace curvefit {

constexpr char kTooFewPoints[] = "There are fewer data points than parameters.";
constexpr char kNotNumbers[] = "The data contain values that are not numbers.";
constexpr char kAllXEqual[] = "All x values are equal.";
constexpr char kNoVariation[] = "The data do not vary.";
constexpr char kIncomplete[] = "The data are incomplete.";
constexpr char kOutsideUnitRange[] = "The x values must lie between 0 and 1.";
constexpr char kNoConcentrations[] = "The x values must be positive concentrations.";
constexpr char kZeroConcentration[] = "All concentrations must be greater than zero.";
constexpr char kNoCounts[] = "The data must be counts or probabilities.";
constexpr char kThroughOrigin[] = "The line goes through the origin; Vmax cannot be found.";
constexpr char kBelowAbsoluteZero[] = "The temperature is below absolute zero.";
constexpr char kNoSeeds[] = "No seeds could be found; zero-shift may help.";

class SeedTask {
  public:
    SeedTask(const FunctionRow& row, const Settings& settings, const double* const* arrays,
             std::size_t nPoints);

    // Checks the data, finds the seeds and orders them. Writes nothing when it gives false.
    bool Run(double* seeds);
    const char* ErrorText() const { return m_szError; }
    bool Fail(const char* szText) {
        m_szError = szText;
        return false;
    }

    const FunctionRow& Row() const { return m_Row; }
    const Settings& Options() const { return m_Settings; }
    const ReducedData& Data() const { return m_Data; }
    uint32_t Terms() const { return m_uTerms; }
    bool HasOffset() const { return m_bOffset; }
    bool HasSlope() const { return m_bSlope; }
    uint32_t GridParams() const { return m_Row.uParams * m_uTerms; }
    // Amplitudes, and all other parameters, that must come out positive.
    bool ForcesProportions() const;
    bool ForcesShapes() const;
    // x of the first point where the seeds are found from it although x is not shifted.
    double LateOrigin() const { return m_dLateOrigin; }
    // The data as they were given: variables, then y.
    const double* Array(std::size_t k) const { return m_pArrays[k]; }
    std::size_t Points() const { return m_nPoints; }

  private:
    bool CheckData();
    bool CheckVariation() const;
    void ReduceData();
    void WeighCounts();
    void OrderTerms(double* seeds) const;
    void MoveOffZero(double* seeds) const;

    const FunctionRow& m_Row;
    const Settings& m_Settings;
    const double* const* m_pArrays;
    std::size_t m_nPoints;
    uint32_t m_uTerms;
    bool m_bOffset, m_bSlope;
    double m_dLateOrigin = 0.0;
    ReducedData m_Data;
    const char* m_szError = "";
};

}  // namespace curvefit
