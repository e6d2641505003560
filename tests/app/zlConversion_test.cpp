// Conversion of an older key file from start to end: on Windows through the converter this
// program carries as its resource 137, elsewhere in this process.
#include "app/zlConversion.h"

#include <tuple>

#include "app/zlTexts.h"
#include "app_test_util.h"
#include "core/dm_file_layer.h"
#include "support/legacy_writer.h"

#ifdef _WIN32
#include <windows.h>
#endif

const char* const kBackup = "Zelto.backup.2026_03_09_00_00_00_0815.xml";

class Conversion : public ProgramFolder {
  protected:
    void SetUp() override { write(readBytes(converterData("Legacy.xml"))); }
    void TearDown() override { zlSetLanguage(zlLanguageAuto); }
    void write(const std::string& bytes) {
        legacy = bytes;
        writeBytes(dir / "Zelto.xml", bytes);
    }
    int read(const char* password, zlConverterRunner run = zlRunConverter) {
        file.set_pass_phrase(password);
        return zlReadWithConversion(file, files, dm_utf8_str(password), detail, run);
    }
    std::string legacy;
};

TEST_F(Conversion, OlderFileIsConvertedBackedUpAndReadBack) {
    zlSetLanguage(zlLanguageEnglish);
    ASSERT_EQ(zlReadOk, read(kLegacyFixturePassword)) << u8(detail);
    EXPECT_TRUE(detail.empty());
    zlKeyFile again;
    again.set_pass_phrase(kLegacyFixturePassword);
    ASSERT_EQ(zlReadOk, again.readFile(files.keyFile));
    for (const zlKeyFile* tree : {&file, &again}) {
        EXPECT_EQ(zlPasswordRight, zlCheckPassword(*tree));
        EXPECT_EQ(legacyFixtureKeys(), plainKeys(*tree));
        // Written back under the file's language, not the interface's.
        EXPECT_EQ("Deutsch 45", tree->settings()->language.str() + " " +
                                    std::to_string(tree->settings()->autoClearClipboard));
    }
    EXPECT_EQ(legacy, readBytes(dir / kBackup));
    EXPECT_EQ((Texts{kBackup, "Zelto.xml"}), filesIn(dir));
}

// Quotes and backslashes, which the converter's argument parsing treats specially, and a
// blank: each password must reach the converter as it was typed.
TEST_F(Conversion, PasswordsWithQuotesBackslashesAndBlanksConvert) {
    for (const std::string password : {"pass\"word12", "password12\\", "pass\\\\\"word1",
                                       "a\\b\\\\c\\\\\\\"d12", "pass word 12"}) {
        SCOPED_TRACE(password);
        LegacyFile older;
        older.password = password;
        older.keys.push_back({{"name", true, "shop"}, {"pw", false, password}});
        write(legacyText(older));
        fs::remove(dir / kBackup);
        ASSERT_EQ(zlReadOk, read(password.c_str())) << u8(detail);
        EXPECT_EQ(Texts{"name=shop|pw=" + password}, plainKeys(file));
    }
}

// Stands in for the converter: reports, and ends with the number the password starts with.
// "0 bare" leaves a file of the current format that holds neither settings nor keys.
static bool reportingRun(const zlFileSet& files, const dm_utf8_str& password, dm_string& detail,
                         unsigned long& exitCode) {
    detail = w("its report");
    exitCode = std::stoul(password.str());
    if (password.str() == "0 bare")
        dunmar::dm_save_file(files.workingCopy,
                             "<?xml version=\"1.0\"?>\r\n<Zelto>\r\n</Zelto>\r\n");
    return exitCode == 0;
}

// What the converter left out, the reading adds and writes back at once: default settings
// and an empty key list.
TEST_F(Conversion, ConvertedTreeIsCompleted) {
    ASSERT_EQ(zlReadOk, read("0 bare", reportingRun)) << u8(detail);
    zlKeyFile again;
    ASSERT_EQ(zlReadOk, again.readFile(files.keyFile));
    for (const zlKeyFile* tree : {&file, &again})
        EXPECT_TRUE(tree->root().childCount() == 2 && tree->settings() && tree->keys() &&
                    tree->keys()->childCount() == 0);
}

