// Conversion of an older key file from start to end: on Windows through the converter this
// program carries as its resource 137, elsewhere in this process.
#include "app/zlConversion.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/zlConverterRun.h"
#include "app/zlInstance.h"
#include "app/zlTexts.h"
#include "model/zlVerify.h"
#include "support/legacy_fixture.h"
#include "support/legacy_writer.h"
#include "support/program_files.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

namespace {

std::string narrow(const dm_string& text) {
    return text.to_utf8().str();
}

class Conversion : public ::testing::Test {
  protected:
    void SetUp() override {
        files = ztest::programFilesIn(dir);
        legacyBytes = ztest::readBytes(ztest::converterData("Legacy.xml"));
        ztest::writeBytes(keyFile, legacyBytes);
    }
    void TearDown() override { zlSetLanguage(zlLanguageAuto); }

    int readWithConversion(const char* password) {
        file.set_pass_phrase(password);
        return zlReadWithConversion(file, files, dm_utf8_str(password), detail);
    }
    void expectTemporariesGone() {
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml"));
        EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml.new"));
    }
    void expectUntouched() {
        EXPECT_EQ(legacyBytes, ztest::readBytes(keyFile));
        EXPECT_FALSE(fs::exists(dir / "Zelto.backup.2026_03_09_00_00_00_0815.xml"));
        expectTemporariesGone();
    }

    ztest::TempDir dir;
    fs::path keyFile = dir / "Zelto.xml";
    zlFileSet files;
    std::string legacyBytes;
    zlKeyFile file;
    dm_string detail;
};

TEST_F(Conversion, OlderFileIsConvertedBackedUpAndReadBack) {
    zlSetLanguage(zlLanguageEnglish);
    ASSERT_EQ(zlReadOk, readWithConversion(ztest::kLegacyFixturePassword)) << narrow(detail);
    EXPECT_TRUE(detail.empty());

    // The tree in memory, under the same password.
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(file));
    EXPECT_EQ(ztest::legacyFixtureKeys(), ztest::plainKeys(file));
    EXPECT_TRUE(files.keyFile.equals(file.path()));

    // The file on disk, read afresh.
    zlKeyFile again;
    ASSERT_EQ(zlReadOk, again.readFile(files.keyFile));
    ASSERT_EQ(0, again.set_pass_phrase(ztest::kLegacyFixturePassword));
    EXPECT_EQ(zlPasswordRight, zlCheckPassword(again));
    EXPECT_EQ(ztest::legacyFixtureKeys(), ztest::plainKeys(again));
    // Written back under the file's language, not the interface's.
    EXPECT_EQ("Deutsch", again.settings()->language.str());
    EXPECT_EQ(45, again.settings()->autoClearClipboard);

    EXPECT_EQ(legacyBytes, ztest::readBytes(dir / "Zelto.backup.2026_03_09_00_00_00_0815.xml"));
    expectTemporariesGone();
}

// Quotes and backslashes, which the converter's argument parsing treats specially, and a
// blank: each password must reach the converter as it was typed.
TEST_F(Conversion, PasswordsWithQuotesBackslashesAndBlanksConvert) {
    for (const std::string password : {"pass\"word12", "password12\\", "pass\\\\\"word1",
                                       "a\\b\\\\c\\\\\\\"d12", "pass word 12"}) {
        SCOPED_TRACE(password);
        ztest::LegacyFile legacy;
        legacy.password = password;
        legacy.keys.push_back({{"name", true, "shop"}, {"pw", false, password}});
        ztest::writeBytes(keyFile, ztest::legacyText(legacy));
        fs::remove(dir / "Zelto.backup.2026_03_09_00_00_00_0815.xml");
        ASSERT_EQ(zlReadOk, readWithConversion(password.c_str())) << narrow(detail);
        EXPECT_EQ(std::vector<std::string>{"name=shop|pw=" + password}, ztest::plainKeys(file));
    }
}

