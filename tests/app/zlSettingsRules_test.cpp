#include "app/zlSettingsRules.h"

#include <gtest/gtest.h>

#include <climits>

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

long seconds(const char* text) {
    return zlSecondsFromText(dm_utf8_str(text).to_wide());
}

TEST(zlSettingsRules, TextIsReadLikeTheStandardConversion) {
    EXPECT_EQ(0, seconds(""));
    EXPECT_EQ(0, seconds("abc"));
    EXPECT_EQ(0, seconds("-"));
    EXPECT_EQ(45, seconds("45"));
    EXPECT_EQ(45, seconds("  45s"));
    EXPECT_EQ(7, seconds("+7"));
    EXPECT_EQ(-12, seconds("-12"));
    EXPECT_EQ(0, seconds("x45"));
    EXPECT_EQ(120, seconds("00120"));
    EXPECT_EQ(LONG_MAX, seconds("99999999999999999999999"));
    EXPECT_EQ(LONG_MIN, seconds("-99999999999999999999999"));
}

TEST(zlSettingsRules, AutoSecondsAreOffBelowFiveAndAtMost600) {
    EXPECT_EQ(0, zlClampAutoSeconds(4));
    EXPECT_EQ(0, zlClampAutoSeconds(0));
    EXPECT_EQ(0, zlClampAutoSeconds(-30));
    EXPECT_EQ(5, zlClampAutoSeconds(5));
    EXPECT_EQ(600, zlClampAutoSeconds(600));
    EXPECT_EQ(600, zlClampAutoSeconds(601));
    EXPECT_EQ(600, zlClampAutoSeconds(LONG_MAX));
    EXPECT_EQ(0, zlClampAutoSeconds(LONG_MIN));
    EXPECT_EQ(0, zlClampAutoSeconds(seconds("letters")));
}

TEST(zlSettingsRules, ShowSelectedIsOffBelowOneAndAtMost30) {
    EXPECT_EQ(0, zlClampShowSelectedSeconds(0));
    EXPECT_EQ(0, zlClampShowSelectedSeconds(seconds("")));
    EXPECT_EQ(1, zlClampShowSelectedSeconds(1));
    EXPECT_EQ(30, zlClampShowSelectedSeconds(30));
    EXPECT_EQ(30, zlClampShowSelectedSeconds(31));
    EXPECT_EQ(0, zlClampShowSelectedSeconds(-1));
}

}  // namespace
