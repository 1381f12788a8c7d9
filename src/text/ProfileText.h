// The text of a private profile file, read and changed in memory by the platform's rules.
//
// Sections "[name]" hold lines "key=value"; names are compared without regard to the case of ASCII
// letters, blanks around names and values don't count, and of two entries or sections of one name
// the first one counts. Everything that isn't changed keeps its bytes: comments, foreign keys,
// blank lines, order. A section is taken apart on its first use only, and its keys are found by a
// hash, so that thousands of values cost little more than reading them. Any bytes are accepted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class ProfileText {
  public:
    explicit ProfileText(std::string sText);
    ProfileText(const ProfileText&) = delete;
    ProfileText& operator=(const ProfileText&) = delete;

    // Whether a text is in a Unicode encoding, by its first bytes.
    static bool IsUnicode(std::string_view sText);

    // Finds the value of a key: its text without blanks around it, quotes included. Returns false
    // when there is no such section or key, or the line has no "=".
    bool Find(std::string_view sSection, std::string_view sKey, std::string_view* psValue);

    // Sets a value, in the place of the old one or behind the last key of its section; the section
    // goes to the end of the text when it is new. A value ends at its first line break.
    void Set(std::string_view sSection, std::string_view sKey, std::string_view sValue);

    void RemoveKey(std::string_view sSection, std::string_view sKey);
    void RemoveSection(std::string_view sSection);

    // Removes every entry of a section, which is made if it isn't there. Comments stay.
    void ClearSection(std::string_view sSection);

    // Call `visit` with each section's name, or with each entry's key, value and whether it has a
    // "=". Comments and blank lines are left out. EachEntry returns false when there is no such
    // section.
    template <typename Visit>
    void EachSection(Visit visit) const;
    template <typename Visit>
    bool EachEntry(std::string_view sSection, Visit visit);

    bool IsChanged() const { return m_bChanged; }
    std::string Text() const;

    // A value without the pair of quotes around it, if it has one.
    static std::string_view Unquoted(std::string_view sValue);

  private:
    struct Line {
        std::string_view sText;  // as it stands in the file; empty for a line made here
        std::string_view sKey;
        std::string_view sValue;
        bool bEntry;  // not a comment and not blank
        bool bHasEqual;
        bool bRemoved;
    };
    struct Section {
        std::string_view sName;
        std::string_view sHeader;    // the line as it stands; empty for a section made here
        std::string_view sBody;      // the lines behind it
        std::string_view sBlankEnd;  // blank lines at the end of a section taken apart
        std::vector<Line> lines;
        std::vector<std::uint32_t> index;  // line number + 1 by hash of the key; 0 is free
        bool bParsed = false;
        bool bRemoved = false;
    };

    static bool IsSpace(char ch) { return ch == ' ' || (ch >= '\t' && ch <= '\r') || ch == '\x1A'; }
    static char Fold(char ch) {
        return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch + ('a' - 'A')) : ch;
    }
    static bool EqualFolded(std::string_view a, std::string_view b);
    static std::uint32_t Hash(std::string_view s);
    static std::string_view Trim(std::string_view s);
    static std::string_view NextLine(std::string_view& sRest);
    static bool ReadHeader(std::string_view sLine, std::string_view* psName);
    static Line ReadLine(std::string_view sLine);

    Section* FindSection(std::string_view sName);
    Section* FindOrAddSection(std::string_view sName);
    static void Parse(Section& section);
    static void AddToIndex(Section& section, std::uint32_t uLine);
    static Line* FindLine(Section& section, std::string_view sKey);
    std::string_view Keep(std::string_view s);
    void Append(std::string& sOut, std::string_view sLine) const;

    std::string m_sText;
    std::string_view m_sEol = "\r\n";
    std::vector<std::unique_ptr<Section>> m_sections;  // the first has no header and the name ""
    Section* m_pLast = nullptr;                        // the section found last
    std::deque<std::string> m_kept;                    // texts of changed lines
    bool m_bChanged = false;
};

inline bool ProfileText::IsUnicode(std::string_view sText) {
    return sText.substr(0, 3) == "\xEF\xBB\xBF" || sText.substr(0, 2) == "\xFF\xFE" ||
           sText.substr(0, 2) == "\xFE\xFF";
}

inline bool ProfileText::EqualFolded(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && Fold(a[i]) != Fold(b[i])) return false;
    }
    return true;
}

inline std::uint32_t ProfileText::Hash(std::string_view s) {
    std::uint32_t uHash = 2166136261u;
    for (const char ch : s) uHash = (uHash ^ static_cast<unsigned char>(Fold(ch))) * 16777619u;
    return uHash;
}

inline std::string_view ProfileText::Trim(std::string_view s) {
    while (!s.empty() && IsSpace(s.front())) s.remove_prefix(1);
    while (!s.empty() && IsSpace(s.back())) s.remove_suffix(1);
    return s;
}

