#include "ui/DlgBase.h"

#include <gtest/gtest.h>

#include <vector>

#include "res/resource.h"
#include "ui/controlButton.h"
#include "ui/controlHyperLink.h"
#include "ui/controlLabel.h"
#include "ui/mainFont.h"
#include "ui/support/dialogDriver.h"
#include "ui/uiColors.h"

using namespace ztest;
using Events = std::vector<std::pair<char, int>>;

namespace {

// A dialog on the sizeable base template with a label, "OK" and the link. It keeps the base's
// command handling and records what reaches the operations.
class TestDialog : public dunmar::DlgBase {
  public:
    explicit TestDialog(int minW = 300, int minH = 200, int maxW = -1, int maxH = -1,
                        HINSTANCE instance = GetModuleHandleW(nullptr))
        : DlgBase(instance, nullptr, IDD_BASE_SIZEABLE, minW, minH, maxW, maxH) {}

    bool createControls() override {
        const DWORD child = WS_CHILD | WS_VISIBLE;
        addChild(label, L"STATIC", dunmar::dm_string(L"A label"), label.style(), 0, 200);
        addChild(ok, L"BUTTON", dunmar::dm_string(L"OK"), child | BS_DEFPUSHBUTTON, 0, IDOK);
        if (link.create(instance(), window(), dunmar::dm_string(L"https://zelto.example/")))
            listControl(link);
        return true;
    }
    bool layout(int width, int height) override {
        layouts.push_back({width, height});
        label.place(8, 8, 120, 24);
        link.place(8, 40, 200, 24);
        return ok.place(width - 88, height - 32, 80, 24);
    }
    bool onCommand(int id) override {
        events.push_back({'C', id});
        return DlgBase::onCommand(id);
    }
    bool onSelectionChanged(int id) override { return events.push_back({'S', id}), true; }
    bool onSelectionChanged2(int id) override { return events.push_back({'2', id}), true; }
    bool onEditChange(int id) override { return events.push_back({'E', id}), true; }
    bool onMove(int x, int sameX) override {
        events.insert(events.end(), {{'M', x}, {'m', sameX}});
        return true;
    }

    std::vector<SIZE> layouts;
    Events events;
    dunmar::controlLabel label;
    dunmar::controlButton ok;
    dunmar::controlHyperLink link;
};

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

}  // namespace

