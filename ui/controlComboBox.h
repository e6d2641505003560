#pragma once

#include "ui/control.h"

namespace dunmar {

// A "COMBOBOX" with access to its items.
class controlComboBox : public control {
  public:
    ~controlComboBox() override = default;

    // The text of item index; empty when there is no such item or it cannot be read.
    dm_string itemText(int index) const;
    // Selects item index; true only when the box then reports it as selected.
    bool selectIndex(int index) const;
    // Selects the first item whose text equals text exactly (case-sensitive).
    bool selectText(const dm_string& text) const;
    int count() const;
};

}  // namespace dunmar
