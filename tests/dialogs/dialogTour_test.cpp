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
#include "res/resource.h"
#include "support/test_util.h"
#include "ui/support/screenshot.h"
#include "ui/textExtent.h"
#include "ui/uiColors.h"

using namespace ztest;
using dunmar::dm_string;

namespace {

// A text a dialog shows, by the dialog's name; id 0 is the title.
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

// What a user would see as broken.
std::vector<std::string> visibleFaults(HWND dialog, bool followsTheFrame) {
    std::vector<std::string> faults;
    RECT client;
    GetClientRect(dialog, &client);
    std::vector<RECT> seen;
    LONG right = 0;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if (!IsWindowVisible(child))
            continue;
        const RECT place = childRect(child);
        const std::string name = std::to_string(GetDlgCtrlID(child)) + " at " + describe(place);
        RECT common;
        for (const RECT& other : seen) {
            if (IntersectRect(&common, &place, &other))
                faults.push_back(name + " overlaps " + describe(other));
        }
        seen.push_back(place);
        right = std::max(right, place.right);
        if (place.left < 0 || place.top < 0 || place.right > client.right ||
            place.bottom > client.bottom)
            faults.push_back(name + " lies outside the dialog");
        wchar_t cls[32] = {};
        GetClassNameW(child, cls, 32);
        const bool button = lstrcmpiW(cls, L"Button") == 0;
        const std::wstring text = textOf(child);
        if ((!button && lstrcmpiW(cls, L"Static") != 0) || text.empty())
            continue;
        const SIZE need = dunmar::textExtent(child, dm_string(text.c_str()));
        RECT inside;
        GetClientRect(child, &inside);
        if (need.cx + (button ? 8 : 0) > inside.right || need.cy > inside.bottom)
            faults.push_back(name + " cannot show its text");
    }
    if (followsTheFrame && right != client.right - 8)
        faults.push_back("the controls end at " + std::to_string(right));
    return faults;
}

}  // namespace

