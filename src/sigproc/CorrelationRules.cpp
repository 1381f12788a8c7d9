#include "sigproc/CorrelationRules.h"

#include "sigproc_ids.h"

namespace {

constexpr int kPage = 0;

constexpr std::int32_t kLagNumbers[] = {
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  12,  14,  16,  18,  20,  25,  30,
    35,  40,  45,  50,  55,  60,  65,  70,  75,  80,  85,  90,  95,  100, 110, 120, 130,
    140, 150, 160, 170, 180, 190, 200, 220, 240, 260, 280, 300, 400, 500, 1000};
static_assert(std::size(kLagNumbers) == 49);

}  // namespace

std::span<const std::int32_t> LagNumbers() {
    return kLagNumbers;
}

CorrelationTimes TimesOf(double dFrequency, std::uint32_t uLags, std::uint32_t uPoints) {
    const double dUnit = dFrequency / 1000.0;
    return {uLags * dUnit, uPoints * dUnit, dUnit / 1000.0};
}

CheckResult CheckLags(const CorrelationCheck& check) {
    if (check.bDeferred && check.uPoints == 0) return {};
    const CorrelationTimes times = TimesOf(check.dFrequency, check.uLags, check.uPoints);
    if (!(times.dMaximum < times.dLags)) return {};
    return Question(IDS_CORRELATION_LAGS_TOO_LONG, kPage, IDC_CORRELATION_LAGS, {},
                    {{IDYES, Finding::Next::kGoOn,
                      [set = check.setLags, uPoints = check.uPoints] { set(uPoints); }}});
}

CheckResult CheckFrequency(const CorrelationCheck& check) {
    if (check.bDeferred || check.dFrequency != 0.0) return {};
    return Refusal(IDS_CORRELATION_NO_FREQUENCY, kPage, IDC_CORRELATION_FREQUENCY);
}
