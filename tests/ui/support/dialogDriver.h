#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "ui/DlgBase.h"

namespace ztest {

// One action on the modal window in front, given that window.
using DialogStep = std::function<void(HWND dialog)>;

// What runDriven returns when the dialog ended before its last step or was still open long
// after it.
constexpr INT_PTR kDriverTimeout = 0x7ABC;

// Runs action, which opens modal windows (dialogs, message boxes), and performs the steps
// from a thread timer inside their modal loops, one a tick, each on the modal window then in
// front, as a user would. A step may open a nested modal loop; the following steps act on
// it. Windows still open well after the last step are cancelled and the result is false.
bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps);
// The same for one dialog: its result, or kDriverTimeout when not every step ran.
INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps);

inline void setText(HWND dialog, int id, const std::wstring& text) {
    SendDlgItemMessageW(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}
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
RECT childRect(HWND child);  // client-relative
// The texts of a window's static children (a message box's text is one of them).
std::vector<std::wstring> staticTexts(HWND window);

}  // namespace ztest
