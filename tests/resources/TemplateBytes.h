// A dialog template as the resource compiler wrote it, read into values. Only the extended form,
// which is the one that the library uses.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

struct TemplateItem {
    DWORD style = 0;
    DWORD exStyle = 0;
    int x = 0;  // dialog units
    int y = 0;
    int cx = 0;
    int cy = 0;
    int id = 0;
    std::string kind;  // "BUTTON", "EDIT", "STATIC", "LISTBOX", "COMBOBOX" or the class's own name
    std::string text;  // code page 1252

    int right() const { return x + cx; }
    // A combo box has the height of its field here, not that of its open list.
    int bottom() const { return y + (kind == "COMBOBOX" ? 14 : cy); }
    DWORD buttonType() const { return kind == "BUTTON" ? style & 0xF : 0xFF; }
    bool isRadio() const { return buttonType() == BS_AUTORADIOBUTTON; }
    bool isGroupBox() const { return buttonType() == BS_GROUPBOX; }
    // What is hidden for good has no id; with one it starts hidden, and a rule shows it.
    bool isVisible() const { return (style & WS_VISIBLE) != 0 || id != -1; }
    bool isTabStop() const { return (style & WS_TABSTOP) != 0; }
};

struct TemplateBytes {
    int id = 0;
    DWORD style = 0;
    int cx = 0;
    int cy = 0;
    std::string caption;
    int points = 0;
    std::string face;
    std::vector<TemplateItem> items;
};

// All templates of the program, in the order of their ids.
std::vector<TemplateBytes> ReadTemplates();
