#pragma once

#include <windows.h>

namespace dunmar {

// Owns one "Tahoma" font of height 18, the font of every window and dialog.
class mainFont {
  public:
    mainFont() = default;
    virtual ~mainFont();

    // Makes the font unless it exists; true when it exists afterwards.
    bool create();
    HFONT handle() const { return font_; }

    mainFont(const mainFont&) = delete;
    mainFont& operator=(const mainFont&) = delete;

  private:
    HFONT font_ = nullptr;
};

// A new "Tahoma" font as every window uses it; null on failure. The caller owns it.
HFONT createTahomaFont();

// The process-wide font the dialogs share; made on first need, alive to the end.
mainFont& sharedFont();

}  // namespace dunmar
