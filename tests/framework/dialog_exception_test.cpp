// What throws inside a running dialog ends that dialog with -1, on every system, and the program
// lives on.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_ComboBox.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_PictureWnd.h"
#include "framework/MessageFilter.h"
#include "widgets/MessageDialog.h"

namespace framework_test {
namespace {

using test_support::DialogScript;

[[noreturn]] void Throw() {
    throw std::runtime_error("an operation");
}

// Throws where it is told to.
class Throwing : public LoggedDialog {
  public:
    using LoggedDialog::LoggedDialog;

    void OnDestroy(HWND hWnd) override {
        if (bAtDestroy) Throw();
        LoggedDialog::OnDestroy(hWnd);
    }
    BOOL OnTimer(UINT_PTR nId) override {
        if (bAtTimer) Throw();
        return LoggedDialog::OnTimer(nId);
    }
    BOOL PreTranslateMessage(MSG* pMsg) override {
        if (bAtFilter && pMsg->message == WM_APP) Throw();
        return LoggedDialog::PreTranslateMessage(pMsg);
    }
    LRESULT OnChar(HWND hWnd, int nChar) override {
        if (bAtChar) Throw();
        return LoggedDialog::OnChar(hWnd, nChar);
    }

    bool bAtDestroy = false;
    bool bAtTimer = false;
    bool bAtFilter = false;
    bool bAtChar = false;
};

class DialogException : public testing::Test {
  protected:
    // What came before has left nothing behind: the dialog opens and ends as ever.
    ~DialogException() override {
        dialog.onInit = nullptr;
        dialog.onUpdate = nullptr;
        dialog.onNotify = nullptr;
        dialog.bAtDestroy = dialog.bAtTimer = dialog.bAtFilter = dialog.bAtChar = false;
        DialogScript again;
        again.Click(IDOK);
        EXPECT_EQ(Open(again), IDOK);
        EXPECT_EQ(MessageFilterUsers(), 0);
        EXPECT_TRUE(IsWindowEnabled(owner.Handle()));
    }

    INT_PTR Open(DialogScript& script) {
        return script.Run(
            [this] { return dialog.DoModal(Module(), Template(IDD_PLAIN), owner.Handle()); });
    }
    void ThrowAtClick(int nButton) {
        dialog.onNotify = [nButton](ADM_Wnd*, int nId, int nCode, int) {
            if (nId == nButton && nCode == ADMN_CLICKED) Throw();
        };
    }

