#include "cloud/zlTableKeys.h"

#include <gtest/gtest.h>

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_wchar;

namespace {

TEST(TableKeys, OrdinaryNamesAndAddressesPass) {
    for (const dm_wchar* key :
         {DM_W(""), DM_W("Lovelace"), DM_W("O'Brien"), DM_W("M\u00fcller-L\u00fcdenscheidt"),
          DM_W("ada+tag@example.org"), DM_W("\u5c71\u7530"), DM_W("a\U0001F511b")})
        EXPECT_TRUE(zlCheckTableKey(dm_string(key), "e-mail").ok());
    EXPECT_TRUE(zlCheckTableKey(dm_string(dunmar::dm_wstring(512, 'x')), "e-mail").ok());
}

TEST(TableKeys, ForbiddenCharactersAreNamedInTheReason) {
    const struct {
        dunmar::dm_wstring key;
        const char* named;
    } cases[] = {
        {DM_W("a/b@example.org"), "'/'"},
        {DM_W("back\\slash"), "'\\'"},
        {DM_W("no#hash"), "'#'"},
        {DM_W("why?"), "'?'"},
        {DM_W("100%@example.org"), "'%'"},
        {DM_W("tab\there"), "U+0009"},
        {dunmar::dm_wstring(1, 0), "U+0000"},
        {DM_W("del\x7f"), "U+007F"},
        {DM_W("c1\u0085"), "U+0085"},
    };
    for (const auto& c : cases) {
        const zlCloudResult r = zlCheckTableKey(dm_string(c.key), "e-mail");
        EXPECT_EQ(zlCloudBadKey, r.code) << c.named;
        EXPECT_EQ(0u, r.reason.rfind("the e-mail must not contain ", 0)) << r.reason;
        EXPECT_NE(std::string::npos, r.reason.find(c.named)) << r.reason;
    }
    // U+00A0 is past the forbidden range.
    EXPECT_TRUE(zlCheckTableKey(dm_string(DM_W("a\u00a0b")), "e-mail").ok());
}

TEST(TableKeys, TooLongAndBrokenTextAreRefused) {
    const zlCloudResult longKey =
        zlCheckTableKey(dm_string(dunmar::dm_wstring(513, 'x')), "last name");
    EXPECT_EQ(zlCloudBadKey, longKey.code);
    EXPECT_NE(std::string::npos, longKey.reason.find("last name"));

    const dm_wchar lone[] = {'a', static_cast<dm_wchar>(0xD83D), 'b', 0};
    EXPECT_EQ(zlCloudBadText, zlCheckTableKey(dm_string(lone), "last name").code);
    const dm_wchar trailing[] = {'a', static_cast<dm_wchar>(0xDC00), 0};
    EXPECT_EQ(zlCloudBadText, zlCheckTableKey(dm_string(trailing), "last name").code);
}

}  // namespace
