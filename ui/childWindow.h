#pragma once

#include <windows.h>

#include "core/dm_string.h"
#include "ui/control.h"
#include "ui/controls.h"

namespace dunmar {

// Creates a child window of a standard class at 0,0 size 20 x 20 (the owner's layout
// moves it later), attaches it to item and lists item in all. True when the child exists.
bool createChild(HINSTANCE instance, HWND parent, controls& all, control& item,
                 const wchar_t* windowClass, const dm_string& text, DWORD style,
                 DWORD extendedStyle, uint32_t id);

}  // namespace dunmar
