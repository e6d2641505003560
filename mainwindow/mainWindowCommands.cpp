#include "mainwindow/mainWindow.h"
#include "app/zlTexts.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowTexts.h"
#include "model/zlTypeCodes.h"
#include "res/resource.h"

namespace Zelto {

// The one entry point of WM_COMMAND. The list and the filter box report their selection
// changes; every button press and menu choice also counts as activity, so the timer (and
// with it both idle counts) starts afresh around it.
bool mainWindow::onCommand(int notification, int id) {
    if (notification == kNotifySelChange) {
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
    if (notification != kNotifyClicked)
        return false;
    timer_.stop();
    const bool handled = runCommand(id);
    // The window may be gone (Exit); a timer on no window would take another identifier.
    if (window_)
        timer_.start(window_);
    return handled;
}

bool mainWindow::runCommand(int id) {
    switch (id) {
        case idCopyUser:
            copyField(zlTypeKeyUser, textUser);
            return true;
        case idCopyPassword:
            copyField(zlTypeKeyPW, textPassword);
            return true;
        case idCopyEmail:
            copyField(zlTypeKeyEmail, textEmail);
            return true;
        case idCopyNote:
            copyField(zlTypeKeyNote, textNote);
            return true;
        case idOpenButton:
            openAddress();
            return true;
        case idNewButton:
            editKey(nullptr);
            return true;
        case idEditButton:
            if (zlFileItemKey* key = selectedKey())
                editKey(key);
            return true;
        case idDeleteButton:
            deleteKey();
            return true;
        case idLockButton:
            lock();
            return true;
        case idStayTop:
            toggleStayTop();
            return true;
        case idToggleFlag:
            flag_ = flag_ ? 0 : 1;
            return true;
        case IDM_FILE:
        case IDM_SETTINGS:
        case IDM_HELP:
        case IDM_LANGUAGE:
            return showPopup(static_cast<UINT>(id));
        case IDM_EXIT:
            DestroyWindow(window_);
            return true;
        case IDM_OPTIONS:
            showSettings();
            return true;
        case IDM_SET_MASTER_PW:
            changeMasterPassword();
            return true;
        case IDM_ABOUT:
            showAbout();
            return true;
        case IDM_ENGLISH:
            switchLanguage(zlLanguageEnglish);
            return true;
        case IDM_DEUTSCH:
            switchLanguage(zlLanguageGerman);
            return true;
        case IDM_BACKUP:
            backup();
            return true;
        case IDM_EXPORT_CLOUD:
            exportToCloud();
            return true;
        default:
            return false;
    }
}

}  // namespace Zelto
