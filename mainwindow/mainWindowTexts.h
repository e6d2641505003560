#pragma once

namespace Zelto {

// Identifiers of the localised texts the main window shows.
enum mainWindowText : int {
    textKey = 2,
    textUser = 4,
    textPassword = 5,
    textEmail = 6,
    textNote = 8,
    textNew = 9,
    textEdit = 10,
    textCopy = 11,
    textOpen = 12,
    textAbout = 17,
    textSelected = 18,
    textCopied = 19,
    textOpened = 20,
    textOpenFailed = 21,
    textLock = 22,
    textFile = 23,
    textSettings = 24,
    textHelp = 25,
    textLanguage = 26,
    textExit = 27,
    textOptions = 28,
    textEnglish = 30,
    textDeutsch = 31,
    textSetMasterPassword = 33,
    textDelete = 39,
    textReady = 43,
    textStayTop = 44,
    textOpenAddress = 45,
    textCopyUser = 46,
    textCopyPassword = 47,
    textCopyEmail = 48,
    textBackup = 59,
    textBackupFailed = 60,
    textBackupDone = 61,
    textChangeFailed = 73,
    textChangeDone = 74,
};

}  // namespace Zelto
