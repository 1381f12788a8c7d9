// What every dialog template promises its user: nothing overlaps or is cut, labels stand with their
// fields, the keyboard follows the eye.

#include <gtest/gtest.h>

#include <cctype>
#include <map>
#include <set>

#include "TemplateBytes.h"

namespace {

// One pixel of the templates' font is 4/6 units wide and 8/13 high.
int UnitsWide(int pixels) {
    return (pixels * 4 + 5) / 6;
}

class TemplateLint : public testing::Test {
  protected:
    TemplateLint() : templates(ReadTemplates()) {
        LOGFONTA logFont = {};
        logFont.lfHeight = -11;
        logFont.lfWeight = FW_NORMAL;
        logFont.lfCharSet = DEFAULT_CHARSET;
        std::snprintf(logFont.lfFaceName, sizeof logFont.lfFaceName, "MS Shell Dlg");
        font = CreateFontIndirectA(&logFont);
    }
    ~TemplateLint() override { DeleteObject(font); }

    // Width of a caption in units, without its mnemonic mark.
    int TextWidth(const std::string& caption) const {
        HDC dc = GetDC(nullptr);
        HGDIOBJ old = SelectObject(dc, font);
        RECT rect = {0, 0, 0, 0};
        DrawTextA(dc, caption.c_str(), static_cast<int>(caption.size()), &rect,
                  DT_CALCRECT | DT_SINGLELINE);
        SelectObject(dc, old);
        ReleaseDC(nullptr, dc);
        return UnitsWide(rect.right - rect.left);
    }

    static std::string Where(const TemplateBytes& dialog, const TemplateItem& item) {
        return "template " + std::to_string(dialog.id) + ", " + item.kind + " " +
               std::to_string(item.id) + " \"" + item.text + "\" at " + std::to_string(item.x) +
               "," + std::to_string(item.y);
    }

    // With a noun of twelve letters and the longest likely numbers in the places of a caption.
    static std::string Filled(std::string text, const std::string& noun = "measurements") {
        const std::pair<const char*, std::string> places[] = {
            {"%s", noun}, {"%0", "10000"}, {"%1", "10000"}, {"%2", noun}};
        for (const auto& [place, value] : places) {
            for (std::size_t at; (at = text.find(place)) != std::string::npos;) {
                text.replace(at, std::string(place).size(), value);
            }
        }
        return text;
    }

