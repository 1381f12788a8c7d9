// How a dialog comes to be and ends: the order of its messages, the first focus, and what EndDialog
// does.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::RecordingWindow;
using test_support::TestDialog;

constexpr int kFirst = 101, kSecond = 102, kThird = 103;

DialogTemplate TwoEdits() {
    DialogTemplate shape("Two edits", 120, 60);
    shape.Edit(kFirst, 10, 10).Edit(kSecond, 10, 25).DefaultButton("OK", IDOK, 10, 42);
    return shape;
}

TEST(DialogCreation, TheFontComesBeforeInitDialog) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    const std::vector<std::string>& seen = dialog.Messages().Lines();
    const auto font = std::find(seen.begin(), seen.end(), "WM_SETFONT");
    const auto init = std::find(seen.begin(), seen.end(), "WM_INITDIALOG");
    ASSERT_NE(seen.end(), font);
    ASSERT_NE(seen.end(), init);
    EXPECT_LT(font, init);
    EXPECT_EQ("WM_SETFONT", seen.front());
    // A dialog procedure is in place only after the window itself has been created.
    EXPECT_EQ(0, std::count(seen.begin(), seen.end(), "WM_NCCREATE"));
    EXPECT_EQ(0, std::count(seen.begin(), seen.end(), "WM_CREATE"));
    DestroyWindow(handle);
}

TEST(DialogCreation, ADialogWithoutFontClauseGetsNoFontMessage) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    shape.WithoutFont();
    HWND handle = dialog.Create(shape);
    const std::vector<std::string>& seen = dialog.Messages().Lines();
    EXPECT_EQ(0, std::count(seen.begin(), seen.end(), "WM_SETFONT"));
    EXPECT_EQ("WM_INITDIALOG", seen.front());
    DestroyWindow(handle);
}

TEST(DialogCreation, AllControlsExistAtInitDialogInTheOrderOfTheTemplate) {
    std::vector<int> ids;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG)
            for (HWND child = GetWindow(dlg, GW_CHILD); child;
                 child = GetWindow(child, GW_HWNDNEXT))
                ids.push_back(GetDlgCtrlID(child));
        return FALSE;
    });
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    EXPECT_EQ((std::vector<int>{kFirst, kSecond, IDOK}), ids);
    DestroyWindow(handle);
}

TEST(DialogCreation, ControlsCarryTheFontOfTheDialog) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    const LRESULT font = SendMessageA(handle, WM_GETFONT, 0, 0);
    EXPECT_NE(0, font);
    EXPECT_EQ(font, SendDlgItemMessageA(handle, kFirst, WM_GETFONT, 0, 0));
    EXPECT_EQ(font, SendDlgItemMessageA(handle, IDOK, WM_GETFONT, 0, 0));
    DestroyWindow(handle);
}

TEST(DialogCreation, InitDialogNamesTheFirstTabStopAndTheParameter) {
    HWND named = nullptr;
    LPARAM parameter = 0;
    struct Local {
        HWND* named;
        LPARAM* parameter;
        static INT_PTR CALLBACK Procedure(HWND, UINT message, WPARAM wParam, LPARAM lParam) {
            if (message != WM_INITDIALOG) return FALSE;
            auto* self = reinterpret_cast<Local*>(lParam);
            *self->named = reinterpret_cast<HWND>(wParam);
            *self->parameter = lParam;
            return TRUE;
        }
    } local = {&named, &parameter};
    DialogTemplate shape("Label first", 120, 60);
    shape.Label("Label", 100, 5, 5).Edit(kFirst, 10, 10).Edit(kSecond, 10, 25);
    HWND handle = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), shape.Get(), nullptr,
                                             Local::Procedure, reinterpret_cast<LPARAM>(&local));
    ASSERT_NE(nullptr, handle);
    EXPECT_EQ(GetDlgItem(handle, kFirst), named);
    EXPECT_EQ(reinterpret_cast<LPARAM>(&local), parameter);
    DestroyWindow(handle);
}

