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
    const std::pair<const char*, bool> cases[] = {{"", true},     {"0123456789ABCDEF", true},
                                                  {"0A1", false}, {"0a", false},
                                                  {"0G", false},  {"0A 1B", false}};
    for (const auto& c : cases)
        EXPECT_EQ(c.second, zlIsHexText(dm_utf8_str(c.first))) << c.first;
}

// 8-byte passwords carry 24 salt bytes, 32 and more none; then a padding count below 16 and
// whole blocks of at least one.
TEST(LegacyValue, ShapeFollowsTheSaltOfThePasswordLength) {
    std::string lower = value(24, "00", 1);
    lower[60] = 'a';
    const struct {
        std::string text;
        size_t passwordLength;
        bool legacy;
    } cases[] = {
        {"", 8, true},
        {value(24, "00", 1), 8, true},
        {value(24, "0F", 3), 8, true},
        {value(0, "05", 2), 32, true},
        {value(0, "05", 2), 100, true},
        {value(24, "00", 1), 32, false},
        {value(0, "00", 1), 8, false},
        {value(24, "00", 0), 8, false},         // no block
        {value(24, "10", 1), 8, false},         // padding 16
        {value(24, "00", 1) + "AB", 8, false},  // part block
        {value(24, "00", 1) + "A", 8, false},   // half pair
        {lower, 8, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.legacy, zlIsLegacyValue(dm_utf8_str(c.text), c.passwordLength))
            << c.text << " / " << c.passwordLength;
}

}  // namespace
