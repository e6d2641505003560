// Every dialog in English and German as the screen shows it: its texts, nothing a user would
// see as broken (a text that does not fit its control, controls overlapping or outside the
// dialog, a lay-out that does not follow a larger frame), and a picture in the build tree.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
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
#include "support/test_util.h"
#include "ui/mainFont.h"
#include "ui/support/screenshot.h"
#include "ui/uiColors.h"

using namespace ztest;
using dunmar::dm_string;

namespace {

// How a text a dialog shows begins, by the dialog's name; id 0 is the title.
struct Text {
    std::string dialog;
    int id;
    const wchar_t* english;
    const wchar_t* german;
};

struct Tour {
    std::string name;
    std::function<std::unique_ptr<dunmar::DlgBase>()> open;
    bool followsTheFrame;  // lays its controls out again on a resize
    DialogStep prepare = [](HWND) {};
};

// Fails on what a user would see as broken.
void expectNothingBroken(HWND dialog, bool followsTheFrame, const std::string& where) {
    RECT client, common;
    GetClientRect(dialog, &client);
    std::vector<std::pair<std::string, RECT>> seen;
    LONG right = 0;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child))
            continue;
        const RECT place = childRect(child);
        const std::string name = "control " + std::to_string(GetDlgCtrlID(child));
        for (const auto& other : seen)
            if (IntersectRect(&common, &place, &other.second))
                ADD_FAILURE() << where << name << " overlaps " << other.first;
        seen.push_back({name, place});
        right = std::max(right, place.right);
        if (place.left < 0 || place.top < 0 || place.right > client.right ||
            place.bottom > client.bottom)
            ADD_FAILURE() << where << name << " lies outside the dialog";
        if (HFONT(SendMessageW(child, WM_GETFONT, 0, 0)) != dunmar::sharedFont().handle())
            ADD_FAILURE() << where << name << " has another font";
    }
    EXPECT_EQ(std::vector<int>{}, textsCut(dialog)) << where << "controls that cut their text";
    if (followsTheFrame && right != client.right - 8)
        ADD_FAILURE() << where << "the controls end at " << right;
}

}  // namespace

