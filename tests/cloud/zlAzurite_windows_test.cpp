// The export through the real WinHTTP transport to the table service emulator that
// scripts/test.sh starts on 127.0.0.1 (scripts/azurite.sh); the record is read back by a
// request of its own, as a client other than the export would.
#include <gtest/gtest.h>

#include <winsock2.h>

#include <chrono>
#include <thread>

#include "cloud/zlCloudConfig.h"
#include "cloud/zlCloudExport.h"
#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlTableRequests.h"
#include "tableReader.h"

using namespace Zelto;
using dunmar::dm_string;
using ztest::utf8;

namespace {

// A socket on 127.0.0.1 at a port of the system's choice. Closed, nothing listens there;
// listening, it takes connections into its backlog and never answers, or answers the first
// request with the reply.
struct Socket {
    explicit Socket(bool listening, const std::string& reply = "") {
        WSADATA data;
        WSAStartup(MAKEWORD(2, 2), &data);
        handle = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        int length = sizeof address;
        if (bind(handle, reinterpret_cast<sockaddr*>(&address), length) == 0 &&
            (!listening || listen(handle, 4) == 0) &&
            getsockname(handle, reinterpret_cast<sockaddr*>(&address), &length) == 0)
            port = ntohs(address.sin_port);
        if (!listening)
            closesocket(handle);
        if (!reply.empty())
            server = std::thread([this, reply] {
                const SOCKET peer = accept(handle, nullptr, nullptr);
                char request[8192];
                recv(peer, request, sizeof request, 0);
                send(peer, reply.data(), static_cast<int>(reply.size()), 0);
                closesocket(peer);
            });
    }
    ~Socket() {
        closesocket(handle);
        if (server.joinable())
            server.join();
        WSACleanup();
    }
    std::string endpoint() const {
        return "http://127.0.0.1:" + std::to_string(port) + "/devstoreaccount1";
    }
    SOCKET handle;
    unsigned port = 0;
    std::thread server;
};

// Exports in turn to one user's record: what each gives, the boxes it shows, and the record
// afterwards, which only a successful export changes, old parts and all. Nothing arrives
// while the data box is open. A redirect is not followed: it leads where nothing listens.
TEST(Azurite, ExportsInTurn) {
    const std::string cs = ztest::tableServiceConnectionString();
    if (cs.empty()) {
        ASSERT_FALSE(ztest::underCi()) << zlCloudConnectionStringVariable << " is not set";
        GTEST_SKIP() << "no table service: source scripts/azurite.sh, zelto_start_azurite";
    }
    zlStorageAccount account;
    ASSERT_TRUE(zlParseConnectionString(cs, account).ok());
    ASSERT_EQ("127.0.0.1", account.endpoint.host) << "tests stay on this machine";
    // Keys of this run only, so that an emulator that lives longer does no harm.
    const std::string lastName = "O'Brien-M\xC3\xBCller " + ztest::uniqueText();
    const std::string email = "j\xC3\xBCrgen.o'brien+" + ztest::uniqueText() + "@example.org";

    Socket closed(false), silent(true);
    Socket redirect(
        true, "HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:" + std::to_string(closed.port) +
                  "/devstoreaccount1/Tables\r\nContent-Length: 0\r\n\r\n");
    ASSERT_NE(0u, closed.port * silent.port * redirect.port);
    std::string wrongKey = cs;
    wrongKey.replace(wrongKey.find("AccountKey=") + 11, 8, "d3Jvbmcg");
    const struct {
        const char* first;
        int keys;  // -1: too large for one record
        std::string cs;
        int code;
        const char* reason;
        bool split;
    } cases[] = {
        {"Ada", 500, cs, zlCloudOk, "", true},
        {"J\xC3\xBCrgen", 2, cs, zlCloudOk, "", false},
        {"Eve", 1, wrongKey, zlCloudServiceRefused,
         "creating the table: the table service answered 403 AuthorizationFailure (the account "
         "key was refused)"},
        {"Eve", 1, ztest::devConnectionString(closed.endpoint()), zlCloudNetworkFailed,
         "no connection to the table service (refused or unreachable)"},
        {"Eve", 1, ztest::devConnectionString(silent.endpoint()), zlCloudNetworkFailed,
         "no answer from the table service in time"},
        {"Eve", 1, ztest::devConnectionString(redirect.endpoint()), zlCloudServiceRefused,
         "creating the table: the table service answered 302"},
        {"Eve", -1, cs, zlCloudEntityTooLarge, "the key file is too large for the cloud table"}};
    zlHttpTimeouts waits;
    waits.connect = waits.send = waits.receive = 5000;
    const auto transport = zlNewPlatformTransport(waits);
    // The record as another client reads it: its keys, first name, Verify and text, or the
    // status when it is not there.
    nlohmann::json stored;
    auto read = [&] {
        const ztest::ReadBack back = ztest::readEntity(*transport, account, lastName, email);
        stored = back.entity;
        if (back.status != 200)
            return std::to_string(back.status);
        return stored.value("PartitionKey", "") + "|" + stored.value("RowKey", "") + "|" +
               stored.value("FirstName", "") + "|" + stored.value("Verify", "") + "|" +
               back.joinedData();
    };
    std::string record = "404";
    for (const auto& c : cases) {
        zlKeyFile file;
        ztest::fillKeyFile(file, c.first, lastName, email, std::max(c.keys, 0));
        if (c.keys < 0)
            ztest::addHugeNotes(file);
        std::string boxes, duringBox, text;
        zlCloudExportUi ui;
        ui.showData = [&](const dm_string& shown, const dm_string& title) {
            boxes += utf8(title) + "; ";
            duringBox = read();
            text = utf8(shown);
        };
        ui.showSuccess = [&](const dm_string& message, const dm_string& title) {
            boxes += utf8(message) + " / " + utf8(title);
        };
        const auto start = std::chrono::steady_clock::now();
        const zlCloudResult result = zlExportToCloud(file, c.cs, *transport, ui);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
        EXPECT_EQ(c.code, result.code) << c.first << ": " << result.reason;
        EXPECT_EQ(0u, result.reason.find(c.reason)) << result.reason;
        EXPECT_EQ(c.keys < 0            ? ""
                  : c.code != zlCloudOk ? "xmlData; "
                                        : "xmlData; Export was successful / Zelto Cloud Account",
                  boxes);
        EXPECT_TRUE(boxes.empty() || duringBox == record) << "changed before the box";
        if (c.code == zlCloudOk)
            record = lastName + "|" + email + "|" + c.first + "|" + file.settings()->verify.str() +
                     "|" + text;
        EXPECT_TRUE(read() == record) << "the record is not the last exported one";
        if (c.code == zlCloudOk)  // several parts for a large file, none left after a small one
            EXPECT_EQ(c.split, stored.value("DataParts", 0) >= 3 || stored.contains("Data2"));
    }
}

}  // namespace
