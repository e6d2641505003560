// The main window as the screen shows it, filled and with a row selected, in German (the
// longer labels). The picture lands in the build tree for people to look at; the checks
// catch what is visibly wrong: a text that does not fit its control, a window not drawn.
#include "mainWindowFixture.h"
#include "ui/support/screenshot.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using namespace Zelto;

namespace {

TEST_F(MainWindowTest, PictureShowsEveryTextWholeOnTheBackground) {
    zlSetLanguage(zlLanguageGerman);
    openWith(
        {{"Bank", "money, home"}, {"Mail", "work, home"}, {"Railway season ticket", "travel"}});
    SendMessageW(main(), WM_HSCROLL, MAKEWPARAM(SB_THUMBPOSITION, 4),
                 reinterpret_cast<LPARAM>(child(idPartialShow)));
    selectRow(1);
    RedrawWindow(main(), nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    for (int i = 0; i < 6; ++i) {  // Wine hands the drawing to X from the message loop
        pump();
        Sleep(40);
    }
    const RgbImage image = readScreen(main());
    EXPECT_FALSE(saveScreenshot(image, "main-filled-de").empty());
    for (HWND c = GetWindow(main(), GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        wchar_t cls[32] = {};
        GetClassNameW(c, cls, 32);
        const bool button = lstrcmpiW(cls, L"Button") == 0;
        const std::wstring text = textOf(c);
        if ((!button && lstrcmpiW(cls, L"Static") != 0) || text.empty())
            continue;
        const SIZE need = dunmar::textExtent(c, dunmar::dm_string(text.c_str()));
        RECT inside;
        GetClientRect(c, &inside);
        EXPECT_TRUE(need.cx + (button ? 8 : 0) <= inside.right && need.cy <= inside.bottom)
            << GetDlgCtrlID(c) << " cuts its text";
    }
    RECT client, frame;
    GetClientRect(main(), &client);
    MapWindowPoints(main(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    GetWindowRect(main(), &frame);
    OffsetRect(&client, -frame.left, -frame.top);
    const int area = (client.right - client.left) * (client.bottom - client.top);
    EXPECT_GT(countColour(image, client, dunmar::kBackgroundColor), area / 10);
}

}  // namespace
