#pragma once

#include <windows.h>

namespace dunmar {

// Handles the messages waiting for one window (dialog keys included), so that it can
// finish painting before a long operation. Nothing for a null or destroyed window.
void pumpWindowMessages(HWND window);

}  // namespace dunmar
