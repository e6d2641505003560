#pragma once

#include "ui/control.h"

namespace dunmar {

// A "BUTTON" with the check-box style.
class controlCheckBox : public control {
  public:
    ~controlCheckBox() override = default;
};

}  // namespace dunmar