    // The texts that a control may show, as the code forms them; else that of the template.
    static std::vector<std::string> TextsOf(int dialog, const TemplateItem& item) {
        static const std::map<std::pair<int, int>, std::vector<std::string>> formed = {
            {{2101, 2431}, {"&%s:", "Data &Group:"}},
            {{2101, 2425}, {"%s at c&ursor 3:", "Data group at c&ursor 3:"}},
            {{2101, 2367}, {"Peak r&egion:", "Mean r&egion:", "Mean/peak region:"}},
            {{2130, 2437}, {"%s:", "Data &Group:"}},
            {{2130, 2439}, {"%s:", "Data Gro&up:"}},
            {{2130, 2432}, {"%s:", "&Data Set:"}},
            {{2130, 2433}, {"%s:", "Data &Set:"}},
            {{2131, 2187}, {"Select %s:", "Select Group:"}},
            {{2132, 2187}, {"Select %s:", "Select Group:"}},
            {{2119, 2187}, {"Select %s:", "Select Group:"}},
            {{2122, 2187}, {"Select %s:", "Select Group:"}},
            {{2125, 2187}, {"Select %s:", "Select Group:"}},
            {{2131, 2344}, {"Select %ss:", "Select Set:"}},
            {{2132, 2344}, {"Select %ss:", "Select Set:"}},
            {{2119, 2344}, {"Select %ss:", "Select Set:"}},
            {{2122, 2344}, {"Select %ss:", "Select Set:"}},
            {{2125, 2344}, {"Select %ss:", "Select Set:"}},
            {{2132, 2345}, {"Select %s Set &1:", "Select Set &1:"}},
            {{2132, 2346}, {"Select %s Set &2:", "Select Set &2:"}},
            {{2383, 2187}, {"Select %s:", "Select Group:"}},
            {{2384, 2187}, {"Select %s:", "Select Group:"}},
            {{2385, 2187}, {"Select %s:", "Select Group:"}},
            {{2384, 2344}, {"Set:", "Column:"}},
            {{2385, 2344}, {"Data set:", "Column:"}},
            {{2129, 2402}, {"%s to sear&ch:", "Data group to sear&ch:"}},
            {{2116, 2524}, {"%s:", "&Data group:"}},
            // With a unit of two letters.
            {{2116, 2476}, {"Pea&k amplitude (pA)"}},
            {{2116, 2478}, {"Antipeak amplitude (pA)"}},
            {{2116, 2480}, {"Mean (pA)"}},
            {{2116, 2481}, {"Standard deviation (pA)"}},
            {{2116, 2482}, {"Area (pA \xB7 ms)"}},
            {{2116, 2483}, {"Maximum rise slope (pA/ms)"}},
            {{2116, 2472}, {"Maximum decay slope (pA/ms)"}},
            {{2116, 2492}, {"Slope (pA/ms)"}},
            {{2116, 2488}, {"Baseline (pA)"}},
            {{2116, 2490}, {"Rise slope (pA/ms)"}},
            {{2116, 2491}, {"Decay slope (pA/ms)"}},
            {{2116, 2493}, {"%"}},
            {{2116, 2494}, {"%"}},
            {{2116, 2495}, {"%"}},
            {{2116, 2496}, {"%"}},
            {{2116, 2505}, {"%"}},
        };
        const auto found = formed.find({dialog, item.id});
        return found != formed.end() ? found->second : std::vector<std::string>{item.text};
    }

    // Of these items one is hidden whenever the other is shown.
    static bool StandInTurn(int dialog, int a, int b) {
        const std::set<int> pair = {a, b};
        switch (dialog) {
            case 2103: {  // a cutoff, the points of a boxcar
                const std::set<int> cutoff = {2259, 2263, 2282, 2604, 2605};
                const std::set<int> points = {2264, 2265, 2606};
                return (cutoff.count(a) != 0 && points.count(b) != 0) ||
                       (cutoff.count(b) != 0 && points.count(a) != 0);
            }
            case 2104:  // the help of the custom function, the equation's picture
                return pair == std::set<int>{2016, 2048};
            case 2107:  // what to enter, that nothing need be entered
                return pair == std::set<int>{2120, 2295};
            case 2133: {  // a cursor pair, limits
                const std::set<int> cursors = {2177, 2570};
                const std::set<int> limits = {2579, 2580, 2581, 2582, 2585, 2586};
                return (cursors.count(a) != 0 && limits.count(b) != 0) ||
                       (cursors.count(b) != 0 && limits.count(a) != 0);
            }
            default:
                return false;
        }
    }

    static char Mnemonic(const std::string& text) {
        for (std::size_t i = 0; i + 1 < text.size(); ++i) {
            if (text[i] != '&') continue;
            if (text[i + 1] != '&')
                return static_cast<char>(std::tolower(static_cast<unsigned char>(text[i + 1])));
            ++i;
        }
        return 0;
    }

    // The option pages of curve fitting, whose dialog shows the data pages in more room than they
    // need.
    static bool IsFitPage(const TemplateBytes& dialog) {
        return dialog.id == 2105 || dialog.id == 2107 || dialog.id == 2133;
    }

    // The option pages of the filter, of the spectrum and of the measurements need more room than
    // the data pages, which are shown in the same place.
    static bool IsLargePage(const TemplateBytes& dialog) {
        return dialog.id == 2103 || dialog.id == 2127 || dialog.id == 2116 || dialog.id == 2117;
    }

