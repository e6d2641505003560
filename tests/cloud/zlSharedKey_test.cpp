// Signatures checked against values computed with openssl, not with this code:
//   KEY=<the account key>; HEX=$(printf %s "$KEY" | base64 -d | od -An -tx1 | tr -d ' \n')
//   printf '<string to sign, \n for line breaks>' |
//     openssl dgst -sha256 -mac HMAC -macopt hexkey:$HEX -binary | base64
#include "cloud/zlSharedKey.h"

#include <gtest/gtest.h>

#include "cloud/zlCloudCrypto.h"
#include "cloud/zlHttpDate.h"
#include "cloud/zlTableRequests.h"
#include "cloudTestSupport.h"

using namespace Zelto;

namespace {

std::string hex(const std::string& bytes) {
    static const char digits[] = "0123456789abcdef";
    std::string out;
    for (unsigned char c : bytes) {
        out.push_back(digits[c >> 4]);
        out.push_back(digits[c & 15]);
    }
    return out;
}

zlStorageAccount devAccount(const std::string& endpoint) {
    zlStorageAccount account;
    EXPECT_TRUE(zlParseConnectionString(ztest::devConnectionString(endpoint), account).ok());
    return account;
}

TEST(CloudCrypto, HmacSha256MatchesRfc4231) {
    std::string mac;
    ASSERT_TRUE(zlHmacSha256(std::string(20, '\x0b'), "Hi There", mac));
    EXPECT_EQ("b0344c61d8db38535ca8afceaf0bf12b881dc200c9833da726e9376c2e32cff7", hex(mac));
    ASSERT_TRUE(zlHmacSha256("Jefe", "what do ya want for nothing?", mac));
    EXPECT_EQ("5bdcc146bf60754e6a042426089575c75a003f089d2739839dec58b964ec3843", hex(mac));
    // A key longer than the block is hashed first (RFC 4231 case 6).
    ASSERT_TRUE(zlHmacSha256(std::string(131, '\xaa'),
                             "Test Using Larger Than Block-Size Key - Hash Key First", mac));
    EXPECT_EQ("60e431591ee0b67f0d8a26aacbf5b77f8e0bc6213728c5140546040f0ee37f54", hex(mac));
}

TEST(CloudCrypto, Base64BothWaysWithPaddingAndZeros) {
    const struct {
        std::string bytes;
        const char* text;
    } cases[] = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {std::string("\0\xff\x10", 3), "AP8Q"},
        {std::string(100, '\xfb'), nullptr},  // longer than one line of the MIME form
    };
    for (const auto& c : cases) {
        std::string text;
        ASSERT_TRUE(zlBase64Encode(c.bytes, text));
        if (c.text != nullptr) {
            EXPECT_EQ(c.text, text);
        }
        EXPECT_EQ(std::string::npos, text.find_first_of("\r\n"));
        if (c.bytes.empty())
            continue;
        std::string back;
        ASSERT_TRUE(zlBase64Decode(text, back)) << text;
        EXPECT_EQ(c.bytes, back);
    }
    std::string out = "left over";
    EXPECT_FALSE(zlBase64Decode("Zm9v YmFy", out));
    EXPECT_TRUE(out.empty());
    EXPECT_FALSE(zlBase64Decode("Zm9", out));

    std::string key;
    ASSERT_TRUE(zlBase64Decode(ztest::kDevKey, key));
    EXPECT_EQ(64u, key.size());
}

TEST(HttpDate, Rfc1123InGmt) {
    EXPECT_EQ("Thu, 01 Jan 1970 00:00:00 GMT", zlHttpDate(0));
    EXPECT_EQ("Sun, 11 Oct 2009 19:52:39 GMT", zlHttpDate(1255290759));
    EXPECT_EQ("Tue, 29 Feb 2000 00:00:00 GMT", zlHttpDate(951782400));
    EXPECT_EQ("Tue, 02 Jan 2024 03:04:05 GMT", zlHttpDate(1704164645));
    EXPECT_EQ("Wed, 31 Dec 1969 23:59:59 GMT", zlHttpDate(-1));
    EXPECT_EQ(29u, zlHttpDateNow().size());
}

