// The menu bar's popups and what their choices do, the accelerators, and the idle counts
// restarted around every command.
#include <filesystem>

#include "mainWindowFixture.h"
#include "ui/idleCounters.h"

using namespace ztest;
using namespace Zelto;

namespace {

class MenuCommands : public MainWindowTest {
  protected:
    void twoKeys() { openSaved({{"Bank", "money"}, {"Mail", "work"}}); }
    std::wstring barText(UINT id) const {
        wchar_t text[64] = {};
        GetMenuStringW(GetMenu(main()), id, text, 64, MF_BYCOMMAND);
        return text;
    }
    // The master password dialog answered with password; the texts of the box after it.
    std::vector<std::wstring> changeMasterPassword(const wchar_t* password) {
        std::wstring title;
        std::vector<std::wstring> texts;
        EXPECT_TRUE(
            menuWith(IDM_SETTINGS, IDM_SET_MASTER_PW,
                     {enter(IDC_SETPW_PASSWORD, password), enter(IDC_SETPW_VERIFY, password),
                      answer(IDOK), look(title, texts), answer(IDOK)}));
        EXPECT_EQ(L"Zelto", title);
        return texts;
    }
};

TEST_F(MenuCommands, PopupsListTheirItemsInTheCurrentLanguageWithTheLanguageChecked) {
    twoKeys();
    const struct {
        UINT bar;
        std::vector<UINT> ids;
        std::vector<std::wstring> english, german;
    } popups[] = {
        {IDM_FILE, {IDM_BACKUP, IDM_EXIT}, {L"Backup", L"Exit"}, {L"Backup", L"Beenden"}},
        {IDM_SETTINGS,
         {IDM_OPTIONS, IDM_SET_MASTER_PW},
         {L"Options", L"Set Master Password"},
         {L"Optionen", L"Master Passwort setzen"}},
        {IDM_HELP, {IDM_ABOUT}, {L"About"}, {L"\u00DCber"}},
        {IDM_LANGUAGE,
         {IDM_ENGLISH, IDM_DEUTSCH},
         {L"English", L"Deutsch"},
         {L"English", L"Deutsch"}},
    };
    for (int language : {zlLanguageEnglish, zlLanguageGerman}) {
        zlSetLanguage(language);
        for (const auto& popup : popups) {
            menu(popup.bar, 0);
            const auto& texts = language == zlLanguageEnglish ? popup.english : popup.german;
            ASSERT_EQ(popup.ids.size(), lastPopup().size()) << popup.bar;
            for (size_t i = 0; i < popup.ids.size(); ++i) {
                EXPECT_EQ(popup.ids[i], lastPopup()[i].id);
                EXPECT_EQ(texts[i], lastPopup()[i].text);
            }
        }
        EXPECT_EQ(language == zlLanguageEnglish, lastPopup()[0].checked);
        EXPECT_EQ(language == zlLanguageGerman, lastPopup()[1].checked);
    }
    zlSetLanguage(zlLanguageAuto);  // none chosen yet counts as English
    menu(IDM_LANGUAGE, 0);
    EXPECT_TRUE(lastPopup()[0].checked);
    EXPECT_FALSE(lastPopup()[1].checked);
    EXPECT_TRUE(IsWindow(main())) << "choosing nothing does nothing";
}

TEST_F(MenuCommands, LanguageAndOptionsAreSavedInTheFile) {
    twoKeys();
    menu(IDM_LANGUAGE, IDM_DEUTSCH);
    EXPECT_EQ(L"Datei", barText(IDM_FILE));
    EXPECT_EQ(L"Neu", textOf(child(idNewButton)));
    EXPECT_EQ(L" Bereit", statusText());
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<language>Deutsch</language>"));
    menu(IDM_LANGUAGE, IDM_ENGLISH);
    EXPECT_EQ(L"File", barText(IDM_FILE));
    EXPECT_EQ(L"Copy Password", textOf(child(idCopyPassword)));
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<language>English</language>"));

    ASSERT_TRUE(menuWith(
        IDM_SETTINGS, IDM_OPTIONS,
        {enter(IDC_SETTINGS_AUTOLOCK, L"45"), enter(IDC_SETTINGS_CLIPBOARD, L"12"), answer(IDOK)}));
    EXPECT_EQ(45, settings->autolock);
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<autolock>45</autolock>"));
    EXPECT_NE(std::string::npos, bytesOnDisk().find("<autoClearClipboard>12</autoClearClipboard>"));
    EXPECT_EQ((Names{"Bank", "Mail"}), namesOnDisk());
}

TEST_F(MenuCommands, MasterPasswordChangeKeepsABackupReenciphersAndSaysSo) {
    twoKeys();
    const std::string before = bytesOnDisk();
    EXPECT_TRUE(
        contains(changeMasterPassword(L"Newpass99"), L"SUCCESS: master password was changed !"));
    EXPECT_EQ((Names{"Bank", "Mail"}), namesOnDisk("Newpass99"));
    EXPECT_TRUE(mainWindowGlobals().paused) << "the pause flag is put back as it was";
    const auto backups = filesIn("Zelto.backup.");
    ASSERT_EQ(1u, backups.size());
    EXPECT_EQ(before, readBytes(backups[0]));
    selectRow(1);  // the window shows the re-read tree
    EXPECT_EQ(L" Key \"Mail\" selected", statusText());

    const std::string now = bytesOnDisk();
    ASSERT_TRUE(menuWith(IDM_SETTINGS, IDM_SET_MASTER_PW, {answer(IDCANCEL)}));
    EXPECT_EQ(now, bytesOnDisk());

    // Without a file on disk the backup, and so the change, fails.
    std::filesystem::remove(path);
    EXPECT_TRUE(contains(changeMasterPassword(L"Other999"),
                         L"ERROR: failed to change the master password !"));
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ("Newpass99", file.pass_phrase());
}

// Another program's change stays: the tree goes beside it, the status line names that file
// until the next message, and the master password is not changed over it.
TEST_F(MenuCommands, AFileChangedByAnotherProgramIsNeverOverwritten) {
    twoKeys();
    const std::string other = bytesOnDisk() + "<!-- another program -->\r\n";
    writeBytes(path, other);
    menu(IDM_LANGUAGE, IDM_DEUTSCH);
    EXPECT_EQ(other, bytesOnDisk());
    const auto aside = filesIn("Zelto.conflict.");
    ASSERT_EQ(1u, aside.size());
    EXPECT_NE(std::string::npos, readBytes(aside[0]).find("<language>Deutsch</language>"));
    EXPECT_EQ(L" ERROR: 'Zelto.xml' was changed by another program; your change is in '" +
                  aside[0].filename().wstring() + L"'",
              statusText());
    EXPECT_EQ(-1, window->status().ticksLeft());

    EXPECT_TRUE(contains(changeMasterPassword(L"Newpass99"),
                         L"FEHLER: Master Passwort konnte nicht ge\u00E4ndert werden !\n"
                         L"'Zelto.xml' was changed by another program; nothing was changed"));
    EXPECT_EQ(other, bytesOnDisk());
    EXPECT_TRUE(filesIn("Zelto.backup.").empty());
    EXPECT_EQ(std::string(kShortPass), file.pass_phrase());
}

TEST_F(MenuCommands, BackupWritesACopyTellsWhereOrWhyNot) {
    twoKeys();
    std::wstring title;
    std::vector<std::wstring> texts;
    ASSERT_TRUE(menuWith(IDM_FILE, IDM_BACKUP, {look(title, texts), answer(IDOK)}));
    const auto backups = filesIn("Zelto.backup.");
    ASSERT_EQ(1u, backups.size());
    EXPECT_EQ(bytesOnDisk(), readBytes(backups[0]));
    const std::wstring copy = widePath(backups[0]).str();
    EXPECT_EQ(L" Backup of 'Zelto.xml' done (" + copy + L")", statusText());
    EXPECT_EQ(20, window->status().ticksLeft());
    EXPECT_TRUE(contains(texts, copy)) << "the file created dialog names the copy";

    std::filesystem::remove(path);
    ASSERT_TRUE(menuWith(IDM_FILE, IDM_BACKUP, {}));
    EXPECT_EQ(0u, statusText().find(L" ERROR: Failed to backup 'Zelto.xml' (failed to copy file "
                                    L"\"Zelto.xml\" to \"Zelto.backup."))
        << statusText();
    EXPECT_EQ(60, window->status().ticksLeft());
}

TEST_F(MenuCommands, AboutComesFromTheMenuAndFromBothAccelerators) {
    twoKeys();
    std::wstring title;
    std::vector<std::wstring> texts;
    ASSERT_TRUE(menuWith(IDM_HELP, IDM_ABOUT, {look(title, texts), answer(IDOK)}));
    EXPECT_EQ(L"Zelto - About", title);
    HACCEL accelerators = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDC_ZELTO));
    for (wchar_t key : {L'?', L'/'}) {
        title.clear();
        // Alt with a character: WM_SYSCHAR with the context bit, while Alt is down.
        MSG message = {main(), WM_SYSCHAR, key, 1 << 29, 0, {0, 0}};
        BYTE keys[256] = {};
        GetKeyboardState(keys);
        keys[VK_MENU] = 0x80;
        SetKeyboardState(keys);
        ASSERT_TRUE(runWithModals([&] { TranslateAcceleratorW(main(), accelerators, &message); },
                                  {look(title, texts), answer(IDOK)}));
        keys[VK_MENU] = 0;
        SetKeyboardState(keys);
        EXPECT_EQ(L"Zelto - About", title) << static_cast<char>(key);
    }
}

TEST_F(MenuCommands, EveryCommandStartsTheIdleCountsAfreshAndExitEndsTheLoop) {
    twoKeys();
    dunmar::idleTime().lock = 17;
    dunmar::idleTime().clipboard = 4;
    menu(IDM_HELP, 0);
    EXPECT_EQ(0, dunmar::idleTime().lock);
    EXPECT_EQ(0, dunmar::idleTime().clipboard);
    dunmar::idleTime().lock = 17;
    selectRow(0);  // a selection is no command
    EXPECT_EQ(17, dunmar::idleTime().lock);
    EXPECT_FALSE(window->onCommand(0, 4242));

    HWND before = main();
    menu(IDM_FILE, IDM_EXIT);
    EXPECT_FALSE(IsWindow(before));
    MSG message;
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(0u, message.wParam);
    EXPECT_FALSE(window->timer().running());
}

}  // namespace