    std::vector<TemplateBytes> templates;
    HFONT font;
};

TEST_F(TemplateLint, ThereAreTemplates) {
    EXPECT_GE(templates.size(), 7u);
}

TEST_F(TemplateLint, FontIsTheShellDialogFont) {
    for (const TemplateBytes& dialog : templates) {
        SCOPED_TRACE(dialog.id);
        EXPECT_EQ(dialog.points, 8);
        EXPECT_EQ(dialog.face, "MS Shell Dlg");
        EXPECT_EQ(dialog.style & (DS_SETFONT | DS_FIXEDSYS),
                  static_cast<DWORD>(DS_SETFONT | DS_FIXEDSYS));
    }
}

TEST_F(TemplateLint, PagesAreChildrenAndNothingElse) {
    for (const TemplateBytes& dialog : templates) {
        if ((dialog.style & WS_CHILD) == 0) continue;
        SCOPED_TRACE(dialog.id);
        EXPECT_EQ(dialog.style & (WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_THICKFRAME), 0u);
    }
}

TEST_F(TemplateLint, DialogsFitASmallScreen) {
    for (const TemplateBytes& dialog : templates) {
        SCOPED_TRACE(dialog.id);
        EXPECT_LE(dialog.cx * 6 / 4, 790);
        EXPECT_LE(dialog.cy * 13 / 8, 560);
    }
}

TEST_F(TemplateLint, IdsAreUnique) {
    for (const TemplateBytes& dialog : templates) {
        std::set<int> ids;
        for (const TemplateItem& item : dialog.items) {
            if (item.id == -1) continue;
            EXPECT_TRUE(ids.insert(item.id).second) << Where(dialog, item);
        }
    }
}

TEST_F(TemplateLint, ItemsStayInsideTheirDialogWithItsMargins) {
    for (const TemplateBytes& dialog : templates) {
        for (const TemplateItem& item : dialog.items) {
            EXPECT_GE(item.x, 7) << Where(dialog, item);
            EXPECT_GE(item.y, 7) << Where(dialog, item);
            EXPECT_LE(item.right(), dialog.cx - 7) << Where(dialog, item);
            EXPECT_LE(item.bottom(), dialog.cy - 7) << Where(dialog, item);
        }
    }
}

TEST_F(TemplateLint, NothingOverlaps) {
    for (const TemplateBytes& dialog : templates) {
        for (std::size_t i = 0; i < dialog.items.size(); ++i) {
            for (std::size_t j = i + 1; j < dialog.items.size(); ++j) {
                const TemplateItem& a = dialog.items[i];
                const TemplateItem& b = dialog.items[j];
                if (!a.isVisible() || !b.isVisible()) continue;
                const bool meet =
                    a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
                if (!meet) continue;
                if (StandInTurn(dialog.id, a.id, b.id)) continue;
                // A group box holds its items whole.
                const TemplateItem* box = a.isGroupBox() ? &a : b.isGroupBox() ? &b : nullptr;
                const TemplateItem* inner = box == &a ? &b : &a;
                const bool inside = box != nullptr && !inner->isGroupBox() &&
                                    inner->x >= box->x + 6 && inner->right() <= box->right() - 6 &&
                                    inner->y >= box->y + 11 && inner->bottom() <= box->bottom() - 7;
                EXPECT_TRUE(inside) << Where(dialog, a) << " meets " << Where(dialog, b);
            }
        }
    }
}

// The pages of curve fitting and of the measurements are as wide as the smallest screen allows: a
// few of their captions just fit.
bool HasNoRoomToSpare(int dialog, int id) {
    static const std::set<std::pair<int, int>> items = {
        {2105, 2060}, {2116, 2455}, {2133, 2018}, {2133, 2036}, {2133, 2603}};
    return items.count({dialog, id}) != 0;
}

// Fonts differ between systems: a tenth of each caption's width stays free.
TEST_F(TemplateLint, CaptionsFitTheirControlsWithATenthToSpare) {
    for (const TemplateBytes& dialog : templates) {
        for (const TemplateItem& item : dialog.items) {
            if (item.kind != "BUTTON" && item.kind != "STATIC") continue;
            if (!item.isVisible() || item.text.empty() || item.text == "%0" || item.text == "%s")
                continue;
            for (const std::string& text : TextsOf(dialog.id, item)) {
                const int spare = HasNoRoomToSpare(dialog.id, item.id) ? 0 : 1;
                int needed = TextWidth(Filled(text)) * (10 + spare) / 10;
                if (item.isRadio() || item.buttonType() == BS_AUTOCHECKBOX) needed += 12;
                if (item.buttonType() == BS_PUSHBUTTON || item.buttonType() == BS_DEFPUSHBUTTON)
                    needed += 6;
                const int lines = item.kind == "STATIC" ? item.cy / 8 : 1;
                EXPECT_LE(needed, item.cx * lines)
                    << Where(dialog, item) << " with \"" << text << "\" wants " << needed << " of "
                    << item.cx * lines;
            }
        }
    }
}

TEST_F(TemplateLint, SizesFollowTheHouseStyle) {
    for (const TemplateBytes& dialog : templates) {
        for (const TemplateItem& item : dialog.items) {
            if (item.buttonType() == BS_PUSHBUTTON || item.buttonType() == BS_DEFPUSHBUTTON) {
                EXPECT_EQ(item.cy, 14) << Where(dialog, item);
                EXPECT_GE(item.cx, 50) << Where(dialog, item);
            } else if (item.isRadio() || item.buttonType() == BS_AUTOCHECKBOX) {
                EXPECT_EQ(item.cy, 10) << Where(dialog, item);
            } else if (item.kind == "EDIT" && (item.style & ES_MULTILINE) == 0) {
                EXPECT_EQ(item.cy, 14) << Where(dialog, item);
            } else if (item.kind == "LISTBOX") {
                EXPECT_GE(item.cy, 3 * 8 + 2) << Where(dialog, item);
            }
        }
    }
}

TEST_F(TemplateLint, DialogsHaveOneDefaultButtonAndItIsOk) {
    for (const TemplateBytes& dialog : templates) {
        if ((dialog.style & WS_CHILD) != 0) continue;
        int defaults = 0;
        for (const TemplateItem& item : dialog.items) {
            if (item.buttonType() != BS_DEFPUSHBUTTON) continue;
            ++defaults;
            EXPECT_EQ(item.id, IDOK) << Where(dialog, item);
        }
        EXPECT_EQ(defaults, 1) << "template " << dialog.id;
    }
}

TEST_F(TemplateLint, RadioSetsAreOneTabStopEach) {
    for (const TemplateBytes& dialog : templates) {
        for (std::size_t i = 0; i < dialog.items.size(); ++i) {
            const TemplateItem& item = dialog.items[i];
            const bool afterRadio = i > 0 && dialog.items[i - 1].isRadio();
            if (item.isRadio()) {
                const bool first = (item.style & WS_GROUP) != 0;
                EXPECT_EQ(item.isTabStop(), first) << Where(dialog, item);
                EXPECT_TRUE(first || afterRadio) << Where(dialog, item);
            } else if (afterRadio) {
                EXPECT_NE(item.style & WS_GROUP, 0u) << "ends a radio set: " << Where(dialog, item);
            }
        }
    }
}

// Captions are given; where two of one page share a letter, it stays so and is listed here.
struct Clash {
    int dialog;
    char letter;
    const char* reason;
};
constexpr Clash kClashes[] = {
    {2101, 's', "a host that says Signal or Sweep, and \"Smoothing filter points:\""},
    {2101, 'e', "a host that says Episode, \"Epoch:\" and the region"},
    {2101, 'k', "a host that says Kolumne, and \"Peak\""},
    {2101, 'u', "\"... at cursor 3:\" and \"Value at cursor 1\""},
    {2109, 'd', "\"Data value at cursor 1\" and \"Dynamically link graph\""},
    {2114, 'w', "\"Waveform:\" and \"Write analysis region information\""},
    {2124, 'w', "\"Waveform:\" and \"Write analysis region information\""},
    {2384, 't', "\"Active %s\" and \"To:\""},
    {2385, 't', "\"Active %s\" and \"To:\""},
    {2130, 'd', "\"Data Set:\" and \"Dynamically link graph\""},
};

bool IsKnownClash(int dialog, char letter) {
    for (const Clash& clash : kClashes) {
        if (clash.dialog == dialog && clash.letter == letter) return true;
    }
    return false;
}

// With every noun that hosts are known to use, and with none.
TEST_F(TemplateLint, MnemonicsAreUniqueOnEachPage) {
    std::set<std::pair<int, char>> met;
    for (const std::string noun :
         {"", "Signal", "Sweep", "Trace", "Channel", "Episode", "Kolumne"}) {
        for (const TemplateBytes& dialog : templates) {
            std::map<char, std::string> taken;
            for (const TemplateItem& item : dialog.items) {
                std::set<char> letters;  // of all texts that this control may show
                for (const std::string& text : TextsOf(dialog.id, item)) {
                    const bool hasNoun = text.find("%s") != std::string::npos;
                    const bool isFormed = TextsOf(dialog.id, item).size() > 1;
                    if (isFormed && hasNoun == noun.empty()) continue;
                    letters.insert(Mnemonic(Filled(text, noun)));
                }
                for (const char letter : letters) {
                    if (letter == 0 || taken.emplace(letter, item.text).second) continue;
                    met.insert({dialog.id, letter});
                    EXPECT_TRUE(IsKnownClash(dialog.id, letter))
                        << Where(dialog, item) << " shares '" << letter << "' with \""
                        << taken[letter] << "\", noun " << noun;
                }
            }
        }
    }
    for (const Clash& clash : kClashes)
        EXPECT_EQ(met.count({clash.dialog, clash.letter}), 1u) << "gone: " << clash.reason;
}

// The results destination has one pair of keys, but where a caption of the page has one of them.
TEST_F(TemplateLint, AppendAndReplaceHaveTheirOwnKeys) {
    const std::map<int, std::string> others = {
        {2387, "pr"},   // "Adjust manually"
        {2109, "au"},   // "Region to force:"
        {2133, "ap"},   // "Auto-free fixed parameters and refit"
        {2129, "us"}};  // "Absolute" and "Right"; "Positive" and "Region to search:"
    for (const TemplateBytes& dialog : templates) {
        std::string keys;
        for (const TemplateItem& item : dialog.items) {
            if (item.id == 2246 || item.id == 2248) keys += Mnemonic(item.text);
        }
        if (keys.empty()) continue;
        const auto other = others.find(dialog.id);
        EXPECT_EQ(keys, other != others.end() ? other->second : "ar") << dialog.id;
    }
}

// The keyboard meets a choice before what it opens.
TEST_F(TemplateLint, WhatAChoiceOpensComesBehindIt) {
    const struct {
        int dialog, choice, opened;
    } rows[] = {
        {2131, 2252, 2189}, {2131, 2242, 2342}, {2131, 2241, 2237}, {2132, 2252, 2189},
        {2132, 2242, 2342}, {2132, 2241, 2237}, {2125, 2241, 2237}, {2125, 2242, 2342},
        {2101, 2425, 2414}, {2101, 2426, 2420}, {2101, 2429, 2410}, {2101, 2430, 2421},
        {2383, 2252, 2189}, {2383, 2242, 2342}, {2383, 2241, 2237}, {2384, 2252, 2189},
        {2384, 2242, 2342}, {2384, 2241, 2237}, {2385, 2252, 2189}, {2384, 2588, 2194},
    };
    for (const auto& row : rows) {
        int choice = -1, opened = -1, place = 0;
        for (const TemplateBytes& dialog : templates) {
            if (dialog.id != row.dialog) continue;
            for (const TemplateItem& item : dialog.items) {
                if (item.id == row.choice) choice = place;
                if (item.id == row.opened) opened = place;
                ++place;
            }
        }
        EXPECT_GE(choice, 0) << row.dialog << ' ' << row.choice;
        EXPECT_GT(opened, choice) << row.dialog << ' ' << row.opened;
    }
}

TEST_F(TemplateLint, TabOrderFollowsTheEye) {
    for (const TemplateBytes& dialog : templates) {
        const TemplateItem* last = nullptr;
        for (const TemplateItem& item : dialog.items) {
            if (!item.isTabStop() && !item.isRadio()) continue;
            if (last != nullptr && !StandInTurn(dialog.id, item.id, last->id)) {
                const bool backUp = item.bottom() <= last->y && item.x <= last->x;
                const bool backLeft =
                    item.y < last->bottom() && last->y < item.bottom() && item.x < last->x;
                EXPECT_FALSE(backUp || backLeft)
                    << Where(dialog, item) << " comes after " << Where(dialog, *last);
            }
            last = &item;
        }
    }
}

TEST_F(TemplateLint, LabelsStandDirectlyBeforeTheirFields) {
    for (const TemplateBytes& dialog : templates) {
        for (std::size_t i = 0; i < dialog.items.size(); ++i) {
            const TemplateItem& label = dialog.items[i];
            if (label.kind != "STATIC" || Mnemonic(label.text) == 0) continue;
            ASSERT_LT(i + 1, dialog.items.size()) << Where(dialog, label);
            const TemplateItem& field = dialog.items[i + 1];
            EXPECT_TRUE(field.kind == "EDIT" || field.kind == "COMBOBOX" || field.kind == "LISTBOX")
                << Where(dialog, label) << " stands before " << Where(dialog, field);
            const bool above =
                field.y >= label.bottom() && field.y - label.bottom() <= 5 && field.x == label.x;
            const bool beside =
                label.y == field.y + 3 && field.x >= label.right() && field.x - label.right() <= 8;
            EXPECT_TRUE(above || beside)
                << Where(dialog, label) << " is not at " << Where(dialog, field);
        }
    }
}

// What a screen reader says of a field is the text directly before it: a label, or the button that
// opens the field; behind a set of buttons, a label that is not shown.
TEST_F(TemplateLint, EveryFieldHasAName) {
    for (const TemplateBytes& dialog : templates) {
        for (std::size_t i = 0; i < dialog.items.size(); ++i) {
            const TemplateItem& field = dialog.items[i];
            if (field.kind != "EDIT" && field.kind != "COMBOBOX" && field.kind != "LISTBOX")
                continue;
            ASSERT_GT(i, 0u) << Where(dialog, field);
            const TemplateItem& before = dialog.items[i - 1];
            const bool names = before.kind == "STATIC" || before.kind == "BUTTON";
            // A label with an id may get its text when the page knows it.
            const bool filled =
                !before.text.empty() || (before.kind == "STATIC" && before.id != -1);
            EXPECT_TRUE(names && !before.isGroupBox() && filled)
                << Where(dialog, field) << " has no name";
            // The last button of a set names a field that stands beside it or right below.
            if (!before.isRadio()) continue;
            const bool beside = before.y < field.bottom() && field.y < before.bottom();
            EXPECT_TRUE(beside || field.y - before.bottom() <= 5)
                << Where(dialog, before) << " names " << Where(dialog, field);
        }
    }
}

TEST_F(TemplateLint, PagesOfOneSizeForAllDataTabs) {
    for (const TemplateBytes& dialog : templates) {
        if ((dialog.style & WS_CHILD) == 0 || IsFitPage(dialog)) continue;
        SCOPED_TRACE(dialog.id);
        if (IsLargePage(dialog)) {
            EXPECT_GT(dialog.cx, 341);
            EXPECT_GT(dialog.cy, 196);
            continue;
        }
        EXPECT_EQ(dialog.cx, 341);
        EXPECT_EQ(dialog.cy, 196);
    }
}

TEST_F(TemplateLint, PagesOfCurveFittingShareOneSize) {
    int pages = 0;
    for (const TemplateBytes& dialog : templates) {
        if (!IsFitPage(dialog)) continue;
        SCOPED_TRACE(dialog.id);
        EXPECT_EQ(dialog.cx, 398);
        EXPECT_EQ(dialog.cy, 206);
        ++pages;
    }
    EXPECT_EQ(pages, 3);
}

// With its frame and title bar.
TEST_F(TemplateLint, TheLargestDialogsFitTheSmallestScreen) {
    std::set<int> seen;
    for (const TemplateBytes& dialog : templates) {
        if (dialog.id != 2104 && dialog.id != 2115) continue;
        EXPECT_LE(dialog.cx * 6 / 4 + 6, 640) << dialog.id;
        EXPECT_LE(dialog.cy * 13 / 8 + 25 + 5, 480) << dialog.id;
        seen.insert(dialog.id);
    }
    EXPECT_EQ(seen, (std::set<int>{2104, 2115}));
}

TEST_F(TemplateLint, PagesOfTheMeasurementsShareOneSize) {
    int pages = 0;
    for (const TemplateBytes& dialog : templates) {
        if (dialog.id != 2116 && dialog.id != 2117) continue;
        EXPECT_EQ(dialog.cx, 398) << dialog.id;
        EXPECT_EQ(dialog.cy, 223) << dialog.id;
        ++pages;
    }
    EXPECT_EQ(pages, 2);
}

std::vector<int> Range(int first, int last) {
    std::vector<int> ids;
    for (int id = first; id <= last; ++id) ids.push_back(id);
    return ids;
}

TEST_F(TemplateLint, CurveFittingHasExactlyItsControls) {
    const auto join = [](std::initializer_list<std::vector<int>> ranges) {
        std::set<int> ids;
        for (const std::vector<int>& range : ranges) ids.insert(range.begin(), range.end());
        return ids;
    };
    const std::map<int, std::set<int>> given = {
        {2104, {1, 2, 2016, 2017, 2048, 2049}},
        {2105, join({{2022},
                     Range(2028, 2031),
                     {2034, 2035},
                     Range(2050, 2061),
                     Range(2125, 2128),
                     Range(2130, 2132),
                     {2142, 2157},
                     Range(2164, 2166),
                     {2171},
                     Range(2560, 2562)})},
        {2107, join({Range(2062, 2124),
                     Range(2133, 2138),
                     Range(2160, 2162),
                     {2167, 2172, 2173, 2176, 2295}})},
        {2133, join({Range(2018, 2021),
                     Range(2024, 2027),
                     {2032, 2033},
                     Range(2036, 2047),
                     {2129, 2141, 2159, 2170, 2174, 2175, 2177, 2246, 2248, 2503, 2526, 2565},
                     Range(2568, 2570),
                     Range(2578, 2582),
                     {2585, 2586},
                     Range(2600, 2606)})},
    };
    std::size_t seen = 0;
    for (const TemplateBytes& dialog : templates) {
        const auto row = given.find(dialog.id);
        if (row == given.end()) continue;
        SCOPED_TRACE(dialog.id);
        std::set<int> ids;
        for (const TemplateItem& item : dialog.items) {
            if (item.id != -1) ids.insert(item.id);
        }
        EXPECT_EQ(ids, row->second);
        ++seen;
    }
    EXPECT_EQ(seen, given.size());
}

}  // namespace
