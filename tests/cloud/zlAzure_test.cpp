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

TEST_F(AzureTest, OpenSendsNothingAndConnectCreatesTheTable) {
    ASSERT_TRUE(azure.open(cs).ok());
    EXPECT_TRUE(transport.requests.empty());
    EXPECT_EQ(4711u, azure.account().endpoint.port);

    ASSERT_TRUE(azure.connect(cs).ok());
    ASSERT_EQ(1u, transport.requests.size());
    const zlHttpRequest& r = transport.requests[0];
    EXPECT_EQ("POST", r.verb);
    EXPECT_EQ("/devstoreaccount1/Tables", r.pathAndQuery);
    EXPECT_EQ("{\"TableName\":\"user\"}", r.body);
    EXPECT_EQ(fixedDate(), r.header("x-ms-date"));
}

TEST_F(AzureTest, MalformedConnectionStringSendsNothing) {
    const zlCloudResult r = azure.connect("AccountName=x");
    EXPECT_EQ(zlCloudBadConnectionString, r.code);
    EXPECT_FALSE(azure.isOpen());
    EXPECT_EQ(zlCloudBadConnectionString, azure.write(smallEntity()).code);
    EXPECT_EQ(zlCloudBadConnectionString, azure.createTableIfNotExists().code);
    EXPECT_TRUE(transport.requests.empty());
}

TEST_F(AzureTest, AnExistingTableIsFineOtherConflictsAreNot) {
    ASSERT_TRUE(azure.open(cs).ok());
    transport.answer(201);
    EXPECT_TRUE(azure.createTableIfNotExists().ok());
    transport.answer(409, odataError("TableAlreadyExists"));
    EXPECT_TRUE(azure.createTableIfNotExists().ok());
    transport.answer(409, odataError("TableBeingDeleted"));
    const zlCloudResult deleting = azure.createTableIfNotExists();
    EXPECT_EQ(zlCloudServiceRefused, deleting.code);
    EXPECT_NE(std::string::npos, deleting.reason.find("409 TableBeingDeleted")) << deleting.reason;
}

TEST_F(AzureTest, RefusedKeyAndNetworkFailuresComeBackWithTheirReasons) {
    ASSERT_TRUE(azure.open(cs).ok());
    transport.answer(403, odataError("AuthorizationFailure"));
    const zlCloudResult refused = azure.createTableIfNotExists();
    EXPECT_EQ(zlCloudServiceRefused, refused.code);
    EXPECT_EQ(
        "creating the table: the table service answered 403 AuthorizationFailure (the account "
        "key was refused)",
        refused.reason);

    transport.failWith(zlCloudNetworkFailed, "no connection to 127.0.0.1:4711");
    const zlCloudResult network = azure.write(smallEntity());
    EXPECT_EQ(zlCloudNetworkFailed, network.code);
    EXPECT_EQ("no connection to 127.0.0.1:4711", network.reason);
}

TEST_F(AzureTest, WriteIsOneInsertOrReplace) {
    ASSERT_TRUE(azure.open(cs).ok());
    ASSERT_TRUE(azure.write(smallEntity()).ok());
    ASSERT_EQ(1u, transport.requests.size());
    const zlHttpRequest& r = transport.requests[0];
    EXPECT_EQ("PUT", r.verb);
    EXPECT_EQ("/devstoreaccount1/user(PartitionKey='Lovelace',RowKey='ada%40example.org')",
              r.pathAndQuery);
    EXPECT_EQ("", r.header("If-Match"));
    std::string body;
    ASSERT_TRUE(smallEntity().body(body).ok());
    EXPECT_EQ(body, r.body);

    transport.answer(400, odataError("PropertyValueTooLarge"));
    const zlCloudResult tooLarge = azure.write(smallEntity());
    EXPECT_EQ(zlCloudServiceRefused, tooLarge.code);
    EXPECT_NE(std::string::npos, tooLarge.reason.find("writing the record: "));
    EXPECT_NE(std::string::npos, tooLarge.reason.find("400 PropertyValueTooLarge"));
}

TEST_F(AzureTest, AnEntityWithABadKeyIsNeverSent) {
    ASSERT_TRUE(azure.open(cs).ok());
    zlAzureTableEntity e = smallEntity();
    e.email = dm_string(DM_W("50%@example.org"));
    EXPECT_EQ(zlCloudBadKey, azure.write(e).code);
    EXPECT_TRUE(transport.requests.empty());
}

TEST(TableError, CodeFromJsonOrXmlBodies) {
    EXPECT_EQ("TableAlreadyExists", zlServiceErrorCode(odataError("TableAlreadyExists")));
    EXPECT_EQ("AuthorizationFailure",
              zlServiceErrorCode("<?xml version=\"1.0\"?><Error><Code>AuthorizationFailure</Code>"
                                 "<Message>x</Message></Error>"));
    EXPECT_EQ("", zlServiceErrorCode(""));
    EXPECT_EQ("", zlServiceErrorCode("{\"odata.error\":{\"code\":5}}"));
    EXPECT_EQ("", zlServiceErrorCode("{\"odata.error\":"));
    EXPECT_EQ("", zlServiceErrorCode("[1,2]"));

    zlHttpResponse answer;
    answer.status = 503;
    EXPECT_EQ("writing: the table service answered 503 (the service has a problem)",
              zlServiceFailure("writing", answer).reason);
}

}  // namespace
