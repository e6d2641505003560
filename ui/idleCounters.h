#pragma once

#include <cstdint>

namespace dunmar {

// Seconds without activity, counted by the main window's one-second tick: one count for the
// automatic lock, one for clearing the clipboard. Process-wide.
struct idleCounters {
    int32_t lock = 0;
    int32_t clipboard = 0;

    void reset() {
        lock = 0;
        clipboard = 0;
    }
};

idleCounters& idleTime();

}  // namespace dunmar
