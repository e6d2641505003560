#pragma once

#include <windows.h>

namespace dunmar {

// The one-second timer of the main window on which the automatic lock and the clipboard
// clearing run. Every start and stop resets both idle counters.
class wndTimer {
  public:
    static constexpr UINT_PTR kTimerId = 4711;
    static constexpr UINT kPeriodMs = 1000;

    wndTimer() = default;
    virtual ~wndTimer();

    // Restarts a running timer; a given window becomes the timer's window. Always true.
    bool start(HWND window = nullptr);
    // Kills a running timer; nothing when stopped.
    void stop();

    bool running() const { return timerId_ != 0; }
    UINT_PTR timerId() const { return timerId_; }
    HWND window() const { return window_; }

    // Records the pointer position of this tick; true when it differs from the last one.
    bool cursorMoved(POINT now);

    // The procedure each tick calls (null: WM_TIMER goes to the window). Process-wide.
    static void setProcedure(TIMERPROC procedure);

    wndTimer(const wndTimer&) = delete;
    wndTimer& operator=(const wndTimer&) = delete;

  private:
    HWND window_ = nullptr;
    LONG cursorX_ = 0;
    LONG cursorY_ = 0;
    UINT_PTR timerId_ = 0;
};

}  // namespace dunmar