// Takes the next line with its end from the text: "\n", "\r\n" or a "\r" alone.
inline std::string_view ProfileText::NextLine(std::string_view& sRest) {
    std::size_t nEnd = 0;
    while (nEnd < sRest.size() && sRest[nEnd] != '\n' && sRest[nEnd] != '\r') ++nEnd;
    if (nEnd < sRest.size()) nEnd += sRest.substr(nEnd, 2) == "\r\n" ? 2 : 1;
    const std::string_view sLine = sRest.substr(0, nEnd);
    sRest.remove_prefix(nEnd);
    return sLine;
}

// A header runs from "[" at the start of a line to the last "]" of it.
inline bool ProfileText::ReadHeader(std::string_view sLine, std::string_view* psName) {
    sLine = Trim(sLine);
    if (!sLine.starts_with('[')) return false;
    const std::size_t nEnd = sLine.rfind(']');
    if (nEnd == std::string_view::npos) return false;
    *psName = Trim(sLine.substr(1, nEnd - 1));
    return true;
}

inline ProfileText::Line ProfileText::ReadLine(std::string_view sLine) {
    Line line = {};
    line.sText = sLine;
    const std::string_view sContent = Trim(sLine);
    if (sContent.empty() || sContent.front() == ';') return line;
    line.bEntry = true;
    const std::size_t nEqual = sContent.find('=');
    line.bHasEqual = nEqual != std::string_view::npos;
    line.sKey = Trim(sContent.substr(0, nEqual));
    if (line.bHasEqual) line.sValue = Trim(sContent.substr(nEqual + 1));
    return line;
}

inline ProfileText::ProfileText(std::string sText) : m_sText(std::move(sText)) {
    std::string_view sRest = m_sText;
    auto pSection = std::make_unique<Section>();
    const char* pBody = m_sText.data();
    const auto finish = [&](const char* pEnd) {
        pSection->sBody = std::string_view(pBody, static_cast<std::size_t>(pEnd - pBody));
        m_sections.push_back(std::move(pSection));
    };
    bool bFirst = true;
    while (!sRest.empty()) {
        const std::string_view sLine = NextLine(sRest);
        if (bFirst && sLine.ends_with('\n') && !sLine.ends_with("\r\n")) m_sEol = "\n";
        std::string_view sContent = sLine;
        if (bFirst && sContent.substr(0, 3) == "\xEF\xBB\xBF") sContent.remove_prefix(3);
        bFirst = false;
        std::string_view sName;
        if (ReadHeader(sContent, &sName)) {
            finish(sLine.data());
            pSection = std::make_unique<Section>();
            pSection->sName = sName;
            pSection->sHeader = sLine;
            pBody = sLine.data() + sLine.size();
        }
    }
    finish(m_sText.data() + m_sText.size());
}

inline void ProfileText::AddToIndex(Section& section, std::uint32_t uLine) {
    const std::size_t nMask = section.index.size() - 1;
    std::size_t i = Hash(section.lines[uLine].sKey) & nMask;
    while (section.index[i] != 0) i = (i + 1) & nMask;
    section.index[i] = uLine + 1;
}

inline void ProfileText::Parse(Section& section) {
    section.bParsed = true;
    std::string_view sRest = section.sBody;
    while (!sRest.empty()) section.lines.push_back(ReadLine(NextLine(sRest)));
    std::size_t nBlank = 0;
    while (!section.lines.empty() && Trim(section.lines.back().sText).empty()) {
        nBlank += section.lines.back().sText.size();
        section.lines.pop_back();
    }
    section.sBlankEnd = section.sBody.substr(section.sBody.size() - nBlank);
}

// Lines are found in the order in which they stand, so that the first of one name counts.
inline ProfileText::Line* ProfileText::FindLine(Section& section, std::string_view sKey) {
    if (!section.bParsed) Parse(section);
    if (section.index.size() <= section.lines.size() * 2) {
        std::size_t nSize = 16;
        while (nSize < section.lines.size() * 4) nSize *= 2;
        section.index.assign(nSize, 0);
        for (std::uint32_t i = 0; i < section.lines.size(); ++i) {
            if (section.lines[i].bEntry) AddToIndex(section, i);
        }
    }
    const std::size_t nMask = section.index.size() - 1;
    for (std::size_t i = Hash(sKey) & nMask; section.index[i] != 0; i = (i + 1) & nMask) {
        Line& line = section.lines[section.index[i] - 1];
        if (!line.bRemoved && EqualFolded(line.sKey, sKey)) return &line;
    }
    return nullptr;
}

inline ProfileText::Section* ProfileText::FindSection(std::string_view sName) {
    sName = Trim(sName);
    if (m_pLast != nullptr && EqualFolded(m_pLast->sName, sName)) return m_pLast;
    for (const auto& pSection : m_sections) {
        if (!pSection->bRemoved && EqualFolded(pSection->sName, sName)) {
            return m_pLast = pSection.get();
        }
    }
    return nullptr;
}

