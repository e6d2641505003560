#pragma once

#include <windows.h>

namespace ztest {

// A hidden top-level window to hold controls that need no running dialog.
struct HostWindow {
    HWND window = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    ~HostWindow() { DestroyWindow(window); }
    HWND handle() const { return window; }

    // A child of a standard class, 200 x 200 so that lists show their items.
    HWND child(const wchar_t* windowClass, DWORD style, int id) const {
        return CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 200, 200,
                               window, HMENU(INT_PTR(id)), GetModuleHandleW(nullptr), nullptr);
    }
};

}  // namespace ztest
