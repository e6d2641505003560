// The export through the real WinHTTP transport to the table service emulator that
// scripts/test.sh starts on 127.0.0.1 (scripts/azurite.sh), read back by a request of its own.
#include <gtest/gtest.h>

#include <winsock2.h>

#include <chrono>
#include <cstdlib>
#include <thread>

#include "app/zlTexts.h"
#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"
#include "cloudTestSupport.h"
#include "core/dm_convert.h"
#include "core/dm_guid.h"
#include "tableReader.h"

using namespace Zelto;

namespace {

using ztest::uniqueText;
using ztest::utf8;

// A port on 127.0.0.1 with nothing listening: bound once by the system's choice, then freed.
unsigned closedPort() {
    WSADATA data;
    if (WSAStartup(MAKEWORD(2, 2), &data) != 0)
        return 0;
    unsigned port = 0;
    SOCKET s = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int length = sizeof address;
    if (s != INVALID_SOCKET && bind(s, reinterpret_cast<sockaddr*>(&address), length) == 0 &&
        getsockname(s, reinterpret_cast<sockaddr*>(&address), &length) == 0)
        port = ntohs(address.sin_port);
    if (s != INVALID_SOCKET)
        closesocket(s);
    WSACleanup();
    return port;
}

// A socket on 127.0.0.1 that takes connections into its backlog and never answers.
class SilentServer {
  public:
    SilentServer() {
        WSADATA data;
        started_ = WSAStartup(MAKEWORD(2, 2), &data) == 0;
        socket_ = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        int length = sizeof address;
        if (socket_ != INVALID_SOCKET &&
            bind(socket_, reinterpret_cast<sockaddr*>(&address), length) == 0 &&
            listen(socket_, 4) == 0 &&
            getsockname(socket_, reinterpret_cast<sockaddr*>(&address), &length) == 0)
            port_ = ntohs(address.sin_port);
    }
    ~SilentServer() {
        if (socket_ != INVALID_SOCKET)
            closesocket(socket_);
        if (started_)
            WSACleanup();
    }
    unsigned port() const { return port_; }
    SOCKET listener() const { return socket_; }

  private:
    bool started_ = false;
    SOCKET socket_ = INVALID_SOCKET;
    unsigned port_ = 0;
};

// Needs no table service: a server of its own answers with a redirect to a port where
// nothing listens. Followed, the request would fail to connect there.
TEST(WinHttpTransport, ARedirectIsNotFollowed) {
    SilentServer server;
    const unsigned elsewhere = closedPort();
    ASSERT_NE(0u, server.port());
    ASSERT_NE(0u, elsewhere);
    std::thread redirect([&] {
        const SOCKET peer = accept(server.listener(), nullptr, nullptr);
        if (peer == INVALID_SOCKET)
            return;
        std::string got;
        char buffer[4096];
        int n = 0;
        while (got.find("\r\n\r\n") == std::string::npos &&
               (n = recv(peer, buffer, sizeof buffer, 0)) > 0)
            got.append(buffer, static_cast<size_t>(n));
        const std::string reply =
            "HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:" + std::to_string(elsewhere) +
            "/devstoreaccount1/user\r\nContent-Length: 0\r\n\r\n";
        send(peer, reply.data(), static_cast<int>(reply.size()), 0);
        closesocket(peer);
    });
    zlHttpRequest request;
    request.verb = "GET";
    request.server.https = false;
    request.server.host = "127.0.0.1";
    request.server.port = server.port();
    request.pathAndQuery = "/devstoreaccount1/user";
    request.headers = {{"Authorization", "SharedKey devstoreaccount1:c2lnbmF0dXJl"},
                       {"x-ms-version", "2019-02-02"}};
    zlHttpResponse response;
    const zlCloudResult result = zlNewPlatformTransport()->send(request, response);
    redirect.join();
    EXPECT_TRUE(result.ok()) << result.reason;
    EXPECT_EQ(302, response.status);
}

class AzuriteTest : public ::testing::Test {
  protected:
    void SetUp() override {
        connectionString = ztest::tableServiceConnectionString();
        if (connectionString.empty()) {
            if (ztest::underCi())
                FAIL() << zlCloudConnectionStringVariable
                       << " is not set: scripts/test.sh starts the table service and sets it";
            GTEST_SKIP() << "no table service: run under scripts/test.sh, or source "
                            "scripts/azurite.sh and call zelto_start_azurite first";
        }
        ASSERT_TRUE(zlParseConnectionString(connectionString, account).ok());
        ASSERT_EQ("127.0.0.1", account.endpoint.host) << "tests stay on this machine";
        transport = zlNewPlatformTransport();
        // Keys of this run only, so that an emulator that lives longer does no harm.
        lastName = "Lovelace-" + uniqueText();
        email = "ada+" + uniqueText() + "@example.org";
    }

