#include "ControlMessages.h"

#include <cstdio>

namespace differential {
namespace {

#define ROW(message, takes) \
    { #message, static_cast < UINT>(message), Takes::takes }

constexpr ControlMessage kMessages[] = {
    ROW(EM_SETSEL, kNumbers),
    ROW(EM_REPLACESEL, kText),
    ROW(EM_LIMITTEXT, kNumbers),
    ROW(EM_UNDO, kNumbers),
    ROW(EM_EMPTYUNDOBUFFER, kNumbers),
    ROW(EM_SETMODIFY, kNumbers),
    ROW(EM_SETREADONLY, kNumbers),
    ROW(EM_LINESCROLL, kNumbers),
    ROW(EM_SCROLLCARET, kNumbers),
    ROW(EM_LINEINDEX, kNumbers),
    ROW(EM_LINELENGTH, kNumbers),
    ROW(EM_LINEFROMCHAR, kNumbers),
    ROW(EM_POSFROMCHAR, kNumbers),
    ROW(EM_CHARFROMPOS, kNumbers),
    ROW(EM_SETMARGINS, kNumbers),
    ROW(EM_GETMARGINS, kNumbers),
    ROW(EM_GETRECT, kRect),
    ROW(WM_CUT, kNumbers),
    ROW(WM_COPY, kNumbers),
    ROW(WM_PASTE, kNumbers),
    ROW(WM_CLEAR, kNumbers),
    ROW(WM_UNDO, kNumbers),
    ROW(WM_SETREDRAW, kNumbers),
    ROW(WM_GETDLGCODE, kNumbers),
    ROW(BM_CLICK, kNumbers),
    ROW(BM_SETCHECK, kNumbers),
    ROW(BM_SETSTATE, kNumbers),
    ROW(BM_SETSTYLE, kNumbers),
    ROW(LB_ADDSTRING, kText),
    ROW(LB_INSERTSTRING, kText),
    ROW(LB_DELETESTRING, kNumbers),
    ROW(LB_RESETCONTENT, kNothing),
    ROW(LB_SETCURSEL, kNumbers),
    ROW(LB_SETSEL, kNumbers),
    ROW(LB_SELITEMRANGE, kNumbers),
    ROW(LB_SELITEMRANGEEX, kNumbers),
    ROW(LB_SETTOPINDEX, kNumbers),
    ROW(LB_SETCARETINDEX, kNumbers),
    ROW(LB_SETANCHORINDEX, kNumbers),
    ROW(LB_GETSEL, kNumbers),
    ROW(LB_FINDSTRING, kText),
    ROW(LB_FINDSTRINGEXACT, kText),
    ROW(LB_SELECTSTRING, kText),
    ROW(LB_SETITEMDATA, kNumbers),
    ROW(LB_GETITEMDATA, kNumbers),
    ROW(LB_GETITEMRECT, kRect),
    ROW(LB_ITEMFROMPOINT, kNumbers),
    ROW(LB_GETTEXT, kRoom),
    ROW(CB_ADDSTRING, kText),
    ROW(CB_INSERTSTRING, kText),
    ROW(CB_DELETESTRING, kNumbers),
    ROW(CB_RESETCONTENT, kNothing),
    ROW(CB_SETCURSEL, kNumbers),
    ROW(CB_SHOWDROPDOWN, kNumbers),
    ROW(CB_SETEDITSEL, kNumbers),
    ROW(CB_LIMITTEXT, kNothing),
    ROW(CB_FINDSTRING, kText),
    ROW(CB_FINDSTRINGEXACT, kText),
    ROW(CB_SELECTSTRING, kText),
    ROW(CB_SETEXTENDEDUI, kNumbers),
    ROW(CB_SETTOPINDEX, kNumbers),
    ROW(CB_SETDROPPEDWIDTH, kNumbers),
    ROW(CB_GETLBTEXT, kRoom),
    ROW(CB_GETDROPPEDCONTROLRECT, kRect),
    ROW(TCM_INSERTITEMA, kTab),
    ROW(TCM_DELETEITEM, kNumbers),
    ROW(TCM_DELETEALLITEMS, kNumbers),
    ROW(TCM_SETCURSEL, kNumbers),
    ROW(TCM_SETCURFOCUS, kNumbers),
    ROW(TCM_HITTEST, kPoint),
    ROW(TCM_GETITEMRECT, kRect),
    ROW(TCM_ADJUSTRECT, kRect),
};

#undef ROW

std::string TextOf(const RECT& rect) {
    char text[80];
    std::snprintf(text, sizeof text, " %d,%d,%d,%d", static_cast<int>(rect.left),
                  static_cast<int>(rect.top), static_cast<int>(rect.right),
                  static_cast<int>(rect.bottom));
    return text;
}

}  // namespace

const ControlMessage* FindControlMessage(const std::string& name) {
    for (const ControlMessage& row : kMessages) {
        if (name == row.name) return &row;
    }
    return nullptr;
}

std::string SendControlMessage(HWND hwnd, Words& words) {
    const ControlMessage* row = FindControlMessage(words.Next());
    if (row == nullptr) return "no such message";
    const auto wParam = static_cast<WPARAM>(words.NextNumber());
    const auto send = [&](LPARAM lParam) {
        return std::to_string(static_cast<int>(SendMessageA(hwnd, row->number, wParam, lParam)));
    };
    switch (row->takes) {
        case Takes::kNothing:
            return (send(0), "done");
        case Takes::kNumbers:
            return send(static_cast<LPARAM>(words.NextNumber()));
        case Takes::kText: {
            const std::string text = words.Next();
            return send(reinterpret_cast<LPARAM>(text.c_str()));
        }
        case Takes::kRoom: {
            char room[2048] = "";
            const std::string answer = send(reinterpret_cast<LPARAM>(room));
            return answer + " " + Quoted(room);
        }
        case Takes::kRect: {
            RECT rect = {0, 0, 100, 60};
            const std::string answer = send(reinterpret_cast<LPARAM>(&rect));
            return answer + TextOf(rect);
        }
        case Takes::kTab: {
            std::string text = words.Next();
            TCITEMA item = {};
            item.mask = TCIF_TEXT;
            item.pszText = text.data();
            return send(reinterpret_cast<LPARAM>(&item));
        }
        case Takes::kPoint: {
            TCHITTESTINFO info = {};
            info.pt.x = static_cast<LONG>(words.NextNumber());
            info.pt.y = static_cast<LONG>(words.NextNumber());
            const std::string answer = send(reinterpret_cast<LPARAM>(&info));
            return answer + " " + std::to_string(info.flags);
        }
    }
    return "";
}

}  // namespace differential
