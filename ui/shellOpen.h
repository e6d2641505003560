#pragma once

#include <windows.h>

#include <cstdint>

#include "core/dm_string.h"

namespace dunmar {

// Opens a document, folder or address with the shell's "open" verb, shown normally. The
// result is ShellExecuteW's: above 32 is success, anything else its error number.
intptr_t shellOpen(HWND owner, const dm_string& target);

// Where shellOpen goes; tests put a recorder here. Null restores ShellExecuteW.
using shellOpenFunction = intptr_t (*)(HWND owner, const dm_string& target);
void setShellOpenFunction(shellOpenFunction function);

}  // namespace dunmar
