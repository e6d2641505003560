#pragma once

#include <windows.h>

#include "core/dm_string.h"

namespace dunmar {

// Width and height of text drawn in window's font (the system font when it has none);
// {0, 0} for a null window.
SIZE textExtent(HWND window, const dm_string& text);

}  // namespace dunmar
