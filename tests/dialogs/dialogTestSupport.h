#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "app/zlTexts.h"
#include "core/dm_string.h"
#include "ui/shellOpen.h"

namespace ztest {

inline HINSTANCE thisModule() {
    return GetModuleHandleW(nullptr);
}

// Records what the dialogs ask the shell to open instead of opening it.
class ShellRecorder {
  public:
    ShellRecorder() {
        opened.clear();
        dunmar::setShellOpenFunction([](HWND, const dunmar::dm_string& target) -> intptr_t {
            opened.push_back(target.str());
            return 33;
        });
    }
    ~ShellRecorder() { dunmar::setShellOpenFunction(nullptr); }
    const std::vector<std::wstring>& targets() const { return opened; }

  private:
    static inline std::vector<std::wstring> opened;
};

// The dialog tests read English unless a test sets another language: the automatic choice
// would follow the language of whatever machine runs them.
inline const bool englishByDefault = (Zelto::zlSetLanguage(Zelto::zlLanguageEnglish), true);

// Sets the interface language for one test and puts English back afterwards.
struct LanguageScope {
    explicit LanguageScope(int language) { Zelto::zlSetLanguage(language); }
    ~LanguageScope() { Zelto::zlSetLanguage(Zelto::zlLanguageEnglish); }
};

inline std::wstring text(int id) {
    return Zelto::zlText(id);
}

inline std::string describe(const RECT& r) {
    return std::to_string(r.left) + "," + std::to_string(r.top) + " " +
           std::to_string(r.right - r.left) + "x" + std::to_string(r.bottom - r.top);
}

inline SIZE clientSize(HWND window) {
    RECT rect = {};
    GetClientRect(window, &rect);
    return SIZE{rect.right, rect.bottom};
}

inline SIZE outerSize(HWND window) {
    RECT rect = {};
    GetWindowRect(window, &rect);
    return SIZE{rect.right - rect.left, rect.bottom - rect.top};
}

inline void resizeTo(HWND window, int width, int height) {
    SetWindowPos(window, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace ztest
