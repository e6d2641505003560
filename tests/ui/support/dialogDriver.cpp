#include "ui/support/dialogDriver.h"

#include <vector>

namespace ztest {

namespace {

constexpr UINT kTickMs = 25;
constexpr int kGraceTicks = 200;  // five seconds after the last step

struct Driver {
    dunmar::DlgBase* dialog = nullptr;
    std::vector<DialogStep> steps;
    size_t next = 0;
    int idleTicks = 0;
    bool timedOut = false;
};

Driver* active = nullptr;

void closeEverything(HWND dialog) {
    if (HWND box = findMessageBox(dialog))
        EndDialog(box, IDCANCEL);
    EndDialog(dialog, kDriverTimeout);
}

void CALLBACK onTick(HWND, UINT, UINT_PTR, DWORD) {
    if (!active || !active->dialog)
        return;
    HWND dialog = active->dialog->window();
    if (!dialog || !IsWindow(dialog))
        return;
    if (active->next < active->steps.size()) {
        // Advance first: the step may open a modal loop in which the next ticks arrive.
        const size_t index = active->next++;
        active->steps[index](dialog);
        return;
    }
    if (++active->idleTicks > kGraceTicks && !active->timedOut) {
        active->timedOut = true;
        closeEverything(dialog);
    }
}

BOOL CALLBACK collectStatics(HWND child, LPARAM param) {
    wchar_t cls[32] = {};
    GetClassNameW(child, cls, 32);
    if (lstrcmpiW(cls, L"Static") == 0)
        reinterpret_cast<std::vector<std::wstring>*>(param)->push_back(textOf(child));
    return TRUE;
}

struct BoxSearch {
    HWND owner;
    HWND found;
};

BOOL CALLBACK findBox(HWND window, LPARAM param) {
    auto* search = reinterpret_cast<BoxSearch*>(param);
    wchar_t cls[32] = {};
    GetClassNameW(window, cls, 32);
    if (window != search->owner && lstrcmpW(cls, L"#32770") == 0 && IsWindowVisible(window) &&
        GetWindow(window, GW_OWNER) == search->owner) {
        search->found = window;
        return FALSE;
    }
    return TRUE;
}

struct ModalDriver {
    std::vector<DialogStep> steps;
    size_t next = 0;
    int idleTicks = 0;
    bool timedOut = false;
};

ModalDriver* activeModal = nullptr;

BOOL CALLBACK findFrontModal(HWND window, LPARAM param) {
    wchar_t cls[32] = {};
    GetClassNameW(window, cls, 32);
    if (lstrcmpW(cls, L"#32770") == 0 && IsWindowVisible(window) && IsWindowEnabled(window)) {
        *reinterpret_cast<HWND*>(param) = window;
        return FALSE;
    }
    return TRUE;
}

void CALLBACK onModalTick(HWND, UINT, UINT_PTR, DWORD) {
    if (!activeModal)
        return;
    HWND front = frontModal();
    if (activeModal->next < activeModal->steps.size()) {
        if (!front)
            return;
        const size_t index = activeModal->next++;
        activeModal->steps[index](front);
        return;
    }
    if (front && ++activeModal->idleTicks > kGraceTicks) {
        activeModal->timedOut = true;
        EndDialog(front, IDCANCEL);
    }
}

}  // namespace

HWND frontModal() {
    HWND found = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &findFrontModal, reinterpret_cast<LPARAM>(&found));
    return found;
}

bool runWithModals(const std::function<void()>& action, std::vector<DialogStep> steps) {
    ModalDriver driver;
    driver.steps = std::move(steps);
    activeModal = &driver;
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMs, &onModalTick);
    action();
    KillTimer(nullptr, timer);
    activeModal = nullptr;
    MSG message;
    while (PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
    }
    return !driver.timedOut && driver.next == driver.steps.size();
}

INT_PTR runDriven(dunmar::DlgBase& dialog, std::vector<DialogStep> steps) {
    Driver driver;
    driver.dialog = &dialog;
    driver.steps = std::move(steps);
    active = &driver;
    const UINT_PTR timer = SetTimer(nullptr, 0, kTickMs, &onTick);
    const INT_PTR result = dialog.run();
    KillTimer(nullptr, timer);
    active = nullptr;
    // Leftover ticks must not reach the next run.
    MSG message;
    while (PeekMessageW(&message, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) {
    }
    return result;
}

void setText(HWND dialog, int id, const std::wstring& text) {
    SendDlgItemMessageW(dialog, id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str()));
}

void typeChars(HWND dialog, int id, const std::wstring& text) {
    HWND edit = GetDlgItem(dialog, id);
    // Typing goes on at the end of what is there.
    const int end = GetWindowTextLengthW(edit);
    SendMessageW(edit, EM_SETSEL, end, end);
    for (wchar_t c : text)
        SendMessageW(edit, WM_CHAR, c, 1);
}

void click(HWND dialog, int id) {
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

void command(HWND dialog, int id, int code) {
    SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(id, code),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

std::wstring textOf(HWND window) {
    const int length = GetWindowTextLengthW(window);
    std::wstring text(static_cast<size_t>(length) + 1, L'\0');
    const int got = GetWindowTextW(window, text.data(), length + 1);
    text.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return text;
}

std::wstring itemText(HWND dialog, int id) {
    return textOf(GetDlgItem(dialog, id));
}

RECT childRect(HWND child) {
    RECT rect = {};
    GetWindowRect(child, &rect);
    MapWindowPoints(nullptr, GetParent(child), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

RECT childRect(HWND dialog, int id) {
    return childRect(GetDlgItem(dialog, id));
}

HWND findMessageBox(HWND owner) {
    BoxSearch search = {owner, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), &findBox, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<std::wstring> staticTexts(HWND window) {
    std::vector<std::wstring> texts;
    EnumChildWindows(window, &collectStatics, reinterpret_cast<LPARAM>(&texts));
    return texts;
}

}  // namespace ztest
