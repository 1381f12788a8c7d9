// The steps of a script that compare what a user sees.
#include <gtest/gtest.h>

#include "support/DialogScript.h"
#include "support/WindowReading.h"

namespace test_support {
namespace {

template <class T>
void ExpectSame(const T& seen, const T& wanted, int id, const char* what,
                const std::source_location& where) {
    if (seen == wanted) return;
    ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
        << "Control " << id << ": its " << what << " is " << testing::PrintToString(seen)
        << " and should be " << testing::PrintToString(wanted);
}

}  // namespace

DialogScript& DialogScript::ExpectText(int id, const std::string& text, Where where) {
    return Add("ExpectText", where, [id, text, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(TextOf(control), text, id, "text", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectEnabled(int id, bool enabled, Where where) {
    return Add("ExpectEnabled", where, [id, enabled, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(IsWindowEnabled(control) != FALSE, enabled, id, "enabled state", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectVisible(int id, bool visible, Where where) {
    return Add("ExpectVisible", where, [id, visible, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(IsWindowVisible(control) != FALSE, visible, id, "visibility", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectChecked(int id, UINT state, Where where) {
    return Add("ExpectChecked", where, [id, state, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(static_cast<UINT>(SendMessageA(control, BM_GETCHECK, 0, 0)), state, id,
                       "check state", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectFocus(int id, Where where) {
    return Add("ExpectFocus", where, [id, where](DialogScript& script, HWND dialog) {
        HWND control = script.Control(dialog, id, false);
        HWND focus = GetFocus();
        if (control && focus != control && !IsChild(control, focus))
            ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                << "The focus should be on " << id << " and is on "
                << (focus ? GetDlgCtrlID(focus) : -1) << " " << ClassOf(focus);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectSelected(int id, const std::string& text, Where where) {
    return Add("ExpectSelected", where, [id, text, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(SelectedText(control), text, id, "selected item", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectItems(int id, const std::vector<std::string>& items,
                                        Where where) {
    return Add("ExpectItems", where, [id, items, where](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, false))
            ExpectSame(ItemsOf(control), items, id, "items", where);
        return State::kDone;
    });
}

DialogScript& DialogScript::ExpectTitle(const std::string& title, Where where) {
    return Add("ExpectTitle", where, [title, where](DialogScript&, HWND dialog) {
        ExpectSame(TextOf(dialog), title, 0, "title", where);
        return State::kDone;
    });
}

}  // namespace test_support
