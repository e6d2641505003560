#include "cloud/zlAzureTableEntity.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cloudTestSupport.h"
#include "core/dm_convert.h"

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_utf8_str;
using dunmar::dm_wstring;

namespace {

zlAzureTableEntity entityWithData(const dm_wstring& data) {
    zlAzureTableEntity e;
    e.firstName = dm_string(DM_W("F"));
    e.lastName = dm_string(DM_W("L"));
    e.email = dm_string(DM_W("e"));
    e.verify = dm_string(DM_W("V"));
    e.data = dm_string(data);
    return e;
}

nlohmann::json parsedBody(const zlAzureTableEntity& e) {
    std::string body;
    const zlCloudResult r = e.body(body);
    EXPECT_TRUE(r.ok()) << r.reason;
    return nlohmann::json::parse(body, nullptr, false);
}

TEST(AzureTableEntity, FillTakesUserFieldsDecipheredAndVerifyAsStored) {
    zlKeyFile file;
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    zlAzureTableEntity e;
    ASSERT_TRUE(e.fill(*file.settings(), dm_utf8_str("<?xml text \xC3\xBC?>")).ok());
    EXPECT_EQ(dm_wstring(DM_W("Ada")), e.firstName.str());
    EXPECT_EQ(dm_wstring(DM_W("Lovelace")), e.lastName.str());
    EXPECT_EQ(dm_wstring(DM_W("ada@example.org")), e.email.str());
    EXPECT_EQ(file.settings()->verify.str(), dunmar::utf16_to_utf8(e.verify.c_str()));
    EXPECT_FALSE(e.verify.empty());
    EXPECT_EQ(dm_wstring(DM_W("<?xml text \u00fc?>")), e.data.str());
}

TEST(AzureTableEntity, FillRefusesTextThatIsNotUtf8AndKeepsWhatItHad) {
    zlKeyFile file;
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 0);
    zlAzureTableEntity e = entityWithData(DM_W("old"));
    const zlCloudResult r = e.fill(*file.settings(), dm_utf8_str("abc\xC3(def"));
    EXPECT_EQ(zlCloudBadText, r.code);
    EXPECT_NE(std::string::npos, r.reason.find("key file text"));
    EXPECT_EQ(dm_wstring(DM_W("old")), e.data.str());
    EXPECT_EQ(dm_wstring(DM_W("L")), e.lastName.str());
}

TEST(AzureTableEntity, SmallFileGoesAsFivePropertiesInOrder) {
    zlAzureTableEntity e;
    e.firstName = dm_string(DM_W("J\u00fcrgen"));
    e.lastName = dm_string(DM_W("O'Brien"));
    e.email = dm_string(DM_W(""));
    e.verify = dm_string(DM_W("AbC"));
    e.data = dm_string(DM_W("<?xml?>\r\n<a b=\"c\">\\\x01</a>"));
    std::string body;
    ASSERT_TRUE(e.body(body).ok());
    EXPECT_EQ(
        "{\"PartitionKey\":\"O'Brien\",\"RowKey\":\"\",\"FirstName\":\"J\xC3\xBCrgen\","
        "\"Verify\":\"AbC\",\"Data\":\"<?xml?>\\r\\n<a b=\\\"c\\\">\\\\\\u0001</a>\"}",
        body);
    EXPECT_EQ(1u, e.dataParts().size());
}

TEST(AzureTableEntity, DataOfExactlyOnePropertyIsNotSplit) {
    const nlohmann::json one = parsedBody(entityWithData(dm_wstring(32768, 'x')));
    EXPECT_EQ(32768u, one["Data"].get<std::string>().size());
    EXPECT_FALSE(one.contains("Data2"));
    EXPECT_FALSE(one.contains("DataParts"));
}

