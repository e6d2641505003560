#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "app/zlInstance.h"
#include "app/zlTexts.h"
#include "cli/zlcRun.h"
#include "model/zlFileFormat.h"
#include "support/legacy_fixture.h"
#include "support/test_util.h"

#ifdef _WIN32
#include <windows.h>
#endif

using namespace Zelto;
namespace fs = std::filesystem;

namespace {

// An older key file met by any command is converted before the command runs.
class CliConversionTest : public ::testing::Test {
  protected:
    void SetUp() override {
#ifdef _WIN32
        // The converter is this test program's own resource, as it is zelto-cli's.
        zlSetInstance(GetModuleHandleW(nullptr));
#endif
        legacy = ztest::readBytes(ztest::converterData("Legacy.xml"));
        ztest::writeBytes(dir / "Zelto.xml", legacy);
    }
    void TearDown() override {
        zlSetLanguage(zlLanguageAuto);
    }

    int run(std::vector<std::string> argv, const std::string& password, std::string& out,
            std::string& err) {
        argv.insert(argv.begin(), {"--file", ztest::widePath(dir / "Zelto.xml").to_utf8().str()});
        zlcIo io;
        io.readSecret = [&](const char*, std::string& line) {
            line = password;
            return true;
        };
        const int status = zlcRun(argv, io);
        out = io.out;
        err = io.err;
        return status;
    }

    std::vector<std::string> backups() const {
        std::vector<std::string> names;
        for (const auto& e : fs::directory_iterator(dir.path())) {
            const std::string name = e.path().filename().string();
            if (name != "Zelto.xml")
                names.push_back(name);
        }
        return names;
    }

    ztest::TempDir dir;
    std::string legacy;
};

TEST_F(CliConversionTest, TheOldFileIsKeptAndTheKeysAreListed) {
    std::string out, err;
    ASSERT_EQ(0, run({"ls"}, ztest::kLegacyFixturePassword, out, err)) << err;
    EXPECT_EQ("#1 Bank (money, home)\n#2 M\xC3\xBCller GmbH\n#3 Plain name\n", out);
    EXPECT_EQ("", err);
    const std::string now = ztest::readBytes(dir / "Zelto.xml");
    EXPECT_FALSE(zlIsOlderFormat(dunmar::dm_utf8_str(now)));
    EXPECT_NE(std::string::npos, now.find("<language>Deutsch</language>"));
    const std::vector<std::string> kept = backups();
    ASSERT_EQ(1u, kept.size());
    EXPECT_EQ(0u, kept[0].find("Zelto.backup."));
    EXPECT_EQ(legacy, ztest::readBytes(dir / kept[0].c_str()));

    ASSERT_EQ(0, run({"get", "Bank", "pw"}, ztest::kLegacyFixturePassword, out, err)) << err;
    EXPECT_EQ("p&ss<w>rd \"1\" 'x'", out);
    ASSERT_EQ(0, run({"settings"}, ztest::kLegacyFixturePassword, out, err)) << err;
    EXPECT_EQ(
        "autolock: 30\nclear-clipboard: 45\nshow-selected: 2\nlanguage: Deutsch\nfirst-name: "
        "\nlast-name: \nemail: \n",
        out);
}

TEST_F(CliConversionTest, AWrongPasswordConvertsNothing) {
    std::string out, err;
    EXPECT_EQ(2, run({"ls"}, "not the legacy password", out, err));
    EXPECT_EQ("", out);
    EXPECT_NE(std::string::npos, err.find("(Incorrect password))")) << err;
    EXPECT_EQ(0u, err.find("ERROR: failed to read \"")) << err;
    EXPECT_EQ(legacy, ztest::readBytes(dir / "Zelto.xml"));
    EXPECT_TRUE(backups().empty());
}

}  // namespace
