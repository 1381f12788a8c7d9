// Dialog templates, both kinds, read from bytes into values. The reader believes nothing: a
// template that is cut or makes no sense is refused as a whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/headless/system/resources.h"
#include "zxadlg/headless/constants.h"

namespace headless {

struct DialogItem {
    DWORD helpId = 0;
    DWORD exStyle = 0;
    DWORD style = 0;
    int x = 0, y = 0, cx = 0, cy = 0;  // dialog units
    DWORD id = 0;
    ResourceName className;  // a number is an atom from 0x80 on
    ResourceName title;
    std::size_t dataAt = 0;  // where its creation data's length stands, 0 for none
};

struct DialogTemplate {
    bool extended = false;
    DWORD helpId = 0;
    DWORD exStyle = 0;
    DWORD style = 0;
    int x = 0, y = 0, cx = 0, cy = 0;
    bool hasMenu = false;
    ResourceName className;  // number 0 for the dialog class
    std::string title;
    bool hasFont = false;
    int points = 0;
    int weight = 0;
    bool italic = false;
    BYTE charset = 1;
    std::string face;
    std::vector<DialogItem> items;
};

// Reads a template; false when the bytes do not hold a whole one.
bool ReadDialogTemplate(const std::uint8_t* data, std::size_t size, DialogTemplate& result);

// The class of a control's atom, null for one that is none.
const char* ControlClassName(WORD atom);

}  // namespace headless
