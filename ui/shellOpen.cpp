#include "ui/shellOpen.h"

#include <shellapi.h>

namespace dunmar {

namespace {

intptr_t systemShellOpen(HWND owner, const dm_string& target) {
    const HINSTANCE result =
        ShellExecuteW(owner, L"open", target.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<intptr_t>(result);
}

shellOpenFunction current = &systemShellOpen;

}  // namespace

intptr_t shellOpen(HWND owner, const dm_string& target) {
    return current(owner, target);
}

void setShellOpenFunction(shellOpenFunction function) {
    current = function ? function : &systemShellOpen;
}

}  // namespace dunmar
