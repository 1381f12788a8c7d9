// The platform's private profile functions with the same section, key by key.
#include <cstdio>
#include <cstdlib>
#include <string>

#include "StoreShape.h"
#include "Timing.h"
#include "platform/platform.h"

namespace {

constexpr int kRounds = 3;

void SaveKeyByKey(const std::vector<StoreKey>& keys, int nRound, const char* szPath) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const StoreValue value = ValueOf(i, nRound);
        char szText[32];
        switch (keys[i].eType) {
            case StoreKey::Type::kBoolean:
                std::snprintf(szText, sizeof szText, "%s",
                              (value.nInteger & 1) != 0 ? "TRUE" : "FALSE");
                break;
            case StoreKey::Type::kInteger:
                std::snprintf(szText, sizeof szText, "%d", value.nInteger);
                break;
            case StoreKey::Type::kDouble:
                std::snprintf(szText, sizeof szText, "%g", value.dDouble);
                break;
        }
        WritePrivateProfileStringA(kSectionName, keys[i].sKey.c_str(), szText, szPath);
    }
}

double LoadKeyByKey(const std::vector<StoreKey>& keys, const char* szPath) {
    double dSum = 0;
    for (const StoreKey& key : keys) {
        char szText[64];
        GetPrivateProfileStringA(kSectionName, key.sKey.c_str(), "", szText, sizeof szText, szPath);
        switch (key.eType) {
            case StoreKey::Type::kBoolean:
                dSum += szText[0] == 'T';
                break;
            case StoreKey::Type::kInteger:
                dSum += std::atoi(szText);
                break;
            case StoreKey::Type::kDouble:
                dSum += std::atof(szText);
                break;
        }
    }
    return dSum;
}

}  // namespace

void MeasureStorePeers(const std::vector<StoreKey>& keys, const std::string& sFolder) {
    const std::string sOurs = sFolder + "\\ours.ini";
    const std::string sTheirs = sFolder + "\\theirs.ini";
    for (const std::string& sPath : {sOurs, sTheirs}) WriteForeignFile(sPath.c_str());
    int nRound = 0;
    const std::vector<double> times =
        Medians(kRounds, {[&] { SaveBatch(keys, ++nRound, sOurs.c_str()); },
                          [&] { SaveKeyByKey(keys, ++nRound, sTheirs.c_str()); },
                          [&] { Consume(LoadBatch(keys, sOurs.c_str())); },
                          [&] { Consume(LoadKeyByKey(keys, sTheirs.c_str())); }});
    PrintFigure("private profile functions save, key by key", times[1] * 1e3, "ms");
    PrintAtLeast("private profile save / profile batch save", times[1] / times[0], 100);
    PrintAtLeast("private profile load / profile batch load", times[3] / times[2], 1);
}
