#include "seeds/TermSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace curvefit {

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
// A positive amplitude is at least this share of all, a positive shape this share of what it was.
constexpr double kLeastShare = 0.001;
constexpr double kLeastShape = 0.1;

}  // namespace

// An orthonormal basis of some columns, built one by one.
struct TermSearch::Orthogonal {
    explicit Orthogonal(std::size_t nRows) : basis(nRows, 0) {}
    // Takes away from v what the basis explains; twice, for the digits.
    void Reduce(double* v) const {
        for (int nPass = 0; nPass < 2; ++nPass) {
            for (std::size_t k = 0; k < basis.Count(); ++k) {
                const double d = Dot(v, basis.At(k), basis.Rows());
                for (std::size_t i = 0; i < basis.Rows(); ++i) v[i] -= d * basis.At(k)[i];
            }
        }
    }
    void Add(const double* column) {
        std::vector<double> v(column, column + basis.Rows());
        const double dBefore = Dot(v.data(), v.data(), v.size());
        Reduce(v.data());
        const double dLeft = Dot(v.data(), v.data(), v.size());
        if (!(dLeft > 1e-20 * dBefore) || !std::isfinite(dLeft)) return;
        const double dScale = 1.0 / std::sqrt(dLeft);
        for (double& d : v) d *= dScale;
        basis.Append(v.data());
    }
    Columns basis;
};

TermSearch::TermSearch(const Settings& settings, const ReducedData& data, const SearchRules& rules)
    : m_Settings(settings), m_Data(data), m_Rules(rules) {
    for (std::size_t i = 0; i < data.Size(); ++i) {
        m_root.push_back(std::sqrt(data.weight[i]));
        m_y.push_back(m_root[i] * data.y[i]);
    }
}

void TermSearch::ShapeOf(const Shape& shape, double* column) const {
    const std::size_t n = m_Data.Size();
    std::vector<double> columns((m_Rules.nShapes + 1) * n);
    double params[kMaxShapes + 1] = {1.0, shape[0], shape[1], shape[2]};
    m_Rules.pShape(m_Settings, params, m_Data.x.data(), n, columns.data());
    for (std::size_t i = 0; i < n; ++i) column[i] = columns[i] * m_root[i];
}

Columns TermSearch::ShapesOf(const std::vector<Shape>& dictionary) const {
    Columns shapes(m_Data.Size(), dictionary.size());
    for (std::size_t k = 0; k < dictionary.size(); ++k) ShapeOf(dictionary[k], shapes.At(k));
    return shapes;
}

void TermSearch::Solve(FoundTerms& found) const {
    const std::size_t n = m_Data.Size();
    const std::size_t nTerms = found.terms.size();
    Columns columns(n, nTerms + m_Rules.bOffset + m_Rules.bSlope);
    for (std::size_t k = 0; k < nTerms; ++k) ShapeOf(found.terms[k].shape, columns.At(k));
    std::size_t nNext = nTerms;
    if (m_Rules.bOffset) std::copy(m_root.begin(), m_root.end(), columns.At(nNext++));
    if (m_Rules.bSlope) {
        for (std::size_t i = 0; i < n; ++i) columns.At(nNext)[i] = m_root[i] * m_Data.x[i];
    }
    std::vector<double> coefficients(columns.Count());
    found.dSquares = SolveNonNegative(columns, m_Rules.bPositiveAmplitudes ? nTerms : 0, m_y.data(),
                                      coefficients.data());
    for (std::size_t k = 0; k < nTerms; ++k) found.terms[k].dAmplitude = coefficients[k];
    nNext = nTerms;
    found.dOffset = m_Rules.bOffset ? coefficients[nNext++] : 0.0;
    found.dSlope = m_Rules.bSlope ? coefficients[nNext] : 0.0;
    found.bFound = std::isfinite(found.dSquares);
}

