// zelto-cli.exe export against the table service emulator: the program is run as a user
// would run it (passwords on standard input), then the record is read back by a request of
// the test's own and compared with the key file on disk.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "cloud/tableReader.h"
#include "cloud/zlCloudConfig.h"
#include "cloud/zlConnectionString.h"
#include "model/zlKeyFile.h"
#include "model/zlVerify.h"
#include "support/test_util.h"

namespace {

using namespace Zelto;

const char* kPassword = "Abcd1234";

std::string windowsPath(const std::filesystem::path& p) {
    return p.string();
}

// Runs zelto-cli.exe with the arguments, standard input from `input`; standard output and
// error land in `out`. Returns the exit code.
int runCli(const std::string& arguments, const std::string& input,
           const std::filesystem::path& out) {
    const std::string command = "\"\"" + std::string(ZELTO_CLI_EXE) + "\" " + arguments + " >\"" +
                                windowsPath(out) + "\" 2>&1\"";
    FILE* pipe = _popen(command.c_str(), "w");
    if (!pipe)
        return -1;
    std::fputs(input.c_str(), pipe);
    return _pclose(pipe);
}

TEST(CliExport, TheRecordHoldsTheFileAndTheUserFields) {
    const char* cs = std::getenv(zlCloudConnectionStringVariable);
    if (!cs || !*cs) {
        const char* ci = std::getenv("CI");
        if (ci && std::string(ci) == "true")
            FAIL() << zlCloudConnectionStringVariable << " is not set under scripts/test.sh";
        GTEST_SKIP() << "no table service running";
    }
    zlStorageAccount account;
    ASSERT_TRUE(zlParseConnectionString(cs, account).ok());
    ASSERT_EQ("127.0.0.1", account.endpoint.host);

    ztest::TempDir dir;
    const std::filesystem::path file = dir / "Zelto.xml";
    const std::filesystem::path out = dir / "out.txt";
    const std::string f = "--file \"" + windowsPath(file) + "\" ";
    const std::string lastName = "Lovelace-" + std::to_string(std::rand());
    const std::string pw = std::string(kPassword) + "\n";

    ASSERT_EQ(0, runCli(f + "init", pw + pw, out)) << ztest::readBytes(out);
    ASSERT_EQ(0, runCli(f + "add Bank --label money --user ada --email a@b.example "
                            "--url https://bank.example --note n1 --password-stdin",
                        pw + "pin-4711\n", out))
        << ztest::readBytes(out);
    ASSERT_EQ(0, runCli(f + "settings --first-name Ada --last-name " + lastName +
                            " --email ada@example.org",
                        pw, out))
        << ztest::readBytes(out);
    ASSERT_EQ(0, runCli(f + "export", pw, out)) << ztest::readBytes(out);
    const std::string printed = ztest::readBytes(out);
    EXPECT_NE(std::string::npos, printed.find("xmlData: ")) << printed;
    EXPECT_NE(std::string::npos, printed.find("Zelto Cloud Account: Export was successful"))
        << printed;

    zlKeyFile onDisk;
    onDisk.set_pass_phrase(kPassword);
    ASSERT_EQ(1, onDisk.readFile(ztest::widePath(file)));
    const auto transport = zlNewPlatformTransport();
    const ztest::ReadBack back =
        ztest::readEntity(*transport, account, lastName, "ada@example.org");
    ASSERT_TRUE(back.sent.ok()) << back.sent.reason;
    ASSERT_EQ(200, back.status);
    EXPECT_EQ("Ada", back.entity.value("FirstName", "<none>"));
    EXPECT_EQ(onDisk.settings()->verify.str(), back.entity.value("Verify", "<none>"));
    EXPECT_TRUE(ztest::readBytes(file) == back.joinedData()) << "the stored text differs";

    // A wrong master password exports nothing and says so.
    EXPECT_EQ(2, runCli(f + "export", "Wrong1234\n", out));
}

}  // namespace