    void makeFile(zlKeyFile& file, const char* first, int keys) {
        ztest::fillKeyFile(file, first, lastName.c_str(), email.c_str(), keys);
    }

    // Exports with the boxes recorded; while the data box is open the record is read back.
    zlCloudResult exportFile(zlKeyFile& file, const std::string& cs) {
        dataBoxes.clear();
        successBoxes.clear();
        zlCloudExportUi ui;
        ui.showData = [&](const dunmar::dm_string& text, const dunmar::dm_string& title) {
            dataBoxes.push_back(utf8(title));
            shownText = utf8(text);
            whileBoxOpen = read();
        };
        ui.showSuccess = [&](const dunmar::dm_string& text, const dunmar::dm_string& title) {
            successBoxes.push_back(utf8(text) + " / " + utf8(title));
        };
        return zlExportToCloud(file, cs, *transport, ui);
    }

    ztest::ReadBack read() { return ztest::readEntity(*transport, account, lastName, email); }

    // The record holds exactly what the file and its settings say.
    void expectStored(zlKeyFile& file, const char* first) {
        const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
        const ztest::ReadBack back = read();
        ASSERT_TRUE(back.sent.ok()) << back.sent.reason;
        ASSERT_EQ(200, back.status);
        EXPECT_EQ(lastName, back.entity.value("PartitionKey", ""));
        EXPECT_EQ(email, back.entity.value("RowKey", ""));
        EXPECT_EQ(first, back.entity.value("FirstName", "<none>"));
        EXPECT_EQ(file.settings()->verify.str(), back.entity.value("Verify", "<none>"));
        const std::string stored = back.joinedData();
        EXPECT_EQ(text.size(), stored.size());
        EXPECT_TRUE(text == stored) << "the key file text differs";
        EXPECT_EQ(text, shownText);
    }

