// The main window as the screen shows it, filled and with a row selected, in German (the
// longer labels). The picture lands in the build tree for people to look at; the checks
// catch what is visibly wrong: a text that does not fit its control, a window not drawn.
#include "mainWindowFixture.h"
#include "ui/support/screenshot.h"
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
    EXPECT_EQ(std::vector<int>{}, textsCut(main())) << "controls that cut their text";
    const RECT whole = {0, 0, image.width, image.height};
    EXPECT_GT(countColour(image, whole, dunmar::kBackgroundColor), whole.right * whole.bottom / 10);
}

}  // namespace
