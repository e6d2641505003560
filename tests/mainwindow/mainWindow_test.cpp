// The window itself: class, title, style, children, menu, size limits, layout, colours.
#include <iterator>
#include <string>
#include <vector>

#include "mainWindowFixture.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using namespace Zelto;

namespace {

struct ChildSpec {
    int id;
    const wchar_t* windowClass;
    DWORD style;
    const wchar_t* text;  // after the window is shown, in English
    bool enabled;
};

const ChildSpec kChildren[] = {
    {idFilterBox, L"ComboBox", 0x50200243, L"", true},
    {idKeyList, L"ListBox", 0x50B00041, L"", true},
    {idPartialShow, L"ScrollBar", 0x50800002, L"show partial", true},
    {idLockButton, L"Button", 0x50010001, L"Lock", true},
    {idCountdown, L"Static", 0x50000080, L"", true},
    {idNewButton, L"Button", 0x50010000, L"New", true},
    {idEditButton, L"Button", 0x50010000, L"Edit", false},
    {idDeleteButton, L"Button", 0x50010000, L"Delete", false},
    {idStayTop, L"Button", 0x50010002, L"stay top", true},
    {idCopyUser, L"Button", 0x50010000, L"Copy User", false},
    {idCopyPassword, L"Button", 0x50010000, L"Copy Password", false},
    {idCopyEmail, L"Button", 0x50010000, L"Copy Email", false},
    {idOpenButton, L"Button", 0x50010000, L"Open Internet address", false},
    {idStatusLabel, L"Static", 0x50000080, L" Ready", true},
};

std::wstring classOf(HWND window) {
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

RECT clientRect(HWND window) {
    RECT rect = {};
    GetClientRect(window, &rect);
    return rect;
}

bool overlap(const RECT& a, const RECT& b) {
    RECT both;
    return IntersectRect(&both, &a, &b) != FALSE;
}

class MainWindowShape : public MainWindowTest {};

TEST_F(MainWindowShape, ClassTitleStyleAndObject) {
    addKeys({{"Bank", "money"}});
    open();
    EXPECT_EQ(L"<ZeltoWin32>", classOf(main()));
    EXPECT_EQ(L"Zelto (2.2.1)", textOf(main()));
    const LONG_PTR style = GetWindowLongPtrW(main(), GWL_STYLE);
    EXPECT_EQ(0xCE0000, style & 0xCE0000);
    EXPECT_EQ(0, style & WS_MAXIMIZEBOX);
    EXPECT_TRUE(IsWindowVisible(main()));
    RECT frame;
    GetWindowRect(main(), &frame);
    EXPECT_EQ(300, frame.right - frame.left);
    EXPECT_EQ(450, frame.bottom - frame.top);
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(window.get()), GetWindowLongPtrW(main(), GWLP_USERDATA));
    EXPECT_EQ(window.get(), mainWindow::fromWindow(main()));
    EXPECT_TRUE(window->timer().running());
    EXPECT_EQ(window->window(), window->timer().window());

    WNDCLASSEXW info = {};
    info.cbSize = sizeof(info);
    ASSERT_TRUE(GetClassInfoExW(GetModuleHandleW(nullptr), L"<ZeltoWin32>", &info));
    EXPECT_EQ(static_cast<UINT>(CS_HREDRAW | CS_VREDRAW), info.style);
    EXPECT_EQ(mainWindowBrush(), info.hbrBackground);
    EXPECT_NE(nullptr, info.hIcon);
}

// What CreateWindowExW was asked for, before the controls adjust their own styles.
struct Creation {
    int id;
    DWORD style;
    DWORD extendedStyle;
    int width;
    int height;
    std::wstring text;
};
std::vector<Creation>* recording = nullptr;

LRESULT CALLBACK recordCreation(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && recording) {
        const CREATESTRUCTW* cs = reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs;
        if (cs->hwndParent && classOf(cs->hwndParent) == L"<ZeltoWin32>") {
            recording->push_back({static_cast<int>(reinterpret_cast<INT_PTR>(cs->hMenu)),
                                  static_cast<DWORD>(cs->style), cs->dwExStyle, cs->cx, cs->cy,
                                  cs->lpszName ? cs->lpszName : L""});
        }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(MainWindowShape, FourteenChildrenInTheirOrder) {
    addKeys({{"Bank", "money"}});
    std::vector<Creation> created;
    recording = &created;
    HHOOK hook = SetWindowsHookExW(WH_CBT, &recordCreation, nullptr, GetCurrentThreadId());
    open();
    UnhookWindowsHookEx(hook);
    recording = nullptr;

    ASSERT_EQ(std::size(kChildren), created.size());
    const wchar_t* creationTexts[] = {L"",     L"",     L"Show parial", L"Lock",     L"",
                                      L"New",  L"Edit", L"Delete",      L"stay top", L"Copy",
                                      L"Copy", L"Copy", L"Open",        L" Ready"};
    for (size_t i = 0; i < created.size(); ++i) {
        const ChildSpec& spec = kChildren[i];
        SCOPED_TRACE(spec.id);
        EXPECT_EQ(spec.id, created[i].id);
        EXPECT_EQ(spec.style, created[i].style);
        const bool button = spec.windowClass == std::wstring(L"Button");
        EXPECT_EQ(button ? static_cast<DWORD>(WS_EX_APPWINDOW) : 0u, created[i].extendedStyle);
        EXPECT_EQ(20, created[i].width);
        EXPECT_EQ(spec.id == idFilterBox ? 200 : 20, created[i].height);
        EXPECT_EQ(creationTexts[i], created[i].text);
    }

    // After the window was shown: the same order in the window and in the container, the
    // localised texts, the state and the window's font.
    std::vector<HWND> children;
    for (HWND c = GetWindow(main(), GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT))
        children.push_back(c);
    ASSERT_EQ(std::size(kChildren), children.size());
    ASSERT_EQ(std::size(kChildren), window->controls().count());
    for (size_t i = 0; i < children.size(); ++i) {
        const ChildSpec& spec = kChildren[i];
        SCOPED_TRACE(spec.id);
        EXPECT_EQ(spec.id, GetDlgCtrlID(children[i]));
        EXPECT_EQ(children[i], window->controls().at(i)->handle());
        EXPECT_EQ(0, lstrcmpiW(spec.windowClass, classOf(children[i]).c_str()));
        EXPECT_EQ(spec.text, textOf(children[i]));
        EXPECT_EQ(spec.enabled, IsWindowEnabled(children[i]) != FALSE);
        if (spec.id != idPartialShow) {  // scroll bars have no font
            EXPECT_EQ(window->font(),
                      reinterpret_cast<HFONT>(SendMessageW(children[i], WM_GETFONT, 0, 0)));
        }
    }
    // The list runs type-ahead: its previous procedure is kept as a property.
    EXPECT_NE(nullptr, GetPropW(child(idKeyList), L"_Hyperlink_Original_Proc_"));
}

TEST_F(MainWindowShape, MenuBarSpeaksTheCurrentLanguage) {
    addEmptyKeyList();
    zlSetLanguage(zlLanguageGerman);
    open();
    HMENU menu = GetMenu(main());
    ASSERT_NE(nullptr, menu);
    ASSERT_EQ(4, GetMenuItemCount(menu));
    const UINT ids[] = {32777, 32782, 32780, 32779};
    const wchar_t* texts[] = {L"Datei", L"Einstellungen", L"Hilfe", L"Sprache"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(ids[i], GetMenuItemID(menu, i));
        wchar_t text[64] = {};
        GetMenuStringW(menu, ids[i], text, 64, MF_BYCOMMAND);
        EXPECT_STREQ(texts[i], text);
    }
    EXPECT_EQ(L"Benutzer kopieren", textOf(child(idCopyUser)));
    EXPECT_EQ(L" Bereit", statusText());

    zlSetLanguage(zlLanguageEnglish);
    window->localise();
    wchar_t text[64] = {};
    GetMenuStringW(menu, 32780, text, 64, MF_BYCOMMAND);
    EXPECT_STREQ(L"Help", text);
    EXPECT_EQ(L"Copy User", textOf(child(idCopyUser)));
}

// The rows of three give each label a third of the width: where a language needs more,
// the window opens wider instead of cutting the label.
TEST_F(MainWindowShape, OpensWideEnoughForTheLabelsOfItsLanguage) {
    addEmptyKeyList();
    zlSetLanguage(zlLanguageGerman);
    open();
    RECT frame;
    GetWindowRect(main(), &frame);
    EXPECT_GT(frame.right - frame.left, 300);
    EXPECT_EQ(450, frame.bottom - frame.top);
    HWND box = child(idStayTop);
    const SIZE need = dunmar::textExtent(box, dunmar::dm_string(textOf(box).c_str()));
    RECT inside;
    GetClientRect(box, &inside);
    EXPECT_LE(need.cx + GetSystemMetrics(SM_CXMENUCHECK), inside.right);
}

TEST_F(MainWindowShape, CannotShrinkBelowTheMinimumTrackSize) {
    addEmptyKeyList();
    open();
    SetWindowPos(main(), nullptr, 0, 0, 100, 100, SWP_NOMOVE | SWP_NOZORDER);
    RECT frame;
    GetWindowRect(main(), &frame);
    EXPECT_EQ(290, frame.right - frame.left);
    EXPECT_EQ(435, frame.bottom - frame.top);

    MINMAXINFO info = {};
    SendMessageW(main(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(290, info.ptMinTrackSize.x);
    EXPECT_EQ(435, info.ptMinTrackSize.y);
    mainWindowGlobals().minTrackWidth = 10;
    SendMessageW(main(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(10, info.ptMinTrackSize.x);
}

// Whatever the size, the children stay inside the client area, in their rows, without
// covering each other.
TEST_F(MainWindowShape, LayoutKeepsEveryChildInPlace) {
    addKeys({{"Bank", "money"}, {"Mail", "work"}});
    open();
    const SIZE sizes[] = {{300, 450}, {290, 435}, {520, 700}};
    for (const SIZE& size : sizes) {
        SCOPED_TRACE(std::to_string(size.cx) + "x" + std::to_string(size.cy));
        SetWindowPos(main(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        pump();
        const RECT client = clientRect(main());
        std::vector<RECT> places;
        for (const ChildSpec& spec : kChildren) {
            const RECT r = childRect(child(spec.id));
            EXPECT_GE(r.left, 0) << spec.id;
            EXPECT_GE(r.top, 0) << spec.id;
            EXPECT_LE(r.right, client.right) << spec.id;
            EXPECT_LE(r.bottom, client.bottom) << spec.id;
            EXPECT_GT(r.bottom - r.top, 0) << spec.id;
            places.push_back(r);
        }
        for (size_t i = 0; i < places.size(); ++i) {
            for (size_t j = i + 1; j < places.size(); ++j) {
                EXPECT_FALSE(overlap(places[i], places[j]))
                    << kChildren[i].id << " and " << kChildren[j].id;
            }
        }
        const RECT list = childRect(child(idKeyList));
        const RECT bar = childRect(child(idPartialShow));
        const RECT newButton = childRect(child(idNewButton));
        const RECT open = childRect(child(idOpenButton));
        const RECT email = childRect(child(idCopyEmail));
        const RECT status = childRect(child(idStatusLabel));
        EXPECT_EQ(list.bottom, bar.top);
        EXPECT_EQ(bar.bottom + 8, newButton.top);
        EXPECT_LE(newButton.bottom, open.top);
        EXPECT_EQ(client.bottom - 2, status.bottom);
        EXPECT_LT(email.bottom, status.top);
        // Full-width rows keep 8 pixels on either side.
        EXPECT_EQ(8, open.left);
        EXPECT_EQ(client.right - 8, open.right);
        EXPECT_EQ(client.right - 8, childRect(child(idDeleteButton)).right);
        EXPECT_EQ(client.right - 8, childRect(child(idStayTop)).right);
    }
}

TEST_F(MainWindowShape, StaticsOnTheBackgroundUseItsColour) {
    addEmptyKeyList();
    open();
    HDC dc = GetDC(main());
    SetTextColor(dc, RGB(1, 2, 3));
    SetBkColor(dc, RGB(4, 5, 6));
    const LRESULT brush = SendMessageW(main(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                                       reinterpret_cast<LPARAM>(child(idCountdown)));
    EXPECT_EQ(reinterpret_cast<LRESULT>(mainWindowBrush()), brush);
    EXPECT_EQ(dunmar::kStaticTextColor, GetTextColor(dc));
    EXPECT_EQ(dunmar::kBackgroundColor, GetBkColor(dc));
    EXPECT_NE(0, SendMessageW(main(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                              reinterpret_cast<LPARAM>(child(idStayTop))));
    // The status line keeps the system's colours.
    EXPECT_EQ(0, SendMessageW(main(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                              reinterpret_cast<LPARAM>(child(idStatusLabel))));
    ReleaseDC(main(), dc);
}

TEST_F(MainWindowShape, ClosingEndsTheMessageLoopButMakingANewOneDoesNot) {
    addEmptyKeyList();
    open();
    HWND first = main();
    ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
    EXPECT_FALSE(IsWindow(first));
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(0u, window->rowCount());
    EXPECT_EQ((Rows{L"No keys found!"}), rows());

    DestroyWindow(main());
    EXPECT_EQ(nullptr, window->window());
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(0u, message.wParam);
    EXPECT_EQ(0, window->fill());
    EXPECT_FALSE(window->render(2));
}

}  // namespace
