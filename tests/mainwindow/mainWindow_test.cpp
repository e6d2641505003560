// The window itself: title, children, menu bar, size limits, layout, colours, status line.
#include <algorithm>

#include "mainWindowFixture.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using namespace Zelto;

namespace {

struct ChildSpec {
    int id;
    const wchar_t* windowClass;
    const wchar_t* text;
    bool enabled;  // without a selected key
};
const ChildSpec kChildren[] = {
    {idFilterBox, L"ComboBox", L"", true},
    {idKeyList, L"ListBox", L"", true},
    {idPartialShow, L"ScrollBar", L"show partial", true},
    {idLockButton, L"Button", L"Lock", true},
    {idCountdown, L"Static", L"", true},
    {idNewButton, L"Button", L"New", true},
    {idEditButton, L"Button", L"Edit", false},
    {idDeleteButton, L"Button", L"Delete", false},
    {idStayTop, L"Button", L"stay top", true},
    {idCopyUser, L"Button", L"Copy User", false},
    {idCopyPassword, L"Button", L"Copy Password", false},
    {idCopyEmail, L"Button", L"Copy Email", false},
    {idOpenButton, L"Button", L"Open Internet address", false},
    {idStatusLabel, L"Static", L" Ready", true},
};

SIZE outerSize(HWND window) {
    RECT r = {};
    GetWindowRect(window, &r);
    return SIZE{r.right - r.left, r.bottom - r.top};
}

TEST_F(MainWindowTest, TitleSizeAndChildrenInTheirOrder) {
    addKeys({{"Bank", "money"}});
    open();
    EXPECT_EQ(L"Zelto (2.2.1)", textOf(main()));
    EXPECT_EQ(0, GetWindowLongPtrW(main(), GWL_STYLE) & WS_MAXIMIZEBOX);
    EXPECT_EQ(300, outerSize(main()).cx);
    EXPECT_EQ(450, outerSize(main()).cy);
    EXPECT_TRUE(window->timer().running());
    size_t i = 0;
    for (HWND c = GetWindow(main(), GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT), ++i) {
        ASSERT_LT(i, std::size(kChildren));
        const ChildSpec& spec = kChildren[i];
        wchar_t name[64] = {};
        GetClassNameW(c, name, 64);
        EXPECT_EQ(spec.id, GetDlgCtrlID(c)) << i;
        EXPECT_EQ(0, lstrcmpiW(spec.windowClass, name)) << spec.id;
        EXPECT_EQ(spec.text, textOf(c)) << spec.id;
        EXPECT_EQ(spec.enabled, IsWindowEnabled(c) != FALSE) << spec.id;
    }
    EXPECT_EQ(std::size(kChildren), i);
}

TEST_F(MainWindowTest, MenuBarAndLabelsSpeakTheLanguageAndTheWindowWidensForThem) {
    addEmptyKeyList();
    zlSetLanguage(zlLanguageGerman);
    open();
    const UINT ids[] = {IDM_FILE, IDM_SETTINGS, IDM_HELP, IDM_LANGUAGE};
    const wchar_t* texts[] = {L"Datei", L"Einstellungen", L"Hilfe", L"Sprache"};
    ASSERT_EQ(4, GetMenuItemCount(GetMenu(main())));
    for (int i = 0; i < 4; ++i) {
        wchar_t text[64] = {};
        EXPECT_EQ(ids[i], GetMenuItemID(GetMenu(main()), i));
        GetMenuStringW(GetMenu(main()), ids[i], text, 64, MF_BYCOMMAND);
        EXPECT_STREQ(texts[i], text);
    }
    EXPECT_EQ(L"Benutzer kopieren", textOf(child(idCopyUser)));
    EXPECT_EQ(L" Bereit", statusText());
    // A third of the width per label: German needs more, so the window opens wider.
    EXPECT_GT(outerSize(main()).cx, 300);
    HWND box = child(idStayTop);
    RECT inside;
    GetClientRect(box, &inside);
    EXPECT_LE(dunmar::textExtent(box, dunmar::dm_string(textOf(box).c_str())).cx +
                  GetSystemMetrics(SM_CXMENUCHECK),
              inside.right);

    zlSetLanguage(zlLanguageEnglish);
    window->localise();
    wchar_t text[64] = {};
    GetMenuStringW(GetMenu(main()), IDM_HELP, text, 64, MF_BYCOMMAND);
    EXPECT_STREQ(L"Help", text);
    EXPECT_EQ(L"Copy User", textOf(child(idCopyUser)));
}

// Whatever the size (never below 290 x 435), the children stay inside the client area in
// their rows without covering each other.
TEST_F(MainWindowTest, LayoutKeepsEveryChildInPlaceAboveTheMinimumSize) {
    addKeys({{"Bank", "money"}, {"Mail", "work"}});
    open();
    const SIZE sizes[] = {{100, 100}, {300, 450}, {520, 700}};
    for (const SIZE& size : sizes) {
        SetWindowPos(main(), nullptr, 0, 0, size.cx, size.cy, SWP_NOMOVE | SWP_NOZORDER);
        pump();
        const SIZE outer = outerSize(main());
        EXPECT_EQ(std::max<LONG>(size.cx, 290), outer.cx);
        EXPECT_EQ(std::max<LONG>(size.cy, 435), outer.cy);
        RECT client;
        GetClientRect(main(), &client);
        std::vector<RECT> places;
        for (const ChildSpec& spec : kChildren) {
            const RECT r = childRect(child(spec.id));
            EXPECT_TRUE(r.left >= 0 && r.top >= 0 && r.right <= client.right &&
                        r.bottom <= client.bottom && r.bottom > r.top)
                << spec.id << " at " << size.cx;
            for (size_t j = 0; j < places.size(); ++j) {
                RECT both;
                EXPECT_FALSE(IntersectRect(&both, &r, &places[j]))
                    << spec.id << " and " << kChildren[j].id;
            }
            places.push_back(r);
        }
        const RECT open = childRect(child(idOpenButton));
        EXPECT_EQ(childRect(child(idKeyList)).bottom, childRect(child(idPartialShow)).top);
        EXPECT_EQ(client.bottom - 2, childRect(child(idStatusLabel)).bottom);
        EXPECT_EQ(8, open.left);
        EXPECT_EQ(client.right - 8, open.right);
    }
    mainWindowGlobals().minTrackWidth = 10;  // the lock lets it shrink
    MINMAXINFO info = {};
    SendMessageW(main(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(10, info.ptMinTrackSize.x);
}

TEST_F(MainWindowTest, StaticsOnTheBackgroundUseItsColourButNotTheStatusLine) {
    addEmptyKeyList();
    open();
    HDC dc = GetDC(main());
    auto colour = [&](int id) {
        return SendMessageW(main(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc),
                            reinterpret_cast<LPARAM>(child(id)));
    };
    EXPECT_EQ(reinterpret_cast<LRESULT>(mainWindowBrush()), colour(idCountdown));
    EXPECT_EQ(dunmar::kStaticTextColor, GetTextColor(dc));
    EXPECT_EQ(dunmar::kBackgroundColor, GetBkColor(dc));
    EXPECT_EQ(0, colour(idStatusLabel));
    ReleaseDC(main(), dc);
}

TEST_F(MainWindowTest, ClosingEndsTheMessageLoopButMakingANewOneDoesNot) {
    addEmptyKeyList();
    open();
    HWND first = main();
    ASSERT_TRUE(window->create(GetModuleHandleW(nullptr), SW_SHOWNORMAL));
    EXPECT_FALSE(IsWindow(first));
    MSG message;
    EXPECT_FALSE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    DestroyWindow(main());
    EXPECT_EQ(nullptr, window->window());
    ASSERT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(0u, message.wParam);
    EXPECT_EQ(0, window->fill());
    EXPECT_FALSE(window->render(2));
}

// A blank, then the parts without the null ones; " Ready" when there is nothing, and again
// when the ticks run out; no ticks means it stays.
TEST_F(MainWindowTest, StatusLineComposesCountsDownAndFallsBackToReady) {
    addEmptyKeyList();
    open();
    mainWindowStatus& status = window->status();
    status.show(3, {L"Copied ", nullptr, L"'Password'", L" to clipboard"});
    EXPECT_EQ(L" Copied 'Password' to clipboard", statusText());
    status.show(3, {L"0", L"1", L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"10"});
    EXPECT_EQ(L" 0123456789", statusText());
    status.show(3, {L"x"});
    EXPECT_EQ(L" x", statusText());
    status.show(3, {L"", nullptr});
    EXPECT_EQ(L" Ready", statusText());

    status.show(2, {L"Backup done"});
    status.countDown();
    EXPECT_EQ(L" Backup done", statusText());
    status.countDown();
    EXPECT_EQ(L" Ready", statusText());
    EXPECT_EQ(-1, status.ticksLeft());
    zlSetLanguage(zlLanguageGerman);
    status.show(1, {L"Backup"});
    status.countDown();
    EXPECT_EQ(L" Bereit", statusText());

    for (int ticks : {0, -7}) {
        status.show(ticks, {L"for good"});
        for (int i = 0; i < 5; ++i)
            status.countDown();
        EXPECT_EQ(L" for good", statusText()) << ticks;
    }
}

}  // namespace
