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
        opened().clear();
        dunmar::setShellOpenFunction(&record);
    }
    ~ShellRecorder() { dunmar::setShellOpenFunction(nullptr); }
    const std::vector<std::wstring>& targets() const { return opened(); }

    ShellRecorder(const ShellRecorder&) = delete;
    ShellRecorder& operator=(const ShellRecorder&) = delete;

  private:
    static std::vector<std::wstring>& opened() {
        static std::vector<std::wstring> list;
        return list;
    }
    static intptr_t record(HWND, const dunmar::dm_string& target) {
        opened().push_back(target.str());
        return 33;
    }
};

// Sets the interface language for one test and puts English back afterwards.
class LanguageScope {
  public:
    explicit LanguageScope(int language) { Zelto::zlSetLanguage(language); }
    ~LanguageScope() { Zelto::zlSetLanguage(Zelto::zlLanguageEnglish); }

    LanguageScope(const LanguageScope&) = delete;
    LanguageScope& operator=(const LanguageScope&) = delete;
};

inline std::wstring text(int id) {
    return Zelto::zlText(id);
}

// A rectangle given in dialog units, in the dialog's pixels; position and size are converted
// each on its own, as the dialog manager does.
inline RECT dialogUnits(HWND dialog, int x, int y, int width, int height) {
    RECT position = {x, y, x, y};
    RECT size = {0, 0, width, height};
    MapDialogRect(dialog, &position);
    MapDialogRect(dialog, &size);
    return RECT{position.left, position.top, position.left + size.right,
                position.top + size.bottom};
}

inline bool sameRect(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
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
