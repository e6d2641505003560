#include <vector>

#include "dialogs/DlgLogIn.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowState.h"
#include "model/zlVerify.h"
#include "ui/idleCounters.h"
#include "ui/messagePump.h"

namespace Zelto {

namespace {

constexpr int32_t kLockedWidth = 10;
constexpr int32_t kMinimumLockedHeight = 4;
constexpr UINT kMoveFlags = SWP_NOZORDER | SWP_NOACTIVATE;

BOOL CALLBACK collectOwned(HWND window, LPARAM param) {
    auto* found = reinterpret_cast<std::vector<HWND>*>(param);
    if (IsWindowVisible(window) && GetWindow(window, GW_OWNER) == found->front())
        found->push_back(window);
    return TRUE;
}

// A lock may come while a dialog of the window is open (the edit dialog shows a key in
// plain text): such windows are hidden until the password was typed again.
std::vector<HWND> hideOwnedWindows(HWND owner) {
    std::vector<HWND> found{owner};
    EnumThreadWindows(GetCurrentThreadId(), &collectOwned, reinterpret_cast<LPARAM>(&found));
    found.erase(found.begin());
    for (HWND window : found)
        ShowWindow(window, SW_HIDE);
    return found;
}

}  // namespace

// Asks for the master password until it is right. False when the user gave up, which ends
// the program; a login that cannot even be shown ends it too, or the lock could never end.
bool mainWindow::askToUnlock() {
    for (;;) {
        DlgLogIn login(instance_, window_);
        const INT_PTR result = login.run();
        if (result == IDCANCEL || result == -1) {
            // The window's end clears what it put on the clipboard.
            DestroyWindow(window_);
            endProcess(0);
            return false;
        }
        if (result != IDOK)
            continue;
        dunmar::dm_utf8_str password;
        // A text with a lone surrogate is no password at all, not an empty one.
        if (!login.utf8Password(password))
            continue;
        if (password.empty())
            return true;
        if (zlSetPassword(file_, password.c_str()) == 0 &&
            zlCheckPassword(file_) == zlPasswordRight)
            return true;
    }
}

bool mainWindow::lock() {
    mainWindowState& state = mainWindowGlobals();
    if (state.locked)
        return false;
    state.locked = true;

    if (instance_ && window_ && IsWindow(window_)) {
        // Only a sliver of the title bar stays on screen while the login is up.
        const int32_t savedWidth = state.minTrackWidth;
        const int32_t savedHeight = state.minTrackHeight;
        const int caption = GetSystemMetrics(SM_CYCAPTION);
        state.minTrackWidth = kLockedWidth;
        state.minTrackHeight = caption > kMinimumLockedHeight ? caption : kMinimumLockedHeight;
        RECT before = {0, 0, 0, 0};
        GetWindowRect(window_, &before);
        const std::vector<HWND> hidden = hideOwnedWindows(window_);
        // A dialog of the window may still be running its modal loop; the login would
        // leave the window enabled under it.
        const BOOL wasEnabled = IsWindowEnabled(window_);
        SetWindowPos(window_, nullptr, before.left, before.top, state.minTrackWidth,
                     state.minTrackHeight, kMoveFlags);
        dunmar::pumpWindowMessages(window_);

        if (askToUnlock()) {
            state.minTrackWidth = savedWidth;
            state.minTrackHeight = savedHeight;
            SetWindowPos(window_, nullptr, before.left, before.top, before.right - before.left,
                         before.bottom - before.top, kMoveFlags);
            for (HWND window : hidden)
                if (IsWindow(window))
                    ShowWindow(window, SW_SHOW);
            EnableWindow(window_, wasEnabled);
            dunmar::pumpWindowMessages(window_);
        }
    }

    state.locked = false;
    dunmar::idleTime().reset();
    timer_.start(window_);
    return true;
}

}  // namespace Zelto
