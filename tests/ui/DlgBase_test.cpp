#include "ui/DlgBase.h"

#include <gtest/gtest.h>

#include "app/zlTexts.h"
#include "ui/mainFont.h"
#include "ui/support/dialogDriver.h"
#include "ui/support/screenshot.h"
#include "ui/testDialog.h"
#include "ui/uiColors.h"

using namespace ztest;

namespace {

MINMAXINFO sentinelInfo() {
    MINMAXINFO info = {};
    info.ptMinTrackSize = POINT{1, 2};
    info.ptMaxTrackSize = POINT{3001, 3002};
    return info;
}

MINMAXINFO askTrackSizes(HWND dialog) {
    MINMAXINFO info = sentinelInfo();
    SendMessageW(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info;
}

SIZE outerSize(HWND window) {
    RECT rect;
    GetWindowRect(window, &rect);
    return SIZE{rect.right - rect.left, rect.bottom - rect.top};
}

void resizeTo(HWND window, int width, int height) {
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace

TEST(DlgBase, WithoutInstanceTheDialogIsNotShown) {
    TestDialog dialog(nullptr, 300, 200);
    EXPECT_EQ(-1, dialog.run());
    EXPECT_EQ(0, dialog.createCalls);
    EXPECT_EQ(nullptr, dialog.window());
}

TEST(DlgBase, ProcedureWithoutRunningDialogDoesNothing) {
    ASSERT_EQ(nullptr, dunmar::DlgBase::current());
    HWND window = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 50, 50, nullptr, nullptr,
                                  nullptr, nullptr);
    MINMAXINFO info = sentinelInfo();
    EXPECT_EQ(0, dunmar::DlgBase::dialogProc(window, WM_GETMINMAXINFO, 0,
                                             reinterpret_cast<LPARAM>(&info)));
    EXPECT_EQ(1, info.ptMinTrackSize.x);
    EXPECT_EQ(0, dunmar::DlgBase::dialogProc(window, WM_INITDIALOG, 0, 0));
    DestroyWindow(window);
}

TEST(DlgBase, ButtonsOneAndTwoEndTheDialogWithTheirIdentifier) {
    for (int id : {IDOK, IDCANCEL}) {
        TestDialog dialog;
        EXPECT_EQ(id, runDriven(dialog, {[id](HWND d) { click(d, id); }}));
        EXPECT_EQ(1, dialog.createCalls);
        EXPECT_EQ(nullptr, dunmar::DlgBase::current());
    }
    // Escape closes through the cancel command as well.
    TestDialog dialog;
    EXPECT_EQ(IDCANCEL, runDriven(dialog, {[](HWND d) { SendMessageW(d, WM_CLOSE, 0, 0); }}));
}

TEST(DlgBase, InitGivesTitleSharedFontAndFirstLayout) {
    TestDialog dialog;
    HFONT shared = nullptr;
    std::wstring title;
    RECT client = {};
    std::vector<HFONT> childFonts;
    const INT_PTR result = runDriven(
        dialog, {[&](HWND d) {
            EXPECT_EQ(&dialog, dunmar::DlgBase::current());
            shared = dunmar::sharedFont().handle();
            title = textOf(d);
            GetClientRect(d, &client);
            for (HWND c = GetWindow(d, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
                childFonts.push_back(reinterpret_cast<HFONT>(SendMessageW(c, WM_GETFONT, 0, 0)));
            }
            click(d, IDOK);
        }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(std::wstring(Zelto::zlText(Zelto::zlTextAppName)), title);
    ASSERT_NE(nullptr, shared);
    ASSERT_EQ(7u, childFonts.size());
    for (HFONT font : childFonts)
        EXPECT_EQ(shared, font);
    EXPECT_GE(dialog.layoutCalls, 1);
    EXPECT_EQ(client.right, dialog.lastWidth);
    EXPECT_EQ(client.bottom, dialog.lastHeight);
}

TEST(DlgBase, MinimumAndMaximumTrackSizes) {
    TestDialog bounded(300, 200, 400, 260);
    runDriven(bounded, {[](HWND d) {
                            const MINMAXINFO info = askTrackSizes(d);
                            EXPECT_EQ(300, info.ptMinTrackSize.x);
                            EXPECT_EQ(200, info.ptMinTrackSize.y);
                            EXPECT_EQ(400, info.ptMaxTrackSize.x);
                            EXPECT_EQ(260, info.ptMaxTrackSize.y);
                            resizeTo(d, 100, 100);
                            EXPECT_EQ(300, outerSize(d).cx);
                            EXPECT_EQ(200, outerSize(d).cy);
                            resizeTo(d, 1000, 900);
                            EXPECT_EQ(400, outerSize(d).cx);
                            EXPECT_EQ(260, outerSize(d).cy);
                        },
                        [](HWND d) { click(d, IDOK); }});

    // A maximum below the minimum means none: the dialog grows as far as asked.
    TestDialog unbounded(300, 200, -1, -1);
    runDriven(unbounded, {[](HWND d) {
                              const MINMAXINFO info = askTrackSizes(d);
                              EXPECT_EQ(300, info.ptMinTrackSize.x);
                              EXPECT_EQ(3001, info.ptMaxTrackSize.x);
                              EXPECT_EQ(3002, info.ptMaxTrackSize.y);
                              resizeTo(d, 1100, 700);
                              EXPECT_EQ(1100, outerSize(d).cx);
                              EXPECT_EQ(700, outerSize(d).cy);
                          },
                          [](HWND d) { click(d, IDOK); }});
}

TEST(DlgBase, MinimumOfFifteenOrLessImposesNothing) {
    TestDialog loose(15, 15, 500, 500);
    runDriven(loose, {[](HWND d) {
                  const MINMAXINFO info = askTrackSizes(d);
                  EXPECT_EQ(1, info.ptMinTrackSize.x);
                  EXPECT_EQ(2, info.ptMinTrackSize.y);
                  // Without a minimum the maximum is not applied either.
                  EXPECT_EQ(3001, info.ptMaxTrackSize.x);
                  click(d, IDOK);
              }});
    TestDialog tight(16, 16, -1, -1);
    runDriven(tight, {[](HWND d) {
                  const MINMAXINFO info = askTrackSizes(d);
                  EXPECT_EQ(16, info.ptMinTrackSize.x);
                  EXPECT_EQ(16, info.ptMinTrackSize.y);
                  click(d, IDOK);
              }});
}

TEST(DlgBase, OnlyRestoredAndMaximisedSizesLayOut) {
    TestDialog dialog;
    runDriven(dialog, {[&](HWND d) {
                  const int before = dialog.layoutCalls;
                  SendMessageW(d, WM_SIZE, SIZE_MINIMIZED, MAKELPARAM(0, 0));
                  EXPECT_EQ(before, dialog.layoutCalls);
                  SendMessageW(d, WM_SIZE, SIZE_RESTORED, MAKELPARAM(333, 222));
                  EXPECT_EQ(before + 1, dialog.layoutCalls);
                  EXPECT_EQ(333, dialog.lastWidth);
                  EXPECT_EQ(222, dialog.lastHeight);
                  SendMessageW(d, WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 480));
                  EXPECT_EQ(before + 2, dialog.layoutCalls);
                  EXPECT_EQ(640, dialog.lastWidth);
                  EXPECT_FALSE(dialog.onSize(5, 10, 10));
                  EXPECT_TRUE(dialog.onSize(SIZE_MAXHIDE, 10, 10));
                  EXPECT_EQ(before + 2, dialog.layoutCalls);
                  click(d, IDOK);
              }});
}

TEST(DlgBase, NotificationsReachTheirOperations) {
    TestDialog dialog;
    runDriven(dialog, {[](HWND d) {
                           SendDlgItemMessageW(d, kTestList, LB_ADDSTRING, 0,
                                               reinterpret_cast<LPARAM>(L"one"));
                           command(d, kTestList, LBN_SELCHANGE);
                           command(d, kTestCombo, CBN_SELCHANGE);
                           setText(d, kTestEdit, L"typed");
                           command(d, kTestEdit, EN_SETFOCUS);
                       },
                       [](HWND d) { click(d, IDOK); }});
    EXPECT_EQ((std::vector<int>{kTestList, kTestCombo}), dialog.selectionChanges);
    EXPECT_EQ((std::vector<int>{kTestEdit}), dialog.editChanges);
}

TEST(DlgBase, StaticsAreBlackOnTheBackgroundColour) {
    TestDialog dialog;
    RgbImage image;
    RECT client = {};
    std::vector<DialogStep> steps = {[&](HWND d) {
        HDC dc = CreateCompatibleDC(nullptr);
        SetTextColor(dc, RGB(1, 2, 3));
        const auto brush = reinterpret_cast<HBRUSH>(
            SendMessageW(d, WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                         reinterpret_cast<LPARAM>(GetDlgItem(d, kTestLabel))));
        EXPECT_EQ(dunmar::kStaticTextColor, GetTextColor(dc));
        EXPECT_EQ(dunmar::kBackgroundColor, GetBkColor(dc));
        LOGBRUSH description = {};
        ASSERT_TRUE(GetObjectW(brush, sizeof(description), &description));
        EXPECT_EQ(dunmar::kBackgroundColor, description.lbColor);
        DeleteDC(dc);
    }};
    append(steps, captureSteps(image));
    steps.push_back([&](HWND d) {
        GetClientRect(d, &client);
        POINT origin = {};
        MapWindowPoints(d, nullptr, &origin, 1);
        RECT frame;
        GetWindowRect(d, &frame);
        OffsetRect(&client, origin.x - frame.left, origin.y - frame.top);
        click(d, IDOK);
    });
    EXPECT_EQ(IDOK, runDriven(dialog, steps));
    // The client area, where few controls stand, shows mostly the background colour.
    const int area = (client.right - client.left) * (client.bottom - client.top);
    ASSERT_GT(area, 0);
    EXPECT_GT(countColour(image, client, dunmar::kBackgroundColor), area / 3);
}
