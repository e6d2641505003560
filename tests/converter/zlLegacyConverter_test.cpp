#include "converter/zlLegacyConverter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/legacy_fixture.h"
#include "model/zlFileFormat.h"
#include "model/zlVerify.h"
#include "support/legacy_writer.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

namespace {

class LegacyConversion : public ::testing::Test {
  protected:
    void put(const std::string& bytes) { ztest::writeBytes(file, bytes); }
    void putFixture(const char* name) { put(ztest::readBytes(ztest::converterData(name))); }
    int convert(const char* password) {
        return zlConvertLegacyFile(ztest::widePath(file), password);
    }
    // Reads the converted file under password; the password must be the file's.
    void readBack(zlKeyFile& out, const char* password) {
        ASSERT_EQ(zlReadOk, out.readFile(ztest::widePath(file)));
        ASSERT_EQ(0, out.set_pass_phrase(password));
        ASSERT_EQ(zlPasswordRight, zlCheckPassword(out));
        ASSERT_NE(nullptr, out.keys());
    }
    // Converts a written legacy file with one key under password and reads it back.
    void roundTrip(const std::string& password) {
        ztest::LegacyFile legacy;
        legacy.password = password;
        legacy.keys.push_back({{"name", true, "key under " + password}, {"pw", true, "secret"}});
        put(ztest::legacyText(legacy));
        ASSERT_EQ(zlConvertOk, convert(password.c_str()));
        zlKeyFile out;
        readBack(out, password.c_str());
        EXPECT_EQ(std::vector<std::string>{"name=key under " + password + "|pw=secret"},
                  ztest::plainKeys(out));
    }

    ztest::TempDir dir;
    fs::path file = dir / "ZeltoPre.xml";
};

// A leftover working file of an earlier run is replaced, not read.
TEST_F(LegacyConversion, FixtureBecomesACurrentFileWithTheSameKeysAndSettings) {
    putFixture("Legacy.xml");
    ztest::writeBytes(dir / "ZeltoPre.xml.new", "left from an earlier run");
    ASSERT_EQ(zlConvertOk, convert(ztest::kLegacyFixturePassword));
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));

    const std::string text = ztest::readBytes(file);
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str(text)));
    EXPECT_NE(std::string::npos, text.find("<userFirstName></userFirstName>"));
    EXPECT_NE(std::string::npos, text.find("<userEmail></userEmail>"));
    zlKeyFile out;
    readBack(out, ztest::kLegacyFixturePassword);
    EXPECT_EQ(ztest::legacyFixtureKeys(), ztest::plainKeys(out));
    EXPECT_EQ(nullptr, out.trash());
    // Clipboard time and language are kept, the rest defaulted.
    const zlFileItemSettings& s = *out.settings();
    EXPECT_EQ(45, s.autoClearClipboard);
    EXPECT_EQ("Deutsch", s.language.str());
    EXPECT_EQ(30, s.autolock);
    EXPECT_EQ(2, s.showSelectedKey);
    EXPECT_EQ(zlFileItemSettings::programVersion().str(), s.version.str());
}

TEST_F(LegacyConversion, BareFileGetsDefaultSettingsAndAVerifyValueForItsPasswordOnly) {
    putFixture("LegacyBare.xml");
    ASSERT_EQ(zlConvertOk, convert(ztest::kLegacyFixturePassword));
    zlKeyFile out;
    readBack(out, ztest::kLegacyFixturePassword);
    EXPECT_EQ(30, out.settings()->autoClearClipboard);
    EXPECT_NE(std::string::npos, ztest::readBytes(file).find("<language></language>"));
    EXPECT_EQ(std::vector<std::string>{"name=only"}, ztest::plainKeys(out));
    ASSERT_EQ(0, out.set_pass_phrase("legacy passworD"));
    EXPECT_EQ(zlPasswordWrong, zlCheckPassword(out));
}

TEST_F(LegacyConversion, ClipboardTimeIsClampedLikeTheKeyFileReader) {
    const struct {
        const char* text;
        int expected;
    } cases[] = {{"3", 0}, {"5", 5}, {"120", 120}, {"900", 600}, {"soon", 0}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        ztest::LegacyFile legacy;
        legacy.password = "clipboard test";
        legacy.autoClearClipboard = c.text;
        legacy.keys.push_back({{"name", false, "n"}});
        put(ztest::legacyText(legacy));
        ASSERT_EQ(zlConvertOk, convert("clipboard test"));
        zlKeyFile out;
        readBack(out, "clipboard test");
        EXPECT_EQ(c.expected, out.settings()->autoClearClipboard);
    }
}

