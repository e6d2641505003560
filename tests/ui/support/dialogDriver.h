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

// Runs the dialog modally and, from a thread timer inside its modal loop, performs the
// steps one per tick, as a user would one after the other. A step that opens a nested
// modal loop (a message box) lets the following steps run inside that loop. If the dialog
// is still open well after the last step, it (and any message box over it) is closed and
// the result is kDriverTimeout.
INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps);

// Runs action, which opens modal windows (dialogs, message boxes) one after another, and
// performs the steps one per tick, each on the modal window in front at that moment; a tick
// without one waits. Windows still open well after the last step are cancelled; the result
// is then false.
bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps);

// The enabled, visible dialog-class window of this thread nearest the top, or null.
HWND frontModal();

// Acting as a user would.
void setText(HWND dialog, int id, const std::wstring& text);    // WM_SETTEXT
void typeChars(HWND dialog, int id, const std::wstring& text);  // WM_CHAR each, at the end
void click(HWND dialog, int id);                                // BM_CLICK
void command(HWND dialog, int id, int code = 0);                // WM_COMMAND
std::wstring textOf(HWND window);
std::wstring itemText(HWND dialog, int id);

// Client-relative rectangle of a child.
RECT childRect(HWND dialog, int id);
RECT childRect(HWND child);

// The message box over the dialog, or null.
HWND findMessageBox(HWND owner);
// The texts of the static children of a window (a message box's text is one of them).
std::vector<std::wstring> staticTexts(HWND window);

}  // namespace ztest
