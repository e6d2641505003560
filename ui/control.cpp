#include "ui/control.h"

#include "ui/windowText.h"

namespace dunmar {

control::~control() = default;

bool control::setFont(HFONT font) {
    if (!handle_ || !font)
        return false;
    SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), 1);
    return true;
}

void control::attach(HWND handle, uint32_t id) {
    handle_ = handle;
    id_ = id;
}

bool control::place(int x, int y, int width, int height) const {
    if (!handle_)
        return false;
    return SetWindowPos(handle_, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE) !=
           FALSE;
}

dm_string control::text() const {
    return windowText(handle_);
}

void control::setText(const dm_string& text) const {
    setWindowText(handle_, text);
}

void control::enable(bool enabled) const {
    if (handle_)
        EnableWindow(handle_, enabled ? TRUE : FALSE);
}

}  // namespace dunmar
