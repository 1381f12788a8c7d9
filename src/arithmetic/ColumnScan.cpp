#include "arithmetic/ColumnScan.h"

#include <algorithm>
#include <string>

#include "arithmetic/ColumnLabels.h"
#include "parser/CharacterClass.h"

namespace {

constexpr std::int64_t kMostInRange = 10000;
constexpr std::size_t kFunctionLetters = 3;

// The columns found so far.
class Found {
  public:
    explicit Found(std::int32_t nColumns)
        : m_nColumns(std::max(nColumns, 0)), m_vSeen(static_cast<std::size_t>(m_nColumns)) {}

    void Add(std::int64_t nColumn) {
        if (nColumn < 1 || nColumn > m_nColumns || m_vSeen[static_cast<std::size_t>(nColumn - 1)])
            return;
        m_vSeen[static_cast<std::size_t>(nColumn - 1)] = true;
        m_vColumns.push_back(static_cast<std::int32_t>(nColumn));
    }
    // Upward or downward.
    void AddRange(std::int64_t nFirst, std::int64_t nLast) {
        const std::int64_t nStep = nFirst <= nLast ? 1 : -1;
        const std::int64_t nCount = std::min((nLast - nFirst) * nStep + 1, kMostInRange);
        for (std::int64_t i = 0; i < nCount; ++i) Add(nFirst + i * nStep);
    }
    std::vector<std::int32_t> Take() { return std::move(m_vColumns); }

  private:
    std::int64_t m_nColumns;
    std::vector<bool> m_vSeen;
    std::vector<std::int32_t> m_vColumns;
};

class Scan {
  public:
    Scan(std::string_view sText, std::int32_t nColumns) : m_sText(sText), m_found(nColumns) {}

    std::vector<std::int32_t> Run() {
        while (m_nAt < m_sText.size()) {
            const char c = m_sText[m_nAt++];
            if (c == '.') {
                TakePoint();
                continue;
            }
            ForgetPoints();
            TakeCharacter(c);
        }
        EndWord(false);
        return m_found.Take();
    }

  private:
    void TakeCharacter(char c) {
        if (IsLetter(c)) {
            m_sWord += c;
        } else if (c == '$') {
            EndWord(false);
            Skip([](char skipped) { return IsLetter(skipped) || IsDigit(skipped); });
        } else if (c == '_') {
            m_sWord.clear();
            Skip(IsLetter);
        } else {
            EndWord(c == '(');
        }
    }

    // The first point after a word makes it the start of a range, the second opens the range.
    void TakePoint() {
        ++m_nPoints;
        if (m_nPoints == 1) {
            m_nPending = m_sWord.size() <= kMostLabelLetters ? ColumnNumber(m_sWord) : 0;
        } else {
            m_nRangeStart = m_nPoints == 2 ? m_nPending : 0;
            m_nPending = 0;
        }
        m_sWord.clear();
    }
    void ForgetPoints() {
        m_nPoints = 0;
        m_nPending = 0;
    }

    void EndWord(bool bBeforeParenthesis) {
        if (m_sWord.empty()) return;
        const bool bFunction = bBeforeParenthesis && m_sWord.size() == kFunctionLetters;
        if (!bFunction && m_sWord.size() <= kMostLabelLetters) {
            const std::int64_t nColumn = ColumnNumber(m_sWord);
            if (m_nRangeStart != 0) {
                m_found.AddRange(m_nRangeStart, nColumn);
            } else {
                m_found.Add(nColumn);
            }
        }
        m_nRangeStart = 0;
        m_sWord.clear();
    }

    template <class Skipped>
    void Skip(Skipped skipped) {
        while (m_nAt < m_sText.size() && skipped(m_sText[m_nAt])) ++m_nAt;
    }

    std::string_view m_sText;
    std::size_t m_nAt = 0;
    std::string m_sWord;
    int m_nPoints = 0;
    std::int64_t m_nPending = 0;     // the column before a first point; 0: none
    std::int64_t m_nRangeStart = 0;  // of the open range; 0: none is open
    Found m_found;
};

}  // namespace

std::vector<std::int32_t> ScanColumns(std::string_view sExpression, bool bRightSideOnly,
                                      std::int32_t nColumns) {
    if (bRightSideOnly) {
        const std::size_t nEquals = sExpression.find('=');
        if (nEquals != std::string_view::npos) sExpression.remove_prefix(nEquals + 1);
    }
    std::string sText(sExpression);
    std::erase(sText, ' ');
    return Scan(sText, nColumns).Run();
}
