#include "cli/zlcRun.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iterator>

#include "app/zlTexts.h"
#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"
#include "cloud/zlConnectionString.h"
#include "support/test_util.h"

using namespace Zelto;

namespace {

const char* kMaster = "Master2024";

struct Result {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs commands in-process on a key file in a fresh folder. Secrets come from a list;
// a hook runs before each one is handed out, standing in for another program.
class CliTest : public ::testing::Test {
  protected:
    void TearDown() override { zlSetLanguage(zlLanguageAuto); }

    Result run(std::vector<std::string> argv, std::vector<std::string> secrets,
               bool terminal = false) {
        argv.insert(argv.begin(), {"--file", path()});
        size_t next = 0;
        zlcIo io;
        io.outIsTerminal = terminal;
        io.readSecret = [&](const char*, std::string& line) {
            if (beforeSecret)
                beforeSecret(next);
            if (next >= secrets.size())
                return false;
            line = secrets[next++];
            return true;
        };
        Result r;
        r.status = zlcRun(argv, io);
        r.out = io.out;
        r.err = io.err;
        secretsRead = next;
        return r;
    }

    std::string path() const { return ztest::widePath(dir / "Zelto.xml").to_utf8().str(); }
    std::string bytes() const { return ztest::readBytes(dir / "Zelto.xml"); }

    void makeFile() {
        ASSERT_EQ(0, run({"init"}, {kMaster, kMaster}).status);
        ASSERT_EQ(0,
                  run({"add", "bank", "--label", "home", "--password-stdin"}, {kMaster, "pin 1234"})
                      .status);
    }

    size_t filesInFolder() const {
        using std::filesystem::directory_iterator;
        return std::distance(directory_iterator(dir.path()), directory_iterator());
    }

    ztest::TempDir dir;
    std::function<void(size_t)> beforeSecret;
    size_t secretsRead = 0;
};

TEST_F(CliTest, AFileChangedMeanwhileIsNotOverwritten) {
    makeFile();
    const std::string other = bytes() + "\r\n<!-- another program -->";
    // The hook changes the file after the master password, while the key's password or
    // the new master password is asked for.
    beforeSecret = [&](size_t index) {
        if (index == 1)
            ztest::writeBytes(dir / "Zelto.xml", other);
    };
    const std::vector<std::pair<std::vector<std::string>, std::vector<std::string>>> writes = {
        {{"add", "shop", "--password-stdin"}, {kMaster, "x"}},
        {{"edit", "bank", "--password-stdin"}, {kMaster, "new pin"}},
        {{"passwd"}, {kMaster, "Another2024", "Another2024"}},
    };
    for (const auto& w : writes) {
        ztest::writeBytes(dir / "Zelto.xml", other.substr(0, other.size() - 25));
        const Result r = run(w.first, w.second);
        EXPECT_EQ(4, r.status) << w.first[0];
        EXPECT_NE(std::string::npos, r.err.find("was changed by another program since it was "
                                                "read; nothing was written"))
            << r.err;
        EXPECT_EQ(other, bytes()) << w.first[0];
    }
    EXPECT_EQ(1u, filesInFolder()) << "no backup may be made";

    // A file deleted meanwhile is no change: it is written anew.
    beforeSecret = [&](size_t index) {
        if (index == 1)
            std::filesystem::remove(dir / "Zelto.xml");
    };
    ASSERT_EQ(0, run({"add", "shop", "--password-stdin"}, {kMaster, "x"}).status);
    beforeSecret = nullptr;
    EXPECT_EQ("x", run({"get", "shop", "pw"}, {kMaster}).out);
}

TEST_F(CliTest, TheMasterPasswordMustOpenTheFile) {
    // No file: nothing is asked.
    Result r = run({"ls"}, {kMaster});
    EXPECT_EQ(4, r.status);
    EXPECT_EQ(0u, secretsRead);
    EXPECT_EQ(
        "ERROR: failed to read \"" + path() + "\" (no such file; 'zelto-cli init' creates one)\n",
        r.err);
    makeFile();
    for (const char* wrong : {"Master2025", "short", ""}) {
        r = run({"get", "bank", "pw"}, {wrong});
        EXPECT_EQ(2, r.status) << wrong;
        EXPECT_EQ("ERROR: wrong master password\n", r.err);
        EXPECT_EQ("", r.out);
    }
    r = run({"ls"}, {});
    EXPECT_EQ(1, r.status);
    EXPECT_EQ("ERROR: no master password was given\n", r.err);
    r = run({"get", "bank", "pw"}, {kMaster});
    EXPECT_EQ(0, r.status);
    EXPECT_EQ("pin 1234", r.out);
    EXPECT_EQ("pin 1234\n", run({"get", "bank", "pw"}, {kMaster}, true).out);
}

TEST_F(CliTest, FilesWithoutTheirSectionsAreRefused) {
    ztest::writeBytes(dir / "Zelto.xml", "<?xml version=\"1.0\"?>\r\n<Zelto>\r\n</Zelto>");
    Result r = run({"ls"}, {kMaster});
    EXPECT_EQ(4, r.status);
    EXPECT_NE(std::string::npos, r.err.find("(<settings> section not found)")) << r.err;

    std::filesystem::remove(dir / "Zelto.xml");
    ASSERT_EQ(0, run({"init"}, {kMaster, kMaster}).status);
    std::string text = bytes();
    text.replace(text.find("  <keys>\r\n  </keys>\r\n"), 21, "");
    ztest::writeBytes(dir / "Zelto.xml", text);
    r = run({"ls"}, {kMaster});
    EXPECT_EQ(4, r.status);
    EXPECT_NE(std::string::npos, r.err.find("(KeyList not found)")) << r.err;
    EXPECT_EQ(text, bytes());
}

// The rules themselves are in zlPasswordRules_test; here that init applies them.
TEST_F(CliTest, InitAppliesThePasswordRules) {
    const std::vector<std::pair<std::vector<std::string>, std::string>> refused = {
        {{"abc1234", "abc1234"}, "Password size to small"},
        {{"abcdefg\xff", "abcdefg\xff"}, "Invalid character in password (allowed: A-Z, a-z, 0-9)"},
        {{"Abcd1234", "abcd1234"}, "Password and verification text are not equal"},
        {{"abcd1234", ""}, "Password and verification text are not equal"},
        {{"abcd1234"}, "the new master password was not repeated"},
    };
    for (const auto& c : refused) {
        const Result r = run({"init"}, c.first);
        EXPECT_EQ(1, r.status) << c.second;
        EXPECT_EQ("ERROR: " + c.second + "\n", r.err);
        EXPECT_FALSE(std::filesystem::exists(dir / "Zelto.xml"));
    }
    Result r = run({"init"}, {"abcd1234", "abcd1234"});
    ASSERT_EQ(0, r.status) << r.err;
    EXPECT_EQ("created \"" + path() + "\"\n", r.out);
    const std::string made = bytes();
    r = run({"init"}, {"efgh5678", "efgh5678"});
    EXPECT_EQ(4, r.status);
    EXPECT_EQ(0u, secretsRead);
    EXPECT_EQ(made, bytes());
    EXPECT_EQ(0, run({"ls"}, {"abcd1234"}).status);
}

// Wrong options are refused before the master password is asked for.
TEST_F(CliTest, RefusedOptionsAskForNothing) {
    makeFile();
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"edit", "bank", "--name", ""}, ""},
        {{"add", "x", "--generate", "--password-stdin"},
         "ERROR: --generate and --password-stdin exclude each other\n"},
        {{"get", "bank", "password"}, ""},
        {{"settings", "--language", "Francais"}, ""},
    };
    for (const auto& c : cases) {
        const Result r = run(c.first, {kMaster});
        EXPECT_EQ(1, r.status) << c.first[0];
        EXPECT_EQ(0u, secretsRead) << c.first[0];
        EXPECT_EQ(0u, r.err.find(c.second.empty() ? "ERROR: " : c.second)) << r.err;
    }
}

