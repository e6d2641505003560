// The conversion of a key file of the older format, through the converter program's command.
#include "converter/zlLegacyConverter.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "converter/zlConverterCommand.h"
#include "model/zlFileFormat.h"
#include "model/zlVerify.h"
#include "support/legacy_fixture.h"
#include "support/legacy_writer.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

namespace {

class LegacyConversion : public ::testing::Test {
  protected:
    void put(const std::string& bytes) { ztest::writeBytes(file, bytes); }
    int convert(const char* password) {
        return zlConvertLegacyFile(ztest::widePath(file), password);
    }
    // The keys of the converted file, which must pass its password check.
    std::vector<std::string> readBack(const char* password) {
        zlKeyFile out;
        EXPECT_EQ(zlReadOk, out.readFile(ztest::widePath(file)));
        EXPECT_EQ(0, out.set_pass_phrase(password));
        EXPECT_EQ(zlPasswordRight, zlCheckPassword(out));
        return ztest::plainKeys(out);
    }
    // The settings as written, from <version> on.
    std::string settingsText() {
        const std::string text = ztest::readBytes(file);
        const size_t from = text.find("<version>");
        return text.substr(from, text.find("</settings>") - from);
    }
    // A file with one key under password: name enciphered, password in plain.
    static std::string oneKey(const std::string& password, const std::string& clipboard = "") {
        ztest::LegacyFile legacy;
        legacy.password = password;
        legacy.autoClearClipboard = clipboard;
        legacy.keys.push_back({{"name", true, "key under " + password}, {"pw", false, "secret"}});
        return ztest::legacyText(legacy);
    }
    static std::vector<std::string> oneKeyPlain(const std::string& password) {
        return {"name=key under " + password + "|pw=secret"};
    }

    ztest::TempDir dir;
    fs::path file = dir / "ZeltoPre.xml";
};

// Every file becomes a current one with the same keys under its password, whether the
// password is filled with salt, fills the key or is cut. The clipboard time (clamped) and the
// language are kept, the other settings take their defaults, the user fields are empty. A
// leftover working file of an earlier run is replaced, not read.
TEST_F(LegacyConversion, FilesBecomeCurrentFilesWithTheSameKeys) {
    const std::string pw = ztest::kLegacyFixturePassword;
    const std::string k32(32, 'k'), z128(128, 'z'),
        accents = "p\xC3\xA4sswo\xCC\x88rd \xE2\x9C\x93";
    const struct {
        std::string text, password;
        const char *clipboard, *language;
        std::vector<std::string> keys;
    } cases[] = {
        {ztest::readBytes(ztest::converterData("Legacy.xml")), pw, "45", "Deutsch",
         ztest::legacyFixtureKeys()},
        {ztest::readBytes(ztest::converterData("LegacyBare.xml")), pw, "30", "", {"name=only"}},
        {oneKey("8 bytes!", "3"), "8 bytes!", "0", "", oneKeyPlain("8 bytes!")},
        {oneKey(k32, "5"), k32, "5", "", oneKeyPlain(k32)},
        {oneKey(z128, "900"), z128, "600", "", oneKeyPlain(z128)},
        {oneKey(accents, "soon"), accents, "0", "", oneKeyPlain(accents)},
        {oneKey("clipboard", "600"), "clipboard", "600", "", oneKeyPlain("clipboard")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.password);
        put(c.text);
        ztest::writeBytes(dir / "ZeltoPre.xml.new", "left from an earlier run");
        ASSERT_EQ(0, convert(c.password.c_str()));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));
        EXPECT_EQ(c.keys, readBack(c.password.c_str()));
        EXPECT_EQ("<version>" + zlFileItemSettings::programVersion().str() +
                      "</version>\r\n    <autolock>30</autolock>\r\n    <autoClearClipboard>" +
                      c.clipboard +
                      "</autoClearClipboard>\r\n    <showSelectedKey>2</showSelectedKey>\r\n    "
                      "<language>" +
                      c.language +
                      "</language>\r\n    <userFirstName></userFirstName>\r\n    "
                      "<userLastName></userLastName>\r\n    <userEmail></userEmail>\r\n  ",
                  settingsText());
    }
}

