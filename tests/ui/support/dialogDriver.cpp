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

void CALLBACK onTick(HWND, UINT, UINT_PTR, DWORD) {
    HWND front = frontModal();
    if (!active || !front)
        return;
    if (active->next < active->steps.size()) {
        // Advance first: the step may open a modal loop in which the next ticks arrive.
        const size_t index = active->next++;
        active->steps[index](front);
    } else if (++active->idleTicks > kGraceTicks) {
        // One window a tick, front first: a message box, then the dialog under it.
        active->timedOut = true;
        EndDialog(front, IDCANCEL);
    }
}

Driver drive(const std::function<void()>& action, std::vector<DialogStep> steps) {
    Driver driver;
    driver.steps = std::move(steps);
    active = &driver;
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMs, &onTick);
    action();
    KillTimer(nullptr, timer);
    active = nullptr;
    // Leftover ticks must not reach the next run.
    MSG message;
    while (PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
    }
    return driver;
}

// The first of this thread's top-level windows that wanted accepts, in Z order.
template <typename Wanted>
HWND findThreadWindow(Wanted wanted) {
    struct Search {
        Wanted* wanted;
        HWND found;
    } search = {&wanted, nullptr};
    auto visit = [](HWND window, LPARAM param) -> BOOL {
        auto* s = reinterpret_cast<Search*>(param);
        if (!(*s->wanted)(window))
            return TRUE;
        s->found = window;
        return FALSE;
    };
    EnumThreadWindows(GetCurrentThreadId(), visit, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

bool isShownDialog(HWND window) {
    wchar_t cls[32] = {};
    GetClassNameW(window, cls, 32);
    return lstrcmpW(cls, L"#32770") == 0 && IsWindowVisible(window);
}

}  // namespace

HWND frontModal() {
    return findThreadWindow([](HWND w) { return isShownDialog(w) && IsWindowEnabled(w); });
}

HWND findMessageBox(HWND owner) {
    return findThreadWindow([owner](HWND w) {
        return w != owner && isShownDialog(w) && GetWindow(w, GW_OWNER) == owner;
    });
}

bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps) {
    const Driver driver = drive(action, std::move(steps));
    return !driver.timedOut && driver.next == driver.steps.size();
}

INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps) {
    INT_PTR result = 0;
    const Driver driver = drive([&] { result = dialog.run(); }, std::move(steps));
    return driver.timedOut ? kDriverTimeout : result;
}

void typeChars(HWND dialog, int id, const std::wstring& text) {
    HWND edit = GetDlgItem(dialog, id);
    // Typing goes on at the end of what is there.
    const int end = GetWindowTextLengthW(edit);
    SendMessageW(edit, EM_SETSEL, end, end);
    for (wchar_t c : text)
        SendMessageW(edit, WM_CHAR, c, 1);
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
        wchar_t cls[32] = {};
        GetClassNameW(child, cls, 32);
        if (lstrcmpiW(cls, L"Static") == 0)
            reinterpret_cast<std::vector<std::wstring>*>(param)->push_back(textOf(child));
        return TRUE;
    };
    EnumChildWindows(window, visit, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

}  // namespace ztest
