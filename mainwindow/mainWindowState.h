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
};

mainWindowState& mainWindowGlobals();

// The background of the main window's class and of its static texts; made on first use,
// alive to the end of the process.
HBRUSH mainWindowBrush();

}  // namespace Zelto