TEST(DialogCreation, TrueFocusesTheFirstTabStop) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.ExpectFocus(kFirst).Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(DialogCreation, TrueSelectsAllTextOfAnEdit) {
    TestDialog dialog([](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) return SetDlgItemTextA(dlg, kFirst, "12.5");
        return TestDialog::EndOnCommand(dlg, message, wParam);
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script
        .Do([](HWND dlg) {
            EXPECT_EQ("12.5", test_support::SelectedPart(GetDlgItem(dlg, kFirst)));
        })
        .Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(DialogCreation, FalseKeepsTheFocusThatTheProcedureHasSet) {
    TestDialog dialog([](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            SetFocus(GetDlgItem(dlg, kSecond));
            return FALSE;
        }
        return TestDialog::EndOnCommand(dlg, message, wParam);
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.ExpectFocus(kSecond).Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(DialogCreation, TrueOverridesAFocusThatTheProcedureHasSet) {
    TestDialog dialog([](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            SetFocus(GetDlgItem(dlg, kSecond));
            return TRUE;
        }
        return TestDialog::EndOnCommand(dlg, message, wParam);
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.ExpectFocus(kFirst).Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(DialogCreation, DisabledAndHiddenControlsDoNotTakeTheFirstFocus) {
    TestDialog dialog;
    DialogTemplate shape("Skip", 120, 60);
    shape.Edit(kFirst, 10, 10, WS_DISABLED)
        .Control("Edit", "", kSecond, WS_TABSTOP | WS_BORDER, 10, 20, 50, 12, 0, true)
        .Edit(kThird, 10, 25)
        .DefaultButton("OK", IDOK, 10, 42);
    DialogScript script;
    script.ExpectFocus(kThird).Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
}

TEST(EndDialog, OnlyFlagsTheLoop) {
    bool aliveAfterEnd = false, visibleAfterEnd = true;
    std::string after;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) return TRUE;
        if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
            EXPECT_TRUE(EndDialog(dlg, 7));
            aliveAfterEnd = IsWindow(dlg) != FALSE;
            visibleAfterEnd = IsWindowVisible(dlg) != FALSE;
            SetDlgItemTextA(dlg, kFirst, "still here");
            after = test_support::TextOf(GetDlgItem(dlg, kFirst));
            return TRUE;
        }
        return FALSE;
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(7, script.Run([&] { return dialog.Run(shape); }));
    EXPECT_TRUE(aliveAfterEnd);
    EXPECT_FALSE(visibleAfterEnd);
    EXPECT_EQ("still here", after);
    EXPECT_EQ(nullptr, dialog.Handle());
}

TEST(EndDialog, InsideInitDialogNeverShowsTheDialog) {
    bool alive = false;
    int messagesAfter = 0;
    bool ended = false;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            EndDialog(dlg, 42);
            ended = true;
            alive = IsWindow(dlg) != FALSE;
            return TRUE;
        }
        if (ended && message == WM_PAINT) ++messagesAfter;
        return FALSE;
    });
    DialogTemplate shape = TwoEdits();
    EXPECT_EQ(42, dialog.Run(shape));
    EXPECT_TRUE(alive);
    EXPECT_EQ(0, messagesAfter);
}

TEST(EndDialog, TheLastCallBeforeTheLoopEndsGivesTheResult) {
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            EndDialog(dlg, 1);
            EndDialog(dlg, 2);
            return TRUE;
        }
        return FALSE;
    });
    DialogTemplate shape = TwoEdits();
    EXPECT_EQ(2, dialog.Run(shape));
}

TEST(EndDialog, GivesNegativeAndLargeResults) {
    for (INT_PTR wanted : {INT_PTR{-1}, INT_PTR{0}, INT_PTR{0x7FFFFFFF}}) {
        TestDialog dialog([&](HWND dlg, UINT message, WPARAM, LPARAM) -> INT_PTR {
            return message == WM_INITDIALOG ? EndDialog(dlg, wanted) : FALSE;
        });
        DialogTemplate shape = TwoEdits();
        EXPECT_EQ(wanted, dialog.Run(shape));
    }
}

TEST(EndDialog, OnAModelessDialogHidesItAndKeepsIt) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    ShowWindow(handle, SW_SHOW);
    EXPECT_TRUE(EndDialog(handle, 1));
    EXPECT_TRUE(IsWindow(handle));
    EXPECT_FALSE(IsWindowVisible(handle));
    DestroyWindow(handle);
}

TEST(EndDialog, FailsForNoWindow) {
    EXPECT_FALSE(EndDialog(nullptr, 1));
}

