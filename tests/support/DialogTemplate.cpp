#include "support/DialogTemplate.h"

#include <cstring>

namespace test_support {
namespace {

// Little-endian, as the resource compilers write it.
class Writer {
  public:
    void Word(unsigned value) {
        bytes_.push_back(static_cast<BYTE>(value & 0xFF));
        bytes_.push_back(static_cast<BYTE>((value >> 8) & 0xFF));
    }
    void Dword(DWORD value) {
        Word(value & 0xFFFF);
        Word(value >> 16);
    }
    void Short(int value) { Word(static_cast<unsigned>(value)); }
    // The texts of tests stay within the part of the code page that equals Latin-1.
    void Text(const std::string& text) {
        for (char c : text) Word(static_cast<unsigned char>(c));
        Word(0);
    }
    void Align() {
        while (bytes_.size() % 4) bytes_.push_back(0);
    }
    const std::vector<BYTE>& Bytes() const { return bytes_; }

  private:
    std::vector<BYTE> bytes_;
};

}  // namespace

DialogTemplate::DialogTemplate(const std::string& title, int width, int height)
    : title_(title),
      width_(width),
      height_(height),
      style_(DWORD{WS_POPUP} | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_SETFONT) {}

DialogTemplate& DialogTemplate::At(int x, int y) {
    x_ = x;
    y_ = y;
    return *this;
}

DialogTemplate& DialogTemplate::Style(DWORD style) {
    style_ = style;
    return *this;
}

DialogTemplate& DialogTemplate::ExStyle(DWORD exStyle) {
    exStyle_ = exStyle;
    return *this;
}

DialogTemplate& DialogTemplate::AsPage() {
    style_ = DWORD{WS_CHILD} | DS_CONTROL | DS_SETFONT;
    exStyle_ = WS_EX_CONTROLPARENT;
    return *this;
}

DialogTemplate& DialogTemplate::WithoutFont() {
    style_ &= ~static_cast<DWORD>(DS_SETFONT);
    return *this;
}

DialogTemplate& DialogTemplate::Control(const std::string& className, const std::string& text,
                                        int id, DWORD style, int x, int y, int width, int height,
                                        DWORD exStyle, bool hidden) {
    const DWORD shown = hidden ? 0 : DWORD{WS_VISIBLE};
    items_.push_back({className, text, id, style | WS_CHILD | shown, exStyle, x, y, width, height});
    return *this;
}

DialogTemplate& DialogTemplate::PushButton(const std::string& text, int id, int x, int y,
                                           DWORD more) {
    return Control("Button", text, id, DWORD{BS_PUSHBUTTON} | WS_TABSTOP | more, x, y, 50, 14);
}

DialogTemplate& DialogTemplate::DefaultButton(const std::string& text, int id, int x, int y,
                                              DWORD more) {
    return Control("Button", text, id, DWORD{BS_DEFPUSHBUTTON} | WS_TABSTOP | more, x, y, 50, 14);
}

DialogTemplate& DialogTemplate::CheckBox(const std::string& text, int id, int x, int y,
                                         DWORD more) {
    return Control("Button", text, id, DWORD{BS_AUTOCHECKBOX} | WS_TABSTOP | more, x, y, 60, 10);
}

DialogTemplate& DialogTemplate::Radio(const std::string& text, int id, int x, int y, DWORD more) {
    return Control("Button", text, id, DWORD{BS_AUTORADIOBUTTON} | more, x, y, 60, 10);
}

DialogTemplate& DialogTemplate::GroupBox(const std::string& text, int id, int x, int y, int width,
                                         int height) {
    return Control("Button", text, id, BS_GROUPBOX, x, y, width, height);
}

DialogTemplate& DialogTemplate::Label(const std::string& text, int id, int x, int y, DWORD more) {
    return Control("Static", text, id, DWORD{SS_LEFT} | more, x, y, 60, 9);
}

DialogTemplate& DialogTemplate::Edit(int id, int x, int y, DWORD more) {
    return Control("Edit", "", id, DWORD{ES_AUTOHSCROLL} | WS_BORDER | WS_TABSTOP | more, x, y, 60,
                   13);
}

DialogTemplate& DialogTemplate::DropDown(int id, int x, int y, DWORD more) {
    return Control("ComboBox", "", id,
                   DWORD{CBS_DROPDOWN} | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP | more, x, y, 60,
                   80);
}

DialogTemplate& DialogTemplate::DropDownList(int id, int x, int y, DWORD more) {
    return Control("ComboBox", "", id, DWORD{CBS_DROPDOWNLIST} | WS_VSCROLL | WS_TABSTOP | more, x,
                   y, 60, 80);
}

DialogTemplate& DialogTemplate::ListBox(int id, int x, int y, int width, int height, DWORD more) {
    return Control(
        "ListBox", "", id,
        DWORD{LBS_NOTIFY} | LBS_NOINTEGRALHEIGHT | WS_BORDER | WS_VSCROLL | WS_TABSTOP | more, x, y,
        width, height);
}

DialogTemplate& DialogTemplate::TabControl(int id, int x, int y, int width, int height,
                                           DWORD more) {
    return Control("SysTabControl32", "", id, DWORD{WS_TABSTOP} | WS_CLIPSIBLINGS | more, x, y,
                   width, height);
}

void DialogTemplate::Build() {
    Writer out;
    out.Word(1);
    out.Word(0xFFFF);
    out.Dword(0);
    out.Dword(exStyle_);
    out.Dword(style_);
    out.Word(static_cast<unsigned>(items_.size()));
    for (int value : {x_, y_, width_, height_}) out.Short(value);
    out.Word(0);  // no menu
    out.Word(0);  // the standard dialog class
    out.Text(title_);
    if (style_ & DS_SETFONT) {
        out.Word(8);
        out.Word(FW_NORMAL);
        out.Word(DEFAULT_CHARSET << 8);  // not italic
        out.Text("MS Shell Dlg");
    }
    for (const Item& item : items_) {
        out.Align();
        out.Dword(0);
        out.Dword(item.exStyle);
        out.Dword(item.style);
        for (int value : {item.x, item.y, item.width, item.height}) out.Short(value);
        out.Dword(static_cast<DWORD>(item.id));
        out.Text(item.className);
        out.Text(item.text);
        out.Word(0);  // no creation data
    }
    size_ = out.Bytes().size();
    words_.assign(size_ / sizeof(DWORD) + 1, 0);
    std::memcpy(words_.data(), out.Bytes().data(), size_);
}

LPCDLGTEMPLATEA DialogTemplate::Get() {
    Build();
    return reinterpret_cast<LPCDLGTEMPLATEA>(words_.data());
}

std::vector<BYTE> DialogTemplate::Bytes() {
    Build();
    const BYTE* bytes = reinterpret_cast<const BYTE*>(words_.data());
    return std::vector<BYTE>(bytes, bytes + size_);
}

}  // namespace test_support
