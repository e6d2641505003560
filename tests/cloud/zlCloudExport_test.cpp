// The record of the export, the table service's answers and the export's order, against a
// fake transport.
#include "cloud/zlCloudExport.h"

#include <gtest/gtest.h>

#include "app/zlTexts.h"
#include "cloud/zlAzure.h"
#include "cloud/zlTableKeys.h"
#include "cloudTestSupport.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_wstring;
using ztest::utf8;

namespace {

// One unit in each user field.
zlAzureTableEntity entityWithData(const dm_wstring& data) {
    zlAzureTableEntity e;
    e.firstName = e.lastName = e.email = e.verify = dm_string(DM_W("x"));
    e.data = dm_string(data);
    return e;
}

// One row per key: the result and, for a refusal, what the reason names.
TEST(TableKeys, ForbiddenCharactersLengthAndBrokenText) {
    const dm_wstring high(1, 0xDBFF), low(1, 0xDC00), lastLow(1, 0xDFFF);
    const struct {
        dm_wstring key;
        int code;
        const char* named;
    } cases[] = {
        {DM_W(""), zlCloudOk, ""},
        {DM_W("O'Brien M\u00fcller a+b@c.org \u5c71 \U0001F511\uFFFD\U0010FFFF ~\u00a0"), zlCloudOk,
         ""},
        {dm_wstring(512, 'x'), zlCloudOk, ""},
        {dm_wstring(513, 'x'), zlCloudBadKey, "the e-mail is longer than 512 characters"},
        {DM_W("a/b@example.org"), zlCloudBadKey, "the e-mail must not contain '/' (the table"},
        {DM_W("back\\slash"), zlCloudBadKey, "'\\'"},
        {DM_W("no#hash"), zlCloudBadKey, "'#'"},
        {DM_W("why?"), zlCloudBadKey, "'?'"},
        {DM_W("100%@example.org"), zlCloudBadKey, "'%'"},
        {dm_wstring(1, 0), zlCloudBadKey, "U+0000"},
        {DM_W(" \x1f"), zlCloudBadKey, "U+001F"},
        {DM_W("del\x7f"), zlCloudBadKey, "U+007F"},
        {DM_W("c1\u009f"), zlCloudBadKey, "U+009F"},
        {high + DM_W("b"), zlCloudBadText, "the e-mail is not well-formed text"},
        {DM_W("a") + low, zlCloudBadText, "the e-mail is not well-formed text"},
        {lastLow, zlCloudBadText, "the e-mail is not well-formed text"},
    };
    for (const auto& c : cases) {
        const zlCloudResult r = zlCheckTableKey(dm_string(c.key), "e-mail");
        EXPECT_EQ(c.code, r.code) << c.named;
        EXPECT_EQ(c.code == zlCloudOk, r.reason.empty()) << r.reason;
        EXPECT_NE(std::string::npos, r.reason.find(c.named)) << r.reason;
    }
}

// Data goes in parts of at most 32768 units, never cutting a surrogate pair; the parts in the
// body join to the whole text, and DataParts counts them when there is more than one.
TEST(AzureTableEntity, DataIsSplitIntoNumberedPartsThatJoinToTheWhole) {
    const dm_wstring first = DM_W("\U00010000"), last = DM_W("\U0010FFFF");  // D800.., DBFF..
    const struct {
        dm_wstring data;
        std::vector<size_t> sizes;
    } cases[] = {
        {DM_W(""), {0}},
        {dm_wstring(32768, 'x'), {32768}},
        {dm_wstring(32769, 'x'), {32768, 1}},
        {dm_wstring(32767, 'a') + first + dm_wstring(32765, 'b') + last + DM_W("c"),
         {32767, 32767, 3}},
    };
    for (const auto& c : cases) {
        const zlAzureTableEntity e = entityWithData(c.data);
        std::vector<size_t> sizes;
        for (const dm_wstring& part : e.dataParts())
            sizes.push_back(part.size());
        EXPECT_EQ(c.sizes, sizes);
        std::string body;
        ASSERT_TRUE(e.body(body).ok());
        const nlohmann::json entity = nlohmann::json::parse(body, nullptr, false);
        EXPECT_EQ(dunmar::utf16_to_utf8(c.data.data(), c.data.size()), ztest::joinedData(entity));
        EXPECT_EQ(sizes.size() > 1, entity.contains("DataParts"));
        EXPECT_EQ(sizes.size() + 4 + (sizes.size() > 1), entity.size());
    }
}

// The size as the service counts it: 4 + keys 2*2 + FirstName (8+18+4+2) + Verify (8+12+4+2)
// + each Data part (8 + 2*name + 4 + 2*units) + DataParts (8+18+4) when split. 1 MiB at most.
TEST(AzureTableEntity, SizeFollowsTheServicesCountAndLargeEntitiesAreRefused) {
    EXPECT_EQ(106u, entityWithData(dm_wstring(10, 'x')).entityBytes());
    EXPECT_EQ(80138u, entityWithData(dm_wstring(40000, 'x')).entityBytes());
    const std::string tooLarge = "the key file is too large for the cloud table (";
    const std::pair<size_t, std::string> cases[] = {
        {524058, ""},  // exactly 1048576 bytes
        {524059, tooLarge + "1025 KiB in one record, which takes at most 1024 KiB)"},
        {530190, tooLarge + "1036 KiB in one record, which takes at most 1024 KiB)"},
    };
    for (const auto& c : cases) {
        std::string body = "untouched";
        const zlCloudResult r = entityWithData(dm_wstring(c.first, 'x')).body(body);
        EXPECT_EQ(c.second.empty() ? zlCloudOk : zlCloudEntityTooLarge, r.code) << c.first;
        EXPECT_EQ(c.second, r.reason);
        EXPECT_EQ(!c.second.empty(), body == "untouched");
    }
    for (dm_string zlAzureTableEntity::*field :
         {&zlAzureTableEntity::firstName, &zlAzureTableEntity::verify}) {
        zlAzureTableEntity e = entityWithData(DM_W("x"));
        e.*field = dm_string(dm_wstring(32769, 'f'));
        EXPECT_EQ(zlCloudEntityTooLarge, e.check().code);
        e.*field = dm_string(dm_wstring(32768, 'f'));
        EXPECT_TRUE(e.check().ok());
    }
}

const zlDateSource fixedDate = [] { return std::string("Tue, 02 Jan 2024 03:04:05 GMT"); };

// Records the boxes in the order shown, with how many requests had gone out by then.
class ExportTest : public ::testing::Test {
  protected:
    zlCloudResult run() {
        zlCloudExportUi ui;
        ui.showData = ui.showSuccess = [this](const dm_string& text, const dm_string& title) {
            boxes.push_back(utf8(title) + ": " + utf8(text) + " after " +
                            std::to_string(transport.requests.size()));
        };
        return zlExportToCloud(file, cs, transport, ui, fixedDate);
    }

