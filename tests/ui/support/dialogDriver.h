#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "ui/DlgBase.h"

namespace ztest {

// One action on a running dialog, given the dialog's window.
using DialogStep = std::function<void(HWND dialog)>;

// Result of a driven run whose dialog was still open long after its last step.
constexpr INT_PTR kDriverTimeout = 0x7ABC;

// Runs action, which opens modal windows (dialogs, message boxes) one after another, and,
// from a thread timer inside their modal loops, performs the steps one per tick, as a user
// would, each on the modal window in front at that moment; a tick without one waits. A step
// that opens a nested modal loop (a message box) lets the following steps act on it. Windows
// still open well after the last step are cancelled; the result is then false.
bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps);

// The same for one dialog: its result, or kDriverTimeout when it had to be closed.
INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps);

// The enabled, visible dialog-class window of this thread nearest the top, or null.
HWND frontModal();

// Acting as a user would.
inline void setText(HWND dialog, int id, const std::wstring& text) {
    SendDlgItemMessageW(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}
void typeChars(HWND dialog, int id, const std::wstring& text);  // WM_CHAR each, at the end
inline void click(HWND dialog, int id) {
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}
inline void command(HWND dialog, int id, int code = 0) {
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, code), LPARAM(GetDlgItem(dialog, id)));
}
std::wstring textOf(HWND window);
inline std::wstring itemText(HWND dialog, int id) {
    return textOf(GetDlgItem(dialog, id));
}

// Client-relative rectangle of a child.
RECT childRect(HWND child);
inline RECT childRect(HWND dialog, int id) {
    return childRect(GetDlgItem(dialog, id));
}

// The message box over the dialog, or null.
HWND findMessageBox(HWND owner);
// The texts of the static children of a window (a message box's text is one of them).
std::vector<std::wstring> staticTexts(HWND window);

}  // namespace ztest
