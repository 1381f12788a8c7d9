#include "FunctionTable.h"

#include <array>

namespace curvefit {

namespace {

using Table = std::array<const FunctionRow*, kCustomFunction>;

Table MakeTable() {
    Table table{};
    for (const FunctionRows* pFamily :
         {&kBoltzmannFunctions, &kDistributionFunctions, &kDoseResponseFunctions,
          &kExponentialFunctions, &kGrowthFunctions, &kLinearFunctions, &kLorentzianFunctions,
          &kMembraneFunctions, &kTimeCourseFunctions}) {
        for (std::size_t i = 0; i < pFamily->nRows; ++i)
            table[static_cast<std::size_t>(pFamily->pRows[i].eFunction)] = &pFamily->pRows[i];
    }
    return table;
}

}  // namespace

const FunctionRow* FindFunction(int32_t eFunction) {
    static const Table table = MakeTable();
    if (eFunction < 0 || eFunction >= kCustomFunction) return nullptr;
    return table[static_cast<std::size_t>(eFunction)];
}

}  // namespace curvefit
