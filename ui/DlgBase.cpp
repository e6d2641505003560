#include "ui/DlgBase.h"

#include "app/zlTexts.h"
#include "ui/childWindow.h"
#include "ui/mainFont.h"
#include "ui/uiColors.h"
#include "ui/windowText.h"

namespace dunmar {

DlgBase::DlgBase(HINSTANCE instance, HWND parent, uint32_t templateId, int32_t minTrackWidth,
                 int32_t minTrackHeight, int32_t maxTrackWidth, int32_t maxTrackHeight)
    : minTrackWidth_(minTrackWidth),
      minTrackHeight_(minTrackHeight),
      maxTrackWidth_(maxTrackWidth),
      maxTrackHeight_(maxTrackHeight),
      instance_(instance),
      parent_(parent),
      templateId_(templateId) {}

DlgBase::~DlgBase() {
    if (brush_)
        DeleteObject(brush_);
}

bool DlgBase::onInit() {
    if (!window_)
        return false;
    setWindowText(window_, title());
    createControls();
    HFONT font = sharedFont().create() ? sharedFont().handle() : nullptr;
    if (font) {
        const auto wParam = reinterpret_cast<WPARAM>(font);
        SendMessageW(window_, WM_SETFONT, wParam, 1);
        for (HWND child = GetWindow(window_, GW_CHILD); child;
             child = GetWindow(child, GW_HWNDNEXT)) {
            SendMessageW(child, WM_SETFONT, wParam, 1);
        }
    }
    controls_.setFont(font);
    if (!controls_.empty()) {
        RECT client;
        GetClientRect(window_, &client);
        layout(client.right - client.left, client.bottom - client.top);
    }
    return true;
}

bool DlgBase::onSelectionChanged2(int) {
    return window_ != nullptr;
}

bool DlgBase::onSelectionChanged(int) {
    return window_ != nullptr;
}

bool DlgBase::onCommand(int id) {
    if (!window_)
        return false;
    if (id == IDOK || id == IDCANCEL)
        end(id);
    return true;
}

bool DlgBase::onEditChange(int) {
    return window_ != nullptr;
}

bool DlgBase::onMove(int, int) {
    return true;
}

bool DlgBase::onSize(int sizeType, int width, int height) {
    switch (sizeType) {
        case SIZE_RESTORED:
        case SIZE_MAXIMIZED:
            return layout(width, height);
        case SIZE_MINIMIZED:
        case SIZE_MAXSHOW:
        case SIZE_MAXHIDE:
            return true;
        default:
            return false;
    }
}

bool DlgBase::createControls() {
    return true;
}

bool DlgBase::layout(int, int) {
    return true;
}

dm_string DlgBase::title() {
    return dm_string(Zelto::zlText(Zelto::zlTextAppName));
}

bool DlgBase::addChild(control& item, const wchar_t* windowClass, const dm_string& text,
                       DWORD style, DWORD extendedStyle, uint32_t id) {
    return createChild(instance_, window_, controls_, item, windowClass, text, style, extendedStyle,
                       id);
}

bool DlgBase::end(INT_PTR result) {
    return window_ && EndDialog(window_, result);
}

bool DlgBase::resize(int width, int height) {
    if (!window_)
        return false;
    return SetWindowPos(window_, nullptr, 0, 0, width, height,
                        SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE) != FALSE;
}

HBRUSH DlgBase::backgroundBrush() {
    if (!brush_)
        brush_ = CreateSolidBrush(kBackgroundColor);
    return brush_;
}

}  // namespace dunmar