inline bool ProfileText::Find(std::string_view sSection, std::string_view sKey,
                              std::string_view* psValue) {
    Section* pSection = FindSection(sSection);
    if (pSection == nullptr) return false;
    const Line* pLine = FindLine(*pSection, Trim(sKey));
    if (pLine == nullptr || !pLine->bHasEqual) return false;
    *psValue = pLine->sValue;
    return true;
}

inline std::string_view ProfileText::Keep(std::string_view s) {
    return m_kept.emplace_back(s);
}

inline ProfileText::Section* ProfileText::FindOrAddSection(std::string_view sName) {
    if (Section* pSection = FindSection(sName)) return pSection;
    auto pNew = std::make_unique<Section>();
    pNew->sName = Keep(Trim(sName));
    m_sections.push_back(std::move(pNew));
    m_bChanged = true;
    return m_pLast = m_sections.back().get();
}

inline void ProfileText::Set(std::string_view sSection, std::string_view sKey,
                             std::string_view sValue) {
    sKey = Trim(sKey);
    if (sKey.empty()) return;
    // Only what a reader will see is kept of the value.
    sValue = Trim(sValue.substr(0, sValue.find_first_of("\r\n")));
    Section* pSection = FindOrAddSection(sSection);
    Line* pLine = FindLine(*pSection, sKey);
    if (pLine != nullptr) {
        if (pLine->bHasEqual && pLine->sValue == sValue) return;
        pLine->sValue = Keep(sValue);
        pLine->sText = {};
        pLine->bHasEqual = true;
    } else {
        pSection->lines.push_back({{}, Keep(sKey), Keep(sValue), true, true, false});
        // FindLine left room for it.
        AddToIndex(*pSection, static_cast<std::uint32_t>(pSection->lines.size() - 1));
    }
    m_bChanged = true;
}

inline void ProfileText::RemoveKey(std::string_view sSection, std::string_view sKey) {
    Section* pSection = FindSection(sSection);
    Line* pLine = pSection != nullptr ? FindLine(*pSection, Trim(sKey)) : nullptr;
    if (pLine == nullptr) return;
    pLine->bRemoved = true;
    m_bChanged = true;
}

inline void ProfileText::RemoveSection(std::string_view sSection) {
    Section* pSection = FindSection(sSection);
    // The lines before the first header are no section that could go.
    if (pSection == nullptr || pSection->sName.empty()) return;
    pSection->bRemoved = true;
    m_pLast = nullptr;
    m_bChanged = true;
}

inline void ProfileText::ClearSection(std::string_view sSection) {
    Section* pSection = FindOrAddSection(sSection);
    if (!pSection->bParsed) Parse(*pSection);
    for (Line& line : pSection->lines) {
        if (!line.bEntry) continue;
        line.bRemoved = true;
        m_bChanged = true;
    }
}

template <typename Visit>
void ProfileText::EachSection(Visit visit) const {
    for (const auto& pSection : m_sections) {
        if (!pSection->bRemoved && !pSection->sName.empty()) visit(pSection->sName);
    }
}

template <typename Visit>
bool ProfileText::EachEntry(std::string_view sSection, Visit visit) {
    Section* pSection = FindSection(sSection);
    if (pSection == nullptr) return false;
    if (!pSection->bParsed) Parse(*pSection);
    for (const Line& line : pSection->lines) {
        if (line.bEntry && !line.bRemoved) visit(line.sKey, line.sValue, line.bHasEqual);
    }
    return true;
}

// Starts a line: the one before it may have come from the end of the file without a line end.
inline void ProfileText::Append(std::string& sOut, std::string_view sLine) const {
    if (!sLine.empty() && !sOut.empty() && sOut.back() != '\n' && sOut.back() != '\r')
        sOut += m_sEol;
    sOut += sLine;
}

inline std::string ProfileText::Text() const {
    std::string sOut;
    for (const auto& pSection : m_sections) {
        const Section& section = *pSection;
        if (section.bRemoved) continue;
        if (!section.sHeader.empty()) {
            Append(sOut, section.sHeader);
        } else if (!section.sName.empty()) {
            Append(sOut, "[");
            sOut += section.sName;
            sOut += ']';
            sOut += m_sEol;
        }
        if (!section.bParsed) Append(sOut, section.sBody);
        for (const Line& line : section.lines) {
            if (line.bRemoved) continue;
            if (!line.sText.empty()) {
                Append(sOut, line.sText);
                continue;
            }
            Append(sOut, line.sKey);
            sOut += '=';
            sOut += line.sValue;
            sOut += m_sEol;
        }
        Append(sOut, section.sBlankEnd);
    }
    return sOut;
}

inline std::string_view ProfileText::Unquoted(std::string_view sValue) {
    if (sValue.size() < 2) return sValue;
    const char ch = sValue.front();
    if ((ch != '"' && ch != '\'') || sValue.back() != ch) return sValue;
    return sValue.substr(1, sValue.size() - 2);
}
