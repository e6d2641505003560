#pragma once

#include "ui/control.h"

namespace dunmar {

// A "STATIC" text. The style is what its owner creates it with.
class controlLabel : public control {
  public:
    ~controlLabel() override = default;

    DWORD style() const { return style_; }
    void setStyle(DWORD style) { style_ = style; }

  private:
    DWORD style_ = WS_CHILD | WS_VISIBLE | SS_NOPREFIX;
};

}  // namespace dunmar
