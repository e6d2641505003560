#include "ui/controlHyperLink.h"

#include <gtest/gtest.h>

#include <vector>

#include "ui/hostWindow.h"
#include "ui/hyperLinkProcs.h"
#include "ui/mainFont.h"
#include "ui/support/dialogDriver.h"
#include "ui/support/screenshot.h"
#include "ui/testDialog.h"
#include "ui/uiColors.h"
#include "ui/windowProps.h"

using dunmar::dm_string;
using namespace ztest;

namespace {

std::vector<WPARAM> hostCommands;
LRESULT CALLBACK hostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND)
        hostCommands.push_back(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
}

HFONT shownFont(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

HFONT underlineFont(HWND link) {
    return static_cast<HFONT>(GetPropW(link, dunmar::kUnderlineFontProperty));
}

class HyperLink : public ::testing::Test {
  protected:
    void SetUp() override {
        hostCommands.clear();
        SetWindowLongPtrW(host.handle(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&hostProc));
        ASSERT_TRUE(font.create());
        ASSERT_TRUE(link.create(GetModuleHandleW(nullptr), host.handle(),
                                dm_string(L"https://zelto.example/")));
        link.place(10, 10, 200, 24);
    }

    HostWindow host;
    dunmar::mainFont font;
    dunmar::controlHyperLink link;
};

}  // namespace

TEST_F(HyperLink, CreateMakesANotifyingSubclassedStatic) {
    EXPECT_EQ(1010u, link.id());
    EXPECT_EQ(1010, GetDlgCtrlID(link.handle()));
    EXPECT_EQ(L"https://zelto.example/", link.text().str());
    EXPECT_TRUE(GetWindowLongPtrW(link.handle(), GWL_STYLE) & SS_NOTIFY);
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(&dunmar::hyperLinkStaticProc),
              GetWindowLongPtrW(link.handle(), GWLP_WNDPROC));
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(&dunmar::hyperLinkParentProc),
              GetWindowLongPtrW(host.handle(), GWLP_WNDPROC));
    EXPECT_EQ(reinterpret_cast<HANDLE>(1), GetPropW(link.handle(), dunmar::kFromStaticProperty));
    // The new static has no font yet, so no underlined one is made.
    EXPECT_EQ(nullptr, underlineFont(link.handle()));
    // A second link on the same window does not stack the parent procedure.
    dunmar::controlHyperLink second;
    ASSERT_TRUE(second.create(nullptr, host.handle(), dm_string()));
    EXPECT_EQ(reinterpret_cast<HANDLE>(&hostProc),
              GetPropW(host.handle(), dunmar::kOriginalProcProperty));
}

TEST_F(HyperLink, SetFontBuildsTheUnderlinedFont) {
    EXPECT_FALSE(link.setFont(nullptr));
    EXPECT_EQ(nullptr, underlineFont(link.handle()));
    ASSERT_TRUE(link.setFont(font.handle()));
    EXPECT_EQ(font.handle(), shownFont(link.handle()));
    EXPECT_EQ(font.handle(), GetPropW(link.handle(), dunmar::kOriginalFontProperty));
    HFONT underline = underlineFont(link.handle());
    ASSERT_NE(nullptr, underline);
    LOGFONTW normal = {};
    LOGFONTW underlined = {};
    GetObjectW(font.handle(), sizeof(normal), &normal);
    ASSERT_TRUE(GetObjectW(underline, sizeof(underlined), &underlined));
    EXPECT_EQ(1, underlined.lfUnderline);
    EXPECT_EQ(normal.lfHeight, underlined.lfHeight);
    EXPECT_EQ(std::wstring(normal.lfFaceName), underlined.lfFaceName);

    // Another font replaces the underlined one and frees the former.
    dunmar::mainFont other;
    ASSERT_TRUE(other.create());
    ASSERT_TRUE(link.setFont(other.handle()));
    EXPECT_NE(underline, underlineFont(link.handle()));
    EXPECT_EQ(0, GetObjectW(underline, sizeof(underlined), &underlined));
}

