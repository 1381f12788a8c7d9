// GLib's key file and simpleini with the same section: load the file, set every value, write the
// file; or load the file and read every value. GLib replaces the file as the store does, simpleini
// writes over it.
// The file is plain bytes: no conversion.
#define SI_NO_CONVERSION
#include <SimpleIni.h>
#include <glib.h>

#include <string>

#include "StoreShape.h"
#include "Timing.h"

namespace {

constexpr int kRounds = 15;

void SaveGlib(const std::vector<StoreKey>& keys, int nRound, const char* szPath) {
    GKeyFile* pFile = g_key_file_new();
    g_key_file_load_from_file(pFile, szPath, G_KEY_FILE_KEEP_COMMENTS, nullptr);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const StoreValue value = ValueOf(i, nRound);
        const char* szKey = keys[i].sKey.c_str();
        switch (keys[i].eType) {
            case StoreKey::Type::kBoolean:
                g_key_file_set_boolean(pFile, kSectionName, szKey, value.nInteger & 1);
                break;
            case StoreKey::Type::kInteger:
                g_key_file_set_integer(pFile, kSectionName, szKey, value.nInteger);
                break;
            case StoreKey::Type::kDouble:
                g_key_file_set_double(pFile, kSectionName, szKey, value.dDouble);
                break;
        }
    }
    g_key_file_save_to_file(pFile, szPath, nullptr);
    g_key_file_free(pFile);
}

double LoadGlib(const std::vector<StoreKey>& keys, const char* szPath) {
    GKeyFile* pFile = g_key_file_new();
    g_key_file_load_from_file(pFile, szPath, G_KEY_FILE_NONE, nullptr);
    double dSum = 0;
    for (const StoreKey& key : keys) {
        const char* szKey = key.sKey.c_str();
        switch (key.eType) {
            case StoreKey::Type::kBoolean:
                dSum += g_key_file_get_boolean(pFile, kSectionName, szKey, nullptr);
                break;
            case StoreKey::Type::kInteger:
                dSum += g_key_file_get_integer(pFile, kSectionName, szKey, nullptr);
                break;
            case StoreKey::Type::kDouble:
                dSum += g_key_file_get_double(pFile, kSectionName, szKey, nullptr);
                break;
        }
    }
    g_key_file_free(pFile);
    return dSum;
}

void SaveSimple(const std::vector<StoreKey>& keys, int nRound, const char* szPath) {
    CSimpleIniA file;
    file.LoadFile(szPath);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const StoreValue value = ValueOf(i, nRound);
        const char* szKey = keys[i].sKey.c_str();
        switch (keys[i].eType) {
            case StoreKey::Type::kBoolean:
                file.SetBoolValue(kSectionName, szKey, (value.nInteger & 1) != 0);
                break;
            case StoreKey::Type::kInteger:
                file.SetLongValue(kSectionName, szKey, value.nInteger);
                break;
            case StoreKey::Type::kDouble:
                file.SetDoubleValue(kSectionName, szKey, value.dDouble);
                break;
        }
    }
    file.SaveFile(szPath);
}

double LoadSimple(const std::vector<StoreKey>& keys, const char* szPath) {
    CSimpleIniA file;
    file.LoadFile(szPath);
    double dSum = 0;
    for (const StoreKey& key : keys) {
        const char* szKey = key.sKey.c_str();
        switch (key.eType) {
            case StoreKey::Type::kBoolean:
                dSum += file.GetBoolValue(kSectionName, szKey);
                break;
            case StoreKey::Type::kInteger:
                dSum += static_cast<double>(file.GetLongValue(kSectionName, szKey));
                break;
            case StoreKey::Type::kDouble:
                dSum += file.GetDoubleValue(kSectionName, szKey);
                break;
        }
    }
    return dSum;
}

}  // namespace

void MeasureStorePeers(const std::vector<StoreKey>& keys, const std::string& sFolder) {
    const std::string sOurs = sFolder + "/ours.ini";
    const std::string sGlib = sFolder + "/glib.ini";
    const std::string sSimple = sFolder + "/simple.ini";
    for (const std::string& sPath : {sOurs, sGlib, sSimple}) WriteForeignFile(sPath.c_str());
    int nRound = 0;
    const std::vector<double> times =
        Medians(kRounds, {[&] { SaveBatch(keys, ++nRound, sOurs.c_str()); },
                          [&] { SaveGlib(keys, ++nRound, sGlib.c_str()); },
                          [&] { SaveSimple(keys, ++nRound, sSimple.c_str()); },
                          [&] { Consume(LoadBatch(keys, sOurs.c_str())); },
                          [&] { Consume(LoadGlib(keys, sGlib.c_str())); },
                          [&] { Consume(LoadSimple(keys, sSimple.c_str())); }});
    PrintRatio("profile batch save / GLib key file", times[0] / times[1], 1.0);
    PrintRatio("profile batch load / GLib key file", times[3] / times[4], 1.0);
    PrintRatio("profile batch load / simpleini", times[3] / times[5], 1.0);
    PrintFigure("profile batch save / simpleini, which writes in place", times[0] / times[2], "");
}
