#include "app/zlMasterPassword.h"

#include <gtest/gtest.h>

#include <vector>

#include "app/zlKeyFileStore.h"
#include "model/zlVerify.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
using ztest::dec;
using ztest::enc;

namespace {

const char* kOld = "old master";
const char* kNew = "brand new master password";

zlLocalTime someTime(int ms) {
    zlLocalTime t;
    t.year = 2026;
    t.month = 11;
    t.day = 22;
    t.millisecond = ms;
    return t;
}

// Plain texts of every key, trashed ones after a marker, and the user fields.
std::vector<std::string> plainTexts(const zlKeyFile& f) {
    std::vector<std::string> out;
    for (const zlFileItem* list :
         {static_cast<const zlFileItem*>(f.keys()), static_cast<const zlFileItem*>(f.trash())}) {
        out.push_back("--");
        if (!list)
            continue;
        for (size_t i = 0; i < list->childCount(); ++i) {
            const auto* key = static_cast<const zlFileItemKey*>(list->child(i));
            for (int type = zlTypeKeyName; type <= zlTypeKeyNote; ++type) {
                dm_utf8_str plain;
                key->plainField(type, plain);
                out.push_back(plain.str());
            }
        }
    }
    out.push_back(f.settings()->userFirstName(true).str());
    out.push_back(f.settings()->userEmail(true).str());
    return out;
}

class MasterPasswordTest : public ::testing::Test {
  protected:
    void SetUp() override {
        files = zlFileSet::in(ztest::widePath(dir.path() / ""), someTime(1));
        file.setPath(files.keyFile);
        ASSERT_EQ(0, file.set_pass_phrase(kOld));
        auto* settings = new zlFileItemSettings(&file);
        settings->verify = zlMakeVerifyValue(dm_utf8_str(kOld));
        settings->setUserFirstName(dm_utf8_str("Ada"), true);
        settings->setUserEmail(dm_utf8_str("ada@example.org"), true);
        settings->autolock = 120;
        file.root().appendChild(settings);
        auto* keys = new zlFileItemKeys(&file);
        file.root().appendChild(keys);
        addKey(*keys, {"bank", "money", "ada", "pin 1234", "", "https://bank.example", "n"});
        addKey(*keys, {"mail", "", "ada@example.org", "hunter2!", "x@y", "", "line\r\nbreak"});
        auto* trash = new zlFileItemTrash(&file);
        file.root().appendChild(trash);
        addKey(*trash, {"old shop", "shopping", "ada", "gone", "", "", ""});
        ASSERT_EQ(zlSaved, zlSaveKeyFile(file));
        ASSERT_EQ(1, file.readFile(file.path()));
        before = ztest::readBytes(dir / "Zelto.xml");
    }

    void addKey(zlFileItem& list, std::vector<const char*> fields) {
        auto* key = new zlFileItemKey(&file);
        for (int i = 0; i < 7; ++i)
            key->setField(zlTypeKeyName + i, enc(file, fields[i]));
        list.appendChild(key);
    }

    int change(const char* password, const zlFileSet& set) {
        return zlChangeMasterPassword(file, dm_utf8_str(password),
                                      zlMakeVerifyValue(dm_utf8_str(password)), set);
    }

    size_t backups() const {
        size_t n = 0;
        for (const auto& e : std::filesystem::directory_iterator(dir.path()))
            n += e.path().filename().string().rfind("Zelto.backup.", 0) == 0;
        return n;
    }

    void expectUntouched() {
        EXPECT_EQ(before, ztest::readBytes(dir / "Zelto.xml"));
        EXPECT_EQ(kOld, file.pass_phrase());
        EXPECT_EQ(1, zlCheckPassword(file));
    }

