// The lines that an expression box or a title box remembers, newest first, and where the store
// keeps them. Each box has a list of its own, which ends at its first empty line.
#pragma once

#include <string>
#include <vector>

enum class HistoryKind { kTraceExpression, kColumnExpression, kColumnTitle };

// The most lines that are kept, and the longest line.
inline constexpr int kMostHistoryLines = 40;
inline constexpr int kHistoryLineSize = 256;  // with the terminator

// Empty with a null store name.
std::vector<std::string> LoadHistory(const char* szProfile, HistoryKind eKind);
// Stores the first 40 lines, and behind fewer an empty one as their end.
void SaveHistory(const char* szProfile, HistoryKind eKind, const std::vector<std::string>& vLines);
