// Connection strings, Shared Key signing and the requests of the table service. The
// signatures were computed with openssl, not with this code:
//   KEY=<the account key>; HEX=$(printf %s "$KEY" | base64 -d | od -An -tx1 | tr -d ' \n')
//   printf '<string to sign, \n for line breaks>' |
//     openssl dgst -sha256 -mac HMAC -macopt hexkey:$HEX -binary | base64
#include <gtest/gtest.h>

#include <cstdio>

#include "cloud/zlCloudCrypto.h"
#include "cloud/zlConnectionString.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlSharedKey.h"
#include "cloud/zlTableRequests.h"
#include "cloudTestSupport.h"

using namespace Zelto;

namespace {

const std::string kKey = ztest::kDevKey;
const char* kDate = "Tue, 02 Jan 2024 03:04:05 GMT";

// Names ignore case, blanks and empty pairs; the key is split at the first '=' only, so its
// padding stays. No protocol means https, no suffix the public one.
TEST(ConnectionString, AccountAndEndpointOfEachForm) {
    const std::string key = ";AccountKey=" + kKey;
    const std::string a63(63, 'a');  // the longest name taken
    const struct {
        std::string text, endpoint, parts;  // parts: name host port path
    } cases[] = {
        {"DefaultEndpointsProtocol=https;AccountName=zeltokeys" + key +
             ";EndpointSuffix=core.windows.net",
         "https://zeltokeys.table.core.windows.net",
         "zeltokeys zeltokeys.table.core.windows.net 443"},
        {" accountname=Az09 " + key + ";;defaultendpointsprotocol=HTTP;\n",
         "http://Az09.table.core.windows.net", "Az09 Az09.table.core.windows.net 80"},
        {"AccountName=abc" + key + ";EndpointSuffix=Zz-09.example",
         "https://abc.table.Zz-09.example", "abc abc.table.Zz-09.example 443"},
        {"AccountName=abc" + key + ";BlobEndpoint=x;TableEndpoint=http://127.0.0.1:19999/a/",
         "http://127.0.0.1:19999/a", "abc 127.0.0.1 19999/a"},
        {"AccountName=abc" + key + ";TableEndpoint=https://[::1]:65535/a/b//",
         "https://[::1]:65535/a/b", "abc ::1 65535/a/b"},
        {"UseDevelopmentStorage=true", "http://127.0.0.1:10002/devstoreaccount1",
         "devstoreaccount1 127.0.0.1 10002/devstoreaccount1"},
        {"AccountName=" + a63 + key, "https://" + a63 + ".table.core.windows.net",
         a63 + " " + a63 + ".table.core.windows.net 443"}};
    for (const auto& c : cases) {
        zlStorageAccount a;
        const zlCloudResult result = zlParseConnectionString(c.text, a);
        ASSERT_TRUE(result.ok()) << c.text << ": " << result.reason;
        EXPECT_EQ(c.endpoint, a.tableEndpoint);
        EXPECT_EQ(c.parts, a.accountName + " " + a.endpoint.host + " " +
                               std::to_string(a.endpoint.port) + a.endpoint.path);
        EXPECT_EQ(a.tableEndpoint.compare(0, 6, "https:") == 0, a.endpoint.https);
        EXPECT_EQ(kKey, a.accountKey);
    }
    for (const char* endpoint : {"", "ftp://h", "http://", "http://:80", "http://h:0", "http://h:x",
                                 "http://h:", "http://h:65536", "http://h:000080", "http://h/p?q",
                                 "http://h/p#f", "http://u@h", "http://[::1", "http://[::1]x"}) {
        zlStorageAccount a;
        EXPECT_EQ(
            "malformed connection string: the table endpoint is not an http or https address",
            zlParseConnectionString("AccountName=a" + key + ";TableEndpoint=" + endpoint, a).reason)
            << endpoint;
    }
}

// Each refused with its reason, which quotes nothing of the text; a usable key is added unless
// the case is about the key. cli's NoPartOfAMisplacedAccountKeyIsEverShown has more.
TEST(ConnectionString, MalformedTextsAreRefusedWithAReasonAndChangeNothing) {
    const std::pair<const char*, const char*> bad[] = {
        {" ; ", "it is empty"},
        {"AccountName=abc;AccountKey=  ", "AccountKey is missing"},
        {"AccountKey=", "AccountName is missing"},
        {"AccountName=abc;AccountKey=QUJD=A==", "AccountKey is not base64"},
        {"AccountName=abc;AccountKey", "a part is not of the form Key=value"},
        {"=abc", "a part is not of the form Key=value"},
        {"AccountName=abc;Colour=blue", "a part has an unknown name"},
        {"AccountName=abc;accountname=abd", "key 'AccountName' given twice"},
        {"AccountName=a-b", "AccountName is not a storage account name"},
        {"UseDevelopmentStorage=false", "UseDevelopmentStorage may only be true"},
        {"UseDevelopmentStorage=true;AccountName=abc", "UseDevelopmentStorage=true stands alone"},
        {"DefaultEndpointsProtocol=ftp;AccountName=abc",
         "DefaultEndpointsProtocol must be http or https"},
        {"EndpointSuffix=evil/path;AccountName=abc", "EndpointSuffix is not a host name"},
        {"SharedAccessSignature=sv=2019&sig=x;AccountName=abc",
         "shared access signatures are not supported"}};
    for (const auto& c : bad) {
        std::string text = c.first;
        if (text.find("AccountName") != std::string::npos &&
            text.find("AccountKey") == std::string::npos)
            text += ";AccountKey=" + kKey;
        zlStorageAccount account;
        account.accountName = "unchanged";
        const zlCloudResult result = zlParseConnectionString(text, account);
        EXPECT_EQ(zlCloudBadConnectionString, result.code) << text;
        EXPECT_EQ(std::string("malformed connection string: ") + c.second, result.reason);
        EXPECT_EQ("unchanged", account.accountName) << text;
    }
    for (const char* good : {"QQ==", "QUI=", "AZaz09+/"})
        EXPECT_TRUE(zlIsBase64(good)) << good;
    for (const char* notBase64 :
         {"QQ", "Q===", "QQ==QQ==", "QU I=", "", "QU-_", "QU\xc3\xa4", "@[`{", "Zm=v"})
        EXPECT_FALSE(zlIsBase64(notBase64)) << notBase64;
}

// The platform's base64 and HMAC are checked by the signatures.
TEST(SharedKey, DatesResourcesAndStringsToSign) {
    std::string out = "left over";
    EXPECT_FALSE(zlBase64Decode("Zm9", out) || !out.empty());

    // Every day from 0000-01-01 (a Saturday) to 2100, walked one at a time, at some time of day.
    static const char* const weekdays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static const char* const months[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                         "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int year = 0, month = 1, day = 1, weekday = 6, wrong = 0;
    for (int64_t days = -719528; year < 2100; ++days) {
        const int64_t second =
            static_cast<int64_t>(static_cast<uint64_t>(days) * 2654435761u % 86400);
        char expected[40];
        std::snprintf(expected, sizeof expected, "%s, %02d %s %04d %02d:%02d:%02d GMT",
                      weekdays[weekday], day, months[month - 1], year, int(second / 3600),
                      int(second / 60 % 60), int(second % 60));
        if (zlHttpDate(days * 86400 + second) != expected && ++wrong < 5)
            ADD_FAILURE() << expected << " came out as " << zlHttpDate(days * 86400 + second);
        const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
        const int length = month == 2 ? 28 + leap : 30 + (month + month / 8) % 2;
        weekday = (weekday + 1) % 7;
        if (++day > length) {
            day = 1;
            year += month / 12;
            month = month % 12 + 1;
        }
    }
    EXPECT_EQ(0, wrong);
    // Only a comp parameter of the query is signed.
    const std::pair<const char*, const char*> resources[] = {
        {"/devstoreaccount1/Tables", "/acct/devstoreaccount1/Tables"},
        {"/Tables?timeout=30&comp=list&x=1", "/acct/Tables?comp=list"},
        {"/Tables?comp=list", "/acct/Tables?comp=list"},
        {"/Tables?timeout=30", "/acct/Tables"}};
    for (const auto& r : resources)
        EXPECT_EQ(r.second, zlCanonicalizedResource("acct", r.first));
    EXPECT_EQ("PUT\n\napplication/json\n" + std::string(kDate) + "\n/a/b",
              zlStringToSign("PUT", "application/json", kDate, "/a/b"));
    std::string header = "unchanged";
    EXPECT_EQ(zlCloudSigningFailed, zlSharedKeyAuthorization("a", "not*base64", "x", header).code);
    EXPECT_EQ("unchanged", header);
}

TEST(TableRequests, EveryHeaderOnceAndSignedOverThePathAsSent) {
    zlStorageAccount dev;
    ASSERT_TRUE(zlParseConnectionString("UseDevelopmentStorage=true", dev).ok());
    zlHttpRequest r;
    ASSERT_TRUE(zlBuildCreateTableRequest(dev, "user", "Sun, 11 Oct 2009 19:52:39 GMT", r).ok());
    EXPECT_EQ("POST /devstoreaccount1/Tables http://127.0.0.1:10002 {\"TableName\":\"user\"}",
              r.verb + " " + r.pathAndQuery + (r.server.https ? " https://" : " http://") +
                  r.server.host + ":" + std::to_string(r.server.port) + " " + r.body);
    const std::pair<const char*, std::string> expected[] = {
        {"x-ms-date", "Sun, 11 Oct 2009 19:52:39 GMT"},
        {"x-ms-version", "2019-02-02"},
        {"DataServiceVersion", "3.0;NetFx"},
        {"MaxDataServiceVersion", "3.0;NetFx"},
        {"content-type", "application/json"},
        {"Accept", "application/json;odata=nometadata"},
        {"Content-Length", "20"},
        {"Prefer", "return-no-content"},
        // 'POST\n\napplication/json\nSun, 11 Oct 2009 19:52:39 GMT\n
        // /devstoreaccount1/devstoreaccount1/Tables': the account twice, as the emulator's
        // path-style address has it.
        {"Authorization",
         "SharedKey devstoreaccount1:93SXErdUsNtu6bceQyYK3L0kcldimsTAzAeuMPxYJn4="}};
    for (const auto& h : expected)
        EXPECT_EQ(h.second, r.header(h.first)) << h.first;
    EXPECT_EQ(std::size(expected), r.headers.size());

    // A PUT without If-Match, signed over the path exactly as sent: apostrophes doubled, then
    // percent-encoded. Signed: 'PUT\n\napplication/json\n<kDate>\n/devstoreaccount1<path>'.
    const struct {
        const char *partitionKey, *rowKey, *path, *signature;
    } puts[] = {
        {"O'Brien", "anne@example.org",
         "/devstoreaccount1/user(PartitionKey='O''Brien',RowKey='anne%40example.org')",
         "/mFbiKDiwHBn1sf7jdz4yokvS6E9IDAFIjsTHrvXTTk="},
        {"M\xC3\xBCller", "", "/devstoreaccount1/user(PartitionKey='M%C3%BCller',RowKey='')",
         "FalrWFcHHsqRDAZrtQdYJo7ynBu2/xLFgSjwbWyrES0="}};
    for (const auto& put : puts) {
        ASSERT_TRUE(
            zlBuildInsertOrReplaceRequest(dev, "user", put.partitionKey, put.rowKey, "{}", kDate, r)
                .ok());
        EXPECT_EQ("PUT " + std::string(put.path) +
                      " {} 2 SharedKey devstoreaccount1:" + put.signature + "|",
                  r.verb + " " + r.pathAndQuery + " " + r.body + " " + r.header("Content-Length") +
                      " " + r.header("Authorization") + "|" + r.header("If-Match") +
                      r.header("Prefer"));
    }
    EXPECT_EQ("/user(PartitionKey='a%20b%2Bc%26d%3De',RowKey='x%28y%29%2Cz''''')",
              zlEntityPath("user", "a b+c&d=e", "x(y),z''"));
    EXPECT_EQ("/user(PartitionKey='%E2%82%AC%F0%9F%94%91%7F',RowKey='A-z_0.9~')",
              zlEntityPath("user", "\xE2\x82\xAC\xF0\x9F\x94\x91\x7F", "A-z_0.9~"));
}

}  // namespace
