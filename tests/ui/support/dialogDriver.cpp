#include "ui/support/dialogDriver.h"

#include <algorithm>

namespace ztest {

namespace {

constexpr UINT kTickMs = 25;
constexpr int kGraceTicks = 200;  // five seconds after the last step

struct Driver {
    std::vector<DialogStep> steps;
    size_t next = 0;
    int idleTicks = 0;
    bool timedOut = false;
};
Driver* active = nullptr;

bool isClass(HWND window, const wchar_t* name) {
    wchar_t cls[32] = {};
    GetClassNameW(window, cls, 32);
    return lstrcmpiW(cls, name) == 0;
}

// This thread's enabled, visible dialog-class window nearest the top.
HWND frontModal() {
    HWND found = nullptr;
    auto visit = [](HWND w, LPARAM param) -> BOOL {
        if (!isClass(w, L"#32770") || !IsWindowVisible(w) || !IsWindowEnabled(w))
            return TRUE;
        *reinterpret_cast<HWND*>(param) = w;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), visit, reinterpret_cast<LPARAM>(&found));
    return found;
}

void CALLBACK onTick(HWND, UINT, UINT_PTR, DWORD) {
    HWND front = frontModal();
    if (!active || !front)
        return;
    if (active->next < active->steps.size()) {
        // Advance first: the step may open a modal loop in which the next ticks arrive.
        const size_t index = active->next++;
        active->steps[index](front);
    } else if (++active->idleTicks > kGraceTicks) {
        active->timedOut = true;  // one window a tick, front first
        EndDialog(front, IDCANCEL);
    }
}

}  // namespace

bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps) {
    Driver driver{std::move(steps)};
    active = &driver;
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMs, &onTick);
    action();
    KillTimer(nullptr, timer);
    active = nullptr;
    MSG message;  // leftover ticks must not reach the next run
    while (PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
    }
    return !driver.timedOut && driver.next == driver.steps.size();
}

INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps) {
    INT_PTR result = 0;
    return runWithModals([&] { result = dialog.run(); }, std::move(steps)) ? result
                                                                           : kDriverTimeout;
}

std::wstring textOf(HWND window) {
    std::wstring text(static_cast<size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<size_t>(
        std::max(0, GetWindowTextW(window, text.data(), static_cast<int>(text.size())))));
    return text;
}

RECT childRect(HWND child) {
    RECT rect = {};
    GetWindowRect(child, &rect);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

std::vector<std::wstring> staticTexts(HWND window) {
    std::vector<std::wstring> texts;
    auto visit = [](HWND child, LPARAM param) -> BOOL {
        if (isClass(child, L"Static"))
            reinterpret_cast<std::vector<std::wstring>*>(param)->push_back(textOf(child));
        return TRUE;
    };
    EnumChildWindows(window, visit, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

}  // namespace ztest
