#include "cloud/zlTableKeys.h"

#include <gtest/gtest.h>

using namespace Zelto;
using dunmar::dm_string;
using dunmar::dm_wchar;
using dunmar::dm_wstring;

namespace {

// One row per key: the result and, for a refusal, what the reason names.
TEST(TableKeys, ForbiddenCharactersLengthAndBrokenText) {
    const dm_wchar lone[] = {'a', static_cast<dm_wchar>(0xD83D), 'b', 0};
    const dm_wchar trailing[] = {'a', static_cast<dm_wchar>(0xDC00), 0};
    const struct {
        dm_wstring key;
        int code;
        const char* named;
    } cases[] = {
        {DM_W(""), zlCloudOk, ""},
        {DM_W("O'Brien M\u00fcller-L\u00fcdenscheidt"), zlCloudOk, ""},
        {DM_W("ada+tag@example.org \u5c71\u7530 a\U0001F511b a\u00a0b"), zlCloudOk, ""},
        {dm_wstring(512, 'x'), zlCloudOk, ""},
        {dm_wstring(513, 'x'), zlCloudBadKey, "longer than 512"},
        {DM_W("a/b@example.org"), zlCloudBadKey, "'/'"},
        {DM_W("back\\slash"), zlCloudBadKey, "'\\'"},
        {DM_W("no#hash"), zlCloudBadKey, "'#'"},
        {DM_W("why?"), zlCloudBadKey, "'?'"},
        {DM_W("100%@example.org"), zlCloudBadKey, "'%'"},
        {DM_W("tab\there"), zlCloudBadKey, "U+0009"},
        {dm_wstring(1, 0), zlCloudBadKey, "U+0000"},
        {DM_W("\x1f"), zlCloudBadKey, "U+001F"},
        {DM_W("del\x7f"), zlCloudBadKey, "U+007F"},
        {DM_W("c1\u009f"), zlCloudBadKey, "U+009F"},
        {lone, zlCloudBadText, "not well-formed"},
        {trailing, zlCloudBadText, "not well-formed"},
    };
    for (const auto& c : cases) {
        const zlCloudResult r = zlCheckTableKey(dm_string(c.key), "e-mail");
        EXPECT_EQ(c.code, r.code) << c.named;
        EXPECT_EQ(c.code == zlCloudOk, r.reason.empty()) << r.reason;
        EXPECT_NE(std::string::npos, r.reason.find(c.named)) << r.reason;
        if (c.code != zlCloudOk) {
            EXPECT_EQ(0u, r.reason.rfind("the e-mail ", 0)) << r.reason;
        }
    }
}

}  // namespace
