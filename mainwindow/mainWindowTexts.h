#pragma once

namespace Zelto {

// Identifiers of the localised texts the main window shows.
enum mainWindowText : int {
    textKey = 2,
    textNew = 9,
    textEdit = 10,
    textCopy = 11,
    textOpen = 12,
    textSelected = 18,
    textLock = 22,
    textFile = 23,
    textSettings = 24,
    textHelp = 25,
    textLanguage = 26,
    textDelete = 39,
    textReady = 43,
    textStayTop = 44,
    textOpenAddress = 45,
    textCopyUser = 46,
    textCopyPassword = 47,
    textCopyEmail = 48,
};

}  // namespace Zelto
