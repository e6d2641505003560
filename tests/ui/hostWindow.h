#pragma once

#include <windows.h>

namespace ztest {

// A hidden top-level window to hold controls that need no running dialog.
class HostWindow {
  public:
    HostWindow() {
        window_ = CreateWindowExW(0, L"STATIC", L"host", WS_POPUP, 0, 0, 400, 300, nullptr, nullptr,
                                  GetModuleHandleW(nullptr), nullptr);
    }
    ~HostWindow() {
        if (window_)
            DestroyWindow(window_);
    }
    HWND handle() const { return window_; }

    // A child of a standard class, 200 x 200 so that lists show their items.
    HWND child(const wchar_t* windowClass, DWORD style, int id, const wchar_t* text = L"") const {
        return CreateWindowExW(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 200, 200,
                               window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                               GetModuleHandleW(nullptr), nullptr);
    }

    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

  private:
    HWND window_ = nullptr;
};

}  // namespace ztest
