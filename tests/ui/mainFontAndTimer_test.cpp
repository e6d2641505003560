#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ui/hostWindow.h"
#include "ui/idleCounters.h"
#include "ui/mainFont.h"
#include "ui/messagePump.h"
#include "ui/wndTimer.h"

using dunmar::idleTime;
using dunmar::wndTimer;

namespace {

std::vector<std::pair<HWND, UINT_PTR>> ticks;
void CALLBACK recordTick(HWND window, UINT, UINT_PTR id, DWORD) {
    ticks.push_back({window, id});
}

UINT seenMessage = 0;
LRESULT CALLBACK recordMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_APP + 1)
        seenMessage = message;
    return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

TEST(mainFont, IsTahomaOfHeightEighteenMadeOnce) {
    dunmar::mainFont font;
    ASSERT_TRUE(font.create());
    HFONT made = font.handle();
    EXPECT_TRUE(font.create());
    EXPECT_EQ(made, font.handle());
    LOGFONTW f = {};
    ASSERT_EQ(int(sizeof(f)), GetObjectW(made, sizeof(f), &f));
    EXPECT_EQ(L"Tahoma", std::wstring(f.lfFaceName));
    EXPECT_EQ(
        (std::vector<LONG>{18, 0, 400, 0, DEFAULT_CHARSET, CLEARTYPE_QUALITY}),
        (std::vector<LONG>{f.lfHeight, f.lfWidth, f.lfWeight,
                           f.lfItalic | f.lfUnderline | f.lfStrikeOut, f.lfCharSet, f.lfQuality}));
}

TEST(messagePump, HandlesTheWindowsWaitingMessages) {
    dunmar::pumpWindowMessages(nullptr);
    ztest::HostWindow host;
    SetWindowLongPtrW(host.handle(), GWLP_WNDPROC, LONG_PTR(&recordMessage));
    PostMessageW(host.handle(), WM_APP + 1, 0, 0);
    dunmar::pumpWindowMessages(host.handle());
    EXPECT_EQ(UINT(WM_APP + 1), seenMessage);
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, host.handle(), 0, 0, PM_NOREMOVE));
}

TEST(wndTimer, RestartAndStopResetTheIdleCounters) {
    ztest::HostWindow host;
    wndTimer timer;
    EXPECT_TRUE(timer.start());  // no window: nothing runs
    EXPECT_FALSE(timer.running());
    auto idle = [](int set) {
        const std::pair<int, int> before = {idleTime().lock, idleTime().clipboard};
        idleTime().lock = idleTime().clipboard = set;
        return before;
    };
    idle(3);
    timer.stop();                // stopping a stopped timer does nothing
    timer.start(host.handle());  // nor does a first start reset anything
    EXPECT_EQ(std::make_pair(3, 3), idle(3));
    EXPECT_EQ(wndTimer::kTimerId, timer.timerId());
    timer.start();  // a restart, on the same window, resets both
    EXPECT_EQ(std::make_pair(0, 0), idle(3));
    EXPECT_EQ(wndTimer::kTimerId, timer.timerId());
    timer.stop();
    EXPECT_EQ(std::make_pair(0, 0), idle(0));
    EXPECT_FALSE(KillTimer(host.handle(), wndTimer::kTimerId));  // really gone
}

TEST(wndTimer, TicksOnItsWindowAfterASecond) {
    ztest::HostWindow host;
    wndTimer::setProcedure(&recordTick);
    wndTimer timer;
    timer.start(host.handle());
    const DWORD start = GetTickCount();
    MSG message;
    while (ticks.empty() && GetTickCount() - start < 3000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
    const DWORD elapsed = GetTickCount() - start;
    timer.stop();
    wndTimer::setProcedure(nullptr);
    EXPECT_GE(elapsed, 900u);
    EXPECT_EQ((std::vector<std::pair<HWND, UINT_PTR>>{{host.handle(), wndTimer::kTimerId}}), ticks);
}