void TermSearch::RefineTerms(FoundTerms& found, int nSteps) const {
    const std::size_t n = m_Data.Size();
    const std::size_t nTerms = found.terms.size();
    const std::size_t nEach = m_Rules.nShapes + 1;
    std::vector<double> params;
    for (const FoundTerm& term : found.terms) {
        params.push_back(term.dAmplitude);
        params.insert(params.end(), term.shape.begin(),
                      term.shape.begin() + static_cast<std::ptrdiff_t>(m_Rules.nShapes));
    }
    if (m_Rules.bOffset) params.push_back(found.dOffset);
    if (m_Rules.bSlope) params.push_back(found.dSlope);

    const auto mend = [&](const double* before, double* after) {
        double dSum = 0.0;
        for (std::size_t k = 0; k < nTerms; ++k) dSum += std::fabs(after[k * nEach]);
        for (std::size_t k = 0; k < nTerms; ++k) {
            if (m_Rules.bPositiveAmplitudes)
                after[k * nEach] = std::max(after[k * nEach], kLeastShare * dSum);
            if (!m_Rules.bPositiveShapes) continue;
            for (std::size_t c = 1; c < nEach; ++c) {
                after[k * nEach + c] =
                    std::max(after[k * nEach + c], kLeastShape * before[k * nEach + c]);
            }
        }
    };
    std::vector<double> columns(nEach * n);
    SearchTask task;
    task.nRows = n;
    if (m_Rules.bPositiveAmplitudes || m_Rules.bPositiveShapes) task.mend = mend;
    task.evaluate = [&](const double* p, double* differences, Columns* pDerivatives) {
        std::copy(m_y.begin(), m_y.end(), differences);
        for (std::size_t k = 0; k < nTerms; ++k) {
            m_Rules.pShape(m_Settings, p + k * nEach, m_Data.x.data(), n, columns.data());
            for (std::size_t i = 0; i < n; ++i)
                differences[i] -= m_root[i] * p[k * nEach] * columns[i];
            for (std::size_t c = 0; pDerivatives != nullptr && c < nEach; ++c) {
                double* target = pDerivatives->At(k * nEach + c);
                for (std::size_t i = 0; i < n; ++i) target[i] = m_root[i] * columns[c * n + i];
            }
        }
        std::size_t nNext = nTerms * nEach;
        for (const bool bSlope : {false, true}) {
            if (!(bSlope ? m_Rules.bSlope : m_Rules.bOffset)) continue;
            for (std::size_t i = 0; i < n; ++i) {
                const double dColumn = m_root[i] * (bSlope ? m_Data.x[i] : 1.0);
                differences[i] -= p[nNext] * dColumn;
                if (pDerivatives != nullptr) pDerivatives->At(nNext)[i] = dColumn;
            }
            ++nNext;
        }
        return true;
    };
    if (m_Rules.bPositiveAmplitudes) mend(params.data(), params.data());
    const double dSquares = Refine(task, params, nSteps);
    if (!std::isfinite(dSquares)) return;
    found.dSquares = dSquares;
    for (std::size_t k = 0; k < nTerms; ++k) {
        found.terms[k].dAmplitude = params[k * nEach];
        for (std::size_t c = 0; c < m_Rules.nShapes; ++c)
            found.terms[k].shape[c] = params[k * nEach + 1 + c];
    }
    std::size_t nNext = nTerms * nEach;
    if (m_Rules.bOffset) found.dOffset = params[nNext++];
    if (m_Rules.bSlope) found.dSlope = params[nNext];
}

bool TermSearch::BestEntry(const FoundTerms& others, const Columns& shapes,
                           const std::vector<Shape>& dictionary, bool bSingle,
                           Shape* pShape) const {
    const std::size_t n = m_Data.Size();
    Orthogonal space(n);
    std::vector<double> column(n);
    if (m_Rules.bOffset) space.Add(m_root.data());
    if (m_Rules.bSlope) {
        for (std::size_t i = 0; i < n; ++i) column[i] = m_root[i] * m_Data.x[i];
        space.Add(column.data());
    }
    for (const FoundTerm& term : others.terms) {
        ShapeOf(term.shape, column.data());
        space.Add(column.data());
    }
    std::vector<double> rest = m_y;
    space.Reduce(rest.data());
    const double dRange = m_Data.RangeY();
    double dBestGain = -1.0;
    for (std::size_t k = 0; k < dictionary.size(); ++k) {
        std::copy(shapes.At(k), shapes.At(k) + n, column.begin());
        const double dBefore = Dot(column.data(), column.data(), n);
        space.Reduce(column.data());
        const double dLeft = Dot(column.data(), column.data(), n);
        if (!(dLeft > 1e-8 * dBefore) || !std::isfinite(dLeft)) continue;
        const double dProduct = Dot(rest.data(), column.data(), n);
        if (m_Rules.bPositiveAmplitudes && dProduct <= 0.0) continue;
        if (bSingle) {
            double dLow = kInfinite;
            double dHigh = -kInfinite;
            for (std::size_t i = 0; i < n; ++i) {
                const double d = shapes.At(k)[i] / m_root[i];
                dLow = std::min(dLow, d);
                dHigh = std::max(dHigh, d);
            }
            const double dSpan = std::fabs(dProduct / dLeft) * (dHigh - dLow);
            if (!(dSpan <= m_Rules.dWidestTerm * dRange)) continue;
        }
        const double dGain = dProduct * dProduct / dLeft;
        if (dGain > dBestGain) {
            dBestGain = dGain;
            *pShape = dictionary[k];
        }
    }
    return dBestGain >= 0.0;
}

