#include "cloud/zlCloudExport.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "app/zlTexts.h"
#include "cloudTestSupport.h"
#include "core/dm_convert.h"

using namespace Zelto;
using dunmar::dm_string;

namespace {

using ztest::utf8;

// Records the boxes in the order shown, with how many requests had gone out by then.
class ExportTest : public ::testing::Test {
  protected:
    zlCloudResult run() {
        zlCloudExportUi ui;
        ui.showData = ui.showSuccess = [this](const dm_string& text, const dm_string& title) {
            boxes.push_back(utf8(title) + ": " + utf8(text) + " after " +
                            std::to_string(transport.requests.size()));
        };
        return zlExportToCloud(file, connectionString, transport, ui);
    }

    zlKeyFile file;
    ztest::FakeTransport transport;
    std::vector<std::string> boxes;
    std::string connectionString =
        ztest::devConnectionString("http://127.0.0.1:4711/devstoreaccount1");
};

TEST_F(ExportTest, DataBoxFirstThenTableThenWriteThenSuccess) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 3);
    const zlCloudResult result = run();
    ASSERT_TRUE(result.ok()) << result.reason;
    EXPECT_TRUE(zlCloudStatusText(result).empty());

    // The box and the record hold the enciphered file, never a plain secret.
    const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
    EXPECT_EQ(0u, text.rfind("<?xml", 0));
    EXPECT_EQ(std::string::npos, text.find("pw-1-secret"));
    EXPECT_EQ(std::string::npos, text.find("Lovelace"));
    EXPECT_EQ((std::vector<std::string>{"xmlData: " + text + " after 0",
                                        "Zelto Cloud Account: Export was successful after 2"}),
              boxes);
    ASSERT_EQ(2u, transport.requests.size());
    EXPECT_EQ("POST", transport.requests[0].verb);
    EXPECT_EQ("PUT", transport.requests[1].verb);
    const nlohmann::json body = nlohmann::json::parse(transport.requests[1].body, nullptr, false);
    EXPECT_EQ("Lovelace|ada@example.org|Ada|" + file.settings()->verify.str() + "|" + text,
              body["PartitionKey"].get<std::string>() + "|" + body["RowKey"].get<std::string>() +
                  "|" + body["FirstName"].get<std::string>() + "|" +
                  body["Verify"].get<std::string>() + "|" + body["Data"].get<std::string>());
}

TEST_F(ExportTest, EmptyUserFieldsAreSentAsEmptyStrings) {
    ztest::fillKeyFile(file, "", "", "", 0);
    ASSERT_TRUE(run().ok());
    ASSERT_EQ(2u, transport.requests.size());
    EXPECT_EQ("/devstoreaccount1/user(PartitionKey='',RowKey='')",
              transport.requests[1].pathAndQuery);
    const nlohmann::json body = nlohmann::json::parse(transport.requests[1].body, nullptr, false);
    EXPECT_EQ("", body["FirstName"]);
}

// Refused before the box: nothing is shown and nothing is sent.
TEST_F(ExportTest, RefusalsBeforeTheBoxSendNothingAndShowNothing) {
    zlKeyFile bare;
    bare.set_pass_phrase(ztest::kLongPass);
    zlCloudResult result = zlExportToCloud(bare, connectionString, transport, {});
    EXPECT_EQ(zlCloudNothingToExport, result.code);
    EXPECT_TRUE(zlCloudStatusText(result).empty());
    EXPECT_EQ(nullptr, bare.settings()) << "the export must not add settings";

    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada/home@example.org", 1);
    result = run();
    EXPECT_EQ(zlCloudBadKey, result.code);
    EXPECT_EQ(0u,
              utf8(zlCloudStatusText(result)).rfind("ERROR: Cloud export failed: the e-mail", 0))
        << utf8(zlCloudStatusText(result));

    file.settings()->setUserEmail(dunmar::dm_utf8_str("ada@example.org"), true);
    const std::string note(40000, 'n');
    for (int i = 0; i < 10; ++i) {
        auto* key = new zlFileItemKey(&file);
        key->setNote(ztest::enc(file, note.c_str()));
        file.keys()->appendChild(key);
    }
    result = run();
    EXPECT_EQ(zlCloudEntityTooLarge, result.code);
    EXPECT_NE(std::string::npos, result.reason.find("too large")) << result.reason;

    connectionString = "AccountName=zeltokeys";
    EXPECT_EQ(zlCloudBadConnectionString, run().code);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(ExportTest, AFailedRequestShowsNoSuccessAndTellsWhy) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    transport.failWith(zlCloudNetworkFailed, "no connection to 127.0.0.1:4711");
    EXPECT_EQ(zlCloudNetworkFailed, run().code);
    EXPECT_EQ(1u, transport.requests.size());

    transport.answer(204);
    transport.answer(403, "{\"odata.error\":{\"code\":\"AuthorizationFailure\"}}");
    const zlCloudResult result = run();
    EXPECT_EQ(zlCloudServiceRefused, result.code);
    EXPECT_EQ(3u, transport.requests.size());
    ASSERT_EQ(2u, boxes.size());
    EXPECT_EQ(0u, boxes[1].rfind("xmlData: ", 0));
    EXPECT_EQ(
        "ERROR: Cloud export failed: writing the record: the table service answered 403 "
        "AuthorizationFailure (the account key was refused)",
        utf8(zlCloudStatusText(result)));
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
