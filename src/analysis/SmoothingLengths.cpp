#include "analysis/SmoothingLengths.h"

namespace {

constexpr std::size_t kMostLengths = 49;

}  // namespace

std::vector<std::int32_t> SmoothingLengths(std::uint32_t uPoints) {
    std::vector<std::int32_t> vLengths;
    for (std::uint32_t u = 3; u <= uPoints / 2 && vLengths.size() < kMostLengths; u += 2)
        vLengths.push_back(static_cast<std::int32_t>(u));
    if (vLengths.size() < 3) vLengths.assign(3, 3);
    return vLengths;
}
