#pragma once

#include <windows.h>

#include <cstdint>

namespace Zelto {

// What outlives one main window: a window made anew (after a language switch) starts
// from these. The lock shrinks the minimum track size while it runs.
struct mainWindowState {
    static constexpr int32_t kMinTrackWidth = 290;
    static constexpr int32_t kMinTrackHeight = 435;
    static constexpr int32_t kInitialPartialPosition = 2;

    int32_t minTrackWidth = kMinTrackWidth;
    int32_t minTrackHeight = kMinTrackHeight;
    int32_t partialPosition = kInitialPartialPosition;

    // Set around work that pumps messages (the master password change): no tick then.
    bool paused = false;
    // A lock is running; the tick does not start another.
    bool locked = false;
    // The session was locked while paused: the first tick after the pause locks.
    bool lockPending = false;
};

mainWindowState& mainWindowGlobals();

// Where the tick reads the pointer position (GetCursorPos unless replaced) and how the
// lock ends the program when its login is cancelled (ExitProcess unless replaced).
// Process-wide; null restores the system's.
using cursorReader = BOOL(WINAPI*)(LPPOINT position);
using processEnder = void(WINAPI*)(UINT exitCode);
void setCursorReader(cursorReader reader);
void setProcessEnder(processEnder ender);
BOOL readCursor(POINT& position);
void endProcess(UINT exitCode);

// The background of the main window's class and of its static texts; made on first use,
// alive to the end of the process.
HBRUSH mainWindowBrush();

}  // namespace Zelto
