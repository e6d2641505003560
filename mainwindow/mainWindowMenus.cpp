#include "app/zlTexts.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowTexts.h"
#include "res/resource.h"
#include "ui/popupMenu.h"

namespace Zelto {

namespace {

void appendItem(HMENU menu, UINT command, int text, bool checked = false) {
    const UINT flags = MF_BYPOSITION | MF_STRING | (checked ? MF_CHECKED : MF_UNCHECKED);
    InsertMenuW(menu, static_cast<UINT>(-1), flags, command, zlText(text));
}

}  // namespace

// The menu bar holds four plain commands; each builds its popup afresh, so the texts and
// the language's check are always current.
bool mainWindow::showPopup(UINT barItem) {
    HMENU popup = CreatePopupMenu();
    if (!popup)
        return true;
    switch (barItem) {
        case IDM_FILE:
            appendItem(popup, IDM_BACKUP, textBackup);
            appendItem(popup, IDM_EXIT, textExit);
            break;
        case IDM_SETTINGS:
            appendItem(popup, IDM_OPTIONS, textOptions);
            appendItem(popup, IDM_SET_MASTER_PW, textSetMasterPassword);
            break;
        case IDM_HELP:
            appendItem(popup, IDM_ABOUT, textAbout);
            break;
        case IDM_LANGUAGE: {
            const int language = zlGetLanguage();
            appendItem(popup, IDM_ENGLISH, textEnglish,
                       language == zlLanguageEnglish || language == zlLanguageAuto);
            appendItem(popup, IDM_DEUTSCH, textDeutsch, language == zlLanguageGerman);
            break;
        }
        default:
            break;
    }
    const UINT chosen = GetMenuItemCount(popup) > 0 ? dunmar::trackPopupMenu(popup, window_) : 0;
    DestroyMenu(popup);
    if (chosen)
        runCommand(static_cast<int>(chosen));
    return true;
}

}  // namespace Zelto