TEST(SharedKey, CanonicalizedResourceKeepsThePathAndOnlyComp) {
    EXPECT_EQ("/devstoreaccount1/devstoreaccount1/Tables",
              zlCanonicalizedResource("devstoreaccount1", "/devstoreaccount1/Tables"));
    EXPECT_EQ("/acct/user(PartitionKey='a%40b',RowKey='')",
              zlCanonicalizedResource("acct", "/user(PartitionKey='a%40b',RowKey='')"));
    EXPECT_EQ("/acct/Tables?comp=list",
              zlCanonicalizedResource("acct", "/Tables?timeout=30&comp=list&x=1"));
    EXPECT_EQ("/acct/Tables", zlCanonicalizedResource("acct", "/Tables?timeout=30"));
}

TEST(SharedKey, StringToSignHasFiveLines) {
    EXPECT_EQ("PUT\n\napplication/json\nSun, 11 Oct 2009 19:52:39 GMT\n/a/b",
              zlStringToSign("PUT", "application/json", "Sun, 11 Oct 2009 19:52:39 GMT", "/a/b"));
}

TEST(SharedKey, SignaturesMatchOpenssl) {
    std::string header;
    // 'POST\n\napplication/json\nSun, 11 Oct 2009 19:52:39
    // GMT\n/devstoreaccount1/devstoreaccount1/Tables'
    ASSERT_TRUE(zlSharedKeyAuthorization("devstoreaccount1", ztest::kDevKey,
                                         "POST\n\napplication/json\nSun, 11 Oct 2009 19:52:39 GMT\n"
                                         "/devstoreaccount1/devstoreaccount1/Tables",
                                         header)
                    .ok());
    EXPECT_EQ("SharedKey devstoreaccount1:93SXErdUsNtu6bceQyYK3L0kcldimsTAzAeuMPxYJn4=", header);
    // 'GET\n\napplication/json\nTue, 02 Jan 2024 03:04:05 GMT\n/zeltokeys/Tables?comp=list'
    ASSERT_TRUE(
        zlSharedKeyAuthorization(
            "zeltokeys", ztest::kDevKey,
            "GET\n\napplication/json\nTue, 02 Jan 2024 03:04:05 GMT\n/zeltokeys/Tables?comp=list",
            header)
            .ok());
    EXPECT_EQ("SharedKey zeltokeys:UpVw7nGjdZ+BxJA4iklQCh1xspErgN/sLBiqawzEsa0=", header);

    header = "unchanged";
    const zlCloudResult bad = zlSharedKeyAuthorization("a", "not*base64", "x", header);
    EXPECT_EQ(zlCloudSigningFailed, bad.code);
    EXPECT_EQ("unchanged", header);
}

TEST(SharedKey, RequestsAreSignedOverThePathAsSent) {
    const zlStorageAccount account = devAccount("http://127.0.0.1:10002/devstoreaccount1");
    const std::string date = "Tue, 02 Jan 2024 03:04:05 GMT";
    zlHttpRequest put;
    // 'PUT\n\napplication/json\nTue, 02 Jan 2024 03:04:05
    // GMT\n/devstoreaccount1/devstoreaccount1/user(PartitionKey='O''Brien',RowKey='anne%40example.org')'
    ASSERT_TRUE(zlBuildInsertOrReplaceRequest(account, "user", "O'Brien", "anne@example.org", "{}",
                                              date, put)
                    .ok());
    EXPECT_EQ("/devstoreaccount1/user(PartitionKey='O''Brien',RowKey='anne%40example.org')",
              put.pathAndQuery);
    EXPECT_EQ("SharedKey devstoreaccount1:/mFbiKDiwHBn1sf7jdz4yokvS6E9IDAFIjsTHrvXTTk=",
              put.header("Authorization"));

    // 'PUT\n\napplication/json\nTue, 02 Jan 2024 03:04:05
    // GMT\n/devstoreaccount1/devstoreaccount1/user(PartitionKey='M%C3%BCller',RowKey='')'
    ASSERT_TRUE(
        zlBuildInsertOrReplaceRequest(account, "user", "M\xC3\xBCller", "", "{}", date, put).ok());
    EXPECT_EQ("/devstoreaccount1/user(PartitionKey='M%C3%BCller',RowKey='')", put.pathAndQuery);
    EXPECT_EQ("SharedKey devstoreaccount1:FalrWFcHHsqRDAZrtQdYJo7ynBu2/xLFgSjwbWyrES0=",
              put.header("Authorization"));
}

}  // namespace
