#pragma once

#include <windows.h>

#include "ui/controlButton.h"
#include "ui/controlCheckBox.h"
#include "ui/controlComboBox.h"
#include "ui/controlLabel.h"
#include "ui/controlList.h"
#include "ui/controlScrollBar.h"
#include "ui/controls.h"

namespace Zelto {

// The fourteen children of the main window, listed in the order they are created.
class mainWindowControls : public dunmar::controls {
  public:
    mainWindowControls() = default;
    ~mainWindowControls() override;

    // Creates every child under parent with its creation text and state. The partial-show
    // bar starts at range 0..50 and the given position. True when all children exist.
    bool create(HINSTANCE instance, HWND parent, int32_t partialPosition);

    // The texts of the current language (and the bar's two fixed ones).
    void setTexts();

    // Places the children for a client area of width x height, with textHeight the height
    // of a line in the window's font.
    void layout(int width, int height, int textHeight);

    // The buttons that act on the selected key, together.
    void enableKeyButtons(bool enabled);

    dunmar::controlComboBox filterBox;
    dunmar::controlList keyList;
    dunmar::controlScrollBar partialShow;
    dunmar::controlButton lockButton;
    dunmar::controlLabel countdown;
    dunmar::controlButton newButton;
    dunmar::controlButton editButton;
    dunmar::controlButton deleteButton;
    dunmar::controlCheckBox stayTop;
    dunmar::controlButton copyUser;
    dunmar::controlButton copyPassword;
    dunmar::controlButton copyEmail;
    dunmar::controlButton openButton;
    dunmar::controlLabel status;
};

// The status label's text when nothing else is shown: a blank and "Ready".
dunmar::dm_string readyText();

}  // namespace Zelto
