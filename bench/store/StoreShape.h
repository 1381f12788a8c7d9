// A section of the shape of the measurement options: 24 indices with 44 values each and two tables
// of 24 by 24, which makes 2,208 keys of booleans, integers and doubles, and the few in front of
// them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct StoreKey {
    enum class Type { kBoolean, kInteger, kDouble };
    std::string sKey;
    Type eType;
};

constexpr char kSectionName[] = "Measurements";

// The keys for a number of indices; 24 gives 2,300 keys, 48 twice as many.
std::vector<StoreKey> MakeKeys(int nIndices);

// The values of a round: each differs from round to round.
struct StoreValue {
    std::int32_t nInteger;
    double dDouble;
};
inline StoreValue ValueOf(std::size_t nKey, int nRound) {
    const int nValue = static_cast<int>(nKey % 97) + nRound;
    return {nValue, nValue * 1.25 + 0.001};
}

// Whole loads and saves through the store, within a batch.
void SaveBatch(const std::vector<StoreKey>& keys, int nRound, const char* szApp);
double LoadBatch(const std::vector<StoreKey>& keys, const char* szApp);

// A file with other sections around ours, as a host's settings have.
void WriteForeignFile(const char* szPath);

// The system's peers, one file per system: prints the rows.
void MeasureStorePeers(const std::vector<StoreKey>& keys, const std::string& sFolder);