// The converter's exit code reaches the detail; the older file stays as it was.
TEST_F(Conversion, RefusedConversionLeavesTheOlderFileAlone) {
    const struct {
        const char* fixture;
        const char* password;
        const char* detail;
    } cases[] = {
        {"Legacy.xml", "not the password", "failed to run ZeltoPre.exe () - (Incorrect password)"},
        {"BrokenMismatchedTags.xml", ztest::kLegacyFixturePassword,
         "failed to run ZeltoPre.exe () - (5)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.fixture);
        legacyBytes = ztest::readBytes(ztest::converterData(c.fixture));
        ztest::writeBytes(keyFile, legacyBytes);
        EXPECT_EQ(zlReadFailed, readWithConversion(c.password));
        EXPECT_EQ(c.detail, narrow(detail));
        expectUntouched();
    }
}

TEST_F(Conversion, MissingKeyFileFailsAtTheFirstCopyAndLeftoversGo) {
    fs::remove(keyFile);
    ztest::writeBytes(dir / "ZeltoPre.exe", "left from an earlier run");
    ztest::writeBytes(dir / "ZeltoPre.xml", "left from an earlier run");
    ztest::writeBytes(dir / "ZeltoPre.xml.new", "left from an earlier run");
    EXPECT_EQ(zlReadFailed, readWithConversion(ztest::kLegacyFixturePassword));
    EXPECT_EQ("failed to copy file \"Zelto.xml\" to \"ZeltoPre.xml\"", narrow(detail));
    expectTemporariesGone();
}

TEST_F(Conversion, FailedBackupKeepsTheOlderFileInPlace) {
    // A folder under the backup's name cannot be copied over.
    fs::create_directory(dir / "Zelto.backup.2026_03_09_00_00_00_0815.xml");
    EXPECT_EQ(zlReadFailed, readWithConversion(ztest::kLegacyFixturePassword));
    EXPECT_EQ("failed to copy file \"Zelto.xml\" to \"Zelto.backup.xml\"", narrow(detail));
    EXPECT_EQ(legacyBytes, ztest::readBytes(keyFile));
    expectTemporariesGone();
}

TEST_F(Conversion, FileSetWithoutFolderConvertsNothing) {
    const zlFileSet empty = zlFileSet::in(dm_string(), zlNow());
    EXPECT_EQ(zlReadFailed, zlReadWithConversion(
                                file, empty, dm_utf8_str(ztest::kLegacyFixturePassword), detail));
    EXPECT_EQ("dm_system::get_this_exe_path(..) failed", narrow(detail));
    EXPECT_EQ(legacyBytes, ztest::readBytes(keyFile));

    // The converter itself needs the folder too, before it runs at all.
    files.folder.clear();
    unsigned long exitCode = 12345;
    EXPECT_FALSE(
        zlRunConverter(files, dm_utf8_str(ztest::kLegacyFixturePassword), detail, exitCode));
    EXPECT_EQ("GetThisPathName(..) returned \"\"", narrow(detail));
    EXPECT_EQ(0u, exitCode);
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
}

#ifdef _WIN32
// A key file that others hold open for reading can be copied from but not replaced: the
// last step fails.
TEST_F(Conversion, KeyFileThatCannotBeReplacedStaysTheOlderFile) {
    HANDLE held = CreateFileW(files.keyFile.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    EXPECT_EQ(zlReadFailed, readWithConversion(ztest::kLegacyFixturePassword));
    CloseHandle(held);
    EXPECT_EQ("failed to copy file \"ZeltoPre.xml\" to \"Zelto.xml\"", narrow(detail));
    EXPECT_EQ(legacyBytes, ztest::readBytes(keyFile));
    expectTemporariesGone();
}
#endif

// Convert key file alone leaves its working copy behind; only the reading cleans up.
TEST_F(Conversion, ConvertKeyFileReplacesTheKeyFileWithTheWorkingCopy) {
    ASSERT_TRUE(zlConvertKeyFile(files, dm_utf8_str(ztest::kLegacyFixturePassword), detail))
        << narrow(detail);
    EXPECT_EQ(ztest::readBytes(dir / "ZeltoPre.xml"), ztest::readBytes(keyFile));
    EXPECT_NE(legacyBytes, ztest::readBytes(keyFile));
}

}  // namespace