TEST(DialogTour, EveryDialogInEnglishAndGerman) {
    Zelto::zlKeyFile file;
    ASSERT_EQ(0, file.set_pass_phrase(kLongPass));
    file.root().appendChild(new Zelto::zlFileItemSettings(&file));
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
    const HINSTANCE m = thisModule();
    const Tour tours[] = {
        {"login", [&] { return std::make_unique<Zelto::DlgLogIn>(m, nullptr); }, true,
         [](HWND d) { setText(d, IDC_LOGIN_PASSWORD, L"secret12"); }},
        {"set-master-password", [&] { return std::make_unique<Zelto::DlgSetMasterPw>(m, nullptr); },
         false,
         [](HWND d) {
             setText(d, IDC_SETPW_PASSWORD, L"abc 1234");
             setText(d, IDC_SETPW_VERIFY, L"abc 1234");
             click(d, IDOK);  // the longest rule message
         }},
        {"edit-key", [&] { return std::make_unique<Zelto::DlgEditKey>(m, nullptr, file, key); },
         true},
        {"settings", [&] { return std::make_unique<Zelto::DlgSettings>(m, nullptr, file); }, false},
        {"about", [&] { return std::make_unique<Zelto::DlgAbout>(m, nullptr); }, true},
        {"file-created",
         [&] {
             return std::make_unique<Zelto::DlgFileCreated>(
                 m, nullptr, dm_string(L"C:\\Users\\anna\\Zelto\\Zelto.backup.20180122-1015.xml"));
         },
         true},
    };
    const wchar_t* invalid = L"Invalid character in password (allowed: A-Z, a-z, 0-9)";
    const Text texts[] = {
        {"set-master-password", 0, L"Zelto - Set Master Password",
         L"Zelto - Master Passwort setzen"},
        {"set-master-password", IDC_SETPW_PASSWORD_LABEL, L"Password", L"Passwort"},
        {"set-master-password", IDC_SETPW_VERIFY_LABEL, L"Verify", L"Verifizieren"},
        {"set-master-password", IDC_SETPW_WARNING,
         L" \r\n This is very important !!! \r\n Please ensure you will never forget your master "
         L"password. \r\n Without this password all your data is lost forever. \r\n Nobody (we "
         L"included) can restore your data without this password ! ",
         L" \r\n Dies ist sehr wichtig !!! \r\n Bitte stellen Sie sicher dass Sie ihr "
         L"Master-Passwort nie vergessen. \r\n Ohne dieses Passwort sind alle Ihre Daten f\u00FCr "
         L"immer verloren. \r\n Niemand (wir eingeschlossen) kann Ihre Daten ohne dieses Passwort "
         L"wiederherstellen ! "},
        {"set-master-password", IDC_SETPW_MESSAGE, invalid, invalid},  // English in both
        {"edit-key", 0, L"Zelto - Edit", L"Zelto - Edit"},
        {"edit-key", IDC_EDITKEY_NAME_LABEL, L"Key", L"Key"},
        {"edit-key", IDC_EDITKEY_LABEL_LABEL, L"Label", L"Label"},
        {"edit-key", IDC_EDITKEY_USER_LABEL, L"User", L"Benutzer"},
        {"edit-key", IDC_EDITKEY_PW_LABEL, L"Password", L"Passwort"},
        {"edit-key", IDC_EDITKEY_EMAIL_LABEL, L"Email", L"E-Mail"},
        {"edit-key", IDC_EDITKEY_URL_LABEL, L"Internet address", L"Internet-Adresse"},
        {"edit-key", IDC_EDITKEY_NOTE_LABEL, L"Note", L"Notiz"},
        {"edit-key", IDC_EDITKEY_PROPOSE, L"New", L"Neu"},
        {"settings", 0, L"Zelto - Settings", L"Zelto - Einstellungen"},
        {"settings", IDC_SETTINGS_AUTOLOCK_LABEL, L"Auto Lock (Seconds):",
         L"Auto Lock (Sekunden):"},
        {"settings", IDC_SETTINGS_CLIPBOARD_LABEL, L"Auto Clear Clipboard (Seconds):",
         L"Auto Zwischenablage leeren (Sekunden):"},
        {"settings", IDC_SETTINGS_SHOWKEY_LABEL, L"Show selected Key (Seconds):",
         L"Selektierten Key anzeigen (Sekunden):"},
        {"file-created", 0, L"Zelto - File created", L"Zelto - Datei erzeugt"},
        {"file-created", IDC_FILECREATED_HEADING, L"File created", L"Datei erzeugt"},
        {"file-created", IDC_FILECREATED_OPEN_FOLDER, L"Open Folder", L"Ordner \u00F6ffnen"},
    };
    for (const bool german : {false, true}) {
        LanguageScope language(german ? Zelto::zlLanguageGerman : Zelto::zlLanguageEnglish);
        for (const Tour& tour : tours) {
            const std::string name = tour.name + (german ? "-de" : "-en");
            std::unique_ptr<dunmar::DlgBase> dialog = tour.open();
            RgbImage image;
            RECT client = {};
            bool hasLink = false;
            std::vector<DialogStep> steps = {tour.prepare};
            append(steps, captureSteps(image));
            steps.push_back([&](HWND d) {
                std::vector<std::wstring> shown, wanted;
                for (int id : {IDOK, IDCANCEL}) {  // "OK" and "Cancel" wherever they are
                    if (GetDlgItem(d, id)) {
                        shown.push_back(itemText(d, id));
                        wanted.push_back(id == IDOK ? L"OK" : german ? L"Abbruch" : L"Cancel");
                    }
                }
                for (const Text& t : texts) {
                    if (t.dialog == tour.name) {
                        shown.push_back(t.id ? itemText(d, t.id) : textOf(d));
                        wanted.push_back(german ? t.german : t.english);
                    }
                }
                EXPECT_EQ(wanted, shown) << name;
                for (const std::string& fault : visibleFaults(d, tour.followsTheFrame))
                    ADD_FAILURE() << name << ": " << fault;
                GetClientRect(d, &client);
                hasLink = GetDlgItem(d, IDC_HYPERLINK) != nullptr;
                const SIZE grown = {outerSize(d).cx + 200, outerSize(d).cy + 100};
                resizeTo(d, grown.cx, grown.cy);
                for (const std::string& fault : visibleFaults(d, tour.followsTheFrame))
                    ADD_FAILURE() << name << " grown: " << fault;
                SendMessageW(d, WM_CLOSE, 0, 0);
            });
            EXPECT_EQ(IDCANCEL, runDriven(*dialog, steps)) << name;
            EXPECT_FALSE(saveScreenshot(image, name).empty()) << name;
            // The picture shows the dialog on its background, with a link's strokes in blue.
            const RECT whole = {0, 0, image.width, image.height};
            EXPECT_GT(countColour(image, whole, dunmar::kBackgroundColor),
                      client.right * client.bottom / 5)
                << name;
            EXPECT_EQ(hasLink, countColour(image, whole, dunmar::kLinkColor) > 20) << name;
        }
    }
}
