#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "app/zlTexts.h"
#include "core/dm_string.h"
#include "res/resource.h"
#include "ui/shellOpen.h"
#include "ui/support/dialogDriver.h"

namespace ztest {

inline const HINSTANCE kModule = GetModuleHandleW(nullptr);

// Records what the dialogs ask the shell to open instead of opening it.
struct ShellRecorder {
    static inline std::vector<std::wstring> opened;
    ShellRecorder() {
        opened.clear();
        dunmar::setShellOpenFunction([](HWND, const dunmar::dm_string& target) {
            return opened.push_back(target.str()), intptr_t(33);
        });
    }
    ~ShellRecorder() { dunmar::setShellOpenFunction(nullptr); }
};

// English unless a test sets another language (and puts English back): the automatic choice
// would follow the language of whatever machine runs the tests.
inline const bool englishByDefault = (Zelto::zlSetLanguage(Zelto::zlLanguageEnglish), true);

inline SIZE outerSize(HWND window) {
    RECT r = {};
    GetWindowRect(window, &r);
    return SIZE{r.right - r.left, r.bottom - r.top};
}

}  // namespace ztest