    zlKeyFile file;
    ztest::FakeTransport transport;
    zlAzure azure{transport, fixedDate};
    std::vector<std::string> boxes;
    std::string cs = ztest::devConnectionString("http://127.0.0.1:4711/devstoreaccount1");
};

TEST_F(ExportTest, DataBoxFirstThenTableThenWriteThenSuccess) {
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 3);
    const zlCloudResult result = run();
    ASSERT_TRUE(result.ok()) << result.reason;
    EXPECT_EQ("", utf8(zlCloudStatusText(result)));
    // The box and the record hold the enciphered file, never a plain secret.
    const std::string text = file.buildFileText(zlLanguageNameForFile()).str();
    EXPECT_FALSE(text.find("pw-1-secret") != std::string::npos ||
                 text.find("Lovelace") != std::string::npos);
    EXPECT_EQ((std::vector<std::string>{"xmlData: " + text + " after 0",
                                        "Zelto Cloud Account: Export was successful after 2"}),
              boxes);
    ASSERT_EQ(2u, transport.requests.size());
    EXPECT_EQ("POST", transport.requests[0].verb);
    const zlHttpRequest& put = transport.requests[1];
    EXPECT_EQ("PUT /devstoreaccount1/user(PartitionKey='Lovelace',RowKey='ada%40example.org') " +
                  fixedDate(),
              put.verb + " " + put.pathAndQuery + " " + put.header("x-ms-date"));
    const nlohmann::json body = nlohmann::json::parse(put.body, nullptr, false);
    EXPECT_EQ("Lovelace|ada@example.org|Ada|" + file.settings()->verify.str() + "|" + text,
              body.value("PartitionKey", "") + "|" + body.value("RowKey", "") + "|" +
                  body.value("FirstName", "") + "|" + body.value("Verify", "") + "|" +
                  ztest::joinedData(body));
    // A failure after the box shows no success box.
    transport.answer(0, "", zlCloudNetworkFailed, "no connection");
    EXPECT_EQ("ERROR: Cloud export failed: no connection", utf8(zlCloudStatusText(run())));
    ASSERT_EQ(3u, boxes.size());
    EXPECT_EQ(0u, boxes[2].rfind("xmlData: ", 0));
}