// Each failure names its step; the older file stays, and what earlier runs left goes.
TEST_F(Conversion, FailuresNameTheStepAndKeepTheOlderFile) {
    const std::string run = "failed to run ZeltoPre.exe (",
                      copy = "failed to copy file \"Zelto.xml\"";
    const std::tuple<const char*, const char*, zlConverterRunner, std::string> cases[] = {
        {"Legacy.xml", "not the password", zlRunConverter, run + ") - (Incorrect password)"},
        {"BrokenMismatchedTags.xml", kLegacyFixturePassword, zlRunConverter, run + ") - (5)"},
        {"Legacy.xml", "2", reportingRun, run + "its report) - (Incorrect password)"},
        {"Legacy.xml", "3", reportingRun, run + "its report) - (3)"},
        {nullptr, kLegacyFixturePassword, zlRunConverter, copy + " to \"ZeltoPre.xml\""},
        {"Legacy.xml", "0", reportingRun, copy + " to \"Zelto.backup.xml\""}};
    fs::create_directory(dir / kBackup);  // a folder cannot be copied over
    for (const auto& [fixture, password, runner, expected] : cases) {
        fs::remove(dir / "Zelto.xml");
        if (fixture)
            write(readBytes(converterData(fixture)));
        for (const char* name : {"ZeltoPre.exe", "ZeltoPre.xml", "ZeltoPre.xml.new"})
            writeBytes(dir / name, "left from an earlier run");
        EXPECT_EQ(zlReadFailed, read(password, runner)) << expected;
        EXPECT_EQ(expected, u8(detail));
        EXPECT_EQ(fixture ? legacy : "", readBytes(dir / "Zelto.xml")) << expected;
        EXPECT_EQ((fixture ? Texts{kBackup, "Zelto.xml"} : Texts{kBackup}), filesIn(dir));
    }
    // A converter that claims success without converting leaves the older format.
    fs::remove(dir / kBackup);
    EXPECT_EQ(zlReadOlderFormat, read("0", reportingRun));
    EXPECT_EQ("conversion to new xml format failed", u8(detail));
    EXPECT_EQ(legacy, readBytes(dir / "Zelto.xml"));
}

#ifdef _WIN32
// A key file that others hold open for reading can be copied from but not replaced: the
// last step fails.
TEST_F(Conversion, KeyFileThatCannotBeReplacedStaysTheOlderFile) {
    HANDLE held = CreateFileW(files.keyFile.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    EXPECT_EQ(zlReadFailed, read(kLegacyFixturePassword));
    CloseHandle(held);
    EXPECT_EQ("failed to copy file \"ZeltoPre.xml\" to \"Zelto.xml\"", u8(detail));
    EXPECT_EQ(legacy, readBytes(dir / "Zelto.xml"));
    EXPECT_EQ((Texts{kBackup, "Zelto.xml"}), filesIn(dir));
}
#endif

// In this process the converter clears what an earlier run reported; either way it needs the
// folder before it starts at all, and so does the reading, which still clears up.
TEST_F(Conversion, RunningTheConverterNeedsTheFolder) {
    fs::copy_file(dir / "Zelto.xml", dir / "ZeltoPre.xml");
    unsigned long exitCode = 12345;
    detail = w("stale");
    EXPECT_TRUE(zlRunConverterInProcess(files, kLegacyFixturePassword, detail, exitCode));
    EXPECT_TRUE(exitCode == 0 && detail.empty());
    files.folder.clear();
    for (zlConverterRunner run : {zlRunConverter, zlRunConverterInProcess}) {
        exitCode = 12345;
        EXPECT_FALSE(run(files, kLegacyFixturePassword, detail, exitCode));
        EXPECT_EQ("GetThisPathName(..) returned \"\" 0",
                  u8(detail) + " " + std::to_string(exitCode));
    }
    EXPECT_EQ(zlReadFailed, zlReadWithConversion(file, files, kLegacyFixturePassword, detail));
    EXPECT_EQ("failed to convert xml file to new format", u8(detail));
    EXPECT_EQ(Texts{"Zelto.xml"}, filesIn(dir));
}
