#include "cloud/zlTableRequests.h"

#include <gtest/gtest.h>

#include "cloudTestSupport.h"

using namespace Zelto;

namespace {

const char* kDate = "Sun, 11 Oct 2009 19:52:39 GMT";

zlStorageAccount account(const std::string& text) {
    zlStorageAccount a;
    EXPECT_TRUE(zlParseConnectionString(text, a).ok());
    return a;
}

TEST(TableRequests, CreateTableCarriesEveryHeaderOnce) {
    zlHttpRequest r;
    ASSERT_TRUE(
        zlBuildCreateTableRequest(account("UseDevelopmentStorage=true"), "user", kDate, r).ok());
    EXPECT_EQ("POST", r.verb);
    EXPECT_EQ("/devstoreaccount1/Tables", r.pathAndQuery);
    EXPECT_EQ("127.0.0.1", r.server.host);
    EXPECT_EQ(10002u, r.server.port);
    EXPECT_FALSE(r.server.https);
    EXPECT_EQ("{\"TableName\":\"user\"}", r.body);

    const std::pair<const char*, std::string> expected[] = {
        {"x-ms-date", kDate},
        {"x-ms-version", "2019-02-02"},
        {"DataServiceVersion", "3.0;NetFx"},
        {"MaxDataServiceVersion", "3.0;NetFx"},
        {"Content-Type", "application/json"},
        {"Accept", "application/json;odata=nometadata"},
        {"Content-Length", std::to_string(r.body.size())},
        {"Prefer", "return-no-content"},
        // Signed over the account twice, as the emulator's path-style address has it.
        {"Authorization",
         "SharedKey devstoreaccount1:93SXErdUsNtu6bceQyYK3L0kcldimsTAzAeuMPxYJn4="},
    };
    for (const auto& h : expected)
        EXPECT_EQ(h.second, r.header(h.first)) << h.first;
    EXPECT_EQ(std::size(expected), r.headers.size());
    EXPECT_EQ("", r.header("Date"));  // only x-ms-date is sent
}

TEST(TableRequests, InsertOrReplaceIsAPutWithoutIfMatch) {
    zlHttpRequest r;
    const std::string body = "{\"PartitionKey\":\"Lovelace\"}";
    ASSERT_TRUE(zlBuildInsertOrReplaceRequest(
                    account("AccountName=zeltokeys;AccountKey=" + std::string(ztest::kDevKey)),
                    "user", "Lovelace", "ada@example.org", body, kDate, r)
                    .ok());
    EXPECT_EQ("PUT", r.verb);
    EXPECT_TRUE(r.server.https);
    EXPECT_EQ("zeltokeys.table.core.windows.net", r.server.host);
    EXPECT_EQ(443u, r.server.port);
    EXPECT_EQ("/user(PartitionKey='Lovelace',RowKey='ada%40example.org')", r.pathAndQuery);
    EXPECT_EQ(body, r.body);
    EXPECT_EQ(std::to_string(body.size()), r.header("Content-Length"));
    EXPECT_EQ("", r.header("If-Match"));
    EXPECT_EQ("", r.header("Prefer"));
    EXPECT_EQ(0u, r.header("Authorization").rfind("SharedKey zeltokeys:", 0));
}

TEST(TableRequests, KeysInTheAddressAreQuotedAndEncoded) {
    EXPECT_EQ("/user(PartitionKey='',RowKey='')", zlEntityPath("user", "", ""));
    EXPECT_EQ("/user(PartitionKey='d''Arc',RowKey='''')", zlEntityPath("user", "d'Arc", "'"));
    EXPECT_EQ("/user(PartitionKey='a%20b%2Bc%26d%3De',RowKey='x%28y%29%2Cz')",
              zlEntityPath("user", "a b+c&d=e", "x(y),z"));
    EXPECT_EQ("/user(PartitionKey='%E2%82%AC%F0%9F%94%91',RowKey='A-z_0.9~')",
              zlEntityPath("user", "\xE2\x82\xAC\xF0\x9F\x94\x91", "A-z_0.9~"));
}

TEST(Url, SplitsSchemeHostPortAndPath) {
    zlUrlParts p;
    ASSERT_TRUE(zlSplitUrl("https://h.example", p));
    EXPECT_TRUE(p.https);
    EXPECT_EQ("h.example", p.host);
    EXPECT_EQ(443u, p.port);
    EXPECT_EQ("", p.path);
    ASSERT_TRUE(zlSplitUrl("http://[::1]:8080/a/b//", p));
    EXPECT_FALSE(p.https);
    EXPECT_EQ("::1", p.host);
    EXPECT_EQ(8080u, p.port);
    EXPECT_EQ("/a/b", p.path);

    p.host = "unchanged";
    for (const char* bad :
         {"", "ftp://h", "http://", "http://:80", "http://h:0", "http://h:x", "http://h:65536",
          "http://h/p?q", "http://h/p#f", "http://u@h", "http://[::1", "http://[::1]x"})
        EXPECT_FALSE(zlSplitUrl(bad, p)) << bad;
    EXPECT_EQ("unchanged", p.host);
}

}  // namespace
