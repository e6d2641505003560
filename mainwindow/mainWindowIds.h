#pragma once

namespace Zelto {

// Identifiers of the main window's children and of the commands that have no control.
enum mainWindowId : int {
    idFilterBox = 146,
    idKeyList = 121,
    idPartialShow = 1023,
    idLockButton = 141,
    idCountdown = 143,
    idNewButton = 129,
    idEditButton = 130,
    idDeleteButton = 1025,
    idStayTop = 144,
    idCopyUser = 131,
    idCopyPassword = 132,
    idCopyEmail = 133,
    idOpenButton = 134,
    idStatusLabel = 136,
    idCopyNote = 135,
    idToggleFlag = 1024,
};

// Notification codes of WM_COMMAND the main window tells apart.
constexpr int kNotifyClicked = 0;    // buttons and menu items
constexpr int kNotifySelChange = 1;  // LBN_SELCHANGE and CBN_SELCHANGE

}  // namespace Zelto
