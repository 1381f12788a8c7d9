#include "fit/FitVariables.h"

#include <algorithm>

#include "contract/CDataOptionsInterface.h"

FitVariables::FitVariables(const CDataOptionsInterface& data, const double* pX,
                           std::uint32_t uPoints)
    : m_arrays(std::max(data.GetConstantCount(), 1u), pX) {
    if (m_arrays.size() == 1) return;
    m_constants.resize(m_arrays.size());
    for (std::uint32_t i = 0; i < Count(); ++i) {
        if (!data.GetIsConstant(i)) continue;
        m_constants[i].assign(uPoints, data.GetConstant(i));
        m_arrays[i] = m_constants[i].data();
    }
}
