#pragma once

#include "ui/control.h"

namespace dunmar {

// A "LISTBOX" with selection by index and type-ahead.
class controlList : public control {
  public:
    ~controlList() override = default;

    // Selects item index; true only when the list then reports it as selected.
    bool selectIndex(int index) const;
    int count() const;
    // Runs type-ahead for a typed character (see listTypeAhead.h).
    bool typeAhead(wchar_t typed) const;
    // Makes the list run type-ahead on every typed character (undone on WM_DESTROY).
    bool installTypeAhead() const;
};

}  // namespace dunmar