    EventLog log;
    test_support::RecordingWindow owner;
    Throwing dialog{log};
};

TEST_F(DialogException, AtACommandEndsTheDialog) {
    ThrowAtClick(IDC_RUN);
    DialogScript script;
    script.Click(IDC_RUN);
    EXPECT_EQ(Open(script), -1);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
}

TEST_F(DialogException, DuringSetUpEndsTheDialogBeforeItShows) {
    dialog.onInit = Throw;
    DialogScript script;
    EXPECT_EQ(Open(script), -1);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
}

TEST_F(DialogException, AtTheUpdateStepEndsTheDialog) {
    dialog.onUpdate = [this] {
        if (dialog.nUpdates == 2) Throw();
    };
    DialogScript script;
    script.Click(IDC_RUN);
    EXPECT_EQ(Open(script), -1);
}

TEST_F(DialogException, AtATimerEndsTheDialog) {
    dialog.bAtTimer = true;
    DialogScript script;
    script.Do([this] { PostMessageA(dialog.GetHandle(), WM_TIMER, 1, 0); });
    EXPECT_EQ(Open(script), -1);
}

TEST_F(DialogException, AtTheMessageFilterEndsTheDialog) {
    dialog.bAtFilter = true;
    DialogScript script;
    script.Do([this] { PostMessageA(dialog.GetHandle(), WM_APP, 0, 0); });
    EXPECT_EQ(Open(script), -1);
}

TEST_F(DialogException, AtTheTearDownChangesTheResult) {
    dialog.bAtDestroy = true;
    DialogScript script;
    script.Click(IDOK);
    EXPECT_EQ(Open(script), -1);
}

// In the procedure of a field, of the edit part of a combo box and of a picture.
TEST_F(DialogException, AtACharacterTypedEndsTheDialog) {
    ADM_DoubleText field;
    ADM_ComboBox combo;
    dialog.RegisterControl(IDC_FIRST, &field);
    dialog.RegisterControl(IDC_COMBOEDIT, &combo);
    dialog.bAtChar = true;
    for (const int nId : {IDC_FIRST, IDC_COMBOEDIT}) {
        SCOPED_TRACE(nId);
        DialogScript script;
        script.Focus(nId).TypeKeys("1");
        EXPECT_EQ(Open(script), -1);
    }
}

class ThrowingPicture : public ADM_PictureWnd {
  public:
    void Draw(HDC hDC) override {
        if (bAtDraw) Throw();
        ADM_PictureWnd::Draw(hDC);
    }
    bool bAtDraw = false;
};

TEST_F(DialogException, AtPaintingEndsTheDialog) {
    ThrowingPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    DialogScript script;
    script.Do([&] {
        picture.bAtDraw = true;
        picture.Invalidate(TRUE);
    });
    EXPECT_EQ(Open(script), -1);
    picture.bAtDraw = false;
}

class ThrowingField : public ADM_DoubleText {
  public:
    LRESULT SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override {
        if (uMsg == WM_APP) Throw();
        return ADM_DoubleText::SubclassProc(hWnd, uMsg, wParam, lParam);
    }
};

TEST_F(DialogException, InAHookedControlIsAnsweredWithZeroAndEndsTheDialog) {
    ThrowingField field;
    dialog.RegisterControl(IDC_FIRST, &field);
    LRESULT nAnswer = -1;
    DialogScript script;
    script.Do([&] { nAnswer = SendMessageA(field.GetHandle(), WM_APP, 0, 0); });
    EXPECT_EQ(Open(script), -1);
    EXPECT_EQ(nAnswer, 0);
}

// The dialog underneath fails while a message is up: the message goes, and what had asked does not
// go on with an answer that nobody gave.
TEST_F(DialogException, UnderAMessageEndsBoth) {
    bool bAnswered = false;
    dialog.onNotify = [&](ADM_Wnd*, int nId, int nCode, int) {
        if (nCode != ADMN_CLICKED) return;
        if (nId == IDC_CHECK) Throw();
        if (nId != IDC_RUN) return;
        CommonCtls::ShowMessage(dialog.GetHandle(), "Go on?", MB_YESNO);
        bAnswered = true;
    };
    DialogScript script;
    script.Click(IDC_RUN).EnterDialog().Do(
        [this] { PostMessageA(dialog.GetHandle(), WM_COMMAND, IDC_CHECK, 0); });
    EXPECT_EQ(Open(script), -1);
    EXPECT_FALSE(bAnswered);
}

TEST_F(DialogException, InAnInnerDialogEndsThatOneAlone) {
    Throwing inner{log};
    inner.onNotify = [](ADM_Wnd*, int nId, int nCode, int) {
        if (nId == IDC_RUN && nCode == ADMN_CLICKED) Throw();
    };
    INT_PTR nInner = 99;
    dialog.onNotify = [&](ADM_Wnd*, int nId, int nCode, int) {
        if (nId != IDC_RUN || nCode != ADMN_CLICKED) return;
        nInner = inner.DoModal(Module(), Template(IDD_PLAIN), dialog.GetHandle());
    };
    DialogScript script;
    script.Click(IDC_RUN).EnterDialog().Click(IDC_RUN).Click(IDOK);
    EXPECT_EQ(Open(script), IDOK);
    EXPECT_EQ(nInner, -1);
}

TEST_F(DialogException, UnderAnInnerDialogEndsBoth) {
    Throwing inner{log};
    INT_PTR nInner = 99;
    dialog.onNotify = [&](ADM_Wnd*, int nId, int nCode, int) {
        if (nCode != ADMN_CLICKED) return;
        if (nId == IDC_CHECK) Throw();
        if (nId == IDC_RUN) nInner = inner.DoModal(Module(), Template(IDD_PLAIN), nullptr);
    };
    DialogScript script;
    script.Click(IDC_RUN).EnterDialog().Do(
        [this] { PostMessageA(dialog.GetHandle(), WM_COMMAND, IDC_CHECK, 0); });
    EXPECT_EQ(Open(script), -1);
    EXPECT_EQ(nInner, 99) << "its caller did not go on";
    EXPECT_EQ(inner.GetHandle(), nullptr);
}

TEST_F(DialogException, OnAPageEndsItsDialog) {
    TestTabbed tabbed(log);
    LoggedPage page(log, "one", IDD_PAGE_ONE, "One");
    tabbed.AddPage(&page);
    page.onNotify = [](ADM_Wnd*, int, int nCode, int) {
        if (nCode == ADMN_CLICKED) Throw();
    };
    DialogScript script;
    script.Do([&] { PostMessageA(page.GetHandle(), WM_COMMAND, 77, 0); });
    EXPECT_EQ(
        script.Run([&] { return tabbed.DoModal(Module(), Template(IDD_TABBED), owner.Handle()); }),
        -1);
    EXPECT_EQ(page.GetHandle(), nullptr);
}

}  // namespace
}  // namespace framework_test