// Short pass phrases are filled with salt, 32 bytes need none, longer ones are cut: each
// path of the construction must survive the change of text form.
TEST_F(LegacyConversion, PasswordsOfEveryLengthClassConvert) {
    roundTrip("8 bytes!");
    roundTrip(std::string(32, 'k'));
    roundTrip(std::string(128, 'z'));
    roundTrip("p\xC3\xA4sswo\xCC\x88rd \xE2\x9C\x93");
}

// A new file left by a run that did not end goes with any failure.
TEST_F(LegacyConversion, WrongPasswordLeavesTheFileAsItWas) {
    putFixture("Legacy.xml");
    const std::string before = ztest::readBytes(file);
    ztest::writeBytes(dir / "ZeltoPre.xml.new", "left from a run that did not end");
    // A wrong password of another length must not pass for a damaged file.
    for (const char* wrong : {"legacy passworD", "8 bytes!", "a much longer wrong password than"}) {
        SCOPED_TRACE(wrong);
        EXPECT_EQ(zlConvertWrongPassword, convert(wrong));
        EXPECT_EQ(before, ztest::readBytes(file));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));
    }
    // The verify value made under another text is no proof of the password.
    ztest::LegacyFile legacy;
    legacy.password = "right password";
    legacy.verifyPlain = "not the verify text";
    legacy.keys.push_back({{"name", false, "n"}});
    put(ztest::legacyText(legacy));
    EXPECT_EQ(zlConvertWrongPassword, convert("right password"));
}

TEST_F(LegacyConversion, UnusablePasswordIsAUsageError) {
    putFixture("Legacy.xml");
    const std::string before = ztest::readBytes(file);
    const std::string tooLong(129, 'x');
    for (const char* password : {static_cast<const char*>(nullptr), "", "7 bytes", tooLong.c_str()})
        EXPECT_EQ(zlConvertUsage, convert(password));
    EXPECT_EQ(before, ztest::readBytes(file));
    // Checked before the file is looked for.
    EXPECT_EQ(zlConvertUsage, zlConvertLegacyFile(ztest::widePath(dir / "none.xml"), "7 bytes"));
}

TEST_F(LegacyConversion, CurrentOrForeignFilesAreNotLegacy) {
    const std::string current =
        zlSkeletonText(zlMakeVerifyValue(dm_utf8_str(ztest::kLegacyFixturePassword))).str();
    // Without a single field the file carries no mark of the older format.
    ztest::LegacyFile noFields;
    noFields.password = ztest::kLegacyFixturePassword;
    for (const std::string& text :
         {current, ztest::legacyText(noFields), std::string(), std::string("<Zelto></Zelto>\r\n"),
          std::string("plain text that mentions encrypted data")}) {
        SCOPED_TRACE(text);
        put(text);
        EXPECT_EQ(zlConvertNotLegacy, convert(ztest::kLegacyFixturePassword));
        EXPECT_EQ(text, ztest::readBytes(file));
    }
}

TEST_F(LegacyConversion, DamagedFixturesAreRefusedAndLeftAlone) {
    int seen = 0;
    for (const auto& entry : fs::directory_iterator(ztest::converterData(""))) {
        const std::string name = entry.path().filename().string();
        if (name.rfind("Broken", 0) != 0)
            continue;
        SCOPED_TRACE(name);
        ++seen;
        putFixture(name.c_str());
        const std::string before = ztest::readBytes(file);
        EXPECT_EQ(zlConvertNotLegacy, convert(ztest::kLegacyFixturePassword));
        EXPECT_EQ(before, ztest::readBytes(file));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));
    }
    EXPECT_GE(seen, 10);
}

// A folder where the new text would go makes the write fail on every system; a folder in
// place of the file cannot be read.
TEST_F(LegacyConversion, MissingUnreadableOrUnwritableFile) {
    EXPECT_EQ(zlConvertNoFile, convert(ztest::kLegacyFixturePassword));
    EXPECT_EQ(zlConvertNoFile,
              zlConvertLegacyFile(dunmar::dm_string(), ztest::kLegacyFixturePassword));
    putFixture("Legacy.xml");
    const std::string before = ztest::readBytes(file);
    fs::create_directory(dir / "ZeltoPre.xml.new");
    EXPECT_EQ(zlConvertWriteFailed, convert(ztest::kLegacyFixturePassword));
    EXPECT_EQ(before, ztest::readBytes(file));
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_EQ(zlConvertNoFile, convert(ztest::kLegacyFixturePassword));
}

}  // namespace