TEST(DialogTour, EveryDialogInEnglishAndGerman) {
    Zelto::zlKeyFile file;  // a new key in it, its settings as they come
    file.root().appendChild(new Zelto::zlFileItemSettings(&file));
    const std::wstring folder = L"C:\\Users\\anna & co\\Zelto", site = L"https://zelto.example/";
    const std::wstring path = folder + L"\\Zelto.backup.20180122-1015.xml";
    using Zelto::DlgAbout, Zelto::DlgFileCreated, std::make_unique;
    using Zelto::DlgLogIn, Zelto::DlgSetMasterPw, Zelto::DlgEditKey, Zelto::DlgSettings;
    const Tour tours[] = {
        {"login", [&] { return make_unique<DlgLogIn>(kModule, nullptr); }, true,
         [](HWND d) {
             EXPECT_EQ(nullptr, GetDlgItem(d, IDC_LOGIN_LANGUAGE)) << "only when offered";
             setText(d, IDC_LOGIN_PASSWORD, L"secret12");
             command(d, IDC_HYPERLINK, STN_CLICKED);  // opened, the dialog stays
         }},
        {"set-master-password", [&] { return make_unique<DlgSetMasterPw>(kModule, nullptr); },
         false,
         [](HWND d) {  // the rules themselves are the password rules' tests
             for (int id : {IDC_SETPW_PASSWORD, IDC_SETPW_VERIFY})
                 EXPECT_TRUE(GetWindowLongPtrW(GetDlgItem(d, id), GWL_STYLE) & ES_PASSWORD);
             setText(d, IDC_SETPW_PASSWORD, L"Abcd1234");
             setText(d, IDC_SETPW_VERIFY, L"abcd1234");
             click(d, IDOK);
             EXPECT_EQ(L"Password and verification text are not equal",
                       itemText(d, IDC_SETPW_MESSAGE));
             setText(d, IDC_SETPW_PASSWORD, L"abc 1234");
             click(d, IDOK);  // the longest rule message
         }},
        {"edit-key", [&] { return make_unique<DlgEditKey>(kModule, nullptr, file, nullptr); },
         true},
        {"settings", [&] { return make_unique<DlgSettings>(kModule, nullptr, file); }, false},
        {"about", [&] { return make_unique<DlgAbout>(kModule, nullptr); }, true,
         [](HWND d) { command(d, IDC_HYPERLINK, STN_CLICKED); }},
        {"file-created",
         [&] { return make_unique<DlgFileCreated>(kModule, nullptr, dm_string(path)); }, true,
         [](HWND d) { click(d, IDC_FILECREATED_OPEN_FOLDER); }},
    };
    const Text texts[] = {
        {"login", 0, L"Zelto (2.2.1) - LogIn", L"Zelto (2.2.1) - LogIn"},
        {"login", IDC_LOGIN_PROMPT, L"Please type your password", L"Bitte Passwort eingeben"},
        {"set-master-password", 0, L"Zelto - Set Master Password",
         L"Zelto - Master Passwort setzen"},
        {"set-master-password", IDC_SETPW_PASSWORD_LABEL, L"Password", L"Passwort"},
        {"set-master-password", IDC_SETPW_MESSAGE, L"Invalid character in password",
         L"Invalid character in password"},
        {"set-master-password", IDC_SETPW_WARNING, L" \r\n This is very important !!! \r\n Please",
         L" \r\n Dies ist sehr wichtig !!! \r\n Bitte"},
        {"edit-key", 0, L"Zelto - New", L"Zelto - New"},
        {"edit-key", IDC_EDITKEY_USER_LABEL, L"User", L"Benutzer"},
        {"edit-key", IDC_EDITKEY_PW_LABEL, L"Password", L"Passwort"},
        {"edit-key", IDC_EDITKEY_EMAIL_LABEL, L"Email", L"E-Mail"},
        {"edit-key", IDC_EDITKEY_URL_LABEL, L"Internet address", L"Internet-Adresse"},
        {"edit-key", IDC_EDITKEY_PROPOSE, L"New", L"Neu"},
        {"settings", 0, L"Zelto - Settings", L"Zelto - Einstellungen"},
        {"settings", IDC_SETTINGS_AUTOLOCK_LABEL, L"Auto Lock (Seconds):",
         L"Auto Lock (Sekunden):"},
        {"settings", IDC_SETTINGS_CLIPBOARD_LABEL, L"Auto Clear Clipboard (Seconds):",
         L"Auto Zwischenablage leeren (Sekunden):"},
        {"settings", IDC_SETTINGS_SHOWKEY_LABEL, L"Show selected Key (Seconds):",
         L"Selektierten Key anzeigen (Sekunden):"},
        {"about", 0, L"Zelto - About", L"Zelto - \u00DCber"},
        {"about", IDC_ABOUT_VERSION, L"Zelto - Version 2.2.1 (Build: ",
         L"Zelto - Version 2.2.1 (Build: "},
        {"file-created", 0, L"Zelto - File created", L"Zelto - Datei erzeugt"},
        {"file-created", IDC_FILECREATED_HEADING, L"File created", L"Datei erzeugt"},
        {"file-created", IDC_FILECREATED_OPEN_FOLDER, L"Open Folder", L"Ordner \u00F6ffnen"},
        {"file-created", IDC_FILECREATED_PATH, path.c_str(), path.c_str()},  // "&" as it is
    };
    ShellRecorder shell;
    for (const bool german : {false, true}) {
        Zelto::zlSetLanguage(german ? Zelto::zlLanguageGerman : Zelto::zlLanguageEnglish);
        for (const Tour& tour : tours) {
            const std::string name = tour.name + (german ? "-de" : "-en");
            std::unique_ptr<dunmar::DlgBase> dialog = tour.open();
            RgbImage image;
            const bool hasLink = tour.name == "login" || tour.name == "about";
            std::vector<DialogStep> steps = captureSteps(image);
            steps.insert(steps.begin(), tour.prepare);
            steps.push_back([&](HWND d) {
                for (const Text& t : texts) {
                    const std::wstring wanted = german ? t.german : t.english;
                    if (t.dialog == tour.name) {
                        EXPECT_EQ(wanted,
                                  (t.id ? itemText(d, t.id) : textOf(d)).substr(0, wanted.size()))
                            << name << " " << t.id;
                    }
                }
                const wchar_t* cancel = german ? L"Abbruch" : L"Cancel";
                for (int id : {IDOK, IDCANCEL}) {  // wherever they are
                    if (GetDlgItem(d, id)) {
                        EXPECT_EQ(id == IDOK ? L"OK" : cancel, itemText(d, id)) << name;
                    }
                }
                expectNothingBroken(d, tour.followsTheFrame, name + ": ");
                const SIZE grown = {outerSize(d).cx + 200, outerSize(d).cy + 100};
                SetWindowPos(d, nullptr, 0, 0, grown.cx, grown.cy, SWP_NOMOVE | SWP_NOZORDER);
                expectNothingBroken(d, tour.followsTheFrame, name + " grown: ");
                SendMessageW(d, WM_CLOSE, 0, 0);
            });
            EXPECT_EQ(IDCANCEL, runDriven(*dialog, steps)) << name;
            EXPECT_FALSE(saveScreenshot(image, name).empty()) << name;
            // The dialog on its background, with a link's strokes in blue.
            const RECT whole = {0, 0, image.width, image.height};
            EXPECT_GT(countColour(image, whole, dunmar::kBackgroundColor),
                      whole.right * whole.bottom / 6)
                << name;
            EXPECT_EQ(hasLink, countColour(image, whole, dunmar::kLinkColor) > 20) << name;
        }
    }
    Zelto::zlSetLanguage(Zelto::zlLanguageEnglish);
    EXPECT_EQ((std::vector<std::wstring>{site, site, folder, site, site, folder}), shell.opened);
}
