#include "cloud/zlConnectionString.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "cloud/zlCloudConfig.h"
#include "cloudTestSupport.h"

using namespace Zelto;

namespace {

const std::string kKey = ztest::kDevKey;

// Names ignore case, blanks and empty pairs; the key is split at the first '=' only, so its
// padding stays. No protocol means https, no suffix the public one.
TEST(ConnectionString, AccountAndEndpointOfEachForm) {
    const struct {
        std::string text;
        const char* name;
        const char* endpoint;
        bool https;
        const char* host;
        unsigned port;
        const char* path;
    } cases[] = {
        {"DefaultEndpointsProtocol=https;AccountName=zeltokeys;AccountKey=" + kKey +
             ";EndpointSuffix=core.windows.net",
         "zeltokeys", "https://zeltokeys.table.core.windows.net", true,
         "zeltokeys.table.core.windows.net", 443, ""},
        {" accountname=abc ; ACCOUNTKEY=" + kKey + ";;defaultendpointsprotocol=HTTP;\n", "abc",
         "http://abc.table.core.windows.net", false, "abc.table.core.windows.net", 80, ""},
        {"AccountName=abc;AccountKey=" + kKey + ";EndpointSuffix=core.chinacloudapi.cn", "abc",
         "https://abc.table.core.chinacloudapi.cn", true, "abc.table.core.chinacloudapi.cn", 443,
         ""},
        {"AccountName=devstoreaccount1;AccountKey=" + kKey +
             ";BlobEndpoint=http://127.0.0.1:10000/x;TableEndpoint=http://127.0.0.1:19999/"
             "devstoreaccount1/",
         "devstoreaccount1", "http://127.0.0.1:19999/devstoreaccount1", false, "127.0.0.1", 19999,
         "/devstoreaccount1"},
        {"UseDevelopmentStorage=true", "devstoreaccount1",
         "http://127.0.0.1:10002/devstoreaccount1", false, "127.0.0.1", 10002, "/devstoreaccount1"},
    };
    for (const auto& c : cases) {
        zlStorageAccount a;
        const zlCloudResult result = zlParseConnectionString(c.text, a);
        ASSERT_TRUE(result.ok()) << c.text << ": " << result.reason;
        EXPECT_EQ(c.name, a.accountName);
        EXPECT_EQ(kKey, a.accountKey);
        EXPECT_EQ(c.endpoint, a.tableEndpoint);
        EXPECT_EQ(c.https, a.endpoint.https);
        EXPECT_EQ(c.host, a.endpoint.host);
        EXPECT_EQ(c.port, a.endpoint.port);
        EXPECT_EQ(c.path, a.endpoint.path);
    }
}

TEST(ConnectionString, MalformedTextsAreRefusedWithAReasonAndChangeNothing) {
    const std::string key = ";AccountKey=" + kKey;
    const char* const bad[] = {
        "",
        " ; ",
        "AccountName=abc;AccountKey=  ",  // an empty key
        "AccountKey=",                    // no name, empty key
        "AccountName=abc;AccountKey=not base64!",
        "AccountName=abc;AccountKey=QUJD=A==",  // padding inside
        "AccountName=abc;AccountKey",           // a pair without '='
        "=abc",
        "AccountName=abc;Colour=blue",
        "AccountName=abc;AccountName=abd",
        "AccountName=a/b",
        "AccountName=a-b",
        "UseDevelopmentStorage=false",
        "UseDevelopmentStorage=true;AccountName=abc",
        "DefaultEndpointsProtocol=ftp;AccountName=abc",
        "TableEndpoint=ftp://host/x;AccountName=abc",
        "TableEndpoint=http://host:99999;AccountName=abc",
        "TableEndpoint=http://host/x?y=1;AccountName=abc",
        "EndpointSuffix=evil/path;AccountName=abc",
        "SharedAccessSignature=sv=2019&sig=x;AccountName=abc",
    };
    for (const char* text : bad) {
        std::string full = text;
        // Give each a usable key unless the case is about the key.
        if (full.find("AccountKey") == std::string::npos &&
            full.find("UseDevelopment") == std::string::npos &&
            full.find_first_not_of(" ;") != std::string::npos)
            full += key;
        zlStorageAccount account;
        account.accountName = "unchanged";
        const zlCloudResult result = zlParseConnectionString(full, account);
        EXPECT_EQ(zlCloudBadConnectionString, result.code) << full;
        EXPECT_EQ(0u, result.reason.rfind("malformed connection string: ", 0)) << result.reason;
        EXPECT_EQ(std::string::npos, result.reason.find(kKey)) << "the reason shows the key";
        EXPECT_EQ("unchanged", account.accountName) << full;
    }
}

TEST(ConnectionString, Base64Check) {
    for (const std::string& good :
         {kKey, std::string("QQ=="), std::string("QUI="), std::string("+/9z")})
        EXPECT_TRUE(zlIsBase64(good)) << good;
    for (const char* bad : {"QQ", "Q===", "QQ==QQ==", "QU I=", "", "QU-_", "QU\xc3\xa4"})
        EXPECT_FALSE(zlIsBase64(bad)) << bad;
}

void setVariable(const char* value) {
#ifdef _WIN32
    _putenv_s(zlCloudConnectionStringVariable, value);
#else
    if (value[0] == '\0')
        unsetenv(zlCloudConnectionStringVariable);
    else
        setenv(zlCloudConnectionStringVariable, value, 1);
#endif
}

TEST(ConnectionString, EnvironmentReplacesTheBuiltInOne) {
    const char* saved = std::getenv(zlCloudConnectionStringVariable);
    const std::string before = saved ? saved : "";
    setVariable("");
    zlStorageAccount account;
    ASSERT_TRUE(zlParseConnectionString(zlCloudConnectionString(), account).ok());
    EXPECT_TRUE(account.endpoint.https);
    EXPECT_EQ(88u, account.accountKey.size());
    setVariable("UseDevelopmentStorage=true");
    EXPECT_EQ("UseDevelopmentStorage=true", zlCloudConnectionString());
    setVariable(before.c_str());
}

}  // namespace