FoundTerms TermSearch::Search(const std::vector<Shape>& dictionary, std::size_t nTerms) {
    const Columns shapes = ShapesOf(dictionary);
    FoundTerms found;
    for (std::size_t k = 0; k < nTerms; ++k) {
        Shape shape{};
        if (!BestEntry(found, shapes, dictionary, nTerms == 1, &shape)) {
            // Nothing is left to explain: a shape from the middle keeps the number of terms.
            if (dictionary.empty()) return found;
            shape = dictionary[dictionary.size() * (k + 1) / (nTerms + 1)];
        }
        found.terms.push_back({0.0, shape});
        Solve(found);
        RefineTerms(found, nTerms == 1 ? 12 : m_Rules.nSteps);
    }
    if (nTerms == 1) return found;
    for (int nRound = 0; nRound < 2; ++nRound) {
        const double dBefore = found.dSquares;
        for (std::size_t k = 0; k < nTerms; ++k) {
            FoundTerms other = found;
            other.terms.erase(other.terms.begin() + static_cast<std::ptrdiff_t>(k));
            Shape shape{};
            if (!BestEntry(other, shapes, dictionary, false, &shape)) continue;
            other.terms.push_back({0.0, shape});
            Solve(other);
            RefineTerms(other, m_Rules.nSteps);
            if (other.bFound && other.dSquares < found.dSquares) found = other;
        }
        if (!(found.dSquares < 0.999 * dBefore)) break;
    }
    return found;
}

double TermSearch::Predict(const FoundTerms& found, std::size_t i) const {
    double dSum = found.dOffset + found.dSlope * m_Data.x[i];
    std::vector<double> columns(m_Rules.nShapes + 1);
    for (const FoundTerm& term : found.terms) {
        const double params[kMaxShapes + 1] = {term.dAmplitude, term.shape[0], term.shape[1],
                                               term.shape[2]};
        m_Rules.pShape(m_Settings, params, &m_Data.x[i], 1, columns.data());
        dSum += term.dAmplitude * columns[0];
    }
    return dSum;
}

void TermSearch::ReweighByCurve(FoundTerms& found, double dLeast) {
    for (std::size_t i = 0; i < m_Data.Size(); ++i) {
        const double dCurve = std::max(Predict(found, i), dLeast);
        m_root[i] = 1.0 / std::sqrt(dCurve);
        m_y[i] = m_root[i] * m_Data.y[i];
    }
    FoundTerms refined = found;
    RefineTerms(refined, m_Rules.nSteps);
    if (std::isfinite(refined.dSquares)) found = refined;
}

namespace {

enum class Signs { kAny, kPositive, kSame };

// What sets of columns explain, from one matrix of their inner products once offset and slope are
// taken away.
struct InnerProducts {
    std::size_t nColumns = 0;
    std::vector<double> matrix;
    std::vector<double> right;

    double At(std::size_t i, std::size_t j) const { return matrix[i * nColumns + j]; }
    // The gain of a set; below 0 where it is dependent or its amplitudes have other signs.
    double Gain(const std::vector<std::size_t>& set, Signs eSigns) const {
        const std::size_t n = set.size();
        double part[36];
        double solution[6];
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j < n; ++j) part[i * n + j] = At(set[i], set[j]);
            part[i * n + i] *= 1.0 + 1e-10;
            solution[i] = right[set[i]];
        }
        if (!SolveCholesky(part, solution, n)) return -1.0;
        double dGain = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            if (eSigns == Signs::kPositive && solution[i] < 0.0) return -1.0;
            if (eSigns == Signs::kSame && (solution[i] < 0.0) != (solution[0] < 0.0)) return -1.0;
            dGain += solution[i] * right[set[i]];
        }
        return dGain;
    }
};

