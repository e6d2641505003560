// The main window as the screen shows it, empty, filled and filtered, in English and
// German. The pictures land in the build tree for people to look at; the checks catch what
// is visibly wrong: a text that does not fit its control, a window not drawn at all.
#include <string>
#include <vector>

#include "mainWindowFixture.h"
#include "ui/support/screenshot.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using namespace Zelto;

namespace {

std::vector<std::string> textsThatDoNotFit(HWND window) {
    std::vector<std::string> faults;
    for (HWND c = GetWindow(window, GW_CHILD); c; c = GetWindow(c, GW_HWNDNEXT)) {
        wchar_t cls[32] = {};
        GetClassNameW(c, cls, 32);
        const bool button = lstrcmpiW(cls, L"Button") == 0;
        if (!button && lstrcmpiW(cls, L"Static") != 0)
            continue;
        const std::wstring text = textOf(c);
        if (text.empty())
            continue;
        const SIZE need = dunmar::textExtent(c, dunmar::dm_string(text.c_str()));
        RECT inside;
        GetClientRect(c, &inside);
        const int margin = button ? 8 : 0;  // a button's frame takes its share
        if (need.cx + margin > inside.right || need.cy > inside.bottom) {
            faults.push_back(std::to_string(GetDlgCtrlID(c)) + " cannot show \"" +
                             dunmar::dm_string(text.c_str()).to_utf8().str() + "\"");
        }
    }
    return faults;
}

class MainWindowPictures : public MainWindowTest, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        zlSetLanguage(GetParam());
    }
    void addSampleKeys() {
        addKeys({{"Bank", "money, home"},
                 {"Mail", "work, home"},
                 {"Office", "work"},
                 {"Post", ""},
                 {"Railway season ticket", "travel"}});
    }
    void shoot(const char* name) {
        RedrawWindow(main(), nullptr, nullptr,
                     RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
        // Wine hands the drawing to the X server from the message loop.
        for (int i = 0; i < 6; ++i) {
            pump();
            Sleep(40);
        }
        const RgbImage image = readScreen(main());
        const std::string file =
            std::string("main-") + name + (GetParam() == zlLanguageGerman ? "-de" : "-en");
        EXPECT_FALSE(saveScreenshot(image, file).empty()) << file;
        for (const std::string& fault : textsThatDoNotFit(main()))
            ADD_FAILURE() << file << ": " << fault;
        RECT client;
        GetClientRect(main(), &client);
        MapWindowPoints(main(), nullptr, reinterpret_cast<POINT*>(&client), 2);
        RECT frame;
        GetWindowRect(main(), &frame);
        OffsetRect(&client, -frame.left, -frame.top);
        const int area = (client.right - client.left) * (client.bottom - client.top);
        EXPECT_GT(countColour(image, client, dunmar::kBackgroundColor), area / 10) << file;
    }
};

TEST_P(MainWindowPictures, Empty) {
    addEmptyKeyList();
    open();
    shoot("empty");
}

TEST_P(MainWindowPictures, Filled) {
    addSampleKeys();
    open();
    scroll(SB_THUMBPOSITION, 4);
    selectRow(1);
    shoot("filled");
}

TEST_P(MainWindowPictures, Filtered) {
    addSampleKeys();
    open();
    chooseFilter(3);  // "work"
    selectRow(0);
    shoot("filtered");
}

INSTANTIATE_TEST_SUITE_P(Languages, MainWindowPictures,
                         ::testing::Values(zlLanguageEnglish, zlLanguageGerman),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return std::string(info.param == zlLanguageGerman ? "German"
                                                                               : "English");
                         });

}  // namespace
