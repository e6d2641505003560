#include "cloud/zlAzureTableEntity.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "cloudTestSupport.h"
#include "core/dm_convert.h"
#include "tableReader.h"

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

TEST(AzureTableEntity, FillTakesUserFieldsDecipheredAndRefusesBrokenText) {
    zlKeyFile file;
    ztest::fillKeyFile(file, "Ada", "Lovelace", "ada@example.org", 1);
    zlAzureTableEntity e;
    ASSERT_TRUE(e.fill(*file.settings(), dm_utf8_str("<?xml text \xC3\xBC?>")).ok());
    EXPECT_EQ(dm_wstring(DM_W("Ada|Lovelace|ada@example.org|<?xml text \u00fc?>")),
              e.firstName.str() + DM_W("|") + e.lastName.str() + DM_W("|") + e.email.str() +
                  DM_W("|") + e.data.str());
    EXPECT_FALSE(e.verify.empty());
    EXPECT_EQ(file.settings()->verify.str(), dunmar::utf16_to_utf8(e.verify.c_str()));

    const zlCloudResult r = e.fill(*file.settings(), dm_utf8_str("abc\xC3(def"));
    EXPECT_EQ(zlCloudBadText, r.code);
    EXPECT_NE(std::string::npos, r.reason.find("key file text"));
    EXPECT_EQ(dm_wstring(DM_W("<?xml text \u00fc?>")), e.data.str());
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
}

// Data goes in parts of at most 32768 units, never cutting a surrogate pair; the parts in
// the body join to the whole text, and DataParts counts them when there is more than one.
TEST(AzureTableEntity, DataIsSplitIntoNumberedPartsThatJoinToTheWhole) {
    const dm_wstring key = DM_W("\U0001F511");
    const struct {
        dm_wstring data;
        std::vector<size_t> sizes;
    } cases[] = {
        {dm_wstring(32768, 'x'), {32768}},
        {dm_wstring(2 * 32768 + 5, 'x'), {32768, 32768, 5}},
        {dm_wstring(32767, 'a') + key + DM_W("tail \u00e9"), {32767, 8}},
    };
    for (const auto& c : cases) {
        const zlAzureTableEntity e = entityWithData(c.data);
        const std::vector<dm_wstring> parts = e.dataParts();
        std::vector<size_t> sizes;
        dm_wstring joined;
        for (const dm_wstring& part : parts) {
            sizes.push_back(part.size());
            joined += part;
        }
        EXPECT_EQ(c.sizes, sizes);
        EXPECT_EQ(c.data, joined);

        std::string body;
        ASSERT_TRUE(e.body(body).ok());
        ztest::ReadBack read;
        read.status = 200;
        read.entity = nlohmann::json::parse(body, nullptr, false);
        EXPECT_EQ(dunmar::utf16_to_utf8(c.data.data(), c.data.size()), read.joinedData());
        EXPECT_EQ(parts.size() > 1, read.entity.contains("DataParts"));
        EXPECT_FALSE(read.entity.contains("Data" + std::to_string(parts.size() + 1)));
        if (parts.size() > 1) {
            EXPECT_EQ(parts.size(), read.entity["DataParts"].get<size_t>());
        }
    }
}

TEST(AzureTableEntity, SizeFollowsTheServicesCountAndLargeEntitiesAreRefused) {
    // 4 + keys 2*2 + FirstName (8+18+4+2) + Verify (8+12+4+2) + Data (8+8+4+65536)
    // + Data2 (8+10+4+14464) + DataParts (8+18+4) = 80138
    EXPECT_EQ(80138u, entityWithData(dm_wstring(40000, 'x')).entityBytes());
    // 4 + 4 + 32 + 26 + Data (8+8+4+20) = 106
    EXPECT_EQ(106u, entityWithData(dm_wstring(10, 'x')).entityBytes());

    EXPECT_TRUE(entityWithData(dm_wstring(500000, 'x')).check().ok());
    const zlAzureTableEntity big = entityWithData(dm_wstring(530000, 'x'));
    const zlCloudResult r = big.check();
    EXPECT_EQ(zlCloudEntityTooLarge, r.code);
    EXPECT_NE(std::string::npos, r.reason.find("too large")) << r.reason;
    EXPECT_NE(std::string::npos, r.reason.find("1036 KiB")) << r.reason;
    std::string body = "untouched";
    EXPECT_EQ(zlCloudEntityTooLarge, big.body(body).code);
    EXPECT_EQ("untouched", body);

    for (int field = 0; field < 2; ++field) {
        zlAzureTableEntity e = entityWithData(DM_W("x"));
        (field == 0 ? e.firstName : e.verify) = dm_string(dm_wstring(32769, 'f'));
        EXPECT_EQ(zlCloudEntityTooLarge, e.check().code) << field;
        (field == 0 ? e.firstName : e.verify) = dm_string(dm_wstring(32768, 'f'));
        EXPECT_TRUE(e.check().ok()) << field;
    }
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
