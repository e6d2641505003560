// Reading the key file once the password is known, with the conversion of older files.
#include "app/zlStartupRead.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/zlInstance.h"
#include "model/zlFileFormat.h"
#include "model/zlVerify.h"
#include "support/legacy_fixture.h"
#include "support/program_files.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

namespace {

const char* kPassword = "Startup1password";

std::string n(const dm_string& text) {
    return text.to_utf8().str();
}

class StartupRead : public ::testing::Test {
  protected:
    void SetUp() override { files = ztest::programFilesIn(dir); }

    bool read(const char* password) {
        file.set_pass_phrase(password);
        return zlReadKeyFileWithConversion(file, files, dm_utf8_str(password), detail);
    }
    void write(const std::string& text) { ztest::writeBytes(dir / "Zelto.xml", text); }
    std::string skeleton() const { return zlSkeletonText(zlMakeVerifyValue(kPassword)).str(); }

    ztest::TempDir dir;
    fs::path backup = dir / "Zelto.backup.2026_03_09_00_00_00_0815.xml";
    zlFileSet files;
    zlKeyFile file;
    dm_string detail;
};

TEST_F(StartupRead, CurrentFileIsReadAsItIs) {
    const std::string text = skeleton();
    write(text);
    ASSERT_TRUE(read(kPassword)) << n(detail);
    EXPECT_TRUE(detail.empty());
    ASSERT_NE(nullptr, file.keys());
    EXPECT_EQ(0u, file.keys()->childCount());
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
    EXPECT_EQ(text, ztest::readBytes(dir / "Zelto.xml"));
}

TEST_F(StartupRead, FileWithoutKeyListGetsAnEmptyOne) {
    std::string text = skeleton();
    const std::string keys = "  <keys>\r\n  </keys>\r\n";
    const size_t at = text.find(keys);
    ASSERT_NE(std::string::npos, at);
    text.erase(at, keys.size());
    write(text);
    ASSERT_TRUE(read(kPassword)) << n(detail);
    ASSERT_NE(nullptr, file.keys());
    EXPECT_EQ(0u, file.keys()->childCount());
}

TEST_F(StartupRead, FileWithoutSettingsFails) {
    write(
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n  <keys>\r\n  </keys>\r\n"
        "</Zelto>\r\n");
    EXPECT_FALSE(read(kPassword));
    EXPECT_EQ("<settings> section not found", n(detail));
}

TEST_F(StartupRead, MissingOrEmptyFileFailsWithoutDetail) {
    EXPECT_FALSE(read(kPassword));
    EXPECT_TRUE(detail.empty());
    write("");
    EXPECT_FALSE(read(kPassword));
    EXPECT_TRUE(detail.empty()) << n(detail);
}

TEST_F(StartupRead, OlderFileIsConvertedUnderThePassword) {
    const std::string legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
    write(legacy);
    ASSERT_TRUE(read(ztest::kLegacyFixturePassword)) << n(detail);
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
    EXPECT_EQ(ztest::legacyFixtureKeys(), ztest::plainKeys(file));
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str(ztest::readBytes(dir / "Zelto.xml"))));
    EXPECT_EQ(legacy, ztest::readBytes(backup));
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml"));
}

TEST_F(StartupRead, OlderFileUnderAWrongPasswordStaysAsItWas) {
    const std::string legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
    write(legacy);
    EXPECT_FALSE(read("not the password"));
    const std::string text = n(detail);
    const std::string ending = " - (Incorrect password)";
    ASSERT_GE(text.size(), ending.size()) << text;
    EXPECT_EQ(ending, text.substr(text.size() - ending.size()));
    EXPECT_EQ(legacy, ztest::readBytes(dir / "Zelto.xml"));
    EXPECT_FALSE(fs::exists(backup));
}

TEST(StartupMessages, NameThePathInQuotes) {
    const dm_string path(DM_W("C:\\Tools\\Zelto.xml"));
    EXPECT_EQ("ERROR: failed to read \"C:\\Tools\\Zelto.xml\"", n(zlReadFailureText(path, {})));
    EXPECT_EQ("ERROR: failed to read \"C:\\Tools\\Zelto.xml\" (<settings> section not found)",
              n(zlReadFailureText(path, dm_string(DM_W("<settings> section not found")))));
    EXPECT_EQ("ERROR: Failed to create default Zelto Xml-File \"C:\\Tools\\Zelto.xml\"",
              n(zlCreateFailureText(path)));
}

}  // namespace
