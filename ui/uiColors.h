#pragma once

#include <windows.h>

namespace dunmar {

// The one background of every window and dialog, with black static text on it.
constexpr COLORREF kBackgroundColor = 0x9393CC;  // red 204, green 147, blue 147
constexpr COLORREF kStaticTextColor = 0x000000;
// Hyperlinks.
constexpr COLORREF kLinkColor = 0xC00000;  // red 0, green 0, blue 192

}  // namespace dunmar
