// Controls that paint themselves: their place in a dialog, bitmaps and metafiles.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/DrawnPictures.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_MetafileWnd.h"
#include "framework/ADM_PictureWnd.h"

namespace framework_test {
namespace {

using test_support::PumpMessages;

// A white bitmap in memory to draw into.
class Canvas {
  public:
    Canvas(int nWidth, int nHeight) : m_rc{0, 0, nWidth, nHeight} {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = nWidth;
        info.bmiHeader.biHeight = nHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pBits = nullptr;
        m_hDC = CreateCompatibleDC(nullptr);
        m_hBitmap = CreateDIBSection(m_hDC, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
        m_hOld = SelectObject(m_hDC, m_hBitmap);
        FillRect(m_hDC, &m_rc, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    }
    ~Canvas() {
        SelectObject(m_hDC, m_hOld);
        DeleteObject(m_hBitmap);
        DeleteDC(m_hDC);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC DC() const { return m_hDC; }
    const RECT& Area() const { return m_rc; }
    COLORREF At(int x, int y) const { return GetPixel(m_hDC, x, y); }

  private:
    RECT m_rc;
    HDC m_hDC;
    HBITMAP m_hBitmap;
    HGDIOBJ m_hOld;
};

class CountingPicture : public ADM_PictureWnd {
  public:
    void Draw(HDC hDC) override {
        ++nDraws;
        ADM_PictureWnd::Draw(hDC);
    }
    int nDraws = 0;
    using ADM_PictureWnd::m_bAttached;
    using ADM_PictureWnd::m_rcClient;
};

class Picture : public testing::Test {
  protected:
    Picture() : dialog(log) {}
    ~Picture() override { dialog.Destroy(); }
    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
    }

    EventLog log;
    LoggedDialog dialog;
};

TEST_F(Picture, ReplacesItsTemplateItemInPlace) {
    RECT rcItem;
    HWND hBefore = nullptr, hAfter = nullptr;
    HFONT hFont = nullptr;
    std::string sText;
    {
        LoggedDialog plain(log);
        OpenDialog open(plain, IDD_PLAIN);
        GetWindowRect(open.Item(IDC_PICTURE), &rcItem);
        MapWindowPoints(nullptr, open.Handle(), reinterpret_cast<POINT*>(&rcItem), 2);
    }
    CountingPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    Open();
    const HWND hWnd = GetDlgItem(dialog.GetHandle(), IDC_PICTURE);
    EXPECT_EQ(picture.GetHandle(), hWnd);
    EXPECT_EQ(test_support::ClassOf(hWnd), "zxo_adm_picturewndcl32");
    EXPECT_STREQ(picture.GetClassName(), "ZXO_ADM_PictureWndCl32");
    EXPECT_EQ(test_support::TextOf(hWnd), "A picture");
    RECT rc;
    GetWindowRect(hWnd, &rc);
    MapWindowPoints(nullptr, dialog.GetHandle(), reinterpret_cast<POINT*>(&rc), 2);
    EXPECT_TRUE(EqualRect(&rc, &rcItem));
    EXPECT_EQ(picture.m_rcClient.right, rc.right - rc.left);
    EXPECT_EQ(picture.m_rcClient.bottom, rc.bottom - rc.top);
    hFont = reinterpret_cast<HFONT>(SendMessageA(dialog.GetHandle(), WM_GETFONT, 0, 0));
    EXPECT_EQ(picture.GetFont(), hFont);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(hWnd, WM_GETFONT, 0, 0)), hFont);
    EXPECT_EQ(GetWindowLongPtrA(hWnd, 0),
              reinterpret_cast<LONG_PTR>(static_cast<ADM_PictureWnd*>(&picture)));
    // The place among the other items is that of the item.
    hBefore = GetWindow(hWnd, GW_HWNDPREV);
    hAfter = GetWindow(hWnd, GW_HWNDNEXT);
    EXPECT_EQ(GetDlgCtrlID(hBefore), IDC_LABEL);
    EXPECT_EQ(GetDlgCtrlID(hAfter), IDC_METAFILE);
    EXPECT_TRUE(picture.m_bAttached);
    picture.OnAttach();
    EXPECT_EQ(GetDlgItem(dialog.GetHandle(), IDC_PICTURE), hWnd) << "once";
    dialog.Destroy();
    EXPECT_FALSE(picture.m_bAttached);
    EXPECT_EQ(picture.GetHandle(), nullptr);
}

TEST_F(Picture, OpensAgainAndAgain) {
    CountingPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    for (int i = 0; i < 3; ++i) {
        Open();
        EXPECT_EQ(test_support::ClassOf(picture.GetHandle()), "zxo_adm_picturewndcl32");
        dialog.Destroy();
    }
}

TEST_F(Picture, SeveralPicturesShareTheClass) {
    CountingPicture first, second;
    dialog.RegisterControl(IDC_PICTURE, &first);
    dialog.RegisterControl(IDC_METAFILE, &second);
    Open();
    EXPECT_EQ(test_support::ClassOf(first.GetHandle()), "zxo_adm_picturewndcl32");
    EXPECT_EQ(test_support::ClassOf(second.GetHandle()), "zxo_adm_picturewndcl32");
    DestroyWindow(first.GetHandle());
    EXPECT_EQ(first.GetHandle(), nullptr);
    SetWindowTextA(second.GetHandle(), "still here");
    EXPECT_EQ(test_support::TextOf(second.GetHandle()), "still here");
}

TEST_F(Picture, PaintsWhenItIsShown) {
    CountingPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    test_support::DialogScript script;
    script.WaitUntil([&] { return picture.nDraws > 0; }).Click(IDOK);
    script.Run([this] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
}

TEST_F(Picture, ObjectDestroyedLeavesAnEmptyWindow) {
    auto picture = std::make_unique<CountingPicture>();
    dialog.RegisterControl(IDC_PICTURE, picture.get());
    Open();
    const HWND hWnd = picture->GetHandle();
    picture.reset();
    ASSERT_TRUE(IsWindow(hWnd));
    InvalidateRect(hWnd, nullptr, TRUE);
    UpdateWindow(hWnd);
    PumpMessages();
    EXPECT_EQ(dialog.FindControl(hWnd), nullptr);
}

TEST_F(Picture, FontIsTheSystemsWithoutOne) {
    CountingPicture picture;
    EXPECT_EQ(picture.GetFont(), static_cast<HFONT>(GetStockObject(SYSTEM_FONT)));
}

TEST_F(Picture, FillsItsAreaWithTheParentsColour) {
    class WhiteDialog : public LoggedDialog {
      public:
        using LoggedDialog::LoggedDialog;
        HBRUSH OnCtlColor(HWND, HDC, HWND, int nType) override {
            return nType == 6 ? static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)) : nullptr;
        }
    } black(log);
    CountingPicture picture;
    black.RegisterControl(IDC_PICTURE, &picture);
    OpenDialog open(black, IDD_PLAIN);
    Canvas canvas(200, 100);
    picture.Draw(canvas.DC());
    EXPECT_EQ(canvas.At(2, 2), RGB(0, 0, 0));
    EXPECT_EQ(canvas.At(199, 99), RGB(255, 255, 255)) << "and nothing beyond it";
}

// --- Bitmaps

class EdgedPicture : public ADM_BitmapPictureWnd {
  public:
    void DrawOverlay(HDC, const RECT* pRect) override {
        ++nOverlays;
        rcOverlay = *pRect;
    }
    int nOverlays = 0;
    RECT rcOverlay = {};
    using ADM_PictureWnd::m_rcClient;
};

TEST_F(Picture, BitmapIsCentredByIntegerHalves) {
    EdgedPicture picture;
    picture.SetBitmap(Module(), IDB_RAMP);
    dialog.RegisterControl(IDC_PICTURE, &picture);
    Open();
    picture.nOverlays = 0;
    Canvas canvas(400, 200);
    picture.Draw(canvas.DC());
    EXPECT_EQ(picture.nOverlays, 1);
    const RECT& rc = picture.rcOverlay;
    EXPECT_EQ(rc.right - rc.left, 24);
    EXPECT_EQ(rc.bottom - rc.top, 16);
    EXPECT_EQ(rc.left, (picture.m_rcClient.right - 24) / 2);
    EXPECT_EQ(rc.top, (picture.m_rcClient.bottom - 16) / 2);
    EXPECT_EQ(canvas.At(rc.left, rc.top), RGB(255, 0, 0)) << "a marked corner";
    EXPECT_EQ(canvas.At(rc.right - 1, rc.bottom - 1), RGB(255, 0, 0));
    EXPECT_EQ(canvas.At(rc.left + 1, rc.top), RGB(11, 11, 11));
    EXPECT_EQ(canvas.At(rc.left + 22, rc.top), RGB(243, 243, 243));
}

TEST_F(Picture, TheLargerFormShowsWhereItFits) {
    EdgedPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    Open();
    const auto shown = [&picture](int nWidth, int nHeight) {
        SetWindowPos(picture.GetHandle(), nullptr, 0, 0, nWidth, nHeight, SWP_NOMOVE);
        Canvas canvas(400, 200);
        picture.rcOverlay = {};
        picture.Draw(canvas.DC());
        return picture.rcOverlay.right - picture.rcOverlay.left;
    };
    picture.SetBitmap(Module(), IDB_RAMP, IDB_RAMP_LARGER);
    EXPECT_EQ(picture.GetBitmapId(), IDB_RAMP);
    EXPECT_EQ(shown(48, 32), 48);
    EXPECT_EQ(shown(47, 32), 24);
    EXPECT_EQ(shown(48, 31), 24);
    EXPECT_EQ(shown(10, 10), 24);
    picture.SetBitmap(Module(), IDB_RAMP);
    EXPECT_EQ(shown(300, 150), 24);
    // One form alone may be missing.
    picture.SetBitmap(Module(), IDB_RAMP, 9999);
    EXPECT_EQ(shown(300, 150), 24);
    picture.SetBitmap(Module(), 9999, IDB_RAMP_LARGER);
    EXPECT_EQ(shown(300, 150), 48);
}

TEST_F(Picture, MissingBitmapLeavesTheControlEmpty) {
    EdgedPicture picture;
    dialog.RegisterControl(IDC_PICTURE, &picture);
    Open();
    Canvas canvas(200, 100);
    picture.Draw(canvas.DC());
    picture.SetBitmap(Module(), 9999);
    picture.Draw(canvas.DC());
    picture.SetBitmap(nullptr, IDB_RAMP + 1);
    picture.Draw(canvas.DC());
    EXPECT_EQ(picture.nOverlays, 0);
}

TEST_F(Picture, BaseDrawsAnEdgeAroundTheBitmap) {
    ADM_BitmapPictureWnd picture;
    picture.SetBitmap(Module(), IDB_RAMP);
    dialog.RegisterControl(IDC_PICTURE, &picture);
    Open();
    RECT rcClient;
    picture.GetClientRect(&rcClient);
    Canvas canvas(400, 200);
    picture.Draw(canvas.DC());
    const int nLeft = (rcClient.right - 24) / 2, nTop = (rcClient.bottom - 16) / 2;
    EXPECT_NE(canvas.At(nLeft, nTop), RGB(255, 0, 0)) << "over the corner";
    EXPECT_EQ(canvas.At(nLeft + 1, nTop + 1), RGB(11, 11, 11));
}

// --- Metafiles

TEST(Metafile, PlaysThePictureIntoItsRectangle) {
    ADM_MetafileWnd picture;
    picture.LoadMetafile(Module(), "EQ_BELL", MM_ANISOTROPIC);
    const Canvas canvas(200, 100);
    picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
    EXPECT_TRUE(test_support::ShowsMetafile(canvas.DC(), canvas.Area()));
}

TEST(Metafile, EveryMapModeShowsSomething) {
    for (const int nMode : {MM_TEXT, MM_HIMETRIC, MM_ISOTROPIC, MM_ANISOTROPIC}) {
        SCOPED_TRACE(nMode);
        ADM_MetafileWnd picture;
        picture.LoadMetafile(Module(), "EQ_BELL", nMode);
        EXPECT_EQ(picture.GetPicture().mm, nMode);
        const Canvas canvas(200, 100);
        picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
    }
}

TEST(Metafile, WrongKeyShowsNothingAndALaterGoodOneShows) {
    ADM_MetafileWnd picture;
    picture.LoadMetafile(Module(), "EQ_WRONG_KEY", MM_ANISOTROPIC);
    {
        const Canvas canvas(200, 100);
        picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
        EXPECT_FALSE(test_support::ShowsMetafile(canvas.DC(), canvas.Area()));
    }
    picture.LoadMetafile(Module(), "EQ_BELL", MM_ANISOTROPIC);
    {
        const Canvas canvas(200, 100);
        picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
        EXPECT_TRUE(test_support::ShowsMetafile(canvas.DC(), canvas.Area()));
    }
    picture.LoadMetafile(Module(), "EQ_WRONG_KEY", MM_ANISOTROPIC);
    const Canvas canvas(200, 100);
    picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
    EXPECT_FALSE(test_support::ShowsMetafile(canvas.DC(), canvas.Area()))
        << "the good one is dropped";
}

TEST(Metafile, ZeroSizeShortAndMissingOnesDrawNothing) {
    for (const char* szName :
         {"EQ_ZERO_SIZE", "EQ_SHORT", "EQ_NO_SUCH", static_cast<const char*>(nullptr)}) {
        SCOPED_TRACE(szName != nullptr ? szName : "null");
        ADM_MetafileWnd picture;
        picture.LoadMetafile(Module(), szName, MM_ANISOTROPIC);
        const Canvas canvas(200, 100);
        picture.PlayInto(canvas.DC(), 0, 0, 200, 100);
        EXPECT_FALSE(test_support::ShowsMetafile(canvas.DC(), canvas.Area()));
    }
}

TEST(Metafile, ScaleMultipliesBothExtents) {
    ADM_MetafileWnd picture;
    picture.LoadMetafile(Module(), "EQ_BELL", MM_ANISOTROPIC);
    EXPECT_EQ(picture.GetPicture().mm, MM_ANISOTROPIC);
    EXPECT_EQ(picture.GetPicture().xExt, 2880);
    EXPECT_EQ(picture.GetPicture().yExt, 1440);
    picture.SetScale(2);
    EXPECT_EQ(picture.GetPicture().xExt, 5760);
    EXPECT_EQ(picture.GetPicture().yExt, 2880);
    picture.SetScale(1000000);
    EXPECT_EQ(picture.GetPicture().xExt, 2147483647);
    EXPECT_EQ(picture.GetPicture().yExt, 1440000000);
    picture.SetScale(-1000000);
    EXPECT_EQ(picture.GetPicture().xExt, -2147483647);
}

TEST_F(Picture, MetafileFillsItsControl) {
    ADM_MetafileWnd picture;
    picture.LoadMetafile(Module(), "EQ_BELL", MM_ANISOTROPIC);
    dialog.RegisterControl(IDC_METAFILE, &picture);
    Open();
    RECT rc;
    picture.GetClientRect(&rc);
    Canvas canvas(400, 200);
    picture.Draw(canvas.DC());
    EXPECT_TRUE(test_support::ShowsMetafile(canvas.DC(), rc));
}

TEST_F(Picture, MetafileStandsOnWhiteWhereTextIsLight) {
    class DarkDialog : public LoggedDialog {
      public:
        using LoggedDialog::LoggedDialog;
        HBRUSH OnCtlColor(HWND, HDC hDC, HWND, int) override {
            SetTextColor(hDC, crText);
            return static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
        }
        COLORREF crText = 0;
    } dark(log);
    ADM_MetafileWnd picture;
    dark.RegisterControl(IDC_METAFILE, &picture);
    OpenDialog open(dark, IDD_PLAIN);
    const struct {
        COLORREF crText, crShown;
    } kRows[] = {{RGB(255, 255, 0), RGB(255, 255, 255)},
                 {RGB(0, 255, 0), RGB(255, 255, 255)},
                 {RGB(0, 0, 255), RGB(0, 0, 0)},
                 {RGB(60, 60, 60), RGB(0, 0, 0)}};
    for (const auto& row : kRows) {
        dark.crText = row.crText;
        Canvas canvas(40, 20);
        picture.Draw(canvas.DC());
        EXPECT_EQ(canvas.At(1, 1), row.crShown) << std::hex << row.crText;
    }
}

}  // namespace
}  // namespace framework_test
