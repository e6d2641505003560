// The shared dialog procedure: message dispatch, colours and track sizes of every dialog.
#include "ui/DlgBase.h"

#include "ui/uiColors.h"

namespace dunmar {

namespace {
// The dialog being run; one at a time.
DlgBase* runningDialog = nullptr;
}  // namespace

DlgBase* DlgBase::current() {
    return runningDialog;
}

INT_PTR DlgBase::run() {
    if (!instance_)
        return -1;
    runningDialog = this;
    const INT_PTR result =
        DialogBoxParamW(instance_, MAKEINTRESOURCEW(templateId_), parent_, &DlgBase::dialogProc, 0);
    runningDialog = nullptr;
    return result;
}

INT_PTR CALLBACK DlgBase::dialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    // Messages before WM_INITDIALOG find the dialog in the running slot only.
    auto* dialog = reinterpret_cast<DlgBase*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!dialog)
        dialog = runningDialog;
    if (!dialog)
        return 0;
    return dialog->handle(window, message, wParam, lParam);
}

INT_PTR DlgBase::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITDIALOG:
            SetWindowLongPtrW(window, DWLP_USER, reinterpret_cast<LONG_PTR>(this));
            window_ = window;
            return onInit() ? 1 : 0;
        case WM_COMMAND: {
            const int id = LOWORD(wParam);
            switch (HIWORD(wParam)) {
                case 0:
                    onCommand(id);
                    break;
                case 1:
                    onSelectionChanged(id);
                    onSelectionChanged2(id);
                    break;
                case EN_CHANGE:
                    onEditChange(id);
                    break;
                default:
                    break;
            }
            return 0;
        }
        case WM_CTLCOLORSTATIC: {
            const auto dc = reinterpret_cast<HDC>(wParam);
            SetTextColor(dc, kStaticTextColor);
            SetBkColor(dc, kBackgroundColor);
            SetDCBrushColor(dc, kBackgroundColor);
            return reinterpret_cast<INT_PTR>(backgroundBrush());
        }
        case WM_ERASEBKGND:
            return eraseBackground(reinterpret_cast<HDC>(wParam));
        case WM_GETMINMAXINFO:
            applyTrackSizes(*reinterpret_cast<MINMAXINFO*>(lParam));
            return 1;
        case WM_MOVE: {
            const int x = static_cast<short>(LOWORD(lParam));
            onMove(x, x);
            return 0;
        }
        case WM_SIZE:
            onSize(static_cast<int>(wParam), LOWORD(lParam), HIWORD(lParam));
            return 0;
        default:
            return 0;
    }
}

INT_PTR DlgBase::eraseBackground(HDC dc) {
    if (!window_ || IsIconic(window_))
        return 0;
    RECT client;
    GetClientRect(window_, &client);
    const int saved = SaveDC(dc);
    SetMapMode(dc, MM_ANISOTROPIC);
    SetWindowExtEx(dc, 100, 100, nullptr);
    SetViewportExtEx(dc, client.right - client.left, client.bottom - client.top, nullptr);
    const RECT whole = {0, 0, 100, 100};
    FillRect(dc, &whole, backgroundBrush());
    RestoreDC(dc, saved);
    SetWindowLongPtrW(window_, DWLP_MSGRESULT, 1);
    return 1;
}

void DlgBase::applyTrackSizes(MINMAXINFO& info) const {
    if (minTrackWidth_ > 15) {
        info.ptMinTrackSize.x = minTrackWidth_;
        if (maxTrackWidth_ >= minTrackWidth_)
            info.ptMaxTrackSize.x = maxTrackWidth_;
    }
    if (minTrackHeight_ > 15) {
        info.ptMinTrackSize.y = minTrackHeight_;
        if (maxTrackHeight_ >= minTrackHeight_)
            info.ptMaxTrackSize.y = maxTrackHeight_;
    }
}

}  // namespace dunmar
