#include "ui/hyperLinkProcs.h"

#include "ui/uiColors.h"
#include "ui/windowProps.h"

namespace dunmar {

namespace {

WNDPROC previousProc(HWND window) {
    return reinterpret_cast<WNDPROC>(GetPropW(window, kOriginalProcProperty));
}

void restoreProc(HWND window, WNDPROC previous) {
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous));
    RemovePropW(window, kOriginalProcProperty);
}

void showFont(HWND link, const wchar_t* property) {
    if (HANDLE font = GetPropW(link, property)) {
        SendMessageW(link, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
        InvalidateRect(link, nullptr, TRUE);
    }
}

}  // namespace

void subclassWindow(HWND window, WNDPROC procedure) {
    const LONG_PTR current = GetWindowLongPtrW(window, GWLP_WNDPROC);
    if (current == reinterpret_cast<LONG_PTR>(procedure))
        return;
    SetPropW(window, kOriginalProcProperty, reinterpret_cast<HANDLE>(current));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

LRESULT CALLBACK hyperLinkParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC previous = previousProc(window);
    if (!previous)
        return 0;
    if (message == WM_DESTROY) {
        restoreProc(window, previous);
    } else if (message == WM_CTLCOLORSTATIC &&
               GetPropW(reinterpret_cast<HWND>(lParam), kFromStaticProperty)) {
        // The parent's own answer gives the background brush; only the text colour changes.
        const LRESULT brush = CallWindowProcW(previous, window, message, wParam, lParam);
        SetTextColor(reinterpret_cast<HDC>(wParam), kLinkColor);
        return brush;
    }
    return CallWindowProcW(previous, window, message, wParam, lParam);
}

LRESULT CALLBACK hyperLinkStaticProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const WNDPROC previous = previousProc(window);
    if (!previous)
        return 0;
    switch (message) {
        case WM_DESTROY: {
            restoreProc(window, previous);
            if (HANDLE font = GetPropW(window, kOriginalFontProperty))
                SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), 0);
            RemovePropW(window, kOriginalFontProperty);
            if (HANDLE underline = GetPropW(window, kUnderlineFontProperty))
                DeleteObject(static_cast<HGDIOBJ>(underline));
            RemovePropW(window, kUnderlineFontProperty);
            RemovePropW(window, kFromStaticProperty);
            break;
        }
        case WM_SETCURSOR: {
            HCURSOR cursor = LoadCursorW(nullptr, IDC_HAND);
            if (!cursor)
                cursor = LoadCursorW(nullptr, IDC_ARROW);
            SetCursor(cursor);
            return TRUE;
        }
        case WM_MOUSEMOVE:
            if (GetCapture() == window) {
                POINT point = {static_cast<short>(LOWORD(lParam)),
                               static_cast<short>(HIWORD(lParam))};
                ClientToScreen(window, &point);
                RECT bounds;
                GetWindowRect(window, &bounds);
                if (!PtInRect(&bounds, point)) {
                    showFont(window, kOriginalFontProperty);
                    ReleaseCapture();
                }
            } else {
                showFont(window, kUnderlineFontProperty);
                SetCapture(window);
            }
            break;
        default:
            break;
    }
    return CallWindowProcW(previous, window, message, wParam, lParam);
}

}  // namespace dunmar
