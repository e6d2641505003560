#include "cloud/zlConnectionString.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "cloud/zlCloudConfig.h"
#include "cloudTestSupport.h"

using namespace Zelto;

namespace {

const std::string kKey = ztest::kDevKey;

zlStorageAccount parsed(const std::string& text) {
    zlStorageAccount account;
    const zlCloudResult result = zlParseConnectionString(text, account);
    EXPECT_TRUE(result.ok()) << text << ": " << result.reason;
    return account;
}

TEST(ConnectionString, StandardKeysGiveTheAccountsHttpsEndpoint) {
    const zlStorageAccount a =
        parsed("DefaultEndpointsProtocol=https;AccountName=zeltokeys;AccountKey=" + kKey +
               ";EndpointSuffix=core.windows.net");
    EXPECT_EQ("zeltokeys", a.accountName);
    EXPECT_EQ(kKey, a.accountKey);  // split at the first '=' only: the padding stays
    EXPECT_EQ("https://zeltokeys.table.core.windows.net", a.tableEndpoint);
    EXPECT_TRUE(a.endpoint.https);
    EXPECT_EQ("zeltokeys.table.core.windows.net", a.endpoint.host);
    EXPECT_EQ(443u, a.endpoint.port);
    EXPECT_EQ("", a.endpoint.path);
}

TEST(ConnectionString, DefaultsNamesCaseSpacesAndEmptyPairs) {
    // No protocol means https and no suffix the public one; names ignore case.
    const zlStorageAccount a =
        parsed(" accountname=abc ; ACCOUNTKEY=" + kKey + ";;defaultendpointsprotocol=HTTP;\n");
    EXPECT_EQ("abc", a.accountName);
    EXPECT_EQ("http://abc.table.core.windows.net", a.tableEndpoint);
    EXPECT_EQ(80u, a.endpoint.port);

    const zlStorageAccount b =
        parsed("AccountName=abc;AccountKey=" + kKey + ";EndpointSuffix=core.chinacloudapi.cn");
    EXPECT_EQ("https://abc.table.core.chinacloudapi.cn", b.tableEndpoint);
}

TEST(ConnectionString, TableEndpointIsUsedAsItIs) {
    const zlStorageAccount a = parsed("AccountName=devstoreaccount1;AccountKey=" + kKey +
                                      ";BlobEndpoint=http://127.0.0.1:10000/x;TableEndpoint=http://"
                                      "127.0.0.1:19999/devstoreaccount1/");
    EXPECT_EQ("http://127.0.0.1:19999/devstoreaccount1", a.tableEndpoint);
    EXPECT_FALSE(a.endpoint.https);
    EXPECT_EQ("127.0.0.1", a.endpoint.host);
    EXPECT_EQ(19999u, a.endpoint.port);
    EXPECT_EQ("/devstoreaccount1", a.endpoint.path);
}

TEST(ConnectionString, DevelopmentStorageIsTheLocalEmulator) {
    const zlStorageAccount a = parsed("UseDevelopmentStorage=true");
    EXPECT_EQ("devstoreaccount1", a.accountName);
    EXPECT_EQ(kKey, a.accountKey);
    EXPECT_EQ("http://127.0.0.1:10002/devstoreaccount1", a.tableEndpoint);
    EXPECT_EQ(10002u, a.endpoint.port);
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
            full.find("UseDevelopment") == std::string::npos && !full.empty() &&
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
    EXPECT_TRUE(zlIsBase64(kKey));
    EXPECT_TRUE(zlIsBase64("QQ=="));
    EXPECT_TRUE(zlIsBase64("QUI="));
    EXPECT_FALSE(zlIsBase64("QQ"));
    EXPECT_FALSE(zlIsBase64("Q==="));
    EXPECT_FALSE(zlIsBase64("QQ==QQ=="));
    EXPECT_FALSE(zlIsBase64("QU I="));
    EXPECT_FALSE(zlIsBase64(""));
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
    const std::string builtIn = zlCloudConnectionString();
    zlStorageAccount account;
    ASSERT_TRUE(zlParseConnectionString(builtIn, account).ok());
    EXPECT_TRUE(account.endpoint.https);
    EXPECT_EQ(88u, account.accountKey.size());

    setVariable("UseDevelopmentStorage=true");
    EXPECT_EQ("UseDevelopmentStorage=true", zlCloudConnectionString());

    setVariable(before.c_str());
}

}  // namespace
