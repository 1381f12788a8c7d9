// What a section of the store promises for each key: the field of the record, its width, its text.
//
// A test lists the keys with literal names and fields; Check() then moves each key alone, both
// ways, and compares the whole record byte by byte, so that a key that reaches another field, more
// bytes or fewer than its own shows.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "KeyRecorder.h"

namespace test_support {

// One way in which a key is asked: a stored text and the bytes of the field after the load, or the
// bytes before a save and the text that it stores.
struct FieldText {
    std::string sText;
    std::string sBytes;
};

struct KeyField {
    std::string sKey;
    std::size_t nOffset;
    std::size_t nSize;
    std::vector<FieldText> vLoads;
    std::vector<FieldText> vSaves;
};

template <class Value>
std::string BytesOf(Value value) {
    return std::string(reinterpret_cast<const char*>(&value), sizeof value);
}

template <class Record>
class KeyFields {
  public:
    using Load = std::function<void(const char*, Record*)>;
    using Save = std::function<void(const char*, const Record*)>;

    KeyFields(std::string sSection, Load load, Save save)
        : m_sSection(std::move(sSection)), m_load(std::move(load)), m_save(std::move(save)) {}

    // The record that the fields of the rows below are members of.
    Record& Fields() { return *m_pFields; }

    template <class Field>
    void Bool(const std::string& sKey, const Field& field) {
        static_assert(sizeof(Field) == 1 || sizeof(Field) == 4);
        // Of a wide field the lowest byte alone does not tell.
        const auto uHigh = static_cast<Field>(Field{1} << (8 * sizeof(Field) - 7));
        Add(sKey, field,
            {{"TRUE", BytesOf(Field{1})}, {"FALSE", BytesOf(Field{0})}, {"3", BytesOf(Field{1})}},
            {{"TRUE", BytesOf(Field{1})}, {"FALSE", BytesOf(Field{0})}, {"TRUE", BytesOf(uHigh)}});
    }

    template <class Field>
    void Signed(const std::string& sKey, const Field& field) {
        static_assert(sizeof(Field) == 4);
        const std::vector<FieldText> both = {{"-70123", BytesOf(std::int32_t{-70123})},
                                             {"19088743", BytesOf(std::int32_t{0x01234567})}};
        std::vector<FieldText> vLoads = both;
        vLoads.push_back({"4000000000", BytesOf(std::int32_t{2147483647})});
        Add(sKey, field, vLoads, both);
    }

    template <class Field>
    void Unsigned(const std::string& sKey, const Field& field) {
        static_assert(sizeof(Field) == 4);
        const std::vector<FieldText> both = {{"4000000000", BytesOf(std::uint32_t{4000000000})},
                                             {"19088743", BytesOf(std::uint32_t{0x01234567})}};
        Add(sKey, field, both, both);
    }

    void Double(const std::string& sKey, const double& field) {
        Add(sKey, field, {{"0.1", BytesOf(0.1)}, {"-2.5e+200", BytesOf(-2.5e200)}},
            {{"0.1", BytesOf(0.1)}, {"-2.5e+200", BytesOf(-2.5e200)}, {"0.123456", BytesOf(kTie)}});
    }

    void Float(const std::string& sKey, const float& field) {
        Add(sKey, field, {{"0.1", BytesOf(0.1F)}, {"-2.5e+20", BytesOf(-2.5e20F)}},
            {{"0.1", BytesOf(0.1F)}, {"-2.5e+20", BytesOf(-2.5e20F)}});
    }

    // A double whose text is that of a float: what a float can't hold is lost both ways.
    void FloatText(const std::string& sKey, const double& field) {
        Add(sKey, field,
            {{"0.1", BytesOf(static_cast<double>(0.1F))},
             {"-2.5e+20", BytesOf(static_cast<double>(-2.5e20F))}},
            {{"0.1", BytesOf(0.1)}, {"-2.5e+20", BytesOf(-2.5e20)}, {"0.123457", BytesOf(kTie)}});
    }

    // A text that fills its field to the last byte but one, and one that is cut there.
    template <std::size_t N>
    void Text(const std::string& sKey, const char (&field)[N], std::size_t nSize) {
        EXPECT_EQ(N, nSize) << sKey;
        const std::string sFull(nSize - 1, 'q');
        const std::string sShort("A1 + b");
        Add(sKey, field,
            {{sShort, sShort + '\0'}, {sFull, sFull + '\0'}, {sFull + "rest", sFull + '\0'}},
            {{sShort, sShort + '\0'}, {sFull, sFull + '\0'}, {sFull + 'z', sFull + 'z'}});
    }

    // Keys that travel one way only.
    void LoadedOnly() { m_vRows.back().vSaves.clear(); }
    void SavedOnly() {
        KeyField& row = m_vRows.back();
        for (FieldText& load : row.vLoads) load.sBytes.assign(row.nSize, kFill);
    }