TEST(ModalLoop, DisablesItsOwnerAndEnablesItAgain) {
    RecordingWindow owner;
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Do([&] { EXPECT_FALSE(IsWindowEnabled(owner)); }).Click(IDOK);
    script.Run([&] { dialog.Run(shape, owner); });
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST(ModalLoop, LeavesAnOwnerDisabledThatWasDisabled) {
    RecordingWindow owner;
    EnableWindow(owner, FALSE);
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Click(IDOK);
    script.Run([&] { dialog.Run(shape, owner); });
    KNOWN_GAP(kWine, "EndDialog enables the owner in any case", !IsWindowEnabled(owner));
}

TEST(ModalLoop, OwnsByTheTopLevelWindowOfAChild) {
    RecordingWindow window;
    HWND child = window.Add("Button", "child", 5, BS_PUSHBUTTON);
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script
        .Do([&](HWND dlg) {
            EXPECT_FALSE(IsWindowEnabled(window));
            EXPECT_EQ(window.Handle(), GetWindow(dlg, GW_OWNER));
        })
        .Click(IDOK);
    script.Run([&] { dialog.Run(shape, child); });
    EXPECT_TRUE(IsWindowEnabled(window));
}

TEST(ModalLoop, NestsAndDisablesOnlyTheOwnerOfEach) {
    RecordingWindow owner;
    DialogTemplate innerShape("Inner", 80, 40);
    innerShape.DefaultButton("OK", IDOK, 10, 10);
    TestDialog outer([&](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) return TRUE;
        if (message == WM_COMMAND && LOWORD(wParam) == IDOK) {
            TestDialog inner;
            inner.Run(innerShape, dlg);
            EXPECT_TRUE(IsWindowEnabled(dlg));
            EXPECT_FALSE(IsWindowEnabled(owner));
            EXPECT_EQ(dlg, GetActiveWindow());
            EndDialog(dlg, 5);
            return TRUE;
        }
        return FALSE;
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    HWND outerHandle = nullptr;
    script.Do([&](HWND dlg) { outerHandle = dlg; })
        .Click(IDOK)
        .EnterDialog()
        .Do([&](HWND dlg) {
            EXPECT_FALSE(IsWindowEnabled(outerHandle));
            EXPECT_FALSE(IsWindowEnabled(owner));
            EXPECT_TRUE(IsWindowEnabled(dlg));
            EXPECT_EQ(outerHandle, GetWindow(dlg, GW_OWNER));
        })
        .Click(IDOK);
    EXPECT_EQ(5, script.Run([&] { return outer.Run(shape, owner); }));
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST(ModalLoop, GivesTheFocusBackToTheOwner) {
    RecordingWindow owner;
    HWND button = owner.Add("Button", "b", 5, BS_PUSHBUTTON);
    SetFocus(button);
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Click(IDOK);
    script.Run([&] { dialog.Run(shape, owner); });
    EXPECT_EQ(owner.Handle(), GetActiveWindow());
}

TEST(ModalLoop, PassesQuitOn) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Do([] { PostQuitMessage(9); });
    script.Run([&] { dialog.Run(shape); });
    MSG msg = {};
    ASSERT_TRUE(PeekMessageA(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(9u, msg.wParam);
}

TEST(ModalLoop, ShowsADialogWithoutVisibleStyleWhenItIsIdle) {
    bool visibleInInit = true;
    TestDialog dialog([&](HWND dlg, UINT message, WPARAM wParam, LPARAM) -> INT_PTR {
        if (message == WM_INITDIALOG) {
            visibleInInit = IsWindowVisible(dlg) != FALSE;
            return TRUE;
        }
        return TestDialog::EndOnCommand(dlg, message, wParam);
    });
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.Do([](HWND dlg) { EXPECT_TRUE(IsWindowVisible(dlg)); }).Click(IDOK);
    script.Run([&] { dialog.Run(shape); });
    EXPECT_FALSE(visibleInInit);
}

TEST(ModalLoop, SendsIdleMessagesToItsOwner) {
    RecordingWindow owner;
    int idle = 0;
    HWND idleDialog = nullptr;
    owner.OnMessage([&](UINT message, WPARAM wParam, LPARAM lParam, LRESULT*) {
        if (message == WM_ENTERIDLE && wParam == MSGF_DIALOGBOX) {
            ++idle;
            idleDialog = reinterpret_cast<HWND>(lParam);
        }
        return false;
    });
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    DialogScript script;
    script.WaitUntil([&] { return idle > 0; })
        .Do([&](HWND dlg) { EXPECT_EQ(dlg, idleDialog); })
        .Click(IDOK);
    script.Run([&] { dialog.Run(shape, owner); });
}

TEST(DialogProcedure, GivesResultsThroughMsgResult) {
    constexpr UINT kQuestion = WM_USER + 300;
    TestDialog dialog([](HWND dlg, UINT message, WPARAM, LPARAM) -> INT_PTR {
        if (message != kQuestion) return FALSE;
        SetWindowLongPtrA(dlg, DWLP_MSGRESULT, 1234);
        return TRUE;
    });
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    EXPECT_EQ(1234, SendMessageA(handle, kQuestion, 0, 0));
    EXPECT_EQ(0, SendMessageA(handle, kQuestion + 1, 0, 0));
    DestroyWindow(handle);
}

TEST(DialogProcedure, KeepsAPointerInTheUserLong) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    EXPECT_EQ(0, GetWindowLongPtrA(handle, DWLP_USER));
    const auto pointer = reinterpret_cast<LONG_PTR>(&shape);
    SetWindowLongPtrA(handle, DWLP_USER, pointer);
    EXPECT_EQ(pointer, GetWindowLongPtrA(handle, DWLP_USER));
    DestroyWindow(handle);
}

TEST(DialogProcedure, CanBeReplacedWhileTheDialogLives) {
    struct Second {
        static INT_PTR CALLBACK Procedure(HWND dlg, UINT message, WPARAM, LPARAM) {
            if (message != WM_APP) return FALSE;
            SetWindowLongPtrA(dlg, DWLP_MSGRESULT, 77);
            return TRUE;
        }
    };
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    const LONG_PTR before = GetWindowLongPtrA(handle, DWLP_DLGPROC);
    EXPECT_NE(0, before);
    SetWindowLongPtrA(handle, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(&Second::Procedure));
    EXPECT_EQ(77, SendMessageA(handle, WM_APP, 0, 0));
    SetWindowLongPtrA(handle, DWLP_DLGPROC, before);
    DestroyWindow(handle);
}

TEST(DialogProcedure, CloseBecomesCancel) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    shape.PushButton("Cancel", IDCANCEL, 70, 42);
    DialogScript script;
    script.CloseByFrame();
    EXPECT_EQ(IDCANCEL, script.Run([&] { return dialog.Run(shape); }));
}

TEST(DialogProcedure, CloseIsRefusedWhileCancelIsDisabled) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    shape.PushButton("Cancel", IDCANCEL, 70, 42, WS_DISABLED);
    HWND handle = dialog.Create(shape);
    ShowWindow(handle, SW_SHOW);
    DialogScript script;
    script.Do([&] { dialog.Notifications().Take(); }).CloseByFrame();
    script.RunModeless(handle);
    KNOWN_GAP(kWine, "closing does not ask whether the Cancel button is enabled",
              dialog.Notifications().Take().empty());
    if (IsWindow(handle)) DestroyWindow(handle);
}

TEST(DialogProcedure, DestructionReachesTheProcedure) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    dialog.Messages().Take();
    DestroyWindow(handle);
    const std::vector<std::string>& seen = dialog.Messages().Lines();
    const auto destroy = std::find(seen.begin(), seen.end(), "WM_DESTROY");
    const auto last = std::find(seen.begin(), seen.end(), "WM_NCDESTROY");
    ASSERT_NE(seen.end(), destroy);
    ASSERT_NE(seen.end(), last);
    EXPECT_LT(destroy, last);
    EXPECT_EQ("WM_NCDESTROY", seen.back());
}