void setConnectionString(const std::string& value) {
#ifdef _WIN32
    _putenv_s(zlCloudConnectionStringVariable, value.c_str());
#else
    if (value.empty())
        unsetenv(zlCloudConnectionStringVariable);
    else
        setenv(zlCloudConnectionStringVariable, value.c_str(), 1);
#endif
}

// An account key in the wrong place of a connection string: neither the parser's reason,
// nor the status line made of it, nor the command line's export shows any 8 characters of it.
TEST_F(CliTest, NoPartOfAMisplacedAccountKeyIsEverShown) {
    makeFile();
    const std::string k =
        "Eby8vdM02xNOcqFlqUwJPLlmEtlCDXJ1OUzFT50uSRZ6IFsuFq2UVErCz4I6tq/K1SZFPTOtr/KBHBeksoGMGw==";
    const std::string named = "AccountName=abc;AccountKey=" + k;
    const std::string texts[] = {
        k,
        "AccountName=abc;" + k,
        k + ";AccountName=abc",
        "AccountName=abc;AccountKey" + k,
        "AccountName=abc;AccountKey:" + k,
        "AccountName=abc;Account Key=" + k,
        "AccountName=abc;AccountKey=" + k.substr(0, 40) + ";" + k.substr(40),
        "AccountName=abc;AccountKey=" + k.substr(0, 44) + "\n" + k.substr(44),
        "AccountName=abc;AccountKey=" + k + "x",
        "AccountName=abc;AccountKey=" + k.substr(2),
        "AccountName=abc;AccountKey='" + k + "'",
        "AccountName=abc;AccountKey=\"" + k + "\"",
        "AccountName=" + k + ";AccountKey=" + k,
        "AccountName=" + k.substr(0, 62),
        named + ";AccountKey=" + k,
        named + ";EndpointSuffix=" + k,
        named + ";EndpointSuffix=core.windows.net/" + k,
        named + ";TableEndpoint=" + k,
        named + ";TableEndpoint=ftp://" + k,
        named + ";TableEndpoint=http://h/" + k + "?x",
        named + ";BlobEndpoint" + k,
        "DefaultEndpointsProtocol=" + k + ";" + named,
        "UseDevelopmentStorage=" + k,
        "SharedAccessSignature=" + k,
    };
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
        EXPECT_FALSE(showsKey(parsed.reason)) << parsed.reason;
        EXPECT_FALSE(showsKey(zlCloudStatusText(parsed).to_utf8().str()));
        setConnectionString(text);
        const Result r = run({"export"}, {kMaster});
        EXPECT_EQ(4, r.status) << r.err;
        EXPECT_FALSE(showsKey(r.out + r.err)) << r.err;
    }
    setConnectionString(before);
}

}  // namespace