// Steps to the next set of n out of nAll in ascending order; false behind the last one.
bool NextSet(std::vector<std::size_t>& set, std::size_t nAll) {
    const std::size_t n = set.size();
    for (std::size_t k = n; k-- > 0;) {
        if (set[k] + (n - k) >= nAll) continue;
        ++set[k];
        for (std::size_t j = k + 1; j < n; ++j) set[j] = set[j - 1] + 1;
        return true;
    }
    return false;
}

// The set of nTerms of the first nPositions columns that explains most, then, one at a time, with
// columns behind them.
std::vector<std::size_t> BestSet(const InnerProducts& inner, std::size_t nPositions,
                                 std::size_t nTerms, Signs eSigns) {
    std::vector<std::size_t> set(nTerms);
    for (std::size_t k = 0; k < nTerms; ++k) set[k] = k;
    std::vector<std::size_t> best = set;
    double dBestGain = -1.0;
    do {
        const double dGain = inner.Gain(set, eSigns);
        if (dGain > dBestGain) {
            dBestGain = dGain;
            best = set;
        }
    } while (NextSet(set, nPositions));
    for (bool bBetter = true; bBetter;) {
        bBetter = false;
        for (std::size_t k = 0; k < nTerms; ++k) {
            for (std::size_t e = nPositions; e < inner.nColumns; ++e) {
                std::vector<std::size_t> other = best;
                other[k] = e;
                const double dGain = inner.Gain(other, eSigns);
                if (dGain > dBestGain * (1.0 + 1e-9)) {
                    dBestGain = dGain;
                    best = other;
                    bBetter = true;
                }
            }
        }
    }
    return best;
}

}  // namespace

FoundTerms TermSearch::SearchPositions(const std::vector<double>& positions,
                                       const std::vector<double>& widths,
                                       const std::vector<Shape>& dictionary, std::size_t nTerms) {
    const std::size_t n = m_Data.Size();
    Orthogonal space(n);
    if (m_Rules.bOffset) space.Add(m_root.data());
    std::vector<double> rest = m_y;
    space.Reduce(rest.data());
    const auto products = [&](const std::vector<Shape>& shapes) {
        InnerProducts inner;
        inner.nColumns = shapes.size();
        Columns columns = ShapesOf(shapes);
        for (std::size_t k = 0; k < shapes.size(); ++k) space.Reduce(columns.At(k));
        inner.matrix.resize(shapes.size() * shapes.size());
        for (std::size_t i = 0; i < shapes.size(); ++i) {
            inner.right.push_back(Dot(columns.At(i), rest.data(), n));
            for (std::size_t j = 0; j <= i; ++j) {
                inner.matrix[i * shapes.size() + j] = inner.matrix[j * shapes.size() + i] =
                    Dot(columns.At(i), columns.At(j), n);
            }
        }
        return inner;
    };
    // A set of both signs may explain a little more at first and lead to a worse end.
    const std::vector<Signs> signs = m_Rules.bPositiveAmplitudes
                                         ? std::vector<Signs>{Signs::kPositive}
                                         : std::vector<Signs>{Signs::kAny, Signs::kSame};
    FoundTerms best;
    best.dSquares = kInfinite;
    for (const double dWidth : widths) {
        std::vector<Shape> shapes;
        for (const double dPosition : positions) shapes.push_back({dPosition, dWidth, 0.0});
        // The dictionary stands behind the positions, so that exchanges can name both.
        const std::size_t nPositions = shapes.size();
        shapes.insert(shapes.end(), dictionary.begin(), dictionary.end());
        const InnerProducts inner = products(shapes);
        for (const Signs eSigns : signs) {
            FoundTerms found;
            for (const std::size_t k : BestSet(inner, nPositions, nTerms, eSigns))
                found.terms.push_back({0.0, shapes[k]});
            Solve(found);
            RefineTerms(found, m_Rules.nSteps);
            if (found.bFound && found.dSquares < best.dSquares) best = found;
        }
    }
    return best;
}

}  // namespace curvefit
