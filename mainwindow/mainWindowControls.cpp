#include "mainwindow/mainWindowControls.h"

#include "app/zlTexts.h"
#include "mainwindow/mainWindowIds.h"
#include "mainwindow/mainWindowTexts.h"
#include "ui/childWindow.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr DWORD kFilterStyle = 0x50200243;  // drop-down list, auto scroll, strings
constexpr DWORD kListStyle = 0x50B00041;    // border, scroll bars, notify, strings
constexpr DWORD kBarStyle = 0x50800002;     // border, horizontal, top-aligned
constexpr DWORD kDefaultButtonStyle = 0x50010001;
constexpr DWORD kButtonStyle = 0x50010000;
constexpr DWORD kCheckBoxStyle = 0x50010002;
constexpr DWORD kButtonExStyle = WS_EX_APPWINDOW;
constexpr int kFilterDropHeight = 200;
constexpr int32_t kInitialBarMaximum = 50;

// The bar's two texts are fixed in every language: the one it is created with and the one
// it carries once the window is shown.
constexpr const wchar_t* kBarCreationText = L"Show parial";
constexpr const wchar_t* kBarText = L"show partial";

int nonNegative(int value) {
    return value < 0 ? 0 : value;
}

}  // namespace

mainWindowControls::~mainWindowControls() = default;

dm_string readyText() {
    dm_string text(L" ");
    text.append(zlText(textReady));
    return text;
}

bool mainWindowControls::create(HINSTANCE instance, HWND parent, int32_t partialPosition) {
    using dunmar::createChild;
    bool all = true;

    // The combo box's height at creation is its drop-down height.
    HWND box = CreateWindowExW(0, L"COMBOBOX", L"", kFilterStyle, 0, 0, 20, kFilterDropHeight,
                               parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(idFilterBox)),
                               instance, nullptr);
    filterBox.attach(box, idFilterBox);
    add(&filterBox);
    all &= box != nullptr;

    all &= createChild(instance, parent, *this, keyList, L"LISTBOX", dm_string(), kListStyle, 0,
                       idKeyList);
    all &= createChild(instance, parent, *this, partialShow, L"SCROLLBAR",
                       dm_string(kBarCreationText), kBarStyle, 0, idPartialShow);
    all &= createChild(instance, parent, *this, lockButton, L"BUTTON", zlText(textLock),
                       kDefaultButtonStyle, kButtonExStyle, idLockButton);
    all &= createChild(instance, parent, *this, countdown, L"STATIC", dm_string(),
                       countdown.style(), 0, idCountdown);
    all &= createChild(instance, parent, *this, newButton, L"BUTTON", zlText(textNew), kButtonStyle,
                       kButtonExStyle, idNewButton);
    all &= createChild(instance, parent, *this, editButton, L"BUTTON", zlText(textEdit),
                       kButtonStyle, kButtonExStyle, idEditButton);
    all &= createChild(instance, parent, *this, deleteButton, L"BUTTON", zlText(textDelete),
                       kButtonStyle, kButtonExStyle, idDeleteButton);
    all &= createChild(instance, parent, *this, stayTop, L"BUTTON", zlText(textStayTop),
                       kCheckBoxStyle, kButtonExStyle, idStayTop);
    all &= createChild(instance, parent, *this, copyUser, L"BUTTON", zlText(textCopy), kButtonStyle,
                       kButtonExStyle, idCopyUser);
    all &= createChild(instance, parent, *this, copyPassword, L"BUTTON", zlText(textCopy),
                       kButtonStyle, kButtonExStyle, idCopyPassword);
    all &= createChild(instance, parent, *this, copyEmail, L"BUTTON", zlText(textCopy),
                       kButtonStyle, kButtonExStyle, idCopyEmail);
    all &= createChild(instance, parent, *this, openButton, L"BUTTON", zlText(textOpen),
                       kButtonStyle, kButtonExStyle, idOpenButton);
    all &= createChild(instance, parent, *this, status, L"STATIC", readyText(), status.style(), 0,
                       idStatusLabel);

    partialShow.minimum = 0;
    partialShow.maximum = kInitialBarMaximum;
    partialShow.position = partialPosition;
    if (partialShow.handle()) {
        SetScrollRange(partialShow.handle(), SB_CTL, partialShow.minimum, partialShow.maximum,
                       FALSE);
        SetScrollPos(partialShow.handle(), SB_CTL, partialShow.position, TRUE);
    }
    // Nothing is selected yet: the buttons for a key wait for one.
    enableKeyButtons(false);
    keyList.installTypeAhead();
    return all;
}

void mainWindowControls::enableKeyButtons(bool enabled) {
    editButton.enable(enabled);
    deleteButton.enable(enabled);
    copyUser.enable(enabled);
    copyPassword.enable(enabled);
    copyEmail.enable(enabled);
    openButton.enable(enabled);
}

void mainWindowControls::setTexts() {
    openButton.setText(zlText(textOpenAddress));
    copyUser.setText(zlText(textCopyUser));
    copyPassword.setText(zlText(textCopyPassword));
    copyEmail.setText(zlText(textCopyEmail));
    newButton.setText(zlText(textNew));
    editButton.setText(zlText(textEdit));
    deleteButton.setText(zlText(textDelete));
    lockButton.setText(zlText(textLock));
    countdown.setText(dm_string());
    partialShow.setText(dm_string(kBarText));
    stayTop.setText(zlText(textStayTop));
    status.setText(readyText());
}

void mainWindowControls::layout(int width, int height, int textHeight) {
    const int t = textHeight;
    const int b = t + 8;  // button height
    const int c = (width - 32) / 3;
    const int wide = nonNegative(width - 16);
    const int third = nonNegative(c);
    const int lastThird = nonNegative(width - 32 - 2 * c);

    status.place(2, height - t - 2, nonNegative(width - 4), t);

    // The full-width column, from the bottom up.
    const int emailY = height - b - t - 10;
    const int passwordY = emailY - (8 + b);
    const int userY = passwordY - (8 + b);
    const int openY = userY - (8 + b);
    copyEmail.place(8, emailY, wide, b);
    copyPassword.place(8, passwordY, wide, b);
    copyUser.place(8, userY, wide, b);
    openButton.place(8, openY, wide, b);

    lockButton.place(8, 8, third, b);
    countdown.place(c + 16, 8, third, b);
    stayTop.place(2 * c + 24, 8, lastThird, b);

    const int dropHeight = openY - 8 - 64 - 4 * t;
    filterBox.place(8, t + 24, wide, nonNegative(dropHeight));
    const int listTop = 2 * b + 20;
    keyList.place(8, listTop, wide, nonNegative(dropHeight - b / 2 - 8));

    // A list box without LBS_NOINTEGRALHEIGHT rounds its height to whole rows.
    int listBottom = listTop;
    RECT real;
    if (keyList.handle() && GetWindowRect(keyList.handle(), &real)) {
        MapWindowPoints(nullptr, GetParent(keyList.handle()), reinterpret_cast<POINT*>(&real), 2);
        listBottom = real.bottom;
    }
    partialShow.place(8, listBottom, wide, b / 2);

    const int rowY = listBottom + b / 2 + 8;
    newButton.place(8, rowY, third, b);
    editButton.place(c + 16, rowY, third, b);
    deleteButton.place(2 * c + 24, rowY, lastThird, b);
}

}  // namespace Zelto
