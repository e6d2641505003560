#include "ui/wndTimer.h"

#include <gtest/gtest.h>

#include "ui/hostWindow.h"
#include "ui/idleCounters.h"

using dunmar::idleTime;
using dunmar::wndTimer;

namespace {

int ticks = 0;
HWND tickWindow = nullptr;
UINT_PTR tickId = 0;
void CALLBACK countTick(HWND window, UINT, UINT_PTR id, DWORD) {
    ++ticks;
    tickWindow = window;
    tickId = id;
}

void setIdle(int lock, int clipboard) {
    idleTime().lock = lock;
    idleTime().clipboard = clipboard;
}

}  // namespace

TEST(wndTimer, StartTwiceRestartsAndResetsTheIdleCounters) {
    ztest::HostWindow host;
    wndTimer timer;
    setIdle(3, 4);
    timer.stop();  // stopping a stopped timer does nothing
    EXPECT_EQ(3, idleTime().lock);
    EXPECT_FALSE(timer.running());

    EXPECT_TRUE(timer.start(host.handle()));
    EXPECT_EQ(wndTimer::kTimerId, timer.timerId());
    EXPECT_EQ(host.handle(), timer.window());
    EXPECT_EQ(3, idleTime().lock);  // a first start finds nothing to reset
    EXPECT_EQ(4, idleTime().clipboard);

    EXPECT_TRUE(timer.start());
    EXPECT_EQ(wndTimer::kTimerId, timer.timerId());
    EXPECT_EQ(0, idleTime().lock);
    EXPECT_EQ(0, idleTime().clipboard);

    setIdle(5, 6);
    timer.stop();
    EXPECT_FALSE(timer.running());
    EXPECT_EQ(0, idleTime().lock);
    EXPECT_EQ(0, idleTime().clipboard);
    EXPECT_FALSE(KillTimer(host.handle(), wndTimer::kTimerId));  // really gone
}

TEST(wndTimer, WithoutAWindowNothingRuns) {
    wndTimer timer;
    EXPECT_TRUE(timer.start());
    EXPECT_FALSE(timer.running());
}

TEST(wndTimer, TicksOnceASecondThroughTheProcedure) {
    ztest::HostWindow host;
    wndTimer::setProcedure(&countTick);
    wndTimer timer;
    ticks = 0;
    timer.start(host.handle());
    const DWORD start = GetTickCount();
    MSG message;
    while (ticks < 2 && GetTickCount() - start < 4000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
            DispatchMessageW(&message);
    }
    const DWORD elapsed = GetTickCount() - start;
    timer.stop();
    wndTimer::setProcedure(nullptr);
    EXPECT_EQ(2, ticks);
    EXPECT_GE(elapsed, 1800u);  // two ticks of a second each
    EXPECT_EQ(host.handle(), tickWindow);
    EXPECT_EQ(wndTimer::kTimerId, tickId);
}
