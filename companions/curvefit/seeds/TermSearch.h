// The search for terms of the form amplitude * shape(x; one to three shape parameters), with offset
// and slope beside them. Amplitudes, offset and slope are linear and are always solved for, so that
// only the shapes are searched: term by term from a dictionary, each choice refined, each term
// exchanged once more when all are there.
#pragma once

#include <array>
#include <vector>

#include "seeds/SeedTask.h"

namespace curvefit {

constexpr std::size_t kMaxShapes = 3;
using Shape = std::array<double, kMaxShapes>;

// Writes the shape and its derivatives by the shape parameters at n points, a column each, of a
// term with the parameters given (the amplitude first).
using ShapeFunction = void(const Settings& settings, const double* params, const double* x,
                           std::size_t n, double* columns);

template <class Term>
void ShapeColumns(const Settings& settings, const double* params, const double* x, std::size_t n,
                  double* columns) {
    const Term term(settings, params);
    for (std::size_t i = 0; i < n; ++i) {
        double g[Term::kParams];
        term.Gradient(x[i], g);
        for (std::size_t c = 0; c < Term::kParams; ++c) columns[c * n + i] = g[c];
    }
}

struct FoundTerm {
    double dAmplitude = 0.0;
    Shape shape{};
};

struct FoundTerms {
    std::vector<FoundTerm> terms;
    double dOffset = 0.0;
    double dSlope = 0.0;
    double dSquares = 0.0;  // weighted sum of squares left over
    bool bFound = false;
};

struct SearchRules {
    ShapeFunction* pShape = nullptr;
    std::size_t nShapes = 1;
    bool bOffset = true;
    bool bSlope = false;
    bool bPositiveAmplitudes = false;
    bool bPositiveShapes = false;
    double dWidestTerm = 20.0;  // ranges of y that a single term may span
    int nSteps = 8;             // of refinement after each choice
};

class TermSearch {
  public:
    TermSearch(const Settings& settings, const ReducedData& data, const SearchRules& rules);

    // `nTerms` terms from the dictionary.
    FoundTerms Search(const std::vector<Shape>& dictionary, std::size_t nTerms);
    // All sets of `nTerms` of the positions (the first shape parameter) at each of the widths in
    // turn, then, where a dictionary is given, exchanges within it; the best one, refined.
    FoundTerms SearchPositions(const std::vector<double>& positions,
                               const std::vector<double>& widths,
                               const std::vector<Shape>& dictionary, std::size_t nTerms);
    // Weights every point by what the curve of `found` predicts there, and refines.
    void ReweighByCurve(FoundTerms& found, double dLeast);

  private:
    struct Orthogonal;
    Columns ShapesOf(const std::vector<Shape>& dictionary) const;
    void ShapeOf(const Shape& shape, double* column) const;
    void Solve(FoundTerms& found) const;
    void RefineTerms(FoundTerms& found, int nSteps) const;
    // The entry of the dictionary that explains most of what `others` leave; false where none does.
    bool BestEntry(const FoundTerms& others, const Columns& shapes,
                   const std::vector<Shape>& dictionary, bool bSingle, Shape* pShape) const;
    double Predict(const FoundTerms& found, std::size_t i) const;

    const Settings& m_Settings;
    const ReducedData& m_Data;
    SearchRules m_Rules;
    std::vector<double> m_root;  // of the weights
    std::vector<double> m_y;     // weighted
};

}  // namespace curvefit
