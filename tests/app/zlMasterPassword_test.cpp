// A new master password re-enciphers the whole tree, backs the key file up first and writes
// the new tree over it; a refusal leaves file and tree as they were. The codes are the ones
// the command line shows.
#include "app/zlMasterPassword.h"

#include <tuple>

#include "app_test_util.h"

const char* const kNew = "brand new master password";
const char* const kBackup = "Zelto.backup.2026_03_09_00_00_00_0815.xml";

// The keys' plain texts, the trashed key's name, the user's email with the lock time, and
// whether the password is right.
static Texts plainView(const zlKeyFile& tree) {
    Texts view = plainKeys(tree);
    const zlFileItem* trashed = tree.trash() ? tree.trash()->child(0) : nullptr;
    view.push_back(trashed ? static_cast<const zlFileItemKey*>(trashed)->plainName().str() : "");
    const zlFileItemSettings& settings = *tree.settings();
    view.push_back(settings.userEmail(true).str() + " " + std::to_string(settings.autolock));
    view.push_back(std::to_string(zlCheckPassword(tree)));
    return view;
}

class MasterPassword : public ProgramFolder {
  protected:
    void SetUp() override {
        saveKeyFile();
        plain = plainView(file);
    }
    int change(const char* password, const char* verifyOf, const zlFileSet& set) {
        return zlChangeMasterPassword(file, password, zlMakeVerifyValue(verifyOf), set);
    }
    void expectUntouched() {
        EXPECT_EQ(saved, readBytes(dir / "Zelto.xml"));
        EXPECT_EQ(plain, plainView(file));
    }
    Texts plain;
};

TEST_F(MasterPassword, EveryFieldIsReEncipheredWithABackupFirst) {
    ASSERT_EQ(zlChangeDone, change(kNew, kNew, files));
    EXPECT_EQ(saved, readBytes(dir / kBackup));
    EXPECT_EQ(plain, plainView(file));
    ASSERT_EQ(zlSaved, zlSaveKeyFile(file));  // the tree holds what the file holds
    // Read afresh, the new password gives the same plain texts; the old one is wrong.
    for (const char* password : {kNew, kShortPass}) {
        zlKeyFile again;
        again.set_pass_phrase(password);
        ASSERT_EQ(zlReadOk, again.readFile(files.keyFile));
        EXPECT_EQ(password == kNew, plain == plainView(again)) << password;
    }
}

// The same password has nothing to do; an empty password or verify value is refused, and so
// is "short", under which the user's email cannot be re-enciphered.
TEST_F(MasterPassword, RefusalsLeaveFileAndTreeAlone) {
    writeBytes(dir / kBackup, "taken");
    const zlFileSet noFolderSet = zlFileSet::in(dm_string(), zlNow());
    const zlFileSet *set = &files, *none = &noFolderSet;
    const char* old = kShortPass;
    const int noFolder = zlChangeNoFolder, taken = zlChangeBackupFailed;
    const std::tuple<const char*, const char*, const zlFileSet*, int> cases[] = {
        {old, old, set, 1},        {"", kNew, set, -12},         {kNew, "", set, -12},
        {"short", kNew, set, -22}, {kNew, kNew, none, noFolder}, {kNew, kNew, set, taken}};
    for (const auto& [password, verifyOf, set, result] : cases)
        EXPECT_EQ(result, change(password, verifyOf, *set)) << password;
    EXPECT_EQ("taken", readBytes(dir / kBackup));
    expectUntouched();

    // Another program's change is found before the backup: nothing is written at all.
    fs::remove(dir / kBackup);
    saved += "<!-- another program -->\r\n";
    writeBytes(dir / "Zelto.xml", saved);
    EXPECT_EQ(-28, change(kNew, kNew, files));
    EXPECT_FALSE(fs::exists(dir / kBackup));
    expectUntouched();

    // Without the email the settings copy, but the first key cannot be re-enciphered; nor,
    // without keys, the trash. Without settings there is nothing to change.
    file.settings()->setUserEmail(dm_utf8_str(), false);
    EXPECT_EQ(-24, change("short", kNew, files));
    file.keys()->clearChildren();
    EXPECT_EQ(-26, change("short", kNew, files));
    file.root().clearChildren();
    EXPECT_EQ(-20, change(kNew, kNew, files));
    EXPECT_EQ(saved, readBytes(dir / "Zelto.xml"));
}
