#pragma once

#include "ui/control.h"

namespace dunmar {

// A "EDIT" control.
class controlEdit : public control {
  public:
    ~controlEdit() override = default;
};

}  // namespace dunmar