// Every refusal leaves the file as it was and no working file behind, not even one left
// by an earlier run that did not end. The results are the program's exit codes: 2 wrong
// password, 3 usage, 4 no file, 5 not legacy, 6 write failed.
TEST_F(LegacyConversion, RefusalsLeaveTheFileAsItWas) {
    const std::string legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
    const char* pw = ztest::kLegacyFixturePassword;
    ztest::LegacyFile otherVerify;
    otherVerify.password = "right password";
    otherVerify.verifyPlain = "not the verify text";
    otherVerify.keys.push_back({{"name", false, "n"}});
    ztest::LegacyFile noFields;  // carries no mark of the older format
    noFields.password = pw;
    const std::string tooLong(129, 'x');
    struct Case {
        std::string text;
        const char* password;
        int result;
    };
    std::vector<Case> cases = {{legacy, "legacy passworD", 2},
                               {legacy, "8 bytes!", 2},
                               {legacy, "a much longer wrong password than", 2},
                               {ztest::legacyText(otherVerify), "right password", 2},
                               {legacy, nullptr, 3},
                               {legacy, "", 3},
                               {legacy, "7 bytes", 3},
                               {legacy, tooLong.c_str(), 3},
                               {zlSkeletonText(zlMakeVerifyValue(dm_utf8_str(pw))).str(), pw, 5},
                               {ztest::legacyText(noFields), pw, 5},
                               {"", pw, 5},
                               {"<Zelto></Zelto>\r\n", pw, 5},
                               {"plain text that mentions encrypted data", pw, 5}};
    for (const auto& entry : fs::directory_iterator(ztest::converterData(""))) {
        if (entry.path().filename().string().rfind("Broken", 0) == 0)
            cases.push_back({ztest::readBytes(entry.path()), pw, 5});
    }
    // Nesting that only the walk's own checks refuse: the root closed twice, a key inside a
    // key, a key list inside the key list.
    for (const auto& [from, to] :
         {std::pair<std::string, std::string>{"</Zelto>", "</Zelto></Zelto>"},
          {"</key>", "<key/>"},
          {"</keys>", "<keys/>"}})
        cases.push_back({std::string(legacy).replace(legacy.find(from), from.size(), to), pw, 5});
    ASSERT_EQ(cases.size(), 26u);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.text.substr(0, 300));
        put(c.text);
        ztest::writeBytes(dir / "ZeltoPre.xml.new", "left from a run that did not end");
        EXPECT_EQ(c.result, convert(c.password));
        EXPECT_EQ(c.text, ztest::readBytes(file));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));
    }
}

// No file, a folder in its place or where the new text would go; the password is checked
// before the file is looked for.
TEST_F(LegacyConversion, MissingUnreadableOrUnwritableFile) {
    const char* pw = ztest::kLegacyFixturePassword;
    EXPECT_EQ(4, convert(pw));
    EXPECT_EQ(4, zlConvertLegacyFile(dm_string(), pw));
    EXPECT_EQ(3, convert("7 bytes"));
    put(oneKey(pw));
    const std::string before = ztest::readBytes(file);
    fs::create_directory(dir / "ZeltoPre.xml.new");
    EXPECT_EQ(6, convert(pw));
    EXPECT_EQ(before, ztest::readBytes(file));
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_EQ(4, convert(pw));
}

// The program's arguments: exactly one, well-formed, converted to its UTF-8 bytes.
TEST_F(LegacyConversion, CommandTakesOneWidePassword) {
    const std::string password = "\xE5\xAF\x86\xE7\xA0\x81 \xF0\x9F\x94\x91 key";
    put(oneKey(password));
    const dm_string wide = dm_utf8_str(password).to_wide();
    const dunmar::dm_wchar lone[] = {'p', 'a', 's', 's', 'w', 'o', 'r', 'd', 0xD800, 0};
    for (const std::vector<dm_string>& arguments :
         {std::vector<dm_string>{}, {wide, wide}, {dm_string(lone)}})
        EXPECT_EQ(3, zlConverterCommand(arguments, ztest::widePath(file)));
    ASSERT_EQ(0, zlConverterCommand({wide}, ztest::widePath(file)));
    EXPECT_EQ(oneKeyPlain(password), readBack(password.c_str()));
}

}  // namespace
