#include "zelto/zlApp.h"

#include "app/zlInstance.h"
#include "app/zlTexts.h"
#include "dialogs/DlgLogIn.h"
#include "dialogs/dialogText.h"
#include "model/zlVerify.h"
#include "res/resource.h"
#include "ui/idleCounters.h"
#include "ui/mainFont.h"

namespace Zelto {

using dunmar::dm_string;
using dunmar::dm_utf8_str;

zlApp::zlApp() : window_(file_, zlVersionText()) {}

zlApp::~zlApp() = default;

void zlShowMessage(const dm_string& text, UINT flags) {
    MessageBoxW(nullptr, text.c_str(), zlText(zlTextAppName), flags);
}

int zlApp::start(HINSTANCE instance, int showCommand) {
    instance_ = instance;
    zlSetInstance(instance);
    if (!instance)
        return 0;

    if (!dunmar::sharedFont().create()) {
        zlShowMessage(dm_string(L"ERROR: failed to create Font"));
        return 0;
    }
    if (!makeFirstKeyFile())
        return 0;
    readFirstTime();

    bool convertible = true;
    const dm_utf8_str password = askPassword(convertible);
    if (!convertible) {
        zlShowMessage(dm_string(L"ERROR: Incorrect password"));
        return 0;
    }
    if (password.empty())
        return 0;
    if (zlSetPassword(file_, password.c_str()) != 0) {
        zlShowMessage(dm_string(L"ERROR: failed to set password"));
        return 0;
    }
    if (!firstReadDone_ && !readWithConversion(password)) {
        zlShowMessage(dm_string(L"ERROR: failed to read XML file"));
        return 0;
    }
    if (zlCheckPassword(file_) != zlPasswordRight) {
        zlShowMessage(dm_string(L"ERROR: Incorrect password"));
        return 0;
    }

    if (!window_.create(instance, showCommand))
        return 0;
    return runMessageLoop();
}

void zlApp::readFirstTime() {
    firstReadDone_ = file_.readFile(keyFilePath()) == zlReadOk;
    // The login dialog then speaks the file's language. A file of the older format is only
    // read once the password is known, so its language is not applied here.
    if (firstReadDone_ && file_.settings())
        zlSetLanguageFromSettings(file_.settings()->language);
}

dm_utf8_str zlApp::askPassword(bool& convertible) {
    DlgLogIn login(instance_, nullptr);
    if (login.run() == IDOK) {
        dm_utf8_str password;
        convertible = login.utf8Password(password);
        return password;
    }
    // The button reads "Cancel" until the text is long enough: what was typed is no password.
    if (!login.password().empty())
        zlShowMessage(dm_string(L"ERROR: invalid password"));
    return dm_utf8_str();
}

int zlApp::runMessageLoop() {
    // Alt+? and Alt+/ open the about dialog.
    HACCEL accelerators = LoadAcceleratorsW(instance_, MAKEINTRESOURCEW(IDC_ZELTO));
    MSG message = {};
    BOOL got;
    while ((got = GetMessageW(&message, nullptr, 0, 0)) != 0) {
        if (got == -1)
            break;
        HWND main = window_.window();
        if (accelerators && main && TranslateAcceleratorW(main, accelerators, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    // No automatic lock may run once the window is gone.
    dunmar::idleTime().reset();
    window_.timer().stop();
    return static_cast<int>(message.wParam);
}

}  // namespace Zelto
