#pragma once

#include "ui/control.h"

namespace dunmar {

// A "BUTTON" push button.
class controlButton : public control {
  public:
    ~controlButton() override = default;
};

}  // namespace dunmar