TEST(DialogProcedure, DefaultButtonIsToldByGetDefId) {
    TestDialog dialog;
    DialogTemplate shape = TwoEdits();
    HWND handle = dialog.Create(shape);
    const LRESULT answer = SendMessageA(handle, DM_GETDEFID, 0, 0);
    EXPECT_EQ(DC_HASDEFID, HIWORD(answer));
    EXPECT_EQ(IDOK, LOWORD(answer));
    DestroyWindow(handle);
}

// A class that a program registers for a control of its own.
LRESULT CALLBACK DialProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETDLGCODE) return DLGC_WANTARROWS;
    if (message == WM_APP) return 4711;
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

TEST(DialogCreation, MakesControlsOfRegisteredClasses) {
    WNDCLASSA wc = {};
    wc.lpfnWndProc = DialProcedure;
    wc.hInstance = GetModuleHandleA(nullptr);
    wc.lpszClassName = "ZxDial";
    ASSERT_NE(0, RegisterClassA(&wc));
    DialogTemplate shape("Own class", 80, 40);
    shape.Control("ZXDIAL", "text", kFirst, WS_TABSTOP, 5, 5, 20, 20)
        .Edit(kSecond, 5, 25)
        .DefaultButton("OK", IDOK, 40, 25);
    TestDialog dialog;
    DialogScript script;
    script.Do([](HWND dlg) { EXPECT_EQ(4711, SendDlgItemMessageA(dlg, kFirst, WM_APP, 0, 0)); })
        .ExpectText(kFirst, "text")
        .Press(VK_TAB)
        .ExpectFocus(kSecond)
        .Click(IDOK);
    EXPECT_EQ(IDOK, script.Run([&] { return dialog.Run(shape); }));
    EXPECT_TRUE(UnregisterClassA("ZxDial", GetModuleHandleA(nullptr)));
}

TEST(DialogCreation, AnUnknownControlClassFailsTheDialog) {
    TestDialog dialog;
    DialogTemplate shape("Bad", 80, 40);
    shape.Control("ZxNoSuchClass", "", 5, 0, 0, 0, 10, 10);
    EXPECT_EQ(nullptr, dialog.Create(shape));
    EXPECT_EQ(-1, dialog.Run(shape));
}

}  // namespace
