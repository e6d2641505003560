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
        detail = dm_string(DM_W("left from an earlier read"));
        return zlReadKeyFileWithConversion(file, files, dm_utf8_str(password), detail);
    }
    void write(const std::string& text) { ztest::writeBytes(dir / "Zelto.xml", text); }

    ztest::TempDir dir;
    zlFileSet files;
    zlKeyFile file;
    dm_string detail;
};

// A current file is read as it is; one without a key list gets an empty one.
TEST_F(StartupRead, CurrentFileWithOrWithoutKeyList) {
    const std::string whole = zlSkeletonText(zlMakeVerifyValue(kPassword)).str();
    std::string bare = whole;
    const std::string keys = "  <keys>\r\n  </keys>\r\n";
    ASSERT_NE(std::string::npos, bare.find(keys));
    bare.erase(bare.find(keys), keys.size());
    for (const std::string& text : {whole, bare}) {
        write(text);
        ASSERT_TRUE(read(kPassword)) << n(detail);
        EXPECT_TRUE(detail.empty());
        ASSERT_NE(nullptr, file.keys());
        EXPECT_EQ(0u, file.keys()->childCount());
        EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
        EXPECT_EQ(text, ztest::readBytes(dir / "Zelto.xml"));
    }
}

TEST_F(StartupRead, UnreadableFilesFail) {
    EXPECT_FALSE(read(kPassword));  // no file at all
    EXPECT_TRUE(detail.empty()) << n(detail);
    const std::pair<std::string, std::string> cases[] = {
        {"", ""},
        {"<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n<Zelto>\r\n  <keys>\r\n  </keys>\r\n"
         "</Zelto>\r\n",
         "<settings> section not found"},
    };
    for (const auto& c : cases) {
        write(c.first);
        EXPECT_FALSE(read(kPassword)) << c.second;
        EXPECT_EQ(c.second, n(detail));
    }
}

// The conversion itself is tested in zlConversion_test; here only that it is reached.
TEST_F(StartupRead, OlderFileIsConvertedUnderItsPasswordOnly) {
    const std::string legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
    write(legacy);
    EXPECT_FALSE(read("not the password"));
    EXPECT_EQ("failed to run ZeltoPre.exe () - (Incorrect password)", n(detail));
    EXPECT_EQ(legacy, ztest::readBytes(dir / "Zelto.xml"));

    ASSERT_TRUE(read(ztest::kLegacyFixturePassword)) << n(detail);
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
    EXPECT_EQ(ztest::legacyFixtureKeys(), ztest::plainKeys(file));
    EXPECT_FALSE(zlIsOlderFormat(dm_utf8_str(ztest::readBytes(dir / "Zelto.xml"))));
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
