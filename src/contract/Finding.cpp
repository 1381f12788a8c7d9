#include "contract/Finding.h"

Finding Refusal(UINT nStringId, int nPage, int nControl,
                std::initializer_list<std::int64_t> numbers) {
    Finding finding = {.nStringId = nStringId, .nPage = nPage, .nControl = nControl};
    for (const std::int64_t n : numbers) finding.vArguments.push_back(std::to_string(n));
    return finding;
}

Finding Question(UINT nStringId, int nPage, int nControl,
                 std::initializer_list<std::int64_t> numbers,
                 std::vector<Finding::Answer> vAnswers) {
    Finding finding = Refusal(nStringId, nPage, nControl, numbers);
    finding.uFlags = MB_ICONQUESTION | MB_YESNO;
    finding.vAnswers = std::move(vAnswers);
    return finding;
}
