#pragma once

#include "ui/control.h"

namespace dunmar {

// A static text made into a link: drawn in the link colour, underlined while the pointer is
// over it, with the hand cursor; a click reaches the parent as WM_COMMAND with identifier
// 1010. It is the one control that creates its own window.
class controlHyperLink : public control {
  public:
    static constexpr uint32_t kId = 1010;

    ~controlHyperLink() override = default;
    // Sends the font, then rebuilds the normal and underlined fonts from it.
    bool setFont(HFONT font) override;

    // Creates the static under parent and subclasses both; true when the static exists.
    bool create(HINSTANCE instance, HWND parent, const dm_string& text);

    DWORD style() const { return style_; }
    void setStyle(DWORD style) { style_ = style; }

  private:
    bool buildFonts() const;

    DWORD style_ = WS_CHILD | WS_VISIBLE | SS_NOPREFIX;
};

}  // namespace dunmar
