#include "ui/textExtent.h"

namespace dunmar {

SIZE textExtent(HWND window, const dm_string& text) {
    SIZE size = {0, 0};
    if (!window)
        return size;
    HDC dc = GetDC(window);
    if (!dc)
        return size;
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    HGDIOBJ previous = font ? SelectObject(dc, font) : nullptr;
    if (!GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.length()), &size))
        size = SIZE{0, 0};
    if (previous)
        SelectObject(dc, previous);
    ReleaseDC(window, dc);
    return size;
}

}  // namespace dunmar
