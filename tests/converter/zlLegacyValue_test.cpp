#include "converter/zlLegacyValue.h"

#include <gtest/gtest.h>

#include <string>

using dunmar::dm_utf8_str;
using Zelto::zlIsHexText;
using Zelto::zlIsLegacyValue;

namespace {

// salt bytes, a padding count, then blocks of sixteen bytes, all as "AB" pairs
std::string value(size_t salt, const char* padding, size_t blocks) {
    std::string text;
    for (size_t i = 0; i < salt; ++i)
        text += "AB";
    text += padding;
    for (size_t i = 0; i < 16 * blocks; ++i)
        text += "AB";
    return text;
}

TEST(LegacyValue, HexTextIsUpperCasePairsOnly) {
    EXPECT_TRUE(zlIsHexText(dm_utf8_str("")));
    EXPECT_TRUE(zlIsHexText(dm_utf8_str("0123456789ABCDEF")));
    EXPECT_FALSE(zlIsHexText(dm_utf8_str("0A1")));
    EXPECT_FALSE(zlIsHexText(dm_utf8_str("0a")));
    EXPECT_FALSE(zlIsHexText(dm_utf8_str("0G")));
    EXPECT_FALSE(zlIsHexText(dm_utf8_str("0A 1B")));
}

TEST(LegacyValue, ShapeFollowsTheSaltOfThePasswordLength) {
    // 8-byte passwords carry 24 salt bytes, 32 and more none.
    EXPECT_TRUE(zlIsLegacyValue(dm_utf8_str(value(24, "00", 1)), 8));
    EXPECT_TRUE(zlIsLegacyValue(dm_utf8_str(value(24, "0F", 3)), 8));
    EXPECT_TRUE(zlIsLegacyValue(dm_utf8_str(value(0, "05", 2)), 32));
    EXPECT_TRUE(zlIsLegacyValue(dm_utf8_str(value(0, "05", 2)), 100));
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(24, "00", 1)), 32));
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(0, "00", 1)), 8));
}

TEST(LegacyValue, RefusesBrokenValues) {
    EXPECT_TRUE(zlIsLegacyValue(dm_utf8_str(""), 8));
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(24, "00", 0)), 8));         // no block
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(24, "10", 1)), 8));         // padding 16
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(24, "00", 1) + "AB"), 8));  // part block
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(value(24, "00", 1) + "A"), 8));   // half pair
    std::string lower = value(24, "00", 1);
    lower[60] = 'a';
    EXPECT_FALSE(zlIsLegacyValue(dm_utf8_str(lower), 8));
}

}  // namespace
