#include "mainwindow/mainWindow.h"

#include "app/zlTexts.h"
#include "dialogs/DlgLogIn.h"
#include "mainwindow/mainWindowState.h"
#include "mainwindow/mainWindowTexts.h"
#include "res/resource.h"
#include "ui/mainFont.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr DWORD kWindowStyle = 0xCE0000;  // overlapped, caption, system menu, frame, minimise
constexpr int kWindowWidth = 300;
constexpr int kWindowHeight = 450;
constexpr int kClassNameCapacity = 256;

// Text whose height is a line's height in the window's font.
constexpr const wchar_t* kMeasureText =
    L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

// The window whose CreateWindowExW is running: its first messages come before the object
// pointer is in the window's user data.
mainWindow* beingCreated = nullptr;

wchar_t className[kClassNameCapacity] = {};
bool classRegistered = false;

int textWidth(HDC dc, const wchar_t* text) {
    SIZE size = {0, 0};
    GetTextExtentPoint32W(dc, text, lstrlenW(text), &size);
    return size.cx;
}

// The layout gives the two rows of three a third of the width each. Some languages need
// more than a third of the usual width for a label there: the window then opens wider, so
// that no label is cut.
int initialWidth(HFONT font) {
    HDC dc = GetDC(nullptr);
    if (!dc)
        return kWindowWidth;
    HGDIOBJ previous = font ? SelectObject(dc, font) : nullptr;
    const int buttonMargin = 16;
    int third = 0;
    for (int id : {textLock, textNew, textEdit, textDelete}) {
        const int need = textWidth(dc, zlText(id)) + buttonMargin;
        third = need > third ? need : third;
    }
    const int box = textWidth(dc, zlText(textStayTop)) + GetSystemMetrics(SM_CXMENUCHECK) + 8;
    third = box > third ? box : third;
    if (previous)
        SelectObject(dc, previous);
    ReleaseDC(nullptr, dc);

    RECT frame = {0, 0, 0, 0};
    AdjustWindowRectEx(&frame, kWindowStyle, TRUE, 0);
    const int width = 3 * third + 32 + 2 + (frame.right - frame.left);
    return width > kWindowWidth ? width : kWindowWidth;
}

}  // namespace

mainWindow::mainWindow(zlKeyFile& file, const dm_string& titleSuffix)
    : controls_(new mainWindowControls()), status_(this), file_(file), titleSuffix_(titleSuffix) {}

mainWindow::~mainWindow() {
    if (window_ && IsWindow(window_)) {
        replacing_ = true;
        DestroyWindow(window_);
    }
    if (font_)
        DeleteObject(font_);
}

bool mainWindow::registerClass(HINSTANCE instance) {
    if (classRegistered)
        return true;
    if (LoadStringW(instance, IDS_WINDOW_CLASS, className, kClassNameCapacity) <= 0)
        return false;
    WNDCLASSEXW windowClass = {};
    windowClass.cbSize = sizeof(windowClass);
    windowClass.style = CS_HREDRAW | CS_VREDRAW;
    windowClass.lpfnWndProc = &mainWindow::windowProc;
    windowClass.hInstance = instance;
    windowClass.hIcon = LoadIconW(instance, MAKEINTRESOURCEW(IDI_ZELTO));
    windowClass.hIconSm = LoadIconW(instance, MAKEINTRESOURCEW(IDI_SMALL));
    windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    windowClass.hbrBackground = mainWindowBrush();
    windowClass.lpszMenuName = MAKEINTRESOURCEW(IDC_ZELTO);
    windowClass.lpszClassName = className;
    classRegistered = RegisterClassExW(&windowClass) != 0;
    return classRegistered;
}

bool mainWindow::create(HINSTANCE instance, int showCommand) {
    if (window_ && IsWindow(window_)) {
        replacing_ = true;
        DestroyWindow(window_);
        replacing_ = false;
    }
    window_ = nullptr;
    instance_ = instance;
    if (!instance || !registerClass(instance))
        return false;
    if (!font_)
        font_ = dunmar::createTahomaFont();

    dm_string title(zlText(zlTextAppName));
    title.append(L" (");
    title.append(titleSuffix_);
    title.append(L")");
    const POINT at = DlgLogIn::lastPosition();

    beingCreated = this;
    HWND made =
        CreateWindowExW(0, className, title.c_str(), kWindowStyle, at.x, at.y, initialWidth(font_),
                        kWindowHeight, nullptr, nullptr, instance, nullptr);
    beingCreated = nullptr;
    if (!made)
        return false;
    window_ = made;
    SetWindowLongPtrW(made, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));

    ShowWindow(made, showCommand);
    UpdateWindow(made);
    localise();
    dunmar::wndTimer::setProcedure(&mainWindow::timerProc);
    timer_.start(made);
    return IsWindow(made) != FALSE;
}

mainWindow* mainWindow::fromWindow(HWND window) {
    auto* self = reinterpret_cast<mainWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return self ? self : beingCreated;
}

void mainWindow::localise() {
    if (!window_)
        return;
    controls_->setTexts();
    HMENU menu = GetMenu(window_);
    if (menu && GetMenuItemCount(menu) > 0) {
        const struct {
            UINT id;
            int text;
        } items[] = {{IDM_FILE, textFile},
                     {IDM_SETTINGS, textSettings},
                     {IDM_HELP, textHelp},
                     {IDM_LANGUAGE, textLanguage}};
        for (const auto& item : items)
            ModifyMenuW(menu, item.id, MF_BYCOMMAND | MF_STRING, item.id, zlText(item.text));
        DrawMenuBar(window_);
    }
    layout();
}

int mainWindow::textHeight() const {
    SIZE size = {0, 0};
    HDC dc = GetDC(window_);
    if (!dc)
        return 0;
    HGDIOBJ previous = font_ ? SelectObject(dc, font_) : nullptr;
    if (!GetTextExtentPoint32W(dc, kMeasureText, lstrlenW(kMeasureText), &size))
        size.cy = 0;
    if (previous)
        SelectObject(dc, previous);
    ReleaseDC(window_, dc);
    return size.cy;
}

void mainWindow::layout() {
    if (!window_)
        return;
    controls_->layout(clientWidth_, clientHeight_, textHeight());
}

}  // namespace Zelto