    std::string connectionString;
    zlStorageAccount account;
    std::unique_ptr<zlHttpTransport> transport;
    std::string lastName;
    std::string email;
    std::vector<std::string> dataBoxes;
    std::vector<std::string> successBoxes;
    ztest::ReadBack whileBoxOpen;
    std::string shownText;
};

TEST_F(AzuriteTest, SmallFileArrivesWholeAndTheServiceSawNothingWhileTheBoxWasOpen) {
    zlKeyFile file;
    makeFile(file, "Ada", 3);
    const zlCloudResult result = exportFile(file, connectionString);
    ASSERT_TRUE(result.ok()) << result.reason;
    EXPECT_EQ(std::vector<std::string>{"xmlData"}, dataBoxes);
    EXPECT_EQ(std::vector<std::string>{"Export was successful / Zelto Cloud Account"},
              successBoxes);
    EXPECT_EQ(404, whileBoxOpen.status);
    expectStored(file, "Ada");
    EXPECT_FALSE(read().entity.contains("DataParts"));
}

TEST_F(AzuriteTest, FiveHundredKeysArriveInSeveralPartsAndASecondExportReplacesTheFirst) {
    zlKeyFile big;
    makeFile(big, "Ada", 500);
    zlCloudResult result = exportFile(big, connectionString);
    ASSERT_TRUE(result.ok()) << result.reason;
    expectStored(big, "Ada");
    const ztest::ReadBack first = read();
    ASSERT_TRUE(first.entity.contains("DataParts"));
    EXPECT_GE(first.entity["DataParts"].get<int>(), 3);
    RecordProperty("dataParts", first.entity["DataParts"].get<int>());
    RecordProperty("textBytes", static_cast<int>(first.joinedData().size()));

    // The same user again with a small file: the whole record is replaced, old parts too.
    zlKeyFile small;
    makeFile(small, "Augusta Ada", 2);
    result = exportFile(small, connectionString);
    ASSERT_TRUE(result.ok()) << result.reason;
    EXPECT_EQ(200, whileBoxOpen.status);
    EXPECT_EQ("Ada", whileBoxOpen.entity.value("FirstName", "")) << "changed before the box";
    expectStored(small, "Augusta Ada");
    const ztest::ReadBack second = read();
    EXPECT_FALSE(second.entity.contains("Data2"));
    EXPECT_FALSE(second.entity.contains("DataParts"));
}

TEST_F(AzuriteTest, KeysWithApostrophesAndNonAsciiTravelIntact) {
    lastName = "O'Brien-M\xC3\xBCller " + uniqueText();
    email = "j\xC3\xBCrgen.o'brien+" + uniqueText() + "@example.org";
    zlKeyFile file;
    makeFile(file, "J\xC3\xBCrgen", 1);
    const zlCloudResult result = exportFile(file, connectionString);
    ASSERT_TRUE(result.ok()) << result.reason;
    expectStored(file, "J\xC3\xBCrgen");
}

TEST_F(AzuriteTest, AWrongAccountKeyIsRefusedWith403AndNoSuccessBox) {
    zlStorageAccount wrong = account;
    wrong.accountKey = "d3JvbmcgYWNjb3VudCBrZXkgZm9yIHRoZSB0ZXN0cyBvZiB0aGUgY2xvdWQgZXhwb3J0IQ==";
    const std::string cs = "DefaultEndpointsProtocol=http;AccountName=" + account.accountName +
                           ";AccountKey=" + wrong.accountKey +
                           ";TableEndpoint=" + account.tableEndpoint;
    zlKeyFile file;
    makeFile(file, "Ada", 1);
    const zlCloudResult result = exportFile(file, cs);
    EXPECT_EQ(zlCloudServiceRefused, result.code);
    RecordProperty("reason", result.reason);
    EXPECT_NE(std::string::npos, result.reason.find("403")) << result.reason;
    EXPECT_NE(std::string::npos, result.reason.find("account key was refused")) << result.reason;
    EXPECT_EQ(1u, dataBoxes.size());
    EXPECT_TRUE(successBoxes.empty());
    EXPECT_EQ(404, read().status);
}

TEST_F(AzuriteTest, NoServiceListeningIsToldAndBounded) {
    const unsigned port = closedPort();
    ASSERT_NE(0u, port);
    const std::string cs = ztest::devConnectionString("http://127.0.0.1:" + std::to_string(port) +
                                                      "/devstoreaccount1");
    zlKeyFile file;
    makeFile(file, "Ada", 1);
    const zlCloudResult result = exportFile(file, cs);
    EXPECT_EQ(zlCloudNetworkFailed, result.code);
    RecordProperty("reason", result.reason);
    EXPECT_EQ("no connection to the table service (refused or unreachable)", result.reason);
    EXPECT_TRUE(successBoxes.empty());
}

TEST_F(AzuriteTest, AServiceThatNeverAnswersIsGivenUpAfterTheTimeOut) {
    SilentServer server;
    ASSERT_NE(0u, server.port());
    zlHttpTimeouts shortWaits;
    shortWaits.connect = shortWaits.send = shortWaits.receive = 1500;
    transport = zlNewPlatformTransport(shortWaits);
    const std::string cs = ztest::devConnectionString(
        "http://127.0.0.1:" + std::to_string(server.port()) + "/devstoreaccount1");
    zlKeyFile file;
    makeFile(file, "Ada", 1);
    const auto start = std::chrono::steady_clock::now();
    const zlCloudResult result = exportFile(file, cs);
    const auto seconds =
        std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start)
            .count();
    EXPECT_EQ(zlCloudNetworkFailed, result.code);
    RecordProperty("reason", result.reason);
    EXPECT_EQ("no answer from the table service in time", result.reason);
    EXPECT_LT(seconds, 20);
    EXPECT_TRUE(successBoxes.empty());
}

TEST_F(AzuriteTest, EmailsWithSlashOrPercentAreRefusedBeforeAnything) {
    for (const char* bad : {"ada/home@example.org", "100%@example.org"}) {
        email = bad;
        zlKeyFile file;
        makeFile(file, "Ada", 1);
        const zlCloudResult result = exportFile(file, connectionString);
        EXPECT_EQ(zlCloudBadKey, result.code) << bad;
        EXPECT_NE(std::string::npos, result.reason.find("the e-mail must not contain"));
        EXPECT_TRUE(dataBoxes.empty());
        EXPECT_TRUE(successBoxes.empty());
    }
}

TEST_F(AzuriteTest, AFileTooLargeForOneRecordIsRefusedAndNothingArrives) {
    zlKeyFile file;
    makeFile(file, "Ada", 0);
    const std::string note(40000, 'n');
    for (int i = 0; i < 10; ++i) {
        auto* key = new zlFileItemKey(&file);
        key->setName(ztest::enc(file, ("big " + std::to_string(i)).c_str()));
        key->setNote(ztest::enc(file, note.c_str()));
        file.keys()->appendChild(key);
    }
    const zlCloudResult result = exportFile(file, connectionString);
    EXPECT_EQ(zlCloudEntityTooLarge, result.code);
    RecordProperty("reason", result.reason);
    EXPECT_NE(std::string::npos, result.reason.find("too large for the cloud table"));
    EXPECT_TRUE(dataBoxes.empty());
    EXPECT_EQ(404, read().status);
}

}  // namespace
