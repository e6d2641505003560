#include "app/zlSettingsRules.h"

#include <gtest/gtest.h>

#include <climits>

using namespace Zelto;
using dunmar::dm_utf8_str;

namespace {

TEST(zlSettingsRules, TextIsReadLikeTheStandardConversion) {
    const struct {
        const char* text;
        long seconds;
    } cases[] = {{"", 0},
                 {"abc", 0},
                 {"-", 0},
                 {"45", 45},
                 {"  45s", 45},
                 {"+7", 7},
                 {"-12", -12},
                 {"x45", 0},
                 {"00120", 120},
                 {"99999999999999999999999", LONG_MAX},
                 {"-99999999999999999999999", LONG_MIN}};
    for (const auto& c : cases)
        EXPECT_EQ(c.seconds, zlSecondsFromText(dm_utf8_str(c.text).to_wide())) << c.text;
}

// Automatic lock and clipboard: off below 5, at most 600. Show selected: off below 1, at
// most 30.
TEST(zlSettingsRules, ClampsSwitchOffBelowTheMinimumAndCapAtTheMaximum) {
    const struct {
        long seconds;
        int autoSeconds;
        int showSelected;
    } cases[] = {{LONG_MIN, 0, 0}, {-30, 0, 0},    {0, 0, 0},          {1, 0, 1},
                 {4, 0, 4},        {5, 5, 5},      {30, 30, 30},       {31, 31, 30},
                 {600, 600, 30},   {601, 600, 30}, {LONG_MAX, 600, 30}};
    for (const auto& c : cases) {
        EXPECT_EQ(c.autoSeconds, zlClampAutoSeconds(c.seconds)) << c.seconds;
        EXPECT_EQ(c.showSelected, zlClampShowSelectedSeconds(c.seconds)) << c.seconds;
    }
}

}  // namespace
