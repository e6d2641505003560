#include "ui/wndTimer.h"

#include "ui/idleCounters.h"

namespace dunmar {

namespace {
TIMERPROC tickProcedure = nullptr;
}

wndTimer::~wndTimer() {
    stop();
}

bool wndTimer::start(HWND window) {
    if (timerId_) {
        idleTime().reset();
        KillTimer(window_, timerId_);
        timerId_ = 0;
    }
    if (window)
        window_ = window;
    // Without a window SetTimer would hand out another identifier than ours.
    if (!timerId_ && window_)
        timerId_ = SetTimer(window_, kTimerId, kPeriodMs, tickProcedure);
    return true;
}

void wndTimer::stop() {
    if (!timerId_)
        return;
    idleTime().reset();
    KillTimer(window_, timerId_);
    timerId_ = 0;
}

bool wndTimer::cursorMoved(POINT now) {
    const bool moved = now.x != cursorX_ || now.y != cursorY_;
    cursorX_ = now.x;
    cursorY_ = now.y;
    return moved;
}

void wndTimer::setProcedure(TIMERPROC procedure) {
    tickProcedure = procedure;
}

}  // namespace dunmar
