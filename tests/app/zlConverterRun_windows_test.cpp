// Every step of running the converter, with other modules standing in for the program's
// own: one without resource 137, one whose 137 is too short, one whose 137 is no program,
// and one whose 137 is the recording fake converter.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "app/zlConversion.h"
#include "app/zlConverterRun.h"
#include "app/zlInstance.h"
#include "support/legacy_fixture.h"
#include "support/test_util.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
namespace fs = std::filesystem;

namespace {

class ConverterRun : public ::testing::Test {
  protected:
    void SetUp() override {
        files = zlFileSet::in(ztest::widePath(dir.path() / ""), zlNow());
        ztest::writeBytes(dir / "ZeltoPre.xml", "working copy");
    }
    void TearDown() override {
        for (HMODULE m : modules)
            FreeLibrary(m);
        zlSetInstance(GetModuleHandleW(nullptr));
    }
    // Makes the module at path (a resource module of this build) the program's instance.
    void useModule(const char* path) {
        const std::wstring wide = fs::path(path).make_preferred().wstring();
        HMODULE m = LoadLibraryExW(wide.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
        ASSERT_NE(nullptr, m) << path;
        modules.push_back(m);
        zlSetInstance(m);
    }
    bool run(const char* password) {
        exitCode = 12345;
        return zlRunConverter(files, dm_utf8_str(password), detail, exitCode);
    }
    std::string detailText() const { return detail.to_utf8().str(); }

    ztest::TempDir dir;
    zlFileSet files;
    dm_string detail;
    unsigned long exitCode = 0;
    std::vector<HMODULE> modules;
};

TEST_F(ConverterRun, NeedsTheInstance) {
    zlSetInstance(nullptr);
    EXPECT_FALSE(run("password"));
    EXPECT_EQ("(curApp.GetInstance() returned NULL)", detailText());
    EXPECT_EQ(0u, exitCode);
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
}

TEST_F(ConverterRun, ResourceMustBeThereAndLongEnough) {
    useModule(ZELTO_MODULE_NONE);
    EXPECT_FALSE(run("password"));
    EXPECT_EQ("::FindResource(..) returned NULL", detailText());

    useModule(ZELTO_MODULE_SHORT);
    EXPECT_FALSE(run("password"));
    EXPECT_EQ("::SizeofResource(..) returned a invalid value (< 10 Bytes)", detailText());
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
}

TEST_F(ConverterRun, ConverterFileThatCannotBeCreated) {
    fs::create_directory(dir / "ZeltoPre.exe");
    EXPECT_FALSE(run("password"));
    EXPECT_EQ("::CreateFile(..) returned INVALID_HANDLE_VALUE", detailText());
}

TEST_F(ConverterRun, ResourceThatIsNoProgramIsWrittenButDoesNotStart) {
    useModule(ZELTO_MODULE_NOT_A_PROGRAM);
    EXPECT_FALSE(run("password"));
    EXPECT_EQ("::CreateProcess(..) returned FALSE", detailText());
    EXPECT_EQ("this resource is longer than ten bytes but it is no program",
              ztest::readBytes(dir / "ZeltoPre.exe"));
}

// The password arrives as one argument, however it is spelt; the folder is the working
// folder; the exit code comes back once the program has ended.
TEST_F(ConverterRun, StartsInTheFolderWithThePasswordAndWaitsForTheExitCode) {
    useModule(ZELTO_MODULE_FAKE);
    const std::string password = "7 w\xC3\xB6rds and \xE2\x9C\x93 signs";
    const DWORD started = GetTickCount();
    EXPECT_FALSE(run(password.c_str()));
    EXPECT_GE(GetTickCount() - started, 1400u);
    EXPECT_EQ(7u, exitCode);
    EXPECT_TRUE(detail.empty());

    std::string folder = ztest::readBytes(dir / "fake_converter.txt");
    ASSERT_EQ(password + "\n", folder.substr(0, password.size() + 1));
    folder = folder.substr(password.size() + 1);
    EXPECT_EQ(fs::path(dir.path()).make_preferred().string(),
              fs::path(folder.substr(0, folder.size() - 1)).make_preferred().string());

    EXPECT_TRUE(run("0 means done"));
    EXPECT_EQ(0u, exitCode);
}

TEST_F(ConverterRun, ExitCodeOtherThanTwoIsReportedAsANumber) {
    useModule(ZELTO_MODULE_FAKE);
    ztest::writeBytes(dir / "Zelto.xml", "key file");
    EXPECT_FALSE(zlConvertKeyFile(files, dm_utf8_str("5 malformed"), detail));
    EXPECT_EQ("failed to run ZeltoPre.exe () - (5)", detailText());
    EXPECT_FALSE(zlConvertKeyFile(files, dm_utf8_str("2 wrong"), detail));
    EXPECT_EQ("failed to run ZeltoPre.exe () - (Incorrect password)", detailText());
    EXPECT_EQ("key file", ztest::readBytes(dir / "Zelto.xml"));
}

// A converter that claims success without converting leaves a file that still reads as the
// older format.
TEST_F(ConverterRun, ConvertedFileThatDoesNotReadFailsTheReading) {
    useModule(ZELTO_MODULE_FAKE);
    const std::string legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
    ztest::writeBytes(dir / "Zelto.xml", legacy);
    zlKeyFile file;
    EXPECT_EQ(zlReadOlderFormat, zlReadWithConversion(file, files, dm_utf8_str("0 ok"), detail));
    EXPECT_EQ("conversion to new xml format failed", detailText());
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.exe"));
    EXPECT_FALSE(fs::exists(dir / "ZeltoPre.xml"));
}

}  // namespace
