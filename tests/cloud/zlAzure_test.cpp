#include "cloud/zlAzure.h"

#include <gtest/gtest.h>

#include "cloud/zlTableError.h"
#include "cloudTestSupport.h"

using namespace Zelto;
using dunmar::dm_string;

namespace {

std::string fixedDate() {
    return "Tue, 02 Jan 2024 03:04:05 GMT";
}

std::string odataError(const char* code) {
    return std::string("{\"odata.error\":{\"code\":\"") + code +
           "\",\"message\":{\"lang\":\"en-US\",\"value\":\"text\"}}}";
}

zlAzureTableEntity smallEntity() {
    zlAzureTableEntity e;
    e.firstName = dm_string(DM_W("Ada"));
    e.lastName = dm_string(DM_W("Lovelace"));
    e.email = dm_string(DM_W("ada@example.org"));
    e.verify = dm_string(DM_W("V"));
    e.data = dm_string(DM_W("<?xml?>"));
    return e;
}

class AzureTest : public ::testing::Test {
  protected:
    ztest::FakeTransport transport;
    zlAzure azure{transport, fixedDate};
    const std::string cs = ztest::devConnectionString("http://127.0.0.1:4711/devstoreaccount1");
};

TEST_F(AzureTest, ConnectCreatesTheTableAndWriteIsOneInsertOrReplace) {
    ASSERT_TRUE(azure.open(cs).ok());
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_EQ(4711u, azure.account().endpoint.port);
    ASSERT_TRUE(azure.connect(cs).ok());
    ASSERT_TRUE(azure.write(smallEntity()).ok());
    ASSERT_EQ(2u, transport.requests.size());
    const zlHttpRequest& create = transport.requests[0];
    EXPECT_EQ("POST /devstoreaccount1/Tables", create.verb + " " + create.pathAndQuery);
    EXPECT_EQ("{\"TableName\":\"user\"}", create.body);
    EXPECT_EQ(fixedDate(), create.header("x-ms-date"));
    const zlHttpRequest& put = transport.requests[1];
    EXPECT_EQ("PUT /devstoreaccount1/user(PartitionKey='Lovelace',RowKey='ada%40example.org')",
              put.verb + " " + put.pathAndQuery);
    std::string body;
    ASSERT_TRUE(smallEntity().body(body).ok());
    EXPECT_EQ(body, put.body);
}

TEST_F(AzureTest, NothingIsSentForABadConnectionStringOrKey) {
    EXPECT_EQ(zlCloudBadConnectionString, azure.connect("AccountName=x").code);
    EXPECT_FALSE(azure.isOpen());
    EXPECT_EQ(zlCloudBadConnectionString, azure.write(smallEntity()).code);
    EXPECT_EQ(zlCloudBadConnectionString, azure.createTableIfNotExists().code);
    ASSERT_TRUE(azure.open(cs).ok());
    zlAzureTableEntity e = smallEntity();
    e.email = dm_string(DM_W("50%@example.org"));
    EXPECT_EQ(zlCloudBadKey, azure.write(e).code);
    EXPECT_TRUE(transport.requests.empty());
}

// Each answer of the service and the result it gives; an existing table is fine.
TEST_F(AzureTest, AnswersOfTheServiceAndTheirReasons) {
    ASSERT_TRUE(azure.open(cs).ok());
    const struct {
        bool write;
        int status;
        const char* code;
        int result;
        const char* reason;
    } cases[] = {
        {false, 201, "", zlCloudOk, ""},
        {false, 409, "TableAlreadyExists", zlCloudOk, ""},
        {false, 409, "TableBeingDeleted", zlCloudServiceRefused,
         "creating the table: the table service answered 409 TableBeingDeleted"},
        {false, 403, "AuthorizationFailure", zlCloudServiceRefused,
         "creating the table: the table service answered 403 AuthorizationFailure (the account "
         "key was refused)"},
        {true, 400, "PropertyValueTooLarge", zlCloudServiceRefused,
         "writing the record: the table service answered 400 PropertyValueTooLarge"},
        {true, 0, nullptr, zlCloudNetworkFailed, "no connection to 127.0.0.1:4711"},
    };
    for (const auto& c : cases) {
        if (c.code)
            transport.answer(c.status, *c.code ? odataError(c.code) : "");
        else
            transport.failWith(zlCloudNetworkFailed, "no connection to 127.0.0.1:4711");
        const zlCloudResult r =
            c.write ? azure.write(smallEntity()) : azure.createTableIfNotExists();
        EXPECT_EQ(c.result, r.code) << c.reason;
        EXPECT_EQ(0u, r.reason.find(c.reason)) << r.reason;
    }
}

TEST(TableError, CodeFromJsonOrXmlBodies) {
    const std::pair<std::string, const char*> cases[] = {
        {odataError("TableAlreadyExists"), "TableAlreadyExists"},
        {"<?xml version=\"1.0\"?><Error><Code>AuthorizationFailure</Code><Message>x</Message>"
         "</Error>",
         "AuthorizationFailure"},
        {"", ""},
        {"{\"odata.error\":{\"code\":5}}", ""},
        {"{\"odata.error\":", ""},
        {"[1,2]", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.second, zlServiceErrorCode(c.first)) << c.first;
    zlHttpResponse answer;
    answer.status = 503;
    EXPECT_EQ("writing: the table service answered 503 (the service has a problem)",
              zlServiceFailure("writing", answer).reason);
}

}  // namespace
