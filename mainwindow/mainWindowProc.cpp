#include "mainwindow/mainWindow.h"

#include <wtsapi32.h>

#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowState.h"
#include "mainwindow/zlClipboard.h"
#include "ui/listTypeAhead.h"
#include "ui/uiColors.h"

namespace Zelto {

namespace {

// Statics drawn on the window's background: the edit dialog's labels (114 to 120, 150),
// the countdown and the stay-top box. Everything else keeps the system's colours.
bool onBackground(int id) {
    return (id >= 114 && id <= 120) || id == idCountdown || id == idStayTop || id == 150;
}

constexpr int32_t kLineStep = 1;
constexpr int32_t kPageStep = 10;

// Posted by a session lock or a suspend: the lock runs after the system's message returned.
constexpr UINT kLockRequest = WM_APP + 41;

}  // namespace

LRESULT CALLBACK mainWindow::windowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    mainWindow* self = fromWindow(window);
    if (!self)
        return DefWindowProcW(window, message, wParam, lParam);
    if (!self->window_)
        self->window_ = window;
    if (self->window_ != window)
        return DefWindowProcW(window, message, wParam, lParam);
    return self->handle(message, wParam, lParam);
}

LRESULT mainWindow::handle(UINT message, WPARAM wParam, LPARAM lParam) {
    HWND window = window_;
    switch (message) {
        case WM_CREATE:
            onCreate();
            return 0;
        case WM_DESTROY:
            WTSUnRegisterSessionNotification(window);
            if (!replacing_) {
                // The program ends with this window: a copied secret does not outlive it.
                zlClipboard::instance().clearIfUnchanged();
                PostQuitMessage(0);
            }
            return 0;
        case WM_WTSSESSION_CHANGE:
            if (wParam == WTS_SESSION_LOCK)
                PostMessageW(window, kLockRequest, 0, 0);
            return 0;
        case WM_POWERBROADCAST:
            if (wParam == PBT_APMSUSPEND)
                PostMessageW(window, kLockRequest, 0, 0);
            return TRUE;
        case kLockRequest:
            // Not in the middle of re-enciphering the keys: the next tick after it locks.
            if (mainWindowGlobals().paused)
                mainWindowGlobals().lockPending = true;
            else
                lock();
            return 0;
        case WM_NCDESTROY:
            onDestroyed();
            return DefWindowProcW(window, message, wParam, lParam);
        case WM_SIZE:
            if (wParam == SIZE_RESTORED || wParam == SIZE_MAXIMIZED) {
                clientWidth_ = LOWORD(lParam);
                clientHeight_ = HIWORD(lParam);
                layout();
            }
            return 0;
        case WM_GETMINMAXINFO: {
            auto* info = reinterpret_cast<MINMAXINFO*>(lParam);
            info->ptMinTrackSize.x = mainWindowGlobals().minTrackWidth;
            info->ptMinTrackSize.y = mainWindowGlobals().minTrackHeight;
            return 0;
        }
        case WM_PAINT: {
            // The class brush paints the background; there is nothing else to draw.
            PAINTSTRUCT paint;
            BeginPaint(window, &paint);
            EndPaint(window, &paint);
            return 0;
        }
        case WM_CHAR:
            // Typing while the window itself has the focus also jumps in the list.
            if (dunmar::isTypeAheadCharacter(wParam))
                controls_->keyList.typeAhead(static_cast<wchar_t>(wParam));
            return DefWindowProcW(window, message, wParam, lParam);
        case WM_COMMAND: {
            // An accelerator reports 1 without a control; it is a command like a menu choice.
            const bool accelerator = HIWORD(wParam) == 1 && lParam == 0;
            if (onCommand(accelerator ? kNotifyClicked : HIWORD(wParam), LOWORD(wParam)))
                return 0;
            return DefWindowProcW(window, message, wParam, lParam);
        }
        case WM_HSCROLL:
        case WM_VSCROLL:
            if (lParam && reinterpret_cast<HWND>(lParam) == controls_->partialShow.handle()) {
                onScrollMessage(wParam, lParam);
                return 0;
            }
            return DefWindowProcW(window, message, wParam, lParam);
        case WM_CTLCOLORSTATIC:
            return onColorStatic(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
        case WM_KEYDOWN:
        case WM_MOUSEMOVE:
        case WM_SETFONT:
            return 0;
        default:
            return DefWindowProcW(window, message, wParam, lParam);
    }
}

void mainWindow::onCreate() {
    // A window made anew gets fresh children; the old objects point at destroyed ones.
    controls_.reset(new mainWindowControls());
    controls_->create(instance_, window_, mainWindowGlobals().partialPosition);
    fill();
    controls_->setFont(font_);
    // Wine may only pretend to register; the session lock then just does not reach us.
    WTSRegisterSessionNotification(window_, NOTIFY_FOR_THIS_SESSION);
}

void mainWindow::onDestroyed() {
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    window_ = nullptr;
    rows_.clear();
}

LRESULT mainWindow::onColorStatic(HDC dc, HWND child) const {
    if (!child || !onBackground(GetDlgCtrlID(child)))
        return 0;
    SetTextColor(dc, dunmar::kStaticTextColor);
    SetBkColor(dc, dunmar::kBackgroundColor);
    return reinterpret_cast<LRESULT>(mainWindowBrush());
}

void mainWindow::onScrollMessage(WPARAM wParam, LPARAM lParam) {
    const dunmar::controlScrollBar& bar = controls_->partialShow;
    int32_t position = bar.position;
    switch (LOWORD(wParam)) {
        case SB_LINELEFT:
            position -= kLineStep;
            break;
        case SB_LINERIGHT:
            position += kLineStep;
            break;
        case SB_PAGELEFT:
            position -= kPageStep;
            break;
        case SB_PAGERIGHT:
            position += kPageStep;
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            position = static_cast<int32_t>(HIWORD(wParam));
            break;
        case SB_LEFT:
            position = bar.minimum;
            break;
        case SB_RIGHT:
            position = bar.maximum;
            break;
        default:
            return;  // end of scrolling
    }
    onScroll(GetDlgCtrlID(reinterpret_cast<HWND>(lParam)), position);
}

}  // namespace Zelto
