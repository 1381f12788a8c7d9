// The remembered position of a dialog.
#include <gtest/gtest.h>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "framework/ADM_Window_Position.h"
#include "store/ProfileStore.h"

namespace framework_test {
namespace {

using test_support::ScratchStore;

POINT PlaceOf(HWND hWnd) {
    RECT rc;
    GetWindowRect(hWnd, &rc);
    return {rc.left, rc.top};
}

bool operator==(const POINT& a, const POINT& b) {
    return a.x == b.x && a.y == b.y;
}

// Opens a dialog with this memory, moves it if asked, closes it. Returns where it opened.
POINT OpenAndClose(ADM_Window_Position* pPosition, const POINT* pMoveTo = nullptr) {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.SetWindowPositionMemory(pPosition);
    OpenDialog open(dialog, IDD_PLACED);
    const POINT place = PlaceOf(open.Handle());
    if (pMoveTo != nullptr) {
        SetWindowPos(open.Handle(), nullptr, pMoveTo->x, pMoveTo->y, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    return place;
}

POINT TemplatePlace() {
    EventLog log;
    LoggedDialog dialog(log);
    dialog.SetCenter(FALSE);
    OpenDialog open(dialog, IDD_PLACED);
    return PlaceOf(open.Handle());
}

// Every setting of a test in a profile file of its own.
class StoredPosition : public testing::Test {
  protected:
    StoredPosition() : bBefore(SetUseProfileFile(true)) {}
    ~StoredPosition() override { SetUseProfileFile(bBefore); }
    const char* App() const { return store.ProfileFile().c_str(); }
    void Store(int nX, int nY) {
        WriteBool("Fit", "Initialized", 1, App());
        WriteInt32("Fit", "XPosition", nX, App());
        WriteInt32("Fit", "YPosition", nY, App());
    }

    ScratchStore store;
    bool bBefore;
};

TEST(WindowPosition, BeginsUnknown) {
    ADM_Window_Position position;
    EXPECT_EQ(position.IsInitialized(), 0);
    EXPECT_EQ(position.IsPersistent(), 0);
    EXPECT_TRUE(position.GetPosition() == (POINT{0, 0}));
    EXPECT_EQ(position.Restore(GetDesktopWindow()), 0);
}

TEST(WindowPosition, FirstOpeningIsCenteredAndTheSecondStandsWhereTheFirstClosed) {
    ADM_Window_Position position;
    const POINT centered = OpenAndClose(nullptr);
    const POINT there = {123, 77};
    EXPECT_TRUE(OpenAndClose(&position, &there) == centered);
    EXPECT_EQ(position.IsInitialized(), 1);
    EXPECT_TRUE(OpenAndClose(&position) == there);
}

TEST(WindowPosition, IsNotAskedByADialogThatDoesNotCenter) {
    ADM_Window_Position position;
    const POINT there = {123, 77};
    OpenAndClose(&position, &there);
    EventLog log;
    LoggedDialog dialog(log);
    dialog.SetWindowPositionMemory(&position);
    dialog.SetCenter(FALSE);
    OpenDialog open(dialog, IDD_PLACED);
    EXPECT_TRUE(PlaceOf(open.Handle()) == TemplatePlace());
}

TEST(WindowPosition, PlaceOnNoMonitorLeavesTheDialogWhereItsTemplatePutsIt) {
    ADM_Window_Position position;
    const POINT beyond = {
        GetSystemMetrics(SM_XVIRTUALSCREEN) + GetSystemMetrics(SM_CXVIRTUALSCREEN) + 50, 40};
    OpenAndClose(&position, &beyond);
    ASSERT_TRUE(position.GetPosition() == beyond);
    EXPECT_TRUE(OpenAndClose(&position) == TemplatePlace()) << "neither moved nor centred";
}

TEST(WindowPosition, TitleBarDecidesWhetherADialogIsOnTheScreen) {
    const int nBar = GetSystemMetrics(SM_CYCAPTION) + GetSystemMetrics(SM_CYBORDER);
    ADM_Window_Position position;
    const POINT barGone = {60, -nBar - 1};
    OpenAndClose(&position, &barGone);
    EXPECT_TRUE(OpenAndClose(&position) == TemplatePlace()) << "the title bar is above the screen";
    const POINT barLeft = {60, -nBar + 1};
    OpenAndClose(&position, &barLeft);
    EXPECT_TRUE(OpenAndClose(&position) == barLeft);
}

TEST(WindowPosition, WholeAreaCountsWithoutATitleBar) {
    EventLog log;
    ADM_Window_Position position;
    RECT rc;
    POINT there = {};
    {
        LoggedDialog dialog(log);
        dialog.SetWindowPositionMemory(&position);
        OpenDialog open(dialog, IDD_BARE);
        GetWindowRect(open.Handle(), &rc);
        there = {60, -(rc.bottom - rc.top) + 2};
        SetWindowPos(open.Handle(), nullptr, there.x, there.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }
    LoggedDialog dialog(log);
    dialog.SetWindowPositionMemory(&position);
    OpenDialog open(dialog, IDD_BARE);
    EXPECT_TRUE(PlaceOf(open.Handle()) == there);
}

TEST(WindowPosition, WithoutLoadNothingIsWritten) {
    ScratchStore store;
    const bool bBefore = SetUseProfileFile(true);
    ADM_Window_Position position;
    const POINT there = {123, 77};
    OpenAndClose(&position, &there);
    EXPECT_EQ(position.IsPersistent(), 0);
    EXPECT_EQ(store.ReadFile(), "");
    SetUseProfileFile(bBefore);
}

TEST_F(StoredPosition, IsWrittenInItsFormAndReadBack) {
    const POINT there = {123, 77};
    {
        ADM_Window_Position position;
        position.Load("Fit", App());
        EXPECT_EQ(position.IsPersistent(), 1);
        EXPECT_EQ(position.IsInitialized(), 0) << "a missing store knows no position";
        OpenAndClose(&position, &there);
    }
    char szValue[32];
    ReadString("Fit", "Initialized", "", szValue, sizeof szValue, App());
    EXPECT_STREQ(szValue, "TRUE");
    ReadString("Fit", "XPosition", "", szValue, sizeof szValue, App());
    EXPECT_STREQ(szValue, "123");
    ReadString("Fit", "YPosition", "", szValue, sizeof szValue, App());
    EXPECT_STREQ(szValue, "77");
    ADM_Window_Position position;
    position.Load("Fit", App());
    EXPECT_EQ(position.IsInitialized(), 1);
    EXPECT_TRUE(OpenAndClose(&position) == there);
}

TEST_F(StoredPosition, NegativePlacesSurvive) {
    Store(-25, 30);
    ADM_Window_Position position;
    position.Load("Fit", App());
    EXPECT_TRUE(position.GetPosition() == (POINT{-25, 30}));
}

TEST_F(StoredPosition, StoredPlaceOfAMonitorThatIsGoneIsIgnored) {
    Store(90000, 90000);
    ADM_Window_Position position;
    position.Load("Fit", App());
    EXPECT_TRUE(OpenAndClose(&position) == TemplatePlace());
}

TEST_F(StoredPosition, FailedWriteIsIgnored) {
    const std::string sBad = store.File("no/such/folder/file.ini");
    ADM_Window_Position position;
    position.Load("Fit", sBad.c_str());
    const POINT there = {123, 77};
    OpenAndClose(&position, &there);
    EXPECT_TRUE(OpenAndClose(&position) == there) << "the object still knows";
}

}  // namespace
}  // namespace framework_test
