#include "cloud/zlCloudExport.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "app/zlTexts.h"
#include "cloudTestSupport.h"
#include "core/dm_convert.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;

namespace {

using ztest::utf8;

// Records the boxes in the order shown, with how many requests had gone out by then.
class ExportTest : public ::testing::Test {
  protected:
    struct Box {
        std::string text;
        std::string title;
        size_t requestsBefore;
    };

    zlCloudResult run() {
        zlCloudExportUi ui;
        ui.showData = [this](const dm_string& text, const dm_string& title) {
            boxes.push_back({utf8(text), utf8(title), transport.requests.size()});
        };
        ui.showSuccess = [this](const dm_string& text, const dm_string& title) {
            boxes.push_back({utf8(text), utf8(title), transport.requests.size()});
        };
        return zlExportToCloud(file, connectionString, transport, ui);
    }

    zlKeyFile file;
    ztest::FakeTransport transport;
    std::vector<Box> boxes;
    std::string connectionString =
        ztest::devConnectionString("http://127.0.0.1:4711/devstoreaccount1");
};

TEST_F(ExportTest, DataBoxFirstThenTableThenWriteThenSuccess) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 3);
    const zlCloudResult result = run();
    ASSERT_TRUE(result.ok()) << result.reason;

    const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
    ASSERT_EQ(2u, boxes.size());
    EXPECT_EQ("xmlData", boxes[0].title);
    EXPECT_EQ(text, boxes[0].text);
    EXPECT_EQ(0u, boxes[0].requestsBefore) << "the service saw something before the box";
    EXPECT_EQ("Export was successful", boxes[1].text);
    EXPECT_EQ("Zelto Cloud Account", boxes[1].title);
    EXPECT_EQ(2u, boxes[1].requestsBefore);

    // The box and the record hold the enciphered file, never a plain secret.
    EXPECT_EQ(0u, text.rfind("<?xml", 0));
    EXPECT_EQ(std::string::npos, text.find("pw-1-secret"));
    EXPECT_EQ(std::string::npos, text.find("Lovelace"));

    ASSERT_EQ(2u, transport.requests.size());
    EXPECT_EQ("POST", transport.requests[0].verb);
    EXPECT_EQ("PUT", transport.requests[1].verb);
    const nlohmann::json body = nlohmann::json::parse(transport.requests[1].body, nullptr, false);
    EXPECT_EQ("Lovelace", body["PartitionKey"]);
    EXPECT_EQ("ada@example.org", body["RowKey"]);
    EXPECT_EQ("Ada", body["FirstName"]);
    EXPECT_EQ(file.settings()->verify.str(), body["Verify"]);
    EXPECT_EQ(text, body["Data"]);
    EXPECT_TRUE(zlCloudStatusText(result).empty());
}

TEST_F(ExportTest, NoSettingsMeansNothingHappens) {
    file.set_pass_phrase(ztest::kLongPass);
    file.root().appendChild(new zlFileItemKeys(&file));
    const zlCloudResult result = run();
    EXPECT_EQ(zlCloudNothingToExport, result.code);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_TRUE(zlCloudStatusText(result).empty());
    EXPECT_EQ(nullptr, file.settings()) << "the export must not add settings";
}

TEST_F(ExportTest, EmptyUserFieldsAreSentAsEmptyStrings) {
    ztest::fillKeyFile(file, "", "", "", 0);
    ASSERT_TRUE(run().ok());
    ASSERT_EQ(2u, transport.requests.size());
    EXPECT_EQ("/devstoreaccount1/user(PartitionKey='',RowKey='')",
              transport.requests[1].pathAndQuery);
    const nlohmann::json body = nlohmann::json::parse(transport.requests[1].body, nullptr, false);
    EXPECT_EQ("", body["PartitionKey"]);
    EXPECT_EQ("", body["FirstName"]);
}

TEST_F(ExportTest, RefusalsBeforeTheBoxSendNothingAndShowNothing) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada/home@example.org", 1);
    zlCloudResult result = run();
    EXPECT_EQ(zlCloudBadKey, result.code);
    EXPECT_EQ(0u,
              utf8(zlCloudStatusText(result)).rfind("ERROR: Cloud export failed: the e-mail", 0))
        << utf8(zlCloudStatusText(result));

    connectionString = "AccountName=zeltokeys";
    result = run();
    EXPECT_EQ(zlCloudBadConnectionString, result.code);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(ExportTest, AFileTooLargeForOneRecordIsRefusedBeforeAnyTraffic) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 0);
    const std::string note(40000, 'n');
    for (int i = 0; i < 10; ++i) {
        auto* key = new zlFileItemKey(&file);
        key->setName(ztest::enc(file, ("big " + std::to_string(i)).c_str()));
        key->setNote(ztest::enc(file, note.c_str()));
        file.keys()->appendChild(key);
    }
    const zlCloudResult result = run();
    EXPECT_EQ(zlCloudEntityTooLarge, result.code);
    EXPECT_NE(std::string::npos, result.reason.find("too large")) << result.reason;
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(ExportTest, AFailedWriteShowsNoSuccessAndTellsWhy) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    transport.answer(204);
    transport.answer(403, "{\"odata.error\":{\"code\":\"AuthorizationFailure\"}}");
    const zlCloudResult result = run();
    EXPECT_EQ(zlCloudServiceRefused, result.code);
    ASSERT_EQ(1u, boxes.size());
    EXPECT_EQ("xmlData", boxes[0].title);
    EXPECT_EQ(
        "ERROR: Cloud export failed: writing the record: the table service answered 403 "
        "AuthorizationFailure (the account key was refused)",
        utf8(zlCloudStatusText(result)));
}

TEST_F(ExportTest, ANetworkFailureStopsBeforeTheWrite) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    transport.failWith(zlCloudNetworkFailed, "no connection to 127.0.0.1:4711");
    const zlCloudResult result = run();
    EXPECT_EQ(zlCloudNetworkFailed, result.code);
    EXPECT_EQ(1u, transport.requests.size());
    EXPECT_EQ(1u, boxes.size());
}

#ifndef _WIN32
TEST_F(ExportTest, TheHostTransportSaysItIsNotAvailable) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    std::unique_ptr<zlHttpTransport> platform = zlNewPlatformTransport();
    const zlCloudResult result = zlExportToCloud(file, connectionString, *platform, {});
    EXPECT_EQ(zlCloudTransportUnavailable, result.code);
    EXPECT_NE(std::string::npos, result.reason.find("not available on this platform"));
}
#endif

}  // namespace
