// Every dialog in English and German, as the screen shows it. The pictures land in the
// build tree for people to look at; the checks catch what is visibly wrong: texts that
// do not fit their control and controls outside the dialog.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/zlKeyFields.h"
#include "dialogTestSupport.h"
#include "dialogs/DlgAbout.h"
#include "dialogs/DlgEditKey.h"
#include "dialogs/DlgFileCreated.h"
#include "dialogs/DlgLogIn.h"
#include "dialogs/DlgSetMasterPw.h"
#include "dialogs/DlgSettings.h"
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/dialogDriver.h"
#include "ui/support/screenshot.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using dunmar::dm_string;

namespace {

std::wstring className(HWND window) {
    wchar_t name[32] = {};
    GetClassNameW(window, name, 32);
    return name;
}

// Problems a user would see: a single-line text wider or taller than its control, a control
// reaching out of the client area.
std::vector<std::string> visibleFaults(HWND dialog) {
    std::vector<std::string> faults;
    RECT client;
    GetClientRect(dialog, &client);
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child))
            continue;
        const RECT place = childRect(child);
        const std::string name = std::to_string(GetDlgCtrlID(child));
        if (place.left < 0 || place.top < 0 || place.right > client.right ||
            place.bottom > client.bottom) {
            faults.push_back(name + " lies outside the dialog at " + describe(place));
        }
        const std::wstring cls = className(child);
        const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
        const bool button = lstrcmpiW(cls.c_str(), L"Button") == 0;
        const bool label = lstrcmpiW(cls.c_str(), L"Static") == 0;
        if (!button && !label)
            continue;
        const std::wstring text = textOf(child);
        if (text.empty())
            continue;
        const SIZE need = dunmar::textExtent(child, dm_string(text.c_str()));
        RECT inside;
        GetClientRect(child, &inside);
        const int margin = button ? 8 : 0;  // a button's frame takes its share
        if (need.cx + margin > inside.right || need.cy > inside.bottom) {
            faults.push_back(name + " cannot show \"" + dm_string(text.c_str()).to_utf8().str() +
                             "\": needs " + std::to_string(need.cx) + "x" +
                             std::to_string(need.cy) + ", has " + describe(inside));
        }
        (void)style;
    }
    return faults;
}

// Runs the dialog, lets prepare fill it as a user might, captures and checks it, and
// saves the picture as name.
void shoot(dunmar::DlgBase& dialog, const std::string& name, const DialogStep& prepare) {
    RgbImage image;
    std::vector<std::string> faults;
    RECT client = {};
    std::vector<DialogStep> steps = {prepare};
    append(steps, captureSteps(image));
    steps.push_back([&](HWND d) {
        faults = visibleFaults(d);
        GetClientRect(d, &client);
        MapWindowPoints(d, nullptr, reinterpret_cast<POINT*>(&client), 2);
        RECT frame;
        GetWindowRect(d, &frame);
        OffsetRect(&client, -frame.left, -frame.top);
        SendMessageW(d, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(IDCANCEL, runDriven(dialog, steps)) << name;
    EXPECT_FALSE(saveScreenshot(image, name).empty()) << name;
    for (const std::string& fault : faults)
        ADD_FAILURE() << name << ": " << fault;
    // The picture shows the dialog, not an empty screen.
    const int area = (client.right - client.left) * (client.bottom - client.top);
    EXPECT_GT(countColour(image, client, dunmar::kBackgroundColor), area / 5) << name;
}

void nothing(HWND) {}

class Screenshots : public ::testing::TestWithParam<int> {
  protected:
    void SetUp() override { Zelto::zlSetLanguage(GetParam()); }
    void TearDown() override { Zelto::zlSetLanguage(Zelto::zlLanguageEnglish); }

    std::string name(const char* dialog) const {
        return std::string(dialog) + (GetParam() == Zelto::zlLanguageGerman ? "-de" : "-en");
    }
};

}  // namespace

TEST_P(Screenshots, LogIn) {
    Zelto::DlgLogIn dialog(thisModule(), nullptr);
    shoot(dialog, name("login"), [](HWND d) { setText(d, IDC_LOGIN_PASSWORD, L"secret12"); });
}

TEST_P(Screenshots, SetMasterPassword) {
    Zelto::DlgSetMasterPw dialog(thisModule(), nullptr);
    shoot(dialog, name("set-master-password"), [](HWND d) {
        setText(d, IDC_SETPW_PASSWORD, L"abc 1234");
        setText(d, IDC_SETPW_VERIFY, L"abc 1234");
        click(d, IDOK);  // shows the longest rule message
    });
}

TEST_P(Screenshots, EditKey) {
    Zelto::zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
    Zelto::zlKeyFields fields;
    const char* values[] = {"Post office",
                            "home, work",
                            "anna.mueller",
                            "zl9Z0A1B2C3d4e59",
                            "anna@example.org",
                            "https://post.example/login",
                            "Opened in 2018.\r\nPIN letter in the drawer."};
    for (size_t i = 0; i < 7; ++i)
        fields.value[i] = dunmar::dm_utf8_str(values[i]);
    Zelto::zlFileItemKey* key = Zelto::zlAddKey(file, fields);
    Zelto::DlgEditKey dialog(thisModule(), nullptr, file, key);
    shoot(dialog, name("edit-key"), &nothing);
}

TEST_P(Screenshots, Settings) {
    Zelto::zlKeyFile file;
    file.root().appendChild(new Zelto::zlFileItemSettings(&file));
    Zelto::DlgSettings dialog(thisModule(), nullptr, file);
    shoot(dialog, name("settings"), &nothing);
}

TEST_P(Screenshots, About) {
    Zelto::DlgAbout dialog(thisModule(), nullptr);
    shoot(dialog, name("about"), &nothing);
}

TEST_P(Screenshots, FileCreated) {
    Zelto::DlgFileCreated dialog(
        thisModule(), nullptr,
        dm_string(L"C:\\Users\\anna\\Zelto\\Zelto.backup.20180122-101500.xml"));
    shoot(dialog, name("file-created"), &nothing);
}

INSTANTIATE_TEST_SUITE_P(Languages, Screenshots,
                         ::testing::Values(Zelto::zlLanguageEnglish, Zelto::zlLanguageGerman),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return std::string(info.param == Zelto::zlLanguageGerman ? "German"
                                                                                      : "English");
                         });
