// The store with a section of 2,300 keys.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "StoreShape.h"
#include "Timing.h"
#include "platform/platform.h"
#include "store/ProfileStore.h"

namespace {

constexpr int kRounds = 15;

void MeasureGrowth(const std::string& sFolder) {
    const std::vector<StoreKey> once = MakeKeys(24);
    const std::vector<StoreKey> twice = MakeKeys(48);
    const std::string sOnce = sFolder + "/once.ini";
    const std::string sTwice = sFolder + "/twice.ini";
    int nRound = 0;
    const std::vector<double> times =
        Medians(kRounds, {[&] { SaveBatch(once, ++nRound, sOnce.c_str()); },
                          [&] { SaveBatch(twice, ++nRound, sTwice.c_str()); },
                          [&] { Consume(LoadBatch(once, sOnce.c_str())); },
                          [&] { Consume(LoadBatch(twice, sTwice.c_str())); }});
    PrintFigure("profile batch save, " + std::to_string(once.size()) + " keys", times[0] * 1e3,
                "ms");
    PrintFigure("profile batch load, " + std::to_string(once.size()) + " keys", times[2] * 1e3,
                "ms");
    PrintRatio("profile batch load in ms", times[2] * 1e3, 1.0);
    PrintRatio("profile batch save, twice the keys / once", times[1] / times[0], 2.3);
    PrintRatio("profile batch load, twice the keys / once", times[3] / times[2], 2.3);
}

// One open handle, and each value set or read through it.
void SaveByHandle(const std::vector<StoreKey>& keys, int nRound, HKEY hKey) {
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const StoreValue value = ValueOf(i, nRound);
        char szText[32];
        int nLength = 0;
        switch (keys[i].eType) {
            case StoreKey::Type::kBoolean:
                nLength = std::snprintf(szText, sizeof szText, "%s",
                                        (value.nInteger & 1) != 0 ? "TRUE" : "FALSE");
                break;
            case StoreKey::Type::kInteger:
                nLength = std::snprintf(szText, sizeof szText, "%d", value.nInteger);
                break;
            case StoreKey::Type::kDouble:
                nLength = std::snprintf(szText, sizeof szText, "%g", value.dDouble);
                break;
        }
        RegSetValueExA(hKey, keys[i].sKey.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE*>(szText),
                       static_cast<DWORD>(nLength) + 1);
    }
}

double LoadByHandle(const std::vector<StoreKey>& keys, HKEY hKey) {
    double dSum = 0;
    for (const StoreKey& key : keys) {
        char szText[64] = "";
        DWORD uSize = sizeof szText;
        RegQueryValueExA(hKey, key.sKey.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(szText),
                         &uSize);
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

void MeasureRegistry() {
    const std::vector<StoreKey> keys = MakeKeys(24);
    SetUseProfileFile(false);
    SetRegistryRoot("zx-benchmark");
    int nRound = 0;
    const std::vector<double> times =
        Medians(kRounds, {[&] { SaveBatch(keys, ++nRound, "Batch"); },
                          [&] {
                              const HKEY hKey = OpenSection(kSectionName, "Handle", true);
                              SaveByHandle(keys, ++nRound, hKey);
                              RegCloseKey(hKey);
                          },
                          [&] { Consume(LoadBatch(keys, "Batch")); },
                          [&] {
                              const HKEY hKey = OpenSection(kSectionName, "Handle", false);
                              Consume(LoadByHandle(keys, hKey));
                              RegCloseKey(hKey);
                          }});
    PrintFigure("registry batch save", times[0] * 1e3, "ms");
    PrintRatio("registry batch save / one open handle", times[0] / times[1], 1.3);
    PrintFigure("registry batch load", times[2] * 1e3, "ms");
    PrintRatio("registry batch load / one open handle", times[2] / times[3], 1.3);
    RegDeleteTreeA(HKEY_CURRENT_USER, "Software\\zx-benchmark");
    SetUseProfileFile(true);
}

}  // namespace

void MeasureStore() {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() /
                                         ("zx-benchmark-" + std::to_string(GetCurrentProcessId()));
    std::filesystem::create_directories(folder);
    SetUseProfileFile(true);
    MeasureGrowth(folder.string());
    MeasureRegistry();
    MeasureStorePeers(MakeKeys(24), folder.string());
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}
