#include "ArithmeticFuzz.h"

#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

#include "arithmetic/ArithmeticChecks.h"
#include "arithmetic/AssignedList.h"
#include "arithmetic/ColumnRemap.h"
#include "arithmetic/ColumnScan.h"
#include "arithmetic/ExpressionHistory.h"
#include "arithmetic/LeftSide.h"
#include "contract/OptionPersistence.h"
#include "contract/SelectionList.h"
#include "store/ProfileStore.h"

namespace {

void Hold(bool b) {
    if (!b) std::abort();
}

constexpr std::int32_t kColumns = 1000;

void AskExpression(const std::string& sText, const std::vector<std::int32_t>& vNumbers) {
    for (const bool bRightSideOnly : {false, true}) {
        std::vector<bool> vSeen(kColumns + 1);
        for (const std::int32_t nColumn : ScanColumns(sText, bRightSideOnly, kColumns)) {
            Hold(nColumn >= 1 && nColumn <= kColumns && !vSeen[static_cast<std::size_t>(nColumn)]);
            vSeen[static_cast<std::size_t>(nColumn)] = true;
        }
    }
    if (const auto sRemapped = RemapColumns(sText, vNumbers)) Hold(sRemapped->size() <= 254);
    for (const bool bAddEquals : {false, true}) {
        for (const int nCaret : {-1, 0, static_cast<int>(sText.size() / 2), 1 << 20}) {
            const TextEdit edit = AssignToLeftSide(sText, nCaret, "t1", bAddEquals);
            Hold(edit.nFirst >= 0 && edit.nFirst <= edit.nEnd &&
                 edit.nEnd <= static_cast<int>(sText.size()));
            std::string sAssigned = sText;
            sAssigned.replace(static_cast<std::size_t>(edit.nFirst),
                              static_cast<std::size_t>(edit.nEnd - edit.nFirst), edit.sText);
            Hold(!bAddEquals || sAssigned.find('=') != std::string::npos);
        }
    }
    auto pOptions = std::make_unique<ZXADLG_ArithmeticOptions>();
    StoreExpression(sText, *pOptions);
    Hold(std::strlen(pOptions->szExpression) < sizeof pOptions->szExpression);
    Hold(std::strlen(pOptions->szDisplayExpression) < sizeof pOptions->szDisplayExpression);
    const CheckResult result = CheckExpression(sText, "", false);
    Hold(result.has_value() == (Trimmed(sText).empty() || Trimmed(sText).size() > 255));
}

void AskList(std::vector<std::int32_t> vNumbers) {
    for (const bool bColumns : {false, true}) {
        if (const auto sText = FormatAssignedList(vNumbers, bColumns)) Hold(sText->size() < 255);
    }
}

void AskStore(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile) {
    {
        std::ofstream file(sProfile, std::ios::binary);
        for (const char* szSection : {"TraceArithmetic", "ColumnArithmetic"}) {
            file << '[' << szSection << "]\r\n";
            file.write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
            file << "\r\n";
        }
    }
    SetUseProfileFile(true);
    const char* szProfile = sProfile.c_str();
    auto pOptions = std::make_unique<ZXADLG_ArithmeticOptions>();
    LoadTraceArithmeticOptions(szProfile, pOptions.get());
    AskExpression(pOptions->szExpression, ParseSelection(pOptions->szSelectionList, 0));
    Hold(TypedForm(pOptions->szExpression).size() < sizeof pOptions->szExpression);
    AskList(ParseSelection(pOptions->szSelectionList, -1));
    for (const HistoryKind eKind : {HistoryKind::kTraceExpression, HistoryKind::kColumnExpression,
                                    HistoryKind::kColumnTitle}) {
        const std::vector<std::string> vLines = LoadHistory(szProfile, eKind);
        Hold(vLines.size() <= 40);
        for (const std::string& sLine : vLines) Hold(!sLine.empty() && sLine.size() <= 255);
        SaveHistory(szProfile, eKind, vLines);
    }
    SaveTraceArithmeticOptions(szProfile, pOptions.get());
}

}  // namespace

void FuzzArithmetic(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile) {
    // A text of the user ends at its terminator.
    const std::string sText(std::string(reinterpret_cast<const char*>(pData), nSize).c_str());
    const std::vector<std::int32_t> vNumbers = ParseSelection(sText.c_str(), 0);
    AskExpression(sText, vNumbers);
    AskExpression(sText, {2, 0});
    AskList(vNumbers);
    AskStore(pData, nSize, sProfile);
}
