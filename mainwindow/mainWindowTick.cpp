#include <string>

#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowState.h"
#include "mainwindow/zlClipboard.h"
#include "ui/idleCounters.h"

namespace Zelto {

namespace {

// Below this many seconds the automatic lock and the clipboard clearing are off.
constexpr int32_t kMinimumSeconds = 6;

}  // namespace

void CALLBACK mainWindow::timerProc(HWND window, UINT, UINT_PTR, DWORD) {
    if (mainWindow* self = fromWindow(window))
        self->onTimer();
}

// Only pointer movement counts as activity here; commands restart the timer themselves.
void mainWindow::onTimer() {
    mainWindowState& state = mainWindowGlobals();
    if (state.paused)
        return;
    if (state.lockPending) {
        state.lockPending = false;
        lock();
        return;
    }
    POINT now = {0, 0};
    if (readCursor(now) && timer_.cursorMoved(now)) {
        dunmar::idleTime().reset();
        timer_.start();
    }
    tick();
}

void mainWindow::tick() {
    dunmar::idleCounters& idle = dunmar::idleTime();
    const zlFileItemSettings* settings = file_.settings();
    const int32_t autolock = settings ? settings->autolock : 0;
    const int32_t autoClear = settings ? settings->autoClearClipboard : 0;

    if (autolock >= kMinimumSeconds) {
        ++idle.lock;
        const int32_t left = autolock - idle.lock;
        if (left < 1) {
            idle.lock = 0;
            lock();
        } else if (window_) {
            controls_->countdown.setText(dunmar::dm_string(std::to_wstring(left) + L" s "));
        }
    } else if (window_ && !controls_->countdown.text().empty()) {
        // The lock was switched off since the last count: no stale seconds stay.
        controls_->countdown.setText(dunmar::dm_string());
    }

    if (autoClear >= kMinimumSeconds) {
        ++idle.clipboard;
        if (autoClear - idle.clipboard < 1) {
            idle.clipboard = 0;
            zlClipboard::instance().clearIfUnchanged();
        }
    }

    status_.countDown();
}

}  // namespace Zelto