    ztest::TempDir dir;
    zlFileSet files;
    zlKeyFile file;
    std::string before;
};

TEST_F(MasterPasswordTest, EveryFieldIsReEncipheredWithABackupFirst) {
    const std::vector<std::string> plain = plainTexts(file);
    ASSERT_EQ(1, change(kNew, files));
    EXPECT_EQ(1u, backups());
    EXPECT_EQ(before, ztest::readBytes(dir / "Zelto.backup.2026_11_22_00_00_00_0001.xml"));
    EXPECT_EQ(kNew, file.pass_phrase());
    EXPECT_EQ(1, zlCheckPassword(file));
    EXPECT_EQ(120, file.settings()->autolock);
    EXPECT_EQ(plain, plainTexts(file));

    // Read afresh under each password: only the new one gives the old plain texts.
    zlKeyFile again;
    again.set_pass_phrase(kNew);
    ASSERT_EQ(1, again.readFile(files.keyFile));
    EXPECT_EQ(plain, plainTexts(again));
    zlKeyFile oldView;
    oldView.set_pass_phrase(kOld);
    ASSERT_EQ(1, oldView.readFile(files.keyFile));
    EXPECT_EQ(-12, zlCheckPassword(oldView));
    const std::vector<std::string> underOld = plainTexts(oldView);
    for (size_t i = 0; i < plain.size(); ++i) {
        if (!plain[i].empty() && plain[i] != "--") {
            EXPECT_NE(plain[i], underOld[i]) << i;
        }
    }
}

TEST_F(MasterPasswordTest, TheSamePasswordWritesNothing) {
    EXPECT_EQ(1, change(kOld, files));
    EXPECT_EQ(0u, backups());
    expectUntouched();
}

TEST_F(MasterPasswordTest, EmptyInputsAreRefused) {
    EXPECT_EQ(-12, zlChangeMasterPassword(file, dm_utf8_str(), dm_utf8_str("AB"), files));
    EXPECT_EQ(-12, zlChangeMasterPassword(file, dm_utf8_str(kNew), dm_utf8_str(), files));
    // Too short to make a verify value: the value is empty, so nothing happens.
    EXPECT_TRUE(zlMakeVerifyValue(dm_utf8_str("7 bytes")).empty());
    EXPECT_EQ(-12, change("7 bytes", files));
    EXPECT_EQ(0u, backups());
    expectUntouched();
}

TEST_F(MasterPasswordTest, BackupFailuresLeaveFileAndTreeAlone) {
    EXPECT_EQ(-18, change(kNew, zlFileSet::in(dm_string(), someTime(2))));
    ztest::writeBytes(dir / "Zelto.backup.2026_11_22_00_00_00_0001.xml", "taken");
    EXPECT_EQ(-19, change(kNew, files));
    EXPECT_EQ("taken", ztest::readBytes(dir / "Zelto.backup.2026_11_22_00_00_00_0001.xml"));
    expectUntouched();
}

TEST_F(MasterPasswordTest, CopyFailuresAreReportedByStage) {
    // A verify value that does not belong to the password: the new tree cannot encipher.
    const dm_utf8_str verify = zlMakeVerifyValue(dm_utf8_str(kNew));
    const dm_utf8_str tooShort("short");
    EXPECT_EQ(-22, zlChangeMasterPassword(file, tooShort, verify, files));

    // Without user fields the settings copy; the first key with text then fails.
    file.settings()->setUserFirstName(dm_utf8_str(), false);
    file.settings()->setUserEmail(dm_utf8_str(), false);
    EXPECT_EQ(-24, zlChangeMasterPassword(file, tooShort, verify, files));

    // No key list but a trash with text: the trash fails.
    file.keys()->clearChildren();
    EXPECT_EQ(-26, zlChangeMasterPassword(file, tooShort, verify, files));

    file.root().clearChildren();
    EXPECT_EQ(-20, change(kNew, files));
    EXPECT_EQ(0u, backups());
    EXPECT_EQ(before, ztest::readBytes(dir / "Zelto.xml"));
    EXPECT_EQ(kOld, file.pass_phrase());
}

// Another program's change is found before the backup: nothing is written at all.
TEST_F(MasterPasswordTest, AFileChangedByAnotherProgramIsLeftAsItIs) {
    before += "<!-- another program -->\r\n";
    ztest::writeBytes(dir / "Zelto.xml", before);
    EXPECT_EQ(zlSaveConflict, change(kNew, files));
    EXPECT_EQ(0u, backups());
    expectUntouched();
}

TEST(zlVerify, ValuesAndChecks) {
    const dm_utf8_str a = zlMakeVerifyValue(dm_utf8_str("8 bytes!"));
    const dm_utf8_str b = zlMakeVerifyValue(dm_utf8_str("8 bytes!"));
    ASSERT_FALSE(a.empty());
    EXPECT_FALSE(a.equals(b));  // fresh salt each time
    EXPECT_EQ(a.length(), b.length());
    const std::string longPass = "thirty-two bytes or more, always";
    EXPECT_TRUE(
        zlMakeVerifyValue(dm_utf8_str(longPass)).equals(zlMakeVerifyValue(dm_utf8_str(longPass))));
    EXPECT_TRUE(zlMakeVerifyValue(dm_utf8_str(std::string(129, 'x'))).empty());
    EXPECT_FALSE(zlMakeVerifyValue(dm_utf8_str(std::string(128, 'x'))).empty());
    EXPECT_TRUE(zlMakeVerifyValue(dm_utf8_str()).empty());

    zlKeyFile f;
    EXPECT_EQ(-11, zlCheckPassword(f));
    auto* settings = new zlFileItemSettings(&f);
    f.root().appendChild(settings);
    EXPECT_EQ(-12, zlCheckPassword(f));  // no pass phrase yet
    ASSERT_EQ(0, zlSetPassword(f, "8 bytes!"));
    EXPECT_EQ("8 bytes!", zlGetPassword(f));
    for (const dm_utf8_str& value : {a, b}) {
        settings->verify = value;
        EXPECT_EQ(1, zlCheckPassword(f));
    }
    settings->verify = dm_utf8_str(a.str() + "0");  // odd length: last character ignored
    EXPECT_EQ(1, zlCheckPassword(f));
    settings->verify = dm_utf8_str(a.str().substr(0, a.length() - 2));
    EXPECT_EQ(-12, zlCheckPassword(f));
    settings->verify = dm_utf8_str("zz--\xff\x01 not a value");
    EXPECT_EQ(-12, zlCheckPassword(f));
    settings->verify = a;
    EXPECT_EQ(1, zlSetPassword(f, "7 bytes"));  // refused: the old one stays
    EXPECT_EQ(1, zlCheckPassword(f));
    ASSERT_EQ(0, zlSetPassword(f, "8 bytes?"));
    EXPECT_EQ(-12, zlCheckPassword(f));
}

}  // namespace
