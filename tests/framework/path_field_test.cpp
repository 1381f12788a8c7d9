// A field that shows a path.
#include <gtest/gtest.h>

#include <string>

#include "ControlHost.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_PathText.h"

namespace {

using framework_test::ControlHost;
using test_support::TextOf;

const std::string kLong =
    "C:\\recordings" + std::string(30, 'r') + "\\cells" + std::string(30, 'c') + "\\run.dat";

TEST(PathField, AShortPathStaysWhole) {
    ControlHost host;
    ADM_PathText field;
    const HWND hWnd = host.BindEdit(field);
    field.SetWindowText("a.dat");
    EXPECT_EQ(TextOf(hWnd), "a.dat");
    field.SetWindowText("C:\\d\\a.dat");
    EXPECT_EQ(TextOf(hWnd), "C:\\d\\a.dat");
}

TEST(PathField, ALongPathLosesItsMiddleOnTheScreenAlone) {
    ControlHost host;
    ADM_PathText field;
    const HWND hWnd = host.BindEdit(field);
    field.SetWindowText(kLong.c_str());
    EXPECT_EQ(TextOf(hWnd), "C:\\...\\run.dat");
    EXPECT_EQ(field.GetPath(), kLong);
    field.SetWindowText(nullptr);
    EXPECT_EQ(TextOf(hWnd), "");
    EXPECT_STREQ(field.GetPath(), "");
}

TEST(PathField, APathSetBeforeTheWindowIsShownInIt) {
    ControlHost host;
    ADM_PathText field;
    field.SetWindowText(kLong.c_str());
    EXPECT_EQ(TextOf(host.BindEdit(field)), "C:\\...\\run.dat");
}

TEST(PathField, AnEmptyOneLeavesTheTextOfTheTemplate) {
    ControlHost host;
    ADM_PathText field;
    EXPECT_EQ(TextOf(host.BindEdit(field, 10, "none")), "none");
}

}  // namespace
