// Reading the key file once the password is known; an older file is converted on the way
// (the conversion itself is tested in zlConversion_test).
#include "app/zlStartupRead.h"

#include <tuple>

#include "app_test_util.h"
#include "model/zlFileFormat.h"

class StartupRead : public ProgramFolder {};

// One row per key file (null: none) and password: whether it reads, and the detail. A file
// without a key list gets an empty one; a file of the older format is converted.
TEST_F(StartupRead, ResultsAndDetails) {
    const char* pw = "Startup1password";
    const std::string whole = zlSkeletonText(zlMakeVerifyValue(pw)).str(), none;
    const std::string keys = "  <keys>\r\n  </keys>\r\n", end = "</Zelto>\r\n";
    const std::string bare = whole.substr(0, whole.find(keys)) + end;
    const std::string noSettings = whole.substr(0, whole.find("  <settings>")) + keys + end;
    const std::string older = readBytes(converterData("Legacy.xml"));
    const char* lost = "<settings> section not found";
    const char* wrong = "failed to run ZeltoPre.exe () - (Incorrect password)";
    const char* right = kLegacyFixturePassword;
    const std::tuple<const std::string*, const char*, bool, const char*> cases[] = {
        {&whole, pw, true, ""},         {&bare, pw, true, ""},
        {nullptr, pw, false, ""},       {&none, pw, false, ""},
        {&noSettings, pw, false, lost}, {&older, "not right", false, wrong},
        {&older, right, true, ""}};
    for (const auto& [text, password, reads, expected] : cases) {
        SCOPED_TRACE(text ? text->substr(0, 80) : "no file");
        fs::remove(dir / "Zelto.xml");
        if (text)
            writeBytes(dir / "Zelto.xml", *text);
        file.set_pass_phrase(password);
        detail = w("left from an earlier read");
        EXPECT_EQ(reads, zlReadKeyFileWithConversion(file, files, password, detail));
        EXPECT_EQ(expected, u8(detail));
        if (reads && text != &older) {
            EXPECT_EQ(0u, file.keys() ? file.keys()->childCount() : 99);
            EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
            EXPECT_EQ(*text, readBytes(dir / "Zelto.xml"));  // read, not written
        }
    }
    EXPECT_EQ(legacyFixtureKeys(), plainKeys(file));
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str(readBytes(dir / "Zelto.xml"))));
}

TEST(StartupMessages, NameThePathInQuotes) {
    const dm_string path = w("C:\\Zelto.xml");
    EXPECT_EQ("ERROR: failed to read \"C:\\Zelto.xml\"", u8(zlReadFailureText(path, {})));
    EXPECT_EQ("ERROR: failed to read \"C:\\Zelto.xml\" (why)",
              u8(zlReadFailureText(path, w("why"))));
    EXPECT_EQ("ERROR: Failed to create default Zelto Xml-File \"C:\\Zelto.xml\"",
              u8(zlCreateFailureText(path)));
}
