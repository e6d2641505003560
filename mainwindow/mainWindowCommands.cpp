#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowIds.h"

namespace Zelto {

// The one entry point of WM_COMMAND. The list and the filter box report their selection
// changes here; buttons and menu items (notification 0) get their commands from the
// command handler, which this window does not carry yet, so they stay unhandled.
bool mainWindow::onCommand(int notification, int id) {
    if (notification != kNotifySelChange)
        return false;
    switch (id) {
        case idKeyList:
            onSelectionChange();
            return true;
        case idFilterBox:
            onFilterChange();
            return true;
        default:
            return false;
    }
}

}  // namespace Zelto
