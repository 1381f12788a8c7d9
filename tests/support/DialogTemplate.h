// A dialog template in memory, in the extended form, so that a test needs no resource file.
// Positions and sizes are dialog units; texts are 7-bit or code page 1252.
//
//     DialogTemplate dialog("Filter", 120, 60);
//     dialog.PushButton("&OK", IDOK, 10, 40).Edit(kCutoff, 10, 10);
//     DialogBoxIndirectParamA(nullptr, dialog.Get(), owner, proc, 0);
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace test_support {

class DialogTemplate {
  public:
    // A modal frame with caption in the dialog font of 8 points.
    DialogTemplate(const std::string& title, int width, int height);

    DialogTemplate& At(int x, int y);
    DialogTemplate& Style(DWORD style);
    DialogTemplate& ExStyle(DWORD exStyle);
    // A page of a tab control: a child without frame that takes part in the parent's tab order.
    DialogTemplate& AsPage();
    // No font clause; the style loses DS_SETFONT.
    DialogTemplate& WithoutFont();

    // Any control; WS_CHILD and WS_VISIBLE are added, `hidden` leaves WS_VISIBLE out.
    DialogTemplate& Control(const std::string& className, const std::string& text, int id,
                            DWORD style, int x, int y, int width, int height, DWORD exStyle = 0,
                            bool hidden = false);
    DialogTemplate& PushButton(const std::string& text, int id, int x, int y, DWORD more = 0);
    DialogTemplate& DefaultButton(const std::string& text, int id, int x, int y, DWORD more = 0);
    DialogTemplate& CheckBox(const std::string& text, int id, int x, int y, DWORD more = 0);
    // The first of a group takes WS_GROUP | WS_TABSTOP in `more`.
    DialogTemplate& Radio(const std::string& text, int id, int x, int y, DWORD more = 0);
    DialogTemplate& GroupBox(const std::string& text, int id, int x, int y, int width, int height);
    DialogTemplate& Label(const std::string& text, int id, int x, int y, DWORD more = 0);
    DialogTemplate& Edit(int id, int x, int y, DWORD more = 0);
    DialogTemplate& DropDown(int id, int x, int y, DWORD more = 0);      // with an edit field
    DialogTemplate& DropDownList(int id, int x, int y, DWORD more = 0);  // without
    DialogTemplate& ListBox(int id, int x, int y, int width, int height, DWORD more = 0);
    DialogTemplate& TabControl(int id, int x, int y, int width, int height, DWORD more = 0);

    // The template's bytes; valid until the next change of this object.
    LPCDLGTEMPLATEA Get();
    // The same as a byte array, to be damaged by tests.
    std::vector<BYTE> Bytes();

  private:
    struct Item {
        std::string className;
        std::string text;
        int id;
        DWORD style;
        DWORD exStyle;
        int x, y, width, height;
    };
    void Build();

    std::string title_;
    int x_ = 10, y_ = 10, width_, height_;
    DWORD style_;
    DWORD exStyle_ = 0;
    std::vector<Item> items_;
    std::vector<DWORD> words_;  // DWORD keeps the alignment that a template needs
    std::size_t size_ = 0;      // bytes used
};

}  // namespace test_support
