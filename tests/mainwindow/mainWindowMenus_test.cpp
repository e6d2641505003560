// The menu bar's popups and their commands, the accelerators, and what the language, the
// options, a backup and a new master password write to the key file.
#include <algorithm>
#include <functional>

#include "mainWindowFixture.h"

using namespace ztest;
using namespace Zelto;

namespace {

class Menus : public MainWindowTest {
  protected:
    void SetUp() override {
        MainWindowTest::SetUp();
        openWith({{"Bank", "money"}, {"Mail", "work"}});
    }
    bool fileHas(const char* text) const { return bytesOnDisk().find(text) != std::string::npos; }
    // The title, then the texts, of the modal window in front after the action and the
    // steps; it is then closed.
    Rows boxAfter(const std::function<void()>& action, std::vector<DialogStep> steps = {}) {
        Rows seen;
        steps.insert(steps.end(), {look(seen), answer(IDOK)});
        EXPECT_TRUE(runWithModals(action, steps));
        return seen;
    }
    bool masterPasswordBoxSays(const wchar_t* password, const std::wstring& text) {
        const Rows box = boxAfter(
            [&] { menu(IDM_SETTINGS, IDM_SET_MASTER_PW); },
            {enter(IDC_SETPW_PASSWORD, password), enter(IDC_SETPW_VERIFY, password), answer(IDOK)});
        return box.at(0) == L"Zelto" && std::count(box.begin(), box.end(), text) == 1;
    }
};

TEST_F(Menus, PopupsLanguageOptionsBackupAndAccelerators) {
    const struct {
        UINT bar;
        std::vector<UINT> ids;
        Rows texts;
    } popups[] = {
        {IDM_FILE, {IDM_BACKUP, IDM_EXIT}, {L"Backup", L"Exit"}},
        {IDM_SETTINGS, {IDM_OPTIONS, IDM_SET_MASTER_PW}, {L"Options", L"Set Master Password"}},
        {IDM_HELP, {IDM_ABOUT}, {L"About"}},
        {IDM_LANGUAGE, {IDM_ENGLISH, IDM_DEUTSCH}, {L"English *", L"Deutsch"}},
    };
    for (const auto& p : popups) {
        menu(p.bar, 0);
        EXPECT_EQ(p.ids, hooks().ids);
        EXPECT_EQ(p.texts, hooks().popup);
    }
    menu(IDM_LANGUAGE, IDM_DEUTSCH);
    wchar_t bar[16] = {};
    GetMenuStringW(GetMenu(main()), IDM_FILE, bar, 16, MF_BYCOMMAND);
    EXPECT_STREQ(L"Datei", bar);
    EXPECT_EQ(L"Neu", textOf(child(idNewButton)));
    EXPECT_TRUE(fileHas("<language>Deutsch</language>"));
    menu(IDM_LANGUAGE, IDM_ENGLISH);
    EXPECT_EQ((Rows{L"English", L"Deutsch *"}), hooks().popup);
    EXPECT_TRUE(fileHas("<language>English</language>"));

    ASSERT_TRUE(runWithModals([&] { menu(IDM_SETTINGS, IDM_OPTIONS); },
                              {enter(IDC_SETTINGS_AUTOLOCK, L"45"), answer(IDOK)}));
    EXPECT_TRUE(fileHas("<autolock>45</autolock>"));

    // The backup's dialog and the status line name the copy.
    const Rows texts = boxAfter([&] { menu(IDM_FILE, IDM_BACKUP); });
    const auto backups = filesIn("Zelto.backup.");
    ASSERT_EQ(1u, backups.size());
    EXPECT_EQ(bytesOnDisk(), readBytes(backups[0]));
    const std::wstring copy = widePath(backups[0]).str();
    EXPECT_EQ(1, std::count(texts.begin(), texts.end(), copy));
    EXPECT_EQ(L" Backup of 'Zelto.xml' done (" + copy + L")", statusText());

    // Alt with a character: WM_SYSCHAR with the context bit, while Alt is down.
    BYTE keys[256] = {};
    keys[VK_MENU] = 0x80;
    SetKeyboardState(keys);
    HACCEL table = LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDC_ZELTO));
    for (wchar_t key : {L'?', L'/'}) {
        MSG message = {main(), WM_SYSCHAR, key, 1 << 29, 0, {0, 0}};
        EXPECT_EQ(L"Zelto - About",
                  boxAfter([&] { TranslateAcceleratorW(main(), table, &message); }).at(0))
            << static_cast<char>(key);
    }
    keys[VK_MENU] = 0;
    SetKeyboardState(keys);
}

// A new master password re-enciphers the file after a backup. A file that another program
// changed is never overwritten: the tree goes beside it, the status line names that file,
// and a new master password fails with a box that says why.
TEST_F(Menus, MasterPasswordChangeAndAFileChangedByAnotherProgram) {
    const std::string before = bytesOnDisk();
    EXPECT_TRUE(masterPasswordBoxSays(L"Newpass99", L"SUCCESS: master password was changed !"));
    EXPECT_EQ((Names{"Bank", "Mail"}), namesOnDisk("Newpass99"));
    const auto backups = filesIn("Zelto.backup.");
    ASSERT_EQ(1u, backups.size());
    EXPECT_EQ(before, readBytes(backups[0]));

    const std::string other = bytesOnDisk() + "<!-- another program -->\r\n";
    writeBytes(path, other);
    menu(IDM_LANGUAGE, IDM_DEUTSCH);
    const auto aside = filesIn("Zelto.conflict.");
    ASSERT_EQ(1u, aside.size());
    EXPECT_NE(std::string::npos, readBytes(aside[0]).find("<language>Deutsch</language>"));
    EXPECT_EQ(L" ERROR: 'Zelto.xml' was changed by another program; your change is in '" +
                  aside[0].filename().wstring() + L"'",
              statusText());
    EXPECT_TRUE(
        masterPasswordBoxSays(L"Other999",
                              L"FEHLER: Master Passwort konnte nicht ge\u00E4ndert werden !\n"
                              L"'Zelto.xml' was changed by another program; nothing was changed"));
    EXPECT_EQ(other, bytesOnDisk());
    EXPECT_EQ("Newpass99", file.pass_phrase());
}

}  // namespace
