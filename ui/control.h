#pragma once

#include <windows.h>

#include <cstdint>

#include "core/dm_string.h"

namespace dunmar {

// One child window of a window or dialog. The owner creates the child and attaches its
// handle and identifier; destroying the object leaves the window alone (Win32 destroys it
// with its parent).
class control {
  public:
    control() = default;
    virtual ~control();
    // Sends WM_SETFONT with redraw; false without a window or a font.
    virtual bool setFont(HFONT font);

    HWND handle() const { return handle_; }
    uint32_t id() const { return id_; }
    void attach(HWND handle, uint32_t id);

    // Moves and sizes the child, keeping its Z order; false without a window.
    bool place(int x, int y, int width, int height) const;
    dm_string text() const;
    void setText(const dm_string& text) const;
    void enable(bool enabled) const;

    control(const control&) = delete;
    control& operator=(const control&) = delete;

  protected:
    HWND handle_ = nullptr;
    uint32_t id_ = 0;
};

}  // namespace dunmar
