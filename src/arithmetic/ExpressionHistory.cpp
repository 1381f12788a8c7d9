#include "arithmetic/ExpressionHistory.h"

#include <algorithm>

#include "contract/OptionPersistence.h"
#include "store/StoreBatch.h"

namespace {

bool LoadLine(const char* szProfile, HistoryKind eKind, int n, char* szLine) {
    switch (eKind) {
        case HistoryKind::kTraceExpression:
            return LoadTraceExpression(szProfile, n, szLine, kHistoryLineSize);
        case HistoryKind::kColumnExpression:
            return LoadColumnExpression(szProfile, n, szLine, kHistoryLineSize);
        default: {
            char szExpression[kHistoryLineSize] = {};
            return LoadColumnDescription(szProfile, n, szLine, szExpression, kHistoryLineSize);
        }
    }
}

void SaveLine(const char* szProfile, HistoryKind eKind, int n, const char* szLine) {
    switch (eKind) {
        case HistoryKind::kTraceExpression:
            return SaveTraceExpression(szProfile, n, szLine);
        case HistoryKind::kColumnExpression:
            return SaveColumnExpression(szProfile, n, szLine);
        default:
            return SaveColumnDescription(szProfile, n, szLine);
    }
}

}  // namespace

std::vector<std::string> LoadHistory(const char* szProfile, HistoryKind eKind) {
    std::vector<std::string> vLines;
    if (szProfile == nullptr) return vLines;
    const StoreBatch batch(szProfile);
    for (int n = 0; n < kMostHistoryLines; ++n) {
        char szLine[kHistoryLineSize] = {};
        if (!LoadLine(szProfile, eKind, n, szLine) || szLine[0] == '\0') break;
        vLines.emplace_back(szLine);
    }
    return vLines;
}

void SaveHistory(const char* szProfile, HistoryKind eKind, const std::vector<std::string>& vLines) {
    if (szProfile == nullptr) return;
    const StoreBatch batch(szProfile);
    const int nLines = std::min(static_cast<int>(vLines.size()), kMostHistoryLines);
    for (int n = 0; n < nLines; ++n)
        SaveLine(szProfile, eKind, n, vLines[static_cast<std::size_t>(n)].c_str());
    if (nLines < kMostHistoryLines) SaveLine(szProfile, eKind, nLines, "");
}
