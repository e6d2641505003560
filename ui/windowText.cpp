#include "ui/windowText.h"

#include <vector>

namespace dunmar {

dm_string windowText(HWND window) {
    if (!window)
        return dm_string();
    const int length = GetWindowTextLengthW(window);
    if (length < 1)
        return dm_string();
    // The reported length may be larger than the text (it can count a DBCS form).
    std::vector<wchar_t> buffer(static_cast<size_t>(length) + 10, L'\0');
    const int got = GetWindowTextW(window, buffer.data(), length + 5);
    if (got < 1)
        return dm_string();
    return dm_string(buffer.data(), static_cast<size_t>(got));
}

void setWindowText(HWND window, const dm_string& text) {
    if (window)
        SetWindowTextW(window, text.c_str());
}

}  // namespace dunmar
