#include "ui/popupMenu.h"

namespace dunmar {

namespace {

constexpr UINT kTrackFlags = TPM_NONOTIFY | TPM_RETURNCMD | TPM_NOANIMATION;

UINT systemTracker(HMENU menu, HWND owner) {
    POINT at = {0, 0};
    GetCursorPos(&at);
    const BOOL chosen = TrackPopupMenu(menu, kTrackFlags, at.x, at.y, 0, owner, nullptr);
    return chosen > 0 ? static_cast<UINT>(chosen) : 0;
}

popupTracker current = &systemTracker;

}  // namespace

UINT trackPopupMenu(HMENU menu, HWND owner) {
    return current(menu, owner);
}

void setPopupTracker(popupTracker tracker) {
    current = tracker ? tracker : &systemTracker;
}

}  // namespace dunmar
