#pragma once

#include <windows.h>

#include <vector>

#include "core/dm_string.h"

namespace dunmar {

// The item type-ahead lands on: the first text whose first character other than a blank
// is, case-insensitively, at or after the typed one. Empty and all-blank texts are
// skipped. -1 when none is.
int typeAheadIndex(const std::vector<dm_string>& texts, wchar_t typed);

// Backspace, tab, line feed, return and escape never take part in type-ahead.
bool isTypeAheadCharacter(WPARAM character);

// Selects the item typeAheadIndex finds among the list's items and, when the selection
// changed on a list with LBS_NOTIFY, tells the parent as a user's choice would. True when
// an item was selected.
bool listTypeAhead(HWND list, wchar_t typed);

// Subclasses the list so that each typed character runs type-ahead instead of the list
// box's own prefix search; control keys keep their usual meaning.
bool installListTypeAhead(HWND list);
LRESULT CALLBACK listTypeAheadProc(HWND list, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace dunmar