// Refused before the box: nothing is shown and nothing is sent.
TEST_F(ExportTest, RefusalsBeforeTheBoxSendNothingAndShowNothing) {
    file.set_pass_phrase(ztest::kLongPass);
    EXPECT_EQ(zlCloudNothingToExport, run().code);
    EXPECT_EQ(nullptr, file.settings()) << "the export must not add settings";
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada/home@example.org", 1);
    EXPECT_EQ(
        "ERROR: Cloud export failed: the e-mail must not contain '/' (the table service "
        "refuses it in a key)",
        utf8(zlCloudStatusText(run())));
    cs = "AccountName=zeltokeys";
    EXPECT_EQ(zlCloudBadConnectionString, run().code);
    EXPECT_TRUE(boxes.empty() && transport.requests.empty());
    EXPECT_EQ("no storage account is open", azure.write(entityWithData(DM_W("x"))).reason);
    EXPECT_EQ("no storage account is open", azure.createTableIfNotExists().reason);
}

// Each answer of the service and the result it gives; an existing table is fine.
TEST_F(ExportTest, AnswersOfTheServiceAndTheirReasons) {
    ASSERT_TRUE(azure.connect(cs).ok() && azure.isOpen());
    const std::string table = "creating the table: the table service answered ";
    const std::string record = "writing the record: the table service answered ";
    const struct {
        bool write;
        int status;
        std::string body, reason;
    } cases[] = {{true, 200, "", ""},
                 {false, 409, "{\"odata.error\":{\"code\":\"TableAlreadyExists\"}}", ""},
                 {false, 409, "{\"odata.error\":{\"code\":\"TableBeingDeleted\"}}",
                  table + "409 TableBeingDeleted (the table is in a conflicting state)"},
                 {false, 403, "<?xml?><Error><Code>AuthorizationFailure</Code></Error>",
                  table + "403 AuthorizationFailure (the account key was refused)"},
                 {true, 400, "<error><code>PropertyValueTooLarge</code></error>",
                  record + "400 PropertyValueTooLarge (the service did not accept the record)"},
                 {true, 404, "{\"odata.error\":{\"code\":5}}",
                  record + "404 (the account or the table was not found)"},
                 {true, 413, "[\"odata.error\"]", record + "413 (the record is too large)"},
                 {true, 500, "{\"odata.error\":", record + "500 (the service has a problem)"},
                 {true, 300, "<Code>x", record + "300"},
                 {false, 199, "{\"x\":{\"code\":\"TableAlreadyExists\"}}", table + "199"}};
    zlAzureTableEntity bad = entityWithData(DM_W("x"));
    bad.lastName = dm_string(DM_W("50%"));
    EXPECT_EQ(0u, azure.write(bad).reason.find("the last name must not contain '%'"));
    EXPECT_EQ(1u, transport.requests.size()) << "only the table was created";
    for (const auto& c : cases) {
        transport.answer(c.status, c.body);
        const zlCloudResult r =
            c.write ? azure.write(entityWithData(DM_W("x"))) : azure.createTableIfNotExists();
        EXPECT_EQ(c.reason.empty() ? zlCloudOk : zlCloudServiceRefused, r.code) << c.status;
        EXPECT_EQ(c.reason, r.reason);
    }
}

}  // namespace
