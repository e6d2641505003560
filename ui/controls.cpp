#include "ui/controls.h"

namespace dunmar {

controls::~controls() = default;

void controls::add(control* item) {
    items_.push_back(item);
}

bool controls::setFont(HFONT font) {
    if (!font)
        return false;
    for (control* item : items_) {
        if (item)
            item->setFont(font);
    }
    return true;
}

}  // namespace dunmar