TEST_F(HyperLink, UnderlinedExactlyWhileThePointerIsOver) {
    ASSERT_TRUE(link.setFont(font.handle()));
    SendMessageW(link.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(underlineFont(link.handle()), shownFont(link.handle()));
    EXPECT_EQ(link.handle(), GetCapture());
    SendMessageW(link.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(20, 6));  // still inside
    EXPECT_EQ(underlineFont(link.handle()), shownFont(link.handle()));
    SendMessageW(link.handle(), WM_MOUSEMOVE, 0, MAKELPARAM(-3, 5));  // left of it
    EXPECT_EQ(font.handle(), shownFont(link.handle()));
    EXPECT_NE(link.handle(), GetCapture());

    EXPECT_EQ(TRUE, SendMessageW(link.handle(), WM_SETCURSOR,
                                 reinterpret_cast<WPARAM>(link.handle()), HTCLIENT));
    EXPECT_EQ(LoadCursorW(nullptr, IDC_HAND), GetCursor());
}

TEST_F(HyperLink, ClickReachesTheParentAsCommand1010) {
    SendMessageW(link.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageW(link.handle(), WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    ASSERT_FALSE(hostCommands.empty());
    EXPECT_EQ(MAKEWPARAM(1010, STN_CLICKED), hostCommands[0]);
}

TEST_F(HyperLink, ParentColoursOnlyTheLinkText) {
    HWND label = host.child(L"STATIC", 0, 77, L"plain");
    HDC dc = CreateCompatibleDC(nullptr);
    SetTextColor(dc, RGB(1, 2, 3));
    SendMessageW(host.handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(label));
    EXPECT_NE(dunmar::kLinkColor, GetTextColor(dc));
    SendMessageW(host.handle(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                 reinterpret_cast<LPARAM>(link.handle()));
    EXPECT_EQ(dunmar::kLinkColor, GetTextColor(dc));
    DeleteDC(dc);
}

TEST_F(HyperLink, DestroyingTheStaticFreesItsUnderlinedFont) {
    ASSERT_TRUE(link.setFont(font.handle()));
    HFONT underline = underlineFont(link.handle());
    ASSERT_NE(nullptr, underline);
    DestroyWindow(link.handle());
    LOGFONTW description;
    EXPECT_EQ(0, GetObjectW(underline, sizeof(description), &description));
    // The shared font itself stays usable.
    EXPECT_NE(0, GetObjectW(font.handle(), sizeof(description), &description));
}

TEST(HyperLinkInDialog, DrawnInLinkColourOnTheBackgroundAndClickable) {
    CommandRecordingDialog dialog;
    RgbImage image;
    RECT linkArea = {};
    HBRUSH linkBrush = nullptr;
    HBRUSH labelBrush = nullptr;
    std::vector<DialogStep> steps = {[&](HWND d) {
        HDC dc = CreateCompatibleDC(nullptr);
        labelBrush = reinterpret_cast<HBRUSH>(
            SendMessageW(d, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                         reinterpret_cast<LPARAM>(GetDlgItem(d, kTestLabel))));
        linkBrush = reinterpret_cast<HBRUSH>(
            SendMessageW(d, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                         reinterpret_cast<LPARAM>(dialog.link.handle())));
        EXPECT_EQ(dunmar::kLinkColor, GetTextColor(dc));
        EXPECT_EQ(dunmar::kBackgroundColor, GetBkColor(dc));
        DeleteDC(dc);
        linkArea = rectInCapture(dialog.link.handle());
    }};
    append(steps, captureSteps(image));
    steps.push_back([&](HWND) {
        SendMessageW(dialog.link.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        SendMessageW(dialog.link.handle(), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
    });
    steps.push_back([](HWND d) { click(d, IDCANCEL); });
    EXPECT_EQ(IDCANCEL, runDriven(dialog, steps));
    EXPECT_EQ(labelBrush, linkBrush);  // the dialog's own background
    EXPECT_EQ((std::vector<int>{1010, IDCANCEL}), dialog.commands);
    // The text's strokes are drawn in the link colour on the background colour.
    EXPECT_GT(countColour(image, linkArea, dunmar::kLinkColor), 20);
    EXPECT_GT(countColour(image, linkArea, dunmar::kBackgroundColor), 100);
    saveScreenshot(image, "test-hyperlink");
}