TEST(AzureTableEntity, LongDataIsSplitIntoNumberedParts) {
    const zlAzureTableEntity e = entityWithData(dm_wstring(2 * 32768 + 5, 'x'));
    const nlohmann::json body = parsedBody(e);
    EXPECT_EQ(32768u, body["Data"].get<std::string>().size());
    EXPECT_EQ(32768u, body["Data2"].get<std::string>().size());
    EXPECT_EQ(5u, body["Data3"].get<std::string>().size());
    EXPECT_FALSE(body.contains("Data4"));
    EXPECT_EQ(3, body["DataParts"].get<int>());
    std::vector<std::string> names;
    for (auto it = body.begin(); it != body.end(); ++it)
        names.push_back(it.key());
    std::sort(names.begin(), names.end());
    EXPECT_EQ((std::vector<std::string>{"Data", "Data2", "Data3", "DataParts", "FirstName",
                                        "PartitionKey", "RowKey", "Verify"}),
              names);
}

TEST(AzureTableEntity, PartsNeverCutASurrogatePairAndJoinToTheWhole) {
    dm_wstring text(32767, 'a');
    text += DM_W("\U0001F511");  // units 32767 and 32768
    text += DM_W("tail \u00e9\u00e8");
    const zlAzureTableEntity e = entityWithData(text);
    const std::vector<dm_wstring> parts = e.dataParts();
    ASSERT_EQ(2u, parts.size());
    EXPECT_EQ(32767u, parts[0].size());
    EXPECT_EQ(static_cast<dunmar::dm_wchar>(0xD83D), parts[1][0]);
    EXPECT_EQ(text, parts[0] + parts[1]);

    const nlohmann::json body = parsedBody(e);
    const std::string joined = body["Data"].get<std::string>() + body["Data2"].get<std::string>();
    EXPECT_EQ(dunmar::utf16_to_utf8(text.data(), text.size()), joined);
}

TEST(AzureTableEntity, SizeFollowsTheServicesCount) {
    // 4 + keys 2*2 + FirstName (8+18+4+2) + Verify (8+12+4+2) + Data (8+8+4+65536)
    // + Data2 (8+10+4+14464) + DataParts (8+18+4) = 80138
    EXPECT_EQ(80138u, entityWithData(dm_wstring(40000, 'x')).entityBytes());
    // 4 + 4 + 32 + 26 + Data (8+8+4+20) = 106
    EXPECT_EQ(106u, entityWithData(dm_wstring(10, 'x')).entityBytes());
}

TEST(AzureTableEntity, AFileTooLargeForOneEntityIsRefusedWithItsSize) {
    EXPECT_TRUE(entityWithData(dm_wstring(500000, 'x')).check().ok());
    const zlAzureTableEntity big = entityWithData(dm_wstring(530000, 'x'));
    const zlCloudResult r = big.check();
    EXPECT_EQ(zlCloudEntityTooLarge, r.code);
    EXPECT_NE(std::string::npos, r.reason.find("too large")) << r.reason;
    EXPECT_NE(std::string::npos, r.reason.find("1036 KiB")) << r.reason;
    std::string body = "untouched";
    EXPECT_EQ(zlCloudEntityTooLarge, big.body(body).code);
    EXPECT_EQ("untouched", body);

    zlAzureTableEntity longName = entityWithData(DM_W("x"));
    longName.firstName = dm_string(dm_wstring(32769, 'f'));
    EXPECT_EQ(zlCloudEntityTooLarge, longName.check().code);
}

TEST(AzureTableEntity, KeysAreCheckedBeforeTheBodyIsBuilt) {
    zlAzureTableEntity e = entityWithData(DM_W("x"));
    e.email = dm_string(DM_W("a/b@example.org"));
    std::string body;
    const zlCloudResult r = e.body(body);
    EXPECT_EQ(zlCloudBadKey, r.code);
    EXPECT_NE(std::string::npos, r.reason.find("e-mail"));
    EXPECT_TRUE(body.empty());
    e.email = dm_string(DM_W("ok@example.org"));
    e.lastName = dm_string(DM_W("50%"));
    EXPECT_EQ(zlCloudBadKey, e.check().code);
}

}  // namespace
