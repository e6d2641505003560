#pragma once

#include <windows.h>

namespace dunmar {

// Installed on the window that holds a hyperlink: colours the link's text.
LRESULT CALLBACK hyperLinkParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
// Installed on the link's static: cursor, underline while hovered, clean-up.
LRESULT CALLBACK hyperLinkStaticProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// Replaces window's procedure by procedure, keeping the previous one as a property; does
// nothing when procedure is already installed.
void subclassWindow(HWND window, WNDPROC procedure);

}  // namespace dunmar
