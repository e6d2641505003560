#pragma once

#include "ui/control.h"

namespace dunmar {

// A "SCROLLBAR" control; the owner keeps its range and position here.
class controlScrollBar : public control {
  public:
    ~controlScrollBar() override = default;

    int32_t minimum = 0;
    int32_t position = 0;
    int32_t maximum = 100;
};

}  // namespace dunmar
