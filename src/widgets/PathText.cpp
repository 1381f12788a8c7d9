#include "widgets/PathText.h"

#include <cstddef>
#include <string_view>

#include "text/BoundedText.h"
#include "text/TextTests.h"

namespace {

constexpr int kPathSize = 520;
constexpr int kFullPathSize = 1024;

struct PathParts {
    char szFull[kFullPathSize];
    char szDocuments[MAX_PATH];
    std::string_view sRoot;  // "C:", "\\server\share" or the name of the documents folder
    std::string_view sRest;  // what follows the root, with its leading backslash; may be empty
    std::string_view sFile;  // the last component
};

std::size_t LengthOfRoot(std::string_view sFull) {
    if (sFull.size() >= 2 && sFull[1] == ':') return 2;
    if (sFull.substr(0, 2) != "\\\\") return 0;
    const std::size_t nShare = sFull.find('\\', 2);
    if (nShare == std::string_view::npos) return sFull.size();
    const std::size_t nEnd = sFull.find('\\', nShare + 1);
    return nEnd == std::string_view::npos ? sFull.size() : nEnd;
}

// Splits a path; returns false when there is nothing to show.
bool Split(const char* szPath, PathParts& parts) {
    char szCopy[kPathSize];
    const int nLength = CopyText(szCopy, szPath);
    if (nLength > 0 && szCopy[nLength - 1] == '\\') szCopy[nLength - 1] = '\0';
    if (szCopy[0] == '\0') return false;
    DWORD nFull = GetFullPathNameA(szCopy, kFullPathSize, parts.szFull, nullptr);
    // The system refuses paths that are too long for it; they are shown as they were given.
    if (nFull == 0 || nFull >= kFullPathSize) {
        nFull = static_cast<DWORD>(CopyText(parts.szFull, szCopy));
    }
    const std::string_view sFull(parts.szFull, nFull);
    parts.sFile = sFull.substr(sFull.rfind('\\') + 1);
    std::size_t nRoot = LengthOfRoot(sFull);
    parts.sRoot = sFull.substr(0, nRoot);
    parts.szDocuments[0] = '\0';
    if (SUCCEEDED(SHGetFolderPathA(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT,
                                   parts.szDocuments))) {
        const std::string_view sDocuments = parts.szDocuments;
        if (!sDocuments.empty() && sFull.size() > sDocuments.size() + 1 &&
            sFull[sDocuments.size()] == '\\' &&
            EqualNoCase(sFull.substr(0, sDocuments.size()), sDocuments)) {
            nRoot = sDocuments.size();
            parts.sRoot = sDocuments.substr(sDocuments.rfind('\\') + 1);
        }
    }
    parts.sRest = sFull.substr(nRoot);
    return true;
}

// Shortens with a test that tells whether a candidate fits.
template <typename Fits>
bool Shorten(PathParts& parts, char* szOut, int nMax, Fits fits) {
    constexpr std::string_view kGap = "\\...";
    char szTry[kFullPathSize + MAX_PATH];
    const auto compose = [&](std::string_view sBetween, std::string_view sTail) {
        BoundedWriter writer(szTry, static_cast<int>(sizeof szTry));
        writer.Put(parts.sRoot);
        writer.Put(sBetween);
        writer.Put(sTail);
        return std::string_view(szTry, static_cast<std::size_t>(writer.Length()));
    };
    std::string_view sTry = compose("", parts.sRest);
    if (fits(sTry)) return CopyText(szOut, nMax + 1, sTry) > 0;
    // Components go from the left; the last one to stay is the file part.
    for (std::string_view sRest = parts.sRest; sRest.size() > 1;) {
        const std::size_t nNext = sRest.find('\\', 1);
        if (nNext == std::string_view::npos) break;
        sRest.remove_prefix(nNext);
        sTry = compose(kGap, sRest);
        if (fits(sTry)) return CopyText(szOut, nMax + 1, sTry) > 0;
    }
    return false;
}

}  // namespace

bool ShortenPath(const char* szPath, char* szOut, int nMax) {
    if (szOut == nullptr || nMax < 0) return false;
    szOut[0] = '\0';
    PathParts parts;
    if (!Split(szPath, parts)) return false;
    const auto fits = [nMax](std::string_view sText) {
        return sText.size() <= static_cast<std::size_t>(nMax);
    };
    if (!fits(parts.sFile)) return false;
    if (Shorten(parts, szOut, nMax, fits)) return true;
    return CopyText(szOut, nMax + 1, parts.sFile) > 0;
}

bool ShortenPathToWidth(HDC hDC, const char* szPath, char* szOut, int nMax, int nWidth) {
    if (szOut == nullptr || nMax < 0) return false;
    szOut[0] = '\0';
    PathParts parts;
    if (!Split(szPath, parts)) return false;
    const auto fits = [&](std::string_view sText) {
        if (sText.size() > static_cast<std::size_t>(nMax)) return false;
        SIZE size = {};
        return GetTextExtentPoint32A(hDC, sText.data(), static_cast<int>(sText.size()), &size) &&
               size.cx <= nWidth;
    };
    if (parts.sFile.size() > static_cast<std::size_t>(nMax)) return false;
    if (Shorten(parts, szOut, nMax, fits)) return true;
    std::string_view sFile = parts.sFile;
    while (!sFile.empty() && !fits(sFile)) sFile.remove_suffix(1);
    return CopyText(szOut, nMax + 1, sFile) > 0;
}
