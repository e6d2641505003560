#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "ui/control.h"

namespace dunmar {

// The control objects of one window, in creation order, so that the owner can treat them
// together. Does not own them: they are members of the owning window object.
class controls {
  public:
    controls() = default;
    virtual ~controls();

    void add(control* item);
    // setFont on every entry; false only for a null font.
    bool setFont(HFONT font);

    size_t count() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    control* at(size_t index) const { return items_[index]; }

    controls(const controls&) = delete;
    controls& operator=(const controls&) = delete;

  private:
    std::vector<control*> items_;
};

}  // namespace dunmar
