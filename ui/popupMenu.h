#pragma once

#include <windows.h>

namespace dunmar {

// Shows a popup menu at the pointer, owned by owner, and returns the chosen command
// (0 for none) without sending it anywhere.
UINT trackPopupMenu(HMENU menu, HWND owner);

// Where trackPopupMenu goes; tests put a chooser here that reads the menu and picks an
// item. Null restores TrackPopupMenu. Process-wide.
using popupTracker = UINT (*)(HMENU menu, HWND owner);
void setPopupTracker(popupTracker tracker);

}  // namespace dunmar
