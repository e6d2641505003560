#include "app/zlFileSet.h"
#include "app/zlKeyFileStore.h"
#include "app/zlMasterPassword.h"
#include "app/zlTexts.h"
#include "core/dm_system.h"
#include "dialogs/DlgAbout.h"
#include "dialogs/DlgFileCreated.h"
#include "dialogs/DlgSetMasterPw.h"
#include "dialogs/DlgSettings.h"
#include "mainwindow/mainWindow.h"
#include "mainwindow/mainWindowState.h"
#include "mainwindow/mainWindowTexts.h"
#include "model/zlVerify.h"

namespace Zelto {

using dunmar::dm_string;

namespace {

constexpr int32_t kBackupFailedTicks = 60;
constexpr int32_t kBackupDoneTicks = 20;

void showMessage(const wchar_t* text) {
    MessageBoxW(nullptr, text, zlText(zlTextAppName), MB_OK);
}

// The part of path after its folder.
dm_string fileNameOf(const dm_string& path) {
    dm_string folder;
    dunmar::dm_system::dir_of_path(path, folder);
    return path.substring(static_cast<long>(folder.length()),
                          static_cast<long>(path.length() - folder.length()));
}

}  // namespace

// The program's files lie beside the key file: backups go where the key file is.
zlFileSet mainWindow::fileSet() const {
    dm_string folder;
    if (!dunmar::dm_system::dir_of_path(file_.path(), folder))
        return zlFileSet::ofThisProgram();
    return zlFileSet::in(folder, zlNow());
}

void mainWindow::showSettings() {
    DlgSettings dialog(instance_, window_, file_);
    dialog.run();
    if (dialog.failedSaves() > 0)
        showSaveFailure();
}

void mainWindow::showAbout() {
    DlgAbout dialog(instance_, window_);
    dialog.run();
}

void mainWindow::changeMasterPassword() {
    DlgSetMasterPw dialog(instance_, window_);
    if (dialog.run() != IDOK || dialog.password().empty())
        return;
    const dunmar::dm_utf8_str password = dialog.password().to_utf8();
    // Re-enciphering pumps messages; no lock may start in the middle of it.
    mainWindowState& state = mainWindowGlobals();
    const bool wasPaused = state.paused;
    state.paused = true;
    const int changed =
        zlChangeMasterPassword(file_, password, zlMakeVerifyValue(password), fileSet());
    fill();
    state.paused = wasPaused;
    if (changed == zlChangeDone) {
        showMessage(zlText(textChangeDone));
        return;
    }
    dm_string text(zlText(textChangeFailed));
    if (changed == zlSaveConflict) {
        text.append(L"\n'");
        text.append(fileNameOf(file_.path()));
        text.append(L"' was changed by another program; nothing was changed");
    }
    showMessage(text.c_str());
}

void mainWindow::switchLanguage(int language) {
    zlSetLanguage(language);
    localise();
    if (zlSaveKeyFile(file_) != zlSaved)
        showSaveFailure();
}

void mainWindow::backup() {
    const zlFileSet files = fileSet();
    dm_string path;
    const int result = zlMakeBackup(file_.path(), files, path);
    if (result != zlBackupDone) {
        dm_string reason = files.detail;
        if (reason.empty()) {
            reason = dm_string(L"failed to copy file \"");
            reason.append(fileNameOf(file_.path()));
            reason.append(L"\" to \"");
            reason.append(fileNameOf(files.backup));
            reason.append(L"\"");
        }
        status_.show(kBackupFailedTicks,
                     {L"ERROR: ", zlText(textBackupFailed), L" (", reason.c_str(), L")"});
        return;
    }
    status_.show(kBackupDoneTicks, {zlText(textBackupDone), L" (", path.c_str(), L")"});
    DlgFileCreated dialog(instance_, window_, path);
    dialog.run();
}

// The tree was changed but the file could not be written: the change stays in memory and
// goes out with the next save, and the user is told so. When another program had changed
// the file, the tree went to a file of its own beside it: the user is told its name.
void mainWindow::showSaveFailure() {
    const dm_string name = fileNameOf(file_.path());
    const dm_string aside = fileNameOf(file_.conflictFile());
    if (file_.conflictFile().empty())
        status_.show(0, {L"ERROR: failed to save '", name.c_str(), L"'"});
    else
        status_.show(
            0, {L"ERROR: '", name.c_str(), L"' was changed by another program; your change is in '",
                aside.c_str(), L"'"});
}

}  // namespace Zelto
