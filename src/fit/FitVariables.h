// What the curve-fit library is given for the independent variables of a function: the points for
// the one that was measured, and for each constant an array of its value.
#pragma once

#include <cstdint>
#include <vector>

class CDataOptionsInterface;

class FitVariables {
  public:
    // pX outlives this object.
    FitVariables(const CDataOptionsInterface& data, const double* pX, std::uint32_t uPoints);

    // One behind the last variable, for a measured y.
    void Append(const double* pY) { m_arrays.push_back(pY); }
    const double* const* Arrays() const { return m_arrays.data(); }
    std::uint32_t Count() const { return static_cast<std::uint32_t>(m_arrays.size()); }

  private:
    std::vector<std::vector<double>> m_constants;
    std::vector<const double*> m_arrays;
};