TEST(DlgBase, InitThenEveryMessageReachesItsOperation) {
    EXPECT_EQ(-1, TestDialog(300, 200, -1, -1, nullptr).run());  // no instance: not shown
    MINMAXINFO untouched = {};  // and without a running dialog the procedure does nothing
    EXPECT_EQ(0, dunmar::DlgBase::dialogProc(nullptr, WM_GETMINMAXINFO, 0, LPARAM(&untouched)));
    EXPECT_EQ(0, untouched.ptMinTrackSize.x);

    TestDialog dialog;
    std::wstring title;
    RECT client = {};
    std::vector<HFONT> fonts;
    std::vector<size_t> layoutsAfter;  // before and after each WM_SIZE below
    const std::pair<WPARAM, SIZE> sizes[] = {{SIZE_MINIMIZED, {0, 0}},
                                             {SIZE_RESTORED, {333, 222}},
                                             {SIZE_MAXIMIZED, {640, 480}},
                                             {SIZE_MAXHIDE, {10, 10}},
                                             {5, {20, 20}}};
    const INT_PTR result = runDriven(
        dialog, {[&](HWND d) {
            EXPECT_EQ(&dialog, dunmar::DlgBase::current());
            title = textOf(d);
            GetClientRect(d, &client);
            for (HWND c = GetWindow(d, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT))
                fonts.push_back(fontOf(c));
            // Statics in black, the link in blue, both on the dialog's background brush.
            HDC dc = CreateCompatibleDC(nullptr);
            for (const auto& s : {std::make_pair(dialog.label.handle(), COLORREF(0)),
                                  std::make_pair(dialog.link.handle(), dunmar::kLinkColor)}) {
                SetTextColor(dc, RGB(1, 2, 3));
                const auto brush =
                    HBRUSH(SendMessageW(d, WM_CTLCOLORSTATIC, WPARAM(dc), LPARAM(s.first)));
                EXPECT_EQ(s.second, GetTextColor(dc));
                EXPECT_EQ(dunmar::kBackgroundColor, GetBkColor(dc));
                LOGBRUSH description = {};
                ASSERT_TRUE(GetObjectW(brush, sizeof(description), &description));
                EXPECT_EQ(dunmar::kBackgroundColor, description.lbColor);
            }
            DeleteDC(dc);
            dialog.events.clear();
            SendMessageW(dialog.link.handle(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
            SendMessageW(dialog.link.handle(), WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
            command(d, 200, LBN_SELCHANGE);
            command(d, 200, EN_CHANGE);
            command(d, 200, EN_SETFOCUS);
            SendMessageW(d, WM_MOVE, 0, MAKELPARAM(37, 11));
            layoutsAfter.push_back(dialog.layouts.size());
            for (const auto& s : sizes) {
                SendMessageW(d, WM_SIZE, s.first, MAKELPARAM(s.second.cx, s.second.cy));
                layoutsAfter.push_back(dialog.layouts.size());
            }
            click(d, IDOK);
        }});
    EXPECT_EQ(IDOK, result);
    EXPECT_EQ(nullptr, dunmar::DlgBase::current());
    EXPECT_EQ(L"Zelto", title);
    EXPECT_EQ(std::vector<HFONT>(3, dunmar::sharedFont().handle()), fonts);
    ASSERT_FALSE(dialog.layouts.empty());
    EXPECT_EQ(client.right, dialog.layouts[0].cx);  // the first layout, from onInit
    EXPECT_EQ(client.bottom, dialog.layouts[0].cy);
    EXPECT_EQ(
        (Events{
            {'C', 1010}, {'S', 200}, {'2', 200}, {'E', 200}, {'M', 37}, {'m', 37}, {'C', IDOK}}),
        dialog.events);
    // Minimised and the others lay nothing out; restored and maximised do.
    const size_t n = layoutsAfter[0];
    EXPECT_EQ((std::vector<size_t>{n, n, n + 1, n + 2, n + 2, n + 2}), layoutsAfter);
    EXPECT_EQ(333, dialog.layouts[n].cx);
    EXPECT_EQ(480, dialog.layouts[n + 1].cy);
}

TEST(DlgBase, TrackSizesFromMinimumAndMaximum) {
    // Minimum and maximum as built, then what WM_GETMINMAXINFO makes of 1,2 and 3001,3002.
    const int cases[][8] = {
        {300, 200, 400, 260, 300, 200, 400, 260},
        {300, 200, -1, -1, 300, 200, 3001, 3002},  // a maximum below the minimum is none
        {15, 15, 500, 500, 1, 2, 3001, 3002},      // no minimum, and then no maximum either
        {16, 16, -1, -1, 16, 16, 3001, 3002},
    };
    for (const auto& c : cases) {
        TestDialog dialog(c[0], c[1], c[2], c[3]);
        MINMAXINFO info = {{}, {}, {}, {1, 2}, {3001, 3002}};
        auto ask = [&](HWND d) {
            SendMessageW(d, WM_GETMINMAXINFO, 0, LPARAM(&info));
            SendMessageW(d, WM_CLOSE, 0, 0);  // the close box cancels
        };
        EXPECT_EQ(IDCANCEL, runDriven(dialog, {ask}));
        EXPECT_EQ((std::vector<LONG>{c[4], c[5], c[6], c[7]}),
                  (std::vector<LONG>{info.ptMinTrackSize.x, info.ptMinTrackSize.y,
                                     info.ptMaxTrackSize.x, info.ptMaxTrackSize.y}))
            << c[0] << "x" << c[1];
    }
}
