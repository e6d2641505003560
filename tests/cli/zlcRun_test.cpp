#include "cli/zlcRun.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>

#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"
#include "cloud/zlConnectionString.h"
#include "support/test_util.h"

using namespace Zelto;

#ifdef _WIN32
#define setenv(name, value, overwrite) _putenv_s(name, value)
#endif

namespace {

const char* kMaster = "Master2024";

// Runs commands in-process on a key file in a fresh folder; scenario.sh runs the program.
// Secrets come from a list; before the second one is handed out, another program may act.
class CliTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ("0: created \"" + path() + "\"\n| ", run({"init"}, {kMaster, kMaster}));
        ASSERT_EQ("0: added #1 \"bank\"\n| ",
                  run({"add", "bank", "--password-stdin"}, {kMaster, "pin 1234"}));
    }

    // "status: output| standard error".
    std::string run(std::vector<std::string> argv, std::vector<std::string> secrets,
                    bool terminal = false) {
        argv.insert(argv.begin(), {"--file", path()});
        zlcIo io;
        io.outIsTerminal = terminal;
        size_t next = 0;
        io.readSecret = [&](const char*, std::string& line) {
            if (next == 1 && meanwhile)
                meanwhile();
            line = next < secrets.size() ? secrets[next] : "";
            return next++ < secrets.size();
        };
        const int status = zlcRun(argv, io);
        return std::to_string(status) + ": " + io.out + "| " + io.err;
    }
    std::string path() const { return ztest::widePath(file).to_utf8().str(); }

    ztest::TempDir dir;
    const std::filesystem::path file = dir / "Zelto.xml";
    std::function<void()> meanwhile;
};

TEST_F(CliTest, AFileChangedMeanwhileIsNotOverwrittenAndADeletedOneIsWrittenAnew) {
    const std::string read = ztest::readBytes(file), other = read + "<!-- another program -->";
    meanwhile = [&] { ztest::writeBytes(file, other); };
    const std::vector<std::string> writes[] = {
        {"add", "shop", "--password-stdin"}, {"edit", "bank", "--password-stdin"}, {"passwd"}};
    for (const auto& write : writes) {
        ztest::writeBytes(file, read);
        EXPECT_EQ("4: | ERROR: \"" + path() +
                      "\" was changed by another program since it was read; nothing was written\n",
                  run(write, {kMaster, "Other2024", "Other2024"}));
        EXPECT_EQ(other, ztest::readBytes(file)) << write[0];
    }
    using std::filesystem::directory_iterator;
    EXPECT_EQ(1, std::distance(directory_iterator(dir.path()), directory_iterator()))
        << "no backup may be made";
    meanwhile = [&] { std::filesystem::remove(file); };
    EXPECT_EQ("0: added #2 \"shop\"\n| ", run({"add", "shop", "--password-stdin"}, {kMaster, "x"}));
    meanwhile = nullptr;
    EXPECT_EQ("0: x| ", run({"get", "shop", "pw"}, {kMaster}));
    EXPECT_EQ("0: x\n| ", run({"get", "shop", "pw"}, {kMaster}, true));  // on a terminal
}

// An account key in the wrong place of the connection string: neither the parser's reason,
// nor the status line made of it, nor the command line's export shows any 8 characters of it.
TEST_F(CliTest, NoPartOfAMisplacedAccountKeyIsEverShown) {
    const std::string k =
        "Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/K1SZFPTOtr/KBHBeksoGMGw==";
    const std::string n = "AccountName=abc;", named = n + "AccountKey=" + k;
    // One text for each way the parser can refuse one.
    const std::string texts[] = {k,
                                 n + "AccountKey" + k,
                                 n + "Account Key=" + k,
                                 n + "AccountKey=" + k.substr(0, 40) + ";" + k.substr(40),
                                 n + "AccountKey=" + k.substr(2),
                                 "AccountName=" + k + ";AccountKey=" + k,
                                 named + ";AccountKey=" + k,
                                 named + ";EndpointSuffix=" + k,
                                 named + ";TableEndpoint=http://h/" + k + "?x",
                                 "DefaultEndpointsProtocol=" + k + ";" + named,
                                 "UseDevelopmentStorage=" + k,
                                 "SharedAccessSignature=" + k};
    auto showsKey = [&](const std::string& text) {
        for (size_t at = 0; at + 8 <= k.size(); ++at)
            if (text.find(k.substr(at, 8)) != std::string::npos)
                return true;
        return false;
    };
    const char* saved = std::getenv(zlCloudConnectionStringVariable);
    const std::string before = saved ? saved : "";
    for (const std::string& text : texts) {
        zlStorageAccount account;
        const zlCloudResult parsed = zlParseConnectionString(text, account);
        EXPECT_EQ(zlCloudBadConnectionString, parsed.code) << parsed.reason;
        EXPECT_FALSE(showsKey(parsed.reason + zlCloudStatusText(parsed).to_utf8().str()));
        setenv(zlCloudConnectionStringVariable, text.c_str(), 1);
        const std::string r = run({"export"}, {kMaster});
        EXPECT_EQ(0u, r.find("4: | ERROR: cloud export failed: malformed connection string: "));
        EXPECT_FALSE(showsKey(r)) << r;
    }
    setenv(zlCloudConnectionStringVariable, before.c_str(), 1);  // "" is none
}

}  // namespace
