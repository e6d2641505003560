#include "mainwindow/mainWindowState.h"

#include "ui/uiColors.h"

namespace Zelto {

mainWindowState& mainWindowGlobals() {
    static mainWindowState state;
    return state;
}

HBRUSH mainWindowBrush() {
    static HBRUSH brush = CreateSolidBrush(dunmar::kBackgroundColor);
    return brush;
}

}  // namespace Zelto