    void Check() const {
        for (std::size_t n = 0; n < m_vRows.size(); ++n) {
            CheckLoad([&](std::size_t nRow) { return nRow == n ? 0 : kNone; });
        }
        std::size_t nTurns = 1;
        while ((std::size_t{1} << nTurns) < m_vRows.size()) ++nTurns;
        for (std::size_t nTurn = 0; nTurn < nTurns; ++nTurn) {
            CheckBoth([&](std::size_t nRow) { return (nRow >> nTurn) % 2; });
            CheckBoth([&](std::size_t nRow) { return 1 - (nRow >> nTurn) % 2; });
        }
        CheckBoth([](std::size_t) { return std::size_t{2}; });
    }

  private:
    static constexpr char kFill = 0x5B;
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);
    // Next to the middle of two texts of six digits: a trace below as a double, above as a float.
    static constexpr double kTie = 0.12345649999999999;

    template <class Field>
    void Add(const std::string& sKey, const Field& field, std::vector<FieldText> vLoads,
             std::vector<FieldText> vSaves) {
        const auto nOffset =
            reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(m_pFields.get());
        ASSERT_GE(nOffset, 0) << sKey;
        ASSERT_LE(nOffset + sizeof field, sizeof(Record)) << sKey;
        m_vRows.push_back({sKey, static_cast<std::size_t>(nOffset), sizeof field, std::move(vLoads),
                           std::move(vSaves)});
    }

    static std::unique_ptr<Record> Filled() {
        auto pRecord = std::make_unique<Record>();
        std::memset(static_cast<void*>(pRecord.get()), kFill, sizeof(Record));
        return pRecord;
    }

    // Which of its values a row takes part with.
    using Choice = std::function<std::size_t(std::size_t nRow)>;

    void CheckBoth(const Choice& choose) const {
        CheckLoad(choose);
        CheckSave(choose);
    }

    // The value chosen for a row; null when it has none there.
    static const FieldText* Chosen(const std::vector<FieldText>& vTexts, std::size_t n) {
        return n < vTexts.size() ? &vTexts[n] : nullptr;
    }

    static void Put(Record& record, const KeyField& row, const std::string& sBytes) {
        std::memcpy(reinterpret_cast<char*>(&record) + row.nOffset, sBytes.data(), sBytes.size());
    }

    void CheckLoad(const Choice& choose) const {
        const ProfileScope profile;
        const auto pExpected = Filled();
        std::string sProfile = "[" + m_sSection + "]\r\n";
        for (std::size_t n = 0; n < m_vRows.size(); ++n) {
            const FieldText* pLoad = Chosen(m_vRows[n].vLoads, choose(n));
            if (pLoad == nullptr) continue;
            sProfile += m_vRows[n].sKey + "=" + pLoad->sText + "\r\n";
            Put(*pExpected, m_vRows[n], pLoad->sBytes);
        }
        profile.Write(sProfile);
        const auto pRecord = Filled();
        m_load(profile.Name(), pRecord.get());
        const char* pSeen = reinterpret_cast<const char*>(pRecord.get());
        const char* pWanted = reinterpret_cast<const char*>(pExpected.get());
        std::size_t n = 0;
        while (n < sizeof(Record) && pSeen[n] == pWanted[n]) ++n;
        EXPECT_EQ(n, sizeof(Record)) << "the byte at " << n << " is not as loaded from\n"
                                     << sProfile.substr(0, 2000);
    }

    void CheckSave(const Choice& choose) const {
        const ProfileScope profile;
        const auto pRecord = Filled();
        for (std::size_t n = 0; n < m_vRows.size(); ++n) {
            const FieldText* pSave = Chosen(m_vRows[n].vSaves, choose(n));
            if (pSave != nullptr) Put(*pRecord, m_vRows[n], pSave->sBytes);
        }
        m_save(profile.Name(), pRecord.get());
        std::map<std::string, std::string> texts;
        for (const std::string& sLine : profile.Lines(m_sSection)) {
            const std::size_t nKey = sLine.find('=');
            texts[sLine.substr(0, nKey)] = sLine.substr(nKey + 1);
        }
        for (std::size_t n = 0; n < m_vRows.size(); ++n) {
            const KeyField& row = m_vRows[n];
            const FieldText* pSave = Chosen(row.vSaves, choose(n));
            if (row.vSaves.empty()) {
                EXPECT_EQ(texts.count(row.sKey), 0u) << m_sSection << ": " << row.sKey;
            } else if (pSave != nullptr) {
                EXPECT_EQ(texts[row.sKey], pSave->sText) << m_sSection << ": " << row.sKey;
            }
        }
    }

    std::string m_sSection;
    Load m_load;
    Save m_save;
    std::unique_ptr<Record> m_pFields = std::make_unique<Record>();
    std::vector<KeyField> m_vRows;
};

}  // namespace test_support
