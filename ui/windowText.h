#pragma once

#include <windows.h>

#include "core/dm_string.h"

namespace dunmar {

// The whole text of any window; empty for a null window or an empty text.
dm_string windowText(HWND window);

// Sets a window's text (an empty text, never a null pointer); nothing for a null window.
void setWindowText(HWND window, const dm_string& text);

}  // namespace dunmar
